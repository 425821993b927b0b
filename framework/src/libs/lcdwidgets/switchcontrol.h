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
    Q_PROPERTY(bool toggle READ isToggled WRITE setToggle)
public:
    explicit SwitchControl(QWidget* parent = nullptr);
    ~SwitchControl() override;

    bool isToggled() const;
    // Sets the state and emits toggled(), also when the state does not change.
    void setToggle(bool checked);

    // Track when enabled and off.
    void setBackgroundColor(QColor color);
    // Track when on, enabled or not (replaces the default green and the disabled colour).
    void setCheckedColor(QColor color);
    // Track when disabled and on, while no checked colour is set.
    void setDisbaledColor(QColor color);
    void setThumbColor(QColor color);
    // Height and width of the drawing; the widget gets the fixed size 2 x height by
    // height. A negative or zero height is refused.
    void setSwitchSize(QSize size);

    // Whether the thumb's slide after a click is still running.
    bool isSliding() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
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
    Q_PROPERTY(bool toggle READ getToggle WRITE setToggle)
public:
    explicit SwitchWidget(QWidget* parent = nullptr);
    ~SwitchWidget() override;

    void setToggle(bool checked);
    bool getToggle() const;
    void setLabelText(QString const& text);
    void setSwitchSize(QSize size);
    // A named colour ("green", "#00bf4c") for the track when on; an invalid name is refused.
    void setSwitchColor(QString const& color);
    void setContentDisabled(bool disabled) const;
    void setContentFontSize(int size);

    SwitchControl* switchControl() const;

signals:
    void signalSwitchControlStatusChanged(bool checked);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
