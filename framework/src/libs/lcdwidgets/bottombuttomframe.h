// The bottom bar of a page: dialog-like buttons, right-aligned.
//
// The buttons are chosen with the flags of Enum::BottomButtonType and always appear
// in the order Cancel, Previous step, Export, OK, Update. Each one turns its click
// into a signal; the bar keeps no state of its own.
#pragma once

#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <QFrame>
#include <memory>

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT BottomButtomFrame : public QFrame
{
    Q_OBJECT
public:
    // `type`: an OR of Enum::BottomButtonType flags. The frame is created without a
    // parent (the page's layout places it); `parent` is only kept.
    explicit BottomButtomFrame(Enum::BottomButtonType type, QWidget* parent = nullptr);
    ~BottomButtomFrame() override;

    // The button of one flag, or null when the bar does not show it.
    QPushButton* button(Enum::BottomButtonType flag) const;
    // The widget given to the constructor (may be null).
    QWidget* storedParent() const;

    // Sets the buttons' texts again in the current language.
    void retranslateUi();

signals:
    // The OK button was clicked.
    void signalOkBtnClicked();
    // The Cancel button was clicked.
    void signalCancelBtnClicked();
    // The Previous step button was clicked.
    void signalPreStepBtnClicked();
    // The Export button was clicked.
    void signalExportBtnClicked();
    // The Update button was clicked.
    void signalUpdateBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
