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

    static int prosper(QWidget* parent, QString const& text, QRect rect,
                       QDialogButtonBox::ButtonRole role = QDialogButtonBox::YesRole);
    // Not executed: the caller shows and deletes the returned dialog.
    static MiniProcessDialog* ongoing(QWidget* parent, QString const& text, QRect rect,
                                      QDialogButtonBox::ButtonRole role = QDialogButtonBox::NoRole,
                                      VerticalPosition position = Bottom);
    static MiniProcessDialog* progress(QWidget* parent, QString const& text, QRect rect, VerticalPosition position = Bottom,
                                       QDialogButtonBox::ButtonRole role = QDialogButtonBox::NoRole, bool cancel = false);

    QPushButton* addButton(QDialogButtonBox::ButtonRole role);
    QPushButton* button(QDialogButtonBox::ButtonRole role) const;
    void setDefaultButton(QPushButton* button);
    void setButtonBoxLayoutDirection(Qt::LayoutDirection direction);
    int clickedButtonRole() const;
    int buttonRole(QPushButton* button) const;

    // Stores the text (not shown) and focuses the last button.
    void setText(QString const& text);
    QString text() const;
    void setIcon(DialogType type);
    void setProgressValue(int value);
    void setProgressText(QString const& text);
    void setProgressFocus();
    // A negative size is refused; one beyond the host rectangle (or the screen) is cut to it.
    void setDialogSize(QSize size);
    void setDialogShowTimer(int const& ms);
    // The band has no line: kept for the interface.
    void setLineHidden(bool hidden);

    DialogType getDialogType() const;
    VerticalPosition verticalPosition() const;
    int getLineWidth() const;
    int getReminderDialogWidth() const;
    int getReminderDialogHeight() const;
    float getFontSize() const;
    bool isExec() const;

    int exec() override;

public slots:
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
