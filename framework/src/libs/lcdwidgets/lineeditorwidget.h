// An item row that edits a text: the title on the left, the text editor (and an
// optional unit) on the right. Two kinds:
//   KnobText  the editor is a QMLineEdit: the text is entered with the knob alone,
//             character by character from the editor's character set;
//   PadText   the editor is an NSignalLineEdit: the row announces the edit and the
//             host opens its number pad (or keyboard) and writes the result with
//             setLabelValue().
//
// Edit protocol: editValue() gives the editor the focus and the row emits
// signalEditStarted(); every change of the text is reported at once with
// signalValueChanged(QVariant(QString)); the end of the edit (Escape; in a KnobText
// row also Return on the position after the text or on a full text; in a PadText
// row the press again) returns the focus to the row's parent and emits
// signalCloseEditStatus() then signalEditFinished(). The text reached stays.
//
// Bad input is refused and logged at warning level:
//   "[LineEditorWidget] setLabelValue: value has no text form, ignored"
//   "[LineEditorWidget] setTextMaxLength: <n> is not a length, ignored"
//   "[LineEditorWidget] setCharacterSet: a PadText row has no character set, ignored"
//   "[LineEditorWidget] setEditorWidth: <n> is not a width, ignored"
// (and the editor's own messages, see QMLineEdit).
//
// Theme: "isItemLineEdit" on the editor (with the editor's own "isKnobLineEdit" or
// "isSignalLineEdit" and "lineEditEditing"), "isLineEditUnit" on the unit label.
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>

class QLineEdit;

namespace LCD {
namespace Widget {

class NSignalLineEdit;
class QMLineEdit;

class LCDWIDGETS_EXPORT LineEditorWidget : public CommonItemType
{
    Q_OBJECT
    // The editor's kind, fixed at construction.
    Q_PROPERTY(Kind kind READ kind)
    // The unit after the editor; empty hides it.
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
public:
    // The editor's kind (see above).
    enum Kind { KnobText = 0, PadText = 1 };
    Q_ENUM(Kind)

    // An empty text, no unit, no right icon; an unknown kind is taken as KnobText.
    explicit LineEditorWidget(QWidget* parent = nullptr, Kind kind = KnobText);
    ~LineEditorWidget() override;

    // The editor's kind.
    Kind kind() const;
    // The editor; knobEditor() is null in a PadText row, padEditor() in a KnobText row.
    QLineEdit* editor() const;
    // The knob editor of a KnobText row.
    QMLineEdit* knobEditor() const;
    // The pad editor of a PadText row.
    NSignalLineEdit* padEditor() const;

    void setLabelValue(QVariant value, int mode = 0) override;
    QVariant getLabelValue() override;
    void editValue() override;
    // Ends a running edit as Escape does.
    void closeEditValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Maximum length of the text, 1..32767; another length is refused (see above).
    void setTextMaxLength(int length);
    // The characters the knob offers (KnobText rows only; see QMLineEdit::setCharacterSet()).
    void setCharacterSet(QString const& characters);
    // Text shown in grey while the editor is empty.
    void setPlaceholder(QString const& text);
    // An empty unit hides the unit label.
    void setUnit(QString const& unit);
    // The unit after the editor.
    QString unit() const;
    // Width of the editor in pixels (default 200).
    void setEditorWidth(int width);
    // Whether the editor's edit runs.
    bool isEditorEditing() const;

private:
    void editEnded();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
