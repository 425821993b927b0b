// Checks of a public setter's input before it reaches Qt. A refused value is logged
// as a warning, "[Class] setter: <what> <value> refused", and the setter returns
// without changing anything.
#pragma once

#include <QDebug>
#include <QSize>
#include <QWidget>

namespace LCD {
namespace Widget {

// Largest text pixel size a setter takes (as the lists and the drop-down; far larger
// sizes overflow Qt's text layout).
constexpr int kMaxFontPixelSize = 512;

inline bool fontSizeOk(char const* cls, char const* setter, int size)
{
    if (size >= 1 && size <= kMaxFontPixelSize)
        return true;
    qWarning().noquote() << QStringLiteral("[%1] %2: font size %3 refused").arg(QLatin1String(cls), QLatin1String(setter)).arg(size);
    return false;
}

// A width or height Qt takes as a fixed, minimum or maximum size: 0..QWIDGETSIZE_MAX.
inline bool lengthOk(char const* cls, char const* setter, int length)
{
    if (length >= 0 && length <= QWIDGETSIZE_MAX)
        return true;
    qWarning().noquote() << QStringLiteral("[%1] %2: length %3 refused").arg(QLatin1String(cls), QLatin1String(setter)).arg(length);
    return false;
}

// Longest side a setter gives a window (a dialog, a menu): far beyond any panel screen,
// and small enough for the window's backing store.
constexpr int kMaxWindowLength = 10000;

inline bool windowLengthOk(char const* cls, char const* setter, int length)
{
    if (length >= 0 && length <= kMaxWindowLength)
        return true;
    qWarning().noquote() << QStringLiteral("[%1] %2: length %3 refused").arg(QLatin1String(cls), QLatin1String(setter)).arg(length);
    return false;
}

inline bool sizeOk(char const* cls, char const* setter, QSize size)
{
    if (size.width() >= 0 && size.height() >= 0 && size.width() <= QWIDGETSIZE_MAX &&
        size.height() <= QWIDGETSIZE_MAX)
        return true;
    qWarning().noquote()
        << QStringLiteral("[%1] %2: size %3x%4 refused").arg(QLatin1String(cls), QLatin1String(setter)).arg(size.width()).arg(size.height());
    return false;
}

} // namespace Widget
} // namespace LCD
