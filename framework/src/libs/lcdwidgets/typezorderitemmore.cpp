#include "typezorderitemmore.h"

#include "knoblevel.h"
#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <cmath>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeZOrderItemMore::Impl
{
    QLabel* position = nullptr;
    int count = 1;
    int z = 1;
    bool editing = false;
};

TypeZOrderItemMore::TypeZOrderItemMore(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->position = new QLabel(dynamicFrame());
    d->position->setProperty("isZOrderText", true);
    d->position->setProperty("isZOrderEditing", false);
    d->position->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->position);
    rightIconButton()->setProperty("isIconListMore", true);
    setFocusPolicy(Qt::StrongFocus);
    installEventFilter(this);
    showPosition();
}

TypeZOrderItemMore::~TypeZOrderItemMore() = default;

void TypeZOrderItemMore::setLayerCount(int count)
{
    if (count < 1) {
        qWarning() << "[TypeZOrderItemMore] invalid layer count:" << count;
        return;
    }
    d->count = count;
    d->z = qBound(1, d->z, count);
    showPosition();
}

int TypeZOrderItemMore::layerCount() const { return d->count; }

void TypeZOrderItemMore::setZOrder(int position)
{
    if (position < 1 || position > d->count) {
        qWarning() << "[TypeZOrderItemMore] z-order out of range:" << position;
        return;
    }
    d->z = position;
    showPosition();
}

int TypeZOrderItemMore::zOrder() const { return d->z; }

void TypeZOrderItemMore::setLabelValue(QVariant value, int)
{
    bool ok = false;
    int const v = value.toInt(&ok);
    if (!ok) {
        qWarning() << "[TypeZOrderItemMore] z-order out of range:" << value;
        return;
    }
    setZOrder(v);
}

QVariant TypeZOrderItemMore::getLabelValue() { return d->z; }

void TypeZOrderItemMore::showPosition()
{
    d->position->setText(QStringLiteral("%1/%2").arg(d->z).arg(d->count));
}

void TypeZOrderItemMore::editValue()
{
    if (!isEnabled() || !getContentEnabled()) {
        qDebug().noquote() << "[item]" << itemTitle() << ": no editor to edit with";
        return;
    }
    d->editing = true;
    setEdit(true);
    setStyleProperty(d->position, "isZOrderEditing", true);
    setFocus(Qt::OtherFocusReason);
    emit signalEditStarted();
}

void TypeZOrderItemMore::leaveEdit()
{
    d->editing = false;
    setEdit(false);
    setStyleProperty(d->position, "isZOrderEditing", false);
    if (parentWidget())
        parentWidget()->setFocus(Qt::OtherFocusReason);
    emit signalCloseEditStatus();
    emit signalEditFinished();
}

void TypeZOrderItemMore::closeEditValue()
{
    if (d->editing) {
        d->editing = false;
        setEdit(false);
        setStyleProperty(d->position, "isZOrderEditing", false);
    }
    CommonItemType::closeEditValue();
}

void TypeZOrderItemMore::setContentDisabled(bool disabled) const
{
    d->position->setDisabled(disabled);
    rightIconButton()->setDisabled(disabled);
}

void TypeZOrderItemMore::setContentFontSize(int size)
{
    if (size < 1 || size > 1024) { // no panel font is larger; the derived sizes would overflow
        qWarning() << "Invalid font size:" << size;
        return;
    }
    CommonItemType::setContentFontSize(size);
    d->position->setStyleSheet(QStringLiteral("QLabel { font-size: %1px; }").arg(size));
}

void TypeZOrderItemMore::setCurrentItem(bool current)
{
    if (!current && d->editing)
        closeEditValue();
}

QLabel* TypeZOrderItemMore::zOrderLabel() const { return d->position; }

bool TypeZOrderItemMore::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != this || event->type() != QEvent::KeyPress || !d->editing)
        return QFrame::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        // The level is clamped by knobLevel; the count bounds the step before the cast.
        float const level = std::fabs(knobLevel(key));
        int const step = qMax(1, int(qMin(level, float(d->count))));
        int const from = d->z;
        int const to = key->key() == Qt::Key_Up ? qMin(d->count, from + step) : qMax(1, from - step);
        if (to != from) {
            d->z = to;
            showPosition();
            emit signalZOrderChanged(from, to);
            emit signalValueChanged(QVariant(to));
        }
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit signalSettingsRequested();
        leaveEdit();
        return true;
    case Qt::Key_Escape:
        leaveEdit();
        return true;
    default:
        return QFrame::eventFilter(watched, event);
    }
}

} // namespace Widget
} // namespace LCD
