// An item row that carries a crop drawing (a DrawGraphicsView) in the middle of the
// row, without icons or title. The knob's press (editValue()) reports
// signalClicked(false): the host opens its crop settings from there.
#pragma once

#include "commonitemtype.h"
#include "itemdatainfo.h"
#include "lcdwidgets_global.h"

#include <memory>

namespace LCD {
namespace Widget {

class DrawGraphicsView;

class LCDWIDGETS_EXPORT TypeDrawCropWidget : public CommonItemType
{
    Q_OBJECT
public:
    // An empty drawing, no title, no icons.
    explicit TypeDrawCropWidget(QWidget* parent = nullptr);
    ~TypeDrawCropWidget() override;

    // DrawGraphicsView::setItemInfo(): the template's rectangles.
    void setItemInfo(std::vector<ItemDataInfo> const& infos);
    // DrawGraphicsView::setCropRectInfo(): a picture and its crop rectangles.
    void setCropRectInfo(CropRectInfoArray const& infos);
    // View height h minus the content font size (results below 1 are refused).
    void setCropViewHeight(int h);
    void setContentFontSize(int size) override;
    void setContentDisabled(bool disabled) const override;
    int getWidgetRow() override;
    void editValue() override;

    // The drawing's view (owned by the row).
    DrawGraphicsView* view() const;

signals:
    // The knob's press on the row; always false.
    void signalClicked(bool checked);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
