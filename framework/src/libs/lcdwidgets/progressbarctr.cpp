#include "progressbarctr.h"

#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>
#include <climits>
#include <cmath>

namespace LCD {
namespace Widget {

namespace {

// The largest task count whose bar range (100 per task) still fits an int.
constexpr int kMaxCount = INT_MAX / 100;

// Truncates toward zero into the int range (NaN gives 0).
int truncToInt(double v)
{
    if (std::isnan(v))
        return 0;
    if (v >= double(INT_MAX))
        return INT_MAX;
    if (v <= double(INT_MIN))
        return INT_MIN;
    return int(v);
}

// A 64-bit size clamped into what a widget accepts.
int widgetSize(qint64 v) { return int(qBound<qint64>(0, v, QWIDGETSIZE_MAX)); }

QString percentText(int percent) { return QStringLiteral("%1%").arg(percent); }

} // namespace

struct LCDWIDGETS_HIDDEN ProgressBarCtr::Impl
{
    enum class Result { None, Succeed, Failure };

    QRect rect;
    int count = 1;
    QProgressBar* bar = nullptr;
    QLabel* valueLabel = nullptr;
    QLabel* infoLabel = nullptr;
    QColor colour;
    Result result = Result::None;

    void setColour(QColor const& c, bool force = false)
    {
        if (c == colour && !force)
            return;
        colour = c;
        QPalette p = valueLabel->palette();
        for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            p.setBrush(group, QPalette::ButtonText, QBrush(c));
        valueLabel->setPalette(p);
    }

