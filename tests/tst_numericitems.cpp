// The numeric item rows: the integer row's width rule, variants and step guards, the
// signal sequences of knob edits ended by Escape and Enter, swallowed key releases,
// and the float, slider, dual-value and spin-adjust rows.
#include "editorpage.h"
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>
#include <spinrow_p.h> // internal helpers, compiled into this test

#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QVBoxLayout>
#include <QtTest>
#include <cmath>
#include <limits>

using namespace LCD::Widget;

namespace {

// A part a row hides is built on first use: absent counts as hidden.
bool hiddenOrUnbuilt(QWidget const* w) { return !w || w->isHidden(); }


// The host page: holds one row, takes the focus back after edits and records the
// keys that reach it.
struct Page : EditorTest::Page
{
    Page() : EditorTest::Page(QSize()) {}
};

// Records the row's protocol signals in the order they come.
struct Recorder
{
    QStringList log;
    explicit Recorder(CommonItemType* row)
    {
        QObject::connect(row, &CommonItemType::signalEditStarted, [this] { log << "started"; });
        QObject::connect(row, &CommonItemType::signalValueChanged,
                         [this](QVariant v) { log << QStringLiteral("value:%1:%2").arg(v.typeName(), v.toString()); });
        QObject::connect(row, &CommonItemType::signalEditFinished, [this] { log << "finished"; });
        QObject::connect(row, &CommonItemType::signalCloseEditStatus, [this] { log << "close"; });
        QObject::connect(row, &CommonItemType::signalEditClosed, [this] { log << "closed"; });
    }
};

} // namespace

class TestNumericItems : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }

    void intWidthRule_data();
    void intWidthRule();
    void intWidthFollowsTheMaximumOnly();
    void intVariants();
    void intSingleStepGuards();
    void intRangeIsSilent();
    void intLabelValue();
    void intEditEndedByEscape();
    void intEditEndedByEnter();
    void keyReleasesStayInside();
    void nextEditKeepsItsFocus();
    void noEditWithoutAnEditor();

    void floatRow();
    void floatEdit();
    void sliderRow();
    void dualRow();
    void dualEdit();
    void spinAdjustLayout();
    void spinAdjustKeys();
    void extendSpinBoxButtons();
};

void TestNumericItems::noEditWithoutAnEditor()
{
    // A row showing its label instead of the box, or a disabled row, has nothing to
    // edit with: the press must not announce an edit that nothing could end.
    Page page;
    auto* labelled = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 1));
    labelled->setSpinBoxShow(false);
    auto* disabled = page.add(new TypeFloatAdjust(SuffixNone, QuitKeepValue, &page, 1));
    disabled->setContentEnabled(false);
    for (CommonItemType* row : {static_cast<CommonItemType*>(labelled), static_cast<CommonItemType*>(disabled)}) {
        QSignalSpy started(row, &CommonItemType::signalEditStarted);
        row->editValue();
        QCOMPARE(started.count(), 0);
    }
    labelled->setSpinBoxShow(true);
    QSignalSpy started(labelled, &CommonItemType::signalEditStarted);
    labelled->editValue();
    QCOMPARE(started.count(), 1);
}

void TestNumericItems::intWidthRule_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("font");
    QTest::addColumn<int>("width");
    QTest::newRow("0..100") << 0 << 100 << 20 << 60;   // d = 4
    QTest::newRow("-1000..50") << -1000 << 50 << 20 << 80; // d = 6: the minimum is longer
    QTest::newRow("0..9") << 0 << 9 << 20 << 40;        // d = 2
    QTest::newRow("-5..5") << -5 << 5 << 20 << 40;      // d = 3
    QTest::newRow("font 30") << 0 << 100 << 30 << 90;
    QTest::newRow("int limits") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max() << 20 << 140;
}

void TestNumericItems::intWidthRule()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, font);
    QFETCH(int, width);
    Page page;
    auto* row = page.add(new TypeIntAdjust(SuffixPercent, QuitKeepValue, &page, 1));
    row->setRange(minimum, maximum);
    row->setContentFontSize(font);
    QCOMPARE(row->findChild<NQSpinBox*>()->width(), width);
    QCOMPARE(intSpinBoxWidth(minimum, maximum, font), width);
}

