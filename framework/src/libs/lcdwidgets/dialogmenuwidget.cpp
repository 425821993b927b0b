#include "dialogmenuwidget.h"
#include "sheet_p.h"
#include "inputcheck_p.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {

constexpr char kBadIndex[] = "the index is bigger than _itemNameList!";
// Largest pixel size the menu's text accepts.
constexpr int kMaxFontSize = 512;

} // namespace

// ---------------------------------------------------------------------------
// ListWidgetDelegate

ListWidgetDelegate::ListWidgetDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

void ListWidgetDelegate::setFontPixelSize(int size)
{
    if (size < 1 || size > kMaxFontSize) {
        qDebug() << "[ListWidgetDelegate] font size out of range:" << size;
        return;
    }
    m_fontSize = size;
}

void ListWidgetDelegate::setSelectedColor(QColor color)
{
    if (color.isValid())
        m_selectedColor = color;
}

void ListWidgetDelegate::setNormalColor(QColor color)
{
    if (color.isValid())
        m_normalColor = color;
}

void ListWidgetDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    QStyleOptionViewItem opt(option);
    initStyleOption(&opt, index);
    opt.font.setPixelSize(m_fontSize);
    bool const selected = opt.state & QStyle::State_Selected;
    m_textColor = selected ? m_selectedColor : m_normalColor;
    opt.font.setWeight(selected ? 75 : 50);
    opt.fontMetrics = QFontMetrics(opt.font);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        opt.palette.setColor(group, QPalette::Text, m_textColor);
        // Styles draw a selected row's text in HighlightedText.
        opt.palette.setColor(group, QPalette::HighlightedText, m_textColor);
    }
    QWidget const* widget = opt.widget;
    QStyle const* style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
}

// ---------------------------------------------------------------------------
// DialogMenuWidget

struct LCDWIDGETS_HIDDEN DialogMenuWidget::Impl
{
    int currentIndex = 0;
    int slidWindowCount = 7;
    int selectedIndex = 0;
    QStringList itemNameList;
    QSet<int> hiddenRows;
    QVector<Entry> kvItemVec;
    QLabel* title = nullptr;
    QWidget* topSpacer = nullptr;
    QWidget* bottomSpacer = nullptr;
    QListWidget* list = nullptr;
    ListWidgetDelegate* delegate = nullptr;
    bool keyBackPressed = false;
    int menuHeight = 0;
    bool itemsDirty = true; // rows rebuilt: the list must lay them out before scrolling
};

DialogMenuWidget::DialogMenuWidget(QWidget* parent) : QDialog(parent), d(std::make_unique<Impl>())
{
    createWidgets();
    connect(d->list, &QListWidget::itemChanged, this, [this](QListWidgetItem*) {
        emit signalCurrentChanged(getCurrentText());
        emit signalCurrentIndexChanged(getCurrentIndex());
    });
}

DialogMenuWidget::~DialogMenuWidget() = default;

void DialogMenuWidget::createWidgets()
{
    setModal(true);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::All, QPalette::Window, QColor(61, 61, 61, 230));
    setPalette(pal);
    setWindowOpacity(0.9);

    d->title = new QLabel(this);
    d->title->setAlignment(Qt::AlignCenter);
    d->title->setProperty("isDialogMenuTitle", true);

    d->topSpacer = new QWidget(this);
    d->topSpacer->setFixedHeight(0);
    d->bottomSpacer = new QWidget(this);
    d->bottomSpacer->setFixedHeight(0);

    d->list = new QListWidget(this);
    d->list->setFrameShape(QFrame::NoFrame);
    d->list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    d->list->setProperty("isDialogMenuWidget", true);
    d->list->setFlow(QListView::TopToBottom);
    d->list->setSelectionMode(QAbstractItemView::SingleSelection);
    d->delegate = new ListWidgetDelegate(d->list);
    d->list->setItemDelegate(d->delegate);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(0);
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));
    layout->addWidget(d->title, 0, Qt::AlignVCenter);
    layout->addWidget(d->topSpacer);
    layout->addWidget(d->list, 0, Qt::AlignVCenter);
    layout->addWidget(d->bottomSpacer);
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));

    d->list->installEventFilter(this);
}

int DialogMenuWidget::rowHeight() const { return d->menuHeight / (d->slidWindowCount + 1); }

QSize DialogMenuWidget::rowSizeHint(int width) const
{
    int const h = rowHeight();
    // Without a menu height the rows keep their natural height.
    if (width < 0 || h <= 0)
        return QSize();
    return QSize(width, h);
}

