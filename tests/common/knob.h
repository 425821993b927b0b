// Works a widget the way the front panel does: knob turns are Key_Up/Key_Down
// presses carrying the speed level in their text, the press is Enter/Return,
// back is Escape. Events are delivered synchronously to the widget (or to its
// focus widget when it has one), press then release, like the panel driver.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

namespace Knob {

// The widget that receives a key sent "to" w: the application's focus widget when
// it lies inside w, w itself otherwise.
inline QWidget* target(QWidget* w)
{
    QWidget* focus = QApplication::focusWidget();
    if (focus && (focus == w || w->isAncestorOf(focus)))
        return focus;
    return w;
}

// Sends one key press and release; returns whether the press was accepted.
inline bool key(QWidget* w, int key, QString const& text = QString())
{
    QWidget* t = target(w);
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(t, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(target(w), &release);
    return press.isAccepted();
}

// The level text as the knob driver writes it ("1", "0.05", ...).
inline QString levelText(double level) { return QString::number(level, 'g', 6); }

// Turns the knob `detents` steps: positive = clockwise (Key_Up), negative = Key_Down.
inline void turn(QWidget* w, int detents, double level = 1.0)
{
    int const k = detents >= 0 ? Qt::Key_Up : Qt::Key_Down;
    for (int i = 0; i < (detents >= 0 ? detents : -detents); ++i)
        key(w, k, levelText(level));
}

// Same, with a raw level text (for unreadable or extreme levels).
inline void turnText(QWidget* w, int detents, QString const& text)
{
    int const k = detents >= 0 ? Qt::Key_Up : Qt::Key_Down;
    for (int i = 0; i < (detents >= 0 ? detents : -detents); ++i)
        key(w, k, text);
}

// The knob's press (Key_Return; the keypad's Key_Enter with enter = true).
inline bool press(QWidget* w, bool enter = false) { return key(w, enter ? Qt::Key_Enter : Qt::Key_Return); }

// Back.
inline bool back(QWidget* w) { return key(w, Qt::Key_Escape); }

} // namespace Knob
