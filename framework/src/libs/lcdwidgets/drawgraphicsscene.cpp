#include "drawgraphicsscene.h"

#include <QDebug>

#include <cmath>
#include <QGraphicsView>

namespace LCD {
namespace Widget {

namespace {

constexpr qreal kSceneOrigin = -196608;
constexpr qreal kSceneExtent = 393216;
constexpr float kMinWidthRatio = 0.012f;
constexpr float kMinHeightRatio = 0.015f;

qint64 bounded(qint64 v, qint64 lo, qint64 hi) { return v < lo ? lo : (v > hi ? hi : v); }

} // namespace

ItemDataInfo cropRectInside(ItemDataInfo const& crop, ItemDataInfo const& picture, int minimumSize)
{
    if (picture.width <= 0 || picture.height <= 0 || minimumSize < 1)
        return crop;
    ItemDataInfo r = crop;
    qint64 const px = picture.x;
    qint64 const py = picture.y;
    qint64 const pw = picture.width;
    qint64 const ph = picture.height;
    qint64 const w = bounded(crop.width, qMin<qint64>(minimumSize, pw), pw);
    qint64 const h = bounded(crop.height, qMin<qint64>(minimumSize, ph), ph);
    // The picture's far edges may lie beyond the int range: 64 bits throughout, and
    // every result lies between two int values.
    r.width = int(w);
    r.height = int(h);
    r.x = int(bounded(crop.x, px, px + pw - w));
    r.y = int(bounded(crop.y, py, py + ph - h));
    return r;
}

struct LCDWIDGETS_HIDDEN DrawGraphicsScene::Impl
{
    int contentFontSize = 20;
};

DrawGraphicsScene::DrawGraphicsScene(QObject* parent) : QGraphicsScene(parent), d(std::make_unique<Impl>())
{
    // No index: a handful of rectangles, replaced as a whole.
    setItemIndexMethod(QGraphicsScene::NoIndex);
    initScene();
}

DrawGraphicsScene::~DrawGraphicsScene() = default;

void DrawGraphicsScene::initScene() { setSceneRect(kSceneOrigin, kSceneOrigin, kSceneExtent, kSceneExtent); }

void DrawGraphicsScene::setSceneSize(QRectF const& rect)
{
    // A view scrolls the scene in int pixels: edges beyond kMaxSceneCoordinate (or not
    // numbers at all) would overflow its scroll ranges.
    auto const fits = [](qreal v) { return std::isfinite(v) && std::abs(v) <= kMaxSceneCoordinate; };
    if (!fits(rect.left()) || !fits(rect.top()) || !fits(rect.right()) || !fits(rect.bottom())) {
        qWarning() << "[DrawGraphicsScene] setSceneSize: rectangle refused:" << rect;
        return;
    }
    setSceneRect(rect);
}

DrawGraphicsRectItem* DrawGraphicsScene::addRect(ItemDataInfo const& info)
{
    auto* item = new DrawGraphicsRectItem;
    item->setContentFontSize(d->contentFontSize);
    item->setPos(info.x, info.y);
    item->setItemSize(QSizeF(info.width, info.height));
    addItem(item);
    return item;
}

void DrawGraphicsScene::setTemplateInfo(ItemDataInfoArray const& infos)
{
    if (infos.empty()) {
        qDebug() << "item info array is empty";
        return;
    }
    removeItems();
    for (ItemDataInfo const& info : infos)
        addRect(info)->setRectText(QString::fromStdString(info.text));
    updateViewCenter();
}

void DrawGraphicsScene::setCropRectInfo(CropRectInfoArray const& infos)
{
    if (infos.empty()) {
        qDebug() << "item info array is empty";
        return;
    }
    removeItems();
    for (auto const& [crop, info] : infos) {
        DrawGraphicsRectItem* item = addRect(info);
        item->setIsCropRect(crop);
        item->setIsBaseMapHasBoder(crop);
    }
    updateViewCenter();
}

void DrawGraphicsScene::setContentFontSize(int size)
{
    if (size < 1 || size > 1024) { // no panel font is larger; the derived sizes would overflow
        qWarning() << "[DrawGraphicsScene] setContentFontSize: size refused:" << size;
        return;
    }
    d->contentFontSize = size;
    for (DrawGraphicsRectItem* item : rectItems())
        item->setContentFontSize(size);
}

int DrawGraphicsScene::contentFontSize() const { return d->contentFontSize; }

QList<DrawGraphicsRectItem*> DrawGraphicsScene::rectItems() const
{
    QList<DrawGraphicsRectItem*> out;
    // Items of equal Z stack in the order they were added.
    for (QGraphicsItem* item : items(Qt::AscendingOrder))
        if (auto* rect = qgraphicsitem_cast<DrawGraphicsRectItem*>(item))
            out.append(rect);
    return out;
}

void DrawGraphicsScene::removeItems()
{
    for (DrawGraphicsRectItem* item : rectItems()) {
        removeItem(item);
        delete item;
    }
}

QRectF DrawGraphicsScene::outCutRect() const
{
    QRectF r;
    for (QGraphicsItem* item : items())
        r |= item->mapToScene(item->boundingRect()).boundingRect();
    return r;
}

void DrawGraphicsScene::updateViewCenter()
{
    QList<QGraphicsView*> const list = views();
    if (list.isEmpty())
        return;
    QGraphicsView* v = list.first();
    QRectF const r = outCutRect();
    if (!(r.width() > 0) || !(r.height() > 0)) {
        qDebug() << "[DrawGraphicsScene] nothing to fit the view to";
        return;
    }
    float const wr = float(v->width()) / float(r.width());
    float const hr = float(v->height()) / float(r.height());
    if (wr >= kMinWidthRatio && hr >= kMinHeightRatio)
        v->fitInView(r, Qt::KeepAspectRatioByExpanding);
}

ItemDataInfoArray DrawGraphicsScene::itemInfo() const
{
    ItemDataInfoArray out;
    for (DrawGraphicsRectItem const* item : rectItems()) {
        QPointF const p = item->pos();
        QSizeF const s = item->getItemSize();
        out.push_back({item->rectText().toStdString(), qRound(p.x()), qRound(p.y()), qRound(s.width()),
                       qRound(s.height())});
    }
    return out;
}

CropRectInfoArray DrawGraphicsScene::cropRectInfo() const
{
    CropRectInfoArray out;
    for (DrawGraphicsRectItem const* item : rectItems()) {
        QPointF const p = item->pos();
        QSizeF const s = item->getItemSize();
        out.push_back({item->isCropRect(),
                       {item->rectText().toStdString(), qRound(p.x()), qRound(p.y()), qRound(s.width()),
                        qRound(s.height())}});
    }
    return out;
}

} // namespace Widget
} // namespace LCD
