// The progress display of a progress dialog: an information text on the left above
// a horizontal bar, and the percentage (or the result) on the right.
//
// Progress is counted over one or several tasks: with a count of n the bar runs
// from 0 to 100·n and the percentage shown is that of the current task. Reaching
// 100 % finishes the display: a green "Succeed" and a full bar. Failures show a red
// "Failure" (or the caller's text) and an empty bar. The result colour is set
// through the value label's palette (QPalette::ButtonText, which the label draws
// its text with), so a theme should not give that label a colour of its own.
//
// Sizes follow the host rectangle: the bar is (width·5/8) × (height/10).
#pragma once

#include "lcdwidgets_global.h"

#include <QRect>
#include <QWidget>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ProgressBarCtr : public QWidget
{
    Q_OBJECT
    // Number of tasks (the bar runs 0..100 × count).
    Q_PROPERTY(int count READ count WRITE setCount)
    // The bar's value.
    Q_PROPERTY(double currentValue READ currentValue WRITE setCurrentValue)
public:
    // rect: the host rectangle; the bar is 5/8 of its width and 1/10 of its height. One
    // task, range 0..100, empty.
    explicit ProgressBarCtr(QRect rect, QWidget* parent = nullptr);
    ~ProgressBarCtr() override;

    // Number of tasks (0 counts as 1). Negative counts are refused; counts whose
    // range would not fit an int are clamped.
    void setCount(int n);
    // Number of tasks (1 by default).
    int count() const;

    // Sets the bar to v (truncated, kept within the bar's range) and shows the current
    // task's percentage v / count; a percentage of exactly 100 finishes the display
    // (setFinish()).
    void setCurrentValue(double v);
    // The bar's value (an integer). setCurrentValue() refuses NaN with the warning
    // "[ProgressBarCtr] progress value is not a number".
    double currentValue() const;

    // Green tr("Succeed"), bar full.
    void setFinish();
    // Red tr("Failure") (or `text`), bar empty.
    void setError();
    // Red `text`, bar empty.
    void setError(QString text);
    // White `text`, bar empty.
    void setInfo(QString text);
    // White "0%", bar empty.
    void Clear();

    // The information text on the left.
    void setProgressText(QString text);
    // Pixel font size of both labels; the widget's height becomes size × 2.5.
    void setFontSize(int size);
    // Shows or hides the bar together with the value label.
    void setProcessShow(bool show);
    // Shows or hides the value label alone.
    void setValueLabelVisable(bool visible);

    // Size of the reminder dialog that hosts the bar, from the same rectangle.
    int getReminderDialogWidth() const;
    // Its height in px: 3/5 of the rectangle's height (the width: 11/16 of its width).
    int getReminderDialogHeight() const;

    // --- Variants for special progress sequences (same colours and texts) ---

    // Like setCurrentValue(), but never finishes by itself: for sequences in which
    // a full task is followed by a step of unknown length (verifying, restarting).
    // The percentage is capped at 100; the caller ends with setFinish() or setError().
    void setSpecialValue(double v);
    // The overall percentage of the whole job (0 to 100) rather than a bar value:
    // the bar is set to percent × count and the label shows the overall percentage;
    // 100 finishes the display.
    void setSpecialProcess(double percent);
    // A device-reported progress value: a negative value (or NaN) is the device's
    // failure report and shows the red "Failure"; any other value is
    // setCurrentValue(value).
    void setProcess(double value);

    // The text the value label shows (percentage or result).
    QString valueText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
