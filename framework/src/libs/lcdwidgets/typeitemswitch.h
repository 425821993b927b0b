// Item rows with switches: one switch (TypeItemSwitch), or a row of labelled switches
// (TypeItemMultiSwitch).
#pragma once

#include "commonitemtype.h"

#include <QVector>

namespace LCD {
namespace Widget {

class MultiSwitchWidget;
class SwitchControl;

// A row whose content is one switch (and an optional text before it). The knob's
// press on the row (editValue()) flips the switch at once; every toggle, whoever makes
// it, emits signalSwitchControlStatusChanged(), signalEditFinished() and
// signalValueChanged(bool), in this order.
class LCDWIDGETS_EXPORT TypeItemSwitch : public CommonItemType
{
    Q_OBJECT
    // On (true) or off.
    Q_PROPERTY(bool toggle READ getToggle WRITE setToggle)
public:
    // An off switch of 56×28 px, no text, no right icon.
    explicit TypeItemSwitch(QWidget* parent = nullptr);
    ~TypeItemSwitch() override;

    // Sets the switch; it reports as every toggle does (see above), even when unchanged.
    void setToggle(bool checked);
    // Whether the switch is on.
    bool getToggle();
    // Shows the text before the switch.
    void setLabelText(QString const& text);
    // A named colour for the track when on; an invalid name is refused.
    void setSwitchColor(QString const& color);

    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    // The switch gets 2 x height by height.
    void setRightIconSize(QSize size) override;

    // The switch (owned by the row).
    SwitchControl* switchControl() const;

signals:
    // The switch was toggled (first of the three signals).
    void signalSwitchControlStatusChanged(bool checked);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

// A row of labelled switches (no title). editValue() flips a lone visible switch at
// once; with two or more it hands the knob to the switches (Up/Down walk, press flips,
// Escape gives the knob back with signalCloseEditStatus()).
class LCDWIDGETS_EXPORT TypeItemMultiSwitch : public CommonItemType
{
    Q_OBJECT
public:
    // No switches, no title, no right icon; switches of 56×28 px.
    explicit TypeItemMultiSwitch(QWidget* parent = nullptr);
    ~TypeItemMultiSwitch() override;

    // Sets the switch whose value is `index` on (value != 0) or off; it reports the toggle.
    // An unknown value changes nothing.
    void setCurrentValue(int index, int value);
    // 1 when the switch whose value is `index` is on, else 0 (also for an unknown value).
    int getCurrentValue(int index);
    // Shows or hides the switch whose value is `index`.
    void setItemVisible(int index, bool visible);
    // A named colour for every track when on; an invalid name is refused
    // ("MultiSwitchWidget::setSwitchColor: invalid colour").
    void setSwitchColor(QString const& color);
    // Appends one switch per (label, value) pair.
    void setTextData(QVector<QPair<QString, int>>& data);

    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    // Passed on as the switches' size.
    void setRightIconSize(QSize size) override;
    void setContentFontSize(int size) override;

    // The switches (owned by the row).
    MultiSwitchWidget* multiSwitchWidget() const;

signals:
    // A switch was toggled: its value and 1 (on) or 0.
    void signalMultiSwitchValueChanged(int index, int value);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
