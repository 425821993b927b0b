#include "themeimages.h"

#include <QtMath>

namespace themeimages {

namespace {

// Counter-clockwise circular arrow: "back to the defaults".
void drawReset(QPainter& p, QSizeF s, QColor ink)
{
    qreal const k = s.width() / 48.0;
    p.save();
    p.scale(k, k);
    QPen pen = stroke(ink, 3.5);
    p.setPen(pen);
    QRectF const circle(10, 10, 28, 28);
    // Open at the top right; the arrow head sits at the upper end of the arc.
    int const start = 60;  // degrees, Qt counts counter-clockwise from 3 o'clock
    int const span = 285;
    p.drawArc(circle, start * 16, span * 16);
    // Arrow head at the arc's start (60°), pointing along the clockwise direction
    // of travel reversed, i.e. into the gap: a filled triangle.
    qreal const a = qDegreesToRadians(qreal(start));
    QPointF const c = circle.center();
    qreal const r = circle.width() / 2;
    QPointF const tip(c.x() + r * qCos(a), c.y() - r * qSin(a));
    // Tangent for counter-clockwise travel at angle a, reversed (head points clockwise).
    QPointF const dir(qSin(a), qCos(a));
    QPointF const normal(-dir.y(), dir.x());
    QPolygonF head;
    head << tip + dir * 7 << tip - normal * 6.5 - dir * 1 << tip + normal * 6.5 - dir * 1;
    p.setPen(Qt::NoPen);
    p.setBrush(ink);
    p.drawPolygon(head);
    p.restore();
}

// A check mark: "take the settings over".
void drawApply(QPainter& p, QSizeF s, QColor ink)
{
    qreal const k = s.width() / 48.0;
    p.save();
    p.scale(k, k);
    p.setPen(stroke(ink, 4.5));
    p.drawPolyline(QPolygonF({QPointF(10, 25), QPointF(20, 35), QPointF(38, 14)}));
    p.restore();
}

Image icon(void (*draw)(QPainter&, QSizeF, QColor), QColor ink)
{
    return Image{QSize(48, 48), [draw, ink](QPainter& p, QSizeF s) { draw(p, s, ink); }};
}

} // namespace

void addBarImages(ImageTable& m)
{
    // Reset/apply buttons: normal, focused (dark on the accent fill) and disabled.
    QColor const onAccent(16, 19, 23);
    m["icon_reset.png"] = icon(drawReset, kInk);
    m["icon_reset_focus.png"] = icon(drawReset, onAccent);
    m["icon_reset_disabled.png"] = icon(drawReset, QColor(255, 255, 255, 70));
    m["icon_apply.png"] = icon(drawApply, kInk);
    m["icon_apply_focus.png"] = icon(drawApply, onAccent);
    m["icon_apply_disabled.png"] = icon(drawApply, QColor(255, 255, 255, 70));
}

} // namespace themeimages
