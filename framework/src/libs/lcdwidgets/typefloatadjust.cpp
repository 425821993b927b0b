#include "typefloatadjust.h"
#include "inputcheck_p.h"

#include "lcdspinbox.h"
#include "spinrow_p.h"
#include "stylehelper.h"
#include "typeintadjust.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <cmath>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN TypeFloatAdjust::Impl
{
    NQDoubleSpinBox* spinBox = nullptr;
};

TypeFloatAdjust::TypeFloatAdjust(QWidget* parent) : TypeFloatAdjust(SuffixNone, QuitKeepValue, parent) {}

TypeFloatAdjust::TypeFloatAdjust(SuffixType suffix, QuitStrategy quit, QWidget* parent, int commonWidgetType)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->spinBox = new NQDoubleSpinBox(suffix, quit, dynamicFrame());

    setStyleProperty(rightIconButton(), "isIconListEdit", true);
    if (commonWidgetType == 14) {
        setRightIconButtonHide(true);
        d->spinBox->setProperty("isMultipleSpinBox", true);
        d->spinBox->setAlignment(Qt::AlignLeft);
    }
    d->spinBox->setProperty("commonWidgetType", commonWidgetType);

    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->spinBox);
    d->spinBox->installEventFilter(this);

    connect(d->spinBox, &NQDoubleSpinBox::editFinished, this, [this](Qt::FocusReason) {
        returnFocusToParent(this);
        emit signalEditFinished();
    });
    connect(d->spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double v) { emit signalValueChanged(QVariant(v)); });
}

TypeFloatAdjust::~TypeFloatAdjust() = default;

bool TypeFloatAdjust::eventFilter(QObject* watched, QEvent* event)
{
    if (filterSpinRowKeys(this, d->spinBox, event))
        return true;
    return QObject::eventFilter(watched, event);
}

void TypeFloatAdjust::setLabelValue(QVariant value, int) { d->spinBox->setValueByManual(value.toDouble()); }

QVariant TypeFloatAdjust::getLabelValue() { return QVariant(d->spinBox->value()); }

void TypeFloatAdjust::editValue()
{
    if (!canEdit(d->spinBox))
        return;
    d->spinBox->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeFloatAdjust::setRange(float minimum, float maximum)
{
    // A NaN or infinite bound would make the value NaN or unprintable.
    if (!std::isfinite(minimum) || !std::isfinite(maximum)) {
        qWarning().noquote() << QStringLiteral("[TypeFloatAdjust] setRange: bounds %1, %2 are not finite, ignored")
                                    .arg(static_cast<double>(minimum))
                                    .arg(static_cast<double>(maximum));
        return;
    }
    d->spinBox->setRange(static_cast<double>(minimum), static_cast<double>(maximum));
}

void TypeFloatAdjust::setRange(int minimum, int maximum)
{
    d->spinBox->blockSignals(true);
    d->spinBox->setRange(minimum, maximum);
    d->spinBox->blockSignals(false);
}

void TypeFloatAdjust::setSingleStep(float step)
{
    double const s = static_cast<double>(step);
    if (!(s >= 1e-6) || s > d->spinBox->maximum() - d->spinBox->minimum()) // NaN fails the first test
        return;
    d->spinBox->setSingleStep(s);
}

void TypeFloatAdjust::setContentDisabled(bool disabled) const
{
    d->spinBox->setDisabled(disabled);
}

void TypeFloatAdjust::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeFloatAdjust", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->spinBox->setStyleSheet(
        QStringLiteral("QAbstractSpinBox{font-size:%1px; border-radius:%2px; }").arg(size).arg(itemHeight() / 9));
    d->spinBox->setFixedWidth(int(qBound<qint64>(0, qint64(size) * 3, QWIDGETSIZE_MAX)));
}

void TypeFloatAdjust::setDecimals(int decimals) { d->spinBox->setDecimals(decimals); }

int TypeFloatAdjust::getCommonWidgetType() const { return d->spinBox->property("commonWidgetType").toInt(); }

// ---------------------------------------------------------------------------
// Properties

double TypeFloatAdjust::minimum() const { return d->spinBox->minimum(); }

double TypeFloatAdjust::maximum() const { return d->spinBox->maximum(); }

void TypeFloatAdjust::setMinimum(double minimum)
{
    setRange(static_cast<float>(minimum), static_cast<float>(d->spinBox->maximum()));
}

void TypeFloatAdjust::setMaximum(double maximum)
{
    setRange(static_cast<float>(d->spinBox->minimum()), static_cast<float>(maximum));
}

double TypeFloatAdjust::singleStep() const { return d->spinBox->singleStep(); }

int TypeFloatAdjust::decimals() const { return d->spinBox->decimals(); }

double TypeFloatAdjust::value() const { return d->spinBox->value(); }

void TypeFloatAdjust::setValue(double value) { setLabelValue(QVariant(value)); }

} // namespace Widget
} // namespace LCD
