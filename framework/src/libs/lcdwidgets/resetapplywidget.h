// Reset/apply buttons at the end of a page.
//
// ResetApplyWidget: the bar the knob walks through. With both buttons, Up on Reset
// moves the focus to Apply and Down on Apply moves it back; Up on Apply (and Up in
// a one-button bar) is handed to the event filter of the widget given to the
// constructor, normally the page, which then moves its own current row. Enter or
// Return on a button clicks it; the back key (Qt::Key_Back) emits
// signalBackBtnClicked(). Every other key press on the buttons is swallowed, so the
// knob never leaks past the bar.
//
// TypeReset, TypeApply and TypeResetApply: plain rows with the same buttons that
// only turn clicks into signals.
#pragma once

#include "lcdenums.h"
#include "lcdwidgets_global.h"

#include <QWidget>
#include <memory>

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT ResetApplyWidget : public QWidget
{
    Q_OBJECT
    // Whether the bar's buttons are enabled.
    Q_PROPERTY(bool enable READ getEnable WRITE setEnable)
public:
    // `type` 1: Reset only, 2: Apply only, 3: both. The bar is created without a
    // parent (the page's layout places it); `parent` is kept as the widget whose
    // event filter receives the keys the bar hands over.
    explicit ResetApplyWidget(Enum::ResetApplyButtonType type, QWidget* parent = nullptr);
    ~ResetApplyWidget() override;

    // The left-most button: Reset, or Apply in an Apply-only bar.
    QPushButton* getfirstButton();
    // The Reset button; null in an Apply-only bar.
    QPushButton* getResetButton();
    // The Apply button; null in a Reset-only bar.
    QPushButton* getApplyButton();

    // Enables or disables every button of the bar.
    void setEnable(bool enable);
    // The state last given to setEnable() (true by default).
    bool getEnable() const;
    // Re-polishes both buttons (after a style property of theirs changed).
    void polishBtnStyle();
    // Sets the buttons' texts ("Reset", "Apply") again in the current language.
    void retranslateUi();

    // The buttons' key presses, as described above. Without a widget to hand a key to, the
    // key stops at the bar with the warning "[ResetApplyWidget] key delegate is nullptr".
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The Reset button was clicked.
    void signalResetBtnClicked();
    // The Apply button was clicked.
    void signalApplyBtnClicked();
    // The back key (Qt::Key_Back) was pressed on one of the bar's buttons.
    void signalBackBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    bool handOver(QObject* watched, QEvent* event);

    struct Impl;
    std::unique_ptr<Impl> d;
};

// A row with a single, centred Reset button.
class LCDWIDGETS_EXPORT TypeReset : public QWidget
{
    Q_OBJECT
public:
    // A centred "Reset" button.
    explicit TypeReset(QWidget* parent = nullptr);
    // The "Reset" button.
    QPushButton* resetButton() const { return m_reset; }
    // Sets the button's text again in the current language.
    void retranslateUi();

signals:
    // The button was clicked.
    void signalResetBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* m_reset = nullptr;
};

// A row with a single, centred Apply button.
class LCDWIDGETS_EXPORT TypeApply : public QWidget
{
    Q_OBJECT
public:
    // A centred "Apply" button.
    explicit TypeApply(QWidget* parent = nullptr);
    // The "Apply" button.
    QPushButton* applyButton() const { return m_apply; }
    // Sets the button's text again in the current language.
    void retranslateUi();

signals:
    // The button was clicked.
    void signalApplyBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* m_apply = nullptr;
};

// A row with Reset and Apply side by side, centred.
class LCDWIDGETS_EXPORT TypeResetApply : public QWidget
{
    Q_OBJECT
public:
    // "Reset" and "Apply" side by side, centred.
    explicit TypeResetApply(QWidget* parent = nullptr);
    // The "Reset" button.
    QPushButton* resetButton() const { return m_reset; }
    // The "Apply" button.
    QPushButton* applyButton() const { return m_apply; }
    // Sets the buttons' texts again in the current language.
    void retranslateUi();

signals:
    // The "Reset" button was clicked.
    void signalResetBtnClicked();
    // The "Apply" button was clicked.
    void signalApplyBtnClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* m_reset = nullptr;
    QPushButton* m_apply = nullptr;
};

} // namespace Widget
} // namespace LCD
