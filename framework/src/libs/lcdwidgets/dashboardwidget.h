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
    // Lower end of the scale.
    Q_PROPERTY(double minimum READ min WRITE setMinimum)
    // Upper end of the scale.
    Q_PROPERTY(double maximum READ max WRITE setMaximum)
    // The value the pointer shows (animated).
    Q_PROPERTY(double value READ value WRITE setValue)
    // Value change per knob step of level 1.
    Q_PROPERTY(double step READ step WRITE setStep)
    // Decimals shown, 0..10.
    Q_PROPERTY(int fraction READ fraction WRITE setFraction)
    // Angle in degrees of the scale's upper end.
    Q_PROPERTY(double startAngle READ startAngle WRITE setStartAngle)
    // Angle in degrees of the scale's lower end.
    Q_PROPERTY(double endAngle READ endAngle WRITE setEndAngle)
    // Number of major divisions.
    Q_PROPERTY(int scaleMajor READ scaleMajor WRITE setScaleMajor)
    // Minor divisions per major division.
    Q_PROPERTY(int scaleMinor READ scaleMinor WRITE setScaleMinor)
    // The unit text.
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    // The caption text.
    Q_PROPERTY(QString text READ text WRITE setText)
    // Colour of the arc.
    Q_PROPERTY(QColor arcColor READ arcColor WRITE setArcColor)
    // Colour of the ticks and scale numbers.
    Q_PROPERTY(QColor scaleColor READ scaleColor WRITE setScaleColor)
    // Colour of the pointer.
    Q_PROPERTY(QColor pointerColor READ pointerColor WRITE setPointerColor)
    // Colour of the value text.
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    // Colour behind the dial (transparent by default).
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    // Whether the dial is selected (white arc).
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)
public:
    // Arc of a selected dial: white.
    static const QColor SELECTED_COLOR;
    // Arc by default: blue (19, 80, 159).
    static const QColor DEFAULT_ARG_COLOR;
    // Ticks and numbers by default: (4, 168, 173).
    static const QColor DEFAULT_SCALE_COLOR;
    // Pointer by default: (4, 181, 200).
    static const QColor DEFAULT_POINTER_COLOR;
    // Value text by default: (144, 133, 116).
    static const QColor DEFAULT_VALUETEXT_COLOR;
    // Arc while the dial has the focus: orange (210, 105, 19).
    static const QColor FOCUS_ARG_COLOR;

    // Scale 0..100 over -50°..230°, 10 × 5 divisions, step 1, 1 decimal, value 0; the
    // unit "unit" and the caption "test" until set. Takes the focus on a click.
    explicit DashBoardWidget(QWidget* parent = nullptr);
    ~DashBoardWidget() override;

    // Lower end of the scale; NaN or infinity refused ("[DashBoardWidget] setMin: not a
    // finite number, ignored"). The value is not clamped.
    void setMin(double min);
    // Lower end of the scale (default 0).
    double min() const;
    // Upper end of the scale; NaN or infinity refused ("[DashBoardWidget] setmax: not a
    // finite number, ignored").
    void setmax(double max);
    // Upper end of the scale (default 100).
    double max() const;
    // The same, under the names a form sets.
    void setMinimum(double min);
    // setmax().
    void setMaximum(double max);

    // Angle of the upper end, degrees, 0 at 3 o'clock, counter-clockwise positive; outside
    // -720..720 refused ("[DashBoardWidget] setStartAngle: angle out of range, ignored:").
    void setStartAngle(double angle);
    // Angle of the upper end in degrees (default -50).
    double startAngle() const;
    // Angle of the lower end, degrees; outside -720..720 refused ("[DashBoardWidget]
    // setEndAngle: angle out of range, ignored:").
    void setEndAngle(double angle);
    // Angle of the lower end in degrees (default 230).
    double endAngle() const;
    // Major divisions, 1..100 with at most 1000 ticks in all; else refused
    // ("[DashBoardWidget] setScaleMajor: scale out of range, ignored:").
    void setScaleMajor(int count);
    // Major divisions (default 10).
    int scaleMajor() const;
    // Minor divisions per major one, 1..100 with at most 1000 ticks in all; else refused
    // ("[DashBoardWidget] setScaleMinor: scale out of range, ignored:").
    void setScaleMinor(int count);
    // Minor divisions per major one (default 5).
    int scaleMinor() const;
    // The unit text.
    void setUnit(QString const& unit);
    // The unit text ("unit" by default).
    QString unit() const;
    // The caption text.
    void setText(QString const& text);
    // The caption text ("test" by default).
    QString text() const;

    // Colour of the arc (the focus and selection set it too).
    void setArcColor(QColor const& color);
    // Colour of the arc.
    QColor arcColor() const;
    // Colour of the ticks and scale numbers.
    void setScaleColor(QColor const& color);
    // Colour of the ticks and scale numbers.
    QColor scaleColor() const;
    // Colour of the pointer.
    void setPointerColor(QColor const& color);
    // Colour of the pointer.
    QColor pointerColor() const;
    // A transparent text colour leaves the value text unpainted (for hosts that show
    // it through a DashBoardLabel).
    void setTextColor(QColor const& color);
    // Colour of the value text.
    QColor textColor() const;
    // Colour filled behind the dial; transparent fills nothing.
    void setBackgroundColor(QColor const& color);
    // Colour behind the dial (transparent by default).
    QColor backgroundColor() const;

    // The value the pointer shows (the animated property): stored and repainted.
    void setValue(double value);
    // The value the pointer shows now (mid-animation: an intermediate value).
    double value() const;
    // The value the dial stands at once its animation ends (the value itself when
    // nothing runs). Knob steps start from here.
    double targetValue() const;
    // Sets the value at once: a running animation stops, nothing is emitted.
    void setCurrentValue(double value);
    // Whether the pointer's animation (250 ms) runs.
    bool isAnimating() const;

    // Value change per knob step; stored in hundredths, (int)(100 × step).
    void setStep(double step);
    // Value change per knob step of level 1 (default 1).
    double step() const;
    // Decimals shown and rounded to, 0..10; else refused ("[DashBoardWidget] setFraction:
    // decimals out of range, ignored:").
    void setFraction(int decimals);
    // Decimals shown (default 1).
    int fraction() const;
    // Selects the dial: white arc (SELECTED_COLOR), or the default blue.
    void setSelected(bool selected);
    // Whether the dial is selected.
    bool isSelected() const;
    // Fixed size (negative sizes are refused).
    void setItemSize(QSize size);
    // Applies a whole description (each part checked as by its setter) and puts the value
    // at the minimum, without a signal; min > max is refused ("[DashBoardWidget]
    // setDashBoardData: minimum <min> above maximum <max> , ignored").
    void setDashBoardData(DashBoardData const& data);

    // The content font size shared by every dial (the value text is drawn at half of
    // it); every dial repaints. Sizes below 1 or above kMaxFontSize are refused.
    static constexpr int kMaxFontSize = 1024;
    // Sets it for every dial; refused: "[DashBoardWidget] setContentFontSize: size refused:".
    static void setContentFontSize(int size);
    // The shared content font size in px (default 20).
    static int getContentFontSize();

    // The step, in hundredths, that one knob step at speed level `factor` makes.
    int getRealStep(float factor) const;
    // The real step of the last key event, in hundredths.
    int realStep() const;

    // 60 × 60 px.
    QSize minimumSizeHint() const override;
    // 180 × 180 px.
    QSize sizeHint() const override;
    // The dial's focus look and keys, as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // Connected to onStartAnimation(): emitting it animates the dial to `value`. The dial
    // itself never emits it.
    void valueChanged(double value);
    // Each step of the knob (QVariant(double), the new target) and the press (the target
    // rounded to the decimals, as QVariant(float)).
    void signalValueChanged(QVariant value);
    // The value text or the unit painted changed (emitted from painting; first paint too).
    void signalDrawValueChanged(QString value, QString unit);
    // Enter/Return ended the edit (after signalValueChanged()).
    void signalEditFinished();
    // Escape ended the edit.
    void signalCloseEditStatus();

public slots:
    // Animates the pointer to `value` and emits signalValueChanged(value) first; a value
    // outside the range, or the present target, does nothing.
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
