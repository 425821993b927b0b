// Reading the knob's speed level from a key event.
#pragma once

#include "lcdwidgets_global.h"

#include <QString>

class QKeyEvent;

namespace LCD {
namespace Widget {

// Largest level magnitude a knob driver can meaningfully send; anything beyond is
// clamped so that products with a range never overflow an int cast.
constexpr float kMaxKnobLevel = 1.0e6f;

// The level carried in a key event's text: a float; empty, unreadable or NaN text
// counts as 1.0, and the value is clamped to [-kMaxKnobLevel, kMaxKnobLevel].
LCDWIDGETS_EXPORT float knobLevel(QString const& text);
// The level of the event's text by the same rule; a null event counts as 1.0.
LCDWIDGETS_EXPORT float knobLevel(QKeyEvent const* event);

} // namespace Widget
} // namespace LCD
