// The scene of a crop drawing: the host's rectangles (a layout template, or a
// picture with its crop rectangles) and the fit of the first view to them.
#pragma once

#include "drawgraphicsrectitem.h"
#include "itemdatainfo.h"
#include "lcdwidgets_global.h"

#include <QGraphicsScene>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT DrawGraphicsScene : public QGraphicsScene
{
    Q_OBJECT
public:
    // An empty scene (see initScene()), no index, text at 20 px.
    explicit DrawGraphicsScene(QObject* parent = nullptr);
    ~DrawGraphicsScene() override;

    // Scene rectangle (-196608, -196608, 393216 × 393216).
    void initScene();
    // The scene rectangle; one with an edge beyond +-kMaxSceneCoordinate, or not
    // finite, is refused ("[DrawGraphicsScene] setSceneSize: rectangle refused:").
    static constexpr qreal kMaxSceneCoordinate = 16777216.0;
    // See above.
    void setSceneSize(QRectF const& rect);

    // Replace every rectangle: one per entry, bordered, with its text. An empty array
    // logs "item info array is empty" and changes nothing.
    void setTemplateInfo(ItemDataInfoArray const& infos);
    // Replace every rectangle: a crop rectangle (white frame) where the bool is true,
    // a borderless picture where it is false; no texts. Empty: as above.
    void setCropRectInfo(CropRectInfoArray const& infos);
    // Text pixel size handed to every rectangle (sizes below 1 are refused).
    void setContentFontSize(int size);
    // The text pixel size handed to the rectangles (default 20).
    int contentFontSize() const;

    // Removes and destroys every rectangle.
    void removeItems();
    // The union of every item's bounding rectangle, in scene coordinates.
    QRectF outCutRect() const;
    // Fits the first view to outCutRect(), unless the view is far too small for it
    // (view/rectangle below 0.012 across or 0.015 down) or there is nothing to fit.
    void updateViewCenter();

    // The rectangles as data, in the order they were given.
    ItemDataInfoArray itemInfo() const;
    // The same with each rectangle's crop flag (positions and sizes rounded).
    CropRectInfoArray cropRectInfo() const;

private:
    QList<DrawGraphicsRectItem*> rectItems() const;
    DrawGraphicsRectItem* addRect(ItemDataInfo const& info);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
