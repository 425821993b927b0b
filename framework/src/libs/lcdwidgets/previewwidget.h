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
    // The canvas in canvas units (1920 × 1080 by default).
    Q_PROPERTY(QSize canvasSize READ canvasSize WRITE setCanvasSize)
    // Pixel size of the layers' labels.
    Q_PROPERTY(int contentFontSize READ contentFontSize WRITE setContentFontSize)
    // Colour of the canvas.
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    // Colour of the layers' frames.
    Q_PROPERTY(QColor frameColor READ frameColor WRITE setFrameColor)
    // Colour of the current layer's outline.
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor)
    // Colour of the layers' labels.
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
public:
    // No layers, canvas 1920 × 1080, labels 14 px; expands in both directions.
    explicit PreviewWidget(QWidget* parent = nullptr);
    ~PreviewWidget() override;

    // The canvas in canvas units; a side below 1 is refused (see above).
    void setCanvasSize(QSize size);
    // The canvas in canvas units.
    QSize canvasSize() const;

    // Replaces the layers (rectangle and label each, bottom first); empty rectangles are
    // skipped (logged). A current layer past the new count is cleared
    // (signalCurrentLayerChanged(-1)).
    void setLayers(ItemDataInfoArray const& layers);
    // setLayers() with no layers.
    void clearLayers();
    // Number of layers.
    int layerCount() const;
    // A layer's rectangle in canvas units; refusals: see above.
    void setLayerRect(int index, QRectF const& rect);
    QRectF layerRect(int index) const; // empty for a bad index (logged)
    // A layer's label (a bad index is logged).
    void setLayerText(int index, QString const& text);
    // A layer's label; empty (and logged) for a bad index.
    QString layerText(int index) const;
    // Moves a layer in the drawing order (0 = bottom); the current layer follows it.
    void moveLayer(int from, int to);

    // -1: none.
    void setCurrentLayer(int index);
    // The current layer; -1 when none.
    int currentLayer() const;

    // Fixes the widget at 16h/9 × h px; h outside 1..4096 is refused
    // ("[PreviewWidget] invalid view height:").
    void setDrawViewHeight(int h);
    // Pixel size of the labels, 1..1024; else refused ("Invalid font size:").
    void setContentFontSize(int size);
    // Pixel size of the labels (default 14).
    int contentFontSize() const;

    // Where the canvas and a layer lie in widget pixels.
    QRectF canvasArea() const;
    // Where a layer lies in widget pixels; empty (and logged) for a bad index.
    QRectF layerArea(int index) const;

    // Colour of the canvas (the crop drawing's (25, 110, 136) by default).
    QColor backgroundColor() const;
    // Colour of the canvas; an invalid colour is ignored.
    void setBackgroundColor(QColor const& color);
    // Colour of the layers' frames (white, alpha 160, by default).
    QColor frameColor() const;
    // Colour of the layers' frames; an invalid colour is ignored.
    void setFrameColor(QColor const& color);
    // Colour of the current layer's outline (orange (255, 138, 0) by default).
    QColor highlightColor() const;
    // Colour of the current layer's outline; an invalid colour is ignored.
    void setHighlightColor(QColor const& color);
    // Colour of the labels ((230, 230, 230) by default).
    QColor textColor() const;
    // Colour of the labels; an invalid colour is ignored.
    void setTextColor(QColor const& color);

    // 320 × 180 px.
    QSize sizeHint() const override;

signals:
    // The current layer changed (-1: none), also when moveLayer() carried it.
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
