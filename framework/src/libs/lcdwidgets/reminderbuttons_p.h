// The button row of the reminder dialogs: buttons by role with their texts and
// icons, the shared widths, the role mapping and the knob's walk over the buttons.
#pragma once

#include <QDialogButtonBox>
#include <QList>
#include <QPointer>

class QDialog;
class QKeyEvent;
class QPushButton;
class QWidget;

namespace LCD {
namespace Widget {

class ReminderButtons
{
public:
    // `dialog` filters the buttons' key presses; `hostWidth` is the host rectangle's
    // width and `fontSize` the dialog's font size.
    ReminderButtons(QDialog* dialog, int hostWidth, float fontSize);

    QDialogButtonBox* box() const { return m_box; }

    // A new button of `role`; null (with a warning naming `who`) for a value that is
    // no button role.
    QPushButton* add(QDialogButtonBox::ButtonRole role, int dialogWidth, char const* who);
    // Every button gets (dialogWidth − (n − 1)·(W/16) − 2·F) / n.
    void updateWidths(int dialogWidth);
    QPushButton* button(QDialogButtonBox::ButtonRole role) const;
    QList<QPushButton*> buttons() const;
    // The box's last button (the one that takes the focus), or null.
    QPushButton* last() const;
    bool anyVisible() const;

    // Remembers, marks default and focuses `button` when it is one of the box's.
    void setDefault(QPushButton* button);
    QPushButton* defaultButton() const { return m_default; }

    // YesRole and ActionRole as they are, NoRole as NoRole, anything else -1.
    int roleOf(QAbstractButton* button) const;

    // Texts of the buttons again, by their mapped role.
    void retranslate();
    // Font size in the buttons' own sheets.
    void setFontPixels(int px);

    // The knob over the buttons (taken in reverse box order). `textView` is the
    // scrollable text (may be null) and `scrollBar` whether it shows its bar.
    // Returns true when the key was used.
    bool navigate(QKeyEvent* event, QWidget* textView, bool scrollBar) const;

    static QString textOf(QDialogButtonBox::ButtonRole role);

private:
    QDialog* m_dialog;
    QDialogButtonBox* m_box;
    int m_hostWidth;
    float m_fontSize;
    QPointer<QPushButton> m_default;
};

} // namespace Widget
} // namespace LCD
