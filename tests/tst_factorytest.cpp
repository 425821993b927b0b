// Factory test page: each test driven by real knob keys through the page (list, test,
// result mark, summary, focus back to the list), the full-screen fills and the verdict,
// the T-bar read through the host's keyboard proxy, and refused bad input.
#include "leakcheck.h"

#include <fakehost.h>
#include <knob.h>
#include <lcdwidgets.h>

#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>
#include <map>
#include <string>

using namespace LCD::Widget;

namespace {


// The host's page: a window whose focus is the factory test page's list.
struct Page
{
    QWidget window;
    FactoryTestFrame* frame = nullptr;
    QStringList log;
    int escapesReachingHost = 0;
    Page()
    {
        auto* l = new QVBoxLayout(&window);
        frame = new FactoryTestFrame(&window);
        l->addWidget(frame);
        window.resize(800, 330);
        QObject::connect(frame, &FactoryTestFrame::signalTestStarted, &window,
                         [this](int t) { log << QStringLiteral("start %1").arg(t); });
        QObject::connect(frame, &FactoryTestFrame::signalTestFinished, &window,
                         [this](int t, int r) { log << QStringLiteral("end %1 %2").arg(t).arg(r); });
    }
    bool start()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        frame->setFocus();
        return frame->leftFrame()->hasFocus();
    }
    FactoryTestLeftFrame* left() const { return frame->leftFrame(); }
    FactoryTestRightFrame* right() const { return frame->rightFrame(); }
    // Walks the list to a test with the knob and presses.
    void open(FactoryTestItem test)
    {
        Knob::turn(&window, kFactoryTestCount); // Up to the top
        Knob::turn(&window, -int(test));         // Down: a negative count sends Key_Down
        Knob::press(&window);
    }
};

int R(FactoryTestResult r) { return int(r); }

} // namespace

class TestFactoryTest : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void listWalksAndEscapeGoesToHost();
    void keysTest();
    void keysTestFailsOnSecondEscape();
    void knobTestCountsByDirection();
    void colourFillsAndVerdict();
    void patternsLeftWithoutVerdictKeepMark();
    void tbarTestReadsProxy();
    void tbarTestWithoutProxy();
    void summaryAndBadInput();
    void droppedTestEndsNotTested();
};

void TestFactoryTest::listWalksAndEscapeGoesToHost()
{
    Page p;
    QVERIFY(p.start());
    QCOMPARE(p.left()->currentTest(), 0);
    Knob::turn(&p.window, -2);
    QCOMPARE(p.left()->currentTest(), 2);
    Knob::turn(&p.window, -10);
    QCOMPARE(p.left()->currentTest(), kFactoryTestCount - 1);
    Knob::turn(&p.window, 1);
    QCOMPARE(p.left()->currentTest(), kFactoryTestCount - 2);
    // The list does not use Escape: it goes on to the host's page.
    QVERIFY(!Knob::back(&p.window));
    QVERIFY(p.log.isEmpty());
    QCOMPARE(p.frame->isTestRunning(), false);
}

void TestFactoryTest::keysTest()
{
    Page p;
    QVERIFY(p.start());
    p.open(FactoryTestItem::Keys);
    QCOMPARE(p.log, QStringList{"start 0"});
    QVERIFY(p.right()->hasFocus());
    // During the test the knob keys are the test's, not the list's.
    Knob::turn(&p.window, 1);
    Knob::turn(&p.window, -3);
    QCOMPARE(p.left()->currentTest(), 0);
    QCOMPARE(p.right()->seenKeys(), (QVector<int>{Qt::Key_Up, Qt::Key_Down}));
    QVERIFY(p.right()->bodyText().contains(QString::fromUtf8("\u2191 \u2713")));
    Knob::press(&p.window);
    QCOMPARE(p.frame->isTestRunning(), true);
    Knob::back(&p.window); // the last key missing: passes
    QCOMPARE(p.log, (QStringList{"start 0", QStringLiteral("end 0 %1").arg(R(FactoryTestResult::Passed))}));
    QCOMPARE(p.frame->result(0), FactoryTestResult::Passed);
    QVERIFY(p.left()->hasFocus());
    QCOMPARE(p.left()->findChildren<QLabel*>().at(1)->property("factoryTestResult").toString(), QStringLiteral("pass"));
}

void TestFactoryTest::keysTestFailsOnSecondEscape()
{
    Page p;
    QVERIFY(p.start());
    p.right()->setExpectedKeys({Qt::Key_Escape, Qt::Key_A});
    p.open(FactoryTestItem::Keys);
    // A key that is not tested goes on to the host.
    QVERIFY(!Knob::key(&p.window, Qt::Key_B));
    Knob::back(&p.window);
    QCOMPARE(p.frame->isTestRunning(), true);
    Knob::back(&p.window);
    QCOMPARE(p.frame->result(0), FactoryTestResult::Failed);
    QVERIFY(p.left()->hasFocus());
}

