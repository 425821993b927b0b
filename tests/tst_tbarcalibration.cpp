// T-bar calibration: the run of seven presses (begin, six readings, end) reading the
// host's keyboard proxy, the button texts and the highlighted step, Escape in the
// middle of a run, and a host without a proxy.
#include "hostwindow.h"
#include "leakcheck.h"

#include <fakehost.h>
#include <knob.h>
#include <lcdwidgets.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>
#include <climits>
#include <map>
#include <string>

using namespace LCD::Widget;

namespace {

struct Page : HostWindow::RowPage<TypeItemTBarCalibration>
{
    Page() : RowPage(700) {}
    QStringList operStates() const
    {
        QStringList out;
        for (int i = 1; i <= 6; ++i)
            out << row->stepLabel(i)->property("isTBarCorrectOperLabel").toString();
        return out;
    }
};

QString oper(int step)
{
    QStringList s;
    for (int i = 1; i <= 6; ++i)
        s << (i == step ? "Oper" : "Normal");
    return s.join(',');
}

} // namespace

class TestTBarCalibration : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void sevenPressesMakeARun();
    void escapeKeepsTheReadings();
    void withoutAProxyEveryReadingIsMinusOne();
    void labelsAndFonts();
};

void TestTBarCalibration::sevenPressesMakeARun()
{
    HostScope scope(true);
    Page page;
    QVERIFY(page.start());
    QStringList log;
    connect(page.row, &TypeItemTBarCalibration::signalTBarCalibrationBegin, [&] { log << "begin"; });
    connect(page.row, &TypeItemTBarCalibration::signalTBarCalibrationEnd, [&] { log << "end"; });
    connect(page.row, &CommonItemType::signalEditStarted, [&] { log << "started"; });
    QPushButton* button = page.row->actionButton();
    QCOMPARE(button->text(), QStringLiteral("Start"));

    page.row->editValue();
    QCOMPARE(QApplication::focusWidget(), button);
    Knob::turn(button, 2); // swallowed: the knob stays on the button
    Knob::turn(button, -2);
    QCOMPARE(QApplication::focusWidget(), button);
    QCOMPARE(page.row->currentStep(), 0);

    Knob::press(button); // 1: begin
    QCOMPARE(log, QStringList({"started", "begin"}));
    QCOMPARE(page.row->currentStep(), 1);
    QCOMPARE(button->text(), QStringLiteral("Next"));
    QCOMPARE(page.operStates().join(','), oper(1));

    int const positions[6] = {1000, 3, 998, 0, 1000, 2};
    for (int i = 0; i < 6; ++i) {
        scope.proxy.position = positions[i];
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("_pKeyBoard->tbarRead().second %1").arg(positions[i])));
        if (i == 5)
            QCOMPARE(button->text(), QStringLiteral("Done")); // shown for the last press
        else
            QCOMPARE(button->text(), QStringLiteral("Next"));
        Knob::press(button, i % 2 == 1); // Return and Enter alike
        if (i < 5) {
            QCOMPARE(page.row->currentStep(), i + 2);
            QCOMPARE(page.operStates().join(','), oper(i + 2));
            QCOMPARE(log.size(), 2);
        }
    }
    QCOMPARE(log, QStringList({"started", "begin", "end"}));
    QCOMPARE(page.row->currentStep(), 0);
    QCOMPARE(button->text(), QStringLiteral("Start"));
    QCOMPARE(page.operStates().join(','), oper(0));
    QCOMPARE(page.row->getCalibrationValue(), std::vector<int>({1000, 3, 998, 0, 1000, 2}));
    QCOMPARE(scope.proxy.reads, 6);

    // The next start clears the readings.
    Knob::press(button);
    QVERIFY(page.row->getCalibrationValue().empty());
}

