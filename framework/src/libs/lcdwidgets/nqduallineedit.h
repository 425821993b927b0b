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
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(QSize value READ value WRITE setValue)
public:
    explicit NQDualLineEdit(QWidget* parent = nullptr);
    ~NQDualLineEdit() override;

    // Reads the two integers of a text such as "1920x1080", "16:9" or "3, 4";
    // a text without two numbers is logged and ignored.
    void setText(QString const& text);
    // The two values joined by the separator.
    QString text() const;
    // Sets both values (clamped to their ranges) without emitting.
    void setValue(QSize value);
    QSize value() const;

    // Range of both fields (default 0..9999); width() is the first field.
    void setRange(int minimum, int maximum);
    void setFieldRange(int field, int minimum, int maximum);
    void setSingleStep(int step);
    int singleStep() const;
    void setSeparator(QString const& separator);
    QString separator() const;

    // 0 = first field, 1 = second; -1 while not editing.
    int currentField() const;
    bool isEditing() const;

signals:
    void signalValueChanged(QSize value);
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
