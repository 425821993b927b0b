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
    Q_PROPERTY(bool toggle READ getToggle WRITE setToggle)
public:
    explicit TypeItemSwitch(QWidget* parent = nullptr);
    ~TypeItemSwitch() override;

    void setToggle(bool checked);
    bool getToggle();
    // Shows the text before the switch.
    void setLabelText(QString const& text);
    // A named colour for the track when on; an invalid name is refused.
    void setSwitchColor(QString const& color);

    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    // The switch gets 2 x height by height.
    void setRightIconSize(QSize size) override;

    SwitchControl* switchControl() const;

signals:
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
    explicit TypeItemMultiSwitch(QWidget* parent = nullptr);
    ~TypeItemMultiSwitch() override;

    void setCurrentValue(int index, int value);
    int getCurrentValue(int index);
    void setItemVisible(int index, bool visible);
    void setSwitchColor(QString const& color);
    void setTextData(QVector<QPair<QString, int>>& data);

    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    // Passed on as the switches' size.
    void setRightIconSize(QSize size) override;
    void setContentFontSize(int size) override;

    MultiSwitchWidget* multiSwitchWidget() const;

signals:
    void signalMultiSwitchValueChanged(int index, int value);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
