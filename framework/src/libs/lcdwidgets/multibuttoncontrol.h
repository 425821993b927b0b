// A value chooser worked like a knob spinner: a row of text buttons, one of them the
// current value, marked by the dynamic property "multiButtonCurrent" = true (false on
// the others).
//
// - The row takes the focus itself (its buttons don't). While it has the focus, Up
//   chooses the previous value (previousClicked()), Down the next one
//   (nextBtnClicked()), without wrap; each move emits signalValueChanged(value) at
//   once. Enter, Return or Escape end the edit with signalEditFinished().
// - A click on a button (slotBtnClicked()) chooses it, emits signalValueChanged() and
//   then signalEditFinished().
// - setOneBtnVisible(true) shows the current button alone (a compact spinner);
//   false shows them all.
// - setCurrentData() chooses silently; getCurrentData() answers -1 while there is no
//   current button.
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <QPair>
#include <QVariant>
#include <QVector>
#include <memory>

class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT MultiButtonControl : public QFrame
{
    Q_OBJECT
public:
    // No buttons; the row takes the focus ("multiButtonFrame" = "normal").
    explicit MultiButtonControl(QWidget* parent = nullptr);
    ~MultiButtonControl() override;

    // Replaces the buttons: one a pair (text, value). The first becomes current.
    void setBtnText(QVector<QPair<QString, int>>& data);
    // Chooses the button with that value, silently; an unknown value is refused.
    void setCurrentData(int value);
    // Value of the current button; -1 when there is none.
    int getCurrentData() const;
    // true: only the current button shows; false: all of them.
    void setOneBtnVisible(bool one);
    // The next / previous value (no wrap); emits signalValueChanged() when it moved.
    void nextBtnClicked();
    // The previous value (no wrap); emits signalValueChanged() when it moved.
    void previousClicked();
    // Marks `button` as the current one (and shows it alone in the one-button mode).
    void updateBtnStyle(QPushButton* button);
    // Number of buttons.
    int count() const;
    // The button at `index`; null for a bad index.
    QPushButton* button(int index) const;

public slots:
    // A click on one of the buttons (the sender).
    void slotBtnClicked();

signals:
    // The current value changed by the knob or a click: QVariant(int).
    void signalValueChanged(QVariant value);
    // The edit ended (Enter, Return, Escape, or after a click).
    void signalEditFinished();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void step(int delta);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
