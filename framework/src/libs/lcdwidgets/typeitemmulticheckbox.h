// A row of check boxes (a MultiCheckBoxControl on the right). The knob's press on the
// row hands the focus to the boxes: Up/Down walk them, Enter flips the focused one
// (signalMultiCheckBoxValueChanged(value, checked)), Escape gives the focus back to the
// page with signalMultiCheckBoxCloseEditStatus() and then signalCloseEditStatus().
#pragma once

#include "commonitemtype.h"

#include <QVector>
#include <utility>

namespace LCD {
namespace Widget {

class MultiCheckBoxControl;

class LCDWIDGETS_EXPORT TypeItemMultiCheckBox : public CommonItemType
{
    Q_OBJECT
public:
    // No boxes, no right icon.
    explicit TypeItemMultiCheckBox(QWidget* parent = nullptr);
    ~TypeItemMultiCheckBox() override;

    // Appends one check box per (text, value) pair.
    void setCheckBoxData(QVector<std::pair<QString, int>> data);
    // Sets every box with that value, silently: checked or not, or partially checked.
    void setCheckStatus(int value, bool checked, bool partial);
    // The Qt::CheckState (as int) of the first box with that value; -1 if none.
    int getCheckStatus(int value) const;
    // The values of the boxes checked now, the user's flips included, in the boxes' order,
    // each value once; a partially checked box is not counted.
    QVector<int> getCurrentValue() const;
    // Checks exactly the boxes whose values are listed, silently.
    void setCurrentValue(QVector<int> values);

    // The check boxes' icon size.
    void setRightIconSize(QSize size) override;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    void editValue() override;

    // The boxes (owned by the row).
    MultiCheckBoxControl* checkBoxControl() const;

public slots:
    // Ends the edit: the page gets the focus, then signalMultiCheckBoxCloseEditStatus() and
    // signalCloseEditStatus().
    void slotCloseEditStatus();

signals:
    // The user flipped a box: its value and new state.
    void signalMultiCheckBoxValueChanged(int value, bool checked);
    // Escape ended the edit (before signalCloseEditStatus()).
    void signalMultiCheckBoxCloseEditStatus();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
