// The multi-value spin rows: the field-to-field walk of MultiSpinBox with its
// per-field ranges, steps and signals, and the list walk of MultipleSpinBox with
// the edit of one item at a time; both refuse bad indexes, ranges and values.
#include "leakcheck.h"

#include <editorpage.h>
#include <knob.h>
#include <lcdwidgets.h>

#include <QLoggingCategory>
#include <QSignalSpy>
#include <QtTest>
#include <limits>

using namespace LCD::Widget;
using EditorTest::Page;
using EditorTest::QtWarningWatch;
using EditorTest::Recorder;

class TestMultiSpin : public LeakCheckedTest
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

    void multiWalksTheFields();
    void multiEscapeEndsAtOnce();
    void multiFieldRangesAndSteps();
    void multiLabelValue();
    void multiBadInput();
    void multipleWalkAndItemEdit();
    void multipleItemsKeepTheirOwnRules();
    void multipleBadInput();
};

void TestMultiSpin::multiWalksTheFields()
{
    Page page;
    auto* row = page.add(new MultiSpinBox(&page));
    QCOMPARE(row->captions(), QStringList({"X", "Y", "W", "H"}));
    row->setRange(0, 1920);
    row->setLabelValue(QVariantList{10, 20, 640, 360});
    QVERIFY(page.start());
    Recorder rec(row);
    QCOMPARE(row->currentField(), -1);
    row->editValue();
    row->editValue(); // a second press while editing starts nothing
    QCOMPARE(row->currentField(), 0);
    QVERIFY(row->spinBox(0)->hasFocus());
    Knob::turn(row, 2);
    Knob::press(row);
    QCOMPARE(row->currentField(), 1);
    QVERIFY(row->spinBox(1)->hasFocus());
    Knob::turn(row, -1);
    Knob::press(row);
    Knob::press(row);
    Knob::turn(row, 1, 0.5); // half the span (capped at 8000): 960 more
    QCOMPARE(page.released, 0);
    Knob::press(row); // past the last field: the edit ends
    QCOMPARE(rec.log, QStringList({"started", "field0:11", "value:11,20,640,360", "field0:12",
                                   "value:12,20,640,360", "field1:19", "value:12,19,640,360", "field3:1320",
                                   "value:12,19,640,1320", "close", "finished"}));
    QCOMPARE(row->values(), QList<int>({12, 19, 640, 1320}));
    QCOMPARE(row->getLabelValue().toList().size(), 4);
    QCOMPARE(row->currentField(), -1);
    QVERIFY(page.hasFocus());
    QVERIFY(page.pressed.isEmpty());
}

void TestMultiSpin::multiEscapeEndsAtOnce()
{
    Page page;
    auto* row = page.add(new MultiSpinBox(QStringList{"L", "R"}, &page));
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    Knob::turn(row, 1);
    Knob::back(row);
    QCOMPARE(rec.log, QStringList({"started", "field0:1", "value:1,0", "close", "finished"}));
    QCOMPARE(row->value(0), 1); // the value reached stays
    QVERIFY(page.hasFocus());
    // The page may close the edit itself.
    rec.log.clear();
    row->editValue();
    Knob::press(row);
    row->closeEditValue();
    QCOMPARE(rec.log, QStringList({"started", "close", "finished"}));
    QVERIFY(page.hasFocus());
    // An edit whose focus the page took away can be started again.
    rec.log.clear();
    row->editValue();
    page.setFocus();
    row->editValue();
    QCOMPARE(rec.log, QStringList({"started", "started"}));
    QVERIFY(row->spinBox(0)->hasFocus());
    Knob::back(row);
    // A disabled row announces nothing.
    rec.log.clear();
    row->setContentDisabled(true);
    row->editValue();
    QVERIFY(rec.log.isEmpty());
}

