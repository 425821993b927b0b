#include "typeitemtext.h"
#include "inputcheck_p.h"
#include "layoutslot_p.h"

#include "displaytext_p.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSpacerItem>
#include <QTimer>
#include <mutex>

namespace LCD {
namespace Widget {

namespace {

// The right-hand spacer is a one-off for the whole process.
std::once_flag g_rightDistanceOnce;

RollLabel* makeValueLabel(QWidget* parent, Qt::Alignment align)
{
    auto* label = new RollLabel(parent);
    label->setProperty("isValueText", true);
    label->setAlignment(align);
    return label;
}

void styleLabels(RollLabel* value, RollLabel* title)
{
    setStyleProperty(value, "isValueTextStyle", true);
    setStyleProperty(title, "isTitleTextStyle", true);
}

} // namespace

// ---------------------------------------------------------------------------
// TypeItemText

struct LCDWIDGETS_HIDDEN TypeItemText::Impl
{
    // The icon beside the value is hidden unless asked for: it is built on first use,
    // with what was set for it before.
    QPushButton* iconButton = nullptr;
    QSpacerItem* iconSlot = nullptr;
    QSize iconSize;
    bool contentDisabled = false;
    RollLabel* valueLabel = nullptr;
    QString valueText;
};

TypeItemText::TypeItemText(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
    createConnects();
}

TypeItemText::~TypeItemText() = default;

void TypeItemText::createWidget()
{
    setRightIconButtonHide(true);
    d->valueLabel = makeValueLabel(dynamicFrame(), Qt::AlignRight | Qt::AlignVCenter);
    d->valueLabel->setText(d->valueText);
    dynamicLayout()->addStretch();
    d->iconSlot = addLayoutSlot(dynamicLayout());
    dynamicLayout()->addWidget(d->valueLabel);
}

void TypeItemText::ensureIconButton() const
{
    if (d->iconButton)
        return;
    d->iconButton = new QPushButton(dynamicFrame());
    d->iconButton->setObjectName(QStringLiteral("iconButton"));
    d->iconButton->setFocusPolicy(Qt::NoFocus);
    d->iconButton->setDisabled(d->contentDisabled);
    if (d->iconSize.isValid())
        d->iconButton->setFixedSize(d->iconSize);
    d->iconButton->hide();
    fillLayoutSlot(dynamicLayout(), d->iconSlot, d->iconButton);
}

void TypeItemText::createConnects() {}

void TypeItemText::setLabelValue(QVariant value, int mode)
{
    QString const text = value.toString();
    if (mode > 0)
        showPlainText(d->valueLabel, text);
    else
        showFittedText(d->valueLabel, text, getItemWidth(), false);
}

void TypeItemText::setRollValue(QVariant value) { showFittedText(d->valueLabel, value.toString(), getItemWidth(), true); }

QVariant TypeItemText::getLabelValue() { return d->valueLabel->text(); }

void TypeItemText::setContentDisabled(bool disabled) const
{
    d->valueLabel->setDisabled(disabled);
    d->contentDisabled = disabled;
    if (d->iconButton)
        d->iconButton->setDisabled(disabled);
}

void TypeItemText::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemText", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->valueLabel->setStyleSheet(labelFontSheet(size));
    int const side = itemIconSide(itemHeight());
    d->iconSize = QSize(side, side);
    if (d->iconButton)
        d->iconButton->setFixedSize(d->iconSize);
}

void TypeItemText::setValueLabelFeed(bool wrap) { d->valueLabel->setWordWrap(wrap); }

void TypeItemText::setLabelStyle()
{
    styleLabels(d->valueLabel, getTitleLabel());
    update();
}

QFont TypeItemText::valueLabelFont() const { return d->valueLabel->font(); }

void TypeItemText::setValueLabelSize(QSize size)
{
    if (!sizeOk("TypeItemText", "setValueLabelSize", size))
        return;
    d->valueLabel->setMaximumHeight(size.height());
    d->valueLabel->setMinimumWidth(size.width());
}

void TypeItemText::setIconButtonHide(bool hide)
{
    if (hide && !d->iconButton)
        return; // not built: hidden already
    ensureIconButton();
    d->iconButton->setHidden(hide);
}

void TypeItemText::setIconButtonProperty(std::string const& name, QVariant value)
{
    ensureIconButton();
    setStyleProperty(d->iconButton, name.c_str(), value);
}

void TypeItemText::setIconButtonSize(QSize size)
{
    if (!sizeOk("TypeItemText", "setIconButtonSize", size))
        return;
    d->iconSize = size;
    if (d->iconButton)
        d->iconButton->setFixedSize(size);
}

void TypeItemText::rightDistanceCorrection(int width)
{
    // A refused width leaves the process-wide once-flag unused.
    if (!lengthOk("TypeItemText", "rightDistanceCorrection", width))
        return;
    std::call_once(g_rightDistanceOnce, [this, width] {
        dynamicLayout()->addSpacerItem(new QSpacerItem(width, 0, QSizePolicy::Fixed, QSizePolicy::Fixed));
    });
}

RollLabel* TypeItemText::valueLabel() const { return d->valueLabel; }

QPushButton* TypeItemText::iconButton() const
{
    ensureIconButton();
    return d->iconButton;
}

// ---------------------------------------------------------------------------
// TypeItemTextCenter

struct LCDWIDGETS_HIDDEN TypeItemTextCenter::Impl
{
    RollLabel* valueLabel = nullptr;
    bool fixedValueWidth = false; // setValueLabelSize() wins over the half-row rule
};

TypeItemTextCenter::TypeItemTextCenter(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidget();
}

TypeItemTextCenter::~TypeItemTextCenter() = default;

void TypeItemTextCenter::createWidget()
{
    setRightIconButtonHide(true);
    d->valueLabel = makeValueLabel(dynamicFrame(), Qt::AlignCenter);
    dynamicLayout()->addWidget(d->valueLabel);
}

void TypeItemTextCenter::setLabelValue(QVariant value, int mode)
{
    QString const text = value.toString();
    if (mode > 0)
        showPlainText(d->valueLabel, text);
    else
        showFittedText(d->valueLabel, text, getItemWidth(), false);
}

void TypeItemTextCenter::setRollValue(QVariant value)
{
    showFittedText(d->valueLabel, value.toString(), getItemWidth(), true);
}

QVariant TypeItemTextCenter::getLabelValue() { return d->valueLabel->text(); }

void TypeItemTextCenter::setContentDisabled(bool disabled) const { d->valueLabel->setDisabled(disabled); }

void TypeItemTextCenter::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeItemTextCenter", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->valueLabel->setStyleSheet(labelFontSheet(size));
}