void TestNumericItems::intWidthFollowsTheMaximumOnly()
{
    Page page;
    auto* row = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 0));
    auto* spin = row->findChild<NQSpinBox*>();
    row->setRangeMax(100);
    QCOMPARE(spin->width(), 60);
    row->setRangeMin(-100000); // the width is not recomputed
    QCOMPARE(spin->minimum(), -100000);
    QCOMPARE(spin->width(), 60);
    row->setRangeMax(200); // now the longer bound counts: 7 + 1 characters
    QCOMPARE(spin->width(), 100);
    // A host font size near the int limit gives the widest box, not an overflow.
    QCOMPARE(intSpinBoxWidth(-100000, 200, std::numeric_limits<int>::max()), QWIDGETSIZE_MAX);
}

void TestNumericItems::intVariants()
{
    Page page;
    auto* framed = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 1));
    auto* multiple = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 2));
    auto* plain = page.add(new TypeIntAdjust(SuffixDegree, QuitOnEnter, &page, 3));

    auto* s1 = framed->findChild<NQSpinBox*>();
    QVERIFY(s1->property("isCompomentsSpinBoxInput").toBool());
    QVERIFY(framed->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))->property("isIconListEdit").toBool());
    QCOMPARE(framed->getCommonWidgetType(), 1);
    QCOMPARE(s1->focusFrameMode(), 1);

    auto* s2 = multiple->findChild<NQSpinBox*>();
    QVERIFY(s2->property("isMultipleSpinBox").toBool());
    QCOMPARE(s2->alignment(), Qt::AlignLeft);
    QVERIFY(hiddenOrUnbuilt(multiple->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))));
    QCOMPARE(multiple->getCommonWidgetType(), 2);

    auto* s3 = plain->findChild<NQSpinBox*>();
    QCOMPARE(plain->getCommonWidgetType(), 3);
    QCOMPARE(s3->focusFrameMode(), 3);
    QCOMPARE(s3->suffix(), QStringLiteral("°"));
    QCOMPARE(s3->quitStrategy(), QuitOnEnter);
    plain->setSuffixType(SuffixSecond);
    QCOMPARE(s3->suffix(), QStringLiteral("s"));

    // The value label stands in for a hidden spin box.
    plain->setLabelText(QStringLiteral("Auto"));
    plain->setSpinBoxShow(false);
    QVERIFY(s3->isHidden());
    bool shown = false;
    for (QLabel* l : plain->findChildren<QLabel*>())
        shown |= l->property("isLabelValueText").toBool() && !l->isHidden() && l->text() == QStringLiteral("Auto");
    QVERIFY(shown);
    plain->setSpinBoxShow(true);
    QVERIFY(!s3->isHidden());

    plain->setContentDisabled(true);
    QVERIFY(!s3->isEnabled());

    // The label is built when first shown: with the text and the state set before.
    auto* late = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 3));
    late->setLabelText(QStringLiteral("Off"));
    late->setContentDisabled(true);
    auto valueLabelOf = [](QWidget* row) -> QLabel* {
        for (QLabel* l : row->findChildren<QLabel*>())
            if (l->property("isLabelValueText").toBool())
                return l;
        return nullptr;
    };
    QVERIFY(!valueLabelOf(late));
    late->setSpinBoxShow(false);
    QLabel* label = valueLabelOf(late);
    QVERIFY(label);
    QCOMPARE(label->text(), QStringLiteral("Off"));
    QVERIFY(!label->isEnabled());
}

void TestNumericItems::intSingleStepGuards()
{
    Page page;
    auto* row = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 1));
    auto* spin = row->findChild<NQSpinBox*>();
    row->setRange(0, 10);
    row->setSingleStep(3.9f);
    QCOMPARE(spin->singleStep(), 3);
    row->setSingleStep(0.0f);
    row->setSingleStep(-2.0f);
    row->setSingleStep(11.0f);
    row->setSingleStep(std::nanf(""));
    QCOMPARE(spin->singleStep(), 3);
    row->setSingleStep(10.0f); // the whole span is allowed
    QCOMPARE(spin->singleStep(), 10);

    // 0.5 passes both tests and truncates to 0: the knob then leaves the value alone.
    row->setSingleStep(0.5f);
    QCOMPARE(spin->singleStep(), 0);
    row->setLabelValue(4);
    QSignalSpy values(row, &CommonItemType::signalValueChanged);
    QVERIFY(page.start());
    row->editValue();
    Knob::turn(row, 3, 0.5);
    Knob::turn(row, -3, 1.0);
    QCOMPARE(values.count(), 0);
    QCOMPARE(row->getLabelValue().toInt(), 4);
}

