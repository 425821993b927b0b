// Shows a crop drawing at a fixed 16:9 size, fitted to its rectangles, on the
// drawing's background colour.
#pragma once

#include "drawgraphicsscene.h"
#include "itemdatainfo.h"
#include "lcdwidgets_global.h"

#include <QColor>
#include <QGraphicsView>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT DrawGraphicsView : public QGraphicsView
{
    Q_OBJECT
public:
    // The drawing's background colour (25, 110, 136).
    static const QColor BackgroundColor;

    // A view of its own DrawGraphicsScene, without scroll bars.
    explicit DrawGraphicsView(QWidget* parent = nullptr);
    ~DrawGraphicsView() override;

    // DrawGraphicsScene::setTemplateInfo(): the template's rectangles.
    void setItemInfo(std::vector<ItemDataInfo> const& infos);
    // DrawGraphicsScene::setCropRectInfo(): a picture and its crop rectangles.
    void setCropRectInfo(CropRectInfoArray const& infos);
    // Height h, width (16 × h) / 9; heights below 1 are refused.
    void setDrawViewHeight(int h);
    // DrawGraphicsScene::setContentFontSize().
    void setContentFontSize(int size);
    // The view's scene (owned by the view).
    DrawGraphicsScene* drawScene() const;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void initWin();
    void fitToItems();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
