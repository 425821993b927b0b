#include "previewwidget.h"

#include "drawgraphicsview.h"

#include <QDebug>
#include <QFontMetrics>
#include <QPainter>
#include <cmath>
#include <vector>

namespace LCD {
namespace Widget {

namespace {
constexpr double kLimit = 1.0e6;

struct Layer
{
    QRectF rect;
    QString text;
};

QRectF clampRect(QRectF const& r)
{
    double const x = qBound(-kLimit, r.x(), kLimit);
    double const y = qBound(-kLimit, r.y(), kLimit);
    return QRectF(x, y, qMin(r.width(), 2 * kLimit), qMin(r.height(), 2 * kLimit));
}
} // namespace

struct LCDWIDGETS_HIDDEN PreviewWidget::Impl
{
    QSize canvas{1920, 1080};
    std::vector<Layer> layers;
    int current = -1;
    int fontSize = 14;
    QFont font;
    QColor background = DrawGraphicsView::BackgroundColor;
    QColor frame{255, 255, 255, 160};
    QColor highlight{255, 138, 0};
    QColor text{230, 230, 230};
};

PreviewWidget::PreviewWidget(QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    d->font.setPixelSize(d->fontSize);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PreviewWidget::~PreviewWidget() = default;

bool PreviewWidget::checkIndex(int index) const
{
    if (index >= 0 && index < int(d->layers.size()))
        return true;
    qWarning() << "[PreviewWidget] layer index out of range:" << index;
    return false;
}

void PreviewWidget::setCanvasSize(QSize size)
{
    if (size.width() < 1 || size.height() < 1) {
        qWarning() << "[PreviewWidget] invalid canvas size:" << size;
        return;
    }
    d->canvas = size;
    update();
}

QSize PreviewWidget::canvasSize() const { return d->canvas; }

void PreviewWidget::setLayers(ItemDataInfoArray const& layers)
{
    std::vector<Layer> next;
    next.reserve(layers.size());
    for (size_t i = 0; i < layers.size(); ++i) {
        ItemDataInfo const& info = layers[i];
        if (info.width <= 0 || info.height <= 0) {
            qWarning() << "[PreviewWidget] empty rectangle ignored at" << int(i);
            continue;
        }
        next.push_back({clampRect(QRectF(info.x, info.y, info.width, info.height)), QString::fromStdString(info.text)});
    }
    d->layers.swap(next);
    if (d->current >= int(d->layers.size())) {
        d->current = -1;
        emit signalCurrentLayerChanged(-1);
    }
    update();
}

void PreviewWidget::clearLayers() { setLayers({}); }

int PreviewWidget::layerCount() const { return int(d->layers.size()); }

void PreviewWidget::setLayerRect(int index, QRectF const& rect)
{
    if (!checkIndex(index))
        return;
    if (!std::isfinite(rect.x()) || !std::isfinite(rect.y()) || !std::isfinite(rect.width())
        || !std::isfinite(rect.height())) {
        qWarning() << "[PreviewWidget] rectangle is not finite";
        return;
    }
    if (!(rect.width() > 0) || !(rect.height() > 0)) {
        qWarning() << "[PreviewWidget] rectangle is empty";
        return;
    }
    QRectF const r = clampRect(rect);
    if (d->layers[index].rect == r)
        return;
    d->layers[index].rect = r;
    update();
}

QRectF PreviewWidget::layerRect(int index) const
{
    return checkIndex(index) ? d->layers[index].rect : QRectF();
}

void PreviewWidget::setLayerText(int index, QString const& text)
{
    if (!checkIndex(index))
        return;
    d->layers[index].text = text;
    update();
}

QString PreviewWidget::layerText(int index) const { return checkIndex(index) ? d->layers[index].text : QString(); }

void PreviewWidget::moveLayer(int from, int to)
{
    if (!checkIndex(from) || !checkIndex(to) || from == to)
        return;
    Layer moved = d->layers[from];
    d->layers.erase(d->layers.begin() + from);
    d->layers.insert(d->layers.begin() + to, moved);
    int c = d->current;
    if (c == from)
        c = to;
    else if (from < c && c <= to)
        --c;
    else if (to <= c && c < from)
        ++c;
    if (c != d->current) {
        d->current = c;
        emit signalCurrentLayerChanged(c);
    }
    update();
}

void PreviewWidget::setCurrentLayer(int index)
{
    if (index != -1 && !checkIndex(index))
        return;
    if (index == d->current)
        return;
    d->current = index;
    update();
    emit signalCurrentLayerChanged(index);
}

int PreviewWidget::currentLayer() const { return d->current; }

void PreviewWidget::setDrawViewHeight(int h)
{
    if (h < 1 || h > 4096) {
        qWarning() << "[PreviewWidget] invalid view height:" << h;
        return;
    }
    setFixedSize(16 * h / 9, h);
}

void PreviewWidget::setContentFontSize(int size)
{
    if (size < 1 || size > 1024) { // no panel font is larger; the derived sizes would overflow
        qWarning() << "Invalid font size:" << size;
        return;
    }
    d->fontSize = size;
    d->font.setPixelSize(size);
    update();
}

int PreviewWidget::contentFontSize() const { return d->fontSize; }

QRectF PreviewWidget::canvasArea() const
{
    double const w = width(), h = height();
    double const aspect = double(d->canvas.width()) / d->canvas.height();
    double cw = w, ch = w / aspect;
    if (ch > h) {
        ch = h;
        cw = h * aspect;
    }
    return QRectF((w - cw) / 2, (h - ch) / 2, cw, ch);
}

QRectF PreviewWidget::layerArea(int index) const
{
    if (!checkIndex(index))
        return QRectF();
    QRectF const c = canvasArea();
    double const s = c.width() / d->canvas.width();
    QRectF const& r = d->layers[index].rect;
    return QRectF(c.x() + r.x() * s, c.y() + r.y() * s, r.width() * s, r.height() * s);
}

QColor PreviewWidget::backgroundColor() const { return d->background; }
void PreviewWidget::setBackgroundColor(QColor const& color)
{
    if (color.isValid()) {
        d->background = color;
        update();
    }
}
QColor PreviewWidget::frameColor() const { return d->frame; }
void PreviewWidget::setFrameColor(QColor const& color)
{
    if (color.isValid()) {
        d->frame = color;
        update();
    }
}
QColor PreviewWidget::highlightColor() const { return d->highlight; }
void PreviewWidget::setHighlightColor(QColor const& color)
{
    if (color.isValid()) {
        d->highlight = color;
        update();
    }
}
QColor PreviewWidget::textColor() const { return d->text; }
void PreviewWidget::setTextColor(QColor const& color)
{
    if (color.isValid()) {
        d->text = color;
        update();
    }
}

QSize PreviewWidget::sizeHint() const { return QSize(320, 180); }

void PreviewWidget::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    QRectF const canvas = canvasArea();
    p.fillRect(canvas, d->background);
    p.setClipRect(canvas);
    p.setFont(d->font);
    QFontMetrics const fm(d->font);
    QColor fill = d->frame;
    fill.setAlpha(40);
    QRectF currentArea;
    for (int i = 0; i < int(d->layers.size()); ++i) {
        QRectF const r = layerArea(i);
        p.fillRect(r, d->background.darker(130));
        p.fillRect(r, fill);
        p.setPen(QPen(d->frame, 1));
        p.drawRect(r.adjusted(0.5, 0.5, -0.5, -0.5));
        if (i == d->current)
            currentArea = r;
        QString const& text = d->layers[i].text;
        if (!text.isEmpty() && r.width() > 8 && r.height() > fm.height() / 2) {
            p.setPen(d->text);
            QRectF const t = r.adjusted(4, 2, -4, -2);
            p.drawText(t, Qt::AlignLeft | Qt::AlignTop, fm.elidedText(text, Qt::ElideRight, int(t.width())));
        }
    }
    if (!currentArea.isNull()) {
        p.setPen(QPen(d->highlight, 3));
        p.setBrush(Qt::NoBrush);
        p.drawRect(currentArea.adjusted(1.5, 1.5, -1.5, -1.5));
    }
}

} // namespace Widget
} // namespace LCD
