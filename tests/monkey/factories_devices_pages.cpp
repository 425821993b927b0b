// The monkey's entries for the device pages (IP entry, number pad, network, switcher
// list, T-bar calibration), the instruments (dials, crop drawing), the system pages
// (text view, task progress, lock panel, about page), the layer rows and the factory
// test frames. The graphics scene and its rectangle item are worked through a view
// that shows them.
#include "factories.h"
#include "factories_devices_common_p.h"

#include <aboutpage.h>
#include <adddevice.h>
#include <dashboardlabel.h>
#include <dashboardwidget.h>
#include <drawgraphicsrectitem.h>
#include <drawgraphicsscene.h>
#include <drawgraphicsview.h>
#include <factorytestframe.h>
#include <factorytestleftframe.h>
#include <factorytestrightframe.h>
#include <ipedit.h>
#include <iplineedit.h>
#include <lockpanel.h>
#include <lockreminderdialog.h>
#include <mutilprogressbardialog.h>
#include <networksettings.h>
#include <numberpad.h>
#include <previewwidget.h>
#include <switcherselect.h>
#include <textviewdialog.h>
#include <typedrawcropwidget.h>
#include <typeframetag.h>
#include <typegraphicwidget.h>
#include <typeipadjust.h>
#include <typeitemdashboard.h>
#include <typeitemtbarcalibration.h>
#include <typepreviewwidget.h>
#include <typezorderitemmore.h>

#include <QGraphicsView>
#include <QPushButton>
#include <QPixmap>

using namespace LCD::Widget;

