// The switcher selection page: the 128 limit and its warning, update in place by
// serial number, online and bound updates and their refusals, the grid placement,
// knob navigation and the press, and the add-device flow with its address check.
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

Q_DECLARE_METATYPE(std::string)

using namespace LCD::Widget;

namespace {

SwitcherInfo switcher(int n, bool online = true)
{
    SwitcherInfo s;
    s.model = "SW-" + std::to_string(n % 4);
    s.name = "Studio " + std::to_string(n);
    s.ip = "10.0." + std::to_string(n / 200) + "." + std::to_string(n % 200 + 1);
    s.sn = "SN" + std::to_string(1000 + n);
    s.online = online;
    return s;
}

std::vector<SwitcherInfo> switchers(int count)
{
    std::vector<SwitcherInfo> out;
    for (int i = 0; i < count; ++i)
        out.push_back(switcher(i));
    return out;
}

struct Window
{
    QWidget window;
    SwitcherSelect* page = new SwitcherSelect(&window);
    Window()
    {
        auto* l = new QVBoxLayout(&window);
        l->setContentsMargins(0, 0, 0, 0);
        l->addWidget(page);
        window.resize(1280, 300);
    }
    bool start()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        return QTest::qWaitForWindowActive(&window);
    }
    int visibleItems() const
    {
        int n = 0;
        for (int i = 0; i < SwitcherSelect::kMaxSwitchers; ++i)
            n += page->itemAt(i)->isVisibleTo(page) ? 1 : 0;
        return n;
    }
};

} // namespace

class TestSwitchers : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }
    void limitAndUpdateInPlace();
    void onlineAndBoundBySn();
    void gridPlacement();
    void knobWalksAndPresses();
    void addDeviceFlow();
    void addDeviceRefusesBadAddresses();
    void hideInterfaceAndForwarding();
};

void TestSwitchers::limitAndUpdateInPlace()
{
    Window w;
    w.page->addSwitchers(switchers(128));
    QCOMPARE(int(w.page->switchers().size()), 128);
    QCOMPARE(w.visibleItems(), 128);

    QTest::ignoreMessage(QtWarningMsg, "[SwitcherSelect] Cannot add switcher, maximum count reached: 128");
    w.page->addSwitcher(switcher(500));
    QCOMPARE(int(w.page->switchers().size()), 128);
    QVERIFY(!w.page->itemBySn("SN1500"));

    // A known serial number updates its row even with the list full.
    SwitcherInfo renamed = switcher(7);
    renamed.name = "Main hall";
    renamed.ip = "192.168.1.77";
    renamed.model = "SW-X";
    renamed.isBind = true;
    w.page->addSwitcher(renamed);
    QCOMPARE(int(w.page->switchers().size()), 128);
    SwitcherInfo const stored = w.page->switchers().at(7);
    QCOMPARE(stored.name, std::string("Main hall"));
    QCOMPARE(stored.ip, std::string("192.168.1.77"));
    QCOMPARE(stored.isBind, true);
    SwitcherItem* item = w.page->itemBySn("SN1007");
    QCOMPARE(item, w.page->itemAt(7));
    QCOMPARE(item->detailText(), QStringLiteral("Main hall(192.168.1.77)"));
    QCOMPARE(item->findChild<QLabel*>()->text(), QStringLiteral("SW-X"));

    // A batch with duplicates inside it keeps the first row and updates it.
    w.page->clearSwitchers();
    QCOMPARE(w.visibleItems(), 0);
    QCOMPARE(w.page->selectedIndex(), -1);
    std::vector<SwitcherInfo> batch = switchers(3);
    batch.push_back(renamed);
    batch.back().sn = "SN1001";
    w.page->addSwitchers(batch);
    QCOMPARE(int(w.page->switchers().size()), 3);
    QCOMPARE(w.page->switchers().at(1).name, std::string("Main hall"));
    QCOMPARE(w.visibleItems(), 3);
}

void TestSwitchers::onlineAndBoundBySn()
{
    Window w;
    w.page->addSwitchers(switchers(4));
    QLabel* dot = nullptr;
    for (QLabel* l : w.page->itemAt(2)->findChildren<QLabel*>())
        if (l->property("style").isValid())
            dot = l;
    QVERIFY(dot);
    QCOMPARE(dot->property("style").toString(), QStringLiteral("online"));

    QTest::ignoreMessage(QtWarningMsg, "[SwitcherSelect] Device SN is empty");
    w.page->setDeviceOnline("", false);
    QTest::ignoreMessage(QtWarningMsg, "[SwitcherSelect] Device SN is empty");
    w.page->setDeviceBind("", true);
    QTest::ignoreMessage(QtWarningMsg, "[SwitcherSelect] Device not found, SN: SN9");
    w.page->setDeviceOnline("SN9", false);
    QTest::ignoreMessage(QtWarningMsg, "[SwitcherSelect] Device not found, SN: SN9");
    w.page->setDeviceBind("SN9", true);
    for (SwitcherInfo const& s : w.page->switchers())
        QVERIFY(s.online && !s.isBind);

    w.page->setDeviceOnline("SN1002", false);
    QCOMPARE(dot->property("style").toString(), QStringLiteral("offline"));
    QCOMPARE(w.page->switchers().at(2).online, false);
    w.page->setDeviceBind("SN1002", true);
    QCOMPARE(w.page->switchers().at(2).isBind, true);
    QCOMPARE(w.page->itemAt(2)->switcherInfo().isBind, true);
    bool marked = false;
    for (QLabel* l : w.page->itemAt(2)->findChildren<QLabel*>())
        marked = marked || l->property("image").toString() == QStringLiteral("toast_success");
    QVERIFY(marked);
    w.page->setDeviceBind("SN1002", false);
    for (QLabel* l : w.page->itemAt(2)->findChildren<QLabel*>())
        QVERIFY(l->property("image").toString().isEmpty());
}

