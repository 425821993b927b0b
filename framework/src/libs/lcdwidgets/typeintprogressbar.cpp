#include "typeintprogressbar.h"

#include "spinrow_p.h"
#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <cmath>
#include <limits>

namespace LCD {
namespace Widget {

namespace {
constexpr int kBarResolution = 1000; // the bar itself runs 0..1000
constexpr int kDefaultBarWidth = 200;
} // namespace

struct LCDWIDGETS_HIDDEN TypeIntProgressBar::Impl
{
    QProgressBar* bar = nullptr;
    int minimum = 0;
    int maximum = 100;
    int value = 0;
    int percent = -1;
    bool finished = false;
};

TypeIntProgressBar::TypeIntProgressBar(QWidget* parent) : CommonItemType(parent), d(std::make_unique<Impl>())
{
    setRightIconButtonHide(true);
    d->bar = new QProgressBar(dynamicFrame());
    d->bar->setRange(0, kBarResolution);
    d->bar->setTextVisible(true);
    d->bar->setAlignment(Qt::AlignCenter);
    d->bar->setFixedWidth(kDefaultBarWidth);
    d->bar->setFocusPolicy(Qt::NoFocus);
    d->bar->setProperty("isItemProgressBar", true);
    d->bar->setProperty("progressFinished", false);
    dynamicLayout()->addStretch();
    dynamicLayout()->addWidget(d->bar);
    refresh();
}

TypeIntProgressBar::~TypeIntProgressBar() = default;

void TypeIntProgressBar::refresh()
{
    qint64 const span = qint64(d->maximum) - d->minimum;
    qint64 const done = qint64(d->value) - d->minimum;
    int const percent = span > 0 ? int(done * 100 / span) : 0;
    d->bar->setValue(span > 0 ? int(done * kBarResolution / span) : 0);
    if (percent != d->percent) {
        d->percent = percent;
        d->bar->setFormat(QStringLiteral("%1%").arg(percent));
    }
    bool const finished = percent >= 100;
    if (finished != d->finished) {
        d->finished = finished;
        setStyleProperty(d->bar, "progressFinished", finished);
    }
}

void TypeIntProgressBar::setLabelValue(QVariant value, int)
{
    bool ok = false;
    double const v = value.toDouble(&ok);
    if (!ok || std::isnan(v)) {
        qWarning().noquote() << QStringLiteral("[TypeIntProgressBar] setLabelValue: value is not a number, ignored");
        return;
    }
    double const whole = qBound(double(std::numeric_limits<int>::min()), std::trunc(v),
                                double(std::numeric_limits<int>::max()));
    setValue(static_cast<int>(whole));
}

QVariant TypeIntProgressBar::getLabelValue() { return QVariant(d->value); }

void TypeIntProgressBar::editValue() {}

void TypeIntProgressBar::setRange(int minimum, int maximum)
{
    if (minimum >= maximum) {
        qWarning().noquote()
            << QStringLiteral("[TypeIntProgressBar] setRange: %1..%2 is not a range, ignored").arg(minimum).arg(maximum);
        return;
    }
    d->minimum = minimum;
    d->maximum = maximum;
    d->value = qBound(minimum, d->value, maximum);
    refresh();
}

void TypeIntProgressBar::setRange(float minimum, float maximum)
{
    setRange(truncateToInt(minimum), truncateToInt(maximum));
}

void TypeIntProgressBar::setContentDisabled(bool disabled) const { d->bar->setDisabled(disabled); }

void TypeIntProgressBar::setValue(int value)
{
    d->value = qBound(d->minimum, value, d->maximum);
    refresh();
}

int TypeIntProgressBar::value() const { return d->value; }
int TypeIntProgressBar::minimum() const { return d->minimum; }
int TypeIntProgressBar::maximum() const { return d->maximum; }
int TypeIntProgressBar::percent() const { return d->percent; }
QString TypeIntProgressBar::text() const { return d->bar->format(); }

void TypeIntProgressBar::setBarWidth(int width)
{
    if (width < 1 || width > QWIDGETSIZE_MAX) {
        qWarning().noquote() << QStringLiteral("[TypeIntProgressBar] setBarWidth: %1 is not a width, ignored").arg(width);
        return;
    }
    d->bar->setFixedWidth(width);
}

QProgressBar* TypeIntProgressBar::progressBar() const { return d->bar; }

} // namespace Widget
} // namespace LCD
