// The on/off switch drawn by hand (a rounded track with a round thumb) and the
// labelled switch that rows of switches are made of.
//
// SwitchControl is toggled by a left click or by setToggle(); it has no key handling:
// the rows that hold it flip it on the knob's press. Its drawing uses the size given
// to setSwitchSize() (width and height are stored; the widget itself is fixed at
// 2 x height by height).
#pragma once

#include "lcdwidgets_global.h"

#include <QColor>
#include <QFrame>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT SwitchControl : public QFrame
{
    Q_OBJECT
    // On (true) or off.
    Q_PROPERTY(bool toggle READ isToggled WRITE setToggle)
public:
    // Off, a white thumb on a translucent white track; no fixed size until setSwitchSize().
    explicit SwitchControl(QWidget* parent = nullptr);
    ~SwitchControl() override;

    // Whether the switch is on (off by default).
    bool isToggled() const;
    // Sets the state and emits toggled(), also when the state does not change.
    void setToggle(bool checked);

    // Track when enabled and off.
    void setBackgroundColor(QColor color);
    // Track when on, enabled or not (replaces the default green and the disabled colour).
    void setCheckedColor(QColor color);
    // Track when disabled and on, while no checked colour is set.
    void setDisbaledColor(QColor color);
    // Colour of the thumb (white by default).
    void setThumbColor(QColor color);
    // Height and width of the drawing; the widget gets the fixed size 2 x height by
    // height. A negative or zero height is refused.
    void setSwitchSize(QSize size);

    // Whether the thumb's slide after a click is still running.
    bool isSliding() const;

    // About 2 × height by height, from the current height.
    QSize sizeHint() const override;
    // The same as sizeHint().
    QSize minimumSizeHint() const override;

signals:
    // The state was set (setToggle(), even to the same state) or flipped by a click.
    void toggled(bool checked);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void onTimeout();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

// A switch with a text label in a plain frame (label on the left, switch on the
// right); the frame takes the focus when the knob walks a row of switches.
class LCDWIDGETS_EXPORT SwitchWidget : public QFrame
{
    Q_OBJECT
    // On (true) or off.
    Q_PROPERTY(bool toggle READ getToggle WRITE setToggle)
public:
    // An empty label and an off switch; the frame takes the focus (a light background then).
    explicit SwitchWidget(QWidget* parent = nullptr);
    ~SwitchWidget() override;

    // SwitchControl::setToggle(): emits signalSwitchControlStatusChanged() even when unchanged.
    void setToggle(bool checked);
    // Whether the switch is on.
    bool getToggle() const;
    // The label on the left.
    void setLabelText(QString const& text);
    // SwitchControl::setSwitchSize(): the switch becomes 2 × height by height px; a height
    // below 1 is refused ("SwitchControl::setSwitchSize: invalid size <w>x<h>").
    void setSwitchSize(QSize size);
    // A named colour ("green", "#00bf4c") for the track when on; an invalid name is refused.
    void setSwitchColor(QString const& color);
    // Dims the label and gives the switch the rows' disabled colours (or the enabled ones back).
    void setContentDisabled(bool disabled) const;
    // Pixel size of the label's text; below 1 refused ("SwitchWidget::setContentFontSize:
    // invalid font size <size>").
    void setContentFontSize(int size);

    // The switch (owned by the widget).
    SwitchControl* switchControl() const;

signals:
    // The switch's toggled(checked).
    void signalSwitchControlStatusChanged(bool checked);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
