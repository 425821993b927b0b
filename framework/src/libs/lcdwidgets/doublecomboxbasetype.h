// Base of the rows that hold two choice rows side by side (a pair of drop-downs, a
// pair of menus, an input and its backup). The row itself offers the list interface of
// StringComboxBaseType for the FIRST choice, so a page fills and reads it as any
// string choice row; the second choice is reached through secondChoice() (a full
// StringComboxBaseType of its own) or the second...() shortcuts below.
//
// Edit: the knob's press (editValue()) opens the first choice (signalEditStarted());
// committing it (Enter) opens the second; committing the second ends the edit: the
// focus returns to the row's parent and signalEditFinished() is emitted. Escape in
// either ends the whole edit at once (signalCloseEditStatus(), then
// signalEditFinished()), keeping what was committed so far. A choice that cannot open
// (at most one visible entry) is stepped over; when neither can, nothing starts.
//
// Signals: the first choice's list signals come out as the row's own
// (signalCurrentIndexChanged, signalCurrentTextChanged, signalSelected...,
// signalActivated, signalShowPop); the second's as signalSecondCurrentIndexChanged and
// signalSecondCurrentTextChanged. Every committed change of either emits
// signalValueChanged(QVariant(QVariantList{first user data, second user data})).
//
// Bad input is refused by the inner rows with their own messages, and by the row:
//   "[<class>] <title>: nothing to choose from" (neither choice can open)
//   "[DoubleComboxBaseType] setContentFontSize: font size must be positive, got N"
// Theme: the separator between the two has "isDoubleComboxSeparator" = true.
#pragma once

#include "stringcomboxbasetype.h"

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT DoubleComboxBaseType : public StringComboxBaseType
{
    Q_OBJECT
public:
    ~DoubleComboxBaseType() override;

    // The first choice row (owned by this row).
    StringComboxBaseType* firstChoice() const;
    // The second choice row (owned by this row).
    StringComboxBaseType* secondChoice() const;

    // --- The list interface (first choice) ---
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
    // Both choices.
    void setHomeFramePoint(QPoint point) override;
    void setEditable(bool editable) override;

    // --- Second choice shortcuts ---
    // Appends an entry to the second choice.
    void addSecondItem(QString const& text, QVariant const& userData = QVariant());
    // The second choice's chosen entry; -1 when none.
    int secondCurrentIndex() const;
    // The second choice's chosen text.
    QString secondCurrentText() const;
    // The second choice's chosen entry's data for `role`.
    QVariant secondCurrentData(int role = Qt::UserRole) const;
    // Chooses an entry of the second choice (its own checks, messages and signals).
    void setSecondCurrentIndex(int index);
    // Chooses the second choice's entry with that text (its own checks and signals).
    void setSecondCurrentText(QString const& text);
    // Number of entries of the second choice.
    int secondCount() const;

    // --- Row operations ---
    void editValue() override;
    void closeEditValue() override;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    void setHomeRect(QRect rect) override;
    // The text between the two choices (default: empty, no separator shown).
    void setSeparatorText(QString const& text);
    // 0: not editing, 1: the first choice is open, 2: the second.
    int editStage() const;

signals:
    // The second choice's chosen entry changed: its index.
    void signalSecondCurrentIndexChanged(int index);
    // The second choice's chosen entry changed: its text.
    void signalSecondCurrentTextChanged(QString text);

protected:
    explicit DoubleComboxBaseType(QWidget* parent = nullptr);
    // Subclasses build the two rows (children of this row) and hand them over once.
    void setChoices(StringComboxBaseType* first, StringComboxBaseType* second);
    // Whether `choice`'s edit just ended by Escape. The default watches its
    // signalCloseEditStatus(); menus override it with their key-back flag.
    virtual bool choiceWentBack(StringComboxBaseType* choice) const;
    // Emits signalValueChanged with both user data.
    void emitPairValue();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