void TestNumericItems::intRangeIsSilent()
{
    Page page;
    auto* row = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 1));
    row->setRange(0, 100);
    row->setLabelValue(50);
    QSignalSpy values(row, &CommonItemType::signalValueChanged);
    row->setRange(0, 10);
    QCOMPARE(row->getLabelValue().toInt(), 10);
    row->setRange(-2.9f, 7.9f); // truncated toward zero
    QCOMPARE(row->findChild<NQSpinBox*>()->minimum(), -2);
    QCOMPARE(row->findChild<NQSpinBox*>()->maximum(), 7);
    row->setRangeMax(5);
    row->setRangeMin(1);
    QCOMPARE(values.count(), 0);
    QVERIFY(!row->findChild<NQSpinBox*>()->signalsBlocked());
    // Out-of-range float bounds are clamped, not cast blindly.
    row->setRange(-1e20f, 1e20f);
    QCOMPARE(row->findChild<NQSpinBox*>()->minimum(), std::numeric_limits<int>::min());
    QCOMPARE(row->findChild<NQSpinBox*>()->maximum(), std::numeric_limits<int>::max());
}

void TestNumericItems::intLabelValue()
{
    Page page;
    auto* row = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 1));
    row->setRange(-20, 20);
    QSignalSpy values(row, &CommonItemType::signalValueChanged);
    row->setLabelValue(QVariant(-7));
    QCOMPARE(row->getLabelValue(), QVariant(-7));
    QCOMPARE(row->currentValue(), QVariant(-7));
    row->setLabelValue(QVariant(99)); // out of range: the box keeps its value
    QCOMPARE(row->getLabelValue(), QVariant(-7));
    QCOMPARE(values.count(), 0);
}

void TestNumericItems::intEditEndedByEscape()
{
    Page page;
    auto* row = page.add(new TypeIntAdjust(SuffixPercent, QuitKeepValue, &page, 1));
    auto* spin = row->findChild<NQSpinBox*>();
    row->setRange(0, 100);
    row->setLabelValue(20);
    QVERIFY(page.start());
    Recorder rec(row);

    row->editValue();
    QVERIFY(spin->hasFocus());
    QCOMPARE(spin->styleSheet(), QStringLiteral("border: 2px solid rgba(255, 255, 255,0.8);"));
    Knob::turn(row, 2);
    Knob::turn(row, 1, 0.1);
    Knob::turn(row, -1);
    QCOMPARE(QApplication::focusWidget(), spin);
    Knob::back(row);

    QCOMPARE(rec.log, QStringList({"started", "value:int:21", "value:int:22", "value:int:32", "value:int:31", "finished",
                                   "close"}));
    QVERIFY(page.hasFocus());
    QCOMPARE(row->getLabelValue().toInt(), 31); // Escape keeps the value reached
    QCOMPARE(row->currentValue().toInt(), 31);
    // The font sheet is back, without the focus frame.
    QCOMPARE(spin->styleSheet(), QStringLiteral("font-size:20px; border-radius:6px;"));
    QVERIFY(page.pressed.isEmpty());
}

void TestNumericItems::intEditEndedByEnter()
{
    Page page;
    auto* row = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 0));
    row->setRange(-50, 50);
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    Knob::turn(row, -1, 0.5);
    Knob::press(row, true);
    QCOMPARE(rec.log, QStringList({"started", "value:int:-50", "finished"}));
    QVERIFY(page.hasFocus());

    // Any other focus change ends the edit too.
    rec.log.clear();
    row->editValue();
    page.setFocus();
    QCOMPARE(rec.log, QStringList({"started", "finished"}));
}

