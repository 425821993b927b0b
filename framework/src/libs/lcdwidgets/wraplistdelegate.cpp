#include "wraplistdelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDebug>
#include <QPainter>
#include <QTextLayout>
#include <QTreeView>

namespace {

// Breaks `text` into lines of at most `width` pixels; at most `maxLines` (0: any).
// Returns the lines' texts, the last one elided when lines were cut off.
QStringList wrapLines(QString const& text, QFont const& font, int width, int maxLines)
{
    QStringList lines;
    if (text.isEmpty() || width <= 0) {
        lines.append(text);
        return lines;
    }
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (;;) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        if (maxLines > 0 && lines.size() == maxLines - 1) {
            QString const rest = text.mid(line.textStart()).simplified();
            lines.append(QFontMetrics(font).elidedText(rest, Qt::ElideRight, width));
            break;
        }
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    if (lines.isEmpty())
        lines.append(QString());
    return lines;
}

} // namespace

WrapListDelegate::WrapListDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

WrapListDelegate::~WrapListDelegate() = default;

void WrapListDelegate::setTextMargins(int horizontal, int vertical)
{
    if (horizontal < 0 || vertical < 0) {
        qDebug() << "[WrapListDelegate] setTextMargins: negative margins";
        return;
    }
    m_hMargin = qMin(horizontal, 10000);
    m_vMargin = qMin(vertical, 10000);
}

void WrapListDelegate::setMaximumLines(int lines)
{
    if (lines < 0) {
        qDebug() << "[WrapListDelegate] setMaximumLines: negative line count";
        return;
    }
    m_maxLines = lines;
}

int WrapListDelegate::lineCount(QString const& text, QFont const& font, int width) const
{
    return wrapLines(text, font, width, m_maxLines).size();
}

int WrapListDelegate::textWidth(QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    int width = option.rect.width();
    if (width <= 0) {
        if (auto* tree = qobject_cast<QTreeView const*>(option.widget)) {
            width = tree->columnWidth(index.column());
            if (index.column() == 0)
                for (QModelIndex p = index.parent(); p.isValid(); p = p.parent())
                    width -= tree->indentation();
        } else if (auto* view = qobject_cast<QAbstractItemView const*>(option.widget)) {
            width = view->viewport()->width();
        }
    }
    return width - 2 * m_hMargin;
}

QSize WrapListDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    int const width = textWidth(option, index);
    int const lines = wrapLines(opt.text, opt.font, width, m_maxLines).size();
    int const height = lines * QFontMetrics(opt.font).lineSpacing() + 2 * m_vMargin;
    return QSize(qMax(0, width + 2 * m_hMargin), height);
}

void WrapListDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    QString const text = opt.text;
    opt.text.clear();
    QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);

    QRect const area = opt.rect.adjusted(m_hMargin, m_vMargin, -m_hMargin, -m_vMargin);
    QStringList const lines = wrapLines(text, opt.font, area.width(), m_maxLines);
    QPalette::ColorGroup const group = (opt.state & QStyle::State_Enabled) ? QPalette::Normal : QPalette::Disabled;
    painter->save();
    painter->setFont(opt.font);
    painter->setPen(opt.palette.color(group, (opt.state & QStyle::State_Selected) ? QPalette::HighlightedText
                                                                                  : QPalette::Text));
    painter->setClipRect(opt.rect);
    int const lineHeight = QFontMetrics(opt.font).lineSpacing();
    int y = area.top();
    for (QString const& line : lines) {
        painter->drawText(QRect(area.left(), y, area.width(), lineHeight),
                          int(opt.displayAlignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter, line);
        y += lineHeight;
    }
    painter->restore();
}
