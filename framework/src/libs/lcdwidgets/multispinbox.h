// An item row with several knob spin boxes side by side, each with a caption: the
// X, Y, W and H of a window, the four sides of a crop. The fields share the knob
// rule of NQSpinBox (level 1 one single step, faster levels a share of the range);
// each has its own range and single step.
//
// Edit protocol: editValue() starts on the first field (signalEditStarted()); the
// knob changes the current field live, reported with
// signalSpinBoxValueChanged(index, value) and signalValueChanged(QVariantList of all
// values); Return / Enter move to the next field, and on the last one end the edit;
// Escape ends it at once. The end returns the focus to the row's parent and emits
// signalCloseEditStatus() then signalEditFinished(). Values reached stay.
//
// Values: getLabelValue() is a QVariantList of ints; setLabelValue() takes such a
// list (or a QList<int>, or a text "0, 0, 1920, 1080") with one value per field.
// Values beyond a field's range are clamped; setters never emit.
//
// Bad input is refused and logged at warning level:
//   "[MultiSpinBox] setCaptions: <n> fields, 1..8 expected, ignored"
//   "[MultiSpinBox] <function>: index <i> is outside 0..<n-1>"
//   "[MultiSpinBox] setFieldRange: <min>..<max> is not a range, ignored"
//   "[MultiSpinBox] setFieldSingleStep: <step> is not a step of <min>..<max>, ignored"
//   "[MultiSpinBox] setLabelValue: <n> values for <m> fields, ignored"
// value() of a bad index is 0.
//
// Theme: "isMultiSpinCaption" on the captions, "isMultiSpinField" on the spin boxes
// (the field being edited has the focus).
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <QStringList>
#include <memory>

namespace LCD {
namespace Widget {

class NQSpinBox;

class LCDWIDGETS_EXPORT MultiSpinBox : public CommonItemType
{
    Q_OBJECT
    // The fields' captions, one field each (1 to kMaxFields).
    Q_PROPERTY(QStringList captions READ captions WRITE setCaptions)
public:
    // Most fields a row takes.
    static constexpr int kMaxFields = 8;

    // Fields "X", "Y", "W", "H" unless others are given.
    explicit MultiSpinBox(QWidget* parent = nullptr);
    // One field per caption, each 0..9999 with a single step of 1; a list of no or more
    // than 8 captions is logged (see setCaptions()) and "X", "Y", "W", "H" are used.
    explicit MultiSpinBox(QStringList const& captions, QWidget* parent = nullptr);
    ~MultiSpinBox() override;

    // Rebuilds the fields, one per caption; refused for no or more than 8 captions.
    void setCaptions(QStringList const& captions);
    // The fields' captions.
    QStringList captions() const;
    // Number of fields.
    int count() const;

    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    // Ends a running edit as Escape does.
    void closeEditValue() override;
    // The same range / single step for every field.
    void setRange(int minimum, int maximum) override;
    void setRange(float minimum, float maximum) override;
    void setSingleStep(float step) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // One field's range (the value is clamped silently); min > max or a bad index refused.
    void setFieldRange(int index, int minimum, int maximum);
    // One field's single step; a step below 1 or wider than the range is refused.
    void setFieldSingleStep(int index, int step);
    // One field's value, clamped, without a signal; a bad index is logged.
    void setValue(int index, int value);
    // One field's value; 0 (and logged) for a bad index.
    int value(int index) const;
    // Every field's value, in order.
    QList<int> values() const;
    // Field being edited; -1 while not editing.
    int currentField() const;
    // The spin box of a field (null for a bad index), for the host's fine tuning.
    NQSpinBox* spinBox(int index) const;

private:
    bool checkIndex(int index, char const* function) const;
    QVariantList valueList() const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
