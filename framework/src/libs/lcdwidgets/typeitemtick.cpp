#include "typeitemtick.h"
#include "inputcheck_p.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeItemTick::Impl
{
    QPushButton* tick = nullptr;
};

TypeItemTick::TypeItemTick(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeItemTick::~TypeItemTick() = default;

void TypeItemTick::createWidget()
{
    setRightIconButtonHide(true);
    // The tick's place stays in the row (so every row of a list lays its title out
    // alike); the property shows or clears the mark.
    d->tick = new QPushButton(dynamicFrame());
    d->tick->setProperty("isIconListTick", false);
    d->tick->setFocusPolicy(Qt::NoFocus);
    d->tick->setFixedSize(24, 24);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->tick);
}

void TypeItemTick::setTickLabelHidden(bool hidden)
{
    if (d->tick->property("isIconListTick").toBool() == !hidden)
        return;
    setStyleProperty(d->tick, "isIconListTick", !hidden);
}

void TypeItemTick::editValue()
{
    setTickLabelHidden(false);
    emit signalValueChanged(QVariant(true));
}

QVariant TypeItemTick::getLabelValue() { return QVariant(d->tick->property("isIconListTick").toBool()); }

void TypeItemTick::setRightIconSize(QSize size)
{
    if (!sizeOk("TypeItemTick", "setRightIconSize", size))
        return;
    d->tick->setFixedSize(size);
}

void TypeItemTick::setContentDisabled(bool disabled) const { d->tick->setDisabled(disabled); }

QPushButton* TypeItemTick::tickLabel() const { return d->tick; }

} // namespace Widget
} // namespace LCD
