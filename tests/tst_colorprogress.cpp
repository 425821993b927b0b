// The colour row (channels on the knob, the swatch, colour texts) and the progress
// row (percentage inside the bar, 64-bit arithmetic, bad ranges and values).
#include "leakcheck.h"

#include <editorpage.h>
#include <knob.h>
#include <lcdwidgets.h>

#include <QLoggingCategory>
#include <QProgressBar>
#include <QSignalSpy>
#include <QtTest>
#include <limits>

using namespace LCD::Widget;
using EditorTest::Page;
using EditorTest::QtWarningWatch;
using EditorTest::Recorder;

class TestColorProgress : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        QtWarningWatch::install();
    }
    void cleanup()
    {
        QCOMPARE(QtWarningWatch::count(), 0);
        endLeakCheck();
    }

    void colorChannelsOnTheKnob();
    void colorValues();
    void colorBadInput();
    void progressPercent_data();
    void progressPercent();
    void progressIsNotEdited();
    void progressBadInput();
};

void TestColorProgress::colorChannelsOnTheKnob()
{
    Page page;
    auto* row = page.add(new TypeColorAdjust(&page));
    row->setLabelValue(QColor(250, 0, 128));
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    QCOMPARE(row->currentChannel(), 0);
    Knob::turn(row, 10); // saturates at 255
    Knob::press(row);
    Knob::turn(row, -1); // green stays at 0
    Knob::press(row);
    QCOMPARE(row->currentChannel(), 2);
    Knob::turn(row, 1, 0.1); // a share of 0..255: 25
    QCOMPARE(page.released, 0);
    Knob::press(row); // after blue the edit ends
    QStringList expected{"started"};
    for (int r = 251; r <= 255; ++r)
        expected << QStringLiteral("value:#%1%2").arg(r, 2, 16, QLatin1Char('0')).arg(QStringLiteral("0080"));
    expected << "value:#ff0099"
             << "close"
             << "finished";
    QCOMPARE(rec.log, expected);
    QCOMPARE(row->color(), QColor(255, 0, 153));
    QCOMPARE(row->getLabelValue().value<QColor>(), QColor(255, 0, 153));
    QVERIFY(page.hasFocus());
    // Escape ends at once; the value reached stays.
    rec.log.clear();
    row->editValue();
    Knob::turn(row, -1);
    Knob::back(row);
    QCOMPARE(rec.log, QStringList({"started", "value:#fe0099", "close", "finished"}));
}

void TestColorProgress::colorValues()
{
    TypeColorAdjust row;
    QSignalSpy changed(&row, &CommonItemType::signalValueChanged);
    row.setLabelValue(QStringLiteral("#ff8a00"));
    QCOMPARE(row.color(), QColor(255, 138, 0));
    row.setLabelValue(QStringLiteral("#0f0"));
    QCOMPARE(row.color(), QColor(0, 255, 0));
    row.setLabelValue(QStringLiteral("orange"));
    QCOMPARE(row.color(), QColor(255, 165, 0));
    // The panel is opaque: alpha is dropped; other specs are converted.
    row.setColor(QColor(10, 20, 30, 40));
    QCOMPARE(row.color(), QColor(10, 20, 30));
    QCOMPARE(row.color().alpha(), 255);
    row.setColor(QColor::fromHsv(0, 255, 255));
    QCOMPARE(row.color(), QColor(255, 0, 0));
    QCOMPARE(changed.count(), 0); // the host's values are not echoed
    row.setSingleStep(5);
    row.show();
    QApplication::setActiveWindow(&row);
    row.setLabelValue(QColor(0, 0, 0));
    row.editValue();
    Knob::turn(&row, 2);
    QCOMPARE(row.color(), QColor(10, 0, 0));
    Knob::back(&row);
    QCOMPARE(row.currentChannel(), -1);
}

