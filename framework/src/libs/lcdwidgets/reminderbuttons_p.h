// The button row of the reminder dialogs: buttons by role with their texts and
// icons, the shared widths, the role mapping and the knob's walk over the buttons.
#pragma once

#include <QDebug>
#include <QDialogButtonBox>
#include <QList>
#include <QPointer>
#include <QPushButton>
#include <QRect>

#include <functional>

class QDialog;
class QEvent;
class QKeyEvent;
class QObject;
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

    // A click on `button` (one of the box's, shown): remembered as clicked(); NoRole
    // ends the dialog with NoRole, YesRole and ActionRole accept it.
    void click(QAbstractButton* button);
    QAbstractButton* clicked() const { return m_clicked; }

    // A key pressed on one of the buttons (the dialog filters them): a back key is
    // swallowed when `swallow`, the others walk the buttons (see navigate()).
    // Returns true when the key was used.
    bool filterKey(QObject* watched, QEvent* event, bool swallow, QWidget* textView, bool scrollBar) const;
    // A back key (Escape, Back) is accepted and used up when `swallow` (a dialog the
    // user cannot close): true then.
    static bool swallowBack(QKeyEvent* event, bool swallow);

    static QString textOf(QDialogButtonBox::ButtonRole role);

private:
    QDialog* m_dialog;
    QDialogButtonBox* m_box;
    int m_hostWidth;
    float m_fontSize;
    QPointer<QPushButton> m_default;
    QPointer<QAbstractButton> m_clicked;
};

// One OK button (YesRole, default when `role` is YesRole); none when `role` is NoRole.
template <class D>
void addOkButton(D* dialog, QDialogButtonBox::ButtonRole role)
{
    if (role == QDialogButtonBox::NoRole)
        return;
    QPushButton* ok = dialog->addButton(QDialogButtonBox::YesRole);
    if (role == QDialogButtonBox::YesRole)
        dialog->setDefaultButton(ok);
}

// Runs a static helper's dialog D (built of `type`, its icon, `addButtons` and the
// text): refuses an empty text with "<who> <helper> text is empty: nothing shown",
// survives the dialog being deleted while it runs, and reports the role (NoRole when
// no button closed it).
template <class D>
int runReminder(char const* who, char const* helper, QWidget* parent, QString const& text, QRect rect,
                typename D::DialogType type, std::function<void(D*)> const& addButtons)
{
    if (text.isEmpty()) {
        qWarning().noquote() << who << helper << "text is empty: nothing shown";
        return QDialogButtonBox::NoRole;
    }
    QPointer<D> dialog = new D(type, rect, parent);
    dialog->setIcon(type);
    addButtons(dialog);
    dialog->setText(text);
    int const result = dialog->exec();
    if (!dialog)
        return QDialogButtonBox::NoRole;
    int const role = result == -1 ? int(QDialogButtonBox::NoRole) : dialog->clickedButtonRole();
    delete dialog.data();
    return role == -1 ? int(QDialogButtonBox::NoRole) : role;
}

} // namespace Widget
} // namespace LCD
