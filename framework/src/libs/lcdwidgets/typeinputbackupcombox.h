// An input and its backup input in one row (two drop-downs): the backup takes over
// when the input is lost, so it can never be the input itself. Both lists hold the
// same inputs, filled once through the row's list interface (addItem, insertItem,
// removeItem, setItemText, updateItems, setItemData, clear act on both); the backup's
// list leaves out the chosen input (that entry is hidden in it, keeping its index, so
// an index means the same input in both lists).
//
// When the input becomes the current backup (the user or the host chose it), the
// backup moves to the first other visible input; with no other input it is left
// empty (-1). Each move of the backup emits signalBackupIndexChanged(index) and
// signalSecondCurrentIndexChanged(index).
//
// Edit: as DoubleComboxBaseType: press opens the input list, committing it opens the
// backup list, Escape ends the edit.
//
// Bad input is refused: a bad index with the combo's own message; choosing the input
// as its own backup with "[TypeInputBackupCombox] <function>: the backup can't be the
// input itself"; an unknown backup text or data with "[TypeInputBackupCombox]
// <function>: no such input".
#pragma once

#include "typeitemdoublecombox.h"

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeInputBackupCombox : public TypeItemDoubleCombox
{
    Q_OBJECT
public:
    // No inputs; haveArrow: whether the combos show their drop-down arrows.
    explicit TypeInputBackupCombox(QWidget* parent = nullptr, bool haveArrow = true);
    ~TypeInputBackupCombox() override;

    // --- The list interface: the inputs of both lists ---
    void addItem(QString const& text, QVariant const& userData = QVariant()) override;
    void removeItem(int index) override;
    void insertItem(int index, QString const& text, QVariant const& userData = QVariant()) override;
    void setItemText(int index, QString const& text) override;
    void updateItems(std::list<std::pair<int, QString>>& items) override;
    void clear() override;
    void setItemData(int index, QVariant value, int role = Qt::UserRole) override;
    // Hides an input from both lists.
    void setRowHidden(int index, bool hidden) override;

    // --- The backup ---
    // The backup's index (the same index as in the input list); -1 when empty.
    int backupIndex() const;
    // The backup's text; empty when there is none.
    QString backupText() const;
    // The backup's data for `role`.
    QVariant backupData(int role = Qt::UserRole) const;
    // -1 leaves the backup empty.
    void setBackupIndex(int index);
    // Chooses the backup by text (refusals: see above).
    void setBackupText(QString const& text);
    // Chooses the backup by user data (refusals: see above).
    void setBackupUserData(QVariant const& data);
    // Whether the entry is in the backup's list now (not hidden, not the input).
    bool isBackupCandidate(int index) const;

signals:
    // The backup moved: its index (-1: empty).
    void signalBackupIndexChanged(int index);

private:
    // Hides the chosen input in the backup list and moves the backup off it.
    void syncBackup();
    QList<bool> m_hidden; // inputs hidden by the host, by index
};

} // namespace Widget
} // namespace LCD
