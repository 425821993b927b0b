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
    explicit MultiSwitchWidget(QWidget* parent = nullptr);
    ~MultiSwitchWidget() override;

    // One switch a pair (label text, value), appended to those already there.
    void setTextData(QVector<QPair<QString, int>> data);
    // Sets the switch with that value (which reports it, as every toggle does).
    void setCurrentData(int value, int on);
    // The state of the switch with that value; false if none.
    bool getCurrentData(int value) const;
    void setItemVisible(int value, bool visible);
    int visibleWidgetCount() const;
    void setSwitchSize(QSize size);
    void setContentFontSize(int size);
    void setSwitchColor(QString const& color);
    void setContentDisabled(bool disabled) const;
    // The focused switch flips.
    void enterPressed() const;
    // The first visible switch flips, then the edit ends (signalCloseEditStatus()).
    void singleItemEnterPressed();

signals:
    void signalValueChanged(int value, int on);
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
