// Drives modal dialogs from timers, the way the panel does while a dialog's own
// event loop runs: `whenModal` waits for a modal widget and hands it to a step;
// `Guard` closes any modal left open after its time and records that it had to,
// so that a test never hangs.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <functional>

namespace Modal {

// Calls `step` with the active modal widget as soon as there is one and it has the
// keyboard (polled every 2 ms, for at most `timeoutMs`).
inline void whenModal(std::function<void(QWidget*)> step, int timeoutMs = 3000)
{
    auto* timer = new QTimer;
    auto waited = std::make_shared<int>(0);
    QObject::connect(timer, &QTimer::timeout, [timer, waited, step, timeoutMs] {
        QWidget* modal = QApplication::activeModalWidget();
        *waited += 2;
        // Up and active (it has the keys); a platform that never activates it gets
        // half a second.
        if (modal && modal->isVisible() && (modal->isActiveWindow() || *waited > 500)) {
            timer->stop();
            timer->deleteLater();
            step(modal);
        } else if (*waited > timeoutMs) {
            timer->stop();
            timer->deleteLater();
        }
    });
    timer->start(2);
}

// Sends one key press and release to the focus widget inside `w` (or `w`).
inline void key(QWidget* w, int key, QString const& text = QString())
{
    QWidget* focus = QApplication::focusWidget();
    QWidget* target = focus && (focus == w || w->isAncestorOf(focus)) ? focus : w;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &release);
}

// Sends `keys` to the modal dialog once it is up.
inline void keysWhenModal(QList<int> keys)
{
    whenModal([keys](QWidget* modal) {
        for (int k : keys)
            key(modal, k);
    });
}

class Guard
{
public:
    explicit Guard(int ms = 4000)
    {
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            for (int i = 0; i < 10; ++i) {
                QWidget* modal = QApplication::activeModalWidget();
                if (!modal)
                    break;
                m_fired = true;
                if (auto* dialog = qobject_cast<QDialog*>(modal))
                    dialog->done(-99);
                else
                    modal->hide();
            }
        });
        m_timer.start(ms);
    }
    ~Guard() { m_timer.stop(); }
    // Whether a modal had to be closed by force.
    bool fired() const { return m_fired; }

private:
    QTimer m_timer;
    bool m_fired = false;
};

} // namespace Modal