    void show(QColor const& c, int barValue, QString const& text, Result r)
    {
        setColour(c);
        // QProgressBar ignores a value outside its range and would keep the old one:
        // past the end the bar is full, below the start empty.
        bar->setValue(qBound(bar->minimum(), barValue, bar->maximum()));
        valueLabel->setText(text);
        result = r;
    }
};

ProgressBarCtr::ProgressBarCtr(QRect rect, QWidget* parent) : QWidget(parent), d(new Impl)
{
    d->rect = rect;
    int const width = widgetSize(qint64(rect.width()) * 5 / 8);
    int const height = widgetSize(rect.height() / 10);

    d->infoLabel = new QLabel(this);
    d->infoLabel->setObjectName(QStringLiteral("progressInfoLabel"));
    d->infoLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    d->infoLabel->setProperty("isProgressText", true);
    d->infoLabel->setMinimumWidth(80);

    d->valueLabel = new QLabel(QStringLiteral("1%"), this);
    d->valueLabel->setObjectName(QStringLiteral("progressValueLabel"));
    d->valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->valueLabel->setProperty("isProgressText", true);
    d->valueLabel->setMinimumWidth(80);
    // The result colour lives in ButtonText; make the label draw with it.
    d->valueLabel->setForegroundRole(QPalette::ButtonText);

    d->bar = new QProgressBar(this);
    d->bar->setObjectName(QStringLiteral("progressBar"));
    d->bar->setTextVisible(false);
    d->bar->setRange(0, 100);
    d->bar->setValue(0);
    d->bar->setFixedSize(width, height);

    auto* textRow = new QWidget(this);
    textRow->setObjectName(QStringLiteral("progressTextRow"));
    textRow->setFixedWidth(width);
    auto* textLayout = new QHBoxLayout(textRow);
    textLayout->setContentsMargins(0, 0, 0, 0);
    textLayout->setSpacing(0);
    textLayout->setAlignment(Qt::AlignVCenter);
    textLayout->addWidget(d->infoLabel);
    textLayout->addStretch();
    textLayout->addWidget(d->valueLabel);

    auto* barRow = new QWidget(this);
    barRow->setObjectName(QStringLiteral("progressBarRow"));
    barRow->setFixedWidth(width);
    auto* barLayout = new QHBoxLayout(barRow);
    barLayout->setContentsMargins(0, 0, 0, 0);
    barLayout->setSpacing(0);
    barLayout->addWidget(d->bar);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(textRow, 0, Qt::AlignLeft);
    layout->addWidget(barRow, 0, Qt::AlignLeft);

    d->setColour(Qt::white, true);
}

ProgressBarCtr::~ProgressBarCtr() = default;

void ProgressBarCtr::setCount(int n)
{
    if (n < 0) {
        qWarning() << "[ProgressBarCtr] negative task count refused:" << n;
        return;
    }
    if (n > kMaxCount) {
        qWarning() << "[ProgressBarCtr] task count" << n << "clamped to" << kMaxCount;
        n = kMaxCount;
    }
    d->count = n == 0 ? 1 : n;
    d->bar->setRange(0, 100 * d->count);
}

int ProgressBarCtr::count() const { return d->count; }

void ProgressBarCtr::setCurrentValue(double v)
{
    if (std::isnan(v)) {
        qWarning() << "[ProgressBarCtr] progress value is not a number";
        return;
    }
    int const percent = truncToInt(v / d->count);
    d->show(Qt::white, truncToInt(v), percentText(percent), Impl::Result::None);
    if (percent == 100)
        setFinish();
    update();
}

double ProgressBarCtr::currentValue() const { return d->bar->value(); }

void ProgressBarCtr::setFinish() { d->show(Qt::green, d->bar->maximum(), tr("Succeed"), Impl::Result::Succeed); }

void ProgressBarCtr::setError() { d->show(Qt::red, 0, tr("Failure"), Impl::Result::Failure); }

void ProgressBarCtr::setError(QString text) { d->show(Qt::red, 0, text, Impl::Result::None); }

void ProgressBarCtr::setInfo(QString text) { d->show(Qt::white, 0, text, Impl::Result::None); }

void ProgressBarCtr::Clear() { d->show(Qt::white, 0, percentText(0), Impl::Result::None); }

void ProgressBarCtr::setProgressText(QString text) { d->infoLabel->setText(text); }

void ProgressBarCtr::setFontSize(int size)
{
    if (size <= 0) {
        qWarning() << "[ProgressBarCtr] font size refused:" << size;
        return;
    }
    QString const sheet = QStringLiteral("QLabel{font-size: ") + QString::number(size) + QStringLiteral("px; }");
    d->infoLabel->setStyleSheet(sheet);
    d->valueLabel->setStyleSheet(sheet);
    // A new style sheet re-polishes the label; keep the result colour.
    d->setColour(d->colour, true);
    setFixedHeight(widgetSize(qint64(size) * 5 / 2));
}

void ProgressBarCtr::setProcessShow(bool show)
{
    d->bar->setVisible(show);
    d->valueLabel->setVisible(show);
}

void ProgressBarCtr::setValueLabelVisable(bool visible) { d->valueLabel->setVisible(visible); }

int ProgressBarCtr::getReminderDialogWidth() const { return widgetSize(qint64(d->rect.width()) * 11 / 16); }

int ProgressBarCtr::getReminderDialogHeight() const { return widgetSize(qint64(d->rect.height()) * 3 / 5); }

void ProgressBarCtr::setSpecialValue(double v)
{
    if (std::isnan(v)) {
        qWarning() << "[ProgressBarCtr] progress value is not a number";
        return;
    }
    int const percent = qMin(100, truncToInt(v / d->count));
    d->show(Qt::white, truncToInt(v), percentText(percent), Impl::Result::None);
    update();
}

void ProgressBarCtr::setSpecialProcess(double percent)
{
    if (std::isnan(percent)) {
        qWarning() << "[ProgressBarCtr] progress value is not a number";
        return;
    }
    double const p = qBound(0.0, percent, 100.0);
    int const shown = truncToInt(p);
    d->show(Qt::white, truncToInt(p * d->count), percentText(shown), Impl::Result::None);
    if (shown == 100)
        setFinish();
    update();
}

void ProgressBarCtr::setProcess(double value)
{
    if (std::isnan(value) || value < 0) {
        setError();
        update();
        return;
    }
    setCurrentValue(value);
}

QString ProgressBarCtr::valueText() const { return d->valueLabel->text(); }

void ProgressBarCtr::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        if (d->result == Impl::Result::Succeed)
            d->valueLabel->setText(tr("Succeed"));
        else if (d->result == Impl::Result::Failure)
            d->valueLabel->setText(tr("Failure"));
    }
    QWidget::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
