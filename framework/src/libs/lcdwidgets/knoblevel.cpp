#include "knoblevel.h"

#include <QKeyEvent>
#include <cmath>

namespace LCD {
namespace Widget {

float knobLevel(QString const& text)
{
    if (text.isEmpty())
        return 1.0f;
    bool ok = false;
    float const level = text.toFloat(&ok);
    if (!ok || std::isnan(level))
        return 1.0f;
    if (level > kMaxKnobLevel)
        return kMaxKnobLevel;
    if (level < -kMaxKnobLevel)
        return -kMaxKnobLevel;
    return level;
}

float knobLevel(QKeyEvent const* event)
{
    return event ? knobLevel(event->text()) : 1.0f;
}

} // namespace Widget
} // namespace LCD
