#include "typeipadjust.h"

#include "iplineedit.h"
#include "spinrow_p.h"
#include "stylehelper.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace LCD {
namespace Widget {

// Internal: hidden although its enclosing class is exported.
struct LCDWIDGETS_HIDDEN TypeIpAdjust::Impl
{
    IPLineEdit* lineEdit = nullptr;
    bool editing = false;
};

TypeIpAdjust::TypeIpAdjust(QWidget* parent, int kind) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->lineEdit = new IPLineEdit(dynamicFrame());
    if (kind == 9)
        setStyleProperty(rightIconButton(), "isIconListEdit", true);
    else if (kind == 10)
        setRightIconButtonHide(true);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->lineEdit);
    // Keys the line edit passes on (Escape) come by the row.
    d->lineEdit->installEventFilter(this);
    connect(d->lineEdit, &IPLineEdit::signalEditFinished, this, &TypeIpAdjust::finishEdit);
}

TypeIpAdjust::~TypeIpAdjust() = default;

IPLineEdit* TypeIpAdjust::lineEdit() const { return d->lineEdit; }

QVariant TypeIpAdjust::getLabelValue() { return QVariant(d->lineEdit->Iptext()); }

void TypeIpAdjust::setLabelValue(QVariant value, int) { d->lineEdit->setIpText(value.toString()); }

void TypeIpAdjust::editValue()
{
    if (!canEdit(d->lineEdit) || !d->lineEdit->field(3)->isEnabled())
        return;
    d->lineEdit->setIPFocus();
    d->lineEdit->setEditStatus(true);
    d->editing = true;
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeIpAdjust::finishEdit()
{
    if (!d->editing)
        return;
    d->editing = false;
    returnFocusToParent(this);
    closeEditValue();
    emit signalLineEditFinished();
    emit signalEditFinished();
}

void TypeIpAdjust::setContentDisabled(bool disabled) const
{
    d->lineEdit->setEnable(!disabled);
    d->lineEdit->setDisabled(disabled);
}

void TypeIpAdjust::setContentFontSize(int size)
{
    if (size < 1)
        return;
    CommonItemType::setContentFontSize(size);
    d->lineEdit->setFontSize(size);
    // 8n, or what three digits per octet need in a wide font.
    qint64 const width = qMax<qint64>(8LL * size, d->lineEdit->fieldsWidth());
    d->lineEdit->setFixedWidth(static_cast<int>(qMin<qint64>(width, QWIDGETSIZE_MAX)));
}

void TypeIpAdjust::setItemHeight(int height)
{
    CommonItemType::setItemHeight(height);
    // The fields fill the row's height less the frame's margins and some air.
    if (height > 24)
        d->lineEdit->setHeight(height - 24);
}

bool TypeIpAdjust::isModified() const { return d->lineEdit->isDataModified(); }

void TypeIpAdjust::setIpLineEditEnable(bool enabled) const { setContentDisabled(!enabled); }

bool TypeIpAdjust::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->lineEdit && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        d->lineEdit->setEditStatus(false);
        finishEdit(); // nothing more when the line edit has ended the edit already
        return true;
    }
    if (watched == d->lineEdit && event->type() == QEvent::KeyRelease)
        return true;
    return QObject::eventFilter(watched, event);
}

} // namespace Widget
} // namespace LCD
