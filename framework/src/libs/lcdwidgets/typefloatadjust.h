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
public:
    TypeFloatAdjust(SuffixType suffix, QuitStrategy quit, QWidget* parent = nullptr, int commonWidgetType = 0);
    ~TypeFloatAdjust() override;

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

    void setDecimals(int decimals);
    int getCommonWidgetType() const;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
