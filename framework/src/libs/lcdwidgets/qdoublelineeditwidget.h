// A titled floating-point editor as one widget: "title  [value]  unit". The value
// editor is an NDoubleLineEdit (knob keys, typed input and bad-input messages as
// documented there); its signals are passed on unchanged. The widget hands its focus
// to the editor, so setFocus() (or startEdit()) begins an edit.
//
// Theme: "isLineEditWidget" on the frame, "isLineEditTitle" and "isLineEditUnit" on
// the labels, "isDoubleLineEdit" on the editor.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <memory>

namespace LCD {
namespace Widget {

class NDoubleLineEdit;

class LCDWIDGETS_EXPORT QDoubleLineEditWidget : public QFrame
{
    Q_OBJECT
    // The text before the editor.
    Q_PROPERTY(QString title READ title WRITE setTitle)
    // The unit after the editor; empty hides it.
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    // The editor's value (set without a signal).
    Q_PROPERTY(double value READ value WRITE setValue)
public:
    // A title, an editor with NDoubleLineEdit's defaults (0..100, 1 decimal, step 0.1)
    // and a unit (hidden when empty).
    explicit QDoubleLineEditWidget(QString const& title = QString(), QString const& unit = QString(),
                                   QWidget* parent = nullptr);
    ~QDoubleLineEditWidget() override;

    // The value editor (owned by the widget).
    NDoubleLineEdit* editor() const;
    // The text before the editor.
    void setTitle(QString const& title);
    // The text before the editor.
    QString title() const;
    // An empty unit hides the unit label.
    void setUnit(QString const& unit);
    // The unit after the editor.
    QString unit() const;

    // NDoubleLineEdit::setRange() (the same checks and messages).
    void setRange(double minimum, double maximum);
    // NDoubleLineEdit::setDecimals(): 0..6.
    void setDecimals(int decimals);
    // NDoubleLineEdit::setSingleStep().
    void setSingleStep(double step);
    // NDoubleLineEdit::setValue(): clamped, rounded, no signal.
    void setValue(double value);
    // The editor's value.
    double value() const;
    // Gives the editor the focus: the edit begins (signalEditStarted()).
    void startEdit();

signals:
    // The editor's signalValueChanged().
    void signalValueChanged(double value);
    // The editor's signalEditStarted().
    void signalEditStarted();
    // The editor's signalEditFinished().
    void signalEditFinished();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
