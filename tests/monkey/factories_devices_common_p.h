// Shared helpers of the device factories (choices, dialogs, device pages,
// instruments, system, layers, factory test).
#pragma once

#include "monkey.h"

#include <commonitemtype.h>
#include <itemdatainfo.h>

#include <QLayout>
#include <QPointer>
#include <QRect>
#include <QRegularExpression>
#include <QTimer>

#include <climits>
#include <functional>
#include <string>
#include <vector>

namespace Monkey {
namespace Devices {

// The panel's screen: the host rectangle the dialogs are sized from.
inline QRect screenRect() { return QRect(0, 0, 800, 480); }

// A host rectangle as the host might pass it: the screen, empty, or odd.
inline QRect hostileRect(Rng& r)
{
    switch (r.between(0, 5)) {
    case 0:
        return QRect();
    case 1:
        return QRect(0, 0, -10, -10);
    case 2:
        return QRect(0, 0, 1, 1);
    case 3:
        return QRect(INT_MAX / 2, INT_MAX / 2, 100000, 100000);
    default:
        return screenRect();
    }
}

inline QSize hostileQSize(Rng& r) { return QSize(r.hostileSize(), r.hostileSize()); }

inline QSizeF hostileQSizeF(Rng& r) { return QSizeF(r.hostileDouble(), r.hostileDouble()); }

inline QRectF hostileRectF(Rng& r)
{
    if (r.chance(0.4))
        return QRectF(r.between(0, 200), r.between(0, 200), r.between(1, 300), r.between(1, 300));
    return QRectF(r.hostileDouble(), r.hostileDouble(), r.hostileDouble(), r.hostileDouble());
}

// A colour name: valid, empty, or not a colour.
inline QString hostileColorName(Rng& r)
{
    static std::vector<QString> const names{QString(), QStringLiteral("green"), QStringLiteral("#00bf4c"),
                                            QStringLiteral("no such colour"), QStringLiteral("#12"),
                                            QStringLiteral("transparent"), QStringLiteral("#ff0000ff")};
    return r.chance(0.1) ? r.hostileText() : r.pick(names);
}

// (text, value) pairs: empty, one, several, or many, with hostile texts and values.
inline QVector<QPair<QString, int>> hostilePairs(Rng& r, int most = 40)
{
    QVector<QPair<QString, int>> out;
    int const n = r.chance(0.2) ? 0 : r.between(1, r.chance(0.1) ? most : 6);
    for (int i = 0; i < n; ++i)
        out.append(qMakePair(r.chance(0.2) ? r.hostileText().left(2000) : QStringLiteral("Item %1").arg(i),
                             r.chance(0.2) ? r.hostileInt() : i));
    return out;
}

inline LCD::Widget::ItemDataInfo hostileItemInfo(Rng& r)
{
    LCD::Widget::ItemDataInfo info;
    info.text = (r.chance(0.7) ? QStringLiteral("Layer %1").arg(r.between(0, 9)) : r.hostileText().left(3000)).toStdString();
    bool const sane = r.chance(0.5);
    info.x = sane ? r.between(0, 1920) : r.hostileInt();
    info.y = sane ? r.between(0, 1080) : r.hostileInt();
    info.width = sane ? r.between(1, 1920) : r.hostileInt();
    info.height = sane ? r.between(1, 1080) : r.hostileInt();
    return info;
}

inline std::vector<LCD::Widget::ItemDataInfo> hostileItemInfos(Rng& r)
{
    std::vector<LCD::Widget::ItemDataInfo> out;
    int const n = r.chance(0.15) ? 0 : r.between(1, r.chance(0.05) ? 300 : 6);
    for (int i = 0; i < n; ++i)
        out.push_back(hostileItemInfo(r));
    return out;
}

inline LCD::Widget::CropRectInfoArray hostileCropInfos(Rng& r)
{
    LCD::Widget::CropRectInfoArray out;
    int const n = r.chance(0.15) ? 0 : r.between(1, 6);
    for (int i = 0; i < n; ++i)
        out.emplace_back(r.coin(), hostileItemInfo(r));
    return out;
}

// Runs `f` from the event loop, after the monkey's step: modal loops must not be
// entered from inside the step that drives them.
inline void later(QObject* context, std::function<void()> f) { QTimer::singleShot(0, context, std::move(f)); }

// Opens a dialog modally from the event loop, as the host does: never a second
// time while it is already open.
template <class D, class R = int>
void execLater(D* dialog, R (D::*run)() = &D::exec)
{
    later(dialog, [dialog, run] {
        if (!dialog->isVisible())
            (dialog->*run)();
    });
}

// Renders what the panel shows of `w` (a host grabs its screen, not a widget larger
// than it).
inline void renderShown(QWidget* w) { w->grab(QRect(0, 0, qMin(w->width(), 800), qMin(w->height(), 480))); }

// A text for the dialogs' text views: Qt lays out an unbroken text of 100 000
// characters for tens of seconds, so the hostile texts are cut to 20 000 here.
inline QString dialogText(Rng& r) { return r.hostileText().left(20000); }

// Puts a row or control on the page's layout, as a host builds its page.
inline void addToPage(QWidget* page, QWidget* w)
{
    if (page && page->layout())
        page->layout()->addWidget(w);
    w->show();
}

// An entry whose widget is built as a host builds it: `new T(page)`, set up by
// `fill`, put on the page's layout, then `after` (both may be null).
template <class T>
ClassEntry pageEntry(QString name, std::function<void(T*)> fill = nullptr, std::function<void(T*)> after = nullptr)
{
    return ClassEntry{std::move(name), [fill, after](QWidget* page) {
                          auto* w = new T(page);
                          if (fill)
                              fill(w);
                          addToPage(page, w);
                          if (after)
                              after(w);
                          return static_cast<QWidget*>(w);
                      }};
}

// An `after` for pageEntry(): the widget takes the focus.
template <class T>
void focusIt(T* w)
{
    w->setFocus();
}

// The host rectangle of a build: the screen, empty every `every`-th time.
inline QRect roundRect(int& round, int every = 4) { return round++ % every == every - 1 ? QRect() : screenRect(); }

// The setters every item row has (from CommonItemType). The base class takes its
// sizes as they come (a fault of the row base, worked around here): the base's own
// size setters get sane values, and a row that overrides one (flags below) gets the
// hostile values, which its override must refuse.
enum RowOwn { OwnNone = 0, OwnFontSize = 1, OwnRightIcon = 2, OwnItemHeight = 4, OwnLeftIcon = 8 };

template <class T>
void addRowActions(std::vector<Action>& actions, int own = OwnNone)
{
    actions.push_back(act<T>("setItemTitle", [](T* w, Rng& r) { w->setItemTitle(r.hostileText()); }));
    if (own & OwnFontSize)
        actions.push_back(act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }));
    else
        actions.push_back(act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.between(8, 48)); }));
    if (own & OwnItemHeight)
        actions.push_back(act<T>("setItemHeight", [](T* w, Rng& r) { w->setItemHeight(r.hostileSize()); }));
    else
        actions.push_back(act<T>("setItemHeight", [](T* w, Rng& r) { w->setItemHeight(r.between(20, 200)); }));
    if (own & OwnLeftIcon)
        actions.push_back(act<T>("setLeftIconSize", [](T* w, Rng& r) { w->setLeftIconSize(hostileQSize(r)); }));
    else
        actions.push_back(act<T>("setLeftIconSize", [](T* w, Rng& r) { w->setLeftIconSize(QSize(r.between(1, 64), r.between(1, 64))); }));
    if (own & OwnRightIcon)
        actions.push_back(act<T>("setRightIconSize", [](T* w, Rng& r) { w->setRightIconSize(hostileQSize(r)); }));
    else
        actions.push_back(act<T>("setRightIconSize", [](T* w, Rng& r) { w->setRightIconSize(QSize(r.between(1, 64), r.between(1, 64))); }));
    actions.push_back(act<T>("setItemTitleWidth", [](T* w, Rng& r) { w->setItemTitleWidth(r.between(0, 600)); }));
    actions.push_back(act<T>("setContentEnabled", [](T* w, Rng& r) { w->setContentEnabled(r.coin()); }));
    actions.push_back(act<T>("setContentDisabled", [](T* w, Rng& r) { w->setContentDisabled(r.coin()); }));
    actions.push_back(act<T>("setCurrentItem", [](T* w, Rng& r) { w->setCurrentItem(r.coin()); }));
    actions.push_back(act<T>("setHomeRect", [](T* w, Rng& r) { w->setHomeRect(hostileRect(r)); }));
    actions.push_back(act<T>("editValue", [](T* w, Rng&) { w->editValue(); }));
    actions.push_back(act<T>("closeEditValue", [](T* w, Rng&) { w->closeEditValue(); }));
}

