#include "lcdspinbox.h"
#include "sheet_p.h"

#include "knoblevel.h"
#include "lcdtranslate.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QLoggingCategory>
#include <cmath>
#include <cstdint>
#include <limits>

namespace LCD {
namespace Widget {

namespace {

constexpr int kSpanCap = 8000;
constexpr char kFocusFrameSheet[] = "border: 2px solid rgba(255, 255, 255,0.8);";
constexpr char kNoFrameSheet[] = "border: none;";
constexpr char kDoubleFocusFrameSheet[] = "border: 2px solid rgba(255, 255, 255,0.8)";
constexpr char kDoubleNoFrameSheet[] = "border: none";

// Input length limits of the text a user may type.
constexpr int kMaxIntLength = 6;         // non-negative values, prefix and suffix included
constexpr int kMaxNegativeIntLength = 7; // negative values
constexpr int kMaxDoubleLength = 5;

bool isUnitLevel(float level) { return std::fabs(level - 1.0f) < 1e-6f; }

int clampToInt(std::int64_t v)
{
    if (v > std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (v < std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return static_cast<int>(v);
}

// The knob log is built only when somebody listens to debug output.
bool knobLogEnabled() { return QLoggingCategory::defaultCategory()->isDebugEnabled(); }

// Shortest 'g' text that reads back as the same float (0.1f -> "0.1").
QString shortestFloat(float f)
{
    for (int precision = 1; precision < 9; ++precision) {
        QString const s = QString::number(static_cast<double>(f), 'g', precision);
        if (s.toFloat() == f)
            return s;
    }
    return QString::number(static_cast<double>(f), 'g', 9);
}

QString shortestDouble(double d) { return QString::number(d, 'g', QLocale::FloatingPointShortest); }

QString stripped(QString const& input, QString const& prefix, QString const& suffix)
{
    QString s = input;
    if (!prefix.isEmpty() && s.startsWith(prefix))
        s.remove(0, prefix.size());
    if (!suffix.isEmpty() && s.endsWith(suffix))
        s.chop(suffix.size());
    return s;
}

QString suffixText(SuffixType type, bool degrees)
{
    switch (type) {
    case SuffixPercent:
        return QStringLiteral("%");
    case SuffixSecond:
        return lcdTranslate(QStringLiteral("s"));
    case SuffixDegree:
        return degrees ? QStringLiteral("°") : QString();
    case SuffixNone:
        break;
    }
    return QString();
}

} // namespace

// ===========================================================================
// NQSpinBox

NQSpinBox::NQSpinBox(QWidget* parent) : NQSpinBox(SuffixNone, QuitKeepValue, 0, parent) {}

NQSpinBox::NQSpinBox(SuffixType suffix, QuitStrategy quit, int focusFrameMode, QWidget* parent)
    : QSpinBox(parent), m_focusFrameMode(focusFrameMode), m_quitStrategy(quit)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setKeyboardTracking(false);
    setSuffixType(suffix);
}

NQSpinBox::~NQSpinBox() = default;

int NQSpinBox::stepFor(float level, int minimum, int maximum, int singleStep)
{
    if (singleStep <= 0)
        return 0;
    if (isUnitLevel(level))
        return singleStep;
    std::int64_t span = static_cast<std::int64_t>(maximum) - minimum;
    if (span > kSpanCap)
        span = kSpanCap;
    // Single precision as the knob driver computes it; clamped before the cast.
    float const product = static_cast<float>(span) * level;
    std::int64_t n = 0;
    if (std::isfinite(product))
        n = static_cast<std::int64_t>(std::fmax(-2.0e9f, std::fmin(product, 2.0e9f)));
    if (n <= 0)
        n = 1;
    std::int64_t step = n * singleStep;
    if (step > maximum)
        step = maximum;
    // A cap at a maximum below one single step would stall (or reverse) the knob.
    if (step < singleStep)
        step = singleStep;
    step -= step % singleStep;
    return clampToInt(step);
}

int NQSpinBox::getStep(float level) const { return stepFor(level, minimum(), maximum(), singleStep()); }

void NQSpinBox::setSelection()
{
    if (m_committed < 0)
        lineEdit()->setSelection(1, cleanText().length() - 1);
    else
        selectAll();
}

void NQSpinBox::unSelection() const { lineEdit()->deselect(); }

int NQSpinBox::calRoundOff(int value) const
{
    int const s = singleStep();
    if (s <= 0)
        return value;
    int const r = value - value % s;
    if (!m_roundOff)
        return r;
    if ((static_cast<double>(value) - r) / 10.0 >= 0.5)
        return clampToInt(static_cast<std::int64_t>(r) + 10);
    return r;
}

bool NQSpinBox::isValid(int value) const { return minimum() <= value && value <= maximum(); }

void NQSpinBox::setValueByManual(int value)
{
    bool const blocked = blockSignals(true);
    if (isValid(value)) {
        m_committed = value;
        setValue(value);
    }
    blockSignals(blocked);
}

void NQSpinBox::setSuffixType(SuffixType type)
{
    m_suffixType = type;
    if (type != SuffixNone)
        setSuffix(suffixText(type, true));
}

void NQSpinBox::setRoundOff(bool on) { m_roundOff = on; }

void NQSpinBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_suffixType == SuffixSecond)
        setSuffix(suffixText(m_suffixType, true));
    QSpinBox::changeEvent(event);
}

void NQSpinBox::knobStep(bool up, float level)
{
    int const s = singleStep();
    int const lo = minimum();
    int const hi = maximum();
    // A zero single step (or an empty range) has nowhere to go.
    if (s <= 0 || lo >= hi)
        return;
    int const step = stepFor(level, lo, hi, s);
    std::int64_t next = cleanText().toInt();
    next = up ? next + step : next - step;
    if (next > hi)
        next = hi;
    if (next < lo)
        next = lo;
    next -= next % s; // toward zero onto the single-step grid
    setValue(static_cast<int>(next));
    // The committed value is what the box holds: a snap below the minimum (1..99 in
    // steps of 2, down from 3 gives 1, snapped to 0) is clamped back by setValue, and
    // the selection shape and the log follow the value shown, not the off-range 0.
    m_committed = value();
    if (hasFocus())
        setSelection();
    else
        unSelection();
    if (knobLogEnabled()) {
        qDebug().noquote() << QStringLiteral("[knobspin] singlestep(%1)-step(%2)-level(%3)-max(%4)-min(%5)-curVal(%6)")
                                  .arg(s)
                                  .arg(step)
                                  .arg(shortestFloat(level))
                                  .arg(hi)
                                  .arg(lo)
                                  .arg(m_committed);
    }
}

void NQSpinBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        knobStep(event->key() == Qt::Key_Up, knobLevel(event));
        event->accept();
        return;
    case Qt::Key_0: {
        QLineEdit* edit = lineEdit();
        if (edit->hasSelectedText() && edit->selectedText().length() == cleanText().length() - 1) {
            // "-12" with "12" selected: the 0 key jumps to zero instead of typing "-0".
            if (isValid(0)) {
                m_committed = 0;
                setValue(0);
                selectAll();
            }
            event->accept();
            return;
        }
        break;
    }
    case Qt::Key_Enter:
        clearFocus();
        event->accept();
        return;
    default:
        break;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void NQSpinBox::focusInEvent(QFocusEvent*)
{
    // The base handler would re-select the text its own way; the selection here is sign aware.
    setSelection();
    if (drawsFocusFrame())
        applyStyleSheet(this, QLatin1String(kFocusFrameSheet));
}

void NQSpinBox::focusOutEvent(QFocusEvent* event)
{
    unSelection();
    clearFocus();
    QAbstractSpinBox::focusOutEvent(event);
    m_committed = value();
    if (drawsFocusFrame())
        applyStyleSheet(this, QLatin1String(kNoFrameSheet));
    emit editFinished(event->reason());
}

QString NQSpinBox::stripAffixes(QString const& input) const { return stripped(input, prefix(), suffix()); }

QValidator::State NQSpinBox::validate(QString& input, int& pos) const
{
    QString const digits = stripAffixes(input);
    int const sign = digits.toInt(nullptr, 10);
    if ((sign >= 0 && input.length() > kMaxIntLength) || (sign < 0 && input.length() > kMaxNegativeIntLength))
        return QValidator::Invalid;
    bool ok = false;
    int const v = digits.toInt(&ok, displayIntegerBase());
    if (!ok)
        return QSpinBox::validate(input, pos);
    if (!isValid(v))
        return QValidator::Intermediate;
    int const s = singleStep();
    if (s > 0 && v % s != 0)
        return QValidator::Intermediate;
    return QValidator::Acceptable;
}

void NQSpinBox::fixup(QString& input) const
{
    bool ok = false;
    int v = stripAffixes(input).toInt(&ok, displayIntegerBase());
    if (!ok) {
        QSpinBox::fixup(input);
        return;
    }
    v = qBound(minimum(), v, maximum());
    v = calRoundOff(v);
    int const s = singleStep();
    if (v < minimum() && s > 0)
        v = clampToInt((static_cast<std::int64_t>(minimum()) / s + 1) * s);
    QString text = QString::number(v, displayIntegerBase());
    if (!prefix().isEmpty())
        text.prepend(prefix());
    if (!suffix().isEmpty())
        text.append(suffix());
    input = text;
}

// ===========================================================================
// NQDoubleSpinBox

NQDoubleSpinBox::NQDoubleSpinBox(QWidget* parent) : NQDoubleSpinBox(SuffixNone, QuitKeepValue, parent) {}

NQDoubleSpinBox::NQDoubleSpinBox(SuffixType suffix, QuitStrategy quit, QWidget* parent)
    : QDoubleSpinBox(parent), m_suffixType(suffix), m_quitStrategy(quit)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setKeyboardTracking(false);
    if (suffix == SuffixPercent || suffix == SuffixSecond)
        setSuffix(suffixText(suffix, false));
    setProperty("isCompomentsSpinBoxInput", true);
}

