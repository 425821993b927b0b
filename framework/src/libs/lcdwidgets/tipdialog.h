// A question box with "Cancel" and "OK" that returns a bool:
//
//   if (TipDialog::createTipDialog(tr("Restart the device now?"), page)) ...
//
// run() blocks until a button is pressed (Escape does not close it); with
// auto-delete (the default) the dialog deletes itself afterwards, so the caller
// must not use it after run().
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <memory>

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TipDialog : public QDialog
{
    Q_OBJECT
public:
    // A frameless dialog 520 px wide (at least 240 high) with `text` (plain) and the buttons
    // "Cancel" and "OK"; shown centred on its parent.
    explicit TipDialog(QString const& text, QWidget* parent = nullptr);
    ~TipDialog() override;

    // Creates one on the heap and runs it; false for Cancel, and for an empty text
    // (refused, nothing shown).
    static bool createTipDialog(QString const& text, QWidget* parent = nullptr);

    // The question, as plain text.
    void setTipText(QString const& text);
    // The question's text.
    QString tipText() const;
    // Whether run() deletes the dialog (deleteLater()) when it returns (default true).
    void setAutoDelete(bool autoDelete);
    // The separator shows while at least one button is meant to be visible.
    void setCancelBtnVisible(bool visible);
    // Shows or hides "OK".
    void setOkBtnVisible(bool visible);
    // Neither button takes the keyboard focus.
    void setBtnNoFocus();
    // Number of buttons meant to be visible (0 to 2).
    int getVisibleButtonCount() const;
    // The "Cancel" button.
    QPushButton* cancelButton() const;
    // The "OK" button.
    QPushButton* okButton() const;
    // Runs modally; true when OK closed it.
    bool run();
    // Whether OK closed the dialog last (false before any run).
    bool result() const;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
