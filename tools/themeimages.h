// Shared drawing helpers of the theme image tool.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSize>
#include <QString>
#include <functional>
#include <map>
#include <vector>

namespace themeimages {

inline const QColor kInk(235, 235, 235);
inline const QColor kDim(138, 143, 152);
inline const QColor kAccent(255, 138, 0);
inline const QColor kPgm(230, 40, 40);
inline const QColor kPvw(40, 200, 80);

using Draw = std::function<void(QPainter&, QSizeF)>;

// A still image, or an animation when `frames` > 1 (then `draw` is called once per
// frame with the frame index in `frame`, and the file is written as an animated GIF).
struct Image
{
    QSize size;
    Draw draw;
    int frames = 1;
    int frameDelayMs = 80;
    std::function<void(QPainter&, QSizeF, int frame)> drawFrame = {};
};

using ImageTable = std::map<QString, Image>;

inline QPen stroke(QColor c, qreal w) { return QPen(c, w, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin); }

inline void background(QPainter& p, QSizeF s, QColor top, QColor bottom)
{
    QLinearGradient g(0, 0, 0, s.height());
    g.setColorAt(0, top);
    g.setColorAt(1, bottom);
    p.fillRect(QRectF(QPointF(0, 0), s), g);
}

// Each group of widgets adds its images in a file of its own.
void addFoundationImages(ImageTable& table);
void addDisplayImages(ImageTable& table);   // text and display items
void addBarImages(ImageTable& table);       // bottom and reset/apply bars, progress
void addEditorImages(ImageTable& table);    // spin boxes and numeric rows
void addListImages(ImageTable& table);      // drop-downs and menus
void addDeviceImages(ImageTable& table);    // number pad and device pages
void addChoiceImages(ImageTable& table);    // choice controls: effect pictures and previews
void addDialogImages(ImageTable& table);    // reminder, toast, tile and loading images
void addSystemImages(ImageTable& table);    // panel lock

} // namespace themeimages