void TestSwitchers::gridPlacement()
{
    Window w;
    QVERIFY(w.start());
    w.page->addSwitchers(switchers(5));
    auto* grid = w.page->itemAt(0)->parentWidget()->findChild<QGridLayout*>();
    QVERIFY(grid);
    QCOMPARE(grid->horizontalSpacing(), 32);
    QCOMPARE(grid->verticalSpacing(), 8);
    for (int i = 0; i < 6; ++i) {
        int row = -1, column = -1, rs, cs;
        grid->getItemPosition(grid->indexOf(w.page->itemAt(i)), &row, &column, &rs, &cs);
        QCOMPARE(row, i / 2);
        QCOMPARE(column, i % 2);
    }
    // Odd count: the last row holds one item, in column 0.
    QVERIFY(w.page->itemAt(4)->isVisible());
    QVERIFY(!w.page->itemAt(5)->isVisible());
    QCOMPARE(w.page->itemAt(4)->x(), w.page->itemAt(0)->x());
    QCOMPARE(w.page->itemAt(1)->x(), w.page->itemAt(0)->x() + 510 + 32);
    QCOMPARE(w.page->itemAt(0)->size(), QSize(510, 52));
}

void TestSwitchers::knobWalksAndPresses()
{
    Window w;
    w.page->addSwitchers(switchers(40));
    QVERIFY(w.start());
    // Shown: the first row has the knob.
    QCOMPARE(QApplication::focusWidget(), w.page->itemAt(0)->mainButton());
    QSignalSpy bind(w.page, &SwitcherSelect::signalBind);
    QSignalSpy removed(w.page, &SwitcherSelect::signalAddSwitcher);

    Knob::turn(w.page, -3); // Down x3
    QCOMPARE(w.page->selectedIndex(), 3);
    QCOMPARE(QApplication::focusWidget(), w.page->itemAt(3)->mainButton());
    Knob::turn(w.page, 5); // Up past the first row stays there
    QCOMPARE(w.page->selectedIndex(), 0);
    Knob::turn(w.page, -39);
    QCOMPARE(w.page->selectedIndex(), 39);
    Knob::turn(w.page, -1);
    QCOMPARE(w.page->selectedIndex(), 39);
    // The current row is scrolled into view.
    auto* scroll = w.page->findChild<QScrollArea*>();
    QVERIFY(scroll->verticalScrollBar()->value() > 0);
    QRect const r(w.page->itemAt(39)->mapTo(scroll->viewport(), QPoint()), w.page->itemAt(39)->size());
    QVERIFY(scroll->viewport()->rect().contains(r));

    Knob::press(w.page);
    QCOMPARE(bind.count(), 1);
    QCOMPARE(bind.at(0).at(0).value<std::string>(), std::string("SN1039"));
    QCOMPARE(bind.at(0).at(1).value<std::string>(), std::string("10.0.0.40"));

    Knob::key(w.page, Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), w.page->itemAt(39)->deleteButton());
    Knob::press(w.page, true);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(0).value<std::string>(), std::string("10.0.0.40"));
    QCOMPARE(removed.at(0).at(1).toBool(), true);
    QCOMPARE(int(w.page->switchers().size()), 40); // the host decides
    Knob::key(w.page, Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), w.page->itemAt(39)->mainButton());

    // The selection survives hiding; a cleared list starts again at the first row.
    Knob::turn(w.page, 2);
    w.page->hide();
    w.page->show();
    QCOMPARE(QApplication::focusWidget(), w.page->itemAt(37)->mainButton());
    w.page->clearSwitchers();
    w.page->addSwitchers(switchers(10));
    w.page->hide();
    w.page->show();
    QCOMPARE(QApplication::focusWidget(), w.page->itemAt(0)->mainButton());
    // No switchers: the page itself keeps the knob.
    w.page->clearSwitchers();
    QCOMPARE(QApplication::focusWidget(), w.page);
    Knob::turn(w.page, -1);
    QCOMPARE(QApplication::focusWidget(), w.page);
}

