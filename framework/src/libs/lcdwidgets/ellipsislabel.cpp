#include "ellipsislabel.h"

EllipsisLabel::EllipsisLabel(QWidget* parent) : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void EllipsisLabel::updateElidedText(int maxWidth)
{
    QFontMetrics const fm(font());
    QMargins const m = contentsMargins();
    int w = fm.horizontalAdvance(text()) + m.left() + m.right();
    if (maxWidth > 0)
        w = qMin(w, maxWidth);
    setFixedWidth(w);
    if (w == maxWidth)
        setText(fm.elidedText(text(), Qt::ElideRight, w - 10));
}
