// A small always-on-top popup with a typed icon and a text, centred on its parent,
// that closes after a given time (counted from showing) unless made permanent. The
// toasts createToastDialog() makes delete themselves when closed; one the caller
// constructs (on the stack or with new) is the caller's to delete.
//
//   ToastDialog::createToastDialog(tr("Recording started"), 2000, 3, false, page);
//
// Popup types (the icon label's "image" property): 0 "toast_warning",
// 1 "toast_critical", 2 "toast_info", 3 "toast_success". Escape does not close it.
#pragma once

#include "lcdwidgets_global.h"

#include <QDialog>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ToastDialog : public QDialog
{
    Q_OBJECT
public:
    // A top-most, frameless toast with `text` and the icon of `popupType` that closes after
    // `ms` counted from each showing (unless permanent). It does not delete itself when
    // closed: it may live on the stack, and may be shown again.
    ToastDialog(QString const& text, unsigned int const& ms, int popupType = 2, bool permanent = false,
                QWidget* parent = nullptr);
    ~ToastDialog() override;

    // Creates a toast on the heap and shows it (non-modal); it deletes itself when
    // closed. An empty text is refused (null).
    static ToastDialog* createToastDialog(QString const& text, unsigned int const& ms, int popupType = 2,
                                          bool permanent = false, QWidget* parent = nullptr);

    // The toast's text.
    void setToastText(QString const& text);
    // The toast's text.
    QString toastText() const;
    // A permanent toast stays until its owner closes it: setting the flag stops a running
    // timer; clearing it does not start one (the next showing does).
    void setPermanent(bool permanent);
    // Whether the toast stays until its owner closes it.
    bool isPermanent() const;
    // 0 to 3; other values are refused.
    void setPopupType(int type);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
