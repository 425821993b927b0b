// IPEdit: a four-field IPv4 address editor for typed input (keyboard or number pad),
// used by the network settings page. It reports the start and the end of an edit
// once per visit, however often the focus moves between its fields. The frame itself
// takes the focus between edits; Enter on it starts an edit at the fourth field.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <QString>

class QLabel;
class QKeyEvent;
class QLineEdit;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT IPEdit : public QFrame
{
    Q_OBJECT
    // The address as dotted text.
    Q_PROPERTY(QString ipText READ ipText WRITE setIpText)
    // Whether Enter in a field moves to the previous field.
    Q_PROPERTY(bool enterSwitchEidt READ isEnterSwitchEidt WRITE setEnterSwitchEidt)
public:
    // Four empty fields taking up to three digits each; the frame (object name "focusFrame")
    // takes the focus.
    explicit IPEdit(QWidget* parent = nullptr);
    ~IPEdit() override;

    // The fields' trimmed texts joined with "."; an empty field counts as "0".
    QString ipText() const;
    // Exactly four parts separated by "." are taken; a part that reads as 0..255 is
    // shown in normal form ("010" as "10"), any other part clears its field.
    void setIpText(QString const& text) const;
    // Empties the four fields.
    void clearText() const;
    // Whether the application's focus widget is one of the four fields.
    bool hasEditingFocus() const;
    // Whether Enter in a field moves to the previous field (true) or ends the edit.
    void setEnterSwitchEidt(bool on);
    // Whether Enter in a field moves to the previous field (default false).
    bool isEnterSwitchEidt() const;
    // The field 0..3 (the first octet is 0); null for another index.
    QLineEdit* field(int index) const;

    // The fields' keys: Escape (and Enter, see setEnterSwitchEidt()) leave the fields;
    // Up moves to the previous field, Down, "-" and "." to the next, and past the ends
    // the key goes on to the page; digits and editing keys reach the field, others do not.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // A field took the focus while no edit ran: the edit begins (once per visit).
    void sigEditingStarted();
    // The focus left the four fields (checked from the event loop): the edit is over.
    void sigEditingFinished();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void onTextChanged();
    int indexOf(QObject* field) const;
    void focusField(int index) const;
    void leaveFields();
    void passOn(QKeyEvent* event);

    QLineEdit* m_fields[4] = {nullptr, nullptr, nullptr, nullptr};
    QLabel* m_dots[3] = {nullptr, nullptr, nullptr};
    bool m_editingStarted = false;
    bool m_enterSwitch = false;
};

} // namespace Widget
} // namespace LCD
