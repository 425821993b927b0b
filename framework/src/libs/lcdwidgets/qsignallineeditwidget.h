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
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(QString text READ text WRITE setText)
public:
    explicit QSignalLineEditWidget(QString const& title = QString(), QString const& unit = QString(),
                                   QWidget* parent = nullptr);
    ~QSignalLineEditWidget() override;

    NSignalLineEdit* editor() const;
    void setTitle(QString const& title);
    QString title() const;
    // An empty unit hides the unit label.
    void setUnit(QString const& unit);
    QString unit() const;
    void setText(QString const& text);
    QString text() const;
    void startEdit();

signals:
    void signalEditStarted();
    void signalTextEdited(QString const& text);
    void signalEditFinished(QString const& text);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
