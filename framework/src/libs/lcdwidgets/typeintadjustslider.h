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
public:
    TypeIntAdjustSlider(SuffixType suffix, QuitStrategy quit, Qt::Orientation orientation, QWidget* parent = nullptr,
                        int commonWidgetType = 0);
    ~TypeIntAdjustSlider() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setRange(float minimum, float maximum) override;
    void setRange(int minimum, int maximum) override;
    void setSingleStep(float step) override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    void setRangeMin(int minimum);
    void setRangeMax(int maximum);
    void setSuffixType(SuffixType type);
    void setRoundOff(bool on);
    void setSpinBoxWidth();
    int getCommonWidgetType() const;

private:
    void setSliderStatus(char const* status);
    QString fontSheet() const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
