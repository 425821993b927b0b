#include "remindertoastdialog.h"

#include "dialogutil_p.h"
#include "stylehelper.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QSpacerItem>
#include <QTimer>
#include <QVBoxLayout>

namespace LCD {
namespace Widget {

namespace {

char const* const kWho = "[ReminderToastDialog]";

int runToast(char const* helper, QWidget* parent, QString const& text, QRect rect, int ms, Enum::DialogType icon)
{
    if (text.isEmpty()) {
        qWarning().noquote() << kWho << helper << "text is empty: nothing shown";
        return QDialog::Rejected;
    }
    QPointer<ReminderToastDialog> dialog = new ReminderToastDialog(rect, parent);
    dialog->setDialogText(text);
    dialog->setDialgTipsTime(ms);
    dialog->setDialgIcon(icon);
    int const result = dialog->QDialog::exec();
    delete dialog.data(); // null when its parent took it along
    return result;
}

} // namespace

// Private state: hidden, unlike the exported class it belongs to.
struct __attribute__((visibility("hidden"))) ReminderToastDialog::Impl
{
    std::unique_ptr<QTimer> timer; // no Qt parent: owned here
    QLabel* text = nullptr;
    QLabel* icon = nullptr;
    QHBoxLayout* iconRow = nullptr;
    QHBoxLayout* textRow = nullptr;
    QVBoxLayout* frameLayout = nullptr;
    QString textValue;
    int interval = 2000;
    bool startTimer = true;
    QFrame* frame = nullptr;
    QRect rect;
    QSpacerItem* spacer = nullptr;
    float fontSize = 0;
};

ReminderToastDialog::ReminderToastDialog(QRect rect, QWidget* parent) : QDialog(parent), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    d->fontSize = DialogUtil::fontSize(d->rect);
    int const W = d->rect.width();
    int const H = d->rect.height();

    d->timer = std::make_unique<QTimer>();
    d->timer->setInterval(d->interval);
    connect(d->timer.get(), &QTimer::timeout, this, &ReminderToastDialog::slotCloseDialog);

    int const width = DialogUtil::part(W, 5, 8);
    int const height = DialogUtil::part(H, 2, 5);
    setFixedSize(width, height);
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("isReminderDialogBg", true);

    d->frame = new QFrame(this);
    d->frame->setObjectName(QStringLiteral("reminderToastFrame"));
    d->frame->setContentsMargins(0, 0, 0, 0);
    d->frame->setFixedSize(width, height);
    d->frame->setProperty("isWaitingDialogFrameBg", true);
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(d->frame, 0, Qt::AlignCenter);

    d->text = new QLabel(d->frame);
    d->text->setObjectName(QStringLiteral("reminderToastText"));
    d->text->setProperty("isLockPanelText", true);
    d->text->setFixedWidth(width * 4 / 5);
    d->text->setWordWrap(true);
    d->text->setAlignment(Qt::AlignCenter);

    d->icon = new QLabel(d->frame);
    d->icon->setObjectName(QStringLiteral("reminderToastIcon"));
    d->icon->setFixedSize(W / 16, H / 10);
    d->icon->setProperty("isReminderIcon", "question");
    d->icon->hide();
    d->icon->setAlignment(Qt::AlignCenter);

    d->iconRow = new QHBoxLayout;
    d->iconRow->addStretch();
    d->iconRow->addWidget(d->icon);
    d->iconRow->addStretch();
    d->textRow = new QHBoxLayout;
    d->textRow->addStretch();
    d->textRow->addWidget(d->text);
    d->textRow->addStretch();

