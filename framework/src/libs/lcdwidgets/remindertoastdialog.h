// A rounded notice with an icon and a wrapped text that closes itself after a set
// time (2000 ms by default). The static helpers show one modally and return when
// it has closed:
//
//   ReminderToastDialog::prosper(page, tr("Preset saved"), homeRect, 1500);
//
// Sizes follow the host rectangle (W × H): 5·W/8 × 2·H/5, font W/37.5 pixels.
#pragma once

#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <QDialog>
#include <QRect>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ReminderToastDialog : public QDialog
{
    Q_OBJECT
public:
    // An empty `rect` is logged and replaced by the panel's 800x480 screen.
    explicit ReminderToastDialog(QRect rect, QWidget* parent = nullptr);
    ~ReminderToastDialog() override;

    // Modal toasts; `ms` is the display time (negative counts as 0). An empty text
    // is refused (nothing shown, QDialog::Rejected returned).
    static int information(QWidget* parent, QString const& text, QRect rect, int const& ms = 2000);
    // With the warning icon. Each helper logs an empty text as "[ReminderToastDialog]
    // <helper> text is empty: nothing shown". information(): the information icon.
    static int warning(QWidget* parent, QString const& text, QRect rect, int const& ms = 2000);
    // With the error icon.
    static int error(QWidget* parent, QString const& text, QRect rect, int const& ms = 2000);
    // With the success icon.
    static int prosper(QWidget* parent, QString const& text, QRect rect, int const& ms = 2000);

    // The toast's text (wrapped).
    void setDialogText(QString const& text);
    // The toast's text.
    QString dialogText() const;
    // Display time in ms, counted from showing (negative counts as 0).
    void setDialgTipsTime(int ms);
    // Display time in ms (2000 by default).
    int dialogTipsTime() const;
    // Shows the icon of `type` (0 to 4); other values are refused.
    void setDialgIcon(LCD::Widget::Enum::DialogType type);
    // Whether showing starts the close timer; a toast without it stays until closed.
    void setBStartTimer(bool start);
    // A negative size is refused; one beyond the host rectangle is cut to it.
    void setDialogSize(QSize size);
    // The dialog's width in px (5/8 of the host's width, or the setDialogSize() width).
    int getReminderToastDialogWidth() const;
    // The dialog's height in px (2/5 of the host's height, or the setDialogSize() height).
    int getReminderToastDialogHeight() const;
    // The text size in px derived from the host rectangle (its width / 37.5).
    float getFontSize() const;

    // Runs the toast modally; a second run while one is under way is refused
    // ("[ReminderToastDialog] exec: already running, refused") and answers Rejected.
    int exec() override;

public slots:
    // Closes the toast (the display timer's end).
    void slotCloseDialog();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
