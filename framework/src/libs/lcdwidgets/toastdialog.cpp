#include "toastdialog.h"

#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>

namespace LCD {
namespace Widget {

namespace {
char const* const kImages[] = {"toast_warning", "toast_critical", "toast_info", "toast_success"};
} // namespace

// Private state: hidden, unlike the exported class it belongs to.
struct __attribute__((visibility("hidden"))) ToastDialog::Impl
{
    ToastDialog* dialog = nullptr;
    QWidget* body = nullptr;
    QLabel* icon = nullptr;
    QLabel* text = nullptr;
    QTimer* timer = nullptr; // single shot, started when the toast is shown
    bool permanent = false;
};

ToastDialog::ToastDialog(QString const& text, unsigned int const& ms, int popupType, bool permanent, QWidget* parent)
    : QDialog(parent), d(new Impl)
{
    d->dialog = this;
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_TranslucentBackground);
    d->permanent = permanent;

    d->body = new QWidget(this);
    d->body->setObjectName(QStringLiteral("toastBody"));
    d->body->setMinimumSize(320, 70);
    d->body->setProperty("style", "miniDialog");
    d->body->setAttribute(Qt::WA_StyledBackground);
    d->icon = new QLabel(d->body);
    d->icon->setObjectName(QStringLiteral("toastIcon"));
    d->icon->setFixedSize(32, 32);
    d->text = new QLabel(d->body);
    d->text->setObjectName(QStringLiteral("toastText"));
    d->text->setProperty("fontSize", "XL");
    auto* bodyLayout = new QHBoxLayout(d->body);
    bodyLayout->setSpacing(0);
    bodyLayout->setContentsMargins(32, 0, 32, 0);
    bodyLayout->addWidget(d->icon);
    bodyLayout->addSpacing(8);
    bodyLayout->addWidget(d->text);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->body);

    d->timer = new QTimer(this);
    d->timer->setSingleShot(true);
    // Bounded so that the timer's int interval cannot wrap round.
    d->timer->setInterval(int(qMin<unsigned int>(ms, unsigned(INT_MAX))));
    connect(d->timer, &QTimer::timeout, this, &QWidget::close);
    setToastText(text);
    setPopupType(popupType);
}

ToastDialog::~ToastDialog() = default;

ToastDialog* ToastDialog::createToastDialog(QString const& text, unsigned int const& ms, int popupType, bool permanent,
                                            QWidget* parent)
{
    if (text.isEmpty()) {
        qWarning() << "[ToastDialog] createToastDialog: text is empty: nothing shown";
        return nullptr;
    }
    auto* toast = new ToastDialog(text, ms, popupType, permanent, parent);
    // Only the toasts made here are ours to delete: one the caller made (on the stack,
    // say) stays the caller's.
    toast->setAttribute(Qt::WA_DeleteOnClose);
    toast->show();
    return toast;
}

void ToastDialog::setToastText(QString const& text) { d->text->setText(text); }

QString ToastDialog::toastText() const { return d->text->text(); }

void ToastDialog::setPermanent(bool permanent)
{
    d->permanent = permanent;
    if (permanent)
        d->timer->stop();
}

bool ToastDialog::isPermanent() const { return d->permanent; }

void ToastDialog::setPopupType(int type)
{
    if (type < 0 || type > 3) {
        qWarning() << "[ToastDialog] setPopupType: unknown popup type" << type;
        return;
    }
    setStyleProperty(d->icon, "image", kImages[type]);
}

void ToastDialog::showEvent(QShowEvent* event)
{
    if (QWidget* parent = parentWidget()) {
        adjustSize();
        QPoint const centre = parent->rect().center() - QPoint(width() / 2, height() / 2);
        move(parent->mapToGlobal(centre));
    }
    QDialog::showEvent(event);
    // The time counts from showing (again from each showing). A toast hidden by someone
    // else before its time still closes then: one of createToastDialog() goes away.
    if (!d->permanent && !event->spontaneous())
        d->timer->start();
}

void ToastDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace Widget
} // namespace LCD
