#include "typeitembuttom.h"
#include "inputcheck_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace LCD {
namespace Widget {

namespace {
constexpr int kIconSide = 24;
constexpr int kBarHeight = 20;
constexpr int kMinBarWidth = 80;
} // namespace

struct LCDWIDGETS_HIDDEN TypeItemButtom::Impl
{
    QLabel* icon = nullptr;
    QLabel* value = nullptr;
    QProgressBar* bar = nullptr;
    QString text;
    bool plain = false;
    QVariant userData;
};

TypeItemButtom::TypeItemButtom(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
    createConnects();
}

TypeItemButtom::~TypeItemButtom() = default;

void TypeItemButtom::createWidget()
{
    setRightIconButtonHide(true);
    d->icon = new QLabel(dynamicFrame());
    d->icon->setStyleSheet(QStringLiteral("background: transparent;"));
    d->icon->setFixedSize(kIconSide, kIconSide);
    d->icon->setAlignment(Qt::AlignCenter);
    d->icon->hide();
    d->value = new QLabel(dynamicFrame());
    d->value->setProperty("isValueText", true);
    d->value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->bar = new QProgressBar(dynamicFrame());
    d->bar->setProperty("loopType", false);
    d->bar->setRange(0, 100);
    d->bar->setValue(0);
    d->bar->setTextVisible(true);
    d->bar->setAlignment(Qt::AlignCenter);
    d->bar->setFixedSize(kMinBarWidth * 2, kBarHeight);
    d->bar->setFocusPolicy(Qt::NoFocus);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->icon);
    dynamicLayout()->addWidget(d->value);
    dynamicLayout()->addWidget(d->bar);
}

void TypeItemButtom::createConnects()
{
    connect(this, &CommonItemType::signalItemWidthChanged, this, &TypeItemButtom::itemWidthChanged);
}

void TypeItemButtom::showValue()
{
    int const width = qMax(0, getItemWidth()) / 3;
    d->value->setText(d->plain ? d->text : elideWithDots(d->value->fontMetrics(), d->text, width));
}

void TypeItemButtom::setLabelValue(QVariant value, int mode)
{
    d->text = value.toString();
    d->plain = mode > 0;
    showValue();
}

QVariant TypeItemButtom::getLabelValue() { return d->text; }

void TypeItemButtom::setContentDisabled(bool disabled) const
{
    d->value->setDisabled(disabled);
    d->icon->setDisabled(disabled);
    d->bar->setDisabled(disabled);
}

void TypeItemButtom::setContentEnabled(bool enabled)
{
    CommonItemType::setContentEnabled(enabled);
    // The bar's chunk colour comes from the theme's :disabled rule.
    repolish(d->bar);
}

void TypeItemButtom::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemButtom", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->value->setStyleSheet(labelFontSheet(size));
    showValue();
}

void TypeItemButtom::setLabelIcon(QString image)
{
    QPixmap pix(image);
    if (pix.isNull()) {
        qWarning() << "TypeItemButtom: cannot load image" << image;
        d->icon->clear();
        return;
    }
    if (pix.size() != QSize(kIconSide, kIconSide))
        pix = pix.scaled(kIconSide, kIconSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    d->icon->setPixmap(pix);
}

void TypeItemButtom::setIconVisible(bool visible) { d->icon->setVisible(visible); }

void TypeItemButtom::setProgressBarVisible(bool visible) { d->bar->setVisible(visible); }

void TypeItemButtom::setProgressBarRange(int minimum, int maximum)
{
    if (minimum > maximum) {
        qWarning() << "TypeItemButtom::setProgressBarRange: invalid range" << minimum << maximum;
        return;
    }
    d->bar->setRange(minimum, maximum);
    bool const busy = minimum == 0 && maximum == 0;
    if (d->bar->property("loopType").toBool() != busy)
        setStyleProperty(d->bar, "loopType", busy);
}

void TypeItemButtom::setProgressBarValue(int value) { d->bar->setValue(value); }

void TypeItemButtom::setItemData(QVariant data) { d->userData = data; }

QVariant TypeItemButtom::getUserData() const { return d->userData; }

void TypeItemButtom::itemWidthChanged()
{
    d->bar->setFixedWidth(qBound(kMinBarWidth, getItemWidth() / 4, QWIDGETSIZE_MAX));
    showValue();
}

QLabel* TypeItemButtom::valueLabel() const { return d->value; }

QLabel* TypeItemButtom::iconLabel() const { return d->icon; }

QProgressBar* TypeItemButtom::progressBar() const { return d->bar; }

} // namespace Widget
} // namespace LCD
