#include "typeitemarrow.h"
#include "inputcheck_p.h"
#include "layoutslot_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeItemArrow::Impl
{
    QLabel* tag = nullptr; // built with its first text
    QSpacerItem* tagSlot = nullptr;
    bool contentDisabled = false;
    QPushButton* arrow = nullptr;
    QLabel* values[kValueLabelCount] = {};
    QString texts[kValueLabelCount];
};

TypeItemArrow::TypeItemArrow(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeItemArrow::~TypeItemArrow() = default;

void TypeItemArrow::createWidget()
{
    dynamicLayout()->addStretch();
    d->tagSlot = addLayoutSlot(dynamicLayout());
    for (QLabel*& label : d->values) {
        label = new QLabel(dynamicFrame());
        label->setProperty("isValueText", true);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        dynamicLayout()->addWidget(label);
    }
    // The arrow sits in the value area so that the title leaves room for it.
    d->arrow = new QPushButton(dynamicFrame());
    d->arrow->setProperty("isIconListArrow", true);
    d->arrow->setFocusPolicy(Qt::NoFocus);
    d->arrow->setFixedSize(24, 24);
    dynamicLayout()->addWidget(d->arrow);
    dynamicLayout()->setSpacing(6);
    setRightIconButtonHide(true);
}

void TypeItemArrow::ensureTag() const
{
    if (d->tag)
        return;
    d->tag = new QLabel(dynamicFrame());
    d->tag->setProperty("isArrowTag", true);
    d->tag->setAlignment(Qt::AlignCenter);
    d->tag->setDisabled(d->contentDisabled);
    d->tag->hide();
    fillLayoutSlot(dynamicLayout(), d->tagSlot, d->tag);
}

bool TypeItemArrow::checkIndex(int index, char const* function) const
{
    if (index >= 0 && index < kValueLabelCount)
        return true;
    qWarning() << function << "invalid label index" << index;
    return false;
}

void TypeItemArrow::setLabelValue(QVariant value, int) { setLabelText(0, value); }

QVariant TypeItemArrow::getLabelValue() { return d->texts[0]; }

void TypeItemArrow::setLabelText(int index, QVariant value) const
{
    if (!checkIndex(index, "TypeItemArrow::setLabelText"))
        return;
    QLabel* label = d->values[index];
    d->texts[index] = value.toString();
    label->setText(elideWithDots(label->fontMetrics(), d->texts[index], qMax(0, getItemWidth()) / 3));
}

QString TypeItemArrow::labelText(int index) const
{
    if (!checkIndex(index, "TypeItemArrow::labelText"))
        return QString();
    return d->texts[index];
}

void TypeItemArrow::setValueLabelHidden(int index, bool hidden) const
{
    if (!checkIndex(index, "TypeItemArrow::setValueLabelHidden"))
        return;
    d->values[index]->setHidden(hidden);
}

void TypeItemArrow::setLabelProperty(int index, char const* name, QVariant const& value)
{
    if (!checkIndex(index, "TypeItemArrow::setLabelProperty") || !name)
        return;
    setStyleProperty(d->values[index], name, value);
}

void TypeItemArrow::setTagLabelText(QString text) const
{
    if (text.isEmpty() && !d->tag)
        return; // not built: empty and hidden already
    ensureTag();
    d->tag->setText(text);
    d->tag->setHidden(text.isEmpty());
}

void TypeItemArrow::setContentDisabled(bool disabled) const
{
    d->contentDisabled = disabled;
    if (d->tag)
        d->tag->setDisabled(disabled);
    d->arrow->setDisabled(disabled);
    for (QLabel* label : d->values)
        label->setDisabled(disabled);
}

void TypeItemArrow::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemArrow", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    QString const sheet = spacedLabelFontSheet(size);
    for (int i = 0; i < kValueLabelCount; ++i) {
        d->values[i]->setStyleSheet(sheet);
        // Re-cut with the new font.
        d->values[i]->setText(elideWithDots(d->values[i]->fontMetrics(), d->texts[i], qMax(0, getItemWidth()) / 3));
    }
}

QLabel* TypeItemArrow::valueLabel(int index) const
{
    if (!checkIndex(index, "TypeItemArrow::valueLabel"))
        return nullptr;
    return d->values[index];
}

QLabel* TypeItemArrow::tagLabel() const
{
    ensureTag();
    return d->tag;
}

QPushButton* TypeItemArrow::arrowButton() const { return d->arrow; }

} // namespace Widget
} // namespace LCD