NQDoubleSpinBox::~NQDoubleSpinBox() = default;

void NQDoubleSpinBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_suffixType == SuffixSecond)
        setSuffix(suffixText(m_suffixType, false));
    QDoubleSpinBox::changeEvent(event);
}

double NQDoubleSpinBox::getStep(float level) const { return stepFor(level, minimum(), maximum(), singleStep()); }

double NQDoubleSpinBox::stepFor(float level, double minimum, double maximum, double singleStep)
{
    if (isUnitLevel(level))
        return singleStep;
    double const span = qMin(maximum - minimum, static_cast<double>(kSpanCap));
    double step = qMax(static_cast<double>(level) * span, 1.0) * singleStep;
    if (step > maximum)
        step = maximum;
    // The cap is the maximum itself: at a maximum of 0 or below (a -60..0 dB range)
    // it would stall the knob or turn it backwards. One single step then.
    if (step <= 0.0)
        step = singleStep;
    return step;
}

void NQDoubleSpinBox::setSelection()
{
    if (m_committed < 0)
        lineEdit()->setSelection(1, cleanText().length() - 1);
    else
        selectAll();
}

void NQDoubleSpinBox::unSelection() const { lineEdit()->deselect(); }

bool NQDoubleSpinBox::isValid(double value) const { return minimum() <= value && value <= maximum(); }

