#include "typemultitemtext.h"
#include "inputcheck_p.h"

#include "displaytext_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>
#include <array>

namespace LCD {
namespace Widget {

// ---------------------------------------------------------------------------
// TypeMultItemText

struct LCDWIDGETS_HIDDEN TypeMultItemText::Impl
{
    QList<RollLabel*> labels;
    QString texts[kLabelCount];
    bool roll = false;
};

TypeMultItemText::TypeMultItemText(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeMultItemText::~TypeMultItemText() = default;

void TypeMultItemText::createWidget()
{
    setRightIconButtonHide(true);
    static constexpr char const* kProperties[kLabelCount] = {"isSelfCheckValueText", "isSelfCheckSecondValueText",
                                                             "isSelfCheckValueText"};
    for (int i = 0; i < kLabelCount; ++i) {
        auto* label = new RollLabel(dynamicFrame());
        label->setProperty(kProperties[i], true);
        if (i == 1)
            label->setAlignment(Qt::AlignCenter);
        else if (i == 2)
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setTextLabel(QString(), false);
        d->labels << label;
    }
    dynamicLayout()->addWidget(d->labels.at(0));
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->labels.at(1));
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->labels.at(2));
}

bool TypeMultItemText::checkIndex(int index, char const* function) const
{
    if (index >= 0 && index < kLabelCount)
        return true;
    qWarning() << function << "invalid label index" << index;
    return false;
}

void TypeMultItemText::showLabel(int index)
{
    RollLabel* label = d->labels.at(index);
    QString const& text = d->texts[index];
    label->setItemName(text);
    // The row keeps the roll setting: a label without a width yet does not record it,
    // so a roll asked for before setLabelWidth() must survive until the width comes.
    bool const roll = d->roll;
    label->setTextLabel(roll ? text : calTextSize(text, label->storedWidth()), roll);
}

void TypeMultItemText::setLabelText(int index, QVariant value)
{
    if (!checkIndex(index, "TypeMultItemText::setLabelText"))
        return;
    d->texts[index] = value.toString();
    showLabel(index);
}

QString TypeMultItemText::getLabelText(int index) const
{
    if (!checkIndex(index, "TypeMultItemText::getLabelText"))
        return QString();
    return d->texts[index];
}

void TypeMultItemText::setLabelProperty(int index, char const* name, QVariant const& value)
{
    if (!checkIndex(index, "TypeMultItemText::setLabelProperty") || !name)
        return;
    setStyleProperty(d->labels.at(index), name, value);
}

void TypeMultItemText::setLabelValue(QVariant value, int) { setLabelText(0, value); }

QVariant TypeMultItemText::getLabelValue() { return d->texts[0]; }

void TypeMultItemText::setLabelWidth(int width)
{
    if (width < 1) {
        qWarning() << "TypeMultItemText::setLabelWidth: invalid width" << width;
        return;
    }
    QFont font;
    font.setPixelSize(qMax(1, contentFontSize()));
    QFontMetrics const fm(font);
    std::array<int, kLabelCount> natural{};
    std::array<int, kLabelCount> order{};
    for (int i = 0; i < kLabelCount; ++i) {
        natural[i] = fm.boundingRect(QRect(0, 0, width, fm.height()), Qt::TextSingleLine, d->texts[i]).width();
        order[i] = i;
    }
    // Narrow texts first: each takes what it needs up to an equal share of what is left.
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return natural[a] < natural[b]; });
    int remaining = width;
    for (int k = 0; k < kLabelCount; ++k) {
        int const i = order[k];
        int const share = qMin(natural[i], remaining / (kLabelCount - k));
        remaining -= share;
        d->labels.at(i)->setWidth(share);
    }
    for (int i = 0; i < kLabelCount; ++i)
        showLabel(i);
}

QString TypeMultItemText::calTextSize(QString text, int width) const
{
    if (width < 1)
        return text;
    return d->labels.at(1)->fontMetrics().elidedText(text, Qt::ElideRight, width);
}

void TypeMultItemText::setRollLabel(bool roll)
{
    d->roll = roll;
    for (int i = 0; i < kLabelCount; ++i)
        showLabel(i);
}

void TypeMultItemText::setContentDisabled(bool disabled) const
{
    for (RollLabel* label : qAsConst(d->labels))
        label->setDisabled(disabled);
}

void TypeMultItemText::setContentFontSize(int size)
{
    if (size < 1) {
        qWarning() << "Invalid font size:" << size;
        return;
    }
    if (!fontSizeOk("TypeMultItemText", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    QString const sheet = spacedLabelFontSheet(qMax(1, static_cast<int>(size * 0.9)));
    for (RollLabel* label : qAsConst(d->labels))
        label->setStyleSheet(sheet);
}

RollLabel* TypeMultItemText::label(int index) const
{
    if (!checkIndex(index, "TypeMultItemText::label"))
        return nullptr;
    return d->labels.at(index);
}

// ---------------------------------------------------------------------------
// TypeKeyCheck

namespace {
constexpr char const* kKeyCheckProperties[TypeKeyCheck::kLabelCount] = {"isSelfCheckValueText", "isValueText"};
}

struct LCDWIDGETS_HIDDEN TypeKeyCheck::Impl
{
    QLabel* labels[kLabelCount] = {};
};

TypeKeyCheck::TypeKeyCheck(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>()) { createWidget(); }

TypeKeyCheck::~TypeKeyCheck() = default;

void TypeKeyCheck::createWidget()
{
    setRightIconButtonHide(true);
    dynamicLayout()->addStretch();
    for (int i = 0; i < kLabelCount; ++i) {
        auto* label = new QLabel(dynamicFrame());
        label->setProperty(kKeyCheckProperties[i], true);
        label->setAlignment(i == 0 ? (Qt::AlignRight | Qt::AlignVCenter) : Qt::AlignCenter);
        dynamicLayout()->addWidget(label);
        d->labels[i] = label;
    }
}

bool TypeKeyCheck::checkIndex(int index, char const* function) const
{
    if (index >= 0 && index < kLabelCount)
        return true;
    qWarning() << function << "invalid label index" << index;
    return false;
}

void TypeKeyCheck::setLabelText(int index, QVariant value) const
{
    if (!checkIndex(index, "TypeKeyCheck::setLabelText"))
        return;
    d->labels[index]->setText(value.toString());
}

void TypeKeyCheck::setLabelProperty(int index, QVariant const& value)
{
    if (!checkIndex(index, "TypeKeyCheck::setLabelProperty"))
        return;
    setStyleProperty(d->labels[index], kKeyCheckProperties[index], value);
}

void TypeKeyCheck::setLabelValue(QVariant value, int) { setLabelText(1, value); }

QVariant TypeKeyCheck::getLabelValue() { return d->labels[1]->text(); }

void TypeKeyCheck::setContentDisabled(bool disabled) const
{
    for (QLabel* label : d->labels)
        label->setDisabled(disabled);
}

void TypeKeyCheck::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeKeyCheck", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    QString const sheet = labelFontSheet(size);
    for (QLabel* label : d->labels)
        label->setStyleSheet(sheet);
    // The result column lines up from row to row.
    d->labels[1]->setMinimumWidth(int(qBound<qint64>(0, 4 * qint64(size), QWIDGETSIZE_MAX)));
}

QLabel* TypeKeyCheck::label(int index) const
{
    if (!checkIndex(index, "TypeKeyCheck::label"))
        return nullptr;
    return d->labels[index];
}

} // namespace Widget
} // namespace LCD
