#include "typeitemtip.h"
#include "sheet_p.h"
#include "inputcheck_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeItemTip::Impl
{
    QPushButton* icon = nullptr;
    QLabel* text = nullptr;
    QString tip;
    int textWidth = 0;
};

TypeItemTip::TypeItemTip(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeItemTip::~TypeItemTip() = default;

void TypeItemTip::createWidget()
{
    setItemTitleLabelHide(true);
    setRightIconButtonHide(true);
    d->icon = new QPushButton(dynamicFrame());
    d->icon->setProperty("isTipItemIcon", true);
    d->icon->setFocusPolicy(Qt::NoFocus);
    d->icon->setFixedSize(24, 24);
    d->text = new QLabel(dynamicFrame());
    d->text->setProperty("isTipText", true);
    d->text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    dynamicLayout()->addWidget(d->icon, 0, Qt::AlignTop);
    dynamicLayout()->addWidget(d->text);
    dynamicLayout()->addStretch();
    // The dynamic frame is the whole row here.
    setRollLabelStretchMax();
}

void TypeItemTip::setLabelValue(QVariant value, int)
{
    d->tip = value.toString();
    d->text->setText(d->tip);
}

QVariant TypeItemTip::getLabelValue() { return d->tip; }

int TypeItemTip::getWidgetRow()
{
    d->text->setText(d->tip);
    int const rows = getLabelRow(d->text);
    // The text was wrapped for the whole row in the row's font; it is drawn at 80 % of
    // that, so it also fits beside the icon.
    int width = d->textWidth;
    if (width <= 0) {
        int const iconSpace = d->icon->isHidden() ? 0 : d->icon->width() + dynamicLayout()->spacing();
        width = int(qBound<qint64>(1, qint64(getItemWidth()) - 16 - iconSpace, QWIDGETSIZE_MAX));
    }
    d->text->setFixedWidth(width);
    return rows;
}

void TypeItemTip::setContentDisabled(bool disabled) const
{
    d->text->setDisabled(disabled);
    d->icon->setDisabled(disabled);
}

void TypeItemTip::setContentFontSize(int size)
{
    if (size < 1) {
        qWarning() << "Invalid font size:" << size;
        return;
    }
    if (!fontSizeOk("TypeItemTip", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    applyStyleSheet(d->text, spacedLabelFontSheet(qMax(1, static_cast<int>(size * 0.8))));
}

void TypeItemTip::setLeftIconSize(QSize size)
{
    if (!sizeOk("TypeItemTip", "setLeftIconSize", size))
        return;
    d->icon->setFixedSize(size);
}

void TypeItemTip::setIconHidden(bool hidden) { d->icon->setHidden(hidden); }

void TypeItemTip::setTextLabelWidth(int width)
{
    if (!lengthOk("TypeItemTip", "setTextLabelWidth", qMax(0, width)))
        return;
    d->textWidth = qMax(0, width);
    if (d->textWidth > 0)
        d->text->setFixedWidth(d->textWidth);
}

QLabel* TypeItemTip::tipLabel() const { return d->text; }

QPushButton* TypeItemTip::tipIcon() const { return d->icon; }

} // namespace Widget
} // namespace LCD
