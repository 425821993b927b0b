#include "dashboardwidget.h"

#include "knoblevel.h"

#include <QDebug>
#include <QEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QPropertyAnimation>
#include <QtMath>
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace LCD {
namespace Widget {

const QColor DashBoardWidget::SELECTED_COLOR = QColor(255, 255, 255);
const QColor DashBoardWidget::DEFAULT_ARG_COLOR = QColor(19, 80, 159);
const QColor DashBoardWidget::DEFAULT_SCALE_COLOR = QColor(4, 168, 173);
const QColor DashBoardWidget::DEFAULT_POINTER_COLOR = QColor(4, 181, 200);
const QColor DashBoardWidget::DEFAULT_VALUETEXT_COLOR = QColor(144, 133, 116);
const QColor DashBoardWidget::FOCUS_ARG_COLOR = QColor(210, 105, 19);

namespace {

constexpr double kMaxAngle = 720.0;
constexpr int kMaxScale = 100;
constexpr int kMaxTicks = 1000;
constexpr int kMaxFraction = 10;
constexpr int kStepScale = 100;
constexpr char kFontFamily[] = "Microsoft YaHei";
// Largest face kept as a pixmap (in device pixels).
constexpr qint64 kMaxFacePixels = 2048 * 2048;

// The content font size every dial shares, and the dials that repaint with it.
int g_contentFontSize = 20;
std::vector<DashBoardWidget*>& liveDials()
{
    static std::vector<DashBoardWidget*> dials;
    return dials;
}

int clampToInt(double v)
{
    if (std::isnan(v))
        return 0;
    if (v >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (v <= double(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return static_cast<int>(v);
}

int clampToInt(qint64 v)
{
    return static_cast<int>(
        qBound<qint64>(std::numeric_limits<int>::min(), v, std::numeric_limits<int>::max()));
}

bool knobLogEnabled() { return QLoggingCategory::defaultCategory()->isDebugEnabled(); }

QString formatNumber(double v, int fraction)
{
    QString s = QString::number(v, 'f', fraction);
    // A negative value that rounds to zero reads "0", not "-0".
    if (s.startsWith(QLatin1Char('-')) && s.toDouble() == 0.0)
        s.remove(0, 1);
    return s;
}

} // namespace

struct LCDWIDGETS_HIDDEN DashBoardWidget::Impl
{
    double max = 100.0;
    double min = 0.0;
    double startAngle = -50.0;
    double endAngle = 230.0;
    double value = 0.0;
    double target = 0.0; // where the running animation ends
    int scaleMajor = 10;
    int scaleMinor = 5;
    int step = 100; // hundredths
    int arcWidth = 0;
    bool selected = false;
    int fraction = 1;
    int stepScale = kStepScale;
    QString unit = QString::fromLatin1("unit");
    QString text = QString::fromLatin1("test");
    QColor arcColor = DEFAULT_ARG_COLOR;
    QColor scaleColor = DEFAULT_SCALE_COLOR;
    QColor pointerColor = DEFAULT_POINTER_COLOR;
    QColor textColor = DEFAULT_VALUETEXT_COLOR;
    QColor backgroundColor = Qt::transparent;
    int realStep = 100;
    QPropertyAnimation* animation = nullptr;

    // The face (background, arc, ticks, numbers) drawn once and reused until a
    // setting it depends on changes.
    QPixmap face;
    bool faceValid = false;
    // The value font, and the last texts handed to signalDrawValueChanged.
    QFont valueFont;
    int valueFontPixels = 0;
    QString drawnValue;
    QString drawnUnit;
    bool drawnOnce = false;

    bool rangeValid() const { return min <= max; }
};

namespace {

// The face: background, arc, ticks and scale numbers (everything but the pointer and
// the value), with the origin of `p` at the widget's top-left corner.
// A template over the dial's private state, so that the helper stays local to this
// file (a member of the exported class's state would be exported with it).
template <typename State>
void drawFace(State const& st, QPainter& p, int w, int h)
{
    int const side = qMin(w, h);
    double const R = side / 3.0;
    double const span = st.endAngle - st.startAngle;
    // 1. Background.
    if (st.backgroundColor != QColor(Qt::transparent)) {
        p.setPen(Qt::NoPen);
        p.fillRect(QRect(0, 0, w, h), st.backgroundColor);
    }
    // 2. Origin in the middle.
    p.translate(w / 2, h / 2);

    // 3. Arc.
    int const penWidth = st.arcWidth > 0 ? st.arcWidth : side / 15;
    double const r = R - penWidth;
    QPen arcPen(st.arcColor, penWidth, Qt::SolidLine, Qt::FlatCap);
    p.setPen(arcPen);
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(-r, -r, 2 * r, 2 * r), clampToInt(st.startAngle * 16), clampToInt(span * 16));

    // 4. Ticks.
    p.save();
    p.rotate(270.0 - st.endAngle);
    int const n = st.scaleMajor * st.scaleMinor;
    double const tickStep = span / n;
    QPen tickPen(st.scaleColor, 1.0, Qt::SolidLine, Qt::RoundCap);
    for (int i = 0; i <= n; ++i) {
        if (i % st.scaleMinor == 0) {
            tickPen.setWidthF(1.5);
            p.setPen(tickPen);
            p.drawLine(QPointF(0, R - 8), QPointF(0, R + 5));
        } else {
            tickPen.setWidthF(0.5);
            p.setPen(tickPen);
            p.drawLine(QPointF(0, R - 8), QPointF(0, R - 3));
        }
        p.rotate(tickStep);
    }
    p.restore();

    // 5. Scale numbers.
    p.setPen(st.scaleColor);
    QFont font(QString::fromLatin1(kFontFamily));
    font.setPointSize(qMax(1, side / 25));
    p.setFont(font);
    QFontMetricsF const fm(font);
    double const radius = side / 2.4;
    for (int i = 0; i <= st.scaleMajor; ++i) {
        double const angle = qDegreesToRadians(st.endAngle - i * span / st.scaleMajor);
        double const number = st.min + i * (st.max - st.min) / st.scaleMajor;
        QString const s = formatNumber(number, st.fraction);
        double const x = radius * std::cos(angle) - fm.horizontalAdvance(s) / 2;
        double const y = -radius * std::sin(angle) + fm.height() / 4;
        p.drawText(QPointF(x, y), s);
    }
}

} // namespace

DashBoardWidget::DashBoardWidget(QWidget* parent) : QWidget(parent), d(std::make_unique<Impl>())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    d->animation = new QPropertyAnimation(this, QByteArrayLiteral("value"), this);
    d->animation->setDuration(250);
    d->animation->setEasingCurve(QEasingCurve::OutCubic);
    connect(this, &DashBoardWidget::valueChanged, this, &DashBoardWidget::onStartAnimation);
    installEventFilter(this);
    liveDials().push_back(this);
}

DashBoardWidget::~DashBoardWidget()
{
    auto& dials = liveDials();
    dials.erase(std::remove(dials.begin(), dials.end(), this), dials.end());
    // Stop and drop the animation before the state it drives goes away.
    d->animation->stop();
    delete d->animation;
    d->animation = nullptr;
}

// ---------------------------------------------------------------------------
// Properties

void DashBoardWidget::setMin(double min)
{
    if (!std::isfinite(min)) {
        qWarning() << "[DashBoardWidget] setMin: not a finite number, ignored";
        return;
    }
    d->min = min;
    d->faceValid = false;
    update();
}

double DashBoardWidget::min() const { return d->min; }

void DashBoardWidget::setmax(double max)
{
    if (!std::isfinite(max)) {
        qWarning() << "[DashBoardWidget] setmax: not a finite number, ignored";
        return;
    }
    d->max = max;
    d->faceValid = false;
    update();
}

double DashBoardWidget::max() const { return d->max; }

void DashBoardWidget::setStartAngle(double angle)
{
    if (!(angle >= -kMaxAngle && angle <= kMaxAngle)) { // NaN fails too
        qWarning() << "[DashBoardWidget] setStartAngle: angle out of range, ignored:" << angle;
        return;
    }
    d->startAngle = angle;
    d->faceValid = false;
    update();
}

double DashBoardWidget::startAngle() const { return d->startAngle; }

void DashBoardWidget::setEndAngle(double angle)
{
    if (!(angle >= -kMaxAngle && angle <= kMaxAngle)) {
        qWarning() << "[DashBoardWidget] setEndAngle: angle out of range, ignored:" << angle;
        return;
    }
    d->endAngle = angle;
    d->faceValid = false;
    update();
}

double DashBoardWidget::endAngle() const { return d->endAngle; }

void DashBoardWidget::setScaleMajor(int count)
{
    if (count < 1 || count > kMaxScale || qint64(count) * d->scaleMinor > kMaxTicks) {
        qWarning() << "[DashBoardWidget] setScaleMajor: scale out of range, ignored:" << count;
        return;
    }
    d->scaleMajor = count;
    d->faceValid = false;
    update();
}

int DashBoardWidget::scaleMajor() const { return d->scaleMajor; }

void DashBoardWidget::setScaleMinor(int count)
{
    if (count < 1 || count > kMaxScale || qint64(count) * d->scaleMajor > kMaxTicks) {
        qWarning() << "[DashBoardWidget] setScaleMinor: scale out of range, ignored:" << count;
        return;
    }
    d->scaleMinor = count;
    d->faceValid = false;
    update();
}

int DashBoardWidget::scaleMinor() const { return d->scaleMinor; }

void DashBoardWidget::setUnit(QString const& unit)
{
    d->unit = unit;
    update();
}

QString DashBoardWidget::unit() const { return d->unit; }

void DashBoardWidget::setText(QString const& text)
{
    d->text = text;
    update();
}

QString DashBoardWidget::text() const { return d->text; }

void DashBoardWidget::setArcColor(QColor const& color)
{
    if (color == d->arcColor)
        return;
    d->arcColor = color;
    d->faceValid = false;
    update();
}

QColor DashBoardWidget::arcColor() const { return d->arcColor; }

void DashBoardWidget::setScaleColor(QColor const& color)
{
    d->scaleColor = color;
    d->faceValid = false;
    update();
}

QColor DashBoardWidget::scaleColor() const { return d->scaleColor; }

void DashBoardWidget::setPointerColor(QColor const& color)
{
    d->pointerColor = color;
    update();
}

QColor DashBoardWidget::pointerColor() const { return d->pointerColor; }

void DashBoardWidget::setTextColor(QColor const& color)
{
    d->textColor = color;
    update();
}

QColor DashBoardWidget::textColor() const { return d->textColor; }

void DashBoardWidget::setBackgroundColor(QColor const& color)
{
    d->backgroundColor = color;
    d->faceValid = false;
    update();
}

QColor DashBoardWidget::backgroundColor() const { return d->backgroundColor; }

void DashBoardWidget::setValue(double value)
{
    if (!std::isfinite(value)) {
        qWarning() << "[DashBoardWidget] setValue: not a finite number, ignored";
        return;
    }
    d->value = value;
    if (d->animation->state() != QAbstractAnimation::Running)
        d->target = value;
    update();
}

double DashBoardWidget::value() const { return d->value; }

double DashBoardWidget::targetValue() const { return d->target; }

void DashBoardWidget::setCurrentValue(double value)
{
    if (!std::isfinite(value)) {
        qWarning() << "[DashBoardWidget] setCurrentValue: not a finite number, ignored";
        return;
    }
    d->animation->stop();
    setValue(value);
}

bool DashBoardWidget::isAnimating() const { return d->animation->state() == QAbstractAnimation::Running; }

void DashBoardWidget::setStep(double step)
{
    if (!std::isfinite(step)) {
        qWarning() << "[DashBoardWidget] setStep: not a finite number, ignored";
        return;
    }
    d->step = clampToInt(step * kStepScale);
}

double DashBoardWidget::step() const { return double(d->step) / kStepScale; }

void DashBoardWidget::setFraction(int decimals)
{
    if (decimals < 0 || decimals > kMaxFraction) {
        qWarning() << "[DashBoardWidget] setFraction: decimals out of range, ignored:" << decimals;
        return;
    }
    d->fraction = decimals;
    d->faceValid = false;
    update();
}

int DashBoardWidget::fraction() const { return d->fraction; }

void DashBoardWidget::setSelected(bool selected)
{
    d->selected = selected;
    setArcColor(selected ? SELECTED_COLOR : DEFAULT_ARG_COLOR);
}

bool DashBoardWidget::isSelected() const { return d->selected; }

void DashBoardWidget::setItemSize(QSize size)
{
    if (size.width() < 0 || size.height() < 0) {
        qWarning() << "[DashBoardWidget] setItemSize: negative size, ignored:" << size;
        return;
    }
    setFixedSize(size.boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
    update();
}

void DashBoardWidget::setDashBoardData(DashBoardData const& data)
{
    if (data.min > data.max) {
        qWarning() << "[DashBoardWidget] setDashBoardData: minimum" << data.min << "above maximum" << data.max
                   << ", ignored";
        return;
    }
    setFraction(data.fraction);
    setmax(data.max);
    setMin(data.min);
    setStartAngle(data.startAngle);
    setEndAngle(data.endAngle);
    setScaleMajor(data.scaleMajor);
    setScaleMinor(data.scaleMinor);
    setUnit(data.unit);
    setText(data.text);
    setStep(data.step);
    setCurrentValue(d->min);
}

void DashBoardWidget::setContentFontSize(int size)
{
    // Past kMaxFontSize the derived sizes overflow and no dial could show the text.
    if (size < 1 || size > kMaxFontSize) {
        qWarning() << "[DashBoardWidget] setContentFontSize: size refused:" << size;
        return;
    }
    g_contentFontSize = size;
    for (DashBoardWidget* dial : liveDials())
        dial->update();
}

int DashBoardWidget::getContentFontSize() { return g_contentFontSize; }

QSize DashBoardWidget::minimumSizeHint() const { return QSize(60, 60); }

QSize DashBoardWidget::sizeHint() const { return QSize(180, 180); }

// ---------------------------------------------------------------------------
// Knob

int DashBoardWidget::getRealStep(float factor) const
{
    int const s = d->step;
    if (std::isnan(factor) || std::fabs(factor - 1.0f) < 1e-6f)
        return s;
    double const range = (d->max - d->min) * d->stepScale;
    qint64 r = clampToInt(range);
    // Single precision as the knob driver computes it; clamped before the cast.
    qint64 const k = clampToInt(double(float(r) * factor));
    if (k >= 2) {
        qint64 const sk = qint64(s) * k; // both within int: no overflow in 64 bits
        r = range < double(sk) ? r : sk;
    } else if (range >= s) {
        return s;
    }
    if (s == 0)
        return 0;
    return clampToInt((r / s) * s);
}

int DashBoardWidget::realStep() const { return d->realStep; }

void DashBoardWidget::valueChange(bool up)
{
    if (knobLogEnabled())
        qDebug() << "DashBoardWidget::valueChange d->realStep:" << d->realStep;
    if (!d->rangeValid())
        return;
    double const delta = std::fabs(double(d->realStep)) / d->stepScale;
    double v = up ? d->target + delta : d->target - delta;
    v = qBound(d->min, v, d->max);
    // Rounded to the decimals shown.
    v = formatNumber(v, d->fraction).toDouble();
    onStartAnimation(v);
}

void DashBoardWidget::onStartAnimation(double value)
{
    if (!(value >= d->min && value <= d->max) || value == d->target) // NaN fails the first test
        return;
    emit signalValueChanged(QVariant(value));
    d->animation->stop();
    d->target = value;
    d->animation->setStartValue(d->value);
    d->animation->setEndValue(value);
    d->animation->start();
}

QString DashBoardWidget::formatValue(double value) const { return formatNumber(value, d->fraction); }

bool DashBoardWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != this)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
        setArcColor(FOCUS_ARG_COLOR);
        break;
    case QEvent::FocusOut:
        setSelected(d->selected);
        break;
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        d->realStep = getRealStep(knobLevel(key));
        switch (key->key()) {
        case Qt::Key_Up:
            valueChange(false);
            return true;
        case Qt::Key_Down:
            valueChange(true);
            return true;
        case Qt::Key_Escape:
            emit signalCloseEditStatus();
            return true;
        case Qt::Key_Enter:
        case Qt::Key_Return:
            emit signalValueChanged(QVariant(formatValue(d->target).toFloat()));
            emit signalEditFinished();
            return true;
        default:
            break;
        }
        break;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------
// Painting

void DashBoardWidget::resizeEvent(QResizeEvent* event)
{
    d->faceValid = false;
    QWidget::resizeEvent(event);
}

void DashBoardWidget::paintEvent(QPaintEvent*)
{
    int const w = width();
    int const h = height();
    int const side = qMin(w, h);
    if (side <= 0)
        return;
    double const R = side / 3.0;
    double const span = d->endAngle - d->startAngle;

    // The face is drawn once into a pixmap and reused while nothing it shows changes;
    // a dial too large for a sensible pixmap draws it straight away.
    qreal const dpr = devicePixelRatioF();
    bool const cached = qint64(w) * h * dpr * dpr <= kMaxFacePixels;
    if (cached && (!d->faceValid || d->face.devicePixelRatioF() != dpr)) {
        d->face = QPixmap(QSize(w, h) * dpr);
        d->face.setDevicePixelRatio(dpr);
        d->face.fill(Qt::transparent);
        QPainter p(&d->face);
        p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        drawFace(*d, p, w, h);
        d->faceValid = true;
    }

    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (!isEnabled())
        painter.setOpacity(0.4);
    if (cached) {
        painter.drawPixmap(0, 0, d->face);
    } else {
        d->face = QPixmap();
        painter.save();
        drawFace(*d, painter, w, h);
        painter.restore();
    }
    painter.translate(w / 2, h / 2);

    // 6. Pointer.
    double const range = d->max - d->min;
    double turn = 0.0;
    if (range > 0.0)
        turn = span / range * (qBound(d->min, d->value, d->max) - d->min);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(d->pointerColor);
    painter.rotate(270.0 - d->endAngle);
    painter.rotate(turn);
    QPointF const pointer[4] = {QPointF(-5, 0), QPointF(0, -8), QPointF(5, 0), QPointF(0, R)};
    painter.drawConvexPolygon(pointer, 4);
    painter.restore();

    // 7. Value text.
    QString const valueText = formatValue(d->value);
    if (d->textColor.alpha() > 0) {
        int const pixels = qMax(1, g_contentFontSize / 2);
        if (pixels != d->valueFontPixels) {
            d->valueFont = QFont(QString::fromLatin1(kFontFamily));
            d->valueFont.setPixelSize(pixels);
            d->valueFontPixels = pixels;
        }
        painter.setPen(d->textColor);
        painter.setFont(d->valueFont);
        painter.drawText(QRectF(-R, R * 0.45, 2 * R, pixels * 1.6), Qt::AlignCenter, valueText);
    }
    if (!d->drawnOnce || valueText != d->drawnValue || d->unit != d->drawnUnit) {
        d->drawnOnce = true;
        d->drawnValue = valueText;
        d->drawnUnit = d->unit;
        emit signalDrawValueChanged(valueText, d->unit);
    }
}

void DashBoardWidget::setMinimum(double min) { setMin(min); }

void DashBoardWidget::setMaximum(double max) { setmax(max); }

} // namespace Widget
} // namespace LCD
