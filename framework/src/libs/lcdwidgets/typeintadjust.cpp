#include "typeintadjust.h"

#include "lcdspinbox.h"
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

void returnFocusToParent(QWidget* row)
{
    if (!row)
        return;
    QWidget* parent = row->parentWidget();
    if (!parent)
        return;
    QWidget* focus = QApplication::focusWidget();
    if (!focus || focus == row || row->isAncestorOf(focus))
        parent->setFocus(Qt::OtherFocusReason);
}

bool filterSpinRowKeys(CommonItemType* row, QWidget* editor, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease)
        return true;
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return false;
    // The focus loss ends the spin box's own edit.
    if (QWidget* parent = row->parentWidget())
        parent->setFocus(Qt::OtherFocusReason);
    else if (editor)
        editor->clearFocus();
    emit row->signalCloseEditStatus();
    return true;
}

int truncateToInt(float v)
{
    if (std::isnan(v))
        return 0;
    if (v >= 2147483648.0f) // 2^31
        return std::numeric_limits<int>::max();
    if (v <= -2147483648.0f)
        return std::numeric_limits<int>::min();
    return static_cast<int>(v);
}

namespace {

int decimalLength(int v)
{
    // The "%d" text: digits plus the minus sign.
    long long x = v;
    int n = x < 0 ? 1 : 0;
    if (x < 0)
        x = -x;
    do {
        ++n;
        x /= 10;
    } while (x != 0);
    return n;
}

} // namespace

int intSpinBoxWidth(int minimum, int maximum, int fontSize)
{
    int const d = qMax(decimalLength(minimum), decimalLength(maximum)) + 1;
    // In 64 bits and bounded to what a widget accepts: the font size is the host's.
    qint64 const width = qint64(fontSize) + qint64(d / 2) * fontSize;
    return int(qBound<qint64>(0, width, QWIDGETSIZE_MAX));
}

struct TypeIntAdjust::Impl
{
    NQSpinBox* spinBox = nullptr;
    QLabel* valueLabel = nullptr;
    QVariant value = QVariant(0);
};

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
    d->valueLabel = new QLabel(dynamicFrame());
    d->valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->valueLabel->setProperty("isLabelValueText", true);
    // The label only stands in for a hidden spin box (setSpinBoxShow).
    d->valueLabel->hide();

    if (commonWidgetType == 1) {
        setStyleProperty(rightIconButton(), "isIconListEdit", true);
        d->spinBox->setProperty("isCompomentsSpinBoxInput", true);
    } else if (commonWidgetType == 2) {
        rightIconButton()->hide();
        d->spinBox->setProperty("isMultipleSpinBox", true);
        d->spinBox->setAlignment(Qt::AlignLeft);
    }
    d->spinBox->setProperty("commonWidgetType", commonWidgetType);

    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->spinBox);
    dynamicLayout()->addWidget(d->valueLabel);
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
    d->valueLabel->setDisabled(disabled);
}

void TypeIntAdjust::setContentFontSize(int size)
{
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

void TypeIntAdjust::setSpinBoxShow(bool show)
{
    d->spinBox->setVisible(show);
    d->valueLabel->setVisible(!show);
}

void TypeIntAdjust::setLabelText(QString const& text) { d->valueLabel->setText(text); }

void TypeIntAdjust::setSuffixType(SuffixType type) { d->spinBox->setSuffixType(type); }

void TypeIntAdjust::setRoundOff(bool on) { d->spinBox->setRoundOff(on); }

void TypeIntAdjust::setSpinBoxWidth()
{
    d->spinBox->setFixedWidth(intSpinBoxWidth(d->spinBox->minimum(), d->spinBox->maximum(), contentFontSize()));
}

int TypeIntAdjust::getCommonWidgetType() const { return d->spinBox->property("commonWidgetType").toInt(); }

} // namespace Widget
} // namespace LCD
