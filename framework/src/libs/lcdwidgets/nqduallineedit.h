// Two-field integer editor ("1920×1080", "16:9") worked with the knob: while it has
// the focus, Up/Down change the current field by the level like NQSpinBox, the press
// (Return/Enter) moves from the first to the second field and then finishes, Escape
// finishes at once. Every change is reported live with signalValueChanged().
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <QSize>
#include <memory>

class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT NQDualLineEdit : public QFrame
{
    Q_OBJECT
    // The text between the two values ("×" by default).
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)
    // Change per knob step of level 1 (default 1).
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    // The two values: width() the first, height() the second.
    Q_PROPERTY(QSize value READ value WRITE setValue)
public:
    // 0 × 0, both fields 0..9999; the edit starts with the focus on the first field.
    explicit NQDualLineEdit(QWidget* parent = nullptr);
    ~NQDualLineEdit() override;

    // Reads the two integers of a text such as "1920x1080", "16:9" or "3, 4";
    // a text without two numbers is logged and ignored.
    void setText(QString const& text);
    // The two values joined by the separator.
    QString text() const;
    // Sets both values (clamped to their ranges) without emitting.
    void setValue(QSize value);
    // The two values: width() the first, height() the second.
    QSize value() const;

    // Range of both fields (default 0..9999); width() is the first field.
    void setRange(int minimum, int maximum);
    // Range of one field (0 or 1), the value clamped silently; a maximum below the minimum
    // is taken as the minimum; another field is refused ("[NQDualLineEdit] field index out
    // of range: <field>").
    void setFieldRange(int field, int minimum, int maximum);
    // Change per knob step of level 1; a step below 1 is ignored.
    void setSingleStep(int step);
    // Change per knob step of level 1.
    int singleStep() const;
    // The text between the two values.
    void setSeparator(QString const& separator);
    // The text between the two values.
    QString separator() const;

    // 0 = first field, 1 = second; -1 while not editing.
    int currentField() const;
    // Whether an edit runs (currentField() >= 0).
    bool isEditing() const;

signals:
    // The knob changed a value: both values.
    void signalValueChanged(QSize value);
    // The edit ended (press on the second field, Escape, or the focus lost); once per edit.
    void signalEditFinished();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Releases of the editing keys stay in the editor: they never reach the page.
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void setCurrentField(int field);
    void finishEdit();
    void updateTexts();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
