#include "drawgraphicsrectitem.h"
#include "drawgraphicsscene.h"

#include <algorithm>

#include <QDebug>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QWidget>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {

const QColor kFill(25, 110, 136);
const QColor kBaseMapBorder(255, 255, 255, 140);
const QColor kCropFrame(QStringLiteral("#FFFFFFFF"));
const QColor kCropFill(255, 255, 255, 40);
const QColor kText(255, 255, 255, 230);
constexpr qreal kCropFrameWidth = 2.0;
// Texts smaller than this on the screen are not drawn.
constexpr qreal kSmallestText = 6.0;

// A view scrolls in int pixels: an extent beyond the largest scene coordinate would
// overflow the scroll bars of the view showing the item.
qreal extent(qreal v)
{
    return std::isfinite(v) && v > 0 ? std::min(v, DrawGraphicsScene::kMaxSceneCoordinate) : 0.0;
}

} // namespace

struct LCDWIDGETS_HIDDEN DrawGraphicsRectItem::Impl
{
    QSizeF size = QSizeF(0, 0);
    QString text;
    bool cropRect = false;
    bool baseMapBorder = true;
    int fontSize = 40;
};

DrawGraphicsRectItem::DrawGraphicsRectItem(QGraphicsItem* parent)
    : QGraphicsItem(parent), d(std::make_unique<Impl>())
{
}

DrawGraphicsRectItem::~DrawGraphicsRectItem() = default;

QRectF DrawGraphicsRectItem::boundingRect() const { return QRectF(QPointF(0, 0), d->size); }

void DrawGraphicsRectItem::paint(QPainter* painter, QStyleOptionGraphicsItem const*, QWidget* widget)
{
    painter->setRenderHint(QPainter::Antialiasing, true);
    if (widget && !widget->isEnabled())
        painter->setOpacity(0.4);
    painter->setBrush(kFill);
    drawBaseMapRect(painter);
    drawCropRect(painter);
    drawItemText(painter);
}

void DrawGraphicsRectItem::drawBaseMapRect(QPainter* painter) const
{
    painter->save();
    if (d->baseMapBorder) {
        QPen pen(kBaseMapBorder, 1.0);
        pen.setCosmetic(true);
        painter->setPen(pen);
    } else {
        painter->setPen(Qt::NoPen);
    }
    painter->drawRect(boundingRect());
    painter->restore();
}

void DrawGraphicsRectItem::drawCropRect(QPainter* painter) const
{
    if (!d->cropRect)
        return;
    painter->save();
    QPen pen(kCropFrame, kCropFrameWidth);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    painter->setBrush(kCropFill);
    painter->drawRect(boundingRect());
    painter->restore();
}

void DrawGraphicsRectItem::drawItemText(QPainter* painter) const
{
    if (d->text.isEmpty() || d->size.isEmpty())
        return;
    // The text is sized on the screen: the drawing is usually shown much smaller than
    // the picture it stands for.
    QTransform const t = painter->worldTransform();
    QRectF const onScreen = t.mapRect(boundingRect());
    QRectF const box = onScreen.adjusted(2, 0, -2, 0);
    qreal pixels = qMin<qreal>(d->fontSize, onScreen.height() * 0.8);
    if (!(pixels >= kSmallestText) || box.width() <= 0)
        return;
    QFont font = painter->font();
    font.setPixelSize(int(pixels));
    // Shrink a text that is too wide (down to the smallest readable size), then elide.
    qreal const advance = QFontMetricsF(font).horizontalAdvance(d->text);
    if (advance > box.width()) {
        pixels = qMax(kSmallestText, pixels * box.width() / advance);
        font.setPixelSize(int(pixels));
    }
    painter->save();
    painter->resetTransform();
    painter->setFont(font);
    painter->setPen(kText);
    QFontMetricsF const fm(font);
    painter->drawText(box, Qt::AlignCenter, fm.elidedText(d->text, Qt::ElideRight, box.width()));
    painter->restore();
}

void DrawGraphicsRectItem::setItemSize(QSizeF size)
{
    QSizeF const s(extent(size.width()), extent(size.height()));
    if (s == d->size)
        return;
    prepareGeometryChange();
    d->size = s;
    update();
}

QSizeF DrawGraphicsRectItem::getItemSize() const { return d->size; }

void DrawGraphicsRectItem::setRectText(QString text)
{
    d->text = std::move(text);
    update();
}

QString DrawGraphicsRectItem::rectText() const { return d->text; }

void DrawGraphicsRectItem::setIsCropRect(bool crop)
{
    d->cropRect = crop;
    update();
}

bool DrawGraphicsRectItem::isCropRect() const { return d->cropRect; }

void DrawGraphicsRectItem::setIsBaseMapHasBoder(bool border)
{
    d->baseMapBorder = border;
    update();
}

bool DrawGraphicsRectItem::isBaseMapHasBoder() const { return d->baseMapBorder; }

void DrawGraphicsRectItem::setContentFontSize(int size)
{
    if (size < 1 || size > 1024) { // no panel font is larger; the derived sizes would overflow
        qWarning() << "[DrawGraphicsRectItem] setContentFontSize: size refused:" << size;
        return;
    }
    d->fontSize = size;
    update();
}

int DrawGraphicsRectItem::contentFontSize() const { return d->fontSize; }

} // namespace Widget
} // namespace LCD
