#include "spinrow_p.h"

#include "commonitemtype.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <cmath>
#include <limits>

namespace LCD {
namespace Widget {

void returnFocusToParent(QWidget* row)
{
    if (!row)
        return;
    QWidget* parent = row->parentWidget();
    if (!parent)
        return;
    QWidget* focus = QApplication::focusWidget();
    if (!focus || focus == row || row->isAncestorOf(focus))
        parent->setFocus(Qt::OtherFocusReason);
}

bool filterSpinRowKeys(CommonItemType* row, QWidget* editor, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease)
        return true;
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return false;
    // The focus loss ends the spin box's own edit.
    if (QWidget* parent = row->parentWidget())
        parent->setFocus(Qt::OtherFocusReason);
    else if (editor)
        editor->clearFocus();
    emit row->signalCloseEditStatus();
    return true;
}

int truncateToInt(float v)
{
    if (std::isnan(v))
        return 0;
    if (v >= 2147483648.0f) // 2^31
        return std::numeric_limits<int>::max();
    if (v <= -2147483648.0f)
        return std::numeric_limits<int>::min();
    return static_cast<int>(v);
}

namespace {

int decimalLength(int v)
{
    // The "%d" text: digits plus the minus sign.
    long long x = v;
    int n = x < 0 ? 1 : 0;
    if (x < 0)
        x = -x;
    do {
        ++n;
        x /= 10;
    } while (x != 0);
    return n;
}

} // namespace

int intSpinBoxWidth(int minimum, int maximum, int fontSize)
{
    int const d = qMax(decimalLength(minimum), decimalLength(maximum)) + 1;
    // In 64 bits and bounded to what a widget accepts: the font size is the host's.
    qint64 const width = qint64(fontSize) + qint64(d / 2) * fontSize;
    return int(qBound<qint64>(0, width, QWIDGETSIZE_MAX));
}

} // namespace Widget
} // namespace LCD

namespace LCD {
namespace Widget {

void returnFocusFromWindow(QWidget* row, QWidget* window)
{
    if (!row || !row->parentWidget())
        return;
    QWidget* focus = QApplication::focusWidget();
    bool const ours = !focus || focus == row || row->isAncestorOf(focus) || (window && window->isAncestorOf(focus))
        || focus == window;
    if (!ours)
        return;
    QWidget* top = row->window();
    // Without a window manager nobody else gives the page's window the keyboard back.
    if (top->isVisible() && QApplication::activeWindow() != top) {
        top->activateWindow();
        QApplication::setActiveWindow(top);
    }
    row->parentWidget()->setFocus(Qt::OtherFocusReason);
}

} // namespace Widget
} // namespace LCD