void TestFactoryTest::knobTestCountsByDirection()
{
    Page p;
    QVERIFY(p.start());
    p.right()->setKnobTarget(3);
    p.open(FactoryTestItem::Knob);
    QCOMPARE(p.right()->runningTest(), int(FactoryTestItem::Knob));
    Knob::turn(&p.window, 5, 7.5);
    Knob::turn(&p.window, -2);
    QCOMPARE(p.right()->knobUpCount(), 5);
    QCOMPARE(p.right()->knobDownCount(), 2);
    QVERIFY(p.right()->bodyText().contains("Down: 2 / 3"));
    Knob::turn(&p.window, -1, 0.25);
    QCOMPARE(p.frame->result(1), FactoryTestResult::Passed);
    QVERIFY(p.left()->hasFocus());

    // Leaving before both directions reached the target fails it.
    Knob::press(&p.window);
    QCOMPARE(p.right()->knobUpCount(), 0);
    Knob::turn(&p.window, 4);
    Knob::back(&p.window);
    QCOMPARE(p.frame->result(1), FactoryTestResult::Failed);
}

void TestFactoryTest::colourFillsAndVerdict()
{
    Page p;
    QVERIFY(p.start());
    QSignalSpy full(p.right(), &FactoryTestRightFrame::signalFullScreen);
    p.open(FactoryTestItem::ScreenColours);
    QVERIFY(p.right()->isFullScreen());
    QVERIFY(p.left()->isHidden());
    QVERIFY(p.right()->hasFocus());
    QCOMPARE(p.right()->property("isFactoryTestFill").toBool(), true);
    QCOMPARE(p.right()->fillColor(), QColor(Qt::red));

    // The fill is painted over the whole page.
    QCoreApplication::processEvents();
    QCOMPARE(p.right()->geometry(), p.frame->rect());
    QImage shot = p.right()->grab().toImage();
    QCOMPARE(shot.pixelColor(shot.width() / 2, shot.height() / 2), QColor(Qt::red));

    Knob::turn(&p.window, 1);
    QCOMPARE(p.right()->fillColor(), QColor(Qt::green));
    Knob::turn(&p.window, -3); // stops at the first
    QCOMPARE(p.right()->fillIndex(), 0);
    for (int i = 0; i < p.right()->fillCount() - 1; ++i)
        Knob::press(&p.window);
    QCOMPARE(p.right()->fillColor(), QColor(Qt::black));
    QVERIFY(!p.right()->isAskingVerdict());
    Knob::press(&p.window);
    QVERIFY(p.right()->isAskingVerdict());
    QVERIFY(!p.right()->isFullScreen());
    QVERIFY(!p.left()->isHidden());
    QVERIFY(p.right()->hasFocus());
    Knob::turn(&p.window, -1); // Fail
    Knob::press(&p.window);
    QCOMPARE(p.frame->result(2), FactoryTestResult::Failed);
    QCOMPARE(full.count(), 2);
    QVERIFY(p.left()->hasFocus());
}

void TestFactoryTest::patternsLeftWithoutVerdictKeepMark()
{
    Page p;
    QVERIFY(p.start());
    p.left()->setResult(3, FactoryTestResult::Passed);
    p.open(FactoryTestItem::ScreenPatterns);
    QCOMPARE(p.right()->fillCount(), 4);
    QVERIFY(!p.right()->fillColor().isValid());
    Knob::turn(&p.window, 2);
    QCOMPARE(p.right()->fillIndex(), 2);
    Knob::back(&p.window);
    QCOMPARE(p.log.last(), QStringLiteral("end 3 %1").arg(R(FactoryTestResult::NotTested)));
    QCOMPARE(p.frame->result(3), FactoryTestResult::Passed);
    QVERIFY(!p.right()->isFullScreen());
    QVERIFY(p.left()->isVisible());
    QVERIFY(p.left()->hasFocus());
}

void TestFactoryTest::tbarTestReadsProxy()
{
    HostScope host(true, 500);
    Page p;
    QVERIFY(p.start());
    p.right()->setTBarRange(100, 900);
    p.open(FactoryTestItem::TBar);
    QCOMPARE(p.right()->tbarMinimum(), 500);
    QCOMPARE(host.proxy.reads, 1);
    host.proxy.position = 80;
    QTRY_COMPARE(p.right()->tbarMinimum(), 80);
    QVERIFY(p.right()->bodyText().contains("T-bar: 80"));
    QCOMPARE(p.frame->isTestRunning(), true);
    host.proxy.position = 950;
    QTRY_COMPARE(p.frame->result(4), FactoryTestResult::Passed);
    QCOMPARE(p.right()->tbarMaximum(), 950);
    // Polling stops with the test.
    int const reads = host.proxy.reads;
    QTest::qWait(120);
    QCOMPARE(host.proxy.reads, reads);

    // A T-bar reporting around zero: readings below zero count like any other.
    p.right()->setTBarRange(-100, 100);
    host.proxy.position = -40;
    Knob::press(&p.window); // the same test again
    QCOMPARE(p.right()->tbarMinimum(), -40);
    host.proxy.position = -120;
    QTRY_COMPARE(p.right()->tbarMinimum(), -120);
    host.proxy.position = -60;
    QTest::qWait(80);
    QCOMPARE(p.right()->tbarMinimum(), -120);
    QCOMPARE(p.frame->isTestRunning(), true);
    Knob::back(&p.window);
    QCOMPARE(p.frame->result(4), FactoryTestResult::Failed);
}

