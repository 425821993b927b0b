// Knob-driven spin boxes: a knob detent (Key_Up / Key_Down) moves the value by a
// step derived from the speed level in the key text: level 1 is one single step,
// any other level is a fraction of the value range (capped at 8000) with at least
// one single step. Stepping saturates at the bounds, there is no wrap-around.
// An edit begins with the focus and ends with its loss (editFinished).
#pragma once

#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

namespace LCD {
namespace Widget {

// Integer spin box worked with the knob: right-aligned, without buttons or keyboard
// tracking. Up/Down move the value by getStep() at the key's level, saturating at the
// bounds and snapping toward zero onto the single-step grid; Enter drops the focus;
// with the digits of a negative value selected, the 0 key jumps to 0 (when in range).
// Typed text is limited to 6 characters, 7 for a negative value (prefix and suffix
// included).
class LCDWIDGETS_EXPORT NQSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    // focusFrameMode 1 or 3 draws a frame while the box has the focus.
    NQSpinBox(SuffixType suffix = SuffixNone, QuitStrategy quit = QuitKeepValue, int focusFrameMode = 0,
              QWidget* parent = nullptr);
    // Without suffix (forms built by uic or Designer).
    explicit NQSpinBox(QWidget* parent);
    ~NQSpinBox() override;

    // Step of one knob detent at `level`.
    int getStep(float level) const;
    // The same rule for any integer range; 0 when the single step is not positive.
    static int stepFor(float level, int minimum, int maximum, int singleStep);

    // Selects the digits: without the minus sign for a negative value, all otherwise.
    void setSelection();
    // Clears the text selection.
    void unSelection() const;
    // v truncated to a multiple of the single step; with round-off on, the last
    // decade is rounded up by 10 when it is half full or more.
    int calRoundOff(int value) const;
    // Whether minimum() <= value <= maximum().
    bool isValid(int value) const;
    // Sets an in-range value without emitting; out-of-range values are ignored.
    void setValueByManual(int value);
    // Stores the suffix type and shows its unit: "%", the translated "s" (it follows the
    // interface language) or "°". SuffixNone stores the type but leaves the unit shown as
    // it is.
    void setSuffixType(SuffixType type);
    // Turns the round-off of calRoundOff() (also applied to typed text) on or off; off by
    // default.
    void setRoundOff(bool on);

    // The suffix type last set; SuffixNone by default.
    SuffixType suffixType() const { return m_suffixType; }
    // The quit strategy given at construction; the box only keeps it.
    QuitStrategy quitStrategy() const { return m_quitStrategy; }
    // The focus-frame mode given at construction (1 or 3: a frame while the box has the focus).
    int focusFrameMode() const { return m_focusFrameMode; }
    // Whether round-off is on (setRoundOff()); off by default.
    bool roundOff() const { return m_roundOff; }
    // The value last committed, by a knob step, setValueByManual(), the 0 key or the loss of
    // the focus; 0 at first.
    int committedValue() const { return m_committed; }

signals:
    // The box lost the focus, which ends an edit; emitted after the value shown is
    // committed, with the reason of the focus loss.
    void editFinished(Qt::FocusReason reason);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    QValidator::State validate(QString& input, int& pos) const override;
    void fixup(QString& input) const override;
    // The unit's word follows the interface language.
    void changeEvent(QEvent* event) override;

private:
    bool drawsFocusFrame() const { return m_focusFrameMode == 1 || m_focusFrameMode == 3; }
    void knobStep(bool up, float level);
    QString stripAffixes(QString const& input) const;

    int m_committed = 0;
    bool m_roundOff = false;
    int m_focusFrameMode = 0;
    SuffixType m_suffixType = SuffixNone;
    QuitStrategy m_quitStrategy = QuitKeepValue;
};

// Floating-point spin box worked with the knob: right-aligned, without buttons or
// keyboard tracking, framed (2 px, white) while it has the focus. Up/Down move the value
// shown by getStep() at the key's level, saturating at the bounds (a text outside the
// range is not stepped); Enter drops the focus; with the digits of a negative value
// selected, the 0 key jumps to 0 (when in range). Typed text is limited to 5 characters.
class LCDWIDGETS_EXPORT NQDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    // A box marked "isCompomentsSpinBoxInput" for the theme. SuffixPercent shows "%",
    // SuffixSecond the translated "s" (it follows the interface language); SuffixDegree
    // shows no unit on this box. `quit` is only kept (quitStrategy()).
    NQDoubleSpinBox(SuffixType suffix = SuffixNone, QuitStrategy quit = QuitKeepValue, QWidget* parent = nullptr);
    // Without suffix, keeping QuitKeepValue (forms built by uic or Designer).
    explicit NQDoubleSpinBox(QWidget* parent);
    ~NQDoubleSpinBox() override;

    // Step of one knob detent at `level`: stepFor() with the box's range and single step.
    double getStep(float level) const;
    // The same rule for any floating-point range (shared by the line edits).
    static double stepFor(float level, double minimum, double maximum, double singleStep);
    // Selects the digits: without the minus sign while the committed value is negative,
    // all otherwise.
    void setSelection();
    // Clears the text selection.
    void unSelection() const;
    // Whether minimum() <= value <= maximum() (false for NaN).
    bool isValid(double value) const;
    // Stores the value as committed and sets it (clamped) without emitting; NaN is
    // logged and ignored.
    void setValueByManual(double value);

    // The suffix type given at construction.
    SuffixType suffixType() const { return m_suffixType; }
    // The quit strategy given at construction; the box only keeps it.
    QuitStrategy quitStrategy() const { return m_quitStrategy; }
    // The value last committed, by a knob step, setValueByManual() (as given, even outside
    // the range), the 0 key or the loss of the focus; 0 at first.
    double committedValue() const { return m_committed; }

signals:
    // The box lost the focus, which ends an edit; emitted after the value shown is
    // committed, with the reason of the focus loss.
    void editFinished(Qt::FocusReason reason);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    QValidator::State validate(QString& input, int& pos) const override;
    void fixup(QString& input) const override;
    // The unit's word follows the interface language.
    void changeEvent(QEvent* event) override;

private:
    QString stripAffixes(QString const& input) const;

    double m_committed = 0.0;
    SuffixType m_suffixType = SuffixNone;
    QuitStrategy m_quitStrategy = QuitKeepValue;
};

} // namespace Widget
} // namespace LCD
