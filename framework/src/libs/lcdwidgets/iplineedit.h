// IPLineEdit: four octet fields in a read-only line edit used as a styled frame; the
// editor of the number pad and of TypeIpAdjust. Two knob modes, switched by the knob's
// press (Return/Enter): walking, where Up/Down move between the fields, and editing,
// where Up/Down step the current octet (accelerated by the level in the key text).
// Escape ends the edit and gives the focus back to the widget given as parent.
#pragma once

#include "lcdwidgets_global.h"

#include <QLineEdit>
#include <QPointer>
#include <QString>
#include <QVariant>

class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT IPLineEdit : public QLineEdit
{
    Q_OBJECT
    // The address as dotted text.
    Q_PROPERTY(QString ipText READ Iptext WRITE setIpText)
public:
    // Four empty fields at 20 px; `parent` takes the focus back when Escape ends an edit.
    explicit IPLineEdit(QWidget* parent = nullptr);
    ~IPLineEdit() override;

    // The address as dotted text (the four fields' texts joined with ".").
    QString Iptext() const;
    // Fills the fields from a dotted address. An empty text changes nothing; a text
    // that is no IPv4 address, or a multicast one, is refused with two warnings.
    void setIpText(QString const& text) const;
    // The address pattern of the panel (empty text counts as valid).
    bool isTextValid(QString const& text) const;
    // Whether the user changed a field's text (QLineEdit::isModified() of any field).
    bool isDataModified() const;
    // Empties the four fields.
    void clearText() const;
    // The fourth field takes the focus with its text selected: edits start at the
    // octet most often changed.
    void setIPFocus() const;
    // Editing (Up/Down step the value) or walking (Up/Down move between the fields);
    // false also takes the focus from the fields.
    void setEditStatus(bool editing);
    // Whether Up/Down step the octet (true) or move between the fields (false).
    bool editStatus() const { return m_isEdit; }
    // Enables or disables the four fields.
    void setEnable(bool enabled) const;
    // Octet step of a knob detent: 1 at level 1, else level x 255 truncated, at most 255.
    int getStep(float level) const;
    // Index 0..3 of one of the fields, or -1.
    int getIndex(QLineEdit* field) const;
    // The field that has (or last had) the focus, -1 before any.
    int currentIndex() const { return m_index; }
    // The field 0..3 (the first octet is 0); null for another index.
    QLineEdit* field(int index) const;
    // Pixel size of the fields' text and dots, 1..512; another size is refused
    // ("[IPLineEdit] setFontSize: font size <n> refused"). The widths follow.
    void setFontSize(int size);
    // Fixed height of the fields in px; below 1 refused ("[IPLineEdit] setHeight: length
    // <n> refused"). The widths follow.
    void setHeight(int height);
    // Sets a theme property on the four fields and repolishes them (null name ignored).
    void setLineEditProperty(char const* name, QVariant const& value) const;
    // Width the four fields with their dots and margins need.
    int fieldsWidth() const;

    // The fields' keys: Up/Down step or walk (see above), "." moves on to the next
    // field, Return/Enter switch walking and editing ("editing" property on the fields),
    // Escape ends the edit (signalEditFinished()) and passes on.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // Escape ended the edit; the parent given at construction has the focus.
    void signalEditFinished();

public slots:
    // Brings every field back within its rules: digits only, no leading zero in the
    // first field, at most 255.
    void slot_fixInput();
    // Follows the application's focus: records the current field and fixes a field's
    // input when the focus leaves it.
    void slotFocusChanged(QWidget* old, QWidget* now);

private:
    void stepField(int index, bool up, float level);
    void moveToField(int index);
    void updateFieldWidths();

    QLineEdit* m_fields[4] = {nullptr, nullptr, nullptr, nullptr};
    QLabel* m_dots[3] = {nullptr, nullptr, nullptr};
    QPointer<QWidget> m_parent;
    int m_index = -1;
    bool m_isEdit = false;
    int m_fontSize = 20;
    int m_fieldHeight = -1; // set by setHeight(); -1: the fields' own height
};

} // namespace Widget
} // namespace LCD
