#include "themeimages.h"

namespace themeimages {

namespace {

// A down chevron: the drop-down's arrow.
void drawChevronDown(QPainter& p, QSizeF s, QColor ink)
{
    qreal const k = s.width() / 24.0;
    p.save();
    p.scale(k, k);
    p.setPen(stroke(ink, 2.6));
    p.drawPolyline(QPolygonF({QPointF(6, 9.5), QPointF(12, 15.5), QPointF(18, 9.5)}));
    p.restore();
}

} // namespace

void addListImages(ImageTable& m)
{
    m[QStringLiteral("icon_combo_arrow.png")] = Image{QSize(24, 24), [](QPainter& p, QSizeF s) { drawChevronDown(p, s, kInk); }};
    m[QStringLiteral("icon_combo_arrow_focus.png")] =
        Image{QSize(24, 24), [](QPainter& p, QSizeF s) { drawChevronDown(p, s, kAccent); }};
    m[QStringLiteral("icon_combo_arrow_disabled.png")] =
        Image{QSize(24, 24), [](QPainter& p, QSizeF s) { drawChevronDown(p, s, QColor(90, 94, 100)); }};
}

} // namespace themeimages
