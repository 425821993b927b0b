#include "typeitemmultioperbtn.h"

#include "multibtnwidget.h"
#include "spinrow_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QPushButton>

namespace LCD {
namespace Widget {

struct TypeItemMultiOperBtn::Impl
{
    MultiBtnWidget* pad = nullptr;
};

TypeItemMultiOperBtn::TypeItemMultiOperBtn(int count, QWidget* parent)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->pad = new MultiBtnWidget(count, dynamicFrame());
    dynamicLayout()->addWidget(d->pad);
    dynamicLayout()->addStretch();
    connect(d->pad, &MultiBtnWidget::signalValueChanged, this, &TypeItemMultiOperBtn::signalMultiOperBtnValueChanged);
    connect(d->pad, &MultiBtnWidget::signalCloseEditStatus, this, [this] {
        returnFocusToParent(this);
        emit signalCloseEditStatus();
    });
}

TypeItemMultiOperBtn::~TypeItemMultiOperBtn() = default;

void TypeItemMultiOperBtn::setBtnText(QVector<QPair<QString, int>>& data) { d->pad->setBtnData(data); }

void TypeItemMultiOperBtn::setBtnDefaultStyle(QString name) { d->pad->setBtnDefaultStyle(std::move(name)); }

void TypeItemMultiOperBtn::setContentFontSize(int size)
{
    // The pad refuses (and logs) a size below 1; the row follows it.
    d->pad->setFontSize(size);
    if (size >= 1)
        CommonItemType::setContentFontSize(size);
}

void TypeItemMultiOperBtn::setContentDisabled(bool disabled) const
{
    for (int i = 0; i < d->pad->count(); ++i)
        d->pad->button(i)->setDisabled(disabled);
}

void TypeItemMultiOperBtn::editValue()
{
    if (!canEdit(d->pad) || d->pad->count() == 0) {
        if (d->pad->count() == 0)
            qDebug("TypeItemMultiOperBtn: no button to edit with");
        return;
    }
    d->pad->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

MultiBtnWidget* TypeItemMultiOperBtn::btnWidget() const { return d->pad; }

} // namespace Widget
} // namespace LCD
