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
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int value READ value WRITE setValue)
public:
    TypeIntAdjustSlider(SuffixType suffix, QuitStrategy quit, Qt::Orientation orientation, QWidget* parent = nullptr,
                        int commonWidgetType = 0);
    // A plain horizontal row without suffix (forms built by uic or Designer).
    explicit TypeIntAdjustSlider(QWidget* parent = nullptr);
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

    // The spin box's settings, as the property editor reads and writes them.
    int minimum() const;
    int maximum() const;
    // setRangeMin and setRangeMax under the names a form sets.
    void setMinimum(int minimum);
    void setMaximum(int maximum);
    int singleStep() const;
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
