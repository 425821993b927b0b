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
    explicit TipDialog(QString const& text, QWidget* parent = nullptr);
    ~TipDialog() override;

    // Creates one on the heap and runs it; false for Cancel, and for an empty text
    // (refused, nothing shown).
    static bool createTipDialog(QString const& text, QWidget* parent = nullptr);

    void setTipText(QString const& text);
    QString tipText() const;
    void setAutoDelete(bool autoDelete);
    // The separator shows while at least one button is meant to be visible.
    void setCancelBtnVisible(bool visible);
    void setOkBtnVisible(bool visible);
    // Neither button takes the keyboard focus.
    void setBtnNoFocus();
    int getVisibleButtonCount() const;
    QPushButton* cancelButton() const;
    QPushButton* okButton() const;
    // Runs modally; true when OK closed it.
    bool run();
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
