#include "pagerow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

PageRow::PageRow(QWidget* page, QString const& title, QWidget* parent) : CommonItemType(parent), m_page(page)
{
    setItemTitle(title);
    setItemTitleLabelHide(true);
    setRightIconButtonHide(true);
    removeUnderLine();
    page->setParent(dynamicFrame());
    dynamicLayout()->addWidget(page);
    // Keys the page does not use come up through it.
    page->installEventFilter(this);
}

void PageRow::editValue()
{
    m_editing = true;
    if (enter)
        enter();
    else
        m_page->setFocus(Qt::OtherFocusReason);
    emit signalEditStarted();
}

void PageRow::setContentDisabled(bool disabled) const { m_page->setDisabled(disabled); }

bool PageRow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_page && m_editing && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        if (back && back())
            return true;
        m_editing = false;
        if (parentWidget())
            parentWidget()->setFocus(Qt::OtherFocusReason);
        emit signalEditFinished();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
