// Item row that sets an integer with the knob through an NQSpinBox. Values are live:
// every knob step is reported at once, Escape keeps the value that was reached.
//
// Variants (commonWidgetType, also the spin box's focus-frame mode):
//   1  framed input box with the edit icon on the right ("isCompomentsSpinBoxInput")
//   2  left-aligned value without the right icon ("isMultipleSpinBox")
//   other values: the plain row; 3 draws the focus frame like 1.
#pragma once

#include "commonitemtype.h"
#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <memory>

namespace LCD {
namespace Widget {

class NQSpinBox;

class LCDWIDGETS_EXPORT TypeIntAdjust : public CommonItemType
{
    Q_OBJECT
    // The spin box's minimum, default 0 (minimum(), setMinimum()).
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    // The spin box's maximum, default 99; setting it re-sizes the box (maximum(), setMaximum()).
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    // The step of one slow knob detent, default 1 (singleStep(), setSingleStep(): ignored
    // unless 0 < step <= maximum - minimum).
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    // The spin box's value, default 0 (value(); setValue() sets it without reporting it).
    Q_PROPERTY(int value READ value WRITE setValue)
public:
    // A row with an NQSpinBox in its value area (range 0..99, step 1, value 0), with the
    // unit of `suffix`; `quit` is only kept by the box. `commonWidgetType` picks the variant
    // (see above): 1 marks the right icon as the edit icon ("isIconListEdit"), 2 hides it.
    TypeIntAdjust(SuffixType suffix, QuitStrategy quit, QWidget* parent = nullptr, int commonWidgetType = 0);
    // A plain row without suffix, kept when left (forms built by uic or Designer).
    explicit TypeIntAdjust(QWidget* parent = nullptr);
    ~TypeIntAdjust() override;

    // Keys on the spin box during an edit: Escape ends it keeping the value reached (the
    // row's parent takes the focus back, so the row emits signalEditFinished() first), then
    // the row emits signalCloseEditStatus(); key releases are swallowed. Other events pass.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setRange(float minimum, float maximum) override;
    void setRange(int minimum, int maximum) override;
    // Ignored unless 0 < step <= maximum - minimum; the step is truncated toward zero.
    void setSingleStep(float step) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Minimum without re-sizing the box (the width follows the maximum).
    void setRangeMin(int minimum);
    // The spin box's maximum, set without reporting a value it clamps, then the box is
    // re-sized to its bounds' texts.
    void setRangeMax(int maximum);
    // Shows the spin box, or the value label in its place.
    void setSpinBoxShow(bool show);
    // The text of the label that stands in for a hidden spin box (setSpinBoxShow(false)),
    // kept until that label is built.
    void setLabelText(QString const& text);
    // The spin box's unit (NQSpinBox::setSuffixType(): SuffixNone leaves the unit shown).
    void setSuffixType(SuffixType type);
    // Turns the spin box's round-off on or off (NQSpinBox::setRoundOff()); off by default.
    void setRoundOff(bool on);
    // Fixed width from the longer of the bounds' texts and the content font size.
    void setSpinBoxWidth();
    // The variant given at construction (0 for the plain row).
    int getCommonWidgetType() const;

    // The row's value as last reported (an int).
    QVariant currentValue() const;

    // The spin box's settings, as the property editor reads and writes them.
    int minimum() const;
    // The spin box's maximum.
    int maximum() const;
    // setRangeMin and setRangeMax under the names a form sets.
    void setMinimum(int minimum);
    // setRangeMax() under the name a form sets.
    void setMaximum(int maximum);
    // The spin box's single step.
    int singleStep() const;
    // The value the spin box holds (currentValue() is the value last reported or set).
    int value() const;
    // Sets the value without reporting it (as setLabelValue).
    void setValue(int value);

private:
    void createWidgets(SuffixType suffix, QuitStrategy quit, int commonWidgetType);
    void createConnections();
    void ensureValueLabel() const;
    QString fontSheet() const;

    struct Impl;
    std::unique_ptr<Impl> d;
};


} // namespace Widget
} // namespace LCD
