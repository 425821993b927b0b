// Item row that sets a floating-point value with the knob through an NQDoubleSpinBox.
// Values are live; Escape keeps the value reached. Variant 14 is the left-aligned
// value without the right icon ("isMultipleSpinBox").
#pragma once

#include "commonitemtype.h"
#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <memory>

namespace LCD {
namespace Widget {

class NQDoubleSpinBox;

class LCDWIDGETS_EXPORT TypeFloatAdjust : public CommonItemType
{
    Q_OBJECT
    // Digits after the decimal point.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    // Lower bound of the value.
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    // Upper bound of the value.
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    // Change per knob step of level 1.
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    // The value (set silently).
    Q_PROPERTY(double value READ value WRITE setValue)
public:
    // suffix: the unit shown after the value (percent and second); quit: what Escape does
    // to the value; commonWidgetType 14: the left-aligned variant without the right icon.
    TypeFloatAdjust(SuffixType suffix, QuitStrategy quit, QWidget* parent = nullptr, int commonWidgetType = 0);
    // A plain row without suffix, kept when left (forms built by uic or Designer).
    explicit TypeFloatAdjust(QWidget* parent = nullptr);
    ~TypeFloatAdjust() override;

    // Escape ends the edit keeping the value reached (the row's parent takes the focus
    // back) and emits signalCloseEditStatus(); key releases are swallowed.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    // Reports the value when the new range clamps it; NaN or infinite bounds are
    // logged and ignored.
    void setRange(float minimum, float maximum) override;
    // Silent.
    void setRange(int minimum, int maximum) override;
    // Ignored when below 1e-6 or wider than the range; otherwise taken as it is.
    void setSingleStep(float step) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Digits after the decimal point (QDoubleSpinBox's rule: default 2, clamped by Qt).
    void setDecimals(int decimals);
    // The commonWidgetType given to the constructor (0 or 14).
    int getCommonWidgetType() const;

    // The spin box's settings, as the property editor reads and writes them.
    double minimum() const;
    // Upper bound of the value.
    double maximum() const;
    // One bound at a time; the other stays.
    void setMinimum(double minimum);
    // Like setRange(float, float) with the other bound kept.
    void setMaximum(double maximum);
    // Change per knob step of level 1.
    double singleStep() const;
    // Digits after the decimal point.
    int decimals() const;
    // The spin box's value.
    double value() const;
    // Sets the value without reporting it (as setLabelValue).
    void setValue(double value);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
