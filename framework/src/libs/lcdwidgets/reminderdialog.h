// The panel's message box: a frameless, rounded panel centred on a host area with
// an icon, a scrollable text, an optional progress bar and a row of buttons, all
// worked with the knob.
//
//   int role = ReminderDialog::question(page, tr("Delete the preset?"), homeRect);
//   if (role == QDialogButtonBox::YesRole) ...
//
// Sizes follow the host rectangle (W × H): the dialog is 11·W/16 × 3·H/5, the font
// W/37.5 pixels. The static helpers run the box modally and return the role of the
// button that closed it (YesRole, ActionRole or NoRole; NoRole also when the box
// was left with Escape or without a button). `ongoing` and `progress` return a heap
// dialog that the caller shows, updates and deletes.
//
// Keys: Up/Left and Down/Right walk the buttons (wrapping round unless the text
// shows a scroll bar, in which case Up on the first button goes to the text), the
// keypad's Enter and Return press the focused button, Escape closes the box.
// A progress box ignores Escape and Back: only its owner closes it.
#pragma once

#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QRect>
#include <memory>

class QPushButton;
class QAbstractButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ReminderDialog : public QDialog
{
    Q_OBJECT
public:
    // The kind of box: it chooses the icon (theme property "isReminderIcon" = "information",
    // "question", "warning", "prosper" or "error"); Ongoing has no icon, Progress shows a
    // progress bar instead. Values 0..6; another value is taken as Information (logged).
    enum DialogType {
        Information = Enum::DialogInformation,
        Question = Enum::DialogQuestion,
        Warning = Enum::DialogWarning,
        Prosper = Enum::DialogProsper,
        Error = Enum::DialogError,
        Ongoing = Enum::DialogOngoing,
        Progress = Enum::DialogProgress,
    };
    Q_ENUM(DialogType)

    // `parent` is kept (the dialog closes when it is destroyed) but does not own
    // the dialog, which is a top-level window. An empty `rect` is logged and
    // replaced by the panel's 800x480 screen.
    ReminderDialog(DialogType type, QRect rect, QWidget* parent = nullptr);
    ~ReminderDialog() override;

    // ---- Static helpers: build, run modally, return the role as an int ----
    // One OK button (YesRole, default when role is YesRole); none when role is NoRole.
    static int information(QWidget* parent, QString const& text, QRect rect,
                           QDialogButtonBox::ButtonRole role = QDialogButtonBox::YesRole);
    // Like information(), with the success icon. Every helper that runs a box refuses an
    // empty text: "[ReminderDialog] <helper> text is empty: nothing shown", NoRole.
    static int prosper(QWidget* parent, QString const& text, QRect rect,
                       QDialogButtonBox::ButtonRole role = QDialogButtonBox::YesRole);
    // OK and Cancel (Cancel default, shown on the left); `role` is not used.
    static int question(QWidget* parent, QString const& text, QRect rect,
                        QDialogButtonBox::ButtonRole role = QDialogButtonBox::NoRole);
    // One button of `role` when it is ActionRole ("Details") or YesRole ("OK");
    // any other role shows nothing and returns NoRole at once.
    static int warning(QWidget* parent, QString const& text, QRect rect,
                       QDialogButtonBox::ButtonRole role = QDialogButtonBox::YesRole);
    // One OK button always (default when role is YesRole).
    static int error(QWidget* parent, QString const& text, QRect rect,
                     QDialogButtonBox::ButtonRole role = QDialogButtonBox::YesRole);
    // A busy box without buttons, not executed: the caller shows and deletes it.
    static ReminderDialog* ongoing(QWidget* parent, QString const& text, QRect rect,
                                   QDialogButtonBox::ButtonRole role = QDialogButtonBox::NoRole);
    // A progress box, not executed; `cancel` adds a default Cancel (NoRole) button,
    // otherwise there is no button and no line.
    static ReminderDialog* progress(QWidget* parent, QString const& text, QRect rect,
                                    QDialogButtonBox::ButtonRole role = QDialogButtonBox::NoRole, bool cancel = false);

