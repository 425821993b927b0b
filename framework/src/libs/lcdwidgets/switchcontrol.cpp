#include "switchcontrol.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

namespace LCD {
namespace Widget {

namespace {

constexpr int kMargin = 6;
const QColor kDefaultChecked(Qt::green);
const QColor kPressedChecked(7, 138, 0);
const QColor kDefaultDisabled(71, 74, 83);
const QColor kPressedDisabled(44, 46, 51);
// The rows' disabled look: a green track when on, a grey thumb.
const QColor kRowDisabledOn(0, 191, 76);
const QColor kRowDisabledThumb(153, 153, 153);

} // namespace

struct SwitchControl::Impl
{
    int height = -1;
    int width = -1;
    bool checked = false;
    bool customChecked = false;
    QColor background{255, 255, 255, 0x29}; // #29FFFFFF
    QColor checkedColor{kDefaultChecked};
    QColor disabledColor{kDefaultDisabled};
    QColor customCheckedColor{Qt::green};
    QColor disabledOffTrack{15, 26, 58};
    QColor disabledOffThumb{153, 153, 153};
    QColor thumb{Qt::white};
    double thumbX = 8.0;
    double corner = 0;
    QTimer timer;
};

SwitchControl::SwitchControl(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    setCursor(Qt::PointingHandCursor);
    connect(&d->timer, &QTimer::timeout, this, &SwitchControl::onTimeout);
    update();
}

SwitchControl::~SwitchControl() = default;

bool SwitchControl::isToggled() const { return d->checked; }

void SwitchControl::setToggle(bool checked)
{
    d->checked = checked;
    // The thumb goes straight to its end: a running slide stops on its next tick.
    d->thumbX = checked ? width() - height() / 2 : height() / 4;
    update();
    emit toggled(checked);
}

void SwitchControl::setBackgroundColor(QColor color)
{
    d->background = color;
    update();
}

void SwitchControl::setCheckedColor(QColor color)
{
    d->customCheckedColor = color;
    d->customChecked = true;
    update();
}

void SwitchControl::setDisbaledColor(QColor color)
{
    d->disabledColor = color;
    update();
}

void SwitchControl::setThumbColor(QColor color)
{
    d->thumb = color;
    update();
}

void SwitchControl::setSwitchSize(QSize size)
{
    // 2 x height must stay a valid widget width.
    if (size.height() < 1 || size.height() > QWIDGETSIZE_MAX / 2 || size.width() < 0 || size.width() > QWIDGETSIZE_MAX) {
        qDebug().noquote().nospace() << "SwitchControl::setSwitchSize: invalid size " << size.width() << "x"
                                     << size.height();
        return;
    }
    d->height = size.height();
    d->width = size.width();
    setFixedSize(2 * d->height, d->height);
}

bool SwitchControl::isSliding() const { return d->timer.isActive(); }

QSize SwitchControl::sizeHint() const
{
    int const h = height();
    return QSize(2 * (kMargin + h / 2), kMargin + (kMargin + h / 2));
}

QSize SwitchControl::minimumSizeHint() const { return sizeHint(); }

void SwitchControl::mousePressEvent(QMouseEvent* event)
{
    if (!isEnabled())
        return;
    if (!(event->buttons() & Qt::LeftButton)) {
        event->ignore();
        return;
    }
    // Pressed shade. An off switch's shade lands on a colour the enabled-off drawing
    // does not use, so pressing an off switch shows nothing.
    if (d->checked)
        d->checkedColor = kPressedChecked;
    else
        d->disabledColor = kPressedDisabled;
    event->accept();
    update();
}

void SwitchControl::mouseReleaseEvent(QMouseEvent* event)
{
    d->checkedColor = kDefaultChecked;
    d->disabledColor = kDefaultDisabled;
    if (isEnabled() && event->button() == Qt::LeftButton) {
        event->accept();
        d->checked = !d->checked;
        emit toggled(d->checked);
        d->timer.start(1);
    } else {
        event->ignore();
    }
    update();
}

void SwitchControl::paintEvent(QPaintEvent*)
{
    int const H = d->height;
    int const W = d->width;
    double const R = d->corner;
    bool const on = d->checked;

    QColor track;
    QColor thumb = d->thumb;
    qreal opacity;
    if (isEnabled()) {
        track = on ? (d->customChecked ? d->customCheckedColor : d->checkedColor) : d->background;
        opacity = on ? 0.6 : 0.8;
    } else {
        opacity = 0.26;
        if (on) {
            track = d->customChecked ? d->customCheckedColor : d->disabledColor;
        } else {
            track = d->disabledOffTrack;
            thumb = d->disabledOffThumb;
        }
    }
    double const X = on ? double(W) - 2 * (H / 2) + kMargin + 2 : kMargin + H / 4;
    // A slide moves the coordinate on its own; painting always shows the end position.
    if (!d->timer.isActive())
        d->thumbX = X;

    QPainter p(this);
    p.setPen(Qt::NoPen);
    p.setRenderHint(QPainter::Antialiasing, true);

    QPainterPath path;
    path.addRoundedRect(QRectF(kMargin, R - H / 4, W - 2 * kMargin, H), H / 2, H / 2, Qt::AbsoluteSize);
    p.setOpacity(opacity);
    p.setBrush(track);
    p.drawPath(path.simplified());

    double const left = on ? X - H / 8 : 0.45 * H - kMargin - 2 - 0.25 * (H / 2);
    p.setOpacity(1.0);
    p.setBrush(thumb);
    p.drawEllipse(QRectF(left, R - H / 4 + 0.1 * H, 0.8 * H, 0.8 * H));
}

void SwitchControl::resizeEvent(QResizeEvent* event)
{
    d->corner = d->height / 4;
    QFrame::resizeEvent(event);
}

void SwitchControl::onTimeout()
{
    int const w = width();
    int const h = height();
    bool done;
    if (d->checked) {
        d->thumbX += 1;
        done = d->thumbX >= w - 2 * (h / 2) - kMargin;
    } else {
        d->thumbX -= 1;
        done = d->thumbX <= h / 4;
    }
    // The drawing does not depend on the coordinate: one repaint when the slide ends
    // is enough (a repaint a millisecond would only cost time).
    if (done) {
        d->timer.stop();
        update();
    }
}

// ---------------------------------------------------------------------------

struct SwitchWidget::Impl
{
    SwitchControl* control = nullptr;
    QLabel* label = nullptr;
};

SwitchWidget::SwitchWidget(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    d->control = new SwitchControl(this);
    d->control->setObjectName(QStringLiteral("switchControl"));
    d->control->setFocusPolicy(Qt::NoFocus);
    d->label = new QLabel(this);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->label);
    layout->addStretch();
    layout->addWidget(d->control);
    // The frame itself is what the knob focuses in a row of switches.
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(QStringLiteral("QFrame:focus{border-radius:4px;background-color:rgba(255, 255, 255, 20);}"));
    connect(d->control, &SwitchControl::toggled, this, &SwitchWidget::signalSwitchControlStatusChanged);
}

SwitchWidget::~SwitchWidget() = default;

void SwitchWidget::setToggle(bool checked) { d->control->setToggle(checked); }

bool SwitchWidget::getToggle() const { return d->control->isToggled(); }

void SwitchWidget::setLabelText(QString const& text) { d->label->setText(text); }

void SwitchWidget::setSwitchSize(QSize size) { d->control->setSwitchSize(size); }

void SwitchWidget::setSwitchColor(QString const& color)
{
    QColor const c(color);
    if (!c.isValid()) {
        qDebug().noquote() << "SwitchWidget::setSwitchColor: invalid colour" << color;
        return;
    }
    d->control->setCheckedColor(c);
}

void SwitchWidget::setContentDisabled(bool disabled) const
{
    d->label->setDisabled(disabled);
    if (disabled) {
        d->control->setDisbaledColor(kRowDisabledOn);
        d->control->setThumbColor(kRowDisabledThumb);
    } else {
        d->control->setBackgroundColor(QColor(117, 130, 183));
        d->control->setThumbColor(Qt::white);
    }
    d->control->setDisabled(disabled);
}

void SwitchWidget::setContentFontSize(int size)
{
    if (size < 1) {
        qDebug().noquote().nospace() << "SwitchWidget::setContentFontSize: invalid font size " << size;
        return;
    }
    d->label->setStyleSheet(QStringLiteral("QLabel{font-size: %1px; }").arg(size));
}

SwitchControl* SwitchWidget::switchControl() const { return d->control; }

} // namespace Widget
} // namespace LCD
