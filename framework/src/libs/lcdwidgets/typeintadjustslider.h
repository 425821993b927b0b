// Item row that sets an integer with the knob through an NQSpinBox, with a slider
// beside it that shows where the value sits in its range (display only).
// Variant 5 is the slider row without the right icon.
#pragma once

#include "commonitemtype.h"
#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <memory>

class QSlider;

namespace LCD {
namespace Widget {

class NQSpinBox;

class LCDWIDGETS_EXPORT TypeIntAdjustSlider : public CommonItemType
{
    Q_OBJECT
    // Lower bound of the value (setRangeMin()).
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    // Upper bound of the value (setRangeMax()).
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    // Change per knob step of level 1.
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    // The value (set silently; an out-of-range value is ignored).
    Q_PROPERTY(int value READ value WRITE setValue)
public:
    // suffix: the unit after the value; quit: what Escape does to the value; orientation:
    // the slider's (550 px wide); commonWidgetType 5: the variant without the right icon
    // whose slider has "isIntAdjustSlider" and "intAdjustSliderStatus" ("normal", "edit").
    TypeIntAdjustSlider(SuffixType suffix, QuitStrategy quit, Qt::Orientation orientation, QWidget* parent = nullptr,
                        int commonWidgetType = 0);
    // A plain horizontal row without suffix (forms built by uic or Designer).
    explicit TypeIntAdjustSlider(QWidget* parent = nullptr);
    ~TypeIntAdjustSlider() override;

    // Escape ends the edit keeping the value reached (the row's parent takes the focus
    // back) and emits signalCloseEditStatus(); key releases are swallowed.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setRange(float minimum, float maximum) override;
    void setRange(int minimum, int maximum) override;
    void setSingleStep(float step) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Lower bound alone, silently (the value is clamped into the range without a signal);
    // the spin box's width is fitted to the range again.
    void setRangeMin(int minimum);
    // Upper bound alone, silently; the spin box's width is fitted to the range again.
    void setRangeMax(int maximum);
    // The unit shown after the value.
    void setSuffixType(SuffixType type);
    // With round-off on, a knob step rounds the last decade up by 10 when it is half full.
    void setRoundOff(bool on);
    // Fits the spin box's width to the longest value of the range at the content font size.
    void setSpinBoxWidth();
    // The commonWidgetType given to the constructor (0 or 5).
    int getCommonWidgetType() const;

    // The spin box's settings, as the property editor reads and writes them.
    int minimum() const;
    // Upper bound of the value.
    int maximum() const;
    // setRangeMin and setRangeMax under the names a form sets.
    void setMinimum(int minimum);
    // setRangeMax().
    void setMaximum(int maximum);
    // Change per knob step of level 1 (default 1).
    int singleStep() const;
    // The spin box's value.
    int value() const;
    // Sets the value without reporting it (as setLabelValue).
    void setValue(int value);

private:
    void setSliderStatus(char const* status);
    QString fontSheet() const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