void TestFactoryTest::tbarTestWithoutProxy()
{
    HostScope host(false, 500);
    Page p;
    QVERIFY(p.start());
    QTest::ignoreMessage(QtWarningMsg, "_pKeyBoard is nullptr");
    p.open(FactoryTestItem::TBar);
    QVERIFY(p.right()->bodyText().contains("No T-bar reading"));
    QTest::qWait(80); // no polling, no more warnings
    Knob::back(&p.window);
    QCOMPARE(p.frame->result(4), FactoryTestResult::Failed);
}

void TestFactoryTest::summaryAndBadInput()
{
    FactoryTestFrame frame;
    FactoryTestLeftFrame* left = frame.leftFrame();
    QSignalSpy summary(&frame, &FactoryTestFrame::signalSummaryChanged);
    QCOMPARE(left->summaryText(), QStringLiteral("Passed 0, failed 0, not tested 5"));
    for (int i = 0; i < kFactoryTestCount; ++i)
        left->setResult(i, FactoryTestResult::Passed);
    QCOMPARE(summary.count(), kFactoryTestCount);
    QCOMPARE(summary.last(), (QList<QVariant>{5, 0, 0}));
    QVERIFY(left->summaryText().endsWith("All tests passed"));
    left->setResult(2, FactoryTestResult::Failed);
    QVERIFY(left->summaryText().endsWith("Test failed"));
    left->setResult(2, FactoryTestResult::Failed);
    QCOMPARE(summary.count(), kFactoryTestCount + 1);
    frame.resetResults();
    QCOMPARE(left->untestedCount(), 5);

    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestLeftFrame] test index out of range: 5");
    left->setResult(5, FactoryTestResult::Passed);
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestLeftFrame] unknown result: 7");
    left->setResult(0, FactoryTestResult(7));
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestLeftFrame] test index out of range: -1");
    QCOMPARE(left->result(-1), FactoryTestResult::NotTested);
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestLeftFrame] test index out of range: 9");
    left->setCurrentTest(9);
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestFrame] test index out of range: -3");
    frame.startTest(-3);
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestRightFrame] test index out of range: 5");
    frame.rightFrame()->startTest(5);
    QCOMPARE(frame.isTestRunning(), false);

    FactoryTestRightFrame* right = frame.rightFrame();
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestRightFrame] no keys to test");
    right->setExpectedKeys({});
    QCOMPARE(right->expectedKeys().size(), 4);
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestRightFrame] invalid knob target: 0");
    right->setKnobTarget(0);
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestRightFrame] invalid T-bar range: 10 10");
    right->setTBarRange(10, 10);
    QCOMPARE(right->knobTarget(), 5);
    QCOMPARE(factoryTestName(5), QString());

    // Finishing with nothing running does nothing; a page destroyed mid-test is fine.
    QSignalSpy finished(right, &FactoryTestRightFrame::signalTestFinished);
    right->finishTest(FactoryTestResult::Passed);
    QCOMPARE(finished.count(), 0);
    auto* running = new FactoryTestFrame;
    {
        HostScope host(true, 500);
        running->startTest(int(FactoryTestItem::TBar));
        delete running;
    }
}

void TestFactoryTest::droppedTestEndsNotTested()
{
    // Starting a test while another runs ends the other without a verdict, before the
    // new one starts; the mark it earned earlier stays.
    Page p;
    QVERIFY(p.start());
    p.left()->setResult(int(FactoryTestItem::Knob), FactoryTestResult::Passed);
    p.frame->startTest(int(FactoryTestItem::Knob));
    Knob::turn(&p.window, 2);
    QCOMPARE(p.right()->knobUpCount(), 2);
    p.frame->startTest(int(FactoryTestItem::Keys));
    QString const notTested = QString::number(R(FactoryTestResult::NotTested));
    QCOMPARE(p.log, (QStringList{"start 1", "end 1 " + notTested, "start 0"}));
    QCOMPARE(p.right()->runningTest(), int(FactoryTestItem::Keys));
    QCOMPARE(p.frame->result(int(FactoryTestItem::Knob)), FactoryTestResult::Passed);
    QVERIFY(p.right()->hasFocus());

    // The same test again starts afresh; a bad index leaves the running one alone.
    QSignalSpy finished(p.right(), &FactoryTestRightFrame::signalTestFinished);
    p.right()->startTest(int(FactoryTestItem::Keys));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.at(0), (QVariantList{int(FactoryTestItem::Keys), R(FactoryTestResult::NotTested)}));
    QTest::ignoreMessage(QtWarningMsg, "[FactoryTestRightFrame] test index out of range: 7");
    p.right()->startTest(7);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(p.right()->runningTest(), int(FactoryTestItem::Keys));
}

QTEST_MAIN(TestFactoryTest)
#include "tst_factorytest.moc"