void TestColorProgress::colorBadInput()
{
    TypeColorAdjust row;
    row.setColor(QColor(1, 2, 3));
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setLabelValue: \"not a colour\" is not a colour, ignored");
    row.setLabelValue(QStringLiteral("not a colour"));
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setLabelValue: \"\" is not a colour, ignored");
    row.setLabelValue(QVariant());
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setLabelValue: \"#12345\" is not a colour, ignored");
    row.setLabelValue(QStringLiteral("#12345"));
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setColor: the colour is not valid, ignored");
    row.setColor(QColor());
    QCOMPARE(row.color(), QColor(1, 2, 3));
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setSingleStep: 0 is not a step of 0..255, ignored");
    row.setSingleStep(0.0f);
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setSingleStep: 256 is not a step of 0..255, ignored");
    row.setSingleStep(256.0f);
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setSingleStep: nan is not a step of 0..255, ignored");
    row.setSingleStep(std::numeric_limits<float>::quiet_NaN());
    QTest::ignoreMessage(QtWarningMsg, "[TypeColorAdjust] setContentFontSize: 0 is not a size, ignored");
    row.setContentFontSize(0);
}

void TestColorProgress::progressPercent_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("percent");
    QTest::addColumn<bool>("finished");
    QTest::newRow("0..100 at 42") << 0 << 100 << 42 << 42 << false;
    QTest::newRow("rounded down") << 0 << 3 << 2 << 66 << false;
    QTest::newRow("99.9% is not done") << 0 << 1000 << 999 << 99 << false;
    QTest::newRow("the end") << 0 << 1000 << 1000 << 100 << true;
    QTest::newRow("offset range") << 50 << 150 << 75 << 25 << false;
    QTest::newRow("below the range") << 0 << 100 << -7 << 0 << false;
    QTest::newRow("above the range") << 0 << 100 << 700 << 100 << true;
    QTest::newRow("full int span") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max() << 0 << 50
                                   << false;
    QTest::newRow("full int span, end") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max()
                                        << std::numeric_limits<int>::max() << 100 << true;
}

void TestColorProgress::progressPercent()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, percent);
    QFETCH(bool, finished);
    TypeIntProgressBar row;
    row.setRange(minimum, maximum);
    row.setValue(value);
    QCOMPARE(row.percent(), percent);
    QCOMPARE(row.text(), QStringLiteral("%1%").arg(percent));
    QCOMPARE(row.progressBar()->text(), QStringLiteral("%1%").arg(percent));
    QCOMPARE(row.progressBar()->property("progressFinished").toBool(), finished);
    QVERIFY(row.progressBar()->value() >= 0 && row.progressBar()->value() <= 1000);
}

void TestColorProgress::progressIsNotEdited()
{
    Page page;
    auto* row = page.add(new TypeIntProgressBar(&page));
    row->setLabelValue(QVariant(57.9));
    QCOMPARE(row->value(), 57);
    QCOMPARE(row->getLabelValue(), QVariant(57));
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    QVERIFY(rec.log.isEmpty());
    QVERIFY(page.hasFocus());
    // Finished, then back: the state property follows.
    row->setValue(100);
    QVERIFY(row->progressBar()->property("progressFinished").toBool());
    row->setValue(10);
    QVERIFY(!row->progressBar()->property("progressFinished").toBool());
    row->setLabelValue(QStringLiteral("1e12"));
    QCOMPARE(row->value(), 100);
}

void TestColorProgress::progressBadInput()
{
    TypeIntProgressBar row;
    row.setValue(30);
    QTest::ignoreMessage(QtWarningMsg, "[TypeIntProgressBar] setRange: 5..5 is not a range, ignored");
    row.setRange(5, 5);
    QTest::ignoreMessage(QtWarningMsg, "[TypeIntProgressBar] setRange: 9..1 is not a range, ignored");
    row.setRange(9, 1);
    QCOMPARE(row.minimum(), 0);
    QCOMPARE(row.maximum(), 100);
    QTest::ignoreMessage(QtWarningMsg, "[TypeIntProgressBar] setLabelValue: value is not a number, ignored");
    row.setLabelValue(QStringLiteral("half"));
    QTest::ignoreMessage(QtWarningMsg, "[TypeIntProgressBar] setLabelValue: value is not a number, ignored");
    row.setLabelValue(QVariant(std::numeric_limits<double>::quiet_NaN()));
    QCOMPARE(row.value(), 30);
    QTest::ignoreMessage(QtWarningMsg, "[TypeIntProgressBar] setBarWidth: 0 is not a width, ignored");
    row.setBarWidth(0);
    row.setRange(-1.0e12f, 1.0e12f); // truncated to the int limits
    QCOMPARE(row.minimum(), std::numeric_limits<int>::min());
    QCOMPARE(row.maximum(), std::numeric_limits<int>::max());
}

QTEST_MAIN(TestColorProgress)
#include "tst_colorprogress.moc"