void TestSwitchers::addDeviceFlow()
{
    Window w;
    w.page->addSwitchers(switchers(6));
    QVERIFY(w.start());
    Knob::turn(w.page, -2);
    QCOMPARE(w.page->getCurrentIp(), std::string()); // no add page yet
    w.page->setDeviceName("nothing to name");

    QStringList log;
    connect(w.page, &SwitcherSelect::signalAddDeviceType, [&](bool shown) { log << (shown ? "shown" : "hidden"); });
    connect(w.page, &SwitcherSelect::signalAddSwitcher,
            [&](std::string ip, bool remove) { log << QString::fromStdString(ip) + (remove ? " remove" : " add"); });
    connect(w.page, &SwitcherSelect::signalEditingStarted, [&] { log << "editing"; });
    connect(w.page, &SwitcherSelect::signalEditingFinished, [&] { log << "edited"; });

    Knob::key(w.page, Qt::Key_Z, QStringLiteral("z"));
    QVERIFY(w.page->isAddDeviceShow());
    AddDevice* add = w.page->addDevicePage();
    QCOMPARE(add->geometry(), w.page->rect());
    QCOMPARE(QApplication::focusWidget(), add->ipEdit());
    // Knob keys while the add page is open are its own.
    Knob::turn(w.page, -1);
    QCOMPARE(QApplication::focusWidget(), add->ipEdit());

    Knob::press(add->ipEdit());
    QCOMPARE(QApplication::focusWidget(), add->ipEdit()->field(3));
    for (int i = 0; i < 3; ++i)
        Knob::turn(add->ipEdit(), 1);
    for (QString const octet : {"192", "168", "3", "21"}) {
        QTest::keyClicks(QApplication::focusWidget(), octet);
        Knob::key(add->ipEdit(), Qt::Key_Period, QStringLiteral("."));
    }
    Knob::back(add->ipEdit());
    QCoreApplication::processEvents();
    QCOMPARE(w.page->getCurrentIp(), std::string("192.168.3.21"));
    w.page->setDeviceName("Studio B");
    QCOMPARE(add->deviceName(), QStringLiteral("Studio B"));

    QSignalSpy applied(add, &AddDevice::signalApply);
    Knob::key(add->ipEdit(), Qt::Key_X, QStringLiteral("x"));
    QCOMPARE(applied.count(), 1);
    QCOMPARE(applied.at(0).at(0).value<SwitcherInfo>().name, std::string("Studio B"));
    QVERIFY(!w.page->isAddDeviceShow());
    QCOMPARE(log, QStringList({"shown", "editing", "edited", "192.168.3.21 add", "hidden"}));
    // The knob is back on the row it was on.
    QCOMPARE(QApplication::focusWidget(), w.page->itemAt(2)->mainButton());

    // Opened again: empty; Escape from the frame closes it.
    log.clear();
    w.page->addButton()->click();
    QCOMPARE(w.page->getCurrentIp(), std::string());
    QCOMPARE(add->deviceName(), QString());
    Knob::back(add->ipEdit());
    QVERIFY(!w.page->isAddDeviceShow());
    QCOMPARE(log, QStringList({"shown", "hidden"}));
}

void TestSwitchers::addDeviceRefusesBadAddresses()
{
    AddDevice add;
    add.show();
    QSignalSpy applied(&add, &AddDevice::signalApply);
    QSignalSpy hidden(&add, &AddDevice::signalAddDeviceHide);
    for (QString const bad : {"224.0.0.1", "0.1.2.3", "127.0.0.1", "255.255.255.255", "10.0.0."}) {
        add.resetData();
        add.ipEdit()->setIpText(bad);
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable(QStringLiteral("[AddDevice] Invalid IP address: ") + add.ipEdit()->ipText()));
        QVERIFY(!add.confirm());
        QVERIFY(!add.hintText().isEmpty());
        QVERIFY(add.isVisible());
    }
    QTest::ignoreMessage(QtWarningMsg, "[AddDevice] Invalid IP address: 0.0.0.0");
    add.resetData();
    QVERIFY(!add.confirm()); // nothing typed
    QCOMPARE(applied.count(), 0);
    QCOMPARE(hidden.count(), 0);
    // Typing again clears the hint; a good address is taken.
    QTest::keyClicks(add.ipEdit()->field(0), QStringLiteral("1"));
    QCOMPARE(add.hintText(), QString());
    add.ipEdit()->setIpText(QStringLiteral("172.16.0.9"));
    QVERIFY(add.confirm());
    QCOMPARE(applied.count(), 1);
    QCOMPARE(hidden.count(), 1);
    QVERIFY(!add.isVisible());
}

void TestSwitchers::hideInterfaceAndForwarding()
{
    Window w;
    QVERIFY(w.start());
    QSignalSpy type(w.page, &SwitcherSelect::signalAddDeviceType);
    w.page->addButton()->click();
    QVERIFY(w.page->hideInterface()); // closes the add page: the back is used up
    QVERIFY(!w.page->isAddDeviceShow());
    QVERIFY(w.page->isVisible());
    QCOMPARE(type.count(), 2);
    QCOMPARE(type.at(1).at(0).toBool(), false);
    QVERIFY(!w.page->hideInterface()); // hides the page itself
    QVERIFY(!w.page->isVisible());
    QCOMPARE(type.count(), 2);
}

QTEST_MAIN(TestSwitchers)
#include "tst_switchers.moc"
