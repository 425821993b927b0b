// The notice shown when a key is pressed on a locked panel: a lock icon and a text
// that says how to unlock ("The panel is locked" / "Hold Back for 2 s to unlock"),
// in a rounded panel centred on the host area, that closes itself after a while.
//
// LockPanel shows it without taking the keyboard from the page (show(); every
// further key on the locked panel calls restartTimer()); a host may also run one
// modally with exec() or the static remind().
//
// Sizes follow the host rectangle (W × H): the dialog is W/2 × H/3, the font W/37.5
// pixels; an empty rectangle is logged ("[LockReminderDialog] host rectangle is
// empty, using 800x480") and replaced by the 800x480 screen.
//
// Keys (when it has them, i.e. run modally on an unlocked panel): Enter, Return and
// Escape close it at once; other keys are swallowed.
//
// Display time: 2000 ms by default; a negative time is refused ("[LockReminderDialog]
// setDisplayTime: negative time -5 refused"); 0 closes it on the next pass of the
// event loop. exec() logs "[dialog] exec finish with " and the result.
// `parent` is kept but does not own the dialog: when it is destroyed a shown
// reminder closes.
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <QRect>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT LockReminderDialog : public QDialog
{
    Q_OBJECT
public:
    // Display time in ms before the reminder closes itself.
    static constexpr int kDefaultDisplayTime = 2000;

    // rect: the host area the reminder is sized from and centred on. The text starts as
    // unlockText(Qt::Key_Escape, 2000); the window stays on top.
    explicit LockReminderDialog(QRect rect, QWidget* parent = nullptr);
    ~LockReminderDialog() override;

    // Runs a reminder with `text` (the default text when empty) modally for `ms`.
    static int remind(QWidget* parent, QString const& text, QRect rect, int ms = kDefaultDisplayTime);

    // The default text for an unlock gesture: "The panel is locked" and, on a second
    // line, "Hold %1 for %2 s to unlock" with the key's name and the time.
    static QString unlockText(int key, int holdMs);

    // The text under the lock icon (wrapped, centred).
    void setText(QString const& text);
    // The text under the lock icon.
    QString text() const;
    // Display time in ms; a negative time is refused (see above).
    void setDisplayTime(int ms);
    // Display time in ms (kDefaultDisplayTime by default).
    int displayTime() const;
    // Starts the display time again (while shown).
    void restartTimer();
    // Whether the close timer runs.
    bool isTimerActive() const;

    // The dialog's width in px (half the host's width).
    int getLockReminderDialogWidth() const;
    // The dialog's height in px (a third of the host's height).
    int getLockReminderDialogHeight() const;
    // Whether exec() is running; safe to poll from any thread.
    bool isExec() const;

    // Runs the reminder modally until its time is up or a key closes it. A second run while
    // one is under way is refused ("[LockReminderDialog] exec: already running, refused").
    int exec() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