void DialogMenuWidget::addItems()
{
    QStringList const names = d->itemNameList;
    d->list->clear();
    int const h = rowHeight();
    if (h > 0)
        d->title->setFixedHeight(h);
    QSize const hint = rowSizeHint(d->list->width());
    for (QString const& text : names) {
        auto* item = new QListWidgetItem(text);
        for (Entry const& entry : qAsConst(d->kvItemVec)) {
            if (entry.first != text)
                continue;
            for (auto it = entry.second.cbegin(); it != entry.second.cend(); ++it)
                item->setData(it.key(), it.value());
            break;
        }
        item->setData(Qt::SizeHintRole, hint);
        item->setData(Qt::TextAlignmentRole, int(Qt::AlignCenter));
        d->list->addItem(item);
    }
    d->itemsDirty = true;
}

void DialogMenuWidget::setListItems(QVector<Entry> const& items)
{
    d->kvItemVec = items;
    d->itemNameList.clear();
    d->itemNameList.reserve(items.size());
    for (Entry const& entry : items)
        d->itemNameList << entry.first;
    addItems();
    updateCurrentShowItem(true);
}

void DialogMenuWidget::updateItemDatas(QVector<Entry> const& items)
{
    d->kvItemVec = items;
    addItems();
    updateCurrentShowItem(true);
}

void DialogMenuWidget::updateCurrentShowItem(bool silent)
{
    QListWidget* list = d->list;
    int const count = list->count();
    for (int row : qAsConst(d->hiddenRows)) {
        if (row < count)
            list->setRowHidden(row, true);
    }

    // A cursor on a hidden row moves to the nearest row that can be seen.
    if (d->currentIndex >= 0 && d->currentIndex < count && list->isRowHidden(d->currentIndex)) {
        int const from = d->currentIndex;
        curRowItemDown();
        if (list->isRowHidden(d->currentIndex))
            curRowItemUp();
        qDebug() << "[DialogMenuWidget] row" << from << "is hidden, cursor on" << d->currentIndex;
    }

    QListWidgetItem* item = list->item(d->currentIndex);
    if (!item) {
        if (count == 0)
            return;
        item = list->item(0);
        d->currentIndex = 0;
    } else if (!silent) {
        emit signalSelectedChanged(item->text());
        emit signalSelectedIndexChanged(d->currentIndex);
    }

    item->setSelected(true);
    list->setCurrentItem(item);
    int const r = list->row(item);
    int const W = d->slidWindowCount;
    int const h = list->sizeHintForRow(0);

    int const topRows = qMax(0, W / 2 - r);
    int const bottomRows = qMax(0, r + 1 - count + W / 2);
    int const topHeight = topRows * qMax(0, h);
    int const bottomHeight = bottomRows * qMax(0, h);
    bool relayout = d->itemsDirty;
    if (d->topSpacer->minimumHeight() != topHeight) {
        d->topSpacer->setFixedHeight(topHeight);
        relayout = true;
    }
    if (d->bottomSpacer->minimumHeight() != bottomHeight) {
        d->bottomSpacer->setFixedHeight(bottomHeight);
        relayout = true;
    }
    if (h <= 0)
        return;

    int const listRows = W - topHeight / h - bottomHeight / h;
    int const listHeight = qMax(0, listRows) * h;
    if (list->minimumHeight() != listHeight || list->maximumHeight() != listHeight) {
        list->setFixedHeight(listHeight);
        relayout = true;
    }
    if (relayout && isVisible()) {
        // The scroll range must match the new height and rows before it is used.
        if (layout())
            layout()->activate();
        list->doItemsLayout();
        d->itemsDirty = false;
    }
    list->verticalScrollBar()->setValue(qMax(0, r - listRows / 2) * h);
}

void DialogMenuWidget::curRowItemDown()
{
    int const n = d->list->count();
    bool moved = false;
    while (d->currentIndex + 1 < n) {
        ++d->currentIndex;
        if (!d->list->isRowHidden(d->currentIndex)) {
            moved = true;
            break;
        }
    }
    if (!moved) {
        // At the end: back over the hidden rows to the last one that is shown.
        while (d->currentIndex > 0 && d->list->isRowHidden(d->currentIndex))
            --d->currentIndex;
    }
}

void DialogMenuWidget::curRowItemUp()
{
    int const n = d->list->count();
    bool moved = false;
    while (d->currentIndex - 1 >= 0) {
        --d->currentIndex;
        if (!d->list->isRowHidden(d->currentIndex)) {
            moved = true;
            break;
        }
    }
    if (!moved) {
        while (d->currentIndex + 1 < n && d->list->isRowHidden(d->currentIndex))
            ++d->currentIndex;
    }
}

