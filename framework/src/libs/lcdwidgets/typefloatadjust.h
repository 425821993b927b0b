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
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(double value READ value WRITE setValue)
public:
    TypeFloatAdjust(SuffixType suffix, QuitStrategy quit, QWidget* parent = nullptr, int commonWidgetType = 0);
    // A plain row without suffix, kept when left (forms built by uic or Designer).
    explicit TypeFloatAdjust(QWidget* parent = nullptr);
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

    // The spin box's settings, as the property editor reads and writes them.
    double minimum() const;
    double maximum() const;
    // One bound at a time; the other stays.
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    double singleStep() const;
    int decimals() const;
    double value() const;
    // Sets the value without reporting it (as setLabelValue).
    void setValue(double value);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
