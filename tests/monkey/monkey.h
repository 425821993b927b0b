// The monkey: builds every public class on a shown page the way a host would and
// works it at random (knob turns with any level text, presses, back, other keys,
// clicks, focus changes, resizes, hides and shows, hostile setter values), destroying
// and rebuilding it at random moments. Every choice comes from one seeded generator,
// so a run is replayed by its seed.
//
// A factory file adds one ClassEntry per class to the registry (see factories.h).
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <random>
#include <vector>

namespace Monkey {

// The run's random source, with the hostile values every factory draws from.
class Rng
{
public:
    explicit Rng(quint64 seed) : m_engine(seed) {}

    int between(int lo, int hi);          // inclusive
    bool chance(double p);                // true with probability p
    double real(double lo, double hi);

    int hostileInt();                     // 0, -1, 1, INT_MIN, INT_MAX, +-100000, a small random value
    int hostileIndex(int count);          // -1, count, count + 1, INT_MAX, or a valid index
    int hostileSize();                    // a width, height or pixel size: 0, negative, huge, or sane
    double hostileDouble();               // NaN, +-inf, +-1e300, 0, -0.0, a small random value
    QString hostileText();                // "", 100 000 characters, new lines, "%1 %d", non-Latin, sane
    QString levelText();                  // "", "1", "0.01", "-3", "1e9", "nan", "abc", "0.05", ...
    QColor hostileColor();                // invalid, transparent, or a random colour
    bool coin() { return chance(0.5); }

    template <class T>
    T const& pick(std::vector<T> const& values) { return values[size_t(between(0, int(values.size()) - 1))]; }

    std::mt19937_64& engine() { return m_engine; }

private:
    std::mt19937_64 m_engine;
};

// One public setter (or other public operation) called with hostile values.
struct Action
{
    QString name;                                   // shown in the replay log
    std::function<void(QWidget*, Rng&)> call;
};

// How the monkey builds and works one public class.
struct ClassEntry
{
    QString name;                                   // the class name, matched by --only
    // Builds the class as a host would: as a child of `page` (a shown page with a
    // layout) for rows and controls; top-levels (dialogs, panels) ignore `page` as a
    // parent and are shown by the factory. Returns the widget the monkey works.
    std::function<QWidget*(QWidget* page)> create;
    std::vector<Action> actions{};                  // the class's public setters, hostile values
    // Regular expressions of the warnings the class documents for bad input; any
    // other message (and any message from Qt itself) is a failure.
    QStringList allowedWarnings{};
};

// Casts for the factories: Monkey::act<TypeIntAdjust>("setRange", [](TypeIntAdjust* w, Rng& r) {...}).
template <class T>
Action act(QString name, std::function<void(T*, Rng&)> f)
{
    return Action{std::move(name), [f](QWidget* w, Rng& r) { f(static_cast<T*>(w), r); }};
}

} // namespace Monkey
