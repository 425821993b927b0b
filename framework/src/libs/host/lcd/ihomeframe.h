// The host's home frame: the area of the screen that pages and pop-ups size
// themselves from.
#pragma once

#include <QSize>

namespace LCD {
namespace MainWidgets {

class IHomeFrame
{
public:
    // The home frame's size in px.
    virtual QSize size() const = 0;

protected:
    ~IHomeFrame() = default;
};

} // namespace MainWidgets
} // namespace LCD
