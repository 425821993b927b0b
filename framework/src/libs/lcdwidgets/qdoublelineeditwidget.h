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
    Q_PROPERTY(QString title READ title WRITE setTitle)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(double value READ value WRITE setValue)
public:
    explicit QDoubleLineEditWidget(QString const& title = QString(), QString const& unit = QString(),
                                   QWidget* parent = nullptr);
    ~QDoubleLineEditWidget() override;

    NDoubleLineEdit* editor() const;
    void setTitle(QString const& title);
    QString title() const;
    // An empty unit hides the unit label.
    void setUnit(QString const& unit);
    QString unit() const;

    void setRange(double minimum, double maximum);
    void setDecimals(int decimals);
    void setSingleStep(double step);
    void setValue(double value);
    double value() const;
    void startEdit();

signals:
    void signalValueChanged(double value);
    void signalEditStarted();
    void signalEditFinished();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
