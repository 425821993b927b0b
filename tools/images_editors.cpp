// Images of the value editors: the step controls' buttons (plain and pressed) and
// the edit mark of the numeric rows.
#include "themeimages.h"

namespace themeimages {

namespace {

const QColor kOnAccent(16, 19, 23);

// A round step button with a chevron pointing left (-1) or right (+1).
Image stepButton(int direction, bool pressed)
{
    return {QSize(28, 28), [direction, pressed](QPainter& p, QSizeF s) {
                QRectF const disc(1.5, 1.5, s.width() - 3, s.height() - 3);
                if (pressed) {
                    p.setPen(Qt::NoPen);
                    p.setBrush(kAccent);
                    p.drawEllipse(disc);
                } else {
                    p.setPen(stroke(QColor(255, 255, 255, 90), 1.5));
                    p.setBrush(QColor(255, 255, 255, 18));
                    p.drawEllipse(disc);
                }
                p.setBrush(Qt::NoBrush);
                p.setPen(stroke(pressed ? kOnAccent : kInk, 2.6));
                qreal const cx = s.width() / 2 + direction * -1.0;
                qreal const cy = s.height() / 2;
                p.drawPolyline(QPolygonF({QPointF(cx - direction * 3.5, cy - 6.5), QPointF(cx + direction * 3.5, cy),
                                          QPointF(cx - direction * 3.5, cy + 6.5)}));
            }};
}

// A pencil over a short base line: the row's value can be edited.
Image editMark(QColor ink, QColor tip)
{
    return {QSize(32, 32), [ink, tip](QPainter& p, QSizeF) {
                p.setPen(stroke(ink, 2.2));
                QPainterPath body;
                body.moveTo(9, 21);
                body.lineTo(20, 10);
                body.lineTo(23, 13);
                body.lineTo(12, 24);
                body.lineTo(8, 25);
                body.closeSubpath();
                p.drawPath(body);
                p.drawLine(QPointF(18, 12), QPointF(21, 15));
                p.setPen(stroke(tip, 2.2));
                p.drawLine(QPointF(8, 28), QPointF(24, 28));
            }};
}

} // namespace

void addEditorImages(ImageTable& m)
{
    m["spin_left.png"] = stepButton(-1, false);
    m["spin_left_pressed.png"] = stepButton(-1, true);
    m["spin_right.png"] = stepButton(+1, false);
    m["spin_right_pressed.png"] = stepButton(+1, true);
    m["icon_list_edit.png"] = editMark(kInk, kAccent);
    m["icon_list_edit_disabled.png"] = editMark(QColor(255, 255, 255, 70), QColor(255, 255, 255, 70));
}

} // namespace themeimages