void TestMultiSpin::multiFieldRangesAndSteps()
{
    Page page;
    auto* row = page.add(new MultiSpinBox(QStringList{"A", "B"}, &page));
    row->setFieldRange(0, -100, 100);
    row->setFieldRange(1, 0, 10);
    row->setFieldSingleStep(0, 10);
    row->setValue(0, 50);
    row->setValue(1, 99); // clamped
    QCOMPARE(row->value(1), 10);
    QVERIFY(page.start());
    row->editValue();
    Knob::turn(row, 10);
    QCOMPARE(row->value(0), 100); // saturates, steps of 10
    Knob::turn(row, -25);
    QCOMPARE(row->value(0), -100);
    Knob::press(row);
    Knob::turn(row, -3);
    QCOMPARE(row->value(1), 7);
    Knob::back(row);
    // A narrower range takes the value in without a signal.
    QSignalSpy fields(row, &CommonItemType::signalSpinBoxValueChanged);
    row->setFieldRange(1, 0, 5);
    QCOMPARE(row->value(1), 5);
    QCOMPARE(fields.count(), 0);
}

void TestMultiSpin::multiLabelValue()
{
    MultiSpinBox row;
    row.setRange(0, 9999);
    row.setLabelValue(QStringLiteral("0, 0, 1920 1080"));
    QCOMPARE(row.values(), QList<int>({0, 0, 1920, 1080}));
    row.setLabelValue(QVariant::fromValue(QVariantList{1, 2, 3, 4}));
    QCOMPARE(row.values(), QList<int>({1, 2, 3, 4}));
    row.setCaptions({"A", "B"});
    QCOMPARE(row.count(), 2);
    QCOMPARE(row.values(), QList<int>({0, 0})); // new fields start afresh
}

void TestMultiSpin::multiBadInput()
{
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setCaptions: 0 fields, 1..8 expected, ignored");
    MultiSpinBox row(QStringList{});
    QCOMPARE(row.count(), 4); // the defaults stay
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setCaptions: 9 fields, 1..8 expected, ignored");
    row.setCaptions(QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "9"}));
    QCOMPARE(row.count(), 4);
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setValue: index 4 is outside 0..3");
    row.setValue(4, 1);
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] value: index -1 is outside 0..3");
    QCOMPARE(row.value(-1), 0);
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] spinBox: index 7 is outside 0..3");
    QVERIFY(!row.spinBox(7));
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setFieldRange: 5..1 is not a range, ignored");
    row.setFieldRange(0, 5, 1);
    QCOMPARE(row.spinBox(0)->maximum(), 9999);
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setFieldSingleStep: 0 is not a step of 0..9999, ignored");
    row.setFieldSingleStep(0, 0);
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setFieldSingleStep: 10000 is not a step of 0..9999, ignored");
    row.setFieldSingleStep(0, 10000);
    QCOMPARE(row.spinBox(0)->singleStep(), 1);
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setLabelValue: 3 values for 4 fields, ignored");
    row.setLabelValue(QVariantList{1, 2, 3});
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setLabelValue: value is not a list of numbers, ignored");
    row.setLabelValue(QStringLiteral("1, two, 3, 4"));
    QCOMPARE(row.values(), QList<int>({0, 0, 0, 0}));
    QTest::ignoreMessage(QtWarningMsg, "[MultiSpinBox] setContentFontSize: -1 is not a size, ignored");
    row.setContentFontSize(-1);
    // The full int range: widths and steps computed without overflow.
    row.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    row.setValue(0, std::numeric_limits<int>::max());
    QCOMPARE(row.value(0), std::numeric_limits<int>::max());
    // Without a parent the edit ends by dropping the focus.
    row.show();
    QApplication::setActiveWindow(&row);
    row.editValue();
    Knob::back(&row);
    QCOMPARE(row.currentField(), -1);
}

