#include "themeimages.h"

#include <QtMath>

namespace themeimages {

namespace {

// Drawings are made on a 48-unit grid and scaled to the image size.
void unit(QPainter& p, QSizeF s)
{
    p.scale(s.width() / 48.0, s.height() / 48.0);
}

Image mark(QColor fill, QString const& text)
{
    return Image{QSize(48, 24), [fill, text](QPainter& p, QSizeF s) {
                     QRectF const r(QPointF(1, 1), s - QSizeF(2, 2));
                     p.setPen(Qt::NoPen);
                     p.setBrush(fill);
                     p.drawRoundedRect(r, 5, 5);
                     QFont f;
                     f.setPixelSize(13);
                     f.setBold(true);
                     f.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
                     p.setFont(f);
                     p.setPen(Qt::white);
                     p.drawText(r, Qt::AlignCenter, text);
                 }};
}

} // namespace

void addDisplayImages(ImageTable& m)
{
    // The chosen row of a list.
    m["icon_list_tick.png"] = {QSize(48, 48), [](QPainter& p, QSizeF s) {
                                   unit(p, s);
                                   p.setPen(stroke(kAccent, 4.5));
                                   p.drawPolyline(QPolygonF({QPointF(11, 25), QPointF(20, 34), QPointF(37, 14)}));
                               }};
    // A row with more behind it.
    m["icon_list_more.png"] = {QSize(48, 48), [](QPainter& p, QSizeF s) {
                                   unit(p, s);
                                   p.setPen(Qt::NoPen);
                                   p.setBrush(kInk);
                                   for (int i = 0; i < 3; ++i)
                                       p.drawEllipse(QPointF(12 + 12 * i, 24), 3.5, 3.5);
                               }};
    // Hint: an "i" in a ring.
    m["icon_tip.png"] = {QSize(48, 48), [](QPainter& p, QSizeF s) {
                             unit(p, s);
                             p.setPen(stroke(kAccent, 3.5));
                             p.setBrush(Qt::NoBrush);
                             p.drawEllipse(QRectF(6, 6, 36, 36));
                             p.drawLine(QPointF(24, 21), QPointF(24, 34));
                             p.setPen(Qt::NoPen);
                             p.setBrush(kAccent);
                             p.drawEllipse(QPointF(24, 14.5), 2.6, 2.6);
                         }};
    // The text field's button: a keyboard.
    auto keyboard = [](QColor ink) {
        return Image{QSize(48, 48), [ink](QPainter& p, QSizeF s) {
                         unit(p, s);
                         p.setPen(stroke(ink, 3));
                         p.setBrush(Qt::NoBrush);
                         p.drawRoundedRect(QRectF(5, 12, 38, 25), 5, 5);
                         p.setPen(Qt::NoPen);
                         p.setBrush(ink);
                         for (int row = 0; row < 2; ++row)
                             for (int col = 0; col < 5; ++col)
                                 p.drawRoundedRect(QRectF(10.5 + col * 6, 17 + row * 6, 3.5, 3.5), 1, 1);
                         p.drawRoundedRect(QRectF(15, 29.5, 18, 3.2), 1.2, 1.2);
                     }};
    };
    m["icon_pwd_btn.png"] = keyboard(kInk);
    m["icon_pwd_btn_pressed.png"] = keyboard(kAccent);
    // Programme (on air) and preview marks.
    m["icon_pgm_mark.png"] = mark(kPgm, QStringLiteral("PGM"));
    m["icon_pvw_mark.png"] = mark(kPvw.darker(115), QStringLiteral("PVW"));
    // A picture that could not be loaded: a frame with a broken corner.
    m["icon_picture_failed.png"] = {QSize(48, 48), [](QPainter& p, QSizeF s) {
                                        unit(p, s);
                                        p.setPen(stroke(kDim, 3));
                                        p.setBrush(Qt::NoBrush);
                                        p.drawPolyline(QPolygonF({QPointF(28, 8), QPointF(6, 8), QPointF(6, 40),
                                                                  QPointF(42, 40), QPointF(42, 22)}));
                                        p.drawPolyline(QPolygonF({QPointF(10, 35), QPointF(19, 24),
                                                                  QPointF(26, 31), QPointF(31, 27)}));
                                        p.setPen(stroke(kPgm, 3.5));
                                        p.drawLine(QPointF(34, 6), QPointF(44, 16));
                                        p.drawLine(QPointF(44, 6), QPointF(34, 16));
                                    }};
    // Loading: twelve dots round a ring, the bright head turning clockwise.
    Image loading;
    loading.size = QSize(24, 24);
    loading.frames = 12;
    loading.frameDelayMs = 80;
    loading.drawFrame = [](QPainter& p, QSizeF s, int frame) {
        unit(p, s);
        p.setPen(Qt::NoPen);
        for (int i = 0; i < 12; ++i) {
            // Age 0 is the head, 11 the oldest tail dot.
            int const age = (frame - i + 12) % 12;
            QColor c = age == 0 ? kAccent : age < 4 ? kAccent.lighter(100 + 15 * age) : kInk;
            c.setAlphaF(age < 4 ? 1.0 : qMax(0.25, 0.85 - 0.07 * age));
            qreal const angle = qDegreesToRadians(30.0 * i - 90.0);
            qreal const radius = age == 0 ? 5.2 : age < 4 ? 4.6 : 3.8;
            p.setBrush(c);
            p.drawEllipse(QPointF(24 + 16 * qCos(angle), 24 + 16 * qSin(angle)), radius, radius);
        }
    };
    m["icon_picture_loading.gif"] = loading;
}

} // namespace themeimages
