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
    static constexpr int kDefaultDisplayTime = 2000;

    explicit LockReminderDialog(QRect rect, QWidget* parent = nullptr);
    ~LockReminderDialog() override;

    // Runs a reminder with `text` (the default text when empty) modally for `ms`.
    static int remind(QWidget* parent, QString const& text, QRect rect, int ms = kDefaultDisplayTime);

    // The default text for an unlock gesture: "The panel is locked" and, on a second
    // line, "Hold %1 for %2 s to unlock" with the key's name and the time.
    static QString unlockText(int key, int holdMs);

    void setText(QString const& text);
    QString text() const;
    void setDisplayTime(int ms);
    int displayTime() const;
    // Starts the display time again (while shown).
    void restartTimer();
    // Whether the close timer runs.
    bool isTimerActive() const;

    int getLockReminderDialogWidth() const;
    int getLockReminderDialogHeight() const;
    bool isExec() const;

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