void TestNumericItems::keyReleasesStayInside()
{
    Page page;
    auto* intRow = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 1));
    auto* floatRow = page.add(new TypeFloatAdjust(SuffixNone, QuitKeepValue, &page, 0));
    auto* sliderRow = page.add(new TypeIntAdjustSlider(SuffixNone, QuitKeepValue, Qt::Horizontal, &page, 5));
    QVERIFY(page.start());
    for (CommonItemType* row : QList<CommonItemType*>{intRow, floatRow, sliderRow}) {
        row->editValue();
        Knob::turn(row, 2);
        Knob::key(row, Qt::Key_A, QStringLiteral("a"));
        QCOMPARE(page.released, 0);
        Knob::back(row); // the page has the focus again when Escape is released
        page.released = 0;
    }
}

void TestNumericItems::nextEditKeepsItsFocus()
{
    // A row whose edit ends because another editor took the knob leaves it there.
    Page page;
    auto* first = page.add(new TypeIntAdjust(SuffixNone, QuitKeepValue, &page, 1));
    auto* slider = page.add(new TypeIntAdjustSlider(SuffixNone, QuitKeepValue, Qt::Horizontal, &page, 5));
    auto* dual = page.add(new TypeDualInt(&page));
    auto* second = page.add(new TypeFloatAdjust(SuffixNone, QuitKeepValue, &page, 0));
    QVERIFY(page.start());
    Recorder rec(first);
    first->editValue();
    dual->editValue();
    QCOMPARE(rec.log, QStringList({"started", "finished"}));
    QVERIFY(dual->editor()->hasFocus());
    slider->editValue();
    QVERIFY(slider->findChild<NQSpinBox*>()->hasFocus());
    QCOMPARE(slider->findChild<QSlider*>()->property("intAdjustSliderStatus").toString(), QStringLiteral("edit"));
    second->editValue();
    QVERIFY(second->findChild<NQDoubleSpinBox*>()->hasFocus());
    QCOMPARE(slider->findChild<QSlider*>()->property("intAdjustSliderStatus").toString(), QStringLiteral("normal"));
}

void TestNumericItems::floatRow()
{
    Page page;
    auto* row = page.add(new TypeFloatAdjust(SuffixSecond, QuitKeepValue, &page, 0));
    auto* wide = page.add(new TypeFloatAdjust(SuffixNone, QuitKeepValue, &page, 14));
    auto* spin = row->findChild<NQDoubleSpinBox*>();
    QVERIFY(row->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))->property("isIconListEdit").toBool());
    QVERIFY(!row->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))->isHidden());
    QVERIFY(hiddenOrUnbuilt(wide->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))));
    QVERIFY(wide->findChild<NQDoubleSpinBox*>()->property("isMultipleSpinBox").toBool());
    QCOMPARE(wide->getCommonWidgetType(), 14);
    QCOMPARE(spin->width(), 60);
    QCOMPARE(spin->styleSheet(), QStringLiteral("QAbstractSpinBox{font-size:20px; border-radius:6px; }"));
    QCOMPARE(spin->suffix(), QStringLiteral("s"));

    row->setRange(0.0f, 10.0f);
    row->setDecimals(1);
    row->setSingleStep(0.5f);
    QCOMPARE(spin->singleStep(), 0.5);
    row->setSingleStep(0.0000001f); // below 1e-6: the previous step stays
    row->setSingleStep(10.5f);
    row->setSingleStep(std::nanf(""));
    QCOMPARE(spin->singleStep(), 0.5);

    row->setLabelValue(QVariant(7.5));
    QCOMPARE(row->getLabelValue(), QVariant(7.5));
    QSignalSpy values(row, &CommonItemType::signalValueChanged);
    row->setRange(0, 5); // int bounds: silent
    QCOMPARE(values.count(), 0);
    row->setRange(1.0f, 4.0f); // float bounds: the clamp is reported
    QCOMPARE(values.count(), 1);
    QCOMPARE(values.at(0).at(0), QVariant(4.0));

    // NaN never becomes the value, neither as a bound nor as a value.
    QTest::ignoreMessage(QtWarningMsg, "[TypeFloatAdjust] setRange: bounds nan, 5 are not finite, ignored");
    row->setRange(std::nanf(""), 5.0f);
    QTest::ignoreMessage(QtWarningMsg, "[TypeFloatAdjust] setRange: bounds 0, inf are not finite, ignored");
    row->setRange(0.0f, std::numeric_limits<float>::infinity());
    QTest::ignoreMessage(QtWarningMsg, "[knobspin] setValueByManual: value is not a number, ignored");
    row->setLabelValue(QVariant(std::nan("")));
    QCOMPARE(row->getLabelValue(), QVariant(4.0));
    QCOMPARE(spin->minimum(), 1.0);
    QCOMPARE(spin->committedValue(), 7.5); // as set last, before the clamp
}

