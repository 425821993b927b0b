#include "typemultipleselectbtn.h"

#include "spinrow_p.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace LCD {
namespace Widget {

struct TypeMultipleSelectBtn::Impl
{
    int index = 0;
    MultipleSelectBtn* group = nullptr;
};

TypeMultipleSelectBtn::TypeMultipleSelectBtn(int index, std::vector<ItemSelectInfo> const& infos, QWidget* parent)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->index = index;
    d->group = new MultipleSelectBtn(d->index, infos, dynamicFrame());
    init();
}

TypeMultipleSelectBtn::TypeMultipleSelectBtn(int index, int spacing, std::vector<ItemSelectInfo> const& infos,
                                             Qt::ToolButtonStyle style, QWidget* parent)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->index = index;
    d->group = new MultipleSelectBtn(d->index, spacing, infos, style, dynamicFrame());
    init();
}

TypeMultipleSelectBtn::~TypeMultipleSelectBtn() = default;

void TypeMultipleSelectBtn::init()
{
    setRightIconButtonHide(true);
    setLeftIconButtonHide(true);
    setItemTitleLabelHide(true);
    dynamicLayout()->addWidget(d->group);
    connect(d->group, &MultipleSelectBtn::signalSelectBtnClicked, this, &TypeMultipleSelectBtn::signalBtnClicked);
    connect(d->group, &MultipleSelectBtn::signalEditFinished, this, [this] {
        returnFocusToParent(this);
        closeEditValue();
    });
}

void TypeMultipleSelectBtn::setBtnText(int index, QString text) { d->group->setBtnText(index, std::move(text)); }

void TypeMultipleSelectBtn::setContentFontSize(int size)
{
    // The buttons refuse (and log) a size they cannot take; the row follows them.
    d->group->setBtnSize(size);
    if (size >= MultipleSelectBtn::kMinButtonSize && size <= MultipleSelectBtn::kMaxButtonSize)
        CommonItemType::setContentFontSize(size);
}

void TypeMultipleSelectBtn::setContentDisabled(bool disabled) const
{
    for (int i = 0; i < d->group->count(); ++i)
        d->group->button(i)->setDisabled(disabled);
}

void TypeMultipleSelectBtn::editValue()
{
    if (!canEdit(d->group) || d->group->count() == 0)
        return;
    d->group->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

MultipleSelectBtn* TypeMultipleSelectBtn::selectBtn() const { return d->group; }

} // namespace Widget
} // namespace LCD
