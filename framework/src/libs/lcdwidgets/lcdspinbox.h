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
    void unSelection() const;
    // v truncated to a multiple of the single step; with round-off on, the last
    // decade is rounded up by 10 when it is half full or more.
    int calRoundOff(int value) const;
    bool isValid(int value) const;
    // Sets an in-range value without emitting; out-of-range values are ignored.
    void setValueByManual(int value);
    void setSuffixType(SuffixType type);
    void setRoundOff(bool on);

    SuffixType suffixType() const { return m_suffixType; }
    QuitStrategy quitStrategy() const { return m_quitStrategy; }
    int focusFrameMode() const { return m_focusFrameMode; }
    bool roundOff() const { return m_roundOff; }
    int committedValue() const { return m_committed; }

signals:
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

class LCDWIDGETS_EXPORT NQDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    NQDoubleSpinBox(SuffixType suffix = SuffixNone, QuitStrategy quit = QuitKeepValue, QWidget* parent = nullptr);
    explicit NQDoubleSpinBox(QWidget* parent);
    ~NQDoubleSpinBox() override;

    double getStep(float level) const;
    // The same rule for any floating-point range (shared by the line edits).
    static double stepFor(float level, double minimum, double maximum, double singleStep);
    void setSelection();
    void unSelection() const;
    bool isValid(double value) const;
    // Stores the value as committed and sets it (clamped) without emitting; NaN is
    // logged and ignored.
    void setValueByManual(double value);

    SuffixType suffixType() const { return m_suffixType; }
    QuitStrategy quitStrategy() const { return m_quitStrategy; }
    double committedValue() const { return m_committed; }

signals:
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
