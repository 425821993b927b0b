#include "displaytext_p.h"

#include "rolllabel.h"

#include <QFontMetrics>
#include <QTimer>

namespace LCD {
namespace Widget {

QString elideWithDots(QFontMetrics const& metrics, QString const& text, int width)
{
    if (width < 1)
        return text;
    QString const elided = metrics.elidedText(text, Qt::ElideRight, width);
    if (elided == text)
        return text;
    return QStringLiteral("%1...").arg(elided.left(qMax(0, elided.size() - 3)));
}

int itemIconSide(int itemHeight)
{
    if (itemHeight < 36)
        return 0;
    return (itemHeight / 36) * 24;
}

QString labelFontSheet(int pixelSize) { return QStringLiteral("QLabel{font-size: %1px; }").arg(pixelSize); }

QString spacedLabelFontSheet(int pixelSize) { return QStringLiteral("QLabel { font-size: %1px; }").arg(pixelSize); }

void showPlainText(RollLabel* label, QString const& text)
{
    if (!label)
        return;
    // A zero width makes the label take the text as it is (and remember it).
    label->setCalTextLabel(text, 0, false);
    label->rollTimer()->stop();
    label->setMaximumWidth(QWIDGETSIZE_MAX);
}

void showFittedText(RollLabel* label, QString const& text, int itemWidth, bool roll)
{
    if (!label)
        return;
    // Two thirds of the width are taken in int arithmetic: keep it far from the limit.
    label->setCalTextLabel(text, qBound(-1, itemWidth, QWIDGETSIZE_MAX), roll);
    if (roll && label->storedWidth() > 0)
        label->setMaximumWidth(label->storedWidth());
    else
        label->setMaximumWidth(QWIDGETSIZE_MAX);
}

} // namespace Widget
} // namespace LCD