bool DialogMenuWidget::setCurrentIndex(int i)
{
    if (i < 0 || i >= d->itemNameList.size()) {
        qDebug(kBadIndex);
        return false;
    }
    if (isRowHidden(i)) {
        qDebug() << "[DialogMenuWidget] setCurrentIndex: row" << i << "is hidden";
        return false;
    }
    d->currentIndex = d->selectedIndex = i;
    updateCurrentShowItem(false);
    emit signalCurrentChanged(d->itemNameList.at(i));
    emit signalCurrentIndexChanged(i);
    return true;
}

void DialogMenuWidget::updateCurrentIndex(int i, bool silent)
{
    if (i >= d->itemNameList.size()) {
        qDebug(kBadIndex);
        return;
    }
    if (i >= 0 && isRowHidden(i)) {
        qDebug() << "[DialogMenuWidget] updateCurrentIndex: row" << i << "is hidden";
        return;
    }
    d->currentIndex = d->selectedIndex = i;
    updateCurrentShowItem(silent);
}

int DialogMenuWidget::getCurrentIndex() const { return d->currentIndex; }

int DialogMenuWidget::selectedIndex() const { return d->selectedIndex; }

QString DialogMenuWidget::getCurrentText() const { return d->itemNameList.value(d->currentIndex); }

QVariant DialogMenuWidget::getCurrentData(int role) const { return getItemData(d->currentIndex, role); }

QVariant DialogMenuWidget::getItemData(int index, int role) const
{
    QListWidgetItem const* item = d->list->item(index);
    return item ? item->data(role) : QVariant();
}

QString DialogMenuWidget::getItemText(int index) const { return d->itemNameList.value(index); }

void DialogMenuWidget::setItemData(int index, QVariant value, int role) const
{
    QListWidgetItem* item = d->list->item(index);
    if (!item || index >= d->itemNameList.size()) {
        qDebug(kBadIndex);
        return;
    }
    // Kept with the entry too, so that a rebuild keeps it.
    QString const& text = d->itemNameList.at(index);
    for (Entry& entry : d->kvItemVec) {
        if (entry.first == text) {
            entry.second.insert(role, value);
            break;
        }
    }
    // The entry's data is not a choice: no current-signals (as for a new text).
    QSignalBlocker block(d->list);
    item->setData(role, value);
}

void DialogMenuWidget::setItemText(int index, QString const& text)
{
    if (index < 0 || index >= d->itemNameList.size()) {
        qDebug(kBadIndex);
        return;
    }
    QString const old = d->itemNameList.at(index);
    d->itemNameList[index] = text;
    for (Entry& entry : d->kvItemVec) {
        if (entry.first == old) {
            entry.first = text;
            break;
        }
    }
    if (QListWidgetItem* item = d->list->item(index)) {
        QSignalBlocker block(d->list);
        item->setText(text);
    }
}

void DialogMenuWidget::setCurrentText(QString text)
{
    int const i = findText(text);
    if (i < 0) {
        qDebug() << "[DialogMenuWidget] setCurrentText: no entry" << text;
        return;
    }
    setCurrentIndex(i);
}

void DialogMenuWidget::setCurrentData(QVariant data)
{
    int const i = findData(data);
    if (i < 0) {
        qDebug() << "[DialogMenuWidget] setCurrentData: no entry holds" << data;
        return;
    }
    setCurrentIndex(i);
}

int DialogMenuWidget::findText(QString const& text) const { return d->itemNameList.indexOf(text); }

int DialogMenuWidget::findData(QVariant const& data, int role) const
{
    for (int i = 0; i < d->list->count(); ++i) {
        if (d->list->item(i)->data(role) == data)
            return i;
    }
    return -1;
}

int DialogMenuWidget::count() const { return d->list->count(); }

int DialogMenuWidget::visibleCount() const
{
    int n = 0;
    for (int i = 0; i < d->list->count(); ++i)
        n += d->hiddenRows.contains(i) ? 0 : 1;
    return n;
}

void DialogMenuWidget::setRowHidden(int row, bool hide)
{
    if (row < 0) {
        qDebug() << "[DialogMenuWidget] setRowHidden: negative row" << row;
        return;
    }
    if (hide)
        d->hiddenRows.insert(row);
    else
        d->hiddenRows.remove(row);
    if (row < d->list->count())
        d->list->setRowHidden(row, hide);
}

bool DialogMenuWidget::isRowHidden(int row) const { return d->hiddenRows.contains(row); }

void DialogMenuWidget::clear()
{
    d->itemNameList.clear();
    d->kvItemVec.clear();
    d->hiddenRows.clear();
    d->list->clear();
    d->currentIndex = d->selectedIndex = 0;
    d->topSpacer->setFixedHeight(0);
    d->bottomSpacer->setFixedHeight(0);
}

