// Item row made of two step controls (ExtendSpinBox), left and right, with no number
// of its own: the host sets the texts and answers the step signals. With the row
// focused, Up/Down select the left or the right control (and pass the knob on at
// the ends), the press starts working the selected one, Escape leaves.
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>

namespace LCD {
namespace Widget {

class ExtendSpinBox;

class LCDWIDGETS_EXPORT TypeSpinAdjust : public CommonItemType
{
    Q_OBJECT
public:
    explicit TypeSpinAdjust(QWidget* parent = nullptr);
    ~TypeSpinAdjust() override;

    int getWidgetRow() override;
    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    void setLeftIconSize(QSize size) override;
    void setContentFontSize(int size) override;

    void setLeftSpinContent(QString const& text);
    void setRightSpinContent(QString const& text);
    ExtendSpinBox* leftSpinBox() const;
    ExtendSpinBox* rightSpinBox() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void slotUpdateItemWidth(int width);

signals:
    void signalLeftSpinValueChanged(bool bTurnUp);
    void signalRightSpinValueChanged(bool bTurnUp);
    void signalLeftChangedFinished();
    void signalRightChangedFinished();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
