// A row of operation buttons (a MultiBtnWidget on the left). The knob's press on the
// row hands the focus to the buttons: Up/Down walk them, the press reports the focused
// button's value (signalMultiOperBtnValueChanged()) and leaves the row in edit, Escape
// gives the focus back to the page with signalCloseEditStatus().
#pragma once

#include "commonitemtype.h"

#include <QVector>

namespace LCD {
namespace Widget {

class MultiBtnWidget;

class LCDWIDGETS_EXPORT TypeItemMultiOperBtn : public CommonItemType
{
    Q_OBJECT
public:
    // `count` operation buttons.
    explicit TypeItemMultiOperBtn(int count, QWidget* parent = nullptr);
    ~TypeItemMultiOperBtn() override;

    // Text and value of the buttons, one pair each (extra pairs ignored).
    void setBtnText(QVector<QPair<QString, int>>& data);
    // Sets the dynamic property `name` on every button and repolishes it.
    void setBtnDefaultStyle(QString name);
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    void editValue() override;

    // The button pad (owned by the row).
    MultiBtnWidget* btnWidget() const;

signals:
    // A button was pressed: its value, QVariant(int).
    void signalMultiOperBtnValueChanged(QVariant value);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