    // ---- Buttons ----
    // Adds a button of `role`: ActionRole "Details", YesRole "OK", NoRole "Cancel",
    // ResetRole "Reset", ApplyRole "Apply" (other roles: no text). All buttons then
    // share the row's width. A value that is no button role is refused (null).
    QPushButton* addButton(QDialogButtonBox::ButtonRole role);
    // The first button added with `role`; null when there is none.
    QPushButton* button(QDialogButtonBox::ButtonRole role) const;
    // Only a button of this dialog: marks it default and focuses it.
    void setDefaultButton(QPushButton* button);
    // Order of the buttons in their row (Qt::RightToLeft puts the first added on the right).
    void setButtonBoxLayoutDirection(Qt::LayoutDirection direction);
    // The role of the button that closed the dialog (see buttonRole), -1 when none.
    int clickedButtonRole() const;
    // YesRole and ActionRole as they are, NoRole as NoRole, anything else -1.
    int buttonRole(QPushButton* button) const;

    // ---- Content ----
    // The message, as plain text, centred; when it needs no scroll bar the last button
    // takes the focus.
    void setText(QString const& text);
    // The message as plain text.
    QString text() const;
    // Icon and parts of `type`; a value outside 0..6 is refused.
    void setIcon(DialogType type);
    // The progress bar's value (see ProgressBarCtr::setCurrentValue()); a Progress box only.
    void setProgressValue(int value);
    // The text on the left of the progress bar.
    void setProgressText(QString const& text);
    // Gives the knob's focus to the progress bar.
    void setProgressFocus();
    // Fixes the dialog (and its frame) to `size`, the text to 4/5 of its width. A
    // negative size is refused; one beyond the host rectangle is cut to it.
    void setDialogSize(QSize size);
    // Hides the progress bar and the buttons and closes the dialog after `ms`
    // (negative values count as 0).
    void setDialogShowTimer(int const& ms);
    // Hides or shows the line above the buttons (shown by default).
    void setLineHidden(bool hidden);

    // The type given to the constructor (after the check).
    DialogType getDialogType() const;
    // 5/8 of the host rectangle's width, in px.
    int getLineWidth() const;
    // The dialog's width in px (11/16 of the host's width, or the setDialogSize() width).
    int getReminderDialogWidth() const;
    // The dialog's height in px (3/5 of the host's height, or the setDialogSize() height).
    int getReminderDialogHeight() const;
    // The text size in px derived from the host rectangle (its width / 37.5).
    float getFontSize() const;
    // Whether exec() is running; safe to poll from any thread.
    bool isExec() const;
    // Whether the text currently shows a scroll bar.
    bool hasScrollBar() const;

    // Runs the box modally and logs "[dialog] exec finish with <result>"; a second run while
    // one is under way is refused ("[ReminderDialog] exec: already running, refused") and
    // answers Rejected. A destroyed parent ends the run with -1.
    int exec() override;

signals:
    // The text's scroll range changed; slotDetectScrollbar() follows from the event loop.
    void signalDetectScrollbar();

public slots:
    // A button of the box closes it: NoRole with done(NoRole), YesRole and ActionRole with
    // accept(); other roles (Reset, Apply) leave it open. clickedButtonRole() reports it.
    void slot_buttonClicked(QAbstractButton* button);
    // Emits signalDetectScrollbar().
    void slotScrollbarRangeChanged(int minimum, int maximum);
    // With a scroll bar the text takes the focus (once) so that the knob scrolls it;
    // without, the last button takes it.
    void slotDetectScrollbar();
    // Does nothing (kept for hosts that connect it).
    void slotResetPushBtnClicked() const;
    // Does nothing (kept for hosts that connect it).
    void slotApplyPushBtnClicked() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createWidget();
    void createConnects();
    void fitTextHeight();

    struct Impl;
    std::unique_ptr<Impl> d;
};

// A fixed 800×480 notice: an icon, a text and one "Apply" button.
class LCDWIDGETS_EXPORT ReminderDialogApply : public QDialog
{
    Q_OBJECT
public:
    // Frameless, translucent, a 544×288 frame centred; the button reads "Apply".
    explicit ReminderDialogApply(QWidget* parent = nullptr);
    ~ReminderDialogApply() override;

    // The text under the icon (empty by default).
    void setText(QString const& text);
    // The icon's image file, shown 160×160 (none by default).
    void setIconPath(QString const& path);
    // The "Apply" button (theme property "isIconApply" = true).
    QPushButton* applyButton() const;
    // Runs the dialog modally; a second run while one is under way is refused with
    // "[ReminderDialogApply] exec: already running, refused" and answers Rejected.
    int exec() override;

signals:
    // The "Apply" button was clicked (the dialog stays open: the host closes it).
    void signalPushBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
