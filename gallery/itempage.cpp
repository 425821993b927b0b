#include "itempage.h"

#include <commonitemtype.h>
#include <stringcomboxbasetype.h>
#include <stylehelper.h>

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using LCD::Widget::CommonItemType;

namespace {
constexpr int kPageMargin = 16;
constexpr int kPageWidth = 800;
} // namespace

ItemPage::ItemPage(QString const& title, QWidget* parent) : QWidget(parent), m_title(title)
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("galleryScroll"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_list = new QWidget;
    m_list->setObjectName(QStringLiteral("galleryList"));
    m_list->setFocusPolicy(Qt::StrongFocus);
    m_list->installEventFilter(this);
    m_layout = new QVBoxLayout(m_list);
    m_layout->setContentsMargins(kPageMargin, 8, kPageMargin, 8);
    m_layout->setSpacing(0);
    m_scroll->setWidget(m_list);
    outer->addWidget(m_scroll);
}

int ItemPage::itemWidth() const { return kPageWidth - 2 * kPageMargin; }

void ItemPage::addItem(CommonItemType* item, int height)
{
    if (item->parentWidget() != m_list)
        item->setParent(m_list);
    // The row's width rules leave the left icon out: the host gives such rows the
    // width beside the icon.
    int width = itemWidth();
    if (auto* icon = item->findChild<QPushButton*>(QStringLiteral("itemLeftIconButton")); icon && !icon->isHidden())
        width -= icon->width() + 4;
    item->setItemTitleWidth(width);
    item->setItemHeight(height);
    item->setContentFontSize(kFontSize);
    item->setFixedHeight(height);
    item->setProperty("galleryCurrent", false);
    // Re-lay the title now that the theme has sized the value widgets.
    item->ensurePolished();
    item->setItemTitleText(item->itemTitle());
    // The row's title rule leaves out the right icon and the row's spacing: give the
    // title less where the whole row would be wider than the page.
    if (int const over = item->sizeHint().width() - itemWidth(); over > 0) {
        item->setItemTitleWidth(width - over);
        item->setItemTitleText(item->itemTitle());
    }
    m_layout->addWidget(item);
    m_entries.append({item, item, {}});

    connect(item, &CommonItemType::signalEditStarted, this, [this, item] {
        m_editing = true;
        emit statusMessage(tr("Editing \"%1\"").arg(item->itemTitle()));
    });
    connect(item, &CommonItemType::signalValueChanged, this, [this, item](QVariant const& v) {
        emit statusMessage(tr("%1 = %2").arg(item->itemTitle(), v.toString()));
    });
    connect(item, &CommonItemType::signalEditFinished, this, [this] { editEnded(tr("Edit finished")); });
    connect(item, &CommonItemType::signalCloseEditStatus, this, [this] { editEnded(tr("Edit closed")); });
    connect(item, &CommonItemType::signalEditClosed, this, [this] { editEnded(tr("Edit closed")); });
}

void ItemPage::addWidget(QWidget* widget, bool selectable, std::function<void()> select)
{
    if (widget->parentWidget() != m_list)
        widget->setParent(m_list);
    m_layout->addWidget(widget);
    if (selectable) {
        // Plain widgets paint a style-sheet background only when asked to.
        widget->setAttribute(Qt::WA_StyledBackground, true);
        widget->setProperty("galleryCurrent", false);
        m_entries.append({widget, nullptr, std::move(select)});
    }
}

void ItemPage::addSection(QString const& caption)
{
    auto* label = new QLabel(caption, m_list);
    label->setObjectName(QStringLiteral("gallerySection"));
    m_layout->addWidget(label);
}

void ItemPage::addStretch() { m_layout->addStretch(); }

void ItemPage::activate()
{
    if (m_current < 0 && !m_entries.isEmpty())
        setCurrentIndex(0);
    m_list->setFocus(Qt::OtherFocusReason);
}

int ItemPage::contentHeight() const { return m_list->sizeHint().height(); }

void ItemPage::markCurrent(int index, bool current)
{
    if (index < 0 || index >= m_entries.size())
        return;
    Entry const& e = m_entries.at(index);
    LCD::Widget::setStyleProperty(e.widget, "galleryCurrent", current);
    if (e.item) {
        e.item->setCurrentItem(current);
    } else if (current) {
        if (e.select)
            e.select();
        else
            e.widget->setFocus(Qt::OtherFocusReason);
    }
}

void ItemPage::setCurrentIndex(int index)
{
    if (index < 0 || index >= m_entries.size() || index == m_current)
        return;
    markCurrent(m_current, false);
    m_current = index;
    markCurrent(m_current, true);
    if (m_entries.at(index).item)
        m_list->setFocus(Qt::OtherFocusReason);
    m_scroll->ensureWidgetVisible(m_entries.at(index).widget, 0, 8);
}

void ItemPage::move(int delta)
{
    if (m_entries.isEmpty())
        return;
    int const next = qBound(0, m_current + delta, m_entries.size() - 1);
    setCurrentIndex(next);
}

void ItemPage::press()
{
    if (m_current < 0 || m_current >= m_entries.size())
        return;
    CommonItemType* item = m_entries.at(m_current).item;
    if (!item)
        return;
    if (!item->getContentEnabled()) {
        emit statusMessage(tr("\"%1\" is disabled").arg(item->itemTitle()));
        return;
    }
    // Pop-ups and menus place themselves over the screen: tell the row where the
    // window is now.
    if (auto* choice = qobject_cast<LCD::Widget::StringComboxBaseType*>(item))
        choice->setHomeFramePoint(window()->mapToGlobal(QPoint(0, 0)));
    item->editValue();
}

void ItemPage::editEnded(QString const& why)
{
    m_editing = false;
    emit statusMessage(why);
    // The row returns the focus to its parent; make sure the list has the knob again.
    if (m_entries.value(m_current).item && isVisible())
        m_list->setFocus(Qt::OtherFocusReason);
}

bool ItemPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    // Keys from the list itself, and keys that a bar hands over to the page.
    switch (key->key()) {
    case Qt::Key_Down:
        move(+1);
        return true;
    case Qt::Key_Up:
        move(-1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (watched == m_list) {
            press();
            return true;
        }
        break;
    case Qt::Key_Escape:
        if (watched == m_list) {
            emit statusMessage(tr("Back"));
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
