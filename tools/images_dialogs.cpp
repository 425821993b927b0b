#include "themeimages.h"

#include <QtMath>

namespace themeimages {

namespace {

const QColor kInfo(64, 156, 255);
const QColor kWarn(255, 176, 32);
const QColor kOk(40, 200, 110);
const QColor kBad(235, 64, 64);

// Drawings are made on a 48-unit grid and scaled to the image size.
void unit(QPainter& p, QSizeF s) { p.scale(s.width() / 48.0, s.height() / 48.0); }

// A filled disc (or triangle for warnings) with a white sign on it.
enum class Sign { Info, Question, Exclamation, Tick, Cross };

void drawSign(QPainter& p, Sign sign, QColor ink)
{
    p.setPen(stroke(ink, 4.5));
    p.setBrush(Qt::NoBrush);
    QFont f;
    switch (sign) {
    case Sign::Info:
        p.drawLine(QPointF(24, 21), QPointF(24, 34));
        p.setPen(Qt::NoPen);
        p.setBrush(ink);
        p.drawEllipse(QPointF(24, 14), 2.8, 2.8);
        break;
    case Sign::Question: {
        QPainterPath path;
        path.moveTo(17.5, 18);
        path.cubicTo(17.5, 10, 30.5, 10, 30.5, 18);
        path.cubicTo(30.5, 23, 24, 23, 24, 29);
        p.drawPath(path);
        p.setPen(Qt::NoPen);
        p.setBrush(ink);
        p.drawEllipse(QPointF(24, 35.5), 2.8, 2.8);
        break;
    }
    case Sign::Exclamation:
        p.drawLine(QPointF(24, 18), QPointF(24, 29));
        p.setPen(Qt::NoPen);
        p.setBrush(ink);
        p.drawEllipse(QPointF(24, 35), 2.6, 2.6);
        break;
    case Sign::Tick:
        p.drawPolyline(QPolygonF({QPointF(14, 25), QPointF(21.5, 32.5), QPointF(34, 17)}));
        break;
    case Sign::Cross:
        p.drawLine(QPointF(16.5, 16.5), QPointF(31.5, 31.5));
        p.drawLine(QPointF(31.5, 16.5), QPointF(16.5, 31.5));
        break;
    }
}

Image badge(QSize size, QColor fill, Sign sign)
{
    return Image{size, [fill, sign](QPainter& p, QSizeF s) {
                     unit(p, s);
                     p.setPen(Qt::NoPen);
                     if (sign == Sign::Exclamation) {
                         QPainterPath triangle;
                         triangle.moveTo(24, 4);
                         triangle.lineTo(45, 42);
                         triangle.lineTo(3, 42);
                         triangle.closeSubpath();
                         p.setPen(QPen(fill, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
                         p.setBrush(fill);
                         p.drawPath(triangle);
                         p.translate(0, 2);
                     } else {
                         p.setBrush(fill);
                         p.drawEllipse(QRectF(3, 3, 42, 42));
                     }
                     drawSign(p, sign, Qt::white);
                 }};
}

// Large tile pictures: outlined, in the text colour, on a 48 grid.
Image tile(std::function<void(QPainter&)> draw)
{
    return Image{QSize(96, 96), [draw](QPainter& p, QSizeF s) {
                     unit(p, s);
                     p.setPen(stroke(kInk, 2.6));
                     p.setBrush(Qt::NoBrush);
                     draw(p);
                 }};
}

} // namespace

void addDialogImages(ImageTable& m)
{
    // Reminder dialog icons, by the "isReminderIcon" value.
    m["icon_reminder_information.png"] = badge(QSize(96, 96), kInfo, Sign::Info);
    m["icon_reminder_question.png"] = badge(QSize(96, 96), kAccent, Sign::Question);
    m["icon_reminder_warning.png"] = badge(QSize(96, 96), kWarn, Sign::Exclamation);
    m["icon_reminder_prosper.png"] = badge(QSize(96, 96), kOk, Sign::Tick);
    m["icon_reminder_error.png"] = badge(QSize(96, 96), kBad, Sign::Cross);

    // Toast icons, by the "image" value.
    m["toast_warning.png"] = badge(QSize(64, 64), kWarn, Sign::Exclamation);
    m["toast_critical.png"] = badge(QSize(64, 64), kBad, Sign::Cross);
    m["toast_info.png"] = badge(QSize(64, 64), kInfo, Sign::Info);
    m["toast_success.png"] = badge(QSize(64, 64), kOk, Sign::Tick);

    // Tiles of the tile dialog.
    m["icon_tile_save.png"] = tile([](QPainter& p) {
        p.drawRoundedRect(QRectF(9, 9, 30, 30), 3, 3);
        p.drawRect(QRectF(16, 9, 16, 9));
        p.drawRoundedRect(QRectF(15, 25, 18, 14), 1.5, 1.5);
    });
    m["icon_tile_load.png"] = tile([](QPainter& p) {
        p.drawPolyline(QPolygonF({QPointF(8, 30), QPointF(8, 39), QPointF(40, 39), QPointF(40, 30)}));
        p.drawLine(QPointF(24, 9), QPointF(24, 31));
        p.drawPolyline(QPolygonF({QPointF(16, 23), QPointF(24, 31), QPointF(32, 23)}));
    });
    m["icon_tile_delete.png"] = tile([](QPainter& p) {
        p.setPen(stroke(kBad, 2.6));
        p.drawLine(QPointF(10, 14), QPointF(38, 14));
        p.drawPolyline(QPolygonF({QPointF(19, 14), QPointF(19, 9), QPointF(29, 9), QPointF(29, 14)}));
        p.drawPolyline(QPolygonF({QPointF(13, 14), QPointF(15, 40), QPointF(33, 40), QPointF(35, 14)}));
        p.drawLine(QPointF(21, 20), QPointF(21, 34));
        p.drawLine(QPointF(27, 20), QPointF(27, 34));
    });
    m["icon_tile_rename.png"] = tile([](QPainter& p) {
        p.drawPolyline(QPolygonF({QPointF(32, 9), QPointF(39, 16), QPointF(18, 37), QPointF(9, 39), QPointF(11, 30),
                                  QPointF(32, 9)}));
        p.drawLine(QPointF(28, 13), QPointF(35, 20));
    });

    // The loading animation of the waiting and block dialogs: twelve bars round a
    // ring, the bright head turning clockwise.
    Image loading;
    loading.size = QSize(128, 128);
    loading.frames = 12;
    loading.frameDelayMs = 80;
    loading.drawFrame = [](QPainter& p, QSizeF s, int frame) {
        unit(p, s);
        for (int i = 0; i < 12; ++i) {
            int const age = (frame - i + 12) % 12; // 0 is the head
            QColor c = age == 0 ? kAccent : kInk;
            c.setAlphaF(age == 0 ? 1.0 : qMax(0.18, 0.8 - 0.07 * age));
            if (age > 0 && age < 3)
                c = kAccent.lighter(110 + 20 * age);
            qreal const angle = qDegreesToRadians(30.0 * i - 90.0);
            QPointF const dir(qCos(angle), qSin(angle));
            p.setPen(stroke(c, 3.6));
            p.drawLine(QPointF(24, 24) + dir * 10.5, QPointF(24, 24) + dir * 19);
        }
    };
    m["icon_loading.gif"] = loading;
}

} // namespace themeimages
