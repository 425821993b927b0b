// Internal helpers of the spin-box rows (not installed, not exported).
#pragma once

class QEvent;
class QWidget;

namespace LCD {
namespace Widget {

class CommonItemType;

// Width rule shared by the integer rows: the characters of the longer bound's
// decimal text (minus sign included) plus one, then font + (chars / 2) * font.
int intSpinBoxWidth(int minimum, int maximum, int fontSize);

// End of an edit inside `row`: the row's parent widget takes the focus back, unless
// the focus has already gone to a widget outside the row (then it stays there).
void returnFocusToParent(QWidget* row);

// The keys of an edit in a spin-box row, for the row's event filter: Escape leaves
// the edit keeping the value reached (the row's parent takes the focus back, or the
// editor drops it when there is no parent) and emits signalCloseEditStatus();
// key releases are swallowed. Returns true when the event was consumed.
bool filterSpinRowKeys(CommonItemType* row, QWidget* editor, QEvent* event);

// A float bound or step truncated toward zero; NaN gives 0, values beyond the int
// range give its limits.
int truncateToInt(float value);

} // namespace Widget
} // namespace LCD

namespace LCD {
namespace Widget {

// End of an edit that ran in a window of its own (a menu dialog): the row's window
// becomes the active one again and the row's parent takes the focus back, unless the
// focus has gone to a widget outside both the row and that window.
void returnFocusFromWindow(QWidget* row, QWidget* window);

} // namespace Widget
} // namespace LCD
