#include "typemainbutton.h"
#include "inputcheck_p.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace LCD {
namespace Widget {

namespace {

// The width an icon button takes in the row: its fixed width once the page sized it,
// otherwise what the theme gives it.
int slotWidth(QPushButton* button)
{
    if (button->minimumWidth() == button->maximumWidth())
        return button->minimumWidth();
    return qBound(button->minimumWidth(), button->sizeHint().width(), button->maximumWidth());
}

} // namespace

struct LCDWIDGETS_HIDDEN TypeMainButton::Impl
{
    int pageWidth = -1; // the width the page gives, before the icons are taken off
};

TypeMainButton::TypeMainButton(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeMainButton::~TypeMainButton() = default;

void TypeMainButton::fitTitle()
{
    if (d->pageWidth < 0)
        return;
    int const gap = rowLayout()->spacing();
    int icons = 0;
    if (!leftIconButton()->isHidden())
        icons += slotWidth(leftIconButton()) + gap;
    if (!rightIconButton()->isHidden())
        icons += slotWidth(rightIconButton()) + gap;
    CommonItemType::setItemTitleWidth(qMax(0, d->pageWidth - icons));
    if (!itemTitle().isEmpty())
        setItemTitleRoll(itemTitle(), getLabelRoll());
}

void TypeMainButton::setItemTitleWidth(int width)
{
    d->pageWidth = width;
    if (width < 0) {
        // No width to take the icons off: stored and reported as given.
        CommonItemType::setItemTitleWidth(width);
        return;
    }
    fitTitle();
}

void TypeMainButton::setLeftIconSize(QSize size)
{
    if (!sizeOk("TypeMainButton", "setLeftIconSize", size))
        return;
    CommonItemType::setLeftIconSize(size);
    fitTitle();
}

void TypeMainButton::setRightIconSize(QSize size)
{
    if (!sizeOk("TypeMainButton", "setRightIconSize", size))
        return;
    CommonItemType::setRightIconSize(size);
    fitTitle();
}

void TypeMainButton::createWidget()
{
    // The row's own title and icon buttons are the whole entry: the left icon is
    // hidden and the right one shown, as in every row, until the page says otherwise.
    // The right icon is this row's to show: built now, not on first use.
    rightIconButton();
    setRollLabelStretchMax();
}

void TypeMainButton::setContentDisabled(bool) const {}

struct LCDWIDGETS_HIDDEN TypeItemNull::Impl
{
    QVariant userData;
};

TypeItemNull::TypeItemNull(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>()) { createWidget(); }

TypeItemNull::~TypeItemNull() = default;

void TypeItemNull::createWidget()
{
    setRightIconButtonHide(true);
    setItemTitleProperty("AboutTextEdit", true);
}

void TypeItemNull::setContentDisabled(bool) const {}

void TypeItemNull::setItemData(QVariant data) { d->userData = data; }

QVariant TypeItemNull::getUserData() const { return d->userData; }

} // namespace Widget
} // namespace LCD
