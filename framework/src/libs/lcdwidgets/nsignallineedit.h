// A line edit that tells its page what happens to it, so that the page can open
// and close its number pad (or any other input) at the right moments. The text
// itself comes from typed keys or from the page (setText).
//
// Signals, in this order for one edit:
//   signalFocusIn()                the line edit got the focus
//   signalEditStarted()            an edit begins: at the focus when editOnFocus()
//                                  is true (the default), otherwise at the press
//                                  (Return / Enter)
//   signalTextEdited(text)         each change made while editing (typed or set)
//   signalEditFinished(text)       the edit ends: Return / Enter while editing,
//                                  Escape, or the loss of the focus; once per edit
//   signalFocusOut()               the focus has gone
// The text reached stays (Escape does not restore the old text). An edit ended by a
// key hands the focus to the nearest ancestor without a focus proxy (one that
// keeps it) unless a slot has moved it already.
// Knob turns (Up / Down) are swallowed while editing and go to the page otherwise.
//
// Bad input: setTextMaxLength with a length below 1 is refused and logged at warning
// level as "[NSignalLineEdit] setTextMaxLength: <n> is not a length, ignored".
//
// Theme: "isSignalLineEdit" (true); "lineEditEditing" is true while an edit runs.
#pragma once

#include "lcdwidgets_global.h"

#include <QLineEdit>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT NSignalLineEdit : public QLineEdit
{
    Q_OBJECT
    // Whether an edit starts with the focus (true) or with the press (false).
    Q_PROPERTY(bool editOnFocus READ editOnFocus WRITE setEditOnFocus)
public:
    // Empty; edits start with the focus.
    explicit NSignalLineEdit(QWidget* parent = nullptr);
    ~NSignalLineEdit() override;

    // true (default): an edit starts with the focus; false: with Return / Enter.
    void setEditOnFocus(bool on);
    // Whether an edit starts with the focus.
    bool editOnFocus() const;
    // Maximum length of the text (QLineEdit's, default 32767); below 1 refused (see above).
    void setTextMaxLength(int length);
    // Whether an edit runs.
    bool isEditing() const;
    // Starts an edit (takes the focus when needed); nothing if one runs already.
    void startEdit();
    // Ends a running edit as Return does.
    void finishEdit();

signals:
    // The line edit got the focus (before signalEditStarted()).
    void signalFocusIn();
    // The line edit lost the focus (after signalEditFinished()).
    void signalFocusOut();
    // An edit began.
    void signalEditStarted();
    // The text changed during an edit (typed or set).
    void signalTextEdited(QString const& text);
    // The edit ended (once per edit): the text reached.
    void signalEditFinished(QString const& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void beginEdit();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
