// The about page: the standard and host rows, updates in place, the knob's walk
// over the rows by level with the current-row marks, Back, rows that grow with
// their text, language changes and bad input.
#include "leakcheck.h"
#include "knob.h"

#include <aboutpage.h>
#include <typekeyvaluetext.h>

#include <QSignalSpy>
#include <QtTest>

using namespace LCD::Widget;

class TestAboutPage : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void init()
    {
        startLeakCheck();
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }
    void standardRowsAndUpdates();
    void knobWalksTheRows();
    void backAndUnusedKeys();
    void longValuesGrowTheirRow();
    void removeKeepsTheCurrentRowSensible();
    void badInput();
};

void TestAboutPage::standardRowsAndUpdates()
{
    AboutPage page;
    QCOMPARE(page.count(), 0);
    QCOMPARE(page.currentIndex(), -1);
    page.setModel(QStringLiteral("VS-840"));
    page.setSoftwareVersion(QStringLiteral("2.4.1"));
    page.setHardwareVersion(QStringLiteral("Rev. C"));
    page.setSerialNumber(QStringLiteral("2301-7788-0042"));
    page.setIpAddress(QStringLiteral("192.168.10.40"));
    page.setMacAddress(QStringLiteral("00:1C:42:9A:7E:10"));
    QCOMPARE(page.count(), 6);
    QStringList keys;
    for (int i = 0; i < page.count(); ++i)
        keys << page.key(i);
    QCOMPARE(keys, (QStringList{QStringLiteral("Model"), QStringLiteral("Software version"),
                                QStringLiteral("Hardware version"), QStringLiteral("Serial number"),
                                QStringLiteral("IP address"), QStringLiteral("MAC address")}));
    QCOMPARE(page.value(3), QStringLiteral("2301-7788-0042"));
    QCOMPARE(page.item(3)->getLabelValue().toString(), QStringLiteral("2301-7788-0042"));
    QCOMPARE(page.item(0)->property("isAboutRow").toBool(), true);
    // The first row is current as soon as there is one.
    QCOMPARE(page.currentIndex(), 0);
    QCOMPARE(page.item(0)->property("isAboutCurrent").toBool(), true);

    // Updates change the row in place.
    page.setSoftwareVersion(QStringLiteral("2.5.0"));
    page.setIpAddress(QString());
    QCOMPARE(page.count(), 6);
    QCOMPARE(page.value(1), QStringLiteral("2.5.0"));
    QCOMPARE(page.item(1)->getLabelValue().toString(), QStringLiteral("2.5.0"));
    QCOMPARE(page.value(4), QString());
    QCOMPARE(page.item(4)->getLabelValue().toString(), QStringLiteral("-")); // shown as "-"

    // Host rows: added at the end, found by key, updated in place.
    QCOMPARE(page.setInfo(QStringLiteral("Uptime"), QStringLiteral("3 d")), 6);
    QCOMPARE(page.setInfo(QStringLiteral("Uptime"), QStringLiteral("4 d")), 6);
    QCOMPARE(page.count(), 7);
    QCOMPARE(page.indexOf(QStringLiteral("Uptime")), 6);
    QCOMPARE(page.indexOf(QStringLiteral("Serial number")), 3);
    QCOMPARE(page.indexOf(QStringLiteral("nothing")), -1);
    QVERIFY(page.setInfoAt(6, QStringLiteral("5 d")));
    QCOMPARE(page.value(6), QStringLiteral("5 d"));
    // A standard key given by the host is the standard row.
    QCOMPARE(page.setInfo(QStringLiteral("Model"), QStringLiteral("VS-880")), 0);
    QCOMPARE(page.value(0), QStringLiteral("VS-880"));

    page.clear();
    QCOMPARE(page.count(), 0);
    QCOMPARE(page.currentIndex(), -1);
    QCOMPARE(page.item(0), nullptr);
}

void TestAboutPage::knobWalksTheRows()
{
    AboutPage page;
    page.resize(600, 200);
    for (int i = 0; i < 12; ++i)
        page.setInfo(QStringLiteral("Key %1").arg(i), QStringLiteral("Value %1").arg(i));
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    page.setFocus();
    QSignalSpy current(&page, &AboutPage::signalCurrentChanged);

    Knob::turnText(&page, -1, QStringLiteral("1")); // Down
    QCOMPARE(page.currentIndex(), 1);
    QCOMPARE(page.item(0)->property("isAboutCurrent").toBool(), false);
    QCOMPARE(page.item(1)->property("isAboutCurrent").toBool(), true);
    Knob::turnText(&page, -1, QStringLiteral("3"));
    QCOMPARE(page.currentIndex(), 4);
    Knob::turnText(&page, 1, QStringLiteral("nan")); // one row
    QCOMPARE(page.currentIndex(), 3);
    Knob::turnText(&page, -1, QStringLiteral("-2.4")); // size of the level, rounded
    QCOMPARE(page.currentIndex(), 5);
    Knob::turnText(&page, -1, QStringLiteral("0"));
    QCOMPARE(page.currentIndex(), 6);
    QCOMPARE(current.count(), 5);
    QCOMPARE(current.last().at(0).toInt(), 6);
    // The view follows the current row.
    QWidget* row = page.item(6);
    QRect const shown(row->mapTo(&page, QPoint(0, 0)), row->size());
    QVERIFY2(page.rect().contains(shown), qPrintable(QStringLiteral("%1,%2").arg(shown.top()).arg(shown.bottom())));
    // Stops at the ends, without a signal when nothing moves.
    Knob::turnText(&page, -1, QStringLiteral("1e9"));
    QCOMPARE(page.currentIndex(), 11);
    int const signals_ = current.count();
    Knob::turn(&page, -2);
    QCOMPARE(page.currentIndex(), 11);
    QCOMPARE(current.count(), signals_);
    Knob::turnText(&page, 1, QStringLiteral("inf"));
    QCOMPARE(page.currentIndex(), 0);
    QCOMPARE(page.item(11)->property("isAboutCurrent").toBool(), false);

    // Knob turns on an empty page do nothing.
    AboutPage empty;
    QSignalSpy none(&empty, &AboutPage::signalCurrentChanged);
    QVERIFY(Knob::key(&empty, Qt::Key_Down));
    QCOMPARE(empty.currentIndex(), -1);
    QVERIFY(none.isEmpty());
}

