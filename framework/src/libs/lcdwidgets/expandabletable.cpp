#include "expandabletable.h"
#include "inputcheck_p.h"

#include "wraplistdelegate.h"

#include <QDebug>
#include <QHeaderView>
#include <QKeyEvent>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN ExpandableTable::Impl
{
    ExpandableTable* q;
    WrapListDelegate* wrap = nullptr;
    int keyWidth = -1;

    explicit Impl(ExpandableTable* owner) : q(owner) {}

    QTreeWidgetItem* group(char const* function, int g) const
    {
        if (g < 0 || g >= q->topLevelItemCount()) {
            qDebug().noquote()
                << QStringLiteral("[ExpandableTable] %1: no group %2 (count %3)").arg(function).arg(g).arg(q->topLevelItemCount());
            return nullptr;
        }
        return q->topLevelItem(g);
    }
    QTreeWidgetItem* row(char const* function, int g, int r) const
    {
        QTreeWidgetItem* gi = group(function, g);
        if (!gi)
            return nullptr;
        if (r < 0 || r >= gi->childCount()) {
            qDebug().noquote() << QStringLiteral("[ExpandableTable] %1: no row %2 in group %3 (count %4)")
                                      .arg(function)
                                      .arg(r)
                                      .arg(g)
                                      .arg(gi->childCount());
            return nullptr;
        }
        return gi->child(r);
    }
    void fitColumns()
    {
        int const w = q->viewport()->width();
        int const key = keyWidth > 0 ? qMin(keyWidth, w) : w * 2 / 5;
        q->setColumnWidth(0, key);
        q->setColumnWidth(1, qMax(0, w - key));
    }
};

ExpandableTable::ExpandableTable(QWidget* parent) : QTreeWidget(parent), d(std::make_unique<Impl>(this))
{
    setProperty("isExpandableTable", true);
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(true);
    setUniformRowHeights(false);
    setWordWrap(true);
    setExpandsOnDoubleClick(true);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setStretchLastSection(false);
    d->wrap = new WrapListDelegate(this);
    d->wrap->setTextMargins(4, 2);
    setItemDelegateForColumn(1, d->wrap);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem*) {
        emit signalCurrentChanged(currentGroup(), currentRowInGroup());
    });
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* it) { emit signalGroupExpanded(indexOfTopLevelItem(it), true); });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem* it) { emit signalGroupExpanded(indexOfTopLevelItem(it), false); });
}

ExpandableTable::~ExpandableTable() = default;

int ExpandableTable::addGroup(QString const& title, bool expanded)
{
    auto* it = new QTreeWidgetItem(this);
    it->setText(0, title);
    it->setFirstColumnSpanned(true);
    QFont f = font();
    f.setBold(true);
    it->setFont(0, f);
    it->setExpanded(expanded);
    return topLevelItemCount() - 1;
}

int ExpandableTable::addRow(int group, QString const& key, QString const& value)
{
    QTreeWidgetItem* g = d->group("addRow", group);
    if (!g)
        return -1;
    auto* it = new QTreeWidgetItem(g);
    it->setText(0, key);
    it->setText(1, value);
    return g->childCount() - 1;
}

void ExpandableTable::removeGroup(int group)
{
    if (QTreeWidgetItem* g = d->group("removeGroup", group))
        delete g;
}

void ExpandableTable::clearGroups() { QTreeWidget::clear(); }

int ExpandableTable::groupCount() const { return topLevelItemCount(); }

int ExpandableTable::rowCount(int group) const
{
    QTreeWidgetItem* g = d->group("rowCount", group);
    return g ? g->childCount() : -1;
}

QString ExpandableTable::groupTitle(int group) const
{
    QTreeWidgetItem* g = d->group("groupTitle", group);
    return g ? g->text(0) : QString();
}

void ExpandableTable::setGroupTitle(int group, QString const& title)
{
    if (QTreeWidgetItem* g = d->group("setGroupTitle", group))
        g->setText(0, title);
}

QString ExpandableTable::key(int group, int row) const
{
    QTreeWidgetItem* r = d->row("key", group, row);
    return r ? r->text(0) : QString();
}

QString ExpandableTable::value(int group, int row) const
{
    QTreeWidgetItem* r = d->row("value", group, row);
    return r ? r->text(1) : QString();
}

void ExpandableTable::setValue(int group, int row, QString const& value)
{
    if (QTreeWidgetItem* r = d->row("setValue", group, row))
        r->setText(1, value);
}

void ExpandableTable::setGroupExpanded(int group, bool expanded)
{
    if (QTreeWidgetItem* g = d->group("setGroupExpanded", group))
        g->setExpanded(expanded);
}

bool ExpandableTable::isGroupExpanded(int group) const
{
    QTreeWidgetItem* g = d->group("isGroupExpanded", group);
    return g && g->isExpanded();
}

int ExpandableTable::currentGroup() const
{
    QTreeWidgetItem* it = currentItem();
    if (!it)
        return -1;
    return indexOfTopLevelItem(it->parent() ? it->parent() : it);
}

int ExpandableTable::currentRowInGroup() const
{
    QTreeWidgetItem* it = currentItem();
    return it && it->parent() ? it->parent()->indexOfChild(it) : -1;
}

void ExpandableTable::setCurrent(int group, int row)
{
    QTreeWidgetItem* it = row < 0 ? d->group("setCurrent", group) : d->row("setCurrent", group, row);
    if (!it)
        return;
    if (it->parent() && !it->parent()->isExpanded())
        it->parent()->setExpanded(true);
    setCurrentItem(it);
    scrollToItem(it);
}

void ExpandableTable::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug() << "[ExpandableTable] setContentFontSize: font size must be positive, got" << size;
        return;
    }
    if (!fontSizeOk("ExpandableTable", "setContentFontSize", size))
        return;
    QFont f = font();
    f.setPixelSize(size);
    setFont(f);
    f.setBold(true);
    for (int i = 0; i < topLevelItemCount(); ++i)
        topLevelItem(i)->setFont(0, f);
    setIndentation(size);
    scheduleDelayedItemsLayout();
}

void ExpandableTable::setKeyColumnWidth(int width)
{
    d->keyWidth = qMax(-1, width);
    d->fitColumns();
}

void ExpandableTable::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        event->accept();
        QTreeWidgetItem* cur = currentItem();
        QTreeWidgetItem* next = nullptr;
        if (!cur)
            next = topLevelItem(0);
        else
            next = event->key() == Qt::Key_Up ? itemAbove(cur) : itemBelow(cur);
        if (next) {
            setCurrentItem(next);
            scrollToItem(next);
        }
        return;
    }
    case Qt::Key_Enter:
    case Qt::Key_Return: {
        event->accept();
        QTreeWidgetItem* cur = currentItem();
        if (!cur)
            return;
        if (!cur->parent())
            cur->setExpanded(!cur->isExpanded());
        else
            emit signalRowActivated(currentGroup(), currentRowInGroup());
        return;
    }
    case Qt::Key_Escape:
        event->accept();
        emit sigCloseEdit();
        return;
    default:
        QTreeWidget::keyPressEvent(event);
    }
}

void ExpandableTable::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    d->fitColumns();
}

} // namespace Widget
} // namespace LCD
