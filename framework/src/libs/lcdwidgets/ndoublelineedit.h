// A line edit holding one floating-point value with a range and a number of
// decimals, worked with the knob like the knob spin boxes.
//
// Keys while it has the focus:
//   Up / Down        step the value by the knob rule of NQDoubleSpinBox: level 1 is
//                    one single step, other levels a share of the range (at least
//                    one single step); the value saturates at the bounds. Each change
//                    is reported at once with signalValueChanged().
//   digits, '-', '.' typed text is checked as it is typed (range and decimals); a
//                    complete value in range is taken and reported at once.
//   Return / Enter   ends the edit (an unfinished text is clamped into the range or,
//                    when unreadable, replaced by the last value).
//   Escape           ends the edit the same way: the value reached stays.
// The edit begins with the focus (signalEditStarted) and ends with the keys above
// or the loss of the focus (signalEditFinished, once per edit). An edit ended by a
// key hands the focus to the nearest ancestor without a focus proxy (one that
// keeps it) unless a slot has moved it already.
//
// Bad input is refused and logged at warning level, the value is left as it was:
//   "[NDoubleLineEdit] setRange: <min>..<max> is not a range, ignored"
//   "[NDoubleLineEdit] setDecimals: <n> is outside 0..6, ignored"
//   "[NDoubleLineEdit] setSingleStep: <step> is not a step of <min>..<max>, ignored"
//   "[NDoubleLineEdit] setValue: value is not a number, ignored"
// Values beyond the range are clamped. Defaults: 0..100, 1 decimal, single step 0.1.
//
// Theme: the dynamic property "isDoubleLineEdit" (true); "lineEditEditing" is true
// while an edit runs.
#pragma once

#include "lcdwidgets_global.h"

#include <QLineEdit>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT NDoubleLineEdit : public QLineEdit
{
    Q_OBJECT
    // Digits after the decimal point, 0..6.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    // Change per knob step of level 1.
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    // The value (set without a signal).
    Q_PROPERTY(double value READ value WRITE setValue)
public:
    // 0..100, 1 decimal, single step 0.1, value 0.
    explicit NDoubleLineEdit(QWidget* parent = nullptr);
    ~NDoubleLineEdit() override;

    // minimum <= maximum, both finite; the value is clamped into the new range.
    void setRange(double minimum, double maximum);
    // Lower bound of the range (default 0).
    double minimum() const;
    // Upper bound of the range (default 100).
    double maximum() const;
    // 0..6; the value is rounded to the new number of decimals.
    void setDecimals(int decimals);
    // Digits after the decimal point (default 1).
    int decimals() const;
    // 0 < step <= maximum - minimum (a step of 0 is allowed on an empty range).
    void setSingleStep(double step);
    // Change per knob step of level 1 (default 0.1).
    double singleStep() const;
    // Sets the value (clamped, rounded to the decimals) without emitting.
    void setValue(double value);
    // The value (within the range, rounded to the decimals).
    double value() const;
    // Step of one knob detent at `level`.
    double stepFor(float level) const;
    // Whether an edit runs.
    bool isEditing() const;
    // Ends a running edit as Return does (nothing when not editing).
    void finishEdit();

signals:
    // The knob or a typed complete value changed the value during an edit.
    void signalValueChanged(double value);
    // An edit began (the line edit took the focus).
    void signalEditStarted();
    // The edit ended (Return, Enter, Escape or the focus lost); once per edit.
    void signalEditFinished();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void takeTypedText();
    void commitText();
    void showValue();
    void changeValue(double value);
    double normalized(double value) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
