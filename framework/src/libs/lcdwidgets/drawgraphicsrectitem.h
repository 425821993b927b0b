// One rectangle of a crop drawing: filled, with an optional border (the base map),
// or a white crop frame; its text centred inside. The item's origin is its top-left
// corner and its bounding rectangle is exactly its size.
#pragma once

#include "lcdwidgets_global.h"

#include <QGraphicsItem>
#include <QSizeF>
#include <QString>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT DrawGraphicsRectItem : public QGraphicsItem
{
public:
    // The item type qgraphicsitem_cast() recognises.
    enum { Type = UserType + 0x4c43 };

    // An empty rectangle of size 0, bordered base map, no text, text at 40 px.
    explicit DrawGraphicsRectItem(QGraphicsItem* parent = nullptr);
    ~DrawGraphicsRectItem() override;

    // Type: the item type of these rectangles.
    int type() const override { return Type; }
    // (0, 0) and the item's size.
    QRectF boundingRect() const override;
    // Fill, border or crop frame, then the text; at 40 % opacity in a disabled view.
    void paint(QPainter* painter, QStyleOptionGraphicsItem const* option, QWidget* widget) override;

    // Negative or NaN extents count as 0; larger ones than
    // DrawGraphicsScene::kMaxSceneCoordinate count as that (a view could not scroll them).
    void setItemSize(QSizeF size);
    // The rectangle's size in scene units.
    QSizeF getItemSize() const;
    // The text centred in the rectangle.
    void setRectText(QString text);
    // The text centred in the rectangle.
    QString rectText() const;
    // true: a white 2 px crop frame over a light fill is drawn on top.
    void setIsCropRect(bool crop);
    // Whether the item is a crop rectangle (false by default).
    bool isCropRect() const;
    // Whether the filled base map has a thin white border (default true).
    void setIsBaseMapHasBoder(bool border);
    // Whether the base map has its border.
    bool isBaseMapHasBoder() const;
    // Pixel size of the text on the screen, whatever the view's zoom (sizes below 1
    // are refused); the text shrinks to fit a small rectangle.
    void setContentFontSize(int size);
    // Pixel size of the text on the screen (default 40; sizes above 1024 are refused too).
    int contentFontSize() const;

    // Draws the filled rectangle (and its border) with the painter's brush.
    void drawBaseMapRect(QPainter* painter) const;
    // Draws the crop frame of a crop rectangle; nothing otherwise.
    void drawCropRect(QPainter* painter) const;
    // Draws the text, shrunk to fit; texts below 6 px on the screen are left out.
    void drawItemText(QPainter* painter) const;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
