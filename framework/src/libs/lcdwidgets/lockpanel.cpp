#include "lockpanel.h"

#include "dialogutil_p.h"
#include "lcdtranslate.h"
#include "lockreminderdialog.h"

#include <QApplication>
#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>

namespace LCD {
namespace Widget {

namespace {
char const* const kWho = "[LockPanel]";

bool isKeyEvent(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}
} // namespace

struct LCDWIDGETS_HIDDEN LockPanel::Impl
{
    QRect rect;
    bool locked = false;
    bool filtering = false;
    int unlockKey = Qt::Key_Escape;
    int holdMs = kDefaultHoldTime;
    int reminderMs = LockReminderDialog::kDefaultDisplayTime;
    QString reminderText;
    QTimer hold;
    // The unlock key is down (its press was seen while locked).
    bool keyDown = false;
    QPointer<LockReminderDialog> reminder;
    QLabel* icon = nullptr;
    QLabel* text = nullptr;
};

LockPanel::LockPanel(QRect rect, QWidget* parent) : QFrame(parent), d(new Impl)
{
    d->rect = DialogUtil::hostRect(rect, kWho);
    setObjectName(QStringLiteral("lockPanel"));
    setProperty("isLockPanel", true);
    setFocusPolicy(Qt::NoFocus);
    if (!parent) {
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                       Qt::WindowDoesNotAcceptFocus);
        setAttribute(Qt::WA_ShowWithoutActivating);
    }
    int const N = DialogUtil::fontPixels(DialogUtil::fontSize(d->rect));
    d->icon = new QLabel(this);
    d->icon->setObjectName(QStringLiteral("lockPanelIcon"));
    d->icon->setProperty("isLockPanelIcon", true);
    d->icon->setFixedSize(N, N);
    d->text = new QLabel(lcdTranslate(QStringLiteral("Locked")), this);
    d->text->setObjectName(QStringLiteral("lockPanelText"));
    d->text->setProperty("isLockPanelText", true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(N / 3, 2, N / 2, 2);
    layout->setSpacing(N / 4);
    layout->addWidget(d->icon);
    layout->addWidget(d->text);
    adjustSize();
    if (!parent)
        move(int(qBound<qint64>(-QWIDGETSIZE_MAX, qint64(d->rect.right()) - width() - N / 2, QWIDGETSIZE_MAX)),
             d->rect.top() + N / 2);
    QFrame::setVisible(false);

    d->hold.setSingleShot(true);
    connect(&d->hold, &QTimer::timeout, this, [this] {
        if (d->keyDown && d->locked) {
            qDebug().noquote() << kWho << "unlock gesture complete";
            unlock();
        }
    });
}

LockPanel::~LockPanel()
{
    if (d->filtering && qApp)
        qApp->removeEventFilter(this);
    delete d->reminder.data();
}

bool LockPanel::isLocked() const { return d->locked; }

void LockPanel::setUnlockKey(int key)
{
    if (key == 0 || key == Qt::Key_unknown || (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock)) {
        qWarning().noquote() << kWho << "setUnlockKey:" << key << "is no key";
        return;
    }
    d->unlockKey = key;
}

int LockPanel::unlockKey() const { return d->unlockKey; }

void LockPanel::setUnlockHoldTime(int ms)
{
    if (ms < 0) {
        qWarning().noquote() << kWho << "setUnlockHoldTime: negative time" << ms << "refused";
        return;
    }
    d->holdMs = ms;
}

int LockPanel::unlockHoldTime() const { return d->holdMs; }

void LockPanel::setReminderTime(int ms)
{
    if (ms < 0) {
        qWarning().noquote() << kWho << "setReminderTime: negative time" << ms << "refused";
        return;
    }
    d->reminderMs = ms;
}

int LockPanel::reminderTime() const { return d->reminderMs; }

void LockPanel::setReminderText(QString const& text) { d->reminderText = text; }

LockReminderDialog* LockPanel::reminder() const { return d->reminder && d->reminder->isVisible() ? d->reminder.data() : nullptr; }

bool LockPanel::isUnlocking() const { return d->locked && d->keyDown; }

void LockPanel::setLocked(bool locked)
{
    if (locked)
        lock();
    else
        unlock();
}

void LockPanel::lock()
{
    if (d->locked)
        return;
    d->locked = true;
    d->keyDown = false;
    if (!d->filtering && qApp) {
        qApp->installEventFilter(this);
        d->filtering = true;
    }
    QFrame::setVisible(true);
    if (!isWindow())
        raise(); // above the host's other widgets; a badge window stays on top by itself
    qDebug().noquote() << kWho << "locked";
    emit signalLockedChanged(true);
}

void LockPanel::unlock()
{
    if (!d->locked)
        return;
    d->locked = false;
    d->hold.stop();
    // While the unlock key is still down the filter stays to swallow the rest of its
    // press; the release removes it.
    if (!d->keyDown && d->filtering && qApp) {
        qApp->removeEventFilter(this);
        d->filtering = false;
    }
    if (d->reminder)
        d->reminder->close();
    QFrame::setVisible(false);
    qDebug().noquote() << kWho << "unlocked";
    emit signalLockedChanged(false);
}

void LockPanel::showReminder()
{
    if (d->reminder && d->reminder->isVisible()) {
        d->reminder->restartTimer();
        return;
    }
    if (!d->reminder) {
        d->reminder = new LockReminderDialog(d->rect, nullptr);
        d->reminder->setAttribute(Qt::WA_ShowWithoutActivating);
        d->reminder->setWindowFlags(d->reminder->windowFlags() | Qt::WindowDoesNotAcceptFocus);
    }
    d->reminder->setText(d->reminderText.isEmpty() ? LockReminderDialog::unlockText(d->unlockKey, d->holdMs)
                                                   : d->reminderText);
    d->reminder->setDisplayTime(d->reminderMs);
    d->reminder->show();
}

bool LockPanel::eventFilter(QObject* watched, QEvent* event)
{
    QEvent::Type const type = event->type();
    if (!isKeyEvent(type))
        return QFrame::eventFilter(watched, event);
    if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
        auto* key = static_cast<QKeyEvent*>(event);
        bool const isUnlockKey = key->key() == d->unlockKey;
        if (!d->locked) {
            // Only the rest of the unlocking press is left to swallow. A new press
            // means its release was lost (the window lost the keys): let it through.
            if (isUnlockKey && !key->isAutoRepeat()) {
                d->keyDown = false;
                qApp->removeEventFilter(this);
                d->filtering = false;
                return type == QEvent::KeyRelease;
            }
            return isUnlockKey;
        }
        if (type == QEvent::KeyPress) {
            if (isUnlockKey) {
                if (!key->isAutoRepeat() && !d->keyDown) {
                    d->keyDown = true;
                    if (d->holdMs == 0) {
                        unlock();
                        return true;
                    }
                    d->hold.start(d->holdMs);
                }
                return true;
            }
            emit signalKeyRefused(key->key());
            showReminder();
            return true;
        }
        // Release
        if (isUnlockKey && !key->isAutoRepeat() && d->keyDown) {
            d->keyDown = false;
            d->hold.stop();
            showReminder(); // let go too early
        }
        return true;
    }
    if (type == QEvent::ShortcutOverride) {
        // Overridden: no shortcut fires, the key comes as a press (swallowed above).
        if (!d->locked && static_cast<QKeyEvent*>(event)->key() != d->unlockKey)
            return false;
        event->accept();
        return true;
    }
    // The wheel and shortcuts are back to normal once unlocked.
    return d->locked;
}

void LockPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->text->setText(lcdTranslate(QStringLiteral("Locked")));
    QFrame::changeEvent(event);
}

} // namespace Widget
} // namespace LCD
