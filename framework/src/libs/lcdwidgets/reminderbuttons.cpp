#include "reminderbuttons_p.h"

#include "dialogutil_p.h"
#include "lcdtranslate.h"

#include <QApplication>
#include <QDebug>
#include <QDialog>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {

char const* propertyOf(QDialogButtonBox::ButtonRole role)
{
    switch (role) {
    case QDialogButtonBox::ActionRole:
    case QDialogButtonBox::NoRole:
    case QDialogButtonBox::ResetRole:
        return "isIconReset";
    case QDialogButtonBox::YesRole:
    case QDialogButtonBox::ApplyRole:
        return "isIconApply";
    default:
        return nullptr;
    }
}

} // namespace

ReminderButtons::ReminderButtons(QDialog* dialog, int hostWidth, float fontSize)
    : m_dialog(dialog), m_box(new QDialogButtonBox(dialog)), m_hostWidth(hostWidth), m_fontSize(fontSize)
{
    m_box->setObjectName(QStringLiteral("reminderButtonBox"));
    m_box->setCenterButtons(true);
    if (QLayout* layout = m_box->layout())
        layout->setSpacing(int(fontSize * 8 / 14));
}

QString ReminderButtons::textOf(QDialogButtonBox::ButtonRole role)
{
    switch (role) {
    case QDialogButtonBox::ActionRole:
        return lcdTranslate(QStringLiteral("Details"));
    case QDialogButtonBox::YesRole:
        return lcdTranslate(QStringLiteral("OK"));
    case QDialogButtonBox::NoRole:
        return lcdTranslate(QStringLiteral("Cancel"));
    case QDialogButtonBox::ResetRole:
        return lcdTranslate(QStringLiteral("Reset"));
    case QDialogButtonBox::ApplyRole:
        return lcdTranslate(QStringLiteral("Apply"));
    default:
        return QString();
    }
}

QPushButton* ReminderButtons::add(QDialogButtonBox::ButtonRole role, int dialogWidth, char const* who)
{
    if (role <= QDialogButtonBox::InvalidRole || role >= QDialogButtonBox::NRoles) {
        qWarning().noquote() << who << "addButton: unknown button role" << int(role);
        return nullptr;
    }
    auto* button = new QPushButton(m_dialog);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->installEventFilter(m_dialog);
    QString const text = textOf(role);
    if (role == QDialogButtonBox::ActionRole)
        button->setFixedWidth(QFontMetrics(button->font()).horizontalAdvance(text));
    if (char const* property = propertyOf(role))
        button->setProperty(property, true);
    button->setText(text);
    int const n = DialogUtil::fontPixels(m_fontSize);
    button->setStyleSheet(QStringLiteral("QPushButton{border-width:%1px;}").arg(int(m_fontSize) / 14));
    m_box->addButton(button, role);
    button->setFixedHeight(n + n * 10 / 14);
    updateWidths(dialogWidth);
    return button;
}

void ReminderButtons::updateWidths(int dialogWidth)
{
    QList<QAbstractButton*> const all = m_box->buttons();
    int const n = all.size();
    if (n == 0)
        return;
    double const space = double(dialogWidth) - double(n - 1) * double(m_hostWidth / 16) - 2.0 * double(m_fontSize);
    int const width = int(qBound(0.0, space / n, double(QWIDGETSIZE_MAX)));
    for (QAbstractButton* b : all)
        b->setFixedWidth(width);
}

QPushButton* ReminderButtons::button(QDialogButtonBox::ButtonRole role) const
{
    for (QAbstractButton* b : m_box->buttons())
        if (m_box->buttonRole(b) == role)
            return qobject_cast<QPushButton*>(b);
    return nullptr;
}

QList<QPushButton*> ReminderButtons::buttons() const
{
    QList<QPushButton*> list;
    for (QAbstractButton* b : m_box->buttons())
        if (auto* p = qobject_cast<QPushButton*>(b))
            list << p;
    return list;
}