namespace Monkey {
namespace Devices {

namespace {

QString hostileIp(Rng& r)
{
    static std::vector<QString> const ips{"192.168.1.10", "0.0.0.0", "255.255.255.255", "256.1.1.1", "1.2.3",
                                          "10.1", "::1", "a.b.c.d", "1.2.3.4.5", "-1.0.0.0", "01.002.3.4", " 1.2.3.4 "};
    return r.chance(0.2) ? r.hostileText().left(500) : r.pick(ips);
}

// --- Device pages ---

ClassEntry ipLineEdit()
{
    using T = IPLineEdit;
    ClassEntry e = pageEntry<T>("IPLineEdit", [](T* w) {
        w->setIpText(QStringLiteral("192.168.1.10"));
    });
    e.actions = {
        act<T>("setIpText", [](T* w, Rng& r) { w->setIpText(hostileIp(r)); }),
        act<T>("isTextValid", [](T* w, Rng& r) { w->isTextValid(hostileIp(r)); }),
        act<T>("clearText", [](T* w, Rng&) { w->clearText(); }),
        act<T>("setIPFocus", [](T* w, Rng&) { w->setIPFocus(); }),
        act<T>("setEditStatus", [](T* w, Rng& r) { w->setEditStatus(r.coin()); }),
        act<T>("setEnable", [](T* w, Rng& r) { w->setEnable(r.coin()); }),
        act<T>("getStep", [](T* w, Rng& r) { w->getStep(float(r.hostileDouble())); }),
        act<T>("getIndex", [](T* w, Rng& r) { w->getIndex(r.coin() ? nullptr : w->field(r.hostileIndex(4))); }),
        act<T>("field", [](T* w, Rng& r) { w->field(r.hostileIndex(4)); }),
        act<T>("setFontSize", [](T* w, Rng& r) { w->setFontSize(r.hostileSize()); }),
        act<T>("setHeight", [](T* w, Rng& r) { w->setHeight(r.hostileSize()); }),
        act<T>("setLineEditProperty", [](T* w, Rng& r) {
            static char const* const names[] = {"isIpEditing", "", "x"};
            w->setLineEditProperty(names[r.between(0, 2)], r.coin() ? QVariant(r.coin()) : QVariant());
        }),
        act<T>("slot_fixInput", [](T* w, Rng&) { w->slot_fixInput(); }),
        act<T>("slotFocusChanged", [](T* w, Rng& r) { w->slotFocusChanged(nullptr, r.coin() ? w->field(r.between(0, 3)) : nullptr); }),
    };
    e.allowedWarnings = QStringList{"^strIP: ", "^setIpText Your IP Address is Invalid!$",
                         "^m_isEdit (true|false) ,index: -?\\d+ ,val: -?\\d+ ,step: -?\\d+ ,newVal: -?\\d+$",
                         "^\\[IPLineEdit\\] (setFontSize: font size|setHeight: length) -?\\d+ refused$"};
    return e;
}

ClassEntry ipEdit()
{
    using T = IPEdit;
    ClassEntry e = pageEntry<T>("IPEdit", [](T* w) {
        w->setIpText(QStringLiteral("10.0.0.2"));
    });
    e.actions = {
        act<T>("setIpText", [](T* w, Rng& r) { w->setIpText(hostileIp(r)); }),
        act<T>("clearText", [](T* w, Rng&) { w->clearText(); }),
        act<T>("setEnterSwitchEidt", [](T* w, Rng& r) { w->setEnterSwitchEidt(r.coin()); }),
        act<T>("field", [](T* w, Rng& r) { w->field(r.hostileIndex(4)); }),
        act<T>("focusField", [](T* w, Rng& r) {
            if (QLineEdit* f = w->field(r.between(0, 3)))
                f->setFocus();
        }),
    };
    return e;
}

ClassEntry typeIpAdjust()
{
    using T = TypeIpAdjust;
    ClassEntry e{"TypeIpAdjust", [](QWidget* page) {
                     static int round = 0;
                     int const kinds[] = {9, 0, -1, 1000};
                     auto* w = new T(page, kinds[round++ % 4]);
                     w->setItemTitle(QStringLiteral("IP address"));
                     w->setLabelValue(QStringLiteral("192.168.0.5"), 0);
                     addToPage(page, w);
                     return w;
                 }};
    addRowActions<T>(e.actions, OwnFontSize | OwnItemHeight);
    e.actions.push_back(act<T>("setLabelValue", [](T* w, Rng& r) {
        w->setLabelValue(r.chance(0.8) ? QVariant(hostileIp(r)) : QVariant(r.hostileInt()), r.hostileInt());
    }));
    e.actions.push_back(act<T>("setIpLineEditEnable", [](T* w, Rng& r) { w->setIpLineEditEnable(r.coin()); }));
    e.allowedWarnings = rowWarnings() + ipLineEdit().allowedWarnings;
    return e;
}

ClassEntry numberPad()
{
    using T = NumberPad;
    ClassEntry e{"NumberPad", [](QWidget* page) {
                     static int round = 0;
                     auto* w = new T(roundRect(round, 3), page);
                     w->setLabelText(QStringLiteral("IP address"));
                     w->setLineEditText(QStringLiteral("192.168.1.1"));
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<T>("setLabelText", [](T* w, Rng& r) { w->setLabelText(r.coin() ? QVariant(r.hostileText()) : QVariant()); }),
        act<T>("setLineEditText", [](T* w, Rng& r) { w->setLineEditText(r.coin() ? QVariant(hostileIp(r)) : QVariant(r.hostileInt())); }),
        act<T>("setIPFocus", [](T* w, Rng&) { w->setIPFocus(); }),
        act<T>("retranslateUi", [](T* w, Rng&) { w->retranslateUi(); }),
        act<T>("sendPushBtnEvent", [](T* w, Rng& r) {
            static Qt::Key const keys[] = {Qt::Key_0, Qt::Key_9, Qt::Key_Period, Qt::Key_Backspace, Qt::Key_Enter, Qt::Key_A};
            w->sendPushBtnEvent(keys[r.between(0, 5)], r.coin() ? QStringLiteral("7") : r.hostileText().left(20));
        }),
        act<T>("slotDotPushBtnClicked", [](T* w, Rng&) { w->slotDotPushBtnClicked(); }),
        act<T>("slotBackSpacePushBtnClicked", [](T* w, Rng&) { w->slotBackSpacePushBtnClicked(); }),
        act<T>("slotOkPushBtnClicked", [](T* w, Rng&) { w->slotOkPushBtnClicked(); }),
        act<T>("slotNumberPushBtnClicked", [](T* w, Rng&) { w->slotNumberPushBtnClicked(); }),
    };
    e.allowedWarnings = ipLineEdit().allowedWarnings;
    return e;
}

NetworkInfo hostileNetwork(Rng& r)
{
    NetworkInfo info;
    info.mode = r.chance(0.7) ? r.between(0, 1) : r.hostileInt();
    info.ip = hostileIp(r).toStdString();
    info.mask = hostileIp(r).toStdString();
    info.gateway = hostileIp(r).toStdString();
    info.mac = r.hostileText().left(r.coin() ? 17 : 5000).toStdString();
    return info;
}

ClassEntry networkSettings()
{
    using T = NetworkSettings;
    ClassEntry e = pageEntry<T>("NetworkSettings", [](T* w) {
        w->setNetworkInfo(NetworkInfo{0, "192.168.1.20", "255.255.255.0", "192.168.1.1", "00:11:22:33:44:55"});
    });
    e.actions = {
        act<T>("setNetworkInfo", [](T* w, Rng& r) { w->setNetworkInfo(hostileNetwork(r)); }),
        act<T>("retranslateUi", [](T* w, Rng&) { w->retranslateUi(); }),
    };
    return e;
}

SwitcherInfo hostileSwitcher(Rng& r)
{
    SwitcherInfo info;
    info.model = (r.chance(0.8) ? QStringLiteral("Mini") : r.hostileText().left(2000)).toStdString();
    info.name = (r.chance(0.8) ? QStringLiteral("Studio %1").arg(r.between(0, 9)) : r.hostileText().left(2000)).toStdString();
    info.ip = r.chance(0.8) ? QStringLiteral("10.0.0.%1").arg(r.between(0, 9)).toStdString() : hostileIp(r).toStdString();
    info.sn = r.chance(0.1) ? std::string() : QStringLiteral("SN%1").arg(r.between(0, 12)).toStdString();
    info.online = r.coin();
    info.isBind = r.coin();
    return info;
}

ClassEntry switcherItem()
{
    using T = SwitcherItem;
    ClassEntry e = pageEntry<T>("SwitcherItem", [](T* w) { w->setSwitcherInfo(SwitcherInfo{"Mini", "Studio", "10.0.0.2", "SN1"}); });
    e.actions = {
        act<T>("setSwitcherInfo", [](T* w, Rng& r) { w->setSwitcherInfo(hostileSwitcher(r)); }),
        act<T>("setOnline", [](T* w, Rng& r) { w->setOnline(r.coin()); }),
        act<T>("setBind", [](T* w, Rng& r) { w->setBind(r.coin()); }),
        act<T>("setSelected", [](T* w, Rng& r) { w->setSelected(r.coin()); }),
    };
    e.allowedWarnings = QStringList{"^Switcher Info "};
    return e;
}

QStringList switcherWarnings()
{
    return {"^\\[SwitcherSelect\\] Cannot add switcher, maximum count reached: 128$",
            "^\\[SwitcherSelect\\] Device SN is empty$",
            "^\\[SwitcherSelect\\] Device not found, SN: ",
            "^\\[SwitcherSelect\\] Updated device (online|isBind) status, SN: ",
            "^Switcher Info ",
            "^\\[AddDevice\\] Invalid IP address: "};
}

ClassEntry switcherSelect()
{
    using T = SwitcherSelect;
    ClassEntry e = pageEntry<T>("SwitcherSelect", [](T* w) { w->addSwitcher(SwitcherInfo{"Mini", "Studio A", "10.0.0.2", "SN1", true}); });
    e.actions = {
        act<T>("addSwitcher", [](T* w, Rng& r) { w->addSwitcher(hostileSwitcher(r)); }),
        act<T>("addSwitchers", [](T* w, Rng& r) {
            std::vector<SwitcherInfo> infos;
            int const n = r.chance(0.05) ? 140 : r.between(0, 5);
            for (int i = 0; i < n; ++i)
                infos.push_back(hostileSwitcher(r));
            w->addSwitchers(infos);
        }),
        act<T>("clearSwitchers", [](T* w, Rng& r) {
            if (r.chance(0.3))
                w->clearSwitchers();
        }),
        act<T>("setDeviceOnline", [](T* w, Rng& r) { w->setDeviceOnline(hostileSwitcher(r).sn, r.coin()); }),
        act<T>("setDeviceBind", [](T* w, Rng& r) { w->setDeviceBind(hostileSwitcher(r).sn, r.coin()); }),
        act<T>("hideInterface", [](T* w, Rng&) { w->hideInterface(); }),
        act<T>("retranslateUi", [](T* w, Rng&) { w->retranslateUi(); }),
        act<T>("setDeviceName", [](T* w, Rng& r) { w->setDeviceName(r.hostileText().left(5000).toStdString()); }),
        act<T>("itemBySn", [](T* w, Rng& r) { w->itemBySn(hostileSwitcher(r).sn); }),
        act<T>("itemAt", [](T* w, Rng& r) { w->itemAt(r.hostileIndex(int(w->switchers().size()))); }),
        act<T>("setItemWidth", [](T* w, Rng& r) { w->setItemWidth(r.hostileSize()); }),
        act<T>("openAddDevice", [](T* w, Rng&) { w->addButton()->click(); }),
    };
    e.allowedWarnings = switcherWarnings();
    return e;
}

ClassEntry addDevice()
{
    using T = AddDevice;
    ClassEntry e = pageEntry<T>("AddDevice");
    e.actions = {
        act<T>("resetData", [](T* w, Rng&) { w->resetData(); }),
        act<T>("setDeviceName", [](T* w, Rng& r) { w->setDeviceName(r.hostileText().left(5000).toStdString()); }),
        act<T>("retranslateUi", [](T* w, Rng&) { w->retranslateUi(); }),
        act<T>("setIp", [](T* w, Rng& r) { w->ipEdit()->setIpText(hostileIp(r)); }),
        act<T>("confirm", [](T* w, Rng&) { w->confirm(); }),
        act<T>("closePage", [](T* w, Rng&) { w->closePage(); }),
        act<T>("show", [](T* w, Rng&) { w->show(); }),
    };
    e.allowedWarnings = switcherWarnings();
    return e;
}

ClassEntry typeItemTBarCalibration()
{
    using T = TypeItemTBarCalibration;
    ClassEntry e = rowEntry<T>("TypeItemTBarCalibration", QStringLiteral("T-bar calibration"), OwnFontSize);
    e.actions.push_back(act<T>("retranslateUi", [](T* w, Rng&) { w->retranslateUi(); }));
    e.actions.push_back(act<T>("getTBarValue", [](T* w, Rng&) { w->getTBarValue(); }));
    e.actions.push_back(act<T>("slotBtnClicked", [](T* w, Rng&) { w->slotBtnClicked(); }));
    e.actions.push_back(act<T>("stepLabel", [](T* w, Rng& r) { w->stepLabel(r.hostileInt()); }));
    e.allowedWarnings << "^\\[TypeItemTBarCalibration\\] setContentFontSize: size -?\\d+ refused$"
                                      << "^_pKeyBoard is nullptr$" << "^_pKeyBoard->tbarRead\\(\\)\\.second -?\\d+$";
    return e;
}

// --- Instruments ---

DashBoardData hostileDialData(Rng& r)
{
    DashBoardData d;
    bool const sane = r.chance(0.5);
    d.min = sane ? r.between(-100, 0) : r.hostileInt();
    d.max = sane ? r.between(1, 100) : r.hostileInt();
    d.startAngle = sane ? -50.0 : r.hostileDouble();
    d.endAngle = sane ? 230.0 : r.hostileDouble();
    d.scaleMajor = sane ? r.between(1, 10) : r.hostileInt();
    d.scaleMinor = sane ? r.between(1, 5) : r.hostileInt();
    d.step = sane ? r.real(0.1, 5) : r.hostileDouble();
    d.fraction = sane ? r.between(0, 2) : r.hostileInt();
    d.unit = r.chance(0.8) ? QStringLiteral("dB") : r.hostileText().left(2000);
    d.text = r.chance(0.8) ? QStringLiteral("Gain") : r.hostileText().left(2000);
    return d;
}

QStringList dialWarnings()
{
    return {"^\\[DashBoardWidget\\] (setMin|setmax|setValue|setCurrentValue|setStep): not a finite number, ignored$",
            "^\\[DashBoardWidget\\] (setStartAngle|setEndAngle): angle out of range, ignored: ",
            "^\\[DashBoardWidget\\] (setScaleMajor|setScaleMinor): scale out of range, ignored: -?\\d+$",
            "^\\[DashBoardWidget\\] setFraction: decimals out of range, ignored: -?\\d+$",
            "^\\[DashBoardWidget\\] setItemSize: negative size, ignored: QSize\\(-?\\d+, -?\\d+\\)$",
            "^\\[DashBoardWidget\\] setDashBoardData: minimum -?\\d+ above maximum -?\\d+ , ignored$",
            "^\\[DashBoardWidget\\] setContentFontSize: size refused: -?\\d+$",
            "^\\[DashBoardWidget\\] (setMin|setmax|onStartAnimation|setDashBoardData): ",
            "^DashBoardWidget::valueChange d->realStep: -?\\d+$"};
}

ClassEntry dashBoardWidget()
{
    using T = DashBoardWidget;
    ClassEntry e = pageEntry<T>("DashBoardWidget", [](T* w) {
        w->setItemSize(QSize(120, 120));
    }, focusIt<T>);
    e.actions = {
        act<T>("setMin", [](T* w, Rng& r) { w->setMin(r.hostileDouble()); }),
        act<T>("setmax", [](T* w, Rng& r) { w->setmax(r.hostileDouble()); }),
        act<T>("setStartAngle", [](T* w, Rng& r) { w->setStartAngle(r.hostileDouble()); }),
        act<T>("setEndAngle", [](T* w, Rng& r) { w->setEndAngle(r.hostileDouble()); }),
        act<T>("setScaleMajor", [](T* w, Rng& r) { w->setScaleMajor(r.hostileInt()); }),
        act<T>("setScaleMinor", [](T* w, Rng& r) { w->setScaleMinor(r.hostileInt()); }),
        act<T>("setUnit", [](T* w, Rng& r) { w->setUnit(r.hostileText()); }),
        act<T>("setText", [](T* w, Rng& r) { w->setText(r.hostileText()); }),
        act<T>("setArcColor", [](T* w, Rng& r) { w->setArcColor(r.hostileColor()); }),
        act<T>("setScaleColor", [](T* w, Rng& r) { w->setScaleColor(r.hostileColor()); }),
        act<T>("setPointerColor", [](T* w, Rng& r) { w->setPointerColor(r.hostileColor()); }),
        act<T>("setTextColor", [](T* w, Rng& r) { w->setTextColor(r.hostileColor()); }),
        act<T>("setBackgroundColor", [](T* w, Rng& r) { w->setBackgroundColor(r.hostileColor()); }),
        act<T>("setValue", [](T* w, Rng& r) { w->setValue(r.hostileDouble()); }),
        act<T>("setCurrentValue", [](T* w, Rng& r) { w->setCurrentValue(r.hostileDouble()); }),
        act<T>("setStep", [](T* w, Rng& r) { w->setStep(r.hostileDouble()); }),
        act<T>("setFraction", [](T* w, Rng& r) { w->setFraction(r.hostileInt()); }),
        act<T>("setSelected", [](T* w, Rng& r) { w->setSelected(r.coin()); }),
        act<T>("setItemSize", [](T* w, Rng& r) { w->setItemSize(hostileQSize(r)); }),
        act<T>("setDashBoardData", [](T* w, Rng& r) { w->setDashBoardData(hostileDialData(r)); }),
        act<T>("setContentFontSize", [](T*, Rng& r) {
            int const size = r.hostileSize();
            DashBoardWidget::setContentFontSize(size);
        }),
        act<T>("getRealStep", [](T* w, Rng& r) { w->getRealStep(float(r.hostileDouble())); }),
        act<T>("onStartAnimation", [](T* w, Rng& r) { w->onStartAnimation(r.hostileDouble()); }),
    };
    e.allowedWarnings = dialWarnings();
    return e;
}

ClassEntry dashBoardLabel()
{
    using T = DashBoardLabel;
    ClassEntry e{"DashBoardLabel", [](QWidget* page) {
                     static int round = 0;
                     QSize const sizes[] = {QSize(120, 40), QSize(), QSize(-5, -5), QSize(100000, 100000)};
                     auto* w = new T(sizes[round++ % 4], page);
                     addToPage(page, w);
                     return w;
                 }};
    e.actions = {
        act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }),
        act<T>("slotDrawValueChanged", [](T* w, Rng& r) { w->slotDrawValueChanged(r.hostileText(), r.hostileText()); }),
    };
    e.allowedWarnings = QStringList{"^\\[DashBoardLabel\\] setContentFontSize: size refused: -?\\d+$",
                         "^\\[DashBoardLabel\\] size refused: "};
    return e;
}

ClassEntry typeItemDashBoard()
{
    using T = TypeItemDashBoard;
    ClassEntry e = rowEntry<T>("TypeItemDashBoard", QString(), OwnFontSize, [](T* w) {
        QMap<int, DashBoardData> items;
        DashBoardData gain;
        gain.text = QStringLiteral("Gain");
        items.insert(1, gain);
        DashBoardData pan;
        pan.min = -50;
        pan.max = 50;
        pan.text = QStringLiteral("Pan");
        items.insert(2, pan);
        w->setListItems(items);
    });
    e.actions.push_back(act<T>("setListItems", [](T* w, Rng& r) {
        QMap<int, DashBoardData> items;
        int const n = r.chance(0.2) ? 0 : r.between(1, r.chance(0.05) ? 30 : 4);
        for (int i = 0; i < n; ++i)
            items.insert(r.chance(0.7) ? i : r.hostileInt(), hostileDialData(r));
        w->setListItems(items);
    }));
    e.actions.push_back(act<T>("setCurrentValue", [](T* w, Rng& r) {
        QVariant v;
        switch (r.between(0, 3)) {
        case 0:
            v = QVariant(r.hostileDouble());
            break;
        case 1:
            v = QVariant(r.hostileText());
            break;
        case 2:
            v = QVariant(r.hostileInt());
            break;
        default:
            break;
        }
        w->setCurrentValue(r.chance(0.6) ? r.between(0, 3) : r.hostileInt(), v);
    }));
    e.actions.push_back(act<T>("getCurrentValue", [](T* w, Rng& r) { w->getCurrentValue(r.hostileInt()); }));
    e.actions.push_back(act<T>("setItemVisible", [](T* w, Rng& r) { w->setItemVisible(r.chance(0.6) ? r.between(0, 3) : r.hostileInt(), r.coin()); }));
    e.actions.push_back(act<T>("setItemSize", [](T* w, Rng& r) { w->setItemSize(hostileQSize(r)); }));
    e.actions.push_back(act<T>("setCurrentSelected", [](T* w, Rng& r) {
        if (r.chance(0.3)) {
            w->setCurrentSelected(nullptr);
        } else if (r.chance(0.3)) {
            DashBoardWidget stranger;
            w->setCurrentSelected(&stranger);
        } else {
            w->setCurrentSelected(w->dashBoard(r.between(0, 3)));
        }
    }));
    e.allowedWarnings += dialWarnings() + QStringList{
        "^\\[TypeItemDashBoard\\] setCurrentValue: no dial with key -?\\d+$",
        "^\\[TypeItemDashBoard\\] setCurrentValue: not a number for key -?\\d+ : ",
        "^\\[TypeItemDashBoard\\] getCurrentValue: no dial with key -?\\d+$",
        "^\\[TypeItemDashBoard\\] setItemVisible: no dial with key -?\\d+$",
        "^\\[TypeItemDashBoard\\] setItemSize: negative size, ignored: QSize\\(-?\\d+, -?\\d+\\)$",
        "^\\[TypeItemDashBoard\\] setCurrentSelected: not a dial of this row$",
        "^\\[TypeItemDashBoard\\] setContentFontSize: size refused: -?\\d+$",
        "^\\[TypeItemDashBoard\\] editValue: no dial to edit$",
        "^\\[TypeItemDashBoard\\] setListItems: "};
    return e;
}

QStringList drawWarnings()
{
    return {"^\\[DrawGraphicsRectItem\\] setContentFontSize: size refused: -?\\d+$",
            "^item info array is empty$",
            "^\\[DrawGraphicsScene\\] setContentFontSize: size refused: -?\\d+$",
            "^\\[DrawGraphicsScene\\] nothing to fit the view to$",
            "^\\[DrawGraphicsScene\\] setSceneSize: ",
            "^\\[DrawGraphicsView\\] setDrawViewHeight: height refused: -?\\d+$",
            "^\\[DrawGraphicsRectItem\\] setItemSize: "};
}

// The rectangle item is not a widget: a view shows one, and the actions reach it.
DrawGraphicsRectItem* rectItemOf(QGraphicsView* view)
{
    for (QGraphicsItem* item : view->scene()->items())
        if (item->type() == DrawGraphicsRectItem::Type)
            return static_cast<DrawGraphicsRectItem*>(item);
    return nullptr;
}

ClassEntry drawGraphicsRectItem()
{
    ClassEntry e{"DrawGraphicsRectItem", [](QWidget* page) {
                     auto* view = new QGraphicsView(page);
                     auto* scene = new QGraphicsScene(view);
                     view->setScene(scene);
                     auto* base = new DrawGraphicsRectItem;
                     base->setItemSize(QSizeF(320, 180));
                     base->setRectText(QStringLiteral("Picture"));
                     scene->addItem(base);
                     auto* crop = new DrawGraphicsRectItem(base);
                     crop->setItemSize(QSizeF(100, 60));
                     crop->setIsCropRect(true);
                     addToPage(page, view);
                     return view;
                 }};
    auto on = [](QString name, std::function<void(DrawGraphicsRectItem*, Rng&)> f) {
        return Action{name, [f](QWidget* w, Rng& r) {
                          if (DrawGraphicsRectItem* item = rectItemOf(static_cast<QGraphicsView*>(w)))
                              f(item, r);
                      }};
    };
    e.actions = {
        on("setItemSize", [](DrawGraphicsRectItem* i, Rng& r) { i->setItemSize(hostileQSizeF(r)); }),
        on("setRectText", [](DrawGraphicsRectItem* i, Rng& r) { i->setRectText(r.hostileText()); }),
        on("setIsCropRect", [](DrawGraphicsRectItem* i, Rng& r) { i->setIsCropRect(r.coin()); }),
        on("setIsBaseMapHasBoder", [](DrawGraphicsRectItem* i, Rng& r) { i->setIsBaseMapHasBoder(r.coin()); }),
        on("setContentFontSize", [](DrawGraphicsRectItem* i, Rng& r) { i->setContentFontSize(r.hostileSize()); }),
        on("setPos", [](DrawGraphicsRectItem* i, Rng& r) { i->setPos(r.between(-100, 400), r.between(-100, 400)); }),
        Action{"render", [](QWidget* w, Rng&) { renderShown(w); }},
    };
    e.allowedWarnings = drawWarnings();
    return e;
}

ClassEntry drawGraphicsScene()
{
    ClassEntry e{"DrawGraphicsScene", [](QWidget* page) {
                     auto* view = new QGraphicsView(page);
                     auto* scene = new DrawGraphicsScene(view);
                     view->setScene(scene);
                     scene->initScene();
                     scene->setSceneSize(QRectF(0, 0, 1920, 1080));
                     addToPage(page, view);
                     return view;
                 }};
    auto on = [](QString name, std::function<void(DrawGraphicsScene*, Rng&)> f) {
        return Action{name, [f](QWidget* w, Rng& r) {
                          if (auto* scene = qobject_cast<DrawGraphicsScene*>(static_cast<QGraphicsView*>(w)->scene()))
                              f(scene, r);
                      }};
    };
    e.actions = {
        on("initScene", [](DrawGraphicsScene* s, Rng&) { s->initScene(); }),
        on("setSceneSize", [](DrawGraphicsScene* s, Rng& r) { s->setSceneSize(hostileRectF(r)); }),
        on("setTemplateInfo", [](DrawGraphicsScene* s, Rng& r) { s->setTemplateInfo(hostileItemInfos(r)); }),
        on("setCropRectInfo", [](DrawGraphicsScene* s, Rng& r) { s->setCropRectInfo(hostileCropInfos(r)); }),
        on("setContentFontSize", [](DrawGraphicsScene* s, Rng& r) { s->setContentFontSize(r.hostileSize()); }),
        on("removeItems", [](DrawGraphicsScene* s, Rng&) { s->removeItems(); }),
        on("updateViewCenter", [](DrawGraphicsScene* s, Rng&) { s->updateViewCenter(); }),
        on("outCutRect", [](DrawGraphicsScene* s, Rng&) { s->outCutRect(); }),
        Action{"render", [](QWidget* w, Rng&) { renderShown(w); }},
    };
    e.allowedWarnings = drawWarnings();
    return e;
}

ClassEntry drawGraphicsView()
{
    using T = DrawGraphicsView;
    ClassEntry e = pageEntry<T>("DrawGraphicsView", [](T* w) {
        w->setItemInfo({{"Picture", 0, 0, 1920, 1080}});
        w->setCropRectInfo({{true, {"Crop", 100, 100, 800, 450}}});
    });
    e.actions = {
        act<T>("setItemInfo", [](T* w, Rng& r) { w->setItemInfo(hostileItemInfos(r)); }),
        act<T>("setCropRectInfo", [](T* w, Rng& r) { w->setCropRectInfo(hostileCropInfos(r)); }),
        act<T>("setDrawViewHeight", [](T* w, Rng& r) { w->setDrawViewHeight(r.hostileSize()); }),
        act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }),
        Action{"render", [](QWidget* w, Rng&) { renderShown(w); }},
    };
    e.allowedWarnings = drawWarnings();
    return e;
}

