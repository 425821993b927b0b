// A text line edit with a maximum length whose text can be entered with the knob
// alone. While editing, the character at the cursor is chosen from a character set:
//   Up / Down        the next / previous character of the set at the cursor (the
//                    set wraps around); a level above 1 skips that many characters
//                    (at most one round of the set). On the position just after the
//                    text, Up / Down append a new character.
//   Return / Enter   moves on to the next position; on the position after the text,
//                    or when the text is full, it ends the edit.
//   Escape           ends the edit; the text reached stays.
//   other keys       edit the text as in any line edit (keyboards, testing).
// The edit begins with the focus (the cursor on the first character) and ends with
// the keys above or the loss of the focus. Every change is reported at once with
// signalTextChanged(), the end with signalEditFinished(text), once per edit. An edit
// ended by a key hands the focus to the nearest ancestor without a focus proxy
// unless a slot moved it already.
//
// The default set is the space, "A".."Z", "a".."z", "0".."9" and "-_.". A character
// of the text that is not in the set is replaced by the set's first (Up) or last
// (Down) character when the knob reaches it.
//
// Bad input is refused and logged at warning level:
//   "[QMLineEdit] setCharacterSet: empty character set, ignored"
//   "[QMLineEdit] setTextMaxLength: <n> is not a length, ignored"   (below 1)
// and a text longer than the maximum length is cut, logged as
//   "[QMLineEdit] setValueText: text longer than <n> characters, cut".
// Duplicate characters of a set are dropped.
//
// Theme: "isKnobLineEdit" (true); "lineEditEditing" is true while an edit runs.
#pragma once

#include "lcdwidgets_global.h"

#include <QLineEdit>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT QMLineEdit : public QLineEdit
{
    Q_OBJECT
    // The characters the knob offers, in order.
    Q_PROPERTY(QString characterSet READ characterSet WRITE setCharacterSet)
    // Maximum length of the text, 1..32767 (default 16).
    Q_PROPERTY(int textMaxLength READ textMaxLength WRITE setTextMaxLength)
public:
    // Empty, maximum length 16, the default character set.
    explicit QMLineEdit(QWidget* parent = nullptr);
    ~QMLineEdit() override;

    // " ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_."
    static QString defaultCharacterSet();
    // The characters the knob offers, in order (duplicates dropped); an empty set is refused.
    void setCharacterSet(QString const& characters);
    // The characters the knob offers.
    QString characterSet() const;
    // Maximum length of the text (default 16); a longer text is cut.
    void setTextMaxLength(int length);
    // Maximum length of the text.
    int textMaxLength() const;
    // Sets the text without emitting (cut to the maximum length).
    void setValueText(QString const& text);
    // Position of the character the knob works on; -1 while not editing.
    int editPosition() const;
    // Whether an edit runs (between signalEditStarted() and signalEditFinished()).
    bool isEditing() const;
    // Ends a running edit as Escape does.
    void finishEdit();

signals:
    // An edit began (the editor took the focus).
    void signalEditStarted();
    // The text changed during an edit (knob or typed keys); not emitted by setValueText().
    void signalTextChanged(QString const& text);
    // The edit ended (once per edit): the text reached.
    void signalEditFinished(QString const& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void turn(bool up, float level);
    void moveOn();
    void markPosition();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
