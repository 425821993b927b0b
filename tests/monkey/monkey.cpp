#include "monkey.h"

#include <cmath>
#include <limits>

namespace Monkey {

int Rng::between(int lo, int hi)
{
    if (hi <= lo)
        return lo;
    return std::uniform_int_distribution<int>(lo, hi)(m_engine);
}

bool Rng::chance(double p)
{
    return std::uniform_real_distribution<double>(0.0, 1.0)(m_engine) < p;
}

double Rng::real(double lo, double hi)
{
    if (!(hi > lo))
        return lo;
    return std::uniform_real_distribution<double>(lo, hi)(m_engine);
}

int Rng::hostileInt()
{
    switch (between(0, 9)) {
    case 0: return 0;
    case 1: return -1;
    case 2: return 1;
    case 3: return std::numeric_limits<int>::min();
    case 4: return std::numeric_limits<int>::max();
    case 5: return 100000;
    case 6: return -100000;
    default: return between(-50, 300);
    }
}

int Rng::hostileIndex(int count)
{
    switch (between(0, 7)) {
    case 0: return -1;
    case 1: return count;
    case 2: return count + 1;
    case 3: return std::numeric_limits<int>::max();
    case 4: return std::numeric_limits<int>::min();
    default: return count > 0 ? between(0, count - 1) : 0;
    }
}

int Rng::hostileSize()
{
    switch (between(0, 9)) {
    case 0: return 0;
    case 1: return -1;
    case 2: return -between(2, 5000);
    case 3: return std::numeric_limits<int>::min();
    case 4: return std::numeric_limits<int>::max();
    case 5: return 100000;
    case 6: return 1;
    default: return between(2, 120);
    }
}

double Rng::hostileDouble()
{
    switch (between(0, 9)) {
    case 0: return std::numeric_limits<double>::quiet_NaN();
    case 1: return std::numeric_limits<double>::infinity();
    case 2: return -std::numeric_limits<double>::infinity();
    case 3: return 1e300;
    case 4: return -1e300;
    case 5: return 0.0;
    case 6: return -0.0;
    case 7: return 1e10;
    default: return real(-100.0, 400.0);
    }
}

QString Rng::hostileText()
{
    switch (between(0, 9)) {
    case 0: return QString();
    case 1: return QString(100000, QLatin1Char('W'));
    case 2: return QStringLiteral("line one\nline two\n\nline four");
    case 3: return QStringLiteral("%1 %d %s %n 100%");
    case 4: return QStringLiteral("切换台 输入 \u0627\u0644\u0639\u0631\u0628\u064a\u0629 \U0001F3A5");
    case 5: return QStringLiteral(" ");
    case 6: return QString(between(20, 300), QLatin1Char('m'));
    case 7: return QStringLiteral("<b>rich</b> &amp; <i>text</i>");
    default: return QStringLiteral("Input %1").arg(between(0, 99));
    }
}

QString Rng::levelText()
{
    static char const* const levels[] = {"", "1", "0.01", "-3", "1e9", "nan", "abc", "0.05",
                                         "inf", "-inf", "0", "1e-30", "2.5", "-0", " 1 ", "1e308"};
    return QString::fromLatin1(levels[between(0, int(std::size(levels)) - 1)]);
}

QColor Rng::hostileColor()
{
    switch (between(0, 3)) {
    case 0: return QColor();
    case 1: return QColor(Qt::transparent);
    default: return QColor(between(0, 255), between(0, 255), between(0, 255), between(0, 255));
    }
}

} // namespace Monkey
