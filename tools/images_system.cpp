#include "themeimages.h"

namespace themeimages {

namespace {

// A padlock on a 48-unit grid: the shackle, the body and the keyhole.
void padlock(QPainter& p, QSizeF s, QColor body, QColor ink)
{
    p.scale(s.width() / 48.0, s.height() / 48.0);
    p.setPen(stroke(body, 5));
    p.setBrush(Qt::NoBrush);
    QPainterPath shackle;
    shackle.moveTo(15, 22);
    shackle.lineTo(15, 15);
    shackle.arcTo(QRectF(15, 6, 18, 18), 180, -180);
    shackle.lineTo(33, 22);
    p.drawPath(shackle);
    p.setPen(Qt::NoPen);
    p.setBrush(body);
    p.drawRoundedRect(QRectF(9, 21, 30, 22), 4, 4);
    p.setBrush(ink);
    p.drawEllipse(QPointF(24, 30), 3.2, 3.2);
    p.drawRect(QRectF(22.6, 30, 2.8, 7));
}

} // namespace

void addSystemImages(ImageTable& m)
{
    // The lock reminder's icon ("isLockReminderIcon") and the lock indicator's
    // ("isLockPanelIcon").
    m["icon_lock.png"] = {QSize(96, 96), [](QPainter& p, QSizeF s) { padlock(p, s, kAccent, QColor(27, 32, 39)); }};
    m["icon_lock_small.png"] = {QSize(32, 32),
                                [](QPainter& p, QSizeF s) { padlock(p, s, kAccent, QColor(16, 19, 23)); }};
}

} // namespace themeimages
