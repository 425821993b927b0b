#include "drawgraphicsview.h"

#include <QDebug>
#include <QPaintEvent>
#include <QPainter>

namespace LCD {
namespace Widget {

const QColor DrawGraphicsView::BackgroundColor = QColor(25, 110, 136);

struct LCDWIDGETS_HIDDEN DrawGraphicsView::Impl
{
    DrawGraphicsScene* scene = nullptr;
};

DrawGraphicsView::DrawGraphicsView(QWidget* parent) : QGraphicsView(parent), d(std::make_unique<Impl>())
{
    initWin();
}

DrawGraphicsView::~DrawGraphicsView() = default;

void DrawGraphicsView::initWin()
{
    setRenderHint(QPainter::Antialiasing);
    setFrameShadow(QFrame::Plain);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(QStringLiteral("border:none;"));
    setFocusPolicy(Qt::NoFocus);
    d->scene = new DrawGraphicsScene(this);
    setScene(d->scene);
}

void DrawGraphicsView::setItemInfo(std::vector<ItemDataInfo> const& infos) { d->scene->setTemplateInfo(infos); }

void DrawGraphicsView::setCropRectInfo(CropRectInfoArray const& infos) { d->scene->setCropRectInfo(infos); }

void DrawGraphicsView::setDrawViewHeight(int h)
{
    if (h < 1) {
        qWarning() << "[DrawGraphicsView] setDrawViewHeight: height refused:" << h;
        return;
    }
    // The width must stay a widget width too.
    qint64 const height = qMin<qint64>(h, qint64(QWIDGETSIZE_MAX) * 9 / 16);
    setFixedSize(int(16 * height / 9), int(height));
}

void DrawGraphicsView::setContentFontSize(int size) { d->scene->setContentFontSize(size); }

DrawGraphicsScene* DrawGraphicsView::drawScene() const { return d->scene; }

void DrawGraphicsView::fitToItems()
{
    QRectF const r = d->scene->itemsBoundingRect();
    if (r.width() > 0 && r.height() > 0)
        fitInView(r, Qt::KeepAspectRatio);
}

void DrawGraphicsView::showEvent(QShowEvent* event)
{
    QGraphicsView::showEvent(event);
    fitToItems();
}

void DrawGraphicsView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    fitToItems();
}

void DrawGraphicsView::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(viewport());
        painter.fillRect(event->rect(), BackgroundColor);
    }
    QGraphicsView::paintEvent(event);
}

} // namespace Widget
} // namespace LCD
