// The panel lock and its indicator. Locking the panel makes the host's pages deaf to
// the knob and the keys (so that a bump on the desk during a show changes nothing)
// until the user makes the unlock gesture: holding the unlock key (Back, that is
// Qt::Key_Escape, by default) for the hold time (2000 ms by default).
//
//   auto* lock = new LockPanel(homeRect, statusBar);  // the indicator, hidden while unlocked
//   statusBarLayout->addWidget(lock);
//   connect(lockKeyAction, ..., lock, &LockPanel::lock);
//
// While locked:
//   - every key press, key release, shortcut and wheel event of the application is
//     swallowed by an application event filter (installed only while locked: an
//     unlocked panel costs nothing), whatever widget or dialog has the focus;
//   - the widget itself is the lock indicator (a lock icon and "Locked"; theme
//     property "isLockPanel"); it shows itself when locked and hides when unlocked.
//     Without a parent it is a small frameless badge at the top-right corner of the
//     host rectangle;
//   - a key press (any key, knob turns included) shows a LockReminderDialog that says
//     how to unlock and closes itself after reminderTime() ms; further keys keep it up;
//   - pressing the unlock key starts the hold timer; releasing it earlier cancels the
//     gesture (and shows the reminder); when the time is up the panel unlocks at
//     once. The rest of that press (auto-repeats and the release) is still swallowed,
//     so the page never sees the key that unlocked it.
// Auto-repeated presses never restart the hold. A hold time of 0 unlocks on the press.
//
// Signals: signalLockedChanged(bool) on every change; signalKeyRefused(key) for each
// key press swallowed while locked (not for the unlock key).
//
// Bad input is refused with a warning and changes nothing:
//   "[LockPanel] setUnlockHoldTime: negative time -1 refused"
//   "[LockPanel] setUnlockKey: 0 is no key"  (0, Qt::Key_unknown, modifier-only keys)
//   "[LockPanel] setReminderTime: negative time -1 refused"
// lock() while locked and unlock() while unlocked do nothing.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <QRect>
#include <memory>

namespace LCD {
namespace Widget {

class LockReminderDialog;

class LCDWIDGETS_EXPORT LockPanel : public QFrame
{
    Q_OBJECT
public:
    // Hold time of the unlock gesture by default, in ms.
    static constexpr int kDefaultHoldTime = 2000;

    // `rect` is the host area the reminder centres on (and the badge's corner when
    // the panel has no parent).
    explicit LockPanel(QRect rect, QWidget* parent = nullptr);
    ~LockPanel() override;

    // Whether the panel is locked (unlocked at construction).
    bool isLocked() const;

    // The Qt key of the unlock gesture (default Qt::Key_Escape); refused keys: see above.
    void setUnlockKey(int key);
    // The Qt key of the unlock gesture.
    int unlockKey() const;
    // How long the unlock key must be held, in ms; 0 unlocks on the press. Negative refused.
    void setUnlockHoldTime(int ms);
    // The hold time in ms (kDefaultHoldTime by default).
    int unlockHoldTime() const;
    // How long the reminder stays after the last key, in ms; negative refused.
    void setReminderTime(int ms);
    // The reminder's display time in ms (2000 by default).
    int reminderTime() const;
    // The reminder's text; empty (the default) means the text made from the gesture.
    void setReminderText(QString const& text);

    // The reminder while it is shown, else null.
    LockReminderDialog* reminder() const;
    // Whether the unlock key is being held (the gesture is under way).
    bool isUnlocking() const;

    // While locked, the application's input events, as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // Locks the panel: the indicator shows, input is swallowed; signalLockedChanged(true).
    void lock();
    // Unlocks the panel: the indicator hides; signalLockedChanged(false).
    void unlock();
    // lock() or unlock().
    void setLocked(bool locked);

signals:
    // The panel was locked or unlocked.
    void signalLockedChanged(bool locked);
    // A key press was swallowed while locked: its Qt key (not for the unlock key).
    void signalKeyRefused(int key);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showReminder();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
