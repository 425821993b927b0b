// Internal helpers of the choice controls (not installed, not exported): the values
// their children carry as object user data, and the knob's focus step through a row
// of children, shared by every grouped control.
#pragma once

#include <QVariant>
#include <QWidget>

namespace LCD {
namespace Widget {

// Object user data ids of a grouped control's children: the child's value, and the
// text of an icon-only button.
constexpr int kChoiceValueId = 256;
constexpr int kChoiceTextId = 257;

// Stores `value` on `object` under user data `id` (0..kMaxChoiceDataId).
void setChoiceData(QObject* object, int id, QVariant const& value);
// The value stored under `id`; an invalid QVariant when there is none (or for a bad
// id or a null object).
QVariant choiceData(QObject const* object, int id);
constexpr int kMaxChoiceDataId = 1023;

// Whether the knob can move the focus onto `w`: shown (as far as its own flag goes)
// and enabled.
inline bool canTakeChoiceFocus(QWidget const* w)
{
    return w && !w->isHidden() && w->isEnabled() && w->focusPolicy() != Qt::NoFocus;
}

// Position of the first widget of `widgets` that has the focus; -1 when none has.
// `at(i)` yields the i-th widget (so any container of children fits).
template <typename At>
int focusedChoice(int count, At at)
{
    for (int i = 0; i < count; ++i) {
        QWidget* w = at(i);
        if (w && w->hasFocus())
            return i;
    }
    return -1;
}

// The knob's focus step: from the focused child to the previous (up) or next one that
// can take the focus, with Qt::OtherFocusReason. No wrap at either end; nothing when no
// child has the focus. Returns the newly focused position, or -1 when nothing moved.
template <typename At>
int stepChoiceFocus(int count, At at, bool up)
{
    int const from = focusedChoice(count, at);
    if (from < 0)
        return -1;
    for (int i = up ? from - 1 : from + 1; i >= 0 && i < count; i += up ? -1 : 1) {
        QWidget* w = at(i);
        if (canTakeChoiceFocus(w)) {
            w->setFocus(Qt::OtherFocusReason);
            return i;
        }
    }
    return -1;
}

// Position of the first child that can take the focus; -1 when none can.
template <typename At>
int firstChoice(int count, At at)
{
    for (int i = 0; i < count; ++i)
        if (canTakeChoiceFocus(at(i)))
            return i;
    return -1;
}

// The children of a grouped control's list (pairs of a kind and a widget): calls
// f(w) for each that is a W.
template <class W, class List, class F>
void forEachChoice(List const& list, F f)
{
    for (auto const& pair : list)
        if (auto* w = qobject_cast<W*>(pair.second))
            f(w);
}

// The first child of the list that is a W and carries `value`; null when none does.
template <class W, class List>
W* choiceWithValue(List const& list, int value)
{
    for (auto const& pair : list) {
        auto* w = qobject_cast<W*>(pair.second);
        if (w && choiceData(w, kChoiceValueId).toInt() == value)
            return w;
    }
    return nullptr;
}

// Gives the focus to the list's first child that can take it.
template <class List>
void focusFirstChoice(List const& list)
{
    int const first = firstChoice(list.size(), [&list](int i) { return list.at(i).second; });
    if (first >= 0)
        list.at(first).second->setFocus(Qt::OtherFocusReason);
}

} // namespace Widget
} // namespace LCD
