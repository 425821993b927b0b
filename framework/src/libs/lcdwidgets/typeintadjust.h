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
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int value READ value WRITE setValue)
public:
    TypeIntAdjust(SuffixType suffix, QuitStrategy quit, QWidget* parent = nullptr, int commonWidgetType = 0);
    // A plain row without suffix, kept when left (forms built by uic or Designer).
    explicit TypeIntAdjust(QWidget* parent = nullptr);
    ~TypeIntAdjust() override;

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
    void setRangeMax(int maximum);
    // Shows the spin box, or the value label in its place.
    void setSpinBoxShow(bool show);
    void setLabelText(QString const& text);
    void setSuffixType(SuffixType type);
    void setRoundOff(bool on);
    // Fixed width from the longer of the bounds' texts and the content font size.
    void setSpinBoxWidth();
    int getCommonWidgetType() const;

    // The row's value as last reported (an int).
    QVariant currentValue() const;

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
    void createWidgets(SuffixType suffix, QuitStrategy quit, int commonWidgetType);
    void createConnections();
    void ensureValueLabel() const;
    QString fontSheet() const;

    struct Impl;
    std::unique_ptr<Impl> d;
};


} // namespace Widget
} // namespace LCD