void TypeItemTextCenter::setContentEnabled(bool enabled)
{
    CommonItemType::setContentEnabled(enabled);
    // The centred value is the row's main content: re-polish it so the theme's
    // disabled look applies at once.
    repolish(d->valueLabel);
}

void TypeItemTextCenter::setItemTitleWidth(int width)
{
    CommonItemType::setItemTitleWidth(width);
    if (!d->fixedValueWidth)
        d->valueLabel->setMinimumWidth(qBound(0, width / 2, QWIDGETSIZE_MAX));
}

void TypeItemTextCenter::setValueLabelFeed(bool wrap) { d->valueLabel->setWordWrap(wrap); }

void TypeItemTextCenter::setLabelStyle()
{
    styleLabels(d->valueLabel, getTitleLabel());
    update();
}

QFont TypeItemTextCenter::valueLabelFont() const { return d->valueLabel->font(); }

void TypeItemTextCenter::setValueLabelSize(QSize size)
{
    if (!sizeOk("TypeItemTextCenter", "setValueLabelSize", size))
        return;
    d->fixedValueWidth = true;
    d->valueLabel->setMaximumHeight(size.height());
    d->valueLabel->setMinimumWidth(size.width());
}

RollLabel* TypeItemTextCenter::valueLabel() const { return d->valueLabel; }

} // namespace Widget
} // namespace LCD
