// A round dial painted by hand: an arc, tick marks, scale numbers, a pointer and the
// value text. The minimum sits at the end angle (lower left by default) and values
// grow clockwise over the top to the start angle. Each new value is reached by an
// animation of the pointer.
//
// Knob (while the dial has the focus): Key_Down raises the value, Key_Up lowers it,
// by the step accelerated with the speed level in the key's text; Enter/Return
// reports the value (signalValueChanged) and ends the edit (signalEditFinished);
// Escape ends the edit (signalCloseEditStatus). The arc shows the state: orange while
// the dial has the focus, white while selected, blue otherwise.
//
// Bad input never reaches the drawing: NaN or infinite numbers, angles outside
// [-720, 720], scales outside 1..100 (or more than 1000 ticks) and fractions outside
// 0..10 are refused with a warning and the old setting stays. An inverted range
// (minimum above maximum) is stored, since setters may come in any order, but the
// dial neither steps nor animates until the range is valid again.
#pragma once

#include "lcdwidgets_global.h"

#include <QColor>
#include <QSize>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <memory>

namespace LCD {
namespace Widget {

// The description of one dial.
struct DashBoardData
{
    int max = 100;             // upper end of the scale
    int min = 0;               // lower end of the scale; also the initial value
    double startAngle = -50.0; // degrees, 0 at 3 o'clock, counter-clockwise positive
    double endAngle = 230.0;   // degrees
    int reserved = 0;          // not used by the dial
    int scaleMajor = 10;       // number of major divisions
    int scaleMinor = 5;        // minor divisions per major division
    double step = 1.0;         // value change per knob step
    int fraction = 1;          // decimals shown
    QString unit;              // unit text
    QString text;              // caption text
};

class LCDWIDGETS_EXPORT DashBoardWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double minimum READ min WRITE setMinimum)
    Q_PROPERTY(double maximum READ max WRITE setMaximum)
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(double step READ step WRITE setStep)
    Q_PROPERTY(int fraction READ fraction WRITE setFraction)
    Q_PROPERTY(double startAngle READ startAngle WRITE setStartAngle)
    Q_PROPERTY(double endAngle READ endAngle WRITE setEndAngle)
    Q_PROPERTY(int scaleMajor READ scaleMajor WRITE setScaleMajor)
    Q_PROPERTY(int scaleMinor READ scaleMinor WRITE setScaleMinor)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QColor arcColor READ arcColor WRITE setArcColor)
    Q_PROPERTY(QColor scaleColor READ scaleColor WRITE setScaleColor)
    Q_PROPERTY(QColor pointerColor READ pointerColor WRITE setPointerColor)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)
    Q_PROPERTY(double value READ value WRITE setValue)
public:
    static const QColor SELECTED_COLOR;
    static const QColor DEFAULT_ARG_COLOR;
    static const QColor DEFAULT_SCALE_COLOR;
    static const QColor DEFAULT_POINTER_COLOR;
    static const QColor DEFAULT_VALUETEXT_COLOR;
    static const QColor FOCUS_ARG_COLOR;

    explicit DashBoardWidget(QWidget* parent = nullptr);
    ~DashBoardWidget() override;

    void setMin(double min);
    double min() const;
    void setmax(double max);
    double max() const;
    // The same, under the names a form sets.
    void setMinimum(double min);
    void setMaximum(double max);

    void setStartAngle(double angle);
    double startAngle() const;
    void setEndAngle(double angle);
    double endAngle() const;
    void setScaleMajor(int count);
    int scaleMajor() const;
    void setScaleMinor(int count);
    int scaleMinor() const;
    void setUnit(QString const& unit);
    QString unit() const;
    void setText(QString const& text);
    QString text() const;

    void setArcColor(QColor const& color);
    QColor arcColor() const;
    void setScaleColor(QColor const& color);
    QColor scaleColor() const;
    void setPointerColor(QColor const& color);
    QColor pointerColor() const;
    // A transparent text colour leaves the value text unpainted (for hosts that show
    // it through a DashBoardLabel).
    void setTextColor(QColor const& color);
    QColor textColor() const;
    void setBackgroundColor(QColor const& color);
    QColor backgroundColor() const;

    // The value the pointer shows (the animated property): stored and repainted.
    void setValue(double value);
    double value() const;
    // The value the dial stands at once its animation ends (the value itself when
    // nothing runs). Knob steps start from here.
    double targetValue() const;
    // Sets the value at once: a running animation stops, nothing is emitted.
    void setCurrentValue(double value);
    bool isAnimating() const;

    // Value change per knob step; stored in hundredths, (int)(100 × step).
    void setStep(double step);
    double step() const;
    void setFraction(int decimals);
    int fraction() const;
    void setSelected(bool selected);
    bool isSelected() const;
    // Fixed size (negative sizes are refused).
    void setItemSize(QSize size);
    void setDashBoardData(DashBoardData const& data);

    // The content font size shared by every dial (the value text is drawn at half of
    // it); every dial repaints. Sizes below 1 or above kMaxFontSize are refused.
    static constexpr int kMaxFontSize = 1024;
    static void setContentFontSize(int size);
    static int getContentFontSize();

    // The step, in hundredths, that one knob step at speed level `factor` makes.
    int getRealStep(float factor) const;
    // The real step of the last key event, in hundredths.
    int realStep() const;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void valueChanged(double value);
    void signalValueChanged(QVariant value);
    void signalDrawValueChanged(QString value, QString unit);
    void signalEditFinished();
    void signalCloseEditStatus();

public slots:
    void onStartAnimation(double value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // One knob step: up = true raises the value.
    void valueChange(bool up);
    QString formatValue(double value) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
