#include "ndoublelineedit.h"

#include "knoblevel.h"
#include "lcdspinbox.h"
#include "titlededitor_p.h"
#include "stylehelper.h"

#include <QDebug>
#include <QDoubleValidator>
#include <QKeyEvent>
#include <QLocale>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {
constexpr int kMaxDecimals = 6;
const double kScale[kMaxDecimals + 1] = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
} // namespace

struct LCDWIDGETS_HIDDEN NDoubleLineEdit::Impl
{
    QDoubleValidator* validator = nullptr;
    double minimum = 0.0;
    double maximum = 100.0;
    double step = 0.1;
    double value = 0.0;
    int decimals = 1;
    bool editing = false;
};

NDoubleLineEdit::NDoubleLineEdit(QWidget* parent) : QLineEdit(parent), d(std::make_unique<Impl>())
{
    d->validator = new QDoubleValidator(d->minimum, d->maximum, d->decimals, this);
    d->validator->setNotation(QDoubleValidator::StandardNotation);
    d->validator->setLocale(QLocale::c());
    setValidator(d->validator);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setProperty("isDoubleLineEdit", true);
    setProperty("lineEditEditing", false);
    showValue();
    connect(this, &QLineEdit::textEdited, this, [this] { takeTypedText(); });
}

NDoubleLineEdit::~NDoubleLineEdit() = default;

void NDoubleLineEdit::setRange(double minimum, double maximum)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum) || minimum > maximum) {
        qWarning().noquote() << QStringLiteral("[NDoubleLineEdit] setRange: %1..%2 is not a range, ignored")
                                    .arg(minimum)
                                    .arg(maximum);
        return;
    }
    d->minimum = minimum;
    d->maximum = maximum;
    d->validator->setRange(minimum, maximum, d->decimals);
    if (d->step > maximum - minimum)
        d->step = maximum - minimum;
    d->value = normalized(d->value);
    showValue();
}

double NDoubleLineEdit::minimum() const { return d->minimum; }
double NDoubleLineEdit::maximum() const { return d->maximum; }

void NDoubleLineEdit::setDecimals(int decimals)
{
    if (decimals < 0 || decimals > kMaxDecimals) {
        qWarning().noquote()
            << QStringLiteral("[NDoubleLineEdit] setDecimals: %1 is outside 0..%2, ignored").arg(decimals).arg(kMaxDecimals);
        return;
    }
    d->decimals = decimals;
    d->validator->setDecimals(decimals);
    d->value = normalized(d->value);
    showValue();
}

int NDoubleLineEdit::decimals() const { return d->decimals; }

void NDoubleLineEdit::setSingleStep(double step)
{
    double const span = d->maximum - d->minimum;
    bool const ok = std::isfinite(step) && step <= span && (step > 0.0 || (step == 0.0 && span == 0.0));
    if (!ok) {
        qWarning().noquote() << QStringLiteral("[NDoubleLineEdit] setSingleStep: %1 is not a step of %2..%3, ignored")
                                    .arg(step)
                                    .arg(d->minimum)
                                    .arg(d->maximum);
        return;
    }
    d->step = step;
}

double NDoubleLineEdit::singleStep() const { return d->step; }

void NDoubleLineEdit::setValue(double value)
{
    if (std::isnan(value)) {
        qWarning().noquote() << QStringLiteral("[NDoubleLineEdit] setValue: value is not a number, ignored");
        return;
    }
    d->value = normalized(value);
    showValue();
}

double NDoubleLineEdit::value() const { return d->value; }

double NDoubleLineEdit::stepFor(float level) const
{
    return NQDoubleSpinBox::stepFor(level, d->minimum, d->maximum, d->step);
}

bool NDoubleLineEdit::isEditing() const { return d->editing; }

double NDoubleLineEdit::normalized(double value) const
{
    value = qBound(d->minimum, value, d->maximum);
    double const scale = kScale[d->decimals];
    double const rounded = std::round(value * scale) / scale;
    // Rounding may step over a bound that is not on the decimal grid.
    if (std::isfinite(rounded) && rounded >= d->minimum && rounded <= d->maximum)
        return rounded;
    return value;
}

void NDoubleLineEdit::showValue()
{
    QString const text = QString::number(d->value, 'f', d->decimals);
    if (QLineEdit::text() != text)
        setText(text);
}

void NDoubleLineEdit::changeValue(double value)
{
    value = normalized(value);
    bool const changed = value != d->value;
    d->value = value;
    showValue();
    if (changed)
        emit signalValueChanged(value);
}

void NDoubleLineEdit::takeTypedText()
{
    QString t = text();
    int pos = cursorPosition();
    if (d->validator->validate(t, pos) != QValidator::Acceptable)
        return; // unfinished: "-", "1." or beyond the range
    bool ok = false;
    double const v = QLocale::c().toDouble(t, &ok);
    if (!ok)
        return;
    double const n = normalized(v);
    if (n != d->value) {
        d->value = n;
        emit signalValueChanged(n);
    }
}

void NDoubleLineEdit::commitText()
{
    bool ok = false;
    double const v = QLocale::c().toDouble(text(), &ok);
    if (ok && !std::isnan(v))
        changeValue(v);
    else
        showValue();
}

void NDoubleLineEdit::finishEdit()
{
    if (!d->editing)
        return;
    d->editing = false;
    commitText();
    deselect();
    setStyleProperty(this, "lineEditEditing", false);
    emit signalEditFinished();
    handFocusBack(this);
}

void NDoubleLineEdit::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        event->accept();
        commitText();
        double const step = stepFor(knobLevel(event));
        changeValue(event->key() == Qt::Key_Up ? d->value + step : d->value - step);
        selectAll();
        return;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        event->accept();
        finishEdit();
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

void NDoubleLineEdit::keyReleaseEvent(QKeyEvent* event)
{
    if (isEditingKey(event->key()))
        event->accept();
    else
        QLineEdit::keyReleaseEvent(event);
}

void NDoubleLineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    selectAll();
    if (!d->editing) {
        d->editing = true;
        setStyleProperty(this, "lineEditEditing", true);
        emit signalEditStarted();
    }
}

void NDoubleLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    finishEdit();
}

} // namespace Widget
} // namespace LCD
