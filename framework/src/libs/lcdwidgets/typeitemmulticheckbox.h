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
    explicit TypeItemMultiCheckBox(QWidget* parent = nullptr);
    ~TypeItemMultiCheckBox() override;

    void setCheckBoxData(QVector<std::pair<QString, int>> data);
    void setCheckStatus(int value, bool checked, bool partial);
    int getCheckStatus(int value) const;
    QVector<int> getCurrentValue() const;
    void setCurrentValue(QVector<int> values);

    // The check boxes' icon size.
    void setRightIconSize(QSize size) override;
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    void editValue() override;

    MultiCheckBoxControl* checkBoxControl() const;

public slots:
    void slotCloseEditStatus();

signals:
    void signalMultiCheckBoxValueChanged(int value, bool checked);
    void signalMultiCheckBoxCloseEditStatus();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
