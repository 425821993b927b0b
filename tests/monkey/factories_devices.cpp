// The monkey's entries for the choice controls and rows (switches, button rows, check
// box rows, selection buttons, effect pictures). The dialogs, device pages,
// instruments, system, layer and factory test classes live in factories_devices_*.cpp;
// addDeviceClasses() gathers them all.
#include "factories.h"
#include "factories_devices_common_p.h"

#include <effectpicturewidget.h>
#include <multibtncontrol.h>
#include <multibtnwidget.h>
#include <multibuttoncontrol.h>
#include <multicheckboxcontrol.h>
#include <multipleselectbtn.h>
#include <multiswitchwidget.h>
#include <multiwidgetcontrol.h>
#include <switchcontrol.h>
#include <typeitemmultibtn.h>
#include <typeitemmulticheckbox.h>
#include <typeitemmultioperbtn.h>
#include <typeitemswitch.h>
#include <typemultipleselectbtn.h>

#include <QCheckBox>
#include <QIcon>
#include <QPushButton>
#include <QToolButton>

using namespace LCD::Widget;

namespace Monkey {
namespace {

using namespace Devices;

QIcon someIcon(Rng& r)
{
    if (r.coin())
        return QIcon();
    QPixmap p(16, 16);
    p.fill(Qt::red);
    return QIcon(p);
}

std::vector<ItemSelectInfo> selectInfos(int n)
{
    std::vector<ItemSelectInfo> infos;
    for (int i = 0; i < n; ++i)
        infos.emplace_back(QStringLiteral("Choice %1").arg(i), QIcon(), QVariant(i + 1));
    return infos;
}

std::vector<ItemSelectInfo> hostileSelectInfos(Rng& r)
{
    std::vector<ItemSelectInfo> infos;
    int const n = r.chance(0.2) ? 0 : r.between(1, r.chance(0.1) ? 60 : 6);
    for (int i = 0; i < n; ++i)
        infos.emplace_back(r.chance(0.3) ? r.hostileText().left(500) : QStringLiteral("Choice %1").arg(i), someIcon(r),
                           r.chance(0.2) ? QVariant() : QVariant(r.hostileInt()));
    return infos;
}

QMap<int, QPair<QString, QString>> effectChoices(Rng* r)
{
    static QStringList const effects{"mix", "dip", "wipe_left", "wipe_right", "box", "circle"};
    QMap<int, QPair<QString, QString>> choices;
    int const n = r ? (r->chance(0.2) ? 0 : r->between(1, r->chance(0.1) ? 40 : 12)) : 6;
    for (int i = 0; i < n; ++i) {
        QString const name = effects.at(i % effects.size());
        QString file = QStringLiteral("./../share/themes/default/images/effect_%1.gif").arg(name);
        if (r && r->chance(0.2))
            file = r->chance(0.5) ? QString() : QStringLiteral("/no/such/file.gif");
        int const key = r && r->chance(0.2) ? r->hostileInt() : i;
        choices.insert(key, qMakePair(r && r->chance(0.1) ? r->hostileText().left(200) : name, file));
    }
    return choices;
}

// --- Switches ---

ClassEntry switchControl()
{
    ClassEntry e{"SwitchControl", [](QWidget* page) {
                     auto* w = new SwitchControl(page);
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<SwitchControl>("setToggle", [](SwitchControl* w, Rng& r) { w->setToggle(r.coin()); }),
        act<SwitchControl>("setBackgroundColor", [](SwitchControl* w, Rng& r) { w->setBackgroundColor(r.hostileColor()); }),
        act<SwitchControl>("setCheckedColor", [](SwitchControl* w, Rng& r) { w->setCheckedColor(r.hostileColor()); }),
        act<SwitchControl>("setDisbaledColor", [](SwitchControl* w, Rng& r) { w->setDisbaledColor(r.hostileColor()); }),
        act<SwitchControl>("setThumbColor", [](SwitchControl* w, Rng& r) { w->setThumbColor(r.hostileColor()); }),
        act<SwitchControl>("setSwitchSize", [](SwitchControl* w, Rng& r) { w->setSwitchSize(hostileQSize(r)); }),
        act<SwitchControl>("setEnabled", [](SwitchControl* w, Rng& r) { w->setEnabled(r.coin()); }),
    };
    e.allowedWarnings = QStringList{"^SwitchControl::setSwitchSize: invalid size -?\\d+x-?\\d+$"};
    return e;
}

ClassEntry switchWidget()
{
    ClassEntry e{"SwitchWidget", [](QWidget* page) {
                     auto* w = new SwitchWidget(page);
                     w->setLabelText(QStringLiteral("Tally"));
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<SwitchWidget>("setToggle", [](SwitchWidget* w, Rng& r) { w->setToggle(r.coin()); }),
        act<SwitchWidget>("setLabelText", [](SwitchWidget* w, Rng& r) { w->setLabelText(r.hostileText()); }),
        act<SwitchWidget>("setSwitchSize", [](SwitchWidget* w, Rng& r) { w->setSwitchSize(hostileQSize(r)); }),
        act<SwitchWidget>("setSwitchColor", [](SwitchWidget* w, Rng& r) { w->setSwitchColor(hostileColorName(r)); }),
        act<SwitchWidget>("setContentDisabled", [](SwitchWidget* w, Rng& r) { w->setContentDisabled(r.coin()); }),
        act<SwitchWidget>("setContentFontSize", [](SwitchWidget* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }),
    };
    e.allowedWarnings = QStringList{"^SwitchControl::setSwitchSize: invalid size -?\\d+x-?\\d+$",
                         "^SwitchWidget::setSwitchColor: invalid colour",
                         "^SwitchWidget::setContentFontSize: invalid font size -?\\d+$"};
    return e;
}

ClassEntry typeItemSwitch()
{
    ClassEntry e{"TypeItemSwitch", [](QWidget* page) {
                     auto* w = new TypeItemSwitch(page);
                     w->setItemTitle(QStringLiteral("Auto transition"));
                     addToPage(page, w);
                     return w;
                 }};
    addRowActions<TypeItemSwitch>(e.actions, OwnRightIcon);
    e.actions.push_back(act<TypeItemSwitch>("setToggle", [](TypeItemSwitch* w, Rng& r) { w->setToggle(r.coin()); }));
    e.actions.push_back(act<TypeItemSwitch>("setLabelText", [](TypeItemSwitch* w, Rng& r) { w->setLabelText(r.hostileText()); }));
    e.actions.push_back(act<TypeItemSwitch>("setSwitchColor", [](TypeItemSwitch* w, Rng& r) { w->setSwitchColor(hostileColorName(r)); }));
    e.allowedWarnings = rowWarnings();
    e.allowedWarnings << "^TypeItemSwitch::setSwitchColor: invalid colour"
                      << "^TypeItemSwitch::setRightIconSize: invalid size -?\\d+x-?\\d+$";
    return e;
}

ClassEntry typeItemMultiSwitch()
{
    ClassEntry e{"TypeItemMultiSwitch", [](QWidget* page) {
                     auto* w = new TypeItemMultiSwitch(page);
                     QVector<QPair<QString, int>> data{{"PGM", 0}, {"PVW", 1}, {"AUX", 2}};
                     w->setTextData(data);
                     addToPage(page, w);
                     return w;
                 }};
    addRowActions<TypeItemMultiSwitch>(e.actions, OwnRightIcon | OwnFontSize);
    e.actions.push_back(act<TypeItemMultiSwitch>("setCurrentValue", [](TypeItemMultiSwitch* w, Rng& r) {
        w->setCurrentValue(r.hostileIndex(3), r.chance(0.8) ? r.between(0, 1) : r.hostileInt());
    }));
    e.actions.push_back(act<TypeItemMultiSwitch>("getCurrentValue", [](TypeItemMultiSwitch* w, Rng& r) { w->getCurrentValue(r.hostileIndex(3)); }));
    e.actions.push_back(act<TypeItemMultiSwitch>("setItemVisible", [](TypeItemMultiSwitch* w, Rng& r) { w->setItemVisible(r.hostileIndex(3), r.coin()); }));
    e.actions.push_back(act<TypeItemMultiSwitch>("setSwitchColor", [](TypeItemMultiSwitch* w, Rng& r) { w->setSwitchColor(hostileColorName(r)); }));
    e.actions.push_back(act<TypeItemMultiSwitch>("setTextData", [](TypeItemMultiSwitch* w, Rng& r) {
        auto data = hostilePairs(r);
        w->setTextData(data);
    }));
    e.allowedWarnings = rowWarnings();
    e.allowedWarnings << "^MultiSwitchWidget::setSwitchSize: invalid size -?\\d+x-?\\d+$"
                      << "^MultiSwitchWidget::setContentFontSize: invalid font size -?\\d+$"
                      << "^MultiSwitchWidget::setSwitchColor: invalid colour";
    return e;
}

// --- Grouped controls ---

ClassEntry multiWidgetControl()
{
    ClassEntry e{"MultiWidgetControl", [](QWidget* page) {
                     auto* w = new MultiWidgetControl(page);
                     w->initControl();
                     MultiWidgetList list;
                     for (int i = 0; i < 3; ++i)
                         list.append(qMakePair(e_PushButton, static_cast<QWidget*>(new QPushButton(QString::number(i), w))));
                     w->addWidgets(list);
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<MultiWidgetControl>("initControl", [](MultiWidgetControl* w, Rng&) { w->initControl(); }),
        act<MultiWidgetControl>("setSpacing", [](MultiWidgetControl* w, Rng& r) { w->setSpacing(r.hostileInt()); }),
        act<MultiWidgetControl>("addStretch", [](MultiWidgetControl* w, Rng& r) {
            if (r.chance(0.2))
                w->addStretch();
        }),
        act<MultiWidgetControl>("addWidgets", [](MultiWidgetControl* w, Rng& r) {
            MultiWidgetList list;
            int const n = r.between(0, 4);
            for (int i = 0; i < n; ++i) {
                switch (r.between(0, 4)) {
                case 0:
                    list.append(qMakePair(e_PushButton, static_cast<QWidget*>(new QPushButton(r.hostileText().left(100), w))));
                    break;
                case 1:
                    list.append(qMakePair(e_CheckBox, static_cast<QWidget*>(new QCheckBox(QStringLiteral("box"), w))));
                    break;
                case 2:
                    list.append(qMakePair(e_ToolButton, static_cast<QWidget*>(new QToolButton(w))));
                    break;
                case 3:
                    list.append(qMakePair(e_PushButton, static_cast<QWidget*>(nullptr)));
                    break;
                default:
                    // A widget already in the row moves.
                    if (!w->widgetList().isEmpty())
                        list.append(w->widgetList().at(r.between(0, w->widgetList().size() - 1)));
                }
            }
            w->addWidgets(list);
        }),
        act<MultiWidgetControl>("setUpDownPressed", [](MultiWidgetControl* w, Rng& r) { w->setUpDownPressed(r.coin()); }),
    };
    e.allowedWarnings = QStringList{"^MultiWidgetControl::setSpacing: invalid spacing -?\\d+$"};
    return e;
}

void addMultiBtnControlActions(std::vector<Action>& a)
{
    using T = MultiBtnControl;
    a.push_back(act<T>("addBtnData", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->addBtnData(r.hostileText().left(300), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("addBtnData(icon)", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->addBtnData(someIcon(r), QStringLiteral("Icon"), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("addBtnData(icon,pos)", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->addBtnData(someIcon(r), QPointF(r.hostileDouble(), r.hostileDouble()), QStringLiteral("Pos"), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("insertBtnData", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->insertBtnData(r.hostileIndex(w->count()), r.hostileText().left(300), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("insertBtnData(icon)", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->insertBtnData(r.hostileIndex(w->count()), someIcon(r), QStringLiteral("I"), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("setBtnData", [](T* w, Rng& r) { w->setBtnData(hostilePairs(r)); }));
    a.push_back(act<T>("setBtnData(icons)", [](T* w, Rng& r) {
        QVector<QPair<QIcon, QPair<QString, int>>> data;
        for (auto const& p : hostilePairs(r))
            data.append(qMakePair(someIcon(r), p));
        w->setBtnData(data);
    }));
    a.push_back(act<T>("updateBtns", [](T* w, Rng& r) {
        std::list<std::pair<int, QString>> items;
        for (auto const& p : hostilePairs(r))
            items.emplace_back(p.second, p.first);
        w->updateBtns(items);
    }));
    a.push_back(act<T>("removeBtnData", [](T* w, Rng& r) { w->removeBtnData(r.hostileIndex(w->count())); }));
    a.push_back(act<T>("removeAllBtnData", [](T* w, Rng& r) {
        if (r.chance(0.2))
            w->removeAllBtnData();
    }));
    a.push_back(act<T>("btnData", [](T* w, Rng& r) { w->btnData(r.hostileIndex(w->count()), r.coin() ? 256 : r.hostileInt()); }));
    a.push_back(act<T>("getCurrentData", [](T* w, Rng& r) { w->getCurrentData(r.coin() ? 256 : r.hostileInt()); }));
    a.push_back(act<T>("findData", [](T* w, Rng& r) { w->findData(QVariant(r.hostileInt()), r.coin() ? 256 : r.hostileInt()); }));
    a.push_back(act<T>("setCurrentIndex", [](T* w, Rng& r) { w->setCurrentIndex(r.hostileIndex(w->count())); }));
    a.push_back(act<T>("setCurrentData", [](T* w, Rng& r) { w->setCurrentData(r.hostileInt()); }));
    a.push_back(act<T>("setCurrentText", [](T* w, Rng& r) { w->setCurrentText(r.hostileText()); }));
    a.push_back(act<T>("setCurrentUserData", [](T* w, Rng& r) {
        w->setCurrentUserData(r.coin() ? QVariant() : QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("setBtnVisible", [](T* w, Rng& r) { w->setBtnVisible(r.hostileInt(), r.coin()); }));
    a.push_back(act<T>("setContentDisabled", [](T* w, Rng& r) { w->setContentDisabled(r.coin()); }));
    a.push_back(act<T>("setStyleProperty", [](T* w, Rng& r) {
        w->setStyleProperty(r.coin() ? QStringLiteral("isSmallBtn") : r.hostileText().left(50));
    }));
    a.push_back(act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }));
    a.push_back(act<T>("enterPressed", [](T* w, Rng&) { w->enterPressed(); }));
    a.push_back(act<T>("resetBtnCheckStatus", [](T* w, Rng&) { w->resetBtnCheckStatus(); }));
    a.push_back(act<T>("setSpacing", [](T* w, Rng& r) { w->setSpacing(r.hostileInt()); }));
    a.push_back(act<T>("setUpDownPressed", [](T* w, Rng& r) { w->setUpDownPressed(r.coin()); }));
}

QStringList multiBtnControlWarnings()
{
    return {"^the index is bigger than _widList!$",
            "^index error! index is: -?\\d+$",
            "^enterPressed$",
            "^MultiBtnControl index changed: ",
            "^MultiBtnControl text changed: ",
            "^MultiBtnControl::setContentFontSize: invalid font size -?\\d+$",
            "^MultiWidgetControl::setSpacing: invalid spacing -?\\d+$"};
}

ClassEntry multiBtnControl()
{
    ClassEntry e{"MultiBtnControl", [](QWidget* page) {
                     auto* w = new MultiBtnControl(page);
                     w->setBtnData(QVector<QPair<QString, int>>{{"1080p", 0}, {"720p", 1}, {"4K", 2}});
                     w->setCurrentIndex(1);
                     addToPage(page, w);
                     return w;
                 }};
    addMultiBtnControlActions(e.actions);
    e.allowedWarnings = multiBtnControlWarnings();
    return e;
}

ClassEntry multiCheckBoxControl()
{
    using T = MultiCheckBoxControl;
    ClassEntry e = pageEntry<T>("MultiCheckBoxControl", [](T* w) {
        w->setCheckBoxData({{"CAM 1", 1}, {"CAM 2", 2}, {"CAM 3", 3}});
    });
    e.actions = {
        act<T>("setCheckBoxData", [](T* w, Rng& r) {
            if (w->widgetList().size() > 80)
                return;
            QVector<std::pair<QString, int>> data;
            for (auto const& p : hostilePairs(r))
                data.append({p.first, p.second});
            w->setCheckBoxData(data);
        }),
        act<T>("setCheckStatus", [](T* w, Rng& r) { w->setCheckStatus(r.hostileInt(), r.coin(), r.coin()); }),
        act<T>("getCheckStatus", [](T* w, Rng& r) { w->getCheckStatus(r.hostileInt()); }),
        act<T>("setCurrentData", [](T* w, Rng& r) {
            QVector<int> values;
            int const n = r.between(0, 5);
            for (int i = 0; i < n; ++i)
                values.append(r.hostileInt());
            w->setCurrentData(values);
        }),
        act<T>("setIconSize", [](T* w, Rng& r) { w->setIconSize(hostileQSize(r)); }),
        act<T>("setFontSize", [](T* w, Rng& r) { w->setFontSize(r.hostileSize()); }),
        act<T>("setContentDisabled", [](T* w, Rng& r) { w->setContentDisabled(r.coin()); }),
        act<T>("enterPressed", [](T* w, Rng&) { w->enterPressed(); }),
        act<T>("setSpacing", [](T* w, Rng& r) { w->setSpacing(r.hostileInt()); }),
        act<T>("setUpDownPressed", [](T* w, Rng& r) { w->setUpDownPressed(r.coin()); }),
    };
    e.allowedWarnings = QStringList{"^MultiCheckBoxControl::setIconSize: invalid size -?\\d+x-?\\d+$",
                         "^MultiCheckBoxControl::setFontSize: invalid font size -?\\d+$",
                         "^MultiWidgetControl::setSpacing: invalid spacing -?\\d+$"};
    return e;
}

void addMultiSwitchActions(std::vector<Action>& a)
{
    using T = MultiSwitchWidget;
    a.push_back(act<T>("setTextData", [](T* w, Rng& r) {
        if (w->widgetList().size() < 80)
            w->setTextData(hostilePairs(r));
    }));
    a.push_back(act<T>("setCurrentData", [](T* w, Rng& r) { w->setCurrentData(r.hostileInt(), r.chance(0.8) ? r.between(0, 1) : r.hostileInt()); }));
    a.push_back(act<T>("getCurrentData", [](T* w, Rng& r) { w->getCurrentData(r.hostileInt()); }));
    a.push_back(act<T>("setItemVisible", [](T* w, Rng& r) { w->setItemVisible(r.hostileInt(), r.coin()); }));
    a.push_back(act<T>("setSwitchSize", [](T* w, Rng& r) { w->setSwitchSize(hostileQSize(r)); }));
    a.push_back(act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }));
    a.push_back(act<T>("setSwitchColor", [](T* w, Rng& r) { w->setSwitchColor(hostileColorName(r)); }));
    a.push_back(act<T>("setContentDisabled", [](T* w, Rng& r) { w->setContentDisabled(r.coin()); }));
    a.push_back(act<T>("enterPressed", [](T* w, Rng&) { w->enterPressed(); }));
    a.push_back(act<T>("singleItemEnterPressed", [](T* w, Rng&) { w->singleItemEnterPressed(); }));
    a.push_back(act<T>("setSpacing", [](T* w, Rng& r) { w->setSpacing(r.hostileInt()); }));
    a.push_back(act<T>("setUpDownPressed", [](T* w, Rng& r) { w->setUpDownPressed(r.coin()); }));
}

ClassEntry multiSwitchWidget()
{
    ClassEntry e{"MultiSwitchWidget", [](QWidget* page) {
                     auto* w = new MultiSwitchWidget(page);
                     w->setTextData({{"Mic 1", 1}, {"Mic 2", 2}});
                     addToPage(page, w);
                     return w;
                 }};
    addMultiSwitchActions(e.actions);
    e.allowedWarnings = QStringList{"^MultiSwitchWidget::setSwitchSize: invalid size -?\\d+x-?\\d+$",
                         "^MultiSwitchWidget::setContentFontSize: invalid font size -?\\d+$",
                         "^MultiSwitchWidget::setSwitchColor: invalid colour",
                         "^MultiWidgetControl::setSpacing: invalid spacing -?\\d+$"};
    return e;
}

ClassEntry multiBtnWidget()
{
    using T = MultiBtnWidget;
    ClassEntry e{"MultiBtnWidget", [](QWidget* page) {
                     static int round = 0;
                     int const counts[] = {3, 0, -5, 1, 12};
                     auto* w = new T(counts[round++ % 5], page);
                     w->setBtnData({{"Save", 1}, {"Load", 2}, {"Clear", 3}});
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<T>("setBtnData", [](T* w, Rng& r) { w->setBtnData(hostilePairs(r)); }),
        act<T>("setBtnDefaultStyle", [](T* w, Rng& r) { w->setBtnDefaultStyle(r.coin() ? QStringLiteral("isOperBtn") : r.hostileText().left(100)); }),
        act<T>("setFontSize", [](T* w, Rng& r) { w->setFontSize(r.hostileSize()); }),
        act<T>("enterPressed", [](T* w, Rng&) { w->enterPressed(); }),
        act<T>("getIndex", [](T* w, Rng& r) { w->getIndex(r.coin() ? nullptr : w->button(r.hostileIndex(w->count()))); }),
        act<T>("button", [](T* w, Rng& r) { w->button(r.hostileIndex(w->count())); }),
    };
    e.allowedWarnings = QStringList{"^MultiBtnWidget::setFontSize: invalid font size -?\\d+$", "^signalValueChanged: -?\\d+$"};
    return e;
}

ClassEntry multipleSelectBtn()
{
    using T = MultipleSelectBtn;
    ClassEntry e{"MultipleSelectBtn", [](QWidget* page) {
                     static int round = 0;
                     T* w = nullptr;
                     switch (round++ % 4) {
                     case 0:
                         w = new T(1, selectInfos(4), page);
                         break;
                     case 3:
                         w = new T(2, INT_MAX, selectInfos(5), Qt::ToolButtonIconOnly, page);
                         break;
                     case 1:
                         w = new T(-3, -7, selectInfos(3), Qt::ToolButtonTextBesideIcon, page);
                         break;
                     default:
                         w = new T(99, 8, selectInfos(0), Qt::ToolButtonTextOnly, page);
                     }
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<T>("setBtnText", [](T* w, Rng& r) { w->setBtnText(r.hostileIndex(w->count()), r.hostileText()); }),
        act<T>("setBtnSize", [](T* w, Rng& r) { w->setBtnSize(r.hostileSize()); }),
        act<T>("getIndex", [](T* w, Rng& r) { w->getIndex(r.coin() ? nullptr : w->button(r.hostileIndex(w->count()))); }),
        act<T>("button", [](T* w, Rng& r) { w->button(r.hostileIndex(w->count())); }),
        act<T>("slotFocusChanged", [](T* w, Rng& r) { w->slotFocusChanged(nullptr, r.coin() ? w : nullptr); }),
    };
    e.allowedWarnings = QStringList{"^MultipleSelectBtn: focus index -?\\d+ out of range, using 0$",
                         "^MultipleSelectBtn::setBtnText: invalid index -?\\d+$", "^Invalid button size: -?\\d+$"};
    return e;
}

ClassEntry multipleDialog()
{
    using T = MultipleDialog;
    ClassEntry e{"MultipleDialog", [](QWidget* page) {
                     static int round = 0;
                     QRect const rects[] = {screenRect(), QRect(), QRect(0, 0, 3, 2)};
                     auto* w = new T(round % 5 - 1, selectInfos(round % 4 + (round % 7 == 0 ? 0 : 1)), rects[round % 3], page);
                     ++round;
                     execLater(w);
                     return w;
                 }};
    e.actions = {
        act<T>("setBtnText", [](T* w, Rng& r) { w->setBtnText(r.hostileIndex(w->selectBtn()->count()), r.hostileText()); }),
        act<T>("getIndex", [](T* w, Rng& r) { w->getIndex(r.coin() ? nullptr : w->selectBtn()->button(0)); }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
        act<T>("reject", [](T* w, Rng&) { w->reject(); }),
        act<T>("slotFocusChanged", [](T* w, Rng& r) { w->slotFocusChanged(nullptr, r.coin() ? w : nullptr); }),
    };
    e.allowedWarnings = QStringList{"^MultipleSelectBtn: focus index -?\\d+ out of range, using 0$",
                         "^MultipleSelectBtn::setBtnText: invalid index -?\\d+$", "^Invalid button size: -?\\d+$",
                         "^\\[dialog\\] exec finish with -?\\d+$", "host rectangle is (empty|larger than any screen), using 800x480$",
                                    "^\\[MultipleDialog\\] exec: already running, refused$"};
    return e;
}

ClassEntry multiButtonControl()
{
    using T = MultiButtonControl;
    ClassEntry e = pageEntry<T>("MultiButtonControl", [](T* w) {
        QVector<QPair<QString, int>> data{{"Slow", 0}, {"Medium", 1}, {"Fast", 2}};
        w->setBtnText(data);
    }, focusIt<T>);
    e.actions = {
        act<T>("setBtnText", [](T* w, Rng& r) {
            auto data = hostilePairs(r);
            w->setBtnText(data);
        }),
        act<T>("setCurrentData", [](T* w, Rng& r) { w->setCurrentData(r.hostileInt()); }),
        act<T>("setOneBtnVisible", [](T* w, Rng& r) { w->setOneBtnVisible(r.coin()); }),
        act<T>("nextBtnClicked", [](T* w, Rng&) { w->nextBtnClicked(); }),
        act<T>("previousClicked", [](T* w, Rng&) { w->previousClicked(); }),
        act<T>("updateBtnStyle", [](T* w, Rng& r) {
            if (r.chance(0.3)) {
                w->updateBtnStyle(nullptr);
                return;
            }
            if (r.chance(0.2)) {
                QPushButton stranger;
                w->updateBtnStyle(&stranger);
                return;
            }
            w->updateBtnStyle(w->button(r.hostileIndex(w->count())));
        }),
        act<T>("button", [](T* w, Rng& r) { w->button(r.hostileIndex(w->count())); }),
        act<T>("slotBtnClicked", [](T* w, Rng&) { w->slotBtnClicked(); }),
    };
    e.allowedWarnings = QStringList{"^MultiButtonControl::setCurrentData: no button with value -?\\d+$"};
    return e;
}

// --- Choice rows ---

ClassEntry typeItemMultiBtn()
{
    using T = TypeItemMultiBtn;
    ClassEntry e = rowEntry<T>("TypeItemMultiBtn", QStringLiteral("Format"), OwnFontSize, [](T* w) {
        w->setBtnText({{"1080p", 0}, {"720p", 1}, {"4K", 2}});
    });
    auto& a = e.actions;
    a.push_back(act<T>("addItem", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->addItem(r.hostileText().left(300), r.coin() ? QVariant() : QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("addItem(icon)", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->addItem(someIcon(r), QStringLiteral("I"), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("addItem(icon,pos)", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->addItem(someIcon(r), QPointF(r.hostileDouble(), r.hostileDouble()), QStringLiteral("P"), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("insertItem", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->insertItem(r.hostileIndex(w->count()), r.hostileText().left(300), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("insertItem(icon)", [](T* w, Rng& r) {
        if (w->count() < 60)
            w->insertItem(r.hostileIndex(w->count()), someIcon(r), QStringLiteral("I"), QVariant(r.hostileInt()));
    }));
    a.push_back(act<T>("removeItem", [](T* w, Rng& r) { w->removeItem(r.hostileIndex(w->count())); }));
    a.push_back(act<T>("clear", [](T* w, Rng& r) {
        if (r.chance(0.2))
            w->clear();
    }));
    a.push_back(act<T>("setCurrentIndex", [](T* w, Rng& r) { w->setCurrentIndex(r.hostileIndex(w->count())); }));
    a.push_back(act<T>("setCurrentText", [](T* w, Rng& r) { w->setCurrentText(r.hostileText()); }));
    a.push_back(act<T>("setCurrentData", [](T* w, Rng& r) { w->setCurrentData(r.hostileInt()); }));
    a.push_back(act<T>("setCurrentUserData", [](T* w, Rng& r) { w->setCurrentUserData(r.coin() ? QVariant() : QVariant(r.hostileInt())); }));
    a.push_back(act<T>("currentData", [](T* w, Rng& r) { w->currentData(r.coin() ? int(Qt::UserRole) : r.hostileInt()); }));
    a.push_back(act<T>("findData", [](T* w, Rng& r) { w->findData(QVariant(r.hostileInt()), r.coin() ? int(Qt::UserRole) : r.hostileInt()); }));
    a.push_back(act<T>("itemData", [](T* w, Rng& r) { w->itemData(r.hostileIndex(w->count()), r.coin() ? int(Qt::UserRole) : r.hostileInt()); }));
    a.push_back(act<T>("updateItems", [](T* w, Rng& r) {
        std::list<std::pair<int, QString>> items;
        for (auto const& p : hostilePairs(r))
            items.emplace_back(p.second, p.first);
        w->updateItems(items);
    }));
    a.push_back(act<T>("findText", [](T* w, Rng& r) { w->findText(r.hostileText()); }));
    a.push_back(act<T>("itemText", [](T* w, Rng& r) { w->itemText(r.hostileIndex(w->count())); }));
    a.push_back(act<T>("setItemText", [](T* w, Rng& r) { w->setItemText(r.hostileIndex(w->count()), r.hostileText()); }));
    a.push_back(act<T>("setItemData", [](T* w, Rng& r) { w->setItemData(r.hostileIndex(w->count()), QVariant(r.hostileInt()), r.hostileInt()); }));
    a.push_back(act<T>("setBtnText", [](T* w, Rng& r) { w->setBtnText(hostilePairs(r)); }));
    a.push_back(act<T>("setBtnIcon", [](T* w, Rng& r) {
        QVector<QPair<QIcon, QPair<QString, int>>> data;
        for (auto const& p : hostilePairs(r))
            data.append(qMakePair(someIcon(r), p));
        w->setBtnIcon(data);
    }));
    a.push_back(act<T>("setBtnVisible", [](T* w, Rng& r) { w->setBtnVisible(r.hostileInt(), r.coin()); }));
    e.allowedWarnings = rowWarnings() + multiBtnControlWarnings();
    return e;
}

ClassEntry typeItemMultiCheckBox()
{
    using T = TypeItemMultiCheckBox;
    ClassEntry e = rowEntry<T>("TypeItemMultiCheckBox", QStringLiteral("Outputs"), OwnRightIcon | OwnFontSize, [](T* w) {
        w->setCheckBoxData({{"SDI", 1}, {"HDMI", 2}, {"USB", 3}});
    });
    auto& a = e.actions;
    a.push_back(act<T>("setCheckBoxData", [](T* w, Rng& r) {
        if (w->checkBoxControl()->widgetList().size() > 80)
            return;
        QVector<std::pair<QString, int>> data;
        for (auto const& p : hostilePairs(r))
            data.append({p.first, p.second});
        w->setCheckBoxData(data);
    }));
    a.push_back(act<T>("setCheckStatus", [](T* w, Rng& r) { w->setCheckStatus(r.hostileInt(), r.coin(), r.coin()); }));
    a.push_back(act<T>("getCheckStatus", [](T* w, Rng& r) { w->getCheckStatus(r.hostileInt()); }));
    a.push_back(act<T>("setCurrentValue", [](T* w, Rng& r) {
        QVector<int> values;
        int const n = r.between(0, 5);
        for (int i = 0; i < n; ++i)
            values.append(r.hostileInt());
        w->setCurrentValue(values);
    }));
    a.push_back(act<T>("slotCloseEditStatus", [](T* w, Rng&) { w->slotCloseEditStatus(); }));
    e.allowedWarnings = rowWarnings();
    e.allowedWarnings << "^MultiCheckBoxControl::setIconSize: invalid size -?\\d+x-?\\d+$"
                      << "^MultiCheckBoxControl::setFontSize: invalid font size -?\\d+$";
    return e;
}

ClassEntry typeItemMultiOperBtn()
{
    using T = TypeItemMultiOperBtn;
    ClassEntry e{"TypeItemMultiOperBtn", [](QWidget* page) {
                     static int round = 0;
                     int const counts[] = {3, 0, -2, 1};
                     auto* w = new T(counts[round++ % 4], page);
                     QVector<QPair<QString, int>> data{{"Save", 1}, {"Load", 2}, {"Clear", 3}};
                     w->setBtnText(data);
                     addToPage(page, w);
                     return w;
                 }};
    addRowActions<T>(e.actions, OwnFontSize);
    e.actions.push_back(act<T>("setBtnText", [](T* w, Rng& r) {
        auto data = hostilePairs(r);
        w->setBtnText(data);
    }));
    e.actions.push_back(act<T>("setBtnDefaultStyle", [](T* w, Rng& r) { w->setBtnDefaultStyle(r.coin() ? QStringLiteral("isOperBtn") : r.hostileText().left(100)); }));
    e.allowedWarnings = rowWarnings();
    e.allowedWarnings << "^TypeItemMultiOperBtn: no button to edit with$"
                      << "^MultiBtnWidget::setFontSize: invalid font size -?\\d+$" << "^signalValueChanged: -?\\d+$";
    return e;
}

ClassEntry typeMultipleSelectBtn()
{
    using T = TypeMultipleSelectBtn;
    ClassEntry e{"TypeMultipleSelectBtn", [](QWidget* page) {
                     static int round = 0;
                     T* w = round++ % 2 ? new T(0, selectInfos(4), page)
                                        : new T(7, -4, selectInfos(round % 3), Qt::ToolButtonTextBesideIcon, page);
                     addToPage(page, w);
                     return w;
                 }};
    addRowActions<T>(e.actions, OwnFontSize);
    e.actions.push_back(act<T>("setBtnText", [](T* w, Rng& r) { w->setBtnText(r.hostileIndex(w->selectBtn()->count()), r.hostileText()); }));
    e.allowedWarnings = rowWarnings();
    e.allowedWarnings << "^MultipleSelectBtn: focus index -?\\d+ out of range, using 0$"
                      << "^MultipleSelectBtn::setBtnText: invalid index -?\\d+$" << "^Invalid button size: -?\\d+$";
    return e;
}

QStringList effectWarnings()
{
    return {"^\\[EffectPictureWidget\\] no choice with key -?\\d+$",
            "^EffectPictureWidget::setContentFontSize: invalid font size -?\\d+$",
            "^\\[EffectPictureWidget\\] preview not found: "};
}

ClassEntry effectPictureWidget()
{
    using T = EffectPictureWidget;
    ClassEntry e{"EffectPictureWidget", [](QWidget* page) {
                     auto* w = new T(nullptr);
                     w->setParent(page);
                     auto const choices = effectChoices(nullptr);
                     w->setPictureData(QStringLiteral("Transitions"), choices.value(0).second, choices);
                     w->setCurrentValue(2);
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<T>("setPictureData", [](T* w, Rng& r) {
            auto const choices = effectChoices(&r);
            w->setPictureData(r.hostileText().left(500), r.coin() && !choices.isEmpty() ? choices.first().second : r.hostileText().left(200), choices);
        }),
        act<T>("setCurrentValue", [](T* w, Rng& r) { w->setCurrentValue(r.coin() ? r.between(0, 6) : r.hostileInt()); }),
        act<T>("setCurrentUserData", [](T* w, Rng& r) { w->setCurrentUserData(r.coin() ? QVariant() : QVariant(r.hostileInt())); }),
        act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }),
        act<T>("setContentDisabled", [](T* w, Rng& r) { w->setContentDisabled(r.coin()); }),
        act<T>("resetBtnCheckStatus", [](T* w, Rng&) { w->resetBtnCheckStatus(); }),
        act<T>("setUpDownPressed", [](T* w, Rng& r) { w->setUpDownPressed(r.coin()); }),
    };
    e.allowedWarnings = effectWarnings();
    return e;
}

ClassEntry typeItemEffectPicture()
{
    using T = TypeItemEffectPicture;
    ClassEntry e = rowEntry<T>("TypeItemEffectPicture", QString(), OwnFontSize, [](T* w) {
        auto const choices = effectChoices(nullptr);
        w->setPictureData(QStringLiteral("Transitions"), choices.value(0).second, choices);
    });
    e.actions.push_back(act<T>("setPictureData", [](T* w, Rng& r) {
        auto const choices = effectChoices(&r);
        w->setPictureData(r.hostileText().left(500), r.coin() && !choices.isEmpty() ? choices.first().second : r.hostileText().left(200), choices);
    }));
    e.actions.push_back(act<T>("setCurrentValue", [](T* w, Rng& r) { w->setCurrentValue(r.coin() ? r.between(0, 6) : r.hostileInt()); }));
    e.actions.push_back(act<T>("setCurrentUserData", [](T* w, Rng& r) { w->setCurrentUserData(r.coin() ? QVariant() : QVariant(r.hostileInt())); }));
    e.allowedWarnings = rowWarnings() + effectWarnings();
    return e;
}

} // namespace

void addDeviceClasses(std::vector<ClassEntry>& out)
{
    out.push_back(switchControl());
    out.push_back(switchWidget());
    out.push_back(typeItemSwitch());
    out.push_back(typeItemMultiSwitch());
    out.push_back(multiWidgetControl());
    out.push_back(multiBtnControl());
    out.push_back(multiCheckBoxControl());
    out.push_back(multiSwitchWidget());
    out.push_back(multiBtnWidget());
    out.push_back(multipleSelectBtn());
    out.push_back(multipleDialog());
    out.push_back(multiButtonControl());
    out.push_back(typeItemMultiBtn());
    out.push_back(typeItemMultiCheckBox());
    out.push_back(typeItemMultiOperBtn());
    out.push_back(typeMultipleSelectBtn());
    out.push_back(effectPictureWidget());
    out.push_back(typeItemEffectPicture());
    Devices::addDialogClasses(out);
    Devices::addPageClasses(out);
}

} // namespace Monkey
