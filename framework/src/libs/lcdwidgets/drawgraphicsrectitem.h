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
    enum { Type = UserType + 0x4c43 };

    explicit DrawGraphicsRectItem(QGraphicsItem* parent = nullptr);
    ~DrawGraphicsRectItem() override;

    int type() const override { return Type; }
    QRectF boundingRect() const override;
    void paint(QPainter* painter, QStyleOptionGraphicsItem const* option, QWidget* widget) override;

    // Negative or NaN extents count as 0; larger ones than
    // DrawGraphicsScene::kMaxSceneCoordinate count as that (a view could not scroll them).
    void setItemSize(QSizeF size);
    QSizeF getItemSize() const;
    void setRectText(QString text);
    QString rectText() const;
    void setIsCropRect(bool crop);
    bool isCropRect() const;
    void setIsBaseMapHasBoder(bool border);
    bool isBaseMapHasBoder() const;
    // Pixel size of the text on the screen, whatever the view's zoom (sizes below 1
    // are refused); the text shrinks to fit a small rectangle.
    void setContentFontSize(int size);
    int contentFontSize() const;

    void drawBaseMapRect(QPainter* painter) const;
    void drawCropRect(QPainter* painter) const;
    void drawItemText(QPainter* painter) const;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
