// A titled line edit that reports its edits, as one widget: "title  [text]  unit".
// The editor is an NSignalLineEdit: the page opens its number pad on
// signalEditStarted() and writes the result with setText(); the signals are those
// of the editor, passed on unchanged. The widget hands its focus to the editor.
//
// Theme: "isLineEditWidget" on the frame, "isLineEditTitle" and "isLineEditUnit" on
// the labels, "isSignalLineEdit" on the editor.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <memory>

namespace LCD {
namespace Widget {

class NSignalLineEdit;

class LCDWIDGETS_EXPORT QSignalLineEditWidget : public QFrame
{
    Q_OBJECT
    // The text before the editor.
    Q_PROPERTY(QString title READ title WRITE setTitle)
    // The unit after the editor; empty hides it.
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    // The editor's text.
    Q_PROPERTY(QString text READ text WRITE setText)
public:
    // A title, an empty editor that starts its edits with the focus, and a unit (hidden
    // when empty).
    explicit QSignalLineEditWidget(QString const& title = QString(), QString const& unit = QString(),
                                   QWidget* parent = nullptr);
    ~QSignalLineEditWidget() override;

    // The editor (owned by the widget).
    NSignalLineEdit* editor() const;
    // The text before the editor.
    void setTitle(QString const& title);
    // The text before the editor.
    QString title() const;
    // An empty unit hides the unit label.
    void setUnit(QString const& unit);
    // The unit after the editor.
    QString unit() const;
    // The editor's text; during an edit the change is reported with signalTextEdited().
    void setText(QString const& text);
    // The editor's text.
    QString text() const;
    // NSignalLineEdit::startEdit(): takes the focus and begins an edit.
    void startEdit();

signals:
    // The editor's signalEditStarted().
    void signalEditStarted();
    // The editor's signalTextEdited().
    void signalTextEdited(QString const& text);
    // The editor's signalEditFinished().
    void signalEditFinished(QString const& text);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
