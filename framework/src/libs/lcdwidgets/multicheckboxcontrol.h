// A row of check boxes: any number of choices. Up/Down move the focus, Enter flips the
// focused box (Return does not), Escape ends the edit with signalCloseEditStatus().
// Every flip by the user emits signalValueChanged(value, checked); the setters don't.
#pragma once

#include "multiwidgetcontrol.h"

#include <QSize>
#include <QVector>
#include <utility>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT MultiCheckBoxControl : public MultiWidgetControl
{
    Q_OBJECT
public:
    // No boxes; a transparent background.
    explicit MultiCheckBoxControl(QWidget* parent = nullptr);
    ~MultiCheckBoxControl() override;

    // One check box a pair (text, value), appended to those already there.
    void setCheckBoxData(QVector<std::pair<QString, int>> data);
    // Every box with that value, silently: checked or not, or partially checked.
    void setCheckStatus(int value, bool checked, bool partial) const;
    // The check state (Qt::CheckState as int) of the first box with that value; -1 if none.
    int getCheckStatus(int value) const;
    // Checks exactly the boxes whose values are listed (silently).
    void setCurrentData(QVector<int> values);
    // The values of the boxes checked now, the user's flips included, in the boxes' order,
    // each value once; a partially checked box is not counted.
    QVector<int> getCurrentData() const;
    // Icon size of every box; a negative side is refused
    // ("MultiCheckBoxControl::setIconSize: invalid size <w>x<h>").
    void setIconSize(QSize size) const;
    // Text and indicator size; sizes below 1 are refused.
    void setFontSize(int size);
    // Disables (or enables) every box.
    void setContentDisabled(bool disabled) const;
    // The focused box flips.
    void enterPressed() const;

signals:
    // The user flipped a box: its value and new state.
    void signalValueChanged(int value, bool checked);
    // Escape ended the edit.
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