void TestNumericItems::floatEdit()
{
    Page page;
    auto* row = page.add(new TypeFloatAdjust(SuffixNone, QuitKeepValue, &page, 0));
    auto* spin = row->findChild<NQDoubleSpinBox*>();
    row->setRange(-12.0f, 12.0f);
    row->setDecimals(1);
    row->setSingleStep(0.5f);
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    QCOMPARE(spin->styleSheet(), QStringLiteral("border: 2px solid rgba(255, 255, 255,0.8)"));
    Knob::turn(row, 1);
    Knob::turn(row, -1, 0.25); // 0.25 * 24 = 6 single steps
    Knob::back(row);
    QCOMPARE(rec.log, QStringList({"started", "value:double:0.5", "value:double:-2.5", "finished", "close"}));
    QVERIFY(page.hasFocus());
    QCOMPARE(spin->styleSheet(), QStringLiteral("border: none"));
}

void TestNumericItems::sliderRow()
{
    Page page;
    auto* row = page.add(new TypeIntAdjustSlider(SuffixPercent, QuitKeepValue, Qt::Horizontal, &page, 5));
    auto* spin = row->findChild<NQSpinBox*>();
    auto* slider = row->findChild<QSlider*>();
    QVERIFY(spin && slider);
    QCOMPARE(slider->width(), 550);
    QVERIFY(spin->property("isSliderSpinBoxInput").toBool());
    QVERIFY(slider->property("isIntAdjustSlider").toBool());
    QCOMPARE(slider->property("intAdjustSliderStatus").toString(), QStringLiteral("normal"));
    QVERIFY(hiddenOrUnbuilt(row->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))));
    QCOMPARE(slider->focusPolicy(), Qt::NoFocus);

    row->setRange(0, 100);
    QCOMPARE(spin->width(), 60);
    row->setLabelValue(40);
    QCOMPARE(slider->value(), 40);

    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    QCOMPARE(slider->property("intAdjustSliderStatus").toString(), QStringLiteral("edit"));
    Knob::turn(row, 1, 0.25);
    QCOMPARE(slider->value(), 65);
    Knob::back(row);
    QCOMPARE(rec.log, QStringList({"started", "value:int:65", "finished", "close"}));
    QCOMPARE(slider->property("intAdjustSliderStatus").toString(), QStringLiteral("normal"));

    row->editValue();
    row->closeEditValue();
    QCOMPARE(slider->property("intAdjustSliderStatus").toString(), QStringLiteral("normal"));

    row->setContentDisabled(true);
    QVERIFY(!spin->isEnabled());
    QVERIFY(!slider->isEnabled());

    // Either bound alone refits the spin box to the longest value of the range.
    int const narrow = spin->width();
    row->setRangeMin(-100000);
    int const wide = spin->width();
    QVERIFY(wide > narrow);
    row->setRangeMin(0);
    QCOMPARE(spin->width(), narrow);
    row->setRangeMax(1000000);
    QVERIFY(spin->width() > narrow);
    row->setRangeMax(100);
    QCOMPARE(spin->width(), narrow);
}