void TestMultiSpin::multipleWalkAndItemEdit()
{
    Page page;
    auto* row = page.add(new MultipleSpinBox(&page));
    row->addItem(QStringLiteral("Red gain"), 0, 200, 1, 100);
    row->addItem(QStringLiteral("Green gain"), 0, 200, 1, 98);
    row->addItem(QStringLiteral("Blue gain"), 0, 200, 1, 102);
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    QCOMPARE(row->currentIndex(), 0);
    QCOMPARE(row->item(0)->property("multipleItemCurrent"), QVariant(true));
    Knob::turn(row, -5); // Down walks down and stops at the last item
    QCOMPARE(row->currentIndex(), 2);
    Knob::turn(row, 1);
    QCOMPARE(row->currentIndex(), 1);
    QCOMPARE(row->item(1)->property("multipleItemCurrent"), QVariant(true));
    QCOMPARE(row->item(2)->property("multipleItemCurrent"), QVariant(false));
    Knob::press(row); // edit "Green gain"
    QVERIFY(row->isItemEditing());
    QVERIFY(row->item(1)->spinBox()->hasFocus());
    Knob::turn(row, 2);
    Knob::back(row); // back to walking, not out of the row
    QVERIFY(!row->isItemEditing());
    QCOMPARE(row->currentIndex(), 1);
    Knob::turn(row, -1);
    QCOMPARE(row->currentIndex(), 2); // the knob walks again
    QCOMPARE(page.released, 0);
    Knob::back(row);
    QCOMPARE(rec.log, QStringList({"started", "field1:99", "value:100,99,102", "field1:100", "value:100,100,102",
                                   "close", "finished"}));
    QVERIFY(page.hasFocus());
    QCOMPARE(row->currentIndex(), -1);
    QCOMPARE(row->item(2)->property("multipleItemCurrent"), QVariant(false));
    QVERIFY(page.pressed.isEmpty());
    // An edit whose focus the page took away can be started again.
    rec.log.clear();
    row->editValue();
    Knob::press(row);
    page.setFocus();
    row->editValue();
    QCOMPARE(rec.log, QStringList({"started", "started"}));
    QVERIFY(row->hasFocus());
    QVERIFY(!row->isItemEditing());
    QCOMPARE(row->currentIndex(), 0);
    Knob::back(row);
}

void TestMultiSpin::multipleItemsKeepTheirOwnRules()
{
    Page page;
    auto* row = page.add(new MultipleSpinBox(&page));
    row->addItem(QStringLiteral("Delay"), -500, 500, 10, 0);
    row->addItem(QStringLiteral("Level"), 0, 100, 1, 50, SuffixPercent);
    QVERIFY(page.start());
    row->editValue();
    Knob::press(row);
    Knob::turn(row, 3);
    QCOMPARE(row->value(0), 30);
    Knob::press(row); // Enter ends the item's edit as well
    Knob::turn(row, -1);
    Knob::press(row);
    Knob::turn(row, 80);
    QCOMPARE(row->value(1), 100);
    QCOMPARE(row->item(1)->spinBox()->suffix(), QStringLiteral("%"));
    Knob::press(row);
    Knob::back(row);
    QCOMPARE(row->getLabelValue().toList(), QVariantList({30, 100}));
    row->setLabelValue(QVariantList{-20, 5});
    QCOMPARE(row->value(0), -20);
    row->clear();
    QCOMPARE(row->count(), 0);
}

void TestMultiSpin::multipleBadInput()
{
    MultipleSpinBox row;
    QSignalSpy started(&row, &CommonItemType::signalEditStarted);
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] editValue: no items");
    row.editValue();
    QCOMPARE(started.count(), 0);
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] addItem: 10..0 is not a range, refused");
    QVERIFY(!row.addItem(QStringLiteral("Bad"), 10, 0));
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] addItem: 0 is not a step of 0..10, 1 used");
    MultipleSpinBoxItem* item = row.addItem(QStringLiteral("Zero step"), 0, 10, 0, 99);
    QVERIFY(item);
    QCOMPARE(item->spinBox()->singleStep(), 1);
    QCOMPARE(item->value(), 10); // clamped
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] item: index 1 is outside 0..0");
    QVERIFY(!row.item(1));
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] value: index -1 is outside 0..0");
    QCOMPARE(row.value(-1), 0);
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] setValue: index 3 is outside 0..0");
    row.setValue(3, 1);
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] setLabelValue: 2 values for 1 items, ignored");
    row.setLabelValue(QVariantList{1, 2});
    QTest::ignoreMessage(QtWarningMsg, "[MultipleSpinBox] setContentFontSize: 0 is not a size, ignored");
    row.setContentFontSize(0);
    row.addItem(QStringLiteral("Wide"), std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1, 0);
    QCOMPARE(row.count(), 2);
}

QTEST_MAIN(TestMultiSpin)
#include "tst_multispin.moc"
