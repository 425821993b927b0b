// The network settings page: filling it from the host without applying, DHCP applying
// at once, manual values applied with the button or key X, restore defaults with Z,
// the knob's walk through the chooser and the three editors, and the edit signals.
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>

#include <QAbstractItemView>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using namespace LCD::Widget;

namespace {

NetworkInfo manual()
{
    NetworkInfo info;
    info.mode = 0;
    info.ip = "192.168.10.20";
    info.mask = "255.255.255.0";
    info.gateway = "192.168.10.1";
    info.mac = "00:1c:a2:10:20:30";
    return info;
}

struct Window
{
    QWidget window;
    NetworkSettings* page = new NetworkSettings(&window);
    Window()
    {
        auto* l = new QVBoxLayout(&window);
        l->addWidget(page);
        window.resize(800, 420);
    }
    bool start()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        return QTest::qWaitForWindowActive(&window);
    }
};

} // namespace

class TestNetworkSettings : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void setNetworkInfoShowsWithoutApplying();
    void dhcpAppliesAtOnce();
    void applyAndRestoreKeys();
    void knobWalksTheEditors();
    void editSignalsFollowTheEditors();
    void languageChangeKeepsTheMode();
};

void TestNetworkSettings::languageChangeKeepsTheMode()
{
    Window w;
    NetworkInfo dhcp = manual();
    dhcp.mode = 1;
    w.page->setNetworkInfo(dhcp);
    QSignalSpy applied(w.page, &NetworkSettings::signalApplyNetwork);
    w.page->applyButton()->setText(QString());
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(w.page, &change);
    QCOMPARE(w.page->applyButton()->text(), QStringLiteral("Apply"));
    QCOMPARE(w.page->modeChooser()->itemText(0), QStringLiteral("Manual"));
    QCOMPARE(w.page->modeChooser()->itemText(1), QStringLiteral("DHCP"));
    QCOMPARE(w.page->modeChooser()->currentIndex(), 1);
    QCOMPARE(applied.count(), 0);
}

void TestNetworkSettings::setNetworkInfoShowsWithoutApplying()
{
    Window w;
    QSignalSpy applied(w.page, &NetworkSettings::signalApplyNetwork);
    NetworkInfo dhcp = manual();
    dhcp.mode = 1;
    w.page->setNetworkInfo(dhcp);
    QCOMPARE(applied.count(), 0);
    QCOMPARE(w.page->modeChooser()->currentIndex(), 1);
    QVERIFY(!w.page->ipEdit()->isEnabled());
    QVERIFY(!w.page->maskEdit()->isEnabled());
    QVERIFY(!w.page->gatewayEdit()->isEnabled());
    QVERIFY(!w.page->applyButton()->isEnabled());
    QVERIFY(!w.page->resetButton()->isEnabled());
    QCOMPARE(w.page->ipEdit()->ipText(), QStringLiteral("192.168.10.20"));
    QCOMPARE(w.page->macText(), QStringLiteral("00:1c:a2:10:20:30"));

    NetworkInfo other = manual();
    other.mode = 7; // any non-zero mode is DHCP
    w.page->setNetworkInfo(other);
    QCOMPARE(w.page->modeChooser()->currentIndex(), 1);
    w.page->setNetworkInfo(manual());
    QCOMPARE(applied.count(), 0);
    QVERIFY(w.page->ipEdit()->isEnabled());
    QVERIFY(w.page->applyButton()->isEnabled());
}

void TestNetworkSettings::dhcpAppliesAtOnce()
{
    Window w;
    w.page->setNetworkInfo(manual());
    QVERIFY(w.start());
    QSignalSpy applied(w.page, &NetworkSettings::signalApplyNetwork);
    QCOMPARE(QApplication::focusWidget(), w.page->modeChooser());
    // Open the chooser, turn to DHCP, press.
    Knob::press(w.page->modeChooser());
    QVERIFY(w.page->modeChooser()->view()->isVisible());
    Knob::turn(w.page->modeChooser(), -1); // Down: the popup's cursor, not the page
    Knob::press(w.page->modeChooser());
    QCOMPARE(applied.count(), 1);
    auto const info = applied.at(0).at(0).value<NetworkInfo>();
    QCOMPARE(info.mode, 1);
    QCOMPARE(info.ip, std::string("192.168.10.20"));
    QCOMPARE(info.mask, std::string("255.255.255.0"));
    QCOMPARE(info.gateway, std::string("192.168.10.1"));
    QCOMPARE(info.mac, std::string("00:1c:a2:10:20:30"));
    QVERIFY(!w.page->ipEdit()->isEnabled());
    // Back to manual: nothing is applied until Apply.
    w.page->modeChooser()->setCurrentIndex(0);
    QCOMPARE(applied.count(), 1);
    QVERIFY(w.page->ipEdit()->isEnabled());
}