void NQDoubleSpinBox::setValueByManual(double value)
{
    // setValue would clamp NaN to the maximum while the committed value stayed NaN.
    if (std::isnan(value)) {
        qWarning().noquote() << QStringLiteral("[knobspin] setValueByManual: value is not a number, ignored");
        return;
    }
    bool const blocked = blockSignals(true);
    m_committed = value;
    setValue(value);
    blockSignals(blocked);
}

void NQDoubleSpinBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
        event->accept();
        double const cur = cleanText().toDouble();
        if (!isValid(cur))
            return; // a text outside the range is not stepped from
        float const level = knobLevel(event);
        double const step = getStep(level);
        double next = event->key() == Qt::Key_Up ? cur + step : cur - step;
        if (next > maximum())
            next = maximum();
        if (next < minimum())
            next = minimum();
        m_committed = next;
        setValue(next);
        setSelection();
        if (knobLogEnabled()) {
            qDebug().noquote() << QStringLiteral(
                                      "[knobspin] singlestep(%1)-step(%2)-level(%3)-max(%4)-min(%5)-curVal(%6)")
                                      .arg(shortestDouble(singleStep()), shortestDouble(step), shortestFloat(level),
                                           shortestDouble(maximum()), shortestDouble(minimum()),
                                           shortestDouble(m_committed));
        }
        return;
    }
    case Qt::Key_0: {
        QLineEdit* edit = lineEdit();
        if (edit->hasSelectedText() && edit->selectedText().length() == cleanText().length() - 1) {
            if (isValid(0.0)) {
                m_committed = 0.0;
                setValue(0.0);
                selectAll();
            }
            event->accept();
            return;
        }
        break;
    }
    case Qt::Key_Enter:
        clearFocus();
        event->accept();
        return;
    default:
        break;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void NQDoubleSpinBox::focusInEvent(QFocusEvent* event)
{
    selectAll();
    applyStyleSheet(this, QLatin1String(kDoubleFocusFrameSheet));
    QDoubleSpinBox::focusInEvent(event);
}

void NQDoubleSpinBox::focusOutEvent(QFocusEvent* event)
{
    unSelection();
    clearFocus();
    QAbstractSpinBox::focusOutEvent(event);
    m_committed = value();
    applyStyleSheet(this, QLatin1String(kDoubleNoFrameSheet));
    emit editFinished(event->reason());
}

QString NQDoubleSpinBox::stripAffixes(QString const& input) const { return stripped(input, prefix(), suffix()); }

QValidator::State NQDoubleSpinBox::validate(QString& input, int& pos) const
{
    if (input.length() > kMaxDoubleLength)
        return QValidator::Invalid;
    bool ok = false;
    double const v = stripAffixes(input).toDouble(&ok);
    if (!ok)
        return QDoubleSpinBox::validate(input, pos);
    return isValid(v) ? QValidator::Acceptable : QValidator::Intermediate;
}

void NQDoubleSpinBox::fixup(QString& input) const
{
    bool ok = false;
    double v = stripAffixes(input).toDouble(&ok);
    if (!ok) {
        QDoubleSpinBox::fixup(input);
        return;
    }
    v = qBound(minimum(), v, maximum());
    QString text = QString::number(v, 'g', 6);
    if (!prefix().isEmpty())
        text.prepend(prefix());
    if (!suffix().isEmpty())
        text.append(suffix());
    input = text;
}

} // namespace Widget
} // namespace LCD
