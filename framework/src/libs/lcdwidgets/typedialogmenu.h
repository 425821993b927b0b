// The menu choice row: the chosen entry's text in the row, and a DialogMenuWidget
// centred over the host's home frame (11/16 of its width, 9/10 of its height) from
// which the user picks another entry with the knob.
//
// The knob's press (editValue()) opens the menu, unless it is open already or fewer
// than two of its entries are visible: a list with one choice never opens. While it
// is open the row re-emits the cursor's moves (signalSelectedChanged,
// signalSelectedIndexChanged) for a live preview; Enter commits (the row shows the
// new text; signalCurrentTextChanged, signalCurrentIndexChanged; the menu closes;
// signalEditFinished) and Escape returns to the previous choice (isKeyBackPressed()
// is then true; the menu closes; signalEditFinished). The focus returns to the row's
// parent in both cases.
//
// Entry texts are unique: adding or renaming to a text that exists already is refused
// with "the text has been exist!". Bad indexes are refused with the messages
// "the index is bigger than _itemNameVec!" (removeItem, insertItem, itemText),
// "the index is bigger than _kvItemVec!" (setItemText, a committed index past the
// end) and "setItemData: index is bigger than vec size!".
//
// Without a home frame the menu keeps the size and place it had. Theme properties:
// the value label has "isComboboxLabel" = true, the menu "isMenuDialogBg" = true.
#pragma once

#include "stringcomboxbasetype.h"

#include <lcd/ihomeframe.h>

namespace LCD {
namespace Widget {

class DialogMenuWidget;

class LCDWIDGETS_EXPORT TypeDialogMenu : public StringComboxBaseType
{
    Q_OBJECT
public:
    // homeFrame: the host's page frame whose rectangle sizes and places the menu (may be
    // null); the menu is a top-level window owned by the row and deleted with it.
    explicit TypeDialogMenu(QWidget* parent = nullptr, LCD::MainWidgets::IHomeFrame* homeFrame = nullptr);
    ~TypeDialogMenu() override;

    // --- The list interface ---
    void addItem(QString const& text, QVariant const& userData = QVariant()) override;
    void removeItem(int index) override;
    void insertItem(int index, QString const& text, QVariant const& userData = QVariant()) override;
    int currentIndex() const override;
    QString currentText() const override;
    QVariant currentData(int role = Qt::UserRole) const override;
    void setCurrentIndex(int index) override;
    void setCurrentUserData(QVariant data) override;
    void setCurrentText(QString text) override;
    void setItemText(int index, QString const& text) override;
    QString itemText(int index) const override;
    void updateItems(std::list<std::pair<int, QString>>& items) override;
    void clear() override;
    int count() const override;
    int findText(QString const& text) const override;
    int findData(QVariant const& data, int role = Qt::UserRole) const override;
    QVariant itemData(int index, int role = Qt::UserRole) const override;
    void setItemData(int index, QVariant value, int role = Qt::UserRole) override;
    void setRowHidden(int index, bool hidden) override;
    // Screen position of the home frame's top-left corner; re-places an open menu.
    void setHomeFramePoint(QPoint point) override;
    // Accepted and ignored: the row is always editable.
    void setEditable(bool editable) override;
    void setDlgMenuWidgetHidden(bool hidden) override;

    // --- Row operations ---
    void editValue() override;
    void closeEditValue() override;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;

    // The menu's title text (empty by default).
    void setDialogTitle(QString const& title);
    // Sets the dynamic property `name` = true on the value label.
    void setTextLabelProperty(QString const& name);
    // Whether the menu's last edit ended with Escape (the choice was left as it was).
    bool isKeyBackPressed() const;
    // The menu the row opens (owned by the row).
    DialogMenuWidget* menuDialog() const;
    // The text the row shows.
    QString labelText() const;

public slots:
    // From the menu: re-emits signalSelectedChanged(text).
    void slotSelectedChanged(QString text);
    // From the menu: re-emits signalSelectedIndexChanged(index).
    void slotSelectedIndexChanged(int index);
    // From the menu: shows `text` in the row, then emits signalCurrentTextChanged(text).
    void slotCurrentChanged(QString text);
    // From the menu: shows the entry's text and emits signalCurrentIndexChanged(index); an
    // index past the entries is refused ("the index is bigger than _kvItemVec!").
    void slotCurrentIndexChanged(int index);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
