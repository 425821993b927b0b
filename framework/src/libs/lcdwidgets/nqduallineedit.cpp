#include "nqduallineedit.h"

#include "knoblevel.h"
#include "lcdspinbox.h"
#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpression>
#include <cstdint>

namespace LCD {
namespace Widget {

namespace {
constexpr int kFieldCount = 2;
}

struct LCDWIDGETS_HIDDEN NQDualLineEdit::Impl
{
    QLabel* fields[kFieldCount] = {nullptr, nullptr};
    QLabel* separatorLabel = nullptr;
    int values[kFieldCount] = {0, 0};
    int minimum[kFieldCount] = {0, 0};
    int maximum[kFieldCount] = {9999, 9999};
    int singleStep = 1;
    int current = -1;
};

NQDualLineEdit::NQDualLineEdit(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    setFocusPolicy(Qt::StrongFocus);
    setProperty("isDualLineEdit", true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setSpacing(0);
    for (int i = 0; i < kFieldCount; ++i) {
        d->fields[i] = new QLabel(this);
        d->fields[i]->setProperty("isDualField", true);
        d->fields[i]->setProperty("dualFieldCurrent", false);
        d->fields[i]->setAlignment(i == 0 ? (Qt::AlignRight | Qt::AlignVCenter) : (Qt::AlignLeft | Qt::AlignVCenter));
    }
    d->separatorLabel = new QLabel(QStringLiteral("×"), this);
    d->separatorLabel->setProperty("isDualSeparator", true);
    d->separatorLabel->setAlignment(Qt::AlignCenter);
    layout->addWidget(d->fields[0], 1);
    layout->addWidget(d->separatorLabel);
    layout->addWidget(d->fields[1], 1);
    updateTexts();
}

NQDualLineEdit::~NQDualLineEdit() = default;

void NQDualLineEdit::setText(QString const& text)
{
    static QRegularExpression const numbers(QStringLiteral("(-?\\d+)\\D+?(-?\\d+)"));
    QRegularExpressionMatch const m = numbers.match(text);
    bool okW = false;
    bool okH = false;
    int const w = m.hasMatch() ? m.captured(1).toInt(&okW) : 0;
    int const h = m.hasMatch() ? m.captured(2).toInt(&okH) : 0;
    if (!okW || !okH) {
        qWarning().noquote() << QStringLiteral("[NQDualLineEdit] not a pair of integers: \"%1\"").arg(text);
        return;
    }
    setValue(QSize(w, h));
}

QString NQDualLineEdit::text() const
{
    return QString::number(d->values[0]) + d->separatorLabel->text() + QString::number(d->values[1]);
}

void NQDualLineEdit::setValue(QSize value)
{
    d->values[0] = qBound(d->minimum[0], value.width(), d->maximum[0]);
    d->values[1] = qBound(d->minimum[1], value.height(), d->maximum[1]);
    updateTexts();
}

QSize NQDualLineEdit::value() const { return QSize(d->values[0], d->values[1]); }

void NQDualLineEdit::setRange(int minimum, int maximum)
{
    setFieldRange(0, minimum, maximum);
    setFieldRange(1, minimum, maximum);
}

void NQDualLineEdit::setFieldRange(int field, int minimum, int maximum)
{
    if (field < 0 || field >= kFieldCount) {
        qWarning().noquote() << QStringLiteral("[NQDualLineEdit] field index out of range: %1").arg(field);
        return;
    }
    d->minimum[field] = minimum;
    d->maximum[field] = qMax(minimum, maximum);
    d->values[field] = qBound(d->minimum[field], d->values[field], d->maximum[field]);
    updateTexts();
}

void NQDualLineEdit::setSingleStep(int step)
{
    if (step > 0)
        d->singleStep = step;
}

int NQDualLineEdit::singleStep() const { return d->singleStep; }

void NQDualLineEdit::setSeparator(QString const& separator) { d->separatorLabel->setText(separator); }

QString NQDualLineEdit::separator() const { return d->separatorLabel->text(); }

int NQDualLineEdit::currentField() const { return d->current; }

bool NQDualLineEdit::isEditing() const { return d->current >= 0; }

void NQDualLineEdit::updateTexts()
{
    for (int i = 0; i < kFieldCount; ++i)
        d->fields[i]->setText(QString::number(d->values[i]));
}

void NQDualLineEdit::setCurrentField(int field)
{
    if (field == d->current)
        return;
    for (int i = 0; i < kFieldCount; ++i) {
        bool const on = i == field;
        if (d->fields[i]->property("dualFieldCurrent").toBool() != on)
            setStyleProperty(d->fields[i], "dualFieldCurrent", on);
    }
    d->current = field;
    setStyleProperty(this, "dualEditing", field >= 0);
}

void NQDualLineEdit::finishEdit()
{
    if (d->current < 0)
        return;
    setCurrentField(-1);
    emit signalEditFinished();
}

void NQDualLineEdit::keyPressEvent(QKeyEvent* event)
{
    int const field = d->current;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        event->accept();
        if (field < 0)
            return;
        int const lo = d->minimum[field];
        int const hi = d->maximum[field];
        int const step = NQSpinBox::stepFor(knobLevel(event), lo, hi, d->singleStep);
        if (step <= 0 || lo >= hi)
            return;
        std::int64_t next = d->values[field];
        next = event->key() == Qt::Key_Up ? next + step : next - step;
        next = qBound<std::int64_t>(lo, next, hi);
        if (next == d->values[field])
            return;
        d->values[field] = static_cast<int>(next);
        d->fields[field]->setText(QString::number(d->values[field]));
        emit signalValueChanged(value());
        return;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        if (field == 0)
            setCurrentField(1);
        else
            finishEdit();
        return;
    case Qt::Key_Escape:
        event->accept();
        finishEdit();
        return;
    default:
        break;
    }
    QFrame::keyPressEvent(event);
}

void NQDualLineEdit::keyReleaseEvent(QKeyEvent* event) { event->accept(); }

void NQDualLineEdit::focusInEvent(QFocusEvent* event)
{
    QFrame::focusInEvent(event);
    setCurrentField(0);
}

void NQDualLineEdit::focusOutEvent(QFocusEvent* event)
{
    QFrame::focusOutEvent(event);
    finishEdit();
}

} // namespace Widget
} // namespace LCD
