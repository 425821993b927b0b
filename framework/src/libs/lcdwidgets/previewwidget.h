// A 16:9 preview of the screen's layer windows: each layer is a rectangle in canvas
// units (1920 x 1080 by default) with its label in the top-left corner, drawn bottom
// first in the order given (the last layer is in front). The current layer is outlined
// in the highlight colour on top of everything so it stays visible when covered.
// Changing a rectangle, the order or the current layer redraws at once.
//
// The canvas is letterboxed into the widget with its aspect kept; setDrawViewHeight(h)
// fixes the widget at 16h/9 x h like the crop drawing. Colours are properties the theme
// sets (qproperty-backgroundColor, -frameColor, -highlightColor, -textColor); the
// background defaults to the crop drawing's.
//
// Bad input is refused and logged at warning level, nothing changes:
// "[PreviewWidget] layer index out of range:" N, "[PreviewWidget] rectangle is not
// finite" (NaN or infinite coordinates), "[PreviewWidget] rectangle is empty" (width or
// height <= 0), "[PreviewWidget] invalid canvas size:" SIZE, "[PreviewWidget] invalid
// view height:" N. setLayers skips empty rectangles, each with
// "[PreviewWidget] empty rectangle ignored at" INDEX, and keeps the others.
// Coordinates are clamped to +-1e6 canvas units.
#pragma once

#include "itemdatainfo.h"
#include "lcdwidgets_global.h"

#include <QColor>
#include <QRectF>
#include <QWidget>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT PreviewWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QSize canvasSize READ canvasSize WRITE setCanvasSize)
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QColor frameColor READ frameColor WRITE setFrameColor)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(QColor frameColor READ frameColor WRITE setFrameColor)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
public:
    explicit PreviewWidget(QWidget* parent = nullptr);
    ~PreviewWidget() override;

    void setCanvasSize(QSize size);
    QSize canvasSize() const;

    void setLayers(ItemDataInfoArray const& layers);
    void clearLayers();
    int layerCount() const;
    void setLayerRect(int index, QRectF const& rect);
    QRectF layerRect(int index) const; // empty for a bad index (logged)
    void setLayerText(int index, QString const& text);
    QString layerText(int index) const;
    // Moves a layer in the drawing order (0 = bottom); the current layer follows it.
    void moveLayer(int from, int to);

    // -1: none.
    void setCurrentLayer(int index);
    int currentLayer() const;

    void setDrawViewHeight(int h);
    void setContentFontSize(int size);
    int contentFontSize() const;

    // Where the canvas and a layer lie in widget pixels.
    QRectF canvasArea() const;
    QRectF layerArea(int index) const;

    QColor backgroundColor() const;
    void setBackgroundColor(QColor const& color);
    QColor frameColor() const;
    void setFrameColor(QColor const& color);
    QColor highlightColor() const;
    void setHighlightColor(QColor const& color);
    QColor textColor() const;
    void setTextColor(QColor const& color);

    QSize sizeHint() const override;

signals:
    void signalCurrentLayerChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool checkIndex(int index) const;

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
