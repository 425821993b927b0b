// A row of labelled switches, each on or off. With two or more visible switches the
// knob walks them (Up/Down), the press (Enter or Return) flips the focused one and
// Escape ends the edit; a row with a single switch takes no keys (its item flips the
// switch with singleItemEnterPressed()). Every flip emits signalValueChanged(value, on).
#pragma once

#include "multiwidgetcontrol.h"

#include <QSize>
#include <QVector>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT MultiSwitchWidget : public MultiWidgetControl
{
    Q_OBJECT
public:
    // No switches.
    explicit MultiSwitchWidget(QWidget* parent = nullptr);
    ~MultiSwitchWidget() override;

    // One switch a pair (label text, value), appended to those already there.
    void setTextData(QVector<QPair<QString, int>> data);
    // Sets the switch with that value (which reports it, as every toggle does).
    void setCurrentData(int value, int on);
    // The state of the switch with that value; false if none.
    bool getCurrentData(int value) const;
    // Shows or hides the switch with that value (an unknown value changes nothing).
    void setItemVisible(int value, bool visible);
    // Number of switches not hidden.
    int visibleWidgetCount() const;
    // Size of every switch, now and for those added later; a height below 1 or a negative
    // width is refused ("MultiSwitchWidget::setSwitchSize: invalid size <w>x<h>").
    void setSwitchSize(QSize size);
    // Pixel size of the labels, now and later; below 1 refused
    // ("MultiSwitchWidget::setContentFontSize: invalid font size <size>").
    void setContentFontSize(int size);
    // A named colour for the tracks when on, now and later; an invalid name is refused
    // ("MultiSwitchWidget::setSwitchColor: invalid colour").
    void setSwitchColor(QString const& color);
    // SwitchWidget::setContentDisabled() on every switch.
    void setContentDisabled(bool disabled) const;
    // The focused switch flips.
    void enterPressed() const;
    // The first visible switch flips, then the edit ends (signalCloseEditStatus()).
    void singleItemEnterPressed();

signals:
    // A switch was toggled: its value and 1 (on) or 0.
    void signalValueChanged(int value, int on);
    // The edit ended (Escape, or singleItemEnterPressed()).
    void signalCloseEditStatus();

protected:
    void focusInEvent(QFocusEvent* event) override;
    bool filterKey(int key) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
