// A list of titled value editors in one item row: "Red gain 100", "Green gain 98",
// "Blue gain 102", each a MultipleSpinBoxItem with its own range, single step and
// unit. The row's title (if any) stands on the left; the items are stacked on the
// right, one line each; give the row a height of about 40 pixels per item.
//
// Edit protocol (a list inside a row):
//   editValue()       the row takes the knob and the first item becomes current
//                     (signalEditStarted()); the current item is marked.
//   Up / Down         move the current item (it stops at the ends);
//   Return / Enter    start editing the current item: the knob now changes its value
//                     by the NQSpinBox rule, live, reported with
//                     signalSpinBoxValueChanged(index, value) and
//                     signalValueChanged(QVariantList of all values); Return, Enter
//                     or Escape end the item's edit and the knob walks again;
//   Escape            (while walking) ends the row's edit: the focus goes back to
//                     the row's parent, then signalCloseEditStatus() and
//                     signalEditFinished().
// Values reached stay.
//
// Bad input is refused and logged at warning level:
//   "[MultipleSpinBox] addItem: <min>..<max> is not a range, refused"  (null returned)
//   "[MultipleSpinBox] addItem: <step> is not a step of <min>..<max>, 1 used"
//   "[MultipleSpinBox] <function>: index <i> is outside 0..<n-1>"
//   "[MultipleSpinBox] setLabelValue: <n> values for <m> items, ignored"
// An edit of an empty list is refused with "[MultipleSpinBox] editValue: no items".
// value() of a bad index is 0, item() null.
//
// Theme: "isMultipleSpinBoxItem" on each item's frame, "multipleItemCurrent" (true
// on the current item while walking), "isMultipleSpinBoxTitle" on the item titles,
// "isMultipleSpinBox" on the spin boxes (the one being edited has the focus).
#pragma once

#include "commonitemtype.h"
#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <QFrame>
#include <memory>

class QLabel;

namespace LCD {
namespace Widget {

class NQSpinBox;

// One titled editor of a MultipleSpinBox.
class LCDWIDGETS_EXPORT MultipleSpinBoxItem : public QFrame
{
    Q_OBJECT
    // The item's title.
    Q_PROPERTY(QString title READ title WRITE setTitle)
    // Whether the item is marked as the current one ("multipleItemCurrent").
    Q_PROPERTY(bool current READ isCurrent WRITE setCurrent)
public:
    // An item with `title` and a spin box showing `suffix`; text 20 px. Usually made by
    // MultipleSpinBox::addItem().
    MultipleSpinBoxItem(QString const& title, SuffixType suffix = SuffixNone, QWidget* parent = nullptr);
    ~MultipleSpinBoxItem() override;

    // The item's title.
    QString title() const;
    // The item's title.
    void setTitle(QString const& title);
    // The item's spin box (owned by the item).
    NQSpinBox* spinBox() const;
    // The item's title label.
    QLabel* titleLabel() const;
    // Range and step as checked by MultipleSpinBox::addItem; no signal.
    void setRange(int minimum, int maximum);
    // Change per knob step of level 1 (QSpinBox's rule: a negative step is ignored).
    void setSingleStep(int step);
    // Clamped, no signal.
    void setValue(int value);
    // The spin box's value.
    int value() const;
    // Marks the item as current (theme property "multipleItemCurrent"); no signal.
    void setCurrent(bool current);
    // Whether the item is marked as current.
    bool isCurrent() const;
    // Pixel size of the title and the value; outside 1..512 refused ("[MultipleSpinBoxItem]
    // setFontSize: font size <size> refused"). The spin box's width follows.
    void setFontSize(int size);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

class LCDWIDGETS_EXPORT MultipleSpinBox : public CommonItemType
{
    Q_OBJECT
public:
    // An empty list, no right icon.
    explicit MultipleSpinBox(QWidget* parent = nullptr);
    ~MultipleSpinBox() override;

    // Appends an item with its range, single step, value (clamped) and unit; returns it
    // (owned by the row), or null when the range is refused (see above). No signal.
    MultipleSpinBoxItem* addItem(QString const& title, int minimum, int maximum, int step = 1, int value = 0,
                                 SuffixType suffix = SuffixNone);
    // Removes every item (a running edit ends first).
    void clear();
    // Number of items.
    int count() const;
    // The item at `index`; null (and logged) for a bad index.
    MultipleSpinBoxItem* item(int index) const;
    // Sets one item's value, clamped, without a signal; a bad index is logged.
    void setValue(int index, int value);
    // One item's value; 0 (and logged) for a bad index.
    int value(int index) const;

    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void closeEditValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Item marked while walking; -1 while not editing.
    int currentIndex() const;
    // Whether the knob is changing the current item's value.
    bool isItemEditing() const;

    // The items' spin boxes' keys during an item's edit: Return, Enter and Escape end it.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    bool checkIndex(int index, char const* function) const;
    void setCurrent(int index);
    void endItemEdit();
    void endEdit();
    QVariantList valueList() const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
