// The slim sibling of ReminderDialog: a band as wide as the screen, at its bottom,
// that shows a progress bar (and optionally a Cancel button). Buttons, roles, keys
// and the executing flag work as in ReminderDialog.
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

class LCDWIDGETS_EXPORT MiniProcessDialog : public QDialog
{
    Q_OBJECT
public:
    // Same values as ReminderDialog::DialogType.
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
    // Where the caller would like the band; kept, the band always lies at the bottom.
    enum VerticalPosition { Top = 0, Center = 1, Bottom = 2 };
    Q_ENUM(VerticalPosition)

    // The dialog covers the primary screen; the band is as tall as `rect`.
    MiniProcessDialog(DialogType type, QRect rect, QWidget* parent = nullptr, VerticalPosition position = Bottom);
    ~MiniProcessDialog() override;

    // Runs a success band modally with an OK button (default when role is YesRole; none
    // when NoRole) and returns the role that closed it (NoRole without a button). An empty
    // text is refused: "[MiniProcessDialog] prosper text is empty: nothing shown", NoRole.
    static int prosper(QWidget* parent, QString const& text, QRect rect,
                       QDialogButtonBox::ButtonRole role = QDialogButtonBox::YesRole);
    // Not executed: the caller shows and deletes the returned dialog.
    static MiniProcessDialog* ongoing(QWidget* parent, QString const& text, QRect rect,
                                      QDialogButtonBox::ButtonRole role = QDialogButtonBox::NoRole,
                                      VerticalPosition position = Bottom);
    // A progress band, not executed; `cancel` adds a default Cancel (NoRole) button. The
    // caller shows, updates and deletes it. Escape and Back do not close it.
    static MiniProcessDialog* progress(QWidget* parent, QString const& text, QRect rect, VerticalPosition position = Bottom,
                                       QDialogButtonBox::ButtonRole role = QDialogButtonBox::NoRole, bool cancel = false);

    // As ReminderDialog::addButton(); a value that is no button role is refused
    // ("[MiniProcessDialog] addButton: unknown button role"), null.
    QPushButton* addButton(QDialogButtonBox::ButtonRole role);
    // The first button added with `role`; null when there is none.
    QPushButton* button(QDialogButtonBox::ButtonRole role) const;
    // Only a button of this dialog: marks it default and focuses it.
    void setDefaultButton(QPushButton* button);
    // Order of the buttons in their row.
    void setButtonBoxLayoutDirection(Qt::LayoutDirection direction);
    // The role of the button that closed the dialog (see buttonRole()), -1 when none.
    int clickedButtonRole() const;
    // YesRole and ActionRole as they are, NoRole as NoRole, anything else -1.
    int buttonRole(QPushButton* button) const;

    // Stores the text (not shown) and focuses the last button.
    void setText(QString const& text);
    // The text given to setText().
    QString text() const;
    // Progress shows the progress bar, any other type hides it (the band shows no icon); a
    // value outside 0..6 is refused ("[MiniProcessDialog] setIcon: unknown dialog type").
    void setIcon(DialogType type);
    // The progress bar's value (see ProgressBarCtr::setCurrentValue()).
    void setProgressValue(int value);
    // The text on the left of the progress bar.
    void setProgressText(QString const& text);
    // Gives the knob's focus to the progress bar.
    void setProgressFocus();
    // A negative size is refused; one beyond the host rectangle (or the screen) is cut to it.
    void setDialogSize(QSize size);
    // Hides the progress bar and the buttons and closes the dialog after `ms` (negative: 0).
    void setDialogShowTimer(int const& ms);
    // The band has no line: kept for the interface.
    void setLineHidden(bool hidden);

    // The type given to the constructor (an unknown one is taken as Information, logged).
    DialogType getDialogType() const;
    // The position given to the constructor (the band is at the bottom whatever it is).
    VerticalPosition verticalPosition() const;
    // 5/8 of the host rectangle's width, in px.
    int getLineWidth() const;
    // The dialog's width in px (the primary screen's, or the setDialogSize() width).
    int getReminderDialogWidth() const;
    // The dialog's height in px (the primary screen's, or the setDialogSize() height).
    int getReminderDialogHeight() const;
    // The text size in px derived from the host rectangle (its width / 37.5).
    float getFontSize() const;
    // Whether exec() is running; safe to poll from any thread.
    bool isExec() const;

    // Runs the band modally and logs "[dialog] exec finish with <result>"; a second run
    // while one is under way is refused ("[MiniProcessDialog] exec: already running,
    // refused") and answers Rejected. A destroyed parent ends the run with -1.
    int exec() override;

public slots:
    // A button of the dialog closes it: NoRole with done(NoRole), YesRole and ActionRole
    // with accept(); other roles leave it open.
    void slot_buttonClicked(QAbstractButton* button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
