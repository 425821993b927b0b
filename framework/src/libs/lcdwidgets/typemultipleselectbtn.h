// A row that is a line of selectable buttons (a MultipleSelectBtn, no title or icons).
// The knob's press on the row hands the focus to the remembered button; Up/Down walk,
// the press reports the button's value with signalBtnClicked() and stays in the row,
// Escape gives the focus back to the page and closes the edit (closeEditValue()).
#pragma once

#include "commonitemtype.h"
#include "multipleselectbtn.h"

#include <vector>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeMultipleSelectBtn : public CommonItemType
{
    Q_OBJECT
public:
    // `index`: the button the focus starts on.
    TypeMultipleSelectBtn(int index, std::vector<ItemSelectInfo> const& infos, QWidget* parent = nullptr);
    // The same, with the buttons `spacing` apart in the tool button style `style`.
    TypeMultipleSelectBtn(int index, int spacing, std::vector<ItemSelectInfo> const& infos, Qt::ToolButtonStyle style,
                          QWidget* parent = nullptr);
    ~TypeMultipleSelectBtn() override;

    // The text of one button; a bad index is logged
    // ("MultipleSelectBtn::setBtnText: invalid index <index>").
    void setBtnText(int index, QString text);
    // The buttons are sized for the font size (see MultipleSelectBtn::setBtnSize).
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    void editValue() override;

    // The row of buttons (owned by the row).
    MultipleSelectBtn* selectBtn() const;

signals:
    // A button was chosen: its value.
    void signalBtnClicked(QVariant value);

private:
    void init();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