    d->frameLayout = new QVBoxLayout(d->frame);
    d->frameLayout->setContentsMargins(W / 32, H / 20, W / 32, H / 20);
    d->frameLayout->addLayout(d->iconRow);
    d->spacer = new QSpacerItem(0, H / 40, QSizePolicy::Minimum, QSizePolicy::Expanding);
    d->frameLayout->addItem(d->spacer);
    d->frameLayout->addStretch();
    d->frameLayout->addLayout(d->textRow);
    d->frameLayout->addStretch();
}

ReminderToastDialog::~ReminderToastDialog()
{
    d->timer->stop();
    if (d->spacer && d->frameLayout->indexOf(d->spacer) < 0)
        delete d->spacer; // taken out of the layout by setBStartTimer
}

int ReminderToastDialog::information(QWidget* parent, QString const& text, QRect rect, int const& ms)
{
    return runToast("information", parent, text, rect, ms, Enum::DialogInformation);
}

int ReminderToastDialog::warning(QWidget* parent, QString const& text, QRect rect, int const& ms)
{
    return runToast("warning", parent, text, rect, ms, Enum::DialogWarning);
}

int ReminderToastDialog::error(QWidget* parent, QString const& text, QRect rect, int const& ms)
{
    return runToast("error", parent, text, rect, ms, Enum::DialogError);
}

int ReminderToastDialog::prosper(QWidget* parent, QString const& text, QRect rect, int const& ms)
{
    return runToast("prosper", parent, text, rect, ms, Enum::DialogProsper);
}

void ReminderToastDialog::setDialogText(QString const& text)
{
    d->textValue = text;
    d->text->setText(text);
}

QString ReminderToastDialog::dialogText() const { return d->textValue; }

void ReminderToastDialog::setDialgTipsTime(int ms)
{
    d->interval = qMax(0, ms);
    d->timer->setInterval(d->interval);
}

int ReminderToastDialog::dialogTipsTime() const { return d->interval; }

void ReminderToastDialog::setDialgIcon(Enum::DialogType type)
{
    static char const* const names[] = {"information", "question", "warning", "prosper", "error"};
    if (int(type) < 0 || int(type) > 4) {
        qWarning().noquote() << kWho << "setDialgIcon: unknown dialog type" << int(type);
        return;
    }
    d->icon->show();
    d->icon->setProperty("isReminderIcon", names[type]);
    repolish(d->icon);
    update();
}

void ReminderToastDialog::setBStartTimer(bool start)
{
    qDebug() << "setBStartTimer" << (start ? "true" : "false");
    d->startTimer = start;
    if (d->frameLayout->indexOf(d->spacer) >= 0)
        d->frameLayout->removeItem(d->spacer);
}

int ReminderToastDialog::exec()
{
    DialogUtil::ExecScope const scope(this, "exec");
    if (scope.refused())
        return QDialog::Rejected;
    return QDialog::exec();
}

void ReminderToastDialog::setDialogSize(QSize size)
{
    if (size.width() < 0 || size.height() < 0) {
        qWarning().noquote() << kWho << "setDialogSize: negative size refused" << size;
        return;
    }
    // No dialog is larger than the host's screen (nor could one be painted).
    size = size.boundedTo(d->rect.size());
    setFixedSize(size);
    d->frame->setFixedSize(size);
    d->text->setFixedWidth(size.width() * 4 / 5);
}

int ReminderToastDialog::getReminderToastDialogWidth() const { return width(); }

int ReminderToastDialog::getReminderToastDialogHeight() const { return height(); }

float ReminderToastDialog::getFontSize() const { return d->fontSize; }

void ReminderToastDialog::slotCloseDialog()
{
    qDebug() << "timeout close";
    bool const closed = close();
    qDebug() << "timeout close:" << closed;
}

void ReminderToastDialog::showEvent(QShowEvent* event)
{
    if (d->startTimer) {
        qDebug() << "showEvent:" << d->interval;
        d->timer->start(d->interval);
    }
    QPoint const pos = DialogUtil::centreOn(d->rect, size());
    qDebug().nospace() << "ReminderToastDialog pos x:" << pos.x() << ";y:" << pos.y();
    move(pos);
    d->text->setStyleSheet(DialogUtil::fontSheet("QLabel", DialogUtil::fontPixels(d->fontSize)));
    QDialog::showEvent(event);
}

void ReminderToastDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    DialogUtil::setRoundedMask(this, 6.0);
}

} // namespace Widget
} // namespace LCD
