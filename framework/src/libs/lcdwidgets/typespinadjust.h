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
    // No icons; each control takes 47 % of the row's width (see slotUpdateItemWidth()).
    explicit TypeSpinAdjust(QWidget* parent = nullptr);
    ~TypeSpinAdjust() override;

    int getWidgetRow() override;
    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    void setLeftIconSize(QSize size) override;
    void setContentFontSize(int size) override;

    // The left control's text.
    void setLeftSpinContent(QString const& text);
    // The right control's text.
    void setRightSpinContent(QString const& text);
    // The left control (owned by the row).
    ExtendSpinBox* leftSpinBox() const;
    // The right control (owned by the row).
    ExtendSpinBox* rightSpinBox() const;

    // The row's keys as described above; Escape also emits signalCloseEditStatus(). Key
    // releases are swallowed.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // Fixes each control's width to 47 % of `width` px (too large a width is refused).
    void slotUpdateItemWidth(int width);

signals:
    // The left control was stepped: true up (its right button), false down.
    void signalLeftSpinValueChanged(bool bTurnUp);
    // The right control was stepped: true up (its right button), false down.
    void signalRightSpinValueChanged(bool bTurnUp);
    // A step of the left control ended (button or knob key released).
    void signalLeftChangedFinished();
    // A step of the right control ended.
    void signalRightChangedFinished();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
