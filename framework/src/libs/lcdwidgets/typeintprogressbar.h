// An item row showing a progress value: the title on the left, a bar on the right
// with the percentage written inside it ("42%"). The host sets the value; the row
// shows it and edits nothing: editValue() is refused quietly (no signal), so the
// page's press leaves the row alone.
//
// The percentage is (value - minimum) / (maximum - minimum), computed in 64 bits and
// rounded down, so that 100% shows only when the value reaches the maximum. Values
// beyond the range are clamped. Default range 0..100.
//
// Bad input is refused and logged at warning level:
//   "[TypeIntProgressBar] setRange: <min>..<max> is not a range, ignored"  (min >= max)
//   "[TypeIntProgressBar] setLabelValue: value is not a number, ignored"
//   "[TypeIntProgressBar] setBarWidth: <width> is not a width, ignored"
//
// Theme: "isItemProgressBar" on the bar; "progressFinished" is true at 100%.
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>

class QProgressBar;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeIntProgressBar : public CommonItemType
{
    Q_OBJECT
    // The value, clamped into the range.
    Q_PROPERTY(int value READ value WRITE setValue)
public:
    // Range 0..100, value 0 ("0%"), a bar 200 px wide, no right icon.
    explicit TypeIntProgressBar(QWidget* parent = nullptr);
    ~TypeIntProgressBar() override;

    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setRange(int minimum, int maximum) override;
    void setRange(float minimum, float maximum) override;
    void setContentDisabled(bool disabled) const override;

    // The value, clamped into the range; no signal (the row reports nothing).
    void setValue(int value);
    // The value (within the range).
    int value() const;
    // Lower bound of the range (default 0).
    int minimum() const;
    // Upper bound of the range (default 100).
    int maximum() const;
    // 0..100, as shown.
    int percent() const;
    // The text inside the bar.
    QString text() const;
    // Width of the bar in pixels (default 200); below 1 is refused.
    void setBarWidth(int width);
    // The bar (owned by the row; it runs 0..1000 internally).
    QProgressBar* progressBar() const;

private:
    void refresh();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