void TestNumericItems::dualRow()
{
    Page page;
    auto* row = page.add(new TypeDualInt(&page));
    auto* editor = row->findChild<NQDualLineEdit*>();
    QVERIFY(editor);
    QCOMPARE(editor->width(), 70);
    QVERIFY(editor->property("isCompomentsSpinBoxInput").toBool());
    QVERIFY(row->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))->property("isIconListEdit").toBool());

    QSignalSpy values(row, &CommonItemType::signalValueChanged);
    row->setLabelValue(QVariant(QSize(16, 9)));
    QCOMPARE(row->getLabelValue(), QVariant(QSize(16, 9)));
    row->setLabelValue(QStringLiteral("4x3"));
    QCOMPARE(row->getLabelValue().toSize(), QSize(4, 3));
    editor->setSeparator(QStringLiteral(":"));
    QCOMPARE(editor->text(), QStringLiteral("4:3"));
    QTest::ignoreMessage(QtWarningMsg, "[NQDualLineEdit] not a pair of integers: \"wide\"");
    row->setLabelValue(QStringLiteral("wide"));
    QCOMPARE(row->getLabelValue().toSize(), QSize(4, 3));
    row->setRange(1, 10);
    row->setLabelValue(QVariant(QSize(0, 99))); // clamped into the range
    QCOMPARE(row->getLabelValue().toSize(), QSize(1, 10));
    QCOMPARE(values.count(), 0);
    QTest::ignoreMessage(QtWarningMsg, "[NQDualLineEdit] field index out of range: 2");
    editor->setFieldRange(2, 0, 1);

    row->setContentDisabled(true);
    QVERIFY(!editor->isEnabled());
}

void TestNumericItems::dualEdit()
{
    Page page;
    auto* row = page.add(new TypeDualInt(&page));
    auto* editor = row->findChild<NQDualLineEdit*>();
    row->setRange(1, 99);
    row->setLabelValue(QVariant(QSize(16, 9)));
    QVERIFY(page.start());
    Recorder rec(row);

    row->editValue();
    QVERIFY(editor->hasFocus());
    QCOMPARE(editor->currentField(), 0);
    Knob::turn(row, 2);
    Knob::press(row); // to the second value
    QCOMPARE(editor->currentField(), 1);
    QCOMPARE(page.released, 0); // the releases of the turns and the press stay in the editor
    Knob::turn(row, -1, 0.1); // a tenth of the range is 9: 9 - 9 = 0, clamped to 1
    Knob::press(row, true); // ends the edit
    QCOMPARE(rec.log, QStringList({"value:QSize:", "value:QSize:", "value:QSize:", "closed"}));
    QCOMPARE(row->getLabelValue().toSize(), QSize(18, 1));
    QVERIFY(page.hasFocus());
    QVERIFY(!editor->isEditing());

    // Escape ends at once; a step at the bound reports nothing.
    rec.log.clear();
    row->editValue();
    Knob::turn(row, 3, 1e6);
    Knob::turn(row, 1);
    Knob::back(row);
    QCOMPARE(rec.log, QStringList({"value:QSize:", "closed"}));
    QCOMPARE(row->getLabelValue().toSize(), QSize(99, 1));
    QVERIFY(page.hasFocus());
    QVERIFY(page.pressed.isEmpty());
}

void TestNumericItems::spinAdjustLayout()
{
    Page page;
    auto* row = page.add(new TypeSpinAdjust(&page));
    auto* left = row->leftSpinBox();
    auto* right = row->rightSpinBox();
    QCOMPARE(left->objectName(), QStringLiteral("ExtendSpinBox"));
    QCOMPARE(left->width(), 362); // 768 * 0.4722... truncated
    QCOMPARE(right->width(), 362);
    row->slotUpdateItemWidth(700);
    QCOMPARE(left->width(), 330);
    QCOMPARE(row->getWidgetRow(), 1);
    QCOMPARE(row->getTitleLabel()->width(), 0);
    QVERIFY(hiddenOrUnbuilt(row->findChild<QPushButton*>(QStringLiteral("itemRightIconButton"))));
    QCOMPARE(left->styleSheet(), QStringLiteral("QFrame{border-radius:6px;}"));
    QCOMPARE(left->displayText(), QStringLiteral("---"));
    row->setLeftSpinContent(QStringLiteral("Wipe"));
    row->setRightSpinContent(QStringLiteral("1.0s"));
    QCOMPARE(left->displayText(), QStringLiteral("Wipe"));
    QCOMPARE(right->displayText(), QStringLiteral("1.0s"));
    row->setLeftIconSize(QSize(24, 24));
    QCOMPARE(right->rightButton()->size(), QSize(24, 24));
    QVERIFY(!row->getLabelValue().value<QColor>().isValid());
}

