// Images of the device pages and the number pad: the pad's back-space and fold keys,
// the switcher list's delete button and bound mark.
#include "themeimages.h"

namespace themeimages {

namespace {

// A back-space key: a left-pointing tag with a cross.
Image backspace(QColor ink)
{
    return {QSize(40, 28), [ink](QPainter& p, QSizeF s) {
                qreal const h = s.height() - 4;
                QPainterPath tag;
                tag.moveTo(2, s.height() / 2);
                tag.lineTo(12, 2);
                tag.lineTo(s.width() - 2, 2);
                tag.lineTo(s.width() - 2, 2 + h);
                tag.lineTo(12, 2 + h);
                tag.closeSubpath();
                p.setPen(stroke(ink, 2.2));
                p.drawPath(tag);
                qreal const cx = s.width() / 2 + 5, cy = s.height() / 2;
                p.drawLine(QPointF(cx - 5, cy - 5), QPointF(cx + 5, cy + 5));
                p.drawLine(QPointF(cx - 5, cy + 5), QPointF(cx + 5, cy - 5));
            }};
}

// The pad's fold key: a triangle pointing right (the pad slides away to the right).
Image foldTriangle(QColor ink)
{
    return {QSize(16, 24), [ink](QPainter& p, QSizeF s) {
                p.setPen(Qt::NoPen);
                p.setBrush(ink);
                p.drawPolygon(QPolygonF({QPointF(3, 3), QPointF(s.width() - 3, s.height() / 2), QPointF(3, s.height() - 3)}));
            }};
}

// A dustbin.
Image bin(QColor ink)
{
    return {QSize(24, 24), [ink](QPainter& p, QSizeF) {
                p.setPen(stroke(ink, 1.8));
                p.drawLine(QPointF(4, 6.5), QPointF(20, 6.5));
                p.drawLine(QPointF(9.5, 6.5), QPointF(10, 3.5));
                p.drawLine(QPointF(10, 3.5), QPointF(14, 3.5));
                p.drawLine(QPointF(14, 3.5), QPointF(14.5, 6.5));
                QPainterPath body;
                body.moveTo(6, 6.5);
                body.lineTo(7.2, 20.5);
                body.lineTo(16.8, 20.5);
                body.lineTo(18, 6.5);
                p.drawPath(body);
                p.drawLine(QPointF(10, 10), QPointF(10.3, 17));
                p.drawLine(QPointF(14, 10), QPointF(13.7, 17));
            }};
}

// The bound mark: a tick in a filled green disc.
Image boundMark()
{
    return {QSize(24, 24), [](QPainter& p, QSizeF s) {
                p.setPen(Qt::NoPen);
                p.setBrush(kPvw);
                p.drawEllipse(QRectF(2, 2, s.width() - 4, s.height() - 4));
                p.setPen(stroke(QColor(16, 19, 23), 2.4));
                p.drawPolyline(QPolygonF({QPointF(7, 12.5), QPointF(10.5, 16), QPointF(17, 8.5)}));
            }};
}

} // namespace

void addDeviceImages(ImageTable& m)
{
    m["numpad_backspace.png"] = backspace(kInk);
    m["numpad_backspace_pressed.png"] = backspace(QColor(16, 19, 23));
    m["numpad_triangle.png"] = foldTriangle(kDim);
    m["numpad_triangle_pressed.png"] = foldTriangle(kAccent);
    m["switcher_delete.png"] = bin(kDim);
    m["switcher_delete_focus.png"] = bin(QColor(16, 19, 23));
    m["switcher_bound.png"] = boundMark();
}

} // namespace themeimages