QPushButton* ReminderButtons::last() const
{
    QList<QAbstractButton*> const all = m_box->buttons();
    return all.isEmpty() ? nullptr : qobject_cast<QPushButton*>(all.last());
}

bool ReminderButtons::anyVisible() const
{
    for (QAbstractButton* b : m_box->buttons())
        if (b->isVisible())
            return true;
    return false;
}

void ReminderButtons::setDefault(QPushButton* button)
{
    if (!button || !m_box->buttons().contains(button))
        return;
    m_default = button;
    button->setDefault(true);
    button->setFocus(Qt::OtherFocusReason);
}

int ReminderButtons::roleOf(QAbstractButton* button) const
{
    if (!button)
        return -1;
    switch (m_box->buttonRole(button)) {
    case QDialogButtonBox::YesRole:
        return QDialogButtonBox::YesRole;
    case QDialogButtonBox::ActionRole:
        return QDialogButtonBox::ActionRole;
    case QDialogButtonBox::NoRole:
        return QDialogButtonBox::NoRole;
    default:
        return -1;
    }
}

void ReminderButtons::retranslate()
{
    // Only the roles roleOf() reports are re-translated: Reset and Apply keep their text.
    for (QAbstractButton* b : m_box->buttons()) {
        int const role = roleOf(b);
        if (role >= 0)
            b->setText(textOf(QDialogButtonBox::ButtonRole(role)));
    }
}

void ReminderButtons::setFontPixels(int px)
{
    QString const sheet = QStringLiteral("QPushButton{font-size: ") + QString::number(px) + QStringLiteral("px; }");
    for (QAbstractButton* b : m_box->buttons())
        b->setStyleSheet(sheet);
}

void ReminderButtons::click(QAbstractButton* button)
{
    if (!button || !button->isVisible() || !m_box->buttons().contains(button))
        return;
    m_clicked = button;
    switch (m_box->buttonRole(button)) {
    case QDialogButtonBox::NoRole:
        m_dialog->done(QDialogButtonBox::NoRole);
        break;
    case QDialogButtonBox::YesRole:
    case QDialogButtonBox::ActionRole:
        m_dialog->accept();
        break;
    default:
        break;
    }
}

bool ReminderButtons::swallowBack(QKeyEvent* event, bool swallow)
{
    if (!swallow || (event->key() != Qt::Key_Escape && event->key() != Qt::Key_Back))
        return false;
    event->accept();
    return true;
}

bool ReminderButtons::filterKey(QObject* watched, QEvent* event, bool swallow, QWidget* textView, bool scrollBar) const
{
    if (event->type() != QEvent::KeyPress || !qobject_cast<QPushButton*>(watched))
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    return swallowBack(key, swallow) || navigate(key, textView, scrollBar);
}

bool ReminderButtons::navigate(QKeyEvent* event, QWidget* textView, bool scrollBar) const
{
    QList<QPushButton*> order = buttons();
    std::reverse(order.begin(), order.end());
    int const index = order.indexOf(qobject_cast<QPushButton*>(QApplication::focusWidget()));
    if (index < 0)
        return false;
    int const count = order.size();
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        if (index + 1 < count)
            order.at(index + 1)->setFocus(Qt::OtherFocusReason);
        else if (!scrollBar)
            order.first()->setFocus(Qt::OtherFocusReason);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
        if (index == 0 && !scrollBar)
            order.last()->setFocus(Qt::OtherFocusReason);
        else if (index > 0)
            order.at(index - 1)->setFocus(Qt::OtherFocusReason);
        else if (textView)
            textView->setFocus(Qt::OtherFocusReason);
        else
            return false;
        return true;
    case Qt::Key_Escape:
        m_dialog->done(-1);
        return true;
    case Qt::Key_Enter:
        QMetaObject::invokeMethod(m_dialog, "slot_buttonClicked", Qt::DirectConnection,
                                  Q_ARG(QAbstractButton*, order.at(index)));
        return true;
    default:
        return false;
    }
}

} // namespace Widget
} // namespace LCD