void TestTBarCalibration::escapeKeepsTheReadings()
{
    HostScope scope(true);
    Page page;
    QVERIFY(page.start());
    QStringList log;
    connect(page.row, &TypeItemTBarCalibration::signalTBarCalibrationBack, [&] { log << "back"; });
    connect(page.row, &CommonItemType::signalCloseEditStatus, [&] { log << "close"; });
    connect(page.row, &TypeItemTBarCalibration::signalTBarCalibrationEnd, [&] { log << "end"; });
    page.row->editValue();
    QPushButton* button = page.row->actionButton();
    Knob::press(button);
    for (int v : {900, 10, 950}) {
        scope.proxy.position = v;
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("_pKeyBoard->tbarRead().second %1").arg(v)));
        Knob::press(button);
    }
    QCOMPARE(page.row->currentStep(), 4);
    Knob::back(button);
    QCOMPARE(log.mid(0, 2), QStringList({"back", "close"}));
    QVERIFY(!log.contains("end"));
    QCOMPARE(page.row->currentStep(), 0);
    QCOMPARE(button->text(), QStringLiteral("Start"));
    QCOMPARE(page.operStates().join(','), oper(0));
    QVERIFY(!button->hasFocus());
    QCOMPARE(QApplication::focusWidget(), &page.window);
    QCOMPARE(page.row->getCalibrationValue(), std::vector<int>({900, 10, 950}));
}

void TestTBarCalibration::withoutAProxyEveryReadingIsMinusOne()
{
    HostScope scope(false); // a host without the keyboard object
    Page page;
    page.row->slotBtnClicked();
    for (int i = 0; i < 6; ++i) {
        QTest::ignoreMessage(QtWarningMsg, "_pKeyBoard is nullptr");
        page.row->slotBtnClicked();
    }
    QCOMPARE(page.row->getCalibrationValue(), std::vector<int>(6, -1));
    QCOMPARE(page.row->currentStep(), 0);

    dov::api::get().host = nullptr; // no host API at all
    TypeItemTBarCalibration bare;
    QTest::ignoreMessage(QtWarningMsg, "_pKeyBoard is nullptr");
    QCOMPARE(bare.getTBarValue(), -1);
}

void TestTBarCalibration::labelsAndFonts()
{
    Page page;
    QCOMPARE(page.row->stepLabel(1)->text(), QStringLiteral("1.Push T-Bar to Top"));
    QCOMPARE(page.row->stepLabel(6)->text(), QStringLiteral("6.Push T-Bar to Bottom"));
    QCOMPARE(page.row->stepLabel(0), nullptr);
    QCOMPARE(page.row->stepLabel(7), nullptr);
    QCOMPARE(page.row->getWidgetRow(), 8);
    QTest::ignoreMessage(QtWarningMsg, "[TypeItemTBarCalibration] setContentFontSize: size 0 refused");
    page.row->setContentFontSize(0);
    // Past any font (the step texts' 9/10 would overflow): refused as well.
    QTest::ignoreMessage(QtWarningMsg, "[TypeItemTBarCalibration] setContentFontSize: size 2147483647 refused");
    page.row->setContentFontSize(INT_MAX);
    QCOMPARE(page.row->actionButton()->styleSheet(), QStringLiteral("QPushButton{font-size:20px;}"));
    QCOMPARE(page.row->contentFontSize(), 20);
    page.row->setContentFontSize(30);
    QCOMPARE(page.row->actionButton()->styleSheet(), QStringLiteral("QPushButton{font-size:30px;}"));
    QCOMPARE(page.row->stepLabel(3)->styleSheet(), QStringLiteral("QLabel{font-size:27px;}"));
    page.row->setContentEnabled(false);
    QVERIFY(!page.row->actionButton()->isEnabled());
    QSignalSpy started(page.row, &CommonItemType::signalEditStarted);
    page.row->editValue(); // nothing to edit with
    QCOMPARE(started.count(), 0);
}

QTEST_MAIN(TestTBarCalibration)
#include "tst_tbarcalibration.moc"
