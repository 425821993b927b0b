#include "multispinbox.h"
#include "inputcheck_p.h"

#include "lcdspinbox.h"
#include "spinfields_p.h"
#include "spinrow_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

namespace LCD {
namespace Widget {

struct LCDWIDGETS_HIDDEN MultiSpinBox::Impl
{
    SpinFields* fields = nullptr;
    QStringList captions;
};

MultiSpinBox::MultiSpinBox(QWidget* parent)
    : MultiSpinBox({QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("W"), QStringLiteral("H")}, parent)
{
}

MultiSpinBox::MultiSpinBox(QStringList const& captions, QWidget* parent)
    : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    dynamicLayout()->addStretch();
    d->fields = new SpinFields(this, dynamicLayout());
    d->fields->valueChanged = [this](int index, int value) {
        emit signalSpinBoxValueChanged(index, QVariant(value));
        emit signalValueChanged(QVariant(valueList()));
    };
    d->fields->finished = [this] {
        emit signalCloseEditStatus();
        emit signalEditFinished();
    };
    if (captions.isEmpty() || captions.size() > kMaxFields)
        setCaptions({QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("W"), QStringLiteral("H")});
    setCaptions(captions);
}

MultiSpinBox::~MultiSpinBox() = default;

void MultiSpinBox::setCaptions(QStringList const& captions)
{
    if (captions.isEmpty() || captions.size() > kMaxFields) {
        qWarning().noquote() << QStringLiteral("[MultiSpinBox] setCaptions: %1 fields, 1..%2 expected, ignored")
                                    .arg(captions.size())
                                    .arg(kMaxFields);
        return;
    }
    d->captions = captions;
    d->fields->setCaptions(captions);
    d->fields->setFontSize(contentFontSize());
}

QStringList MultiSpinBox::captions() const { return d->captions; }

int MultiSpinBox::count() const { return d->fields->count(); }

bool MultiSpinBox::checkIndex(int index, char const* function) const
{
    if (index >= 0 && index < d->fields->count())
        return true;
    qWarning().noquote() << QStringLiteral("[MultiSpinBox] %1: index %2 is outside 0..%3")
                                .arg(QLatin1String(function))
                                .arg(index)
                                .arg(d->fields->count() - 1);
    return false;
}

QVariantList MultiSpinBox::valueList() const
{
    QVariantList list;
    for (int i = 0; i < d->fields->count(); ++i)
        list.append(d->fields->box(i)->value());
    return list;
}

void MultiSpinBox::setLabelValue(QVariant value, int)
{
    QList<int> numbers;
    bool ok = true;
    if (value.type() == QVariant::String) {
        QStringList const parts = value.toString().split(QRegularExpression(QStringLiteral("[,;\\s]+")),
                                                         Qt::SkipEmptyParts);
        for (QString const& p : parts) {
            bool one = false;
            numbers.append(p.toInt(&one));
            ok = ok && one;
        }
    } else if (value.canConvert<QVariantList>()) {
        for (QVariant const& v : value.toList()) {
            bool one = false;
            numbers.append(v.toInt(&one));
            ok = ok && one;
        }
    } else {
        ok = false;
    }
    if (!ok) {
        qWarning().noquote() << QStringLiteral("[MultiSpinBox] setLabelValue: value is not a list of numbers, ignored");
        return;
    }
    if (numbers.size() != d->fields->count()) {
        qWarning().noquote() << QStringLiteral("[MultiSpinBox] setLabelValue: %1 values for %2 fields, ignored")
                                    .arg(numbers.size())
                                    .arg(d->fields->count());
        return;
    }
    for (int i = 0; i < numbers.size(); ++i)
        d->fields->setValue(i, numbers.at(i));
}

QVariant MultiSpinBox::getLabelValue() { return QVariant(valueList()); }

void MultiSpinBox::editValue()
{
    if (d->fields->hasKnob())
        return;
    if (!canEdit(d->fields->box(0)) || !d->fields->start())
        return;
    CommonItemType::editValue();
    emit signalEditStarted();
}

void MultiSpinBox::closeEditValue()
{
    d->fields->end();
    CommonItemType::closeEditValue();
}

void MultiSpinBox::setRange(int minimum, int maximum)
{
    for (int i = 0; i < d->fields->count(); ++i)
        setFieldRange(i, minimum, maximum);
}

void MultiSpinBox::setRange(float minimum, float maximum)
{
    setRange(truncateToInt(minimum), truncateToInt(maximum));
}

void MultiSpinBox::setSingleStep(float step)
{
    for (int i = 0; i < d->fields->count(); ++i)
        setFieldSingleStep(i, step > 0.0f ? truncateToInt(step) : 0);
}

void MultiSpinBox::setContentDisabled(bool disabled) const { d->fields->setEnabled(!disabled); }

void MultiSpinBox::setContentFontSize(int size)
{
    if (size <= 0) {
        qWarning().noquote() << QStringLiteral("[MultiSpinBox] setContentFontSize: %1 is not a size, ignored").arg(size);
        return;
    }
    if (!fontSizeOk("MultiSpinBox", "setContentFontSize", size))
        return;
    CommonItemType::setContentFontSize(size);
    d->fields->setFontSize(size);
}

void MultiSpinBox::setFieldRange(int index, int minimum, int maximum)
{
    if (!checkIndex(index, "setFieldRange"))
        return;
    if (minimum > maximum) {
        qWarning().noquote()
            << QStringLiteral("[MultiSpinBox] setFieldRange: %1..%2 is not a range, ignored").arg(minimum).arg(maximum);
        return;
    }
    d->fields->setRange(index, minimum, maximum);
}

void MultiSpinBox::setFieldSingleStep(int index, int step)
{
    if (!checkIndex(index, "setFieldSingleStep"))
        return;
    NQSpinBox* box = d->fields->box(index);
    qint64 const span = qint64(box->maximum()) - box->minimum();
    if (step <= 0 || step > span) {
        qWarning().noquote() << QStringLiteral("[MultiSpinBox] setFieldSingleStep: %1 is not a step of %2..%3, ignored")
                                    .arg(step)
                                    .arg(box->minimum())
                                    .arg(box->maximum());
        return;
    }
    box->setSingleStep(step);
}

void MultiSpinBox::setValue(int index, int value)
{
    if (checkIndex(index, "setValue"))
        d->fields->setValue(index, value);
}

int MultiSpinBox::value(int index) const
{
    if (!checkIndex(index, "value"))
        return 0;
    return d->fields->box(index)->value();
}

QList<int> MultiSpinBox::values() const
{
    QList<int> list;
    for (int i = 0; i < d->fields->count(); ++i)
        list.append(d->fields->box(i)->value());
    return list;
}

int MultiSpinBox::currentField() const { return d->fields->current(); }

NQSpinBox* MultiSpinBox::spinBox(int index) const
{
    if (!checkIndex(index, "spinBox"))
        return nullptr;
    return d->fields->box(index);
}

} // namespace Widget
} // namespace LCD