void TestAboutPage::backAndUnusedKeys()
{
    AboutPage page;
    page.setModel(QStringLiteral("VS-840"));
    QSignalSpy back(&page, &AboutPage::signalBack);
    QVERIFY(Knob::back(&page));
    QCOMPARE(back.count(), 1);
    // The press is not the page's: it goes on to the host.
    QVERIFY(!Knob::press(&page));
    QVERIFY(!Knob::press(&page, true));
    QCOMPARE(back.count(), 1);
}

void TestAboutPage::longValuesGrowTheirRow()
{
    AboutPage page;
    page.resize(400, 300);
    page.setSerialNumber(QStringLiteral("2301"));
    page.setInfo(QStringLiteral("Licences"),
                 QStringLiteral("Streaming encoder, multiview with sixteen windows, chroma keyer pro, macro "
                                "recorder, remote control over the network, tally over IP"));
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    int const shortRow = page.item(0)->height();
    int const longRow = page.item(1)->height();
    QVERIFY2(longRow >= 2 * shortRow - 8, qPrintable(QStringLiteral("%1 vs %2").arg(longRow).arg(shortRow)));
    // Narrower: the long row grows further; a bigger font makes every row taller.
    page.resize(300, 300);
    QCoreApplication::processEvents();
    QVERIFY(page.item(1)->height() > longRow);
    page.setContentFontSize(30);
    QVERIFY(page.item(0)->height() > shortRow);
    QCOMPARE(page.contentFontSize(), 30);
}

void TestAboutPage::removeKeepsTheCurrentRowSensible()
{
    AboutPage page;
    for (int i = 0; i < 5; ++i)
        page.setInfo(QStringLiteral("K%1").arg(i), QStringLiteral("v"));
    page.setCurrentIndex(3);
    QSignalSpy current(&page, &AboutPage::signalCurrentChanged);
    QVERIFY(page.removeInfo(QStringLiteral("K1"))); // above the current row: it moves up with it
    QCOMPARE(page.currentIndex(), 2);
    QCOMPARE(page.key(2), QStringLiteral("K3"));
    QVERIFY(page.removeInfo(QStringLiteral("K4"))); // below: nothing changes
    QCOMPARE(page.currentIndex(), 2);
    QVERIFY(page.removeInfo(QStringLiteral("K3"))); // the current, last row: the one above
    QCOMPARE(page.currentIndex(), 1);
    QCOMPARE(page.item(1)->property("isAboutCurrent").toBool(), true);
    QVERIFY(page.removeInfo(QStringLiteral("K0")));
    QCOMPARE(page.currentIndex(), 0);
    QVERIFY(page.removeInfo(QStringLiteral("K2")));
    QCOMPARE(page.currentIndex(), -1);
    QCOMPARE(current.last().at(0).toInt(), -1);
}

void TestAboutPage::badInput()
{
    AboutPage page;
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setInfo: empty key refused");
    QCOMPARE(page.setInfo(QString(), QStringLiteral("x")), -1);
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setInfo: empty key refused");
    QCOMPARE(page.setInfo(QStringLiteral("  "), QStringLiteral("x")), -1);
    QCOMPARE(page.count(), 0);
    page.setModel(QStringLiteral("VS-840"));
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setInfoAt: no row 5 (1 rows)");
    QVERIFY(!page.setInfoAt(5, QStringLiteral("x")));
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setCurrentIndex: no row -2 (1 rows)");
    page.setCurrentIndex(-2);
    QCOMPARE(page.currentIndex(), 0);
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] removeInfo: no row \"Uptime\"");
    QVERIFY(!page.removeInfo(QStringLiteral("Uptime")));
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setContentFontSize: size 0 refused");
    page.setContentFontSize(0);
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setContentFontSize: size -4 refused");
    page.setContentFontSize(-4);
    QCOMPARE(page.contentFontSize(), 20);
    QCOMPARE(page.key(9), QString());
    QCOMPARE(page.value(-1), QString());
    for (int i = page.count(); i < AboutPage::kMaxRows; ++i)
        page.setInfo(QStringLiteral("K%1").arg(i), QString());
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setInfo: at most 256 rows");
    QCOMPARE(page.setInfo(QStringLiteral("one too many"), QString()), -1);
    QTest::ignoreMessage(QtWarningMsg, "[AboutPage] setSerialNumber: at most 256 rows");
    page.setSerialNumber(QStringLiteral("x"));
    QCOMPARE(page.count(), AboutPage::kMaxRows);
}

QTEST_MAIN(TestAboutPage)
#include "tst_aboutpage.moc"
