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
    QPushButton* button(QDialogButtonBox::ButtonRole role) const;
    // Only a button of this dialog: marks it default and focuses it.
    void setDefaultButton(QPushButton* button);
    void setButtonBoxLayoutDirection(Qt::LayoutDirection direction);
    // The role of the button that closed the dialog (see buttonRole), -1 when none.
    int clickedButtonRole() const;
    // YesRole and ActionRole as they are, NoRole as NoRole, anything else -1.
    int buttonRole(QPushButton* button) const;

    // ---- Content ----
    void setText(QString const& text);
    QString text() const;
    // Icon and parts of `type`; a value outside 0..6 is refused.
    void setIcon(DialogType type);
    void setProgressValue(int value);
    void setProgressText(QString const& text);
    void setProgressFocus();
    // Fixes the dialog (and its frame) to `size`, the text to 4/5 of its width. A
    // negative size is refused; one beyond the host rectangle is cut to it.
    void setDialogSize(QSize size);
    // Hides the progress bar and the buttons and closes the dialog after `ms`
    // (negative values count as 0).
    void setDialogShowTimer(int const& ms);
    void setLineHidden(bool hidden);

    DialogType getDialogType() const;
    int getLineWidth() const;
    int getReminderDialogWidth() const;
    int getReminderDialogHeight() const;
    float getFontSize() const;
    // Whether exec() is running; safe to poll from any thread.
    bool isExec() const;
    // Whether the text currently shows a scroll bar.
    bool hasScrollBar() const;

    int exec() override;

signals:
    void signalDetectScrollbar();

public slots:
    void slot_buttonClicked(QAbstractButton* button);
    void slotScrollbarRangeChanged(int minimum, int maximum);
    void slotDetectScrollbar();
    void slotResetPushBtnClicked() const;
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
    explicit ReminderDialogApply(QWidget* parent = nullptr);
    ~ReminderDialogApply() override;

    // The text under the icon (empty by default).
    void setText(QString const& text);
    // The icon's image file, shown 160×160 (none by default).
    void setIconPath(QString const& path);
    QPushButton* applyButton() const;
    // Runs the dialog modally; a second run while one is under way is refused with
    // "[ReminderDialogApply] exec: already running, refused" and answers Rejected.
    int exec() override;

signals:
    void signalPushBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