void TestNetworkSettings::applyAndRestoreKeys()
{
    Window w;
    w.page->setNetworkInfo(manual());
    QVERIFY(w.start());
    QSignalSpy applied(w.page, &NetworkSettings::signalApplyNetwork);
    QSignalSpy reset(w.page, &NetworkSettings::signalResetNetwork);
    w.page->ipEdit()->setIpText(QStringLiteral("10.0.0.300")); // IPEdit keeps what it accepts
    Knob::key(w.page->modeChooser(), Qt::Key_X, QStringLiteral("x"));
    QCOMPARE(applied.count(), 1);
    QCOMPARE(applied.at(0).at(0).value<NetworkInfo>().ip, std::string("10.0.0.0"));
    QCOMPARE(applied.at(0).at(0).value<NetworkInfo>().mode, 0);

    w.page->maskEdit()->setFocus();
    Knob::key(w.page->maskEdit(), Qt::Key_Z, QStringLiteral("z"));
    QCOMPARE(reset.count(), 1);
    QCOMPARE(QApplication::focusWidget(), w.page->modeChooser());

    // In DHCP both buttons are disabled: the keys do nothing.
    NetworkInfo dhcp = manual();
    dhcp.mode = 1;
    w.page->setNetworkInfo(dhcp);
    Knob::key(w.page->modeChooser(), Qt::Key_X, QStringLiteral("x"));
    Knob::key(w.page->modeChooser(), Qt::Key_Z, QStringLiteral("z"));
    QCOMPARE(applied.count(), 1);
    QCOMPARE(reset.count(), 1);
    // And the knob can't leave the chooser for the disabled editors.
    Knob::turn(w.page->modeChooser(), -1);
    QCOMPARE(QApplication::focusWidget(), w.page->modeChooser());
}

void TestNetworkSettings::knobWalksTheEditors()
{
    Window w;
    w.page->setNetworkInfo(manual());
    QVERIFY(w.start());
    QWidget* chooser = w.page->modeChooser();
    Knob::turn(chooser, -1);
    QCOMPARE(QApplication::focusWidget(), w.page->ipEdit());
    Knob::turn(w.page, -1);
    QCOMPARE(QApplication::focusWidget(), w.page->maskEdit());
    Knob::turn(w.page, -3); // stops at the gateway
    QCOMPARE(QApplication::focusWidget(), w.page->gatewayEdit());
    // Press: typing starts at the last octet; Up walks the octets, then the editors.
    Knob::press(w.page);
    QCOMPARE(QApplication::focusWidget(), w.page->gatewayEdit()->field(3));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("254"));
    Knob::press(w.page); // Enter ends the typing (no walking to the previous octet here)
    QCOMPARE(QApplication::focusWidget(), w.page->gatewayEdit());
    QCOMPARE(w.page->gatewayEdit()->ipText(), QStringLiteral("192.168.10.254"));
    Knob::turn(w.page, 1);
    QCOMPARE(QApplication::focusWidget(), w.page->maskEdit());
    w.page->maskEdit()->field(0)->setFocus();
    QCOMPARE(QApplication::focusWidget(), w.page->maskEdit()->field(0));
    Knob::turn(w.page, 1); // from the first octet on to the editor above
    QCOMPARE(QApplication::focusWidget(), w.page->ipEdit());
    Knob::turn(w.page, 5);
    QCOMPARE(QApplication::focusWidget(), chooser);
    // Hidden, the page lets go of the knob; shown, the chooser takes it.
    w.page->hide();
    QVERIFY(!chooser->hasFocus());
    w.page->show();
    QCOMPARE(QApplication::focusWidget(), chooser);
}

void TestNetworkSettings::editSignalsFollowTheEditors()
{
    Window w;
    w.page->setNetworkInfo(manual());
    QVERIFY(w.start());
    QStringList log;
    connect(w.page, &NetworkSettings::signalEditingStarted, [&] { log << "started"; });
    connect(w.page, &NetworkSettings::signalEditingFinished, [&] { log << "finished"; });
    w.page->ipEdit()->setFocus();
    Knob::press(w.page);
    Knob::turn(w.page, 2); // octet 4 -> 2: one edit
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({"started"}));
    Knob::back(w.page);
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({"started", "finished"}));
    QCOMPARE(QApplication::focusWidget(), w.page->ipEdit());
}

QTEST_MAIN(TestNetworkSettings)
#include "tst_networksettings.moc"
