#include "typeintadjustslider.h"
#include "inputcheck_p.h"

#include "lcdspinbox.h"
#include "spinrow_p.h"
#include "stylehelper.h"
#include "typeintadjust.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSlider>

namespace LCD {
namespace Widget {

namespace {
constexpr int kSliderWidth = 550;
}

struct LCDWIDGETS_HIDDEN TypeIntAdjustSlider::Impl
{
    NQSpinBox* spinBox = nullptr;
    QSlider* slider = nullptr;
};

TypeIntAdjustSlider::TypeIntAdjustSlider(QWidget* parent)
    : TypeIntAdjustSlider(SuffixNone, QuitKeepValue, Qt::Horizontal, parent)
{
}

TypeIntAdjustSlider::TypeIntAdjustSlider(SuffixType suffix, QuitStrategy quit, Qt::Orientation orientation,
                                         QWidget* parent, int commonWidgetType)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    d->spinBox = new NQSpinBox(suffix, quit, commonWidgetType, dynamicFrame());
    d->slider = new QSlider(orientation, dynamicFrame());
    d->slider->setFixedWidth(kSliderWidth);
    // The slider only shows the value: the knob works the spin box.
    d->slider->setFocusPolicy(Qt::NoFocus);
    d->slider->setAttribute(Qt::WA_TransparentForMouseEvents);
    d->slider->setRange(d->spinBox->minimum(), d->spinBox->maximum());

    if (commonWidgetType == 5) {
        setRightIconButtonHide(true);
        d->spinBox->setProperty("isSliderSpinBoxInput", true);
        d->slider->setProperty("isIntAdjustSlider", true);
        d->slider->setProperty("intAdjustSliderStatus", QStringLiteral("normal"));
    }
    d->spinBox->setProperty("commonWidgetType", commonWidgetType);

    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->slider);
    dynamicLayout()->addWidget(d->spinBox);
    d->spinBox->installEventFilter(this);

    connect(d->spinBox, &NQSpinBox::editFinished, this, [this](Qt::FocusReason) {
        returnFocusToParent(this);
        d->spinBox->setStyleSheet(fontSheet());
        emit signalEditFinished();
    });
    connect(d->spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int v) {
        emit signalValueChanged(QVariant(v));
        d->slider->setValue(v);
    });
    connect(this, &CommonItemType::signalEditStarted, this, [this] { setSliderStatus("edit"); });
    connect(this, &CommonItemType::signalEditClosed, this, [this] { setSliderStatus("normal"); });
    // An edit that ends by focus loss or Escape leaves the edit look too.
    connect(this, &CommonItemType::signalEditFinished, this, [this] { setSliderStatus("normal"); });
}

TypeIntAdjustSlider::~TypeIntAdjustSlider() = default;

void TypeIntAdjustSlider::setSliderStatus(char const* status)
{
    QString const s = QLatin1String(status);
    if (d->slider->property("intAdjustSliderStatus").toString() == s)
        return;
    setStyleProperty(d->slider, "intAdjustSliderStatus", s);
}

QString TypeIntAdjustSlider::fontSheet() const
{
    return QStringLiteral("font-size:%1px; border-radius:%2px;").arg(contentFontSize()).arg(itemHeight() / 9);
}

bool TypeIntAdjustSlider::eventFilter(QObject* watched, QEvent* event)
{
    if (filterSpinRowKeys(this, d->spinBox, event))
        return true;
    return QObject::eventFilter(watched, event);
}

void TypeIntAdjustSlider::setLabelValue(QVariant value, int)
{
    d->spinBox->setValueByManual(value.toInt());
    d->slider->setValue(d->spinBox->value());
}

QVariant TypeIntAdjustSlider::getLabelValue() { return QVariant(d->spinBox->value()); }

void TypeIntAdjustSlider::editValue()
{
    if (!canEdit(d->spinBox))
        return;
    d->spinBox->setFocus(Qt::TabFocusReason);
    CommonItemType::editValue();
    emit signalEditStarted();
}

void TypeIntAdjustSlider::setRange(float minimum, float maximum)
{
    setRange(truncateToInt(minimum), truncateToInt(maximum));
}

void TypeIntAdjustSlider::setRange(int minimum, int maximum)
{
    d->spinBox->blockSignals(true);
    d->spinBox->setRange(minimum, maximum);
    d->spinBox->blockSignals(false);
    d->slider->setRange(d->spinBox->minimum(), d->spinBox->maximum());
    d->slider->setValue(d->spinBox->value());
    setSpinBoxWidth();
}

void TypeIntAdjustSlider::setSingleStep(float step)
{
    double const span = static_cast<double>(d->spinBox->maximum()) - d->spinBox->minimum();
    if (!(step > 0.0f) || span < step)
        return;
    d->spinBox->setSingleStep(truncateToInt(step));
}

void TypeIntAdjustSlider::setContentDisabled(bool disabled) const
{
    d->spinBox->setDisabled(disabled);
    d->slider->setDisabled(disabled);
}

void TypeIntAdjustSlider::setContentFontSize(int size)
{
    if (!fontSizeOk("TypeIntAdjustSlider", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->spinBox->setStyleSheet(fontSheet());
    setSpinBoxWidth();
}

void TypeIntAdjustSlider::setRangeMin(int minimum)
{
    d->spinBox->blockSignals(true);
    d->spinBox->setMinimum(minimum);
    d->spinBox->blockSignals(false);
    d->slider->setMinimum(d->spinBox->minimum());
    setSpinBoxWidth();
}

void TypeIntAdjustSlider::setRangeMax(int maximum)
{
    d->spinBox->blockSignals(true);
    d->spinBox->setMaximum(maximum);
    d->spinBox->blockSignals(false);
    d->slider->setMaximum(d->spinBox->maximum());
    setSpinBoxWidth();
}

void TypeIntAdjustSlider::setSuffixType(SuffixType type) { d->spinBox->setSuffixType(type); }

void TypeIntAdjustSlider::setRoundOff(bool on) { d->spinBox->setRoundOff(on); }

void TypeIntAdjustSlider::setSpinBoxWidth()
{
    d->spinBox->setFixedWidth(intSpinBoxWidth(d->spinBox->minimum(), d->spinBox->maximum(), contentFontSize()));
}

int TypeIntAdjustSlider::getCommonWidgetType() const { return d->spinBox->property("commonWidgetType").toInt(); }

// ---------------------------------------------------------------------------
// Properties

int TypeIntAdjustSlider::minimum() const { return d->spinBox->minimum(); }

int TypeIntAdjustSlider::maximum() const { return d->spinBox->maximum(); }

void TypeIntAdjustSlider::setMinimum(int minimum) { setRangeMin(minimum); }

void TypeIntAdjustSlider::setMaximum(int maximum) { setRangeMax(maximum); }

int TypeIntAdjustSlider::singleStep() const { return d->spinBox->singleStep(); }

int TypeIntAdjustSlider::value() const { return d->spinBox->value(); }

void TypeIntAdjustSlider::setValue(int value) { setLabelValue(QVariant(value)); }

} // namespace Widget
} // namespace LCD
