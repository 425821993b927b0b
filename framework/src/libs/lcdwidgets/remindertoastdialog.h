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
    static int warning(QWidget* parent, QString const& text, QRect rect, int const& ms = 2000);
    static int error(QWidget* parent, QString const& text, QRect rect, int const& ms = 2000);
    static int prosper(QWidget* parent, QString const& text, QRect rect, int const& ms = 2000);

    void setDialogText(QString const& text);
    QString dialogText() const;
    // Display time in ms, counted from showing (negative counts as 0).
    void setDialgTipsTime(int ms);
    int dialogTipsTime() const;
    // Shows the icon of `type` (0 to 4); other values are refused.
    void setDialgIcon(LCD::Widget::Enum::DialogType type);
    // Whether showing starts the close timer; a toast without it stays until closed.
    void setBStartTimer(bool start);
    // A negative size is refused; one beyond the host rectangle is cut to it.
    void setDialogSize(QSize size);
    int getReminderToastDialogWidth() const;
    int getReminderToastDialogHeight() const;
    float getFontSize() const;

    // Runs the toast modally; a second run while one is under way is refused
    // ("[ReminderToastDialog] exec: already running, refused") and answers Rejected.
    int exec() override;

public slots:
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