ClassEntry typeDrawCropWidget()
{
    using T = TypeDrawCropWidget;
    ClassEntry e = rowEntry<T>("TypeDrawCropWidget", QString(), OwnFontSize, [](T* w) {
        w->setItemInfo({{"Picture", 0, 0, 1920, 1080}});
        w->setCropRectInfo({{true, {"Crop", 100, 100, 800, 450}}});
    });
    e.actions.push_back(act<T>("setItemInfo", [](T* w, Rng& r) { w->setItemInfo(hostileItemInfos(r)); }));
    e.actions.push_back(act<T>("setCropRectInfo", [](T* w, Rng& r) { w->setCropRectInfo(hostileCropInfos(r)); }));
    e.actions.push_back(act<T>("setCropViewHeight", [](T* w, Rng& r) { w->setCropViewHeight(r.hostileSize()); }));
    e.actions.push_back(Action{"render", [](QWidget* w, Rng&) { renderShown(w); }});
    e.allowedWarnings += drawWarnings() + QStringList{
        "^\\[TypeDrawCropWidget\\] setCropViewHeight: height refused: -?\\d+$",
        "^\\[TypeDrawCropWidget\\] setContentFontSize: size refused: -?\\d+$"};
    return e;
}

// --- System ---

ClassEntry textViewDialog()
{
    using T = TextViewDialog;
    ClassEntry e{"TextViewDialog", [](QWidget* page) {
                     static int round = 0;
                     auto* w = new T(roundRect(round), page);
                     w->setTitle(QStringLiteral("Licences"));
                     w->setText(QString(40, QLatin1Char('x')).append(QStringLiteral("\nline\n")).repeated(40));
                     execLater(w);
                     return w;
                 }};
    e.actions = {
        act<T>("setTitle", [](T* w, Rng& r) { w->setTitle(r.hostileText()); }),
        act<T>("setText", [](T* w, Rng& r) {
            // One text beyond the limit: words, which Qt lays out quickly.
            w->setText(r.chance(0.02) ? QStringLiteral("word ").repeated(T::maxTextLength() / 5 + 2) : dialogText(r));
        }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
        Action{"showText", [](QWidget* w, Rng& r) {
                   QString const title = r.hostileText().left(300);
                   QString const text = r.chance(0.2) ? QString() : dialogText(r);
                   QRect const rect = hostileRect(r);
                   later(w, [w, title, text, rect] { TextViewDialog::showText(w, title, text, rect); });
               }},
    };
    e.allowedWarnings = dialogWarnings("[TextViewDialog]") + QStringList{
        "^\\[TextViewDialog\\] showText: text is empty: nothing shown$",
        "^\\[TextViewDialog\\] setText: text of \\d+ characters cut to \\d+$",
        "^TextViewDialog pos x:-?\\d+;y:-?\\d+$"};
    return e;
}

ClassEntry mutilProgressBarDialog()
{
    using T = MutilProgressBarDialog;
    ClassEntry e{"MutilProgressBarDialog", [](QWidget* page) {
                     static int round = 0;
                     auto* w = new T(roundRect(round), page);
                     w->setTitle(QStringLiteral("Updating devices"));
                     w->setTasks({QStringLiteral("Panel"), QStringLiteral("Switcher"), QStringLiteral("Camera")});
                     execLater(w);
                     return w;
                 }};
    e.actions = {
        act<T>("setTitle", [](T* w, Rng& r) { w->setTitle(r.hostileText()); }),
        act<T>("addTask", [](T* w, Rng& r) { w->addTask(r.chance(0.2) ? QString() : r.hostileText().left(3000)); }),
        act<T>("setTasks", [](T* w, Rng& r) {
            QStringList labels;
            int const n = r.chance(0.05) ? 70 : r.between(0, 5);
            for (int i = 0; i < n; ++i)
                labels << (r.chance(0.1) ? QString() : QStringLiteral("Task %1").arg(i));
            w->setTasks(labels);
        }),
        act<T>("clearTasks", [](T* w, Rng& r) {
            if (r.chance(0.3))
                w->clearTasks();
        }),
        act<T>("setTaskValue", [](T* w, Rng& r) {
            w->setTaskValue(r.hostileIndex(w->taskCount()), r.chance(0.5) ? r.between(0, 100) : r.hostileInt());
        }),
        act<T>("setTaskSucceeded", [](T* w, Rng& r) { w->setTaskSucceeded(r.hostileIndex(w->taskCount())); }),
        act<T>("setTaskFailed", [](T* w, Rng& r) { w->setTaskFailed(r.hostileIndex(w->taskCount()), r.hostileText()); }),
        act<T>("taskState", [](T* w, Rng& r) { w->taskState(r.hostileIndex(w->taskCount())); }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
        act<T>("done", [](T* w, Rng& r) {
            if (r.chance(0.2))
                w->done(0);
        }),
    };
    e.allowedWarnings = dialogWarnings("[MutilProgressBarDialog]") + QStringList{
        "^\\[MutilProgressBarDialog\\] addTask: empty label refused$",
        "^\\[MutilProgressBarDialog\\] addTask: at most 64 tasks$",
        "^\\[MutilProgressBarDialog\\] \\w+: no task -?\\d+ \\(\\d+ tasks\\)$",
        "^\\[MutilProgressBarDialog\\] \\w+: task -?\\d+ has already ended$",
        "^\\[MutilProgressBarDialog\\] setTaskValue: value -?\\d+ clamped to 0\\.\\.100$",
        "^\\[MutilProgressBarDialog\\] exec: no task: only the host can close the dialog$",
        "^\\[MutilProgressBarDialog\\] setTasks: ",
        "^MutilProgressBarDialog pos x:-?\\d+;y:-?\\d+$"};
    return e;
}

QStringList lockWarnings()
{
    return {"^\\[LockPanel\\] unlock gesture complete$", "^\\[LockPanel\\] (locked|unlocked)$",
            "^\\[LockPanel\\] setUnlockKey: -?\\d+ is no key$",
            "^\\[LockPanel\\] setUnlockHoldTime: negative time -?\\d+ refused$",
            "^\\[LockPanel\\] setReminderTime: negative time -?\\d+ refused$",
            "^\\[LockPanel\\] host rectangle is (empty|larger than any screen), using 800x480$",
            "^\\[LockReminderDialog\\] timeout close$", "^\\[LockReminderDialog\\] parent destroyed: closing$",
            "^\\[LockReminderDialog\\] setDisplayTime: negative time -?\\d+ refused$",
            "^\\[LockReminderDialog\\] exec: already running, refused$",
            "^\\[LockReminderDialog\\] host rectangle is (empty|larger than any screen), using 800x480$",
            "^\\[LockReminderDialog\\] remind: text is empty: nothing shown$",
            "^\\[dialog\\] exec finish with -?\\d+$"};
}

// The lock panel takes every key while locked: the monkey unlocks it often, and its
// destruction always lets the keys through again.
ClassEntry lockPanel()
{
    using T = LockPanel;
    ClassEntry e{"LockPanel", [](QWidget*) {
                     static int round = 0;
                     auto* w = new T(roundRect(round), nullptr);
                     w->setUnlockHoldTime(50);
                     w->setReminderTime(200);
                     w->lock();
                     return w;
                 }};
    e.actions = {
        act<T>("setUnlockKey", [](T* w, Rng& r) { w->setUnlockKey(r.chance(0.6) ? int(Qt::Key_Escape) : r.hostileInt()); }),
        act<T>("setUnlockHoldTime", [](T* w, Rng& r) { w->setUnlockHoldTime(r.chance(0.6) ? r.between(0, 100) : r.hostileInt()); }),
        act<T>("setReminderTime", [](T* w, Rng& r) { w->setReminderTime(r.chance(0.6) ? r.between(0, 300) : r.hostileInt()); }),
        act<T>("setReminderText", [](T* w, Rng& r) { w->setReminderText(r.hostileText()); }),
        act<T>("lock", [](T* w, Rng&) { w->lock(); }),
        act<T>("unlock", [](T* w, Rng&) { w->unlock(); }),
        act<T>("unlock", [](T* w, Rng&) { w->unlock(); }),
        act<T>("setLocked", [](T* w, Rng& r) { w->setLocked(r.coin()); }),
    };
    e.allowedWarnings = lockWarnings();
    return e;
}

ClassEntry lockReminderDialog()
{
    using T = LockReminderDialog;
    ClassEntry e{"LockReminderDialog", [](QWidget* page) {
                     static int round = 0;
                     auto* w = new T(roundRect(round), page);
                     w->setText(LockReminderDialog::unlockText(Qt::Key_Escape, 2000));
                     w->setDisplayTime(300);
                     execLater(w);
                     return w;
                 }};
    e.actions = {
        act<T>("setText", [](T* w, Rng& r) { w->setText(r.hostileText()); }),
        act<T>("setDisplayTime", [](T* w, Rng& r) { w->setDisplayTime(r.chance(0.6) ? r.between(0, 400) : r.hostileInt()); }),
        act<T>("restartTimer", [](T* w, Rng&) { w->restartTimer(); }),
        act<T>("unlockText", [](T*, Rng& r) { LockReminderDialog::unlockText(r.hostileInt(), r.hostileInt()); }),
        act<T>("exec", [](T* w, Rng&) {
            execLater(w);
        }),
        Action{"remind", [](QWidget* w, Rng& r) {
                   QString const text = r.chance(0.2) ? QString() : r.hostileText().left(500);
                   QRect const rect = hostileRect(r);
                   int const ms = r.chance(0.7) ? r.between(0, 300) : r.hostileInt();
                   later(w, [w, text, rect, ms] { LockReminderDialog::remind(w, text, rect, ms); });
               }},
    };
    e.allowedWarnings = lockWarnings();
    return e;
}

// The about page's rows are text rows whose base counts a text's lines one character
// at a time (quadratic: 100 000 characters take minutes, a fault of the row base left
// to its owner): the hostile texts are cut to 2000 characters here.
QString aboutText(Rng& r) { return r.hostileText().left(2000); }

ClassEntry aboutPage()
{
    using T = AboutPage;
    ClassEntry e = pageEntry<T>("AboutPage", [](T* w) {
        w->setModel(QStringLiteral("Mini Pro"));
        w->setSoftwareVersion(QStringLiteral("1.4.2"));
        w->setSerialNumber(QStringLiteral("SN0001"));
    }, focusIt<T>);
    e.actions = {
        act<T>("setModel", [](T* w, Rng& r) { w->setModel(aboutText(r)); }),
        act<T>("setSoftwareVersion", [](T* w, Rng& r) { w->setSoftwareVersion(aboutText(r)); }),
        act<T>("setHardwareVersion", [](T* w, Rng& r) { w->setHardwareVersion(aboutText(r)); }),
        act<T>("setSerialNumber", [](T* w, Rng& r) { w->setSerialNumber(aboutText(r)); }),
        act<T>("setIpAddress", [](T* w, Rng& r) { w->setIpAddress(hostileIp(r)); }),
        act<T>("setMacAddress", [](T* w, Rng& r) { w->setMacAddress(aboutText(r)); }),
        act<T>("setInfo", [](T* w, Rng& r) {
            w->setInfo(r.chance(0.6) ? QStringLiteral("Key %1").arg(r.between(0, r.chance(0.05) ? 400 : 10)) : aboutText(r),
                       aboutText(r));
        }),
        act<T>("setInfoAt", [](T* w, Rng& r) { w->setInfoAt(r.hostileIndex(w->count()), aboutText(r)); }),
        act<T>("removeInfo", [](T* w, Rng& r) {
            w->removeInfo(r.chance(0.6) ? QStringLiteral("Key %1").arg(r.between(0, 10)) : aboutText(r).left(300));
        }),
        act<T>("clear", [](T* w, Rng& r) {
            if (r.chance(0.2))
                w->clear();
        }),
        act<T>("key", [](T* w, Rng& r) { w->key(r.hostileIndex(w->count())); }),
        act<T>("item", [](T* w, Rng& r) { w->item(r.hostileIndex(w->count())); }),
        act<T>("setCurrentIndex", [](T* w, Rng& r) { w->setCurrentIndex(r.hostileIndex(w->count())); }),
        act<T>("setContentFontSize", [](T* w, Rng& r) { w->setContentFontSize(r.hostileSize()); }),
    };
    e.allowedWarnings = QStringList{"^\\[AboutPage\\] setInfo: empty key refused$",
                         "^\\[AboutPage\\] \\w+: at most 256 rows$",
                         "^\\[AboutPage\\] setInfoAt: no row -?\\d+ \\(\\d+ rows\\)$",
                         "^\\[AboutPage\\] removeInfo: no row \"",
                         "^\\[AboutPage\\] setCurrentIndex: no row -?\\d+ \\(\\d+ rows\\)$",
                         "^\\[AboutPage\\] setContentFontSize: size -?\\d+ refused$",
                         "^\\[AboutPage\\] \\w+: "};
    return e;
}

// --- Layers ---


ClassEntry typeZOrderItemMore()
{
    using T = TypeZOrderItemMore;
    ClassEntry e = rowEntry<T>("TypeZOrderItemMore", QStringLiteral("Key 1"), OwnFontSize, [](T* w) {
        w->setLayerCount(4);
        w->setZOrder(2);
    });
    e.actions.push_back(act<T>("setLayerCount", [](T* w, Rng& r) { w->setLayerCount(r.hostileInt()); }));
    e.actions.push_back(act<T>("setZOrder", [](T* w, Rng& r) { w->setZOrder(r.hostileIndex(w->layerCount())); }));
    e.actions.push_back(act<T>("setLabelValue", [](T* w, Rng& r) {
        w->setLabelValue(r.coin() ? QVariant(r.hostileIndex(w->layerCount())) : QVariant(r.hostileText()), r.hostileInt());
    }));
    e.allowedWarnings += QStringList{"^\\[TypeZOrderItemMore\\] invalid layer count: -?\\d+$",
                                                    "^\\[TypeZOrderItemMore\\] z-order out of range: ", "^Invalid font size: -?\\d+$"};
    return e;
}

ClassEntry typeFrameTag()
{
    using T = TypeFrameTag;
    ClassEntry e = rowEntry<T>("TypeFrameTag", QStringLiteral("Camera 1"), OwnFontSize, [](T* w) {
        w->setTag(QStringLiteral("PGM"), TypeFrameTag::Program);
    });
    e.actions.push_back(act<T>("setTag", [](T* w, Rng& r) { w->setTag(r.hostileText(), TypeFrameTag::Kind(r.between(0, 7))); }));
    e.actions.push_back(act<T>("setTagText", [](T* w, Rng& r) { w->setTagText(r.hostileText()); }));
    e.actions.push_back(act<T>("setTagKind", [](T* w, Rng& r) { w->setTagKind(TypeFrameTag::Kind(r.between(0, 7))); }));
    e.actions.push_back(act<T>("setTagColor", [](T* w, Rng& r) { w->setTagColor(r.hostileColor()); }));
    e.actions.push_back(act<T>("setLabelValue", [](T* w, Rng& r) {
        w->setLabelValue(r.coin() ? QVariant(r.hostileText()) : QVariant(r.hostileInt()), r.hostileInt());
    }));
    e.allowedWarnings += QStringList{"^\\[TypeFrameTag\\] unknown tag kind: -?\\d+$",
                                                    "^\\[TypeFrameTag\\] invalid tag colour$", "^Invalid font size: -?\\d+$"};
    return e;
}

ClassEntry typeGraphicWidget()
{
    using T = TypeGraphicWidget;
    ClassEntry e = rowEntry<T>("TypeGraphicWidget", QStringLiteral("Logo"), OwnNone, [](T* w) {
        w->setPicture(QStringLiteral("./../share/themes/default/images/effect_mix.png"));
    });
    e.actions.push_back(act<T>("setPicture", [](T* w, Rng& r) {
        static std::vector<QString> const paths{"./../share/themes/default/images/effect_mix.png",
                                                "./../share/themes/default/images/effect_box.gif", "", "/no/such.png", "/"};
        w->setPicture(r.chance(0.8) ? r.pick(paths) : r.hostileText().left(300));
    }));
    e.actions.push_back(act<T>("setPixmap", [](T* w, Rng& r) {
        if (r.coin()) {
            w->setPixmap(QPixmap());
            return;
        }
        QPixmap p(r.between(1, 2000), r.between(1, 40));
        p.fill(Qt::blue);
        w->setPixmap(p);
    }));
    e.actions.push_back(act<T>("clearPicture", [](T* w, Rng&) { w->clearPicture(); }));
    e.actions.push_back(act<T>("setPictureHeight", [](T* w, Rng& r) { w->setPictureHeight(r.hostileSize()); }));
    e.actions.push_back(act<T>("setLabelValue", [](T* w, Rng& r) {
        w->setLabelValue(r.coin() ? QVariant(r.hostileText().left(300)) : QVariant(), r.hostileInt());
    }));
    e.allowedWarnings += QStringList{"^\\[TypeGraphicWidget\\] picture not found: ",
                                                    "^\\[TypeGraphicWidget\\] null picture$",
                                                    "^\\[TypeGraphicWidget\\] invalid picture height: -?\\d+$"};
    return e;
}

QStringList previewWarnings()
{
    return {"^\\[PreviewWidget\\] layer index out of range: -?\\d+$",
            "^\\[PreviewWidget\\] invalid canvas size: QSize\\(-?\\d+, -?\\d+\\)$",
            "^\\[PreviewWidget\\] empty rectangle ignored at -?\\d+$",
            "^\\[PreviewWidget\\] rectangle is not finite$",
            "^\\[PreviewWidget\\] rectangle is empty$",
            "^\\[PreviewWidget\\] invalid view height: -?\\d+$",
            "^Invalid font size: -?\\d+$"};
}

template <class T>
void addPreviewActions(std::vector<Action>& a, std::function<PreviewWidget*(T*)> get)
{
    auto on = [get](QString name, std::function<void(PreviewWidget*, Rng&)> f) {
        return act<T>(name, [get, f](T* w, Rng& r) { f(get(w), r); });
    };
    a.push_back(on("setCanvasSize", [](PreviewWidget* p, Rng& r) { p->setCanvasSize(hostileQSize(r)); }));
    a.push_back(on("setLayers", [](PreviewWidget* p, Rng& r) { p->setLayers(hostileItemInfos(r)); }));
    a.push_back(on("clearLayers", [](PreviewWidget* p, Rng& r) {
        if (r.chance(0.3))
            p->clearLayers();
    }));
    a.push_back(on("setLayerRect", [](PreviewWidget* p, Rng& r) { p->setLayerRect(r.hostileIndex(p->layerCount()), hostileRectF(r)); }));
    a.push_back(on("layerRect", [](PreviewWidget* p, Rng& r) { p->layerRect(r.hostileIndex(p->layerCount())); }));
    a.push_back(on("setLayerText", [](PreviewWidget* p, Rng& r) { p->setLayerText(r.hostileIndex(p->layerCount()), r.hostileText()); }));
    a.push_back(on("layerText", [](PreviewWidget* p, Rng& r) { p->layerText(r.hostileIndex(p->layerCount())); }));
    a.push_back(on("moveLayer", [](PreviewWidget* p, Rng& r) { p->moveLayer(r.hostileIndex(p->layerCount()), r.hostileIndex(p->layerCount())); }));
    a.push_back(on("setCurrentLayer", [](PreviewWidget* p, Rng& r) { p->setCurrentLayer(r.hostileIndex(p->layerCount())); }));
    a.push_back(on("setDrawViewHeight", [](PreviewWidget* p, Rng& r) { p->setDrawViewHeight(r.hostileSize()); }));
    a.push_back(on("setContentFontSize", [](PreviewWidget* p, Rng& r) { p->setContentFontSize(r.hostileSize()); }));
    a.push_back(on("layerArea", [](PreviewWidget* p, Rng& r) { p->layerArea(r.hostileIndex(p->layerCount())); }));
    a.push_back(on("setBackgroundColor", [](PreviewWidget* p, Rng& r) { p->setBackgroundColor(r.hostileColor()); }));
    a.push_back(on("setFrameColor", [](PreviewWidget* p, Rng& r) { p->setFrameColor(r.hostileColor()); }));
    a.push_back(on("setHighlightColor", [](PreviewWidget* p, Rng& r) { p->setHighlightColor(r.hostileColor()); }));
    a.push_back(on("setTextColor", [](PreviewWidget* p, Rng& r) { p->setTextColor(r.hostileColor()); }));
    a.push_back(on("render", [](PreviewWidget* p, Rng&) { renderShown(p); }));
}

ItemDataInfoArray someLayers()
{
    return {{"Background", 0, 0, 1920, 1080}, {"PiP 1", 1200, 80, 640, 360}, {"Logo", 60, 60, 200, 100}};
}

ClassEntry previewWidget()
{
    using T = PreviewWidget;
    ClassEntry e = pageEntry<T>("PreviewWidget", [](T* w) {
        w->setCanvasSize(QSize(1920, 1080));
        w->setLayers(someLayers());
    });
    addPreviewActions<T>(e.actions, [](T* w) { return w; });
    e.allowedWarnings = previewWarnings();
    return e;
}

ClassEntry typePreviewWidget()
{
    using T = TypePreviewWidget;
    ClassEntry e = rowEntry<T>("TypePreviewWidget", QString(), OwnFontSize, [](T* w) {
        w->preview()->setCanvasSize(QSize(1920, 1080));
        w->preview()->setLayers(someLayers());
    });
    addPreviewActions<T>(e.actions, [](T* w) { return w->preview(); });
    e.actions.push_back(act<T>("setPreviewHeight", [](T* w, Rng& r) { w->setPreviewHeight(r.hostileSize()); }));
    e.actions.push_back(act<T>("setLabelValue", [](T* w, Rng& r) {
        w->setLabelValue(r.coin() ? QVariant(r.hostileIndex(w->preview()->layerCount())) : QVariant(r.hostileText()), r.hostileInt());
    }));
    e.allowedWarnings += previewWarnings() + QStringList{
        "^\\[TypePreviewWidget\\] invalid preview height: -?\\d+$", "^\\[TypePreviewWidget\\] no layers to choose from$",
        "^\\[TypePreviewWidget\\] setLabelValue: "};
    return e;
}

// --- Factory test ---

QStringList factoryWarnings()
{
    return {"^\\[FactoryTestFrame\\] test index out of range: -?\\d+$",
            "^\\[FactoryTestLeftFrame\\] test index out of range: -?\\d+$",
            "^\\[FactoryTestLeftFrame\\] unknown result: -?\\d+$",
            "^\\[FactoryTestRightFrame\\] test index out of range: -?\\d+$",
            "^\\[FactoryTestRightFrame\\] no keys to test$",
            "^\\[FactoryTestRightFrame\\] invalid knob target: -?\\d+$",
            "^\\[FactoryTestRightFrame\\] invalid T-bar range: -?\\d+ -?\\d+$",
            "^\\[FactoryTestRightFrame\\] (finishTest|setExpectedKeys): ",
            "^_pKeyBoard is nullptr$"};
}

FactoryTestResult hostileResult(Rng& r) { return FactoryTestResult(r.chance(0.8) ? r.between(0, 2) : r.hostileInt()); }

template <class T>
void addRightFrameActions(std::vector<Action>& a, std::function<FactoryTestRightFrame*(T*)> get)
{
    auto on = [get](QString name, std::function<void(FactoryTestRightFrame*, Rng&)> f) {
        return act<T>(name, [get, f](T* w, Rng& r) { f(get(w), r); });
    };
    a.push_back(on("right.startTest", [](FactoryTestRightFrame* f, Rng& r) { f->startTest(r.chance(0.7) ? r.between(0, 4) : r.hostileInt()); }));
    a.push_back(on("right.finishTest", [](FactoryTestRightFrame* f, Rng& r) { f->finishTest(hostileResult(r)); }));
    a.push_back(on("right.setExpectedKeys", [](FactoryTestRightFrame* f, Rng& r) {
        QVector<int> keys;
        int const n = r.between(0, 4);
        for (int i = 0; i < n; ++i)
            keys << (r.coin() ? int(Qt::Key_Enter) : r.hostileInt());
        f->setExpectedKeys(keys);
    }));
    a.push_back(on("right.setKnobTarget", [](FactoryTestRightFrame* f, Rng& r) { f->setKnobTarget(r.chance(0.5) ? r.between(1, 5) : r.hostileInt()); }));
    a.push_back(on("right.setTBarRange", [](FactoryTestRightFrame* f, Rng& r) { f->setTBarRange(r.hostileInt(), r.hostileInt()); }));
    a.push_back(on("right.readTBar", [](FactoryTestRightFrame* f, Rng&) { f->readTBar(); }));
}

ClassEntry factoryTestFrame()
{
    using T = FactoryTestFrame;
    ClassEntry e = pageEntry<T>("FactoryTestFrame", nullptr, focusIt<T>);
    e.actions = {
        act<T>("startTest", [](T* w, Rng& r) { w->startTest(r.chance(0.7) ? r.between(0, 4) : r.hostileInt()); }),
        act<T>("result", [](T* w, Rng& r) { w->result(r.hostileInt()); }),
        act<T>("resetResults", [](T* w, Rng&) { w->resetResults(); }),
        act<T>("left.setCurrentTest", [](T* w, Rng& r) { w->leftFrame()->setCurrentTest(r.hostileIndex(kFactoryTestCount)); }),
        act<T>("left.setResult", [](T* w, Rng& r) { w->leftFrame()->setResult(r.hostileIndex(kFactoryTestCount), hostileResult(r)); }),
    };
    addRightFrameActions<T>(e.actions, [](T* w) { return w->rightFrame(); });
    e.allowedWarnings = factoryWarnings();
    return e;
}

ClassEntry factoryTestLeftFrame()
{
    using T = FactoryTestLeftFrame;
    ClassEntry e = pageEntry<T>("FactoryTestLeftFrame", nullptr, focusIt<T>);
    e.actions = {
        act<T>("setCurrentTest", [](T* w, Rng& r) { w->setCurrentTest(r.hostileIndex(kFactoryTestCount)); }),
        act<T>("setResult", [](T* w, Rng& r) { w->setResult(r.hostileIndex(kFactoryTestCount), hostileResult(r)); }),
        act<T>("result", [](T* w, Rng& r) { w->result(r.hostileIndex(kFactoryTestCount)); }),
        act<T>("resetResults", [](T* w, Rng&) { w->resetResults(); }),
        act<T>("retranslateUi", [](T* w, Rng&) { w->retranslateUi(); }),
        act<T>("factoryTestName", [](T*, Rng& r) { factoryTestName(r.hostileIndex(kFactoryTestCount)); }),
    };
    e.allowedWarnings = factoryWarnings();
    return e;
}

ClassEntry factoryTestRightFrame()
{
    using T = FactoryTestRightFrame;
    ClassEntry e = pageEntry<T>("FactoryTestRightFrame", nullptr, [](T* w) {
        w->setFocus();
        w->startTest(int(FactoryTestItem::Knob));
    });
    addRightFrameActions<T>(e.actions, [](T* w) { return w; });
    e.allowedWarnings = factoryWarnings();
    return e;
}

} // namespace

void addPageClasses(std::vector<ClassEntry>& out)
{
    out.push_back(ipLineEdit());
    out.push_back(ipEdit());
    out.push_back(typeIpAdjust());
    out.push_back(numberPad());
    out.push_back(networkSettings());
    out.push_back(switcherSelect());
    out.push_back(switcherItem());
    out.push_back(addDevice());
    out.push_back(typeItemTBarCalibration());
    out.push_back(dashBoardWidget());
    out.push_back(dashBoardLabel());
    out.push_back(typeItemDashBoard());
    out.push_back(drawGraphicsRectItem());
    out.push_back(drawGraphicsScene());
    out.push_back(drawGraphicsView());
    out.push_back(typeDrawCropWidget());
    out.push_back(textViewDialog());
    out.push_back(mutilProgressBarDialog());
    out.push_back(lockPanel());
    out.push_back(lockReminderDialog());
    out.push_back(aboutPage());
    out.push_back(typeZOrderItemMore());
    out.push_back(typeFrameTag());
    out.push_back(typeGraphicWidget());
    out.push_back(previewWidget());
    out.push_back(typePreviewWidget());
    out.push_back(factoryTestFrame());
    out.push_back(factoryTestLeftFrame());
    out.push_back(factoryTestRightFrame());
}

} // namespace Devices
} // namespace Monkey
