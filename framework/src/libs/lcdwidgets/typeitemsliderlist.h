// A row whose value is chosen from a list shown as a slider: the slider's handle marks
// the current entry's place in the list and the current entry's text stands beside it
// (for example the steps of a transition rate: "Slow", "Medium", "Fast"). The list
// interface is that of StringComboxBaseType, so a page fills and reads it by index,
// text or data as any string choice row.
//
// Edit: the knob's press (editValue()) gives the slider the focus and emits
// signalEditStarted(); Up moves to the next visible entry, Down to the previous one,
// by the knob's level (truncated, at least one entry), clamped at the ends; each move
// is live: signalSelectedIndexChanged(i), signalSelectedChanged(text),
// signalCurrentIndexChanged(i), signalCurrentTextChanged(text) and then
// signalValueChanged(the entry's user data). Enter/Return or Escape end the edit:
// the focus returns to the row's parent, then signalCloseEditStatus() and
// signalEditFinished(). A row with fewer than two visible entries does not start an
// edit. Hidden entries (role 252) keep their index and are stepped over.
//
// Bad input is refused with a debug message and changes nothing (reads give an empty
// text, an invalid QVariant or -1):
//   "[TypeItemSliderList] <function>: index N out of range (count M)"
//   "[TypeItemSliderList] <function>: no entry holds <data or text>"
//   "[TypeItemSliderList] <title>: nothing to choose from" (fewer than two visible entries)
//   "[TypeItemSliderList] <title>: the choice is fixed" (after setEditable(false))
//   "[TypeItemSliderList] setContentFontSize: font size must be positive, got N"
//
// Theme: the slider has "isSliderList" = true, the text "isSliderListText" = true;
// a disabled row sets "Gray" = true on the text.
#pragma once

#include "stringcomboxbasetype.h"

class QSlider;
class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemSliderList : public StringComboxBaseType
{
    Q_OBJECT
public:
    // No entries, no right icon; the slider's range follows the entries.
    explicit TypeItemSliderList(QWidget* parent = nullptr);
    ~TypeItemSliderList() override;

    // --- The list interface ---
    void addItem(QString const& text, QVariant const& userData = QVariant()) override;
    void removeItem(int index) override;
    void insertItem(int index, QString const& text, QVariant const& userData = QVariant()) override;
    int currentIndex() const override;
    QString currentText() const override;
    QVariant currentData(int role = Qt::UserRole) const override;
    // Silent (no signal); -1 clears the choice.
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
    // false: the knob's press no longer starts an edit.
    void setEditable(bool editable) override;

    // Number of entries that are not hidden.
    int visableCount() const;

    // --- Row operations ---
    void editValue() override;
    void closeEditValue() override;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;

    // The slider (owned by the row).
    QSlider* slider() const;
    // The label showing the current entry's text.
    QLabel* textLabel() const;

    // The slider's keys during an edit, as described above; releases of those keys are swallowed.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
