#include "lockreminderdialog.h"

#include "dialogutil_p.h"
#include "lcdtranslate.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>
#include <atomic>

namespace LCD {
namespace Widget {

namespace {
char const* const kWho = "[LockReminderDialog]";

QString keyName(int key)
{
    switch (key) {
    case Qt::Key_Escape:
    case Qt::Key_Back:
        return lcdTranslate(QStringLiteral("Back"));
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return lcdTranslate(QStringLiteral("the knob"));
    default:
        return QKeySequence(key).toString(QKeySequence::NativeText);
    }
}
} // namespace

struct LCDWIDGETS_HIDDEN LockReminderDialog::Impl
{
    QRect rect;
    int width = 0;
    int height = 0;
    QFrame* frame = nullptr;
    QLabel* icon = nullptr;
    QLabel* text = nullptr;
    QTimer timer;
    std::atomic<int> executing{0};
};

LockReminderDialog::LockReminderDialog(QRect rect, QWidget* parent) : QDialog(nullptr), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    float const F = DialogUtil::fontSize(d->rect);
    int const N = DialogUtil::fontPixels(F);
    d->width = DialogUtil::part(d->rect.width(), 1, 2);
    d->height = DialogUtil::part(d->rect.height(), 1, 3);

    d->frame = DialogUtil::buildFramedWindow(this, QSize(d->width, d->height), QStringLiteral("lockReminderFrame"), "isWaitingDialogFrameBg");
    setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);

    d->icon = new QLabel(d->frame);
    d->icon->setObjectName(QStringLiteral("lockReminderIcon"));
    d->icon->setProperty("isLockReminderIcon", true);
    d->icon->setFixedSize(2 * N, 2 * N);
    d->text = new QLabel(d->frame);
    d->text->setObjectName(QStringLiteral("lockReminderText"));
    d->text->setProperty("isLockPanelText", true);
    d->text->setAlignment(Qt::AlignCenter);
    d->text->setWordWrap(true);
    d->text->setFixedWidth(d->width * 9 / 10);
    d->text->setStyleSheet(DialogUtil::fontSheet("QLabel", N));
    d->text->setText(unlockText(Qt::Key_Escape, 2000));

    int const margin = DialogUtil::part(d->rect.height(), 1, 20);
    auto* layout = new QVBoxLayout(d->frame);
    layout->setContentsMargins(0, margin, 0, margin);
    layout->setSpacing(margin / 2);
    layout->addStretch();
    layout->addWidget(d->icon, 0, Qt::AlignHCenter);
    layout->addWidget(d->text, 0, Qt::AlignHCenter);
    layout->addStretch();

    d->timer.setSingleShot(true);
    d->timer.setInterval(kDefaultDisplayTime);
    connect(&d->timer, &QTimer::timeout, this, [this] {
        qDebug().noquote() << kWho << "timeout close";
        close();
    });
    DialogUtil::closeWithParent(this, parent, kWho);
}

LockReminderDialog::~LockReminderDialog() = default;

int LockReminderDialog::remind(QWidget* parent, QString const& text, QRect rect, int ms)
{
    QPointer<LockReminderDialog> dialog = new LockReminderDialog(rect, parent);
    if (!text.isEmpty())
        dialog->setText(text);
    dialog->setDisplayTime(ms);
    int const result = dialog->exec();
    delete dialog.data();
    return result;
}

QString LockReminderDialog::unlockText(int key, int holdMs)
{
    return lcdTranslate(QStringLiteral("The panel is locked")) + QLatin1Char('\n') +
           lcdTranslate(QStringLiteral("Hold %1 for %2 s to unlock"))
               .arg(keyName(key), QString::number(qMax(0, holdMs) / 1000.0, 'g', 3));
}

void LockReminderDialog::setText(QString const& text) { d->text->setText(text); }

QString LockReminderDialog::text() const { return d->text->text(); }

void LockReminderDialog::setDisplayTime(int ms)
{
    if (ms < 0) {
        qWarning().noquote() << kWho << "setDisplayTime: negative time" << ms << "refused";
        return;
    }
    d->timer.setInterval(ms);
}

int LockReminderDialog::displayTime() const { return d->timer.interval(); }

void LockReminderDialog::restartTimer()
{
    if (isVisible())
        d->timer.start();
}

bool LockReminderDialog::isTimerActive() const { return d->timer.isActive(); }

int LockReminderDialog::getLockReminderDialogWidth() const { return d->width; }

int LockReminderDialog::getLockReminderDialogHeight() const { return d->height; }

bool LockReminderDialog::isExec() const { return d->executing.load() != 0; }

int LockReminderDialog::exec()
{
    return DialogUtil::execModal(this, &d->executing);
}

void LockReminderDialog::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        close();
        break;
    default:
        break;
    }
    event->accept();
}

void LockReminderDialog::showEvent(QShowEvent* event)
{
    QPoint const pos = DialogUtil::centreOn(d->rect, size());
    setGeometry(QRect(pos, size()));
    QDialog::showEvent(event);
    d->timer.start();
}

void LockReminderDialog::hideEvent(QHideEvent* event)
{
    d->timer.stop();
    QDialog::hideEvent(event);
}

} // namespace Widget
} // namespace LCD
