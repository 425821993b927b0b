#include "typeitemmulticheckbox.h"

#include "multicheckboxcontrol.h"
#include "spinrow_p.h"

#include <QHBoxLayout>

namespace LCD {
namespace Widget {

struct TypeItemMultiCheckBox::Impl
{
    MultiCheckBoxControl* control = nullptr;
};

TypeItemMultiCheckBox::TypeItemMultiCheckBox(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->control = new MultiCheckBoxControl(dynamicFrame());
    d->control->setObjectName(QStringLiteral("MultiCheckBoxControl"));
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->control);
    connect(d->control, &MultiCheckBoxControl::signalValueChanged, this,
            &TypeItemMultiCheckBox::signalMultiCheckBoxValueChanged);
    connect(d->control, &MultiCheckBoxControl::signalCloseEditStatus, this, &TypeItemMultiCheckBox::slotCloseEditStatus);
}

TypeItemMultiCheckBox::~TypeItemMultiCheckBox() = default;

void TypeItemMultiCheckBox::setCheckBoxData(QVector<std::pair<QString, int>> data)
{
    d->control->setCheckBoxData(std::move(data));
}

void TypeItemMultiCheckBox::setCheckStatus(int value, bool checked, bool partial)
{
    d->control->setCheckStatus(value, checked, partial);
}

int TypeItemMultiCheckBox::getCheckStatus(int value) const { return d->control->getCheckStatus(value); }

QVector<int> TypeItemMultiCheckBox::getCurrentValue() const { return d->control->getCurrentData(); }

void TypeItemMultiCheckBox::setCurrentValue(QVector<int> values) { d->control->setCurrentData(std::move(values)); }

void TypeItemMultiCheckBox::setRightIconSize(QSize size) { d->control->setIconSize(size); }

void TypeItemMultiCheckBox::setContentFontSize(int size)
{
    // The boxes refuse (and log) a size below 1; the row follows them.
    d->control->setFontSize(size);
    if (size >= 1)
        CommonItemType::setContentFontSize(size);
}

void TypeItemMultiCheckBox::setContentDisabled(bool disabled) const { d->control->setContentDisabled(disabled); }

void TypeItemMultiCheckBox::editValue()
{
    if (!canEdit(d->control))
        return;
    d->control->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    setEdit(true);
    emit signalEditStarted();
}

void TypeItemMultiCheckBox::slotCloseEditStatus()
{
    returnFocusToParent(this);
    setEdit(false);
    emit signalMultiCheckBoxCloseEditStatus();
    // The end of the edit in the item protocol's own terms too.
    emit signalCloseEditStatus();
}

MultiCheckBoxControl* TypeItemMultiCheckBox::checkBoxControl() const { return d->control; }

} // namespace Widget
} // namespace LCD
