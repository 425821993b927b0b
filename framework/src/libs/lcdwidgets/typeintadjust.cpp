#include "typeintadjust.h"
#include "inputcheck_p.h"
#include "layoutslot_p.h"

#include "lcdspinbox.h"
#include "spinrow_p.h"
#include "stylehelper.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <cmath>
#include <limits>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeIntAdjust::Impl
{
    NQSpinBox* spinBox = nullptr;
    // The label only stands in for a hidden spin box (setSpinBoxShow): built then.
    QLabel* valueLabel = nullptr;
    QSpacerItem* valueLabelSlot = nullptr;
    QString labelText;
    bool contentDisabled = false;
    QVariant value = QVariant(0);
};

TypeIntAdjust::TypeIntAdjust(QWidget* parent) : TypeIntAdjust(SuffixNone, QuitKeepValue, parent) {}

TypeIntAdjust::TypeIntAdjust(SuffixType suffix, QuitStrategy quit, QWidget* parent, int commonWidgetType)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    createWidgets(suffix, quit, commonWidgetType);
    createConnections();
}

TypeIntAdjust::~TypeIntAdjust() = default;

void TypeIntAdjust::createWidgets(SuffixType suffix, QuitStrategy quit, int commonWidgetType)
{
    d->spinBox = new NQSpinBox(suffix, quit, commonWidgetType, dynamicFrame());

    if (commonWidgetType == 1) {
        setStyleProperty(rightIconButton(), "isIconListEdit", true);
        d->spinBox->setProperty("isCompomentsSpinBoxInput", true);
    } else if (commonWidgetType == 2) {
        setRightIconButtonHide(true);
        d->spinBox->setProperty("isMultipleSpinBox", true);
        d->spinBox->setAlignment(Qt::AlignLeft);
    }
    d->spinBox->setProperty("commonWidgetType", commonWidgetType);

    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->spinBox);
    d->valueLabelSlot = addLayoutSlot(dynamicLayout());
    d->spinBox->installEventFilter(this);
}

void TypeIntAdjust::createConnections()
{
    connect(d->spinBox, &NQSpinBox::editFinished, this, [this](Qt::FocusReason) {
        returnFocusToParent(this);
        d->spinBox->setStyleSheet(fontSheet());
        emit signalEditFinished();
    });
    connect(d->spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int v) {
        d->value = v;
        emit signalValueChanged(QVariant(v));
    });
}

QString TypeIntAdjust::fontSheet() const
{
    return QStringLiteral("font-size:%1px; border-radius:%2px;").arg(contentFontSize()).arg(itemHeight() / 9);
}

bool TypeIntAdjust::eventFilter(QObject* watched, QEvent* event)
{
    if (filterSpinRowKeys(this, d->spinBox, event))
        return true;
    return QObject::eventFilter(watched, event);
}

void TypeIntAdjust::setLabelValue(QVariant value, int)
{
    d->value = value;
    d->spinBox->setValueByManual(value.toInt());
}

QVariant TypeIntAdjust::getLabelValue() { return QVariant(d->spinBox->value()); }

QVariant TypeIntAdjust::currentValue() const { return d->value; }

void TypeIntAdjust::editValue()
{
    if (!canEdit(d->spinBox))
        return;
    d->spinBox->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeIntAdjust::setRange(float minimum, float maximum)
{
    setRange(truncateToInt(minimum), truncateToInt(maximum));
}

void TypeIntAdjust::setRange(int minimum, int maximum)
{
    d->spinBox->blockSignals(true);
    d->spinBox->setRange(minimum, maximum);
    d->spinBox->blockSignals(false);
    setSpinBoxWidth();
}

void TypeIntAdjust::setSingleStep(float step)
{
    double const span = static_cast<double>(d->spinBox->maximum()) - d->spinBox->minimum();
    if (!(step > 0.0f) || span < step) // NaN fails the first test
        return;
    d->spinBox->setSingleStep(truncateToInt(step));
}

void TypeIntAdjust::setContentDisabled(bool disabled) const
{
    d->spinBox->setDisabled(disabled);
    d->contentDisabled = disabled;
    if (d->valueLabel)
        d->valueLabel->setDisabled(disabled);
}

void TypeIntAdjust::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeIntAdjust", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->spinBox->setStyleSheet(fontSheet());
    setSpinBoxWidth();
}

void TypeIntAdjust::setRangeMin(int minimum)
{
    d->spinBox->blockSignals(true);
    d->spinBox->setMinimum(minimum);
    d->spinBox->blockSignals(false);
}

void TypeIntAdjust::setRangeMax(int maximum)
{
    d->spinBox->blockSignals(true);
    d->spinBox->setMaximum(maximum);
    d->spinBox->blockSignals(false);
    setSpinBoxWidth();
}

void TypeIntAdjust::ensureValueLabel() const
{
    if (d->valueLabel)
        return;
    d->valueLabel = new QLabel(d->labelText, dynamicFrame());
    d->valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->valueLabel->setProperty("isLabelValueText", true);
    d->valueLabel->setDisabled(d->contentDisabled);
    d->valueLabel->hide();
    fillLayoutSlot(dynamicLayout(), d->valueLabelSlot, d->valueLabel);
}

void TypeIntAdjust::setSpinBoxShow(bool show)
{
    d->spinBox->setVisible(show);
    if (show && !d->valueLabel)
        return; // not built: hidden already
    ensureValueLabel();
    d->valueLabel->setVisible(!show);
}

void TypeIntAdjust::setLabelText(QString const& text)
{
    d->labelText = text;
    if (d->valueLabel)
        d->valueLabel->setText(text);
}

void TypeIntAdjust::setSuffixType(SuffixType type) { d->spinBox->setSuffixType(type); }

void TypeIntAdjust::setRoundOff(bool on) { d->spinBox->setRoundOff(on); }

void TypeIntAdjust::setSpinBoxWidth()
{
    d->spinBox->setFixedWidth(intSpinBoxWidth(d->spinBox->minimum(), d->spinBox->maximum(), contentFontSize()));
}

int TypeIntAdjust::getCommonWidgetType() const { return d->spinBox->property("commonWidgetType").toInt(); }

// ---------------------------------------------------------------------------
// Properties

int TypeIntAdjust::minimum() const { return d->spinBox->minimum(); }

int TypeIntAdjust::maximum() const { return d->spinBox->maximum(); }

void TypeIntAdjust::setMinimum(int minimum) { setRangeMin(minimum); }

void TypeIntAdjust::setMaximum(int maximum) { setRangeMax(maximum); }

int TypeIntAdjust::singleStep() const { return d->spinBox->singleStep(); }

int TypeIntAdjust::value() const { return d->spinBox->value(); }

void TypeIntAdjust::setValue(int value) { setLabelValue(QVariant(value)); }

} // namespace Widget
} // namespace LCD