// What every row may log for hostile input of the common setters.
inline QStringList rowWarnings()
{
    // The row base refuses sizes Qt cannot take with its own messages.
    return {QStringLiteral("^\\[item\\] .* : no editor to edit with$"), QStringLiteral("^\\[(CommonItemType|RollLabel)\\] .* refused$")};
}

// An item row's entry: built by pageEntry() with `title` (none when empty) before
// `fill`, the row base's setters (`own` as in addRowActions) and its warnings.
template <class T>
ClassEntry rowEntry(QString name, QString title, int own, std::function<void(T*)> fill = nullptr)
{
    ClassEntry e = pageEntry<T>(std::move(name), [title, fill](T* w) {
        if (!title.isEmpty())
            w->setItemTitle(title);
        if (fill)
            fill(w);
    });
    addRowActions<T>(e.actions, own);
    e.allowedWarnings = rowWarnings();
    return e;
}

// What a dialog may log: its exec result, an empty host rectangle, a parent that
// goes while it is shown.
inline QStringList dialogWarnings(QString const& who)
{
    QString const w = QRegularExpression::escape(who);
    return {"^\\[dialog\\] exec finish with -?\\d+$", "^" + w + " host rectangle is (empty|larger than any screen), using 800x480$",
            "^" + w + " parent destroyed: closing$", "^" + w + " (exec|run): already running, refused$"};
}

// The groups gathered by addDeviceClasses().
void addDialogClasses(std::vector<ClassEntry>& out); // factories_devices_dialogs.cpp
void addPageClasses(std::vector<ClassEntry>& out);   // factories_devices_pages.cpp

} // namespace Devices
} // namespace Monkey