void TestNumericItems::spinAdjustKeys()
{
    Page page;
    auto* row = page.add(new TypeSpinAdjust(&page));
    auto* left = row->leftSpinBox();
    auto* right = row->rightSpinBox();
    QVERIFY(page.start());
    QSignalSpy leftValues(row, &TypeSpinAdjust::signalLeftSpinValueChanged);
    QSignalSpy rightValues(row, &TypeSpinAdjust::signalRightSpinValueChanged);
    QSignalSpy rightDone(row, &TypeSpinAdjust::signalRightChangedFinished);
    QSignalSpy closed(row, &CommonItemType::signalCloseEditStatus);

    row->setFocus();
    QVERIFY(left->isCtrlSelected());
    QCOMPARE(left->property("isExtendSpinBox").toBool(), false); // the selected look
    Knob::turn(row, -1); // Down: to the right control, consumed
    QVERIFY(!left->isCtrlSelected());
    QVERIFY(right->isCtrlSelected());
    QVERIFY(page.pressed.isEmpty());
    Knob::turn(row, -1); // Down at the right end goes on to the page
    QCOMPARE(page.pressed, QList<int>({Qt::Key_Down}));

    // The press works the selected control: Up presses its left button, Down its right one.
    Knob::press(row);
    QVERIFY(right->isAncestorOf(QApplication::focusWidget()) || right->hasFocus());
    QVERIFY(right->property("isExtendSpinBoxBlueBg").toBool());
    Knob::turn(row, 1);
    Knob::turn(row, -2);
    QCOMPARE(rightValues.count(), 3);
    QCOMPARE(rightValues.at(0).at(0).toBool(), false);
    QCOMPARE(rightValues.at(2).at(0).toBool(), true);
    QCOMPARE(rightDone.count(), 3);
    QCOMPARE(leftValues.count(), 0);
    QCOMPARE(right->rightButton()->property("isIconSpinboxRightBtn").toBool(), false); // pressed look
    Knob::press(row); // consumed without action
    QCOMPARE(rightValues.count(), 3);

    // Escape in the control hands the knob back to the row, which keeps its selection.
    Knob::back(row);
    QVERIFY(row->hasFocus());
    QVERIFY(!right->property("isExtendSpinBoxBlueBg").toBool());
    QVERIFY(right->rightButton()->property("isIconSpinboxRightBtn").toBool());
    QVERIFY(right->isCtrlSelected());
    QCOMPARE(closed.count(), 0);
    Knob::turn(row, 1); // Up: back to the left control, consumed
    QVERIFY(left->isCtrlSelected());
    QVERIFY(!right->isCtrlSelected());

    // Escape on the row leaves it.
    Knob::back(row);
    QCOMPARE(closed.count(), 1);
    QVERIFY(page.hasFocus());
    QVERIFY(!left->isCtrlSelected() && !right->isCtrlSelected());
    QCOMPARE(page.released, 0);
}

void TestNumericItems::extendSpinBoxButtons()
{
    Page page;
    auto* box = new ExtendSpinBox;
    page.layout()->addWidget(box);
    QVERIFY(page.start());
    QSignalSpy values(box, &ExtendSpinBox::signalValueChanged);
    QSignalSpy done(box, &ExtendSpinBox::signalChangedFinished);
    QTest::mousePress(box->rightButton(), Qt::LeftButton);
    QCOMPARE(box->rightButton()->property("isIconSpinboxRightBtn").toBool(), false);
    QCOMPARE(box->leftButton()->property("isIconSpinboxLeftBtn").toBool(), true);
    QTest::mouseRelease(box->rightButton(), Qt::LeftButton);
    QTest::mousePress(box->leftButton(), Qt::LeftButton);
    QTest::mouseRelease(box->leftButton(), Qt::LeftButton);
    QCOMPARE(values.count(), 2);
    QCOMPARE(values.at(0).at(0).toBool(), true);
    QCOMPARE(values.at(1).at(0).toBool(), false);
    QCOMPARE(done.count(), 2);
    box->setCtrlSelect(true);
    QVERIFY(!box->property("isExtendSpinBox").toBool());
    box->setCtrlSelect(false);
    QVERIFY(box->property("isExtendSpinBox").toBool());
}

QTEST_MAIN(TestNumericItems)
#include "tst_numericitems.moc"