void DialogMenuWidget::setDialogMenuTitle(QString title) { d->title->setText(title); }

QString DialogMenuWidget::dialogMenuTitle() const { return d->title->text(); }

void DialogMenuWidget::setMenuWidgetHeight(int height)
{
    if (height < 0) {
        qDebug() << "[DialogMenuWidget] setMenuWidgetHeight: negative height" << height;
        return;
    }
    if (!windowLengthOk("DialogMenuWidget", "setMenuWidgetHeight", height))
        return;
    d->menuHeight = height;
}

int DialogMenuWidget::menuWidgetHeight() const { return d->menuHeight; }

void DialogMenuWidget::updateItemHeight(int menuHeight, int width)
{
    if (menuHeight < 0) {
        qDebug() << "[DialogMenuWidget] updateItemHeight: negative height" << menuHeight;
        return;
    }
    if (!windowLengthOk("DialogMenuWidget", "updateItemHeight", menuHeight)
        || !windowLengthOk("DialogMenuWidget", "updateItemHeight", qMax(0, width)))
        return;
    int const h = menuHeight / (d->slidWindowCount + 1);
    if (h > 0)
        d->title->setFixedHeight(h);
    // The rows span the list, inside the dialog's margins.
    int const listWidth = width < 0 ? width : qMax(0, width - 32);
    QSize const hint = (listWidth < 0 || h <= 0) ? QSize() : QSize(listWidth, h);
    QSignalBlocker block(d->list);
    for (int i = 0; i < d->list->count(); ++i)
        d->list->item(i)->setData(Qt::SizeHintRole, hint);
    d->itemsDirty = true;
}

void DialogMenuWidget::setFlow(QListView::Flow flow) { d->list->setFlow(flow); }

void DialogMenuWidget::setContentFontSize(int size)
{
    if (size < 1 || size > kMaxFontSize) {
        qDebug() << "[DialogMenuWidget] setContentFontSize: size out of range:" << size;
        return;
    }
    d->delegate->setFontPixelSize(size);
    QString const sheet = QStringLiteral("font-size:%1px;").arg(size);
    applyStyleSheet(d->title, sheet);
    d->list->viewport()->update();
}

void DialogMenuWidget::setItemTextColor(QColor color)
{
    d->delegate->setNormalColor(color);
    d->list->viewport()->update();
}

void DialogMenuWidget::setItemTextFont(QFont font)
{
    if (font.pixelSize() > 0)
        d->delegate->setFontPixelSize(font.pixelSize());
    d->list->viewport()->update();
}

bool DialogMenuWidget::isKeyBackPressed() const { return d->keyBackPressed; }

int DialogMenuWidget::slidWindowCount() const { return d->slidWindowCount; }

QListWidget* DialogMenuWidget::listWidget() const { return d->list; }
QLabel* DialogMenuWidget::titleLabel() const { return d->title; }
QWidget* DialogMenuWidget::topSpacer() const { return d->topSpacer; }
QWidget* DialogMenuWidget::bottomSpacer() const { return d->bottomSpacer; }
ListWidgetDelegate* DialogMenuWidget::delegate() const { return d->delegate; }

void DialogMenuWidget::focusInEvent(QFocusEvent* event)
{
    QDialog::focusInEvent(event);
    d->list->setFocus(Qt::OtherFocusReason);
}

void DialogMenuWidget::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    d->itemsDirty = true;
    updateCurrentShowItem(false);
}

bool DialogMenuWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->list || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);

    d->keyBackPressed = false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        curRowItemUp();
        updateCurrentShowItem(false);
        return true;
    case Qt::Key_Down:
        curRowItemDown();
        updateCurrentShowItem(false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (QListWidgetItem* item = d->list->currentItem()) {
            QVariant const value = item->data(Qt::UserRole);
            QString const text = item->text();
            d->selectedIndex = d->currentIndex;
            emit signalValueChanged(value);
            emit signalCurrentChanged(text);
            emit signalCurrentIndexChanged(d->currentIndex);
            emit signalEditFinished();
        }
        return true;
    case Qt::Key_Escape:
        d->currentIndex = d->selectedIndex;
        d->keyBackPressed = true;
        d->list->blockSignals(true);
        updateCurrentIndex(d->selectedIndex, true);
        d->list->blockSignals(false);
        emit signalEditFinished();
        return false; // the dialog's own Escape closes it
    default:
        return QDialog::eventFilter(watched, event);
    }
}

} // namespace Widget
} // namespace LCD
