#include "blockdialog.h"

#include "dialogutil_p.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMovie>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {
constexpr int kSegments = 12;
QString const kLoadingImage = QStringLiteral("./../share/themes/default/images/icon_loading.gif");
} // namespace

// ---- TwelveSegmentVerticalProgressBar ----

TwelveSegmentVerticalProgressBar::TwelveSegmentVerticalProgressBar(QWidget* parent) : QProgressBar(parent) {}

int TwelveSegmentVerticalProgressBar::filledSegments() const
{
    qint64 const minimum = this->minimum();
    qint64 const range = qint64(maximum()) - minimum;
    if (range <= 0)
        return 0;
    qint64 const v = qBound<qint64>(minimum, value(), maximum());
    qint64 const n = (range / 2 + (v - minimum) * kSegments) / range;
    return int(qMin<qint64>(n, kSegments));
}

void TwelveSegmentVerticalProgressBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRect const r = rect();
    painter.fillRect(r, QColor(0x2a, 0x30, 0x38));

    int const left = r.left() + 1;
    int const right = r.right() - 1;
    int const top = r.top() + 1;
    int const h = r.bottom() - 1 - top;
    if (right - left < 0 || h < 0)
        return;
    int const n = filledSegments();
    int const s = h < 67 ? 1 : (h - 43) / kSegments;
    QColor const lit(0x00, 0xe6, 0x76);
    QColor const dark(0x1a, 0x1f, 0x28);
    int bottom = r.bottom(); // the segment's last row + 1
    for (int i = 0; i < kSegments; ++i) {
        painter.fillRect(QRect(left, bottom - s, right - left + 1, s), i < n ? lit : dark);
        bottom -= s + 4;
    }
}

// ---- BlockDialog ----

// Private state: hidden, unlike the exported class it belongs to.
class __attribute__((visibility("hidden"))) BlockDialog::Impl : public QObject
{
public:
    BlockDialog* dialog = nullptr;
    QWidget* body = nullptr;
    QLabel* text = nullptr;
    QLabel* image = nullptr;
    QMovie* movie = nullptr;
    TwelveSegmentVerticalProgressBar* bar = nullptr;
    QTimer* timer = nullptr;
    bool autoDelete = true;
    bool mapToGlobal = false;
    int duration = 0;
    int step = 0;

    void start()
    {
        if (!bar || !timer || duration < 1)
            return;
        stop();
        step = 0;
        bar->setValue(bar->minimum());
        timer->setInterval(duration > 23 ? duration / kSegments : 1);
        timer->start();
    }
    void stop()
    {
        timer->stop();
        step = 0;
    }
    void onEffectProgressTimeout()
    {
        ++step;
        if (step > kSegments - 1) {
            bar->setValue(bar->maximum());
            timer->stop();
        } else {
            qint64 const span = qint64(bar->maximum()) - bar->minimum();
            bar->setValue(int(bar->minimum() + span * step / kSegments));
        }
    }
};

BlockDialog::BlockDialog(QString const& text, QWidget* parent) : QDialog(parent), d(new Impl)
{
    d->dialog = this;
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    d->body = new QWidget(this);
    d->body->setObjectName(QStringLiteral("blockBody"));
    d->body->setProperty("style", "miniWidget1");
    d->body->setAttribute(Qt::WA_StyledBackground);
    d->text = new QLabel(d->body);
    d->text->setObjectName(QStringLiteral("blockText"));
    d->text->setProperty("fontSize", "XL");
    d->text->setAlignment(Qt::AlignCenter);
    d->text->setWordWrap(true);
    d->text->setTextFormat(Qt::PlainText);

    d->image = new QLabel(d->body);
    d->image->setObjectName(QStringLiteral("blockImage"));
    d->image->setFixedSize(128, 128);
    d->image->setAlignment(Qt::AlignHCenter);
    d->movie = new QMovie(kLoadingImage, QByteArray(), d.get());
    d->movie->setScaledSize(QSize(128, 128));
    d->image->setMovie(d->movie);

    d->bar = new TwelveSegmentVerticalProgressBar(d->body);
    d->bar->setObjectName(QStringLiteral("blockProgress"));
    d->bar->setOrientation(Qt::Vertical);
    d->bar->setTextVisible(false);
    d->bar->setRange(0, kSegments);
    d->bar->setValue(0);
    d->bar->setFixedSize(18, 120);
    d->bar->hide();

    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(d->image);
    row->addWidget(d->bar);
    row->addStretch();
    auto* bodyLayout = new QVBoxLayout(d->body);
    bodyLayout->setSpacing(12);
    bodyLayout->setContentsMargins(0, 0, 0, 0);
    bodyLayout->addStretch();
    bodyLayout->addLayout(row);
    bodyLayout->addWidget(d->text);
    bodyLayout->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->body);

    d->timer = new QTimer(d.get());
    connect(d->timer, &QTimer::timeout, d.get(), &Impl::onEffectProgressTimeout);
    setText(text);
}

BlockDialog::~BlockDialog() { d->timer->stop(); }

int BlockDialog::createBlockDialog(QString const& text, QWidget* parent)
{
    if (text.isEmpty()) {
        qWarning() << "[BlockDialog] createBlockDialog: text is empty: nothing shown";
        return QDialog::Rejected;
    }
    auto* dialog = new BlockDialog(QString(), parent);
    dialog->setText(text);
    return dialog->run();
}

void BlockDialog::setText(QString const& text) { d->text->setText(text); }

QString BlockDialog::text() const { return d->text->text(); }

void BlockDialog::setProgressBarVisible(bool visible) { d->bar->setVisible(visible); }

void BlockDialog::setProgressRange(int min, int max)
{
    if (min > max) {
        qWarning() << "[BlockDialog] setProgressRange: minimum" << min << "above maximum" << max;
        return;
    }
    d->bar->setRange(min, max);
}

void BlockDialog::setEffectDurationMs(int ms)
{
    d->duration = qMax(0, ms);
    d->start();
}

int BlockDialog::effectDurationMs() const { return d->duration; }

void BlockDialog::setAutoDelete(bool autoDelete) { d->autoDelete = autoDelete; }

void BlockDialog::setWinIsShow(bool mapToGlobal) { d->mapToGlobal = mapToGlobal; }

TwelveSegmentVerticalProgressBar* BlockDialog::progressBar() const { return d->bar; }

int BlockDialog::animationInterval() const { return d->timer->isActive() ? d->timer->interval() : 0; }

int BlockDialog::animationStep() const { return d->step; }

int BlockDialog::run()
{
    DialogUtil::ExecScope const scope(this, "run");
    if (scope.refused())
        return QDialog::Rejected;
    QPointer<BlockDialog> self(this);
    int const result = exec();
    if (self && d->autoDelete)
        deleteLater();
    return result;
}

void BlockDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (QWidget* parent = parentWidget()) {
        resize(parent->size());
        move(d->mapToGlobal ? parent->mapToGlobal(QPoint(0, 0)) : QPoint(0, 0));
    }
    d->movie->start();
}

void BlockDialog::hideEvent(QHideEvent* event)
{
    d->stop();
    d->movie->stop();
    QDialog::hideEvent(event);
}

void BlockDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace Widget
} // namespace LCD
