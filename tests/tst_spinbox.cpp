// The knob spin boxes: step arithmetic for the level, stepping with clamp-then-snap,
// the arithmetic's safety at the int limits and with degenerate ranges and levels,
// the 0 key on a negative value, Enter, focus frames, validation and fixup, and the
// "[knobspin]" debug line.
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>

#include <QLineEdit>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>
#include <limits>

using namespace LCD::Widget;

namespace {

// Counts the events of one type a watched object receives.
class EventCounter : public QObject
{
public:
    EventCounter(QEvent::Type type, int* count) : m_type(type), m_count(count) {}
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == m_type)
            ++*m_count;
        return false;
    }

private:
    QEvent::Type m_type;
    int* m_count;
};

} // namespace

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

// A shown, active window with the box under test and a second focus target.
template <typename Box>
struct Harness
{
    QWidget window;
    Box* box = nullptr;
    QLineEdit* other = nullptr;

    template <typename... Args>
    explicit Harness(Args... args)
    {
        auto* layout = new QVBoxLayout(&window);
        box = new Box(args..., &window);
        other = new QLineEdit(&window);
        layout->addWidget(box);
        layout->addWidget(other);
        window.show();
        QApplication::setActiveWindow(&window);
    }
    // Waits for the window and parks the focus outside the box.
    bool activate()
    {
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        other->setFocus();
        return other->hasFocus();
    }
};

void setKnobLog(bool on) { QLoggingCategory::setFilterRules(on ? "default.debug=true" : "default.debug=false"); }

QLineEdit* editOf(QAbstractSpinBox* box) { return box->findChild<QLineEdit*>(); }

// validate() and fixup() are public on the abstract spin box.
QValidator::State validated(QAbstractSpinBox& box, QString input)
{
    int pos = input.size();
    return box.validate(input, pos);
}
QString fixedUp(QAbstractSpinBox& box, QString input)
{
    box.fixup(input);
    return input;
}

} // namespace

class TestSpinBox : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qRegisterMetaType<Qt::FocusReason>();
        setKnobLog(false);
    }

    void construction();
    void intStep_data();
    void intStep();
    void intStepSafety();
    void knobStepping_data();
    void knobStepping();
    void noWrapAndSnap();
    void degenerateStepAndRange();
    void extremeLevels_data();
    void extremeLevels();
    void intLimits();
    void setValueByManual();
    void calRoundOff();
    void validate_data();
    void validate();
    void fixup_data();
    void fixup();
    void negativeSelectionAndKey0();
    void enterEndsEdit();
    void focusFrames_data();
    void focusFrames();
    void debugLine();

    void doubleStep();
    void doubleStepping();
    void doubleOutOfRangeText();
    void doubleValidateAndFixup();
    void doubleFocusAndEdit();
};

void TestSpinBox::construction()
{
    NQSpinBox box(SuffixDegree, QuitOnEnter, 1);
    QCOMPARE(box.alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(box.buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(!box.keyboardTracking());
    QCOMPARE(box.suffix(), QStringLiteral("°"));
    QCOMPARE(box.quitStrategy(), QuitOnEnter);
    QCOMPARE(box.focusFrameMode(), 1);

    // None keeps the suffix that is there.
    box.setSuffixType(SuffixNone);
    QCOMPARE(box.suffix(), QStringLiteral("°"));
    box.setSuffixType(SuffixSecond);
    QCOMPARE(box.suffix(), QStringLiteral("s"));

    NQDoubleSpinBox percent(SuffixPercent, QuitKeepValue);
    QCOMPARE(percent.suffix(), QStringLiteral("%"));
    QVERIFY(percent.property("isCompomentsSpinBoxInput").toBool());
    QCOMPARE(percent.buttonSymbols(), QAbstractSpinBox::NoButtons);
    QVERIFY(!percent.keyboardTracking());
    // Degrees are an integer-only suffix.
    NQDoubleSpinBox degrees(SuffixDegree, QuitKeepValue);
    QCOMPARE(degrees.suffix(), QString());
}

void TestSpinBox::intStep_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("single");
    QTest::addColumn<float>("level");
    QTest::addColumn<int>("step");

    QTest::newRow("unit level") << 0 << 100 << 1 << 1.0f << 1;
    QTest::newRow("unit level, step 5") << 0 << 100 << 5 << 1.0f << 5;
    QTest::newRow("tenth of the range") << 0 << 100 << 1 << 0.1f << 10;
    QTest::newRow("n = 0 gives one step") << 0 << 100 << 1 << 0.001f << 1;
    QTest::newRow("span capped, step = maximum") << 0 << 20000 << 5 << 0.5f << 20000;
    QTest::newRow("symmetric range") << -50 << 50 << 1 << 0.5f << 50;
    QTest::newRow("capped at the maximum") << 0 << 100 << 1 << 3.0f << 100;
    QTest::newRow("cap then truncation to the grid") << 1 << 99 << 2 << 2.0f << 98;
    QTest::newRow("truncation toward zero of n") << 0 << 10 << 3 << 0.25f << 6;
    QTest::newRow("negative level is one step") << 0 << 100 << 2 << -0.5f << 2;
    QTest::newRow("zero single step") << 0 << 100 << 0 << 0.5f << 0;
}

void TestSpinBox::intStep()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, single);
    QFETCH(float, level);
    QFETCH(int, step);
    QCOMPARE(NQSpinBox::stepFor(level, minimum, maximum, single), step);
    if (single > 0) {
        NQSpinBox box;
        box.setRange(minimum, maximum);
        box.setSingleStep(single);
        QCOMPARE(box.getStep(level), step);
    }
}

void TestSpinBox::intStepSafety()
{
    // Spans and products beyond the int range stay in range and on the grid.
    QCOMPARE(NQSpinBox::stepFor(1.0e6f, kIntMin, kIntMax, 1), 2000000000);
    QCOMPARE(NQSpinBox::stepFor(0.5f, kIntMin, kIntMax, 1000000000), 2000000000);
    QCOMPARE(NQSpinBox::stepFor(1.0e6f, 0, kIntMax, kIntMax), kIntMax);
    // A maximum below one single step never stalls the knob.
    QCOMPARE(NQSpinBox::stepFor(0.5f, -100, -10, 5), 5);
}

void TestSpinBox::knobStepping_data()
{
    QTest::addColumn<double>("level");
    QTest::addColumn<int>("after");
    QTest::newRow("level 1: +1") << 1.0 << 1;
    QTest::newRow("level 0.1: +10") << 0.1 << 10;
    QTest::newRow("level 0.001: +1") << 0.001 << 1;
}

void TestSpinBox::knobStepping()
{
    QFETCH(double, level);
    QFETCH(int, after);
    NQSpinBox box;
    box.setRange(0, 100);
    QSignalSpy values(&box, QOverload<int>::of(&QSpinBox::valueChanged));
    Knob::turn(&box, 1, level);
    QCOMPARE(box.value(), after);
    QCOMPARE(box.committedValue(), after);
    Knob::turn(&box, 2, level);
    QCOMPARE(box.value(), 3 * after);
    QCOMPARE(values.count(), 3);
    Knob::turn(&box, -3, level);
    QCOMPARE(box.value(), 0);
}

void TestSpinBox::noWrapAndSnap()
{
    NQSpinBox box;
    box.setRange(0, 20000);
    box.setSingleStep(5);
    Knob::turn(&box, 1, 0.5);
    QCOMPARE(box.value(), 20000); // one detent crosses the whole range
    Knob::turn(&box, 3, 0.5);
    QCOMPARE(box.value(), 20000);

    NQSpinBox sym;
    sym.setRange(-50, 50);
    sym.setValueByManual(-50);
    Knob::turn(&sym, -1, 0.5);
    QCOMPARE(sym.value(), -50);
    Knob::turn(&sym, 1, 0.5);
    QCOMPARE(sym.value(), 0);
    Knob::turn(&sym, 3, 0.5);
    QCOMPARE(sym.value(), 50);

    // Clamp, then snap: 97 + 2 = 99 is off the grid of 2 and is truncated to 98.
    NQSpinBox odd;
    odd.setRange(1, 99);
    odd.setSingleStep(2);
    odd.setValueByManual(97);
    Knob::turn(&odd, 1);
    QCOMPARE(odd.value(), 98);
    Knob::turn(&odd, 1);
    QCOMPARE(odd.value(), 98);
    // 3 - 2 = 1 snaps to 0 below the minimum: the box holds 1, and so does the commit.
    odd.setValueByManual(3);
    Knob::turn(&odd, -1);
    QCOMPARE(odd.value(), 1);
    QCOMPARE(odd.committedValue(), 1);
    // Negative values snap toward zero.
    NQSpinBox neg;
    neg.setRange(-99, 99);
    neg.setSingleStep(2);
    neg.setValueByManual(-97);
    Knob::turn(&neg, -1);
    QCOMPARE(neg.value(), -98);
}

void TestSpinBox::degenerateStepAndRange()
{
    // A zero single step (what an int row makes of setSingleStep(0.5)) leaves the value.
    NQSpinBox zero;
    zero.setRange(0, 100);
    zero.setValueByManual(40);
    zero.setSingleStep(0);
    QSignalSpy values(&zero, QOverload<int>::of(&QSpinBox::valueChanged));
    Knob::turn(&zero, 2, 0.5);
    Knob::turn(&zero, -2, 1.0);
    QCOMPARE(zero.value(), 40);
    QCOMPARE(zero.calRoundOff(37), 37);
    QCOMPARE(fixedUp(zero, QStringLiteral("37")), QStringLiteral("37"));
    QCOMPARE(values.count(), 0);

    NQSpinBox empty;
    empty.setRange(5, 5);
    Knob::turn(&empty, 3, 0.5);
    Knob::turn(&empty, -3, 1.0);
    QCOMPARE(empty.value(), 5);

    NQDoubleSpinBox emptyDouble;
    emptyDouble.setRange(2.5, 2.5);
    Knob::turn(&emptyDouble, 2, 0.3);
    QCOMPARE(emptyDouble.value(), 2.5);
}

void TestSpinBox::extremeLevels_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("up");
    QTest::addColumn<int>("down");
    // From 50 in 0..100.
    QTest::newRow("huge") << QStringLiteral("1e9") << 100 << 0;
    QTest::newRow("huge negative") << QStringLiteral("-1e9") << 51 << 49;
    QTest::newRow("nan") << QStringLiteral("nan") << 51 << 49;
    QTest::newRow("inf") << QStringLiteral("inf") << 100 << 0;
    QTest::newRow("unreadable") << QStringLiteral("fast") << 51 << 49;
    QTest::newRow("empty") << QString() << 51 << 49;
    QTest::newRow("tiny") << QStringLiteral("1e-30") << 51 << 49;
}

void TestSpinBox::extremeLevels()
{
    QFETCH(QString, text);
    QFETCH(int, up);
    QFETCH(int, down);
    NQSpinBox box;
    box.setRange(0, 100);
    box.setValueByManual(50);
    Knob::turnText(&box, 1, text);
    QCOMPARE(box.value(), up);
    box.setValueByManual(50);
    Knob::turnText(&box, -1, text);
    QCOMPARE(box.value(), down);

    NQDoubleSpinBox dbl;
    dbl.setRange(0.0, 100.0);
    dbl.setValueByManual(50.0);
    Knob::turnText(&dbl, 1, text);
    QVERIFY(dbl.value() >= 50.0 && dbl.value() <= 100.0);
}

void TestSpinBox::intLimits()
{
    NQSpinBox box;
    box.setRange(kIntMin, kIntMax);
    box.setValueByManual(kIntMax - 1);
    Knob::turn(&box, 1, 0.5);
    QCOMPARE(box.value(), kIntMax);
    Knob::turnText(&box, 1, QStringLiteral("1e9"));
    QCOMPARE(box.value(), kIntMax);
    box.setValueByManual(kIntMin + 1);
    Knob::turnText(&box, -1, QStringLiteral("1e9"));
    QCOMPARE(box.value(), kIntMin);
}

void TestSpinBox::setValueByManual()
{
    NQSpinBox box;
    box.setRange(-10, 10);
    QSignalSpy values(&box, QOverload<int>::of(&QSpinBox::valueChanged));
    box.setValueByManual(7);
    QCOMPARE(box.value(), 7);
    QCOMPARE(box.committedValue(), 7);
    box.setValueByManual(11); // ignored
    QCOMPARE(box.value(), 7);
    QCOMPARE(box.committedValue(), 7);
    QCOMPARE(values.count(), 0);
    QVERIFY(!box.signalsBlocked());
    box.blockSignals(true);
    box.setValueByManual(-3);
    QVERIFY(box.signalsBlocked()); // the caller's blocking is kept
    box.blockSignals(false);

    // The double box does not test the range: it stores and clamps.
    NQDoubleSpinBox dbl;
    dbl.setRange(0.0, 1.0);
    QSignalSpy dvalues(&dbl, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    dbl.setValueByManual(5.0);
    QCOMPARE(dbl.value(), 1.0);
    QCOMPARE(dbl.committedValue(), 5.0);
    QCOMPARE(dvalues.count(), 0);
}

void TestSpinBox::calRoundOff()
{
    NQSpinBox box;
    box.setRange(-1000, 1000);
    box.setRoundOff(true);
    QCOMPARE(box.calRoundOff(17), 17);
    box.setSingleStep(20);
    QCOMPARE(box.calRoundOff(37), 30); // 20 + 10: 17 / 10.0 >= 0.5
    QCOMPARE(box.calRoundOff(24), 20);
    QCOMPARE(box.calRoundOff(25), 30);
    QCOMPARE(box.calRoundOff(-37), -20);
    box.setRoundOff(false);
    QCOMPARE(box.calRoundOff(37), 20);
    QCOMPARE(box.calRoundOff(-37), -20);
}

void TestSpinBox::validate_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("single");
    QTest::addColumn<int>("suffix");
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("state");

    QTest::newRow("seven digits") << 0 << 100 << 1 << 0 << "1234567" << int(QValidator::Invalid);
    QTest::newRow("six digits, out of range") << 0 << 100 << 1 << 0 << "123456" << int(QValidator::Intermediate);
    QTest::newRow("seven chars negative") << -200000 << 0 << 1 << 0 << "-123456" << int(QValidator::Acceptable);
    QTest::newRow("eight chars negative") << -2000000 << 0 << 1 << 0 << "-1234567" << int(QValidator::Invalid);
    QTest::newRow("suffix counts") << 0 << 1000000 << 1 << 1 << "123456%" << int(QValidator::Invalid);
    QTest::newRow("suffix, in range") << 0 << 100 << 1 << 1 << "55%" << int(QValidator::Acceptable);
    QTest::newRow("on the grid") << 0 << 100 << 5 << 0 << "50" << int(QValidator::Acceptable);
    QTest::newRow("off the grid") << 0 << 100 << 5 << 0 << "52" << int(QValidator::Intermediate);
    QTest::newRow("below the range") << 10 << 100 << 1 << 0 << "5" << int(QValidator::Intermediate);
    QTest::newRow("letters") << 0 << 100 << 1 << 0 << "ab" << int(QValidator::Invalid);
}

void TestSpinBox::validate()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, single);
    QFETCH(int, suffix);
    QFETCH(QString, input);
    QFETCH(int, state);
    NQSpinBox box(static_cast<SuffixType>(suffix));
    box.setRange(minimum, maximum);
    box.setSingleStep(single);
    QCOMPARE(int(validated(box, input)), state);
}

void TestSpinBox::fixup_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("single");
    QTest::addColumn<bool>("roundOff");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("output");

    QTest::newRow("snap down") << 0 << 100 << 5 << false << "57%" << "55%";
    QTest::newRow("clamp high") << 0 << 100 << 5 << false << "150%" << "100%";
    QTest::newRow("round-off decade") << 0 << 100 << 20 << true << "37%" << "30%";
    QTest::newRow("below minimum after snap") << 3 << 100 << 5 << false << "1%" << "5%";
    QTest::newRow("not a number") << 0 << 100 << 1 << false << "" << "";
}

void TestSpinBox::fixup()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, single);
    QFETCH(bool, roundOff);
    QFETCH(QString, input);
    QFETCH(QString, output);
    NQSpinBox box(SuffixPercent);
    box.setRange(minimum, maximum);
    box.setSingleStep(single);
    box.setRoundOff(roundOff);
    QCOMPARE(fixedUp(box, input), output);
}

void TestSpinBox::negativeSelectionAndKey0()
{
    Harness<NQSpinBox> h(SuffixPercent, QuitKeepValue, 1);
    QVERIFY(h.activate());
    h.box->setRange(-50, 50);
    h.box->setValueByManual(-12);
    h.box->setFocus(Qt::TabFocusReason);
    QVERIFY(h.box->hasFocus());
    QCOMPARE(editOf(h.box)->text(), QStringLiteral("-12%"));
    QCOMPARE(editOf(h.box)->selectedText(), QStringLiteral("12")); // digits without sign and suffix

    QSignalSpy values(h.box, QOverload<int>::of(&QSpinBox::valueChanged));
    QVERIFY(Knob::key(h.box, Qt::Key_0));
    QCOMPARE(h.box->value(), 0);
    QCOMPARE(h.box->committedValue(), 0);
    QCOMPARE(editOf(h.box)->selectedText(), QStringLiteral("0")); // select-all leaves out the suffix
    QCOMPARE(values.count(), 1);

    // A positive value is selected whole.
    h.other->setFocus();
    h.box->setValueByManual(25);
    h.box->setFocus();
    QCOMPARE(editOf(h.box)->selectedText(), QStringLiteral("25"));
    // The 0 key is typed then, as in any spin box.
    Knob::key(h.box, Qt::Key_0, QStringLiteral("0"));
    QCOMPARE(editOf(h.box)->text(), QStringLiteral("0%"));

    // 0 outside the range: the key is consumed and the value kept.
    Harness<NQSpinBox> n(SuffixNone, QuitKeepValue, 0);
    QVERIFY(n.activate());
    n.box->setRange(-50, -1);
    n.box->setValueByManual(-12);
    n.box->setFocus();
    QCOMPARE(editOf(n.box)->selectedText(), QStringLiteral("12"));
    QVERIFY(Knob::key(n.box, Qt::Key_0));
    QCOMPARE(n.box->value(), -12);
    QCOMPARE(editOf(n.box)->text(), QStringLiteral("-12"));
}

void TestSpinBox::enterEndsEdit()
{
    Harness<NQSpinBox> h(SuffixNone, QuitKeepValue, 0);
    QVERIFY(h.activate());
    h.box->setRange(0, 100);
    h.box->setFocus(Qt::TabFocusReason);
    Knob::turn(h.box, 2);
    QSignalSpy finished(h.box, &NQSpinBox::editFinished);
    // Return is left to the base class and the row: the edit goes on.
    Knob::press(h.box);
    QVERIFY(h.box->hasFocus());
    QCOMPARE(finished.count(), 0);
    // Enter clears the focus, which ends the edit.
    Knob::press(h.box, true);
    QVERIFY(!h.box->hasFocus());
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.at(0).at(0).value<Qt::FocusReason>(), Qt::OtherFocusReason);
    QCOMPARE(h.box->value(), 2);

    // The reason of the focus loss is passed on.
    h.box->setFocus();
    h.other->setFocus(Qt::TabFocusReason);
    QCOMPARE(finished.count(), 2);
    QCOMPARE(finished.at(1).at(0).value<Qt::FocusReason>(), Qt::TabFocusReason);
}

void TestSpinBox::focusFrames_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("frame");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("2") << 2 << false;
    QTest::newRow("3") << 3 << true;
}

void TestSpinBox::focusFrames()
{
    QFETCH(int, mode);
    QFETCH(bool, frame);
    Harness<NQSpinBox> h(SuffixNone, QuitKeepValue, mode);
    QVERIFY(h.activate());
    h.box->setStyleSheet(QStringLiteral("font-size:20px;"));
    h.box->setFocus();
    QCOMPARE(h.box->styleSheet(),
             frame ? QStringLiteral("border: 2px solid rgba(255, 255, 255,0.8);") : QStringLiteral("font-size:20px;"));
    h.other->setFocus();
    QCOMPARE(h.box->styleSheet(), frame ? QStringLiteral("border: none;") : QStringLiteral("font-size:20px;"));

    // A focus change that leaves the sheet's text as it is costs no repolish (the
    // window losing and regaining activation gives focus-out and focus-in again).
    h.box->setFocus();
    int styleChanges = 0;
    EventCounter counter(QEvent::StyleChange, &styleChanges);
    h.box->installEventFilter(&counter);
    QFocusEvent again(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(h.box, &again);
    QCOMPARE(styleChanges, 0);
    h.box->removeEventFilter(&counter);
}

void TestSpinBox::debugLine()
{
    setKnobLog(true);
    NQSpinBox box;
    box.setRange(0, 100);
    QTest::ignoreMessage(QtDebugMsg, "[knobspin] singlestep(1)-step(10)-level(0.1)-max(100)-min(0)-curVal(10)");
    Knob::turn(&box, 1, 0.1);
    QTest::ignoreMessage(QtDebugMsg, "[knobspin] singlestep(1)-step(1)-level(1)-max(100)-min(0)-curVal(9)");
    Knob::turn(&box, -1, 1.0);

    NQSpinBox wide;
    wide.setRange(0, 20000);
    wide.setSingleStep(5);
    QTest::ignoreMessage(QtDebugMsg,
                         "[knobspin] singlestep(5)-step(20000)-level(0.5)-max(20000)-min(0)-curVal(20000)");
    Knob::turn(&wide, 1, 0.5);

    NQDoubleSpinBox dbl;
    dbl.setRange(-10.0, 10.0);
    dbl.setSingleStep(0.5);
    dbl.setValueByManual(1.5);
    QTest::ignoreMessage(QtDebugMsg, "[knobspin] singlestep(0.5)-step(0.5)-level(1)-max(10)-min(-10)-curVal(2)");
    Knob::turn(&dbl, 1, 1.0);
    QTest::ignoreMessage(QtDebugMsg,
                         "[knobspin] singlestep(0.5)-step(2.5)-level(0.25)-max(10)-min(-10)-curVal(-0.5)");
    Knob::turn(&dbl, -1, 0.25);
    setKnobLog(false);
}

void TestSpinBox::doubleStep()
{
    NQDoubleSpinBox box;
    box.setRange(0.0, 10.0);
    box.setSingleStep(0.1);
    QCOMPARE(box.getStep(1.0f), 0.1);
    QCOMPARE(box.getStep(0.05f), 0.1); // at least one single step
    QVERIFY(qFuzzyCompare(box.getStep(0.5f), 0.5));
    box.setRange(0.0, 100000.0);
    box.setSingleStep(1.0);
    QCOMPARE(box.getStep(0.5f), 4000.0); // span capped at 8000
    box.setRange(0.0, 50.0);
    QCOMPARE(box.getStep(2.0f), 50.0); // capped at the maximum

    // A maximum of 0 or below caps the step at nothing or less: one single step then,
    // and a fast turn still moves the way it is turned.
    box.setRange(-60.0, 0.0);
    box.setSingleStep(0.5);
    QCOMPARE(box.getStep(0.5f), 0.5);
    box.setValueByManual(-30.0);
    Knob::turn(&box, 1, 0.5);
    QCOMPARE(box.value(), -29.5);
    box.setRange(-60.0, -10.0);
    QCOMPARE(box.getStep(0.5f), 0.5);
    Knob::turn(&box, 1, 0.5);
    QCOMPARE(box.value(), -29.0);
    Knob::turn(&box, -1, 0.5);
    QCOMPARE(box.value(), -29.5);
}

void TestSpinBox::doubleStepping()
{
    NQDoubleSpinBox box;
    box.setDecimals(1);
    box.setRange(-5.0, 5.0);
    box.setSingleStep(0.5);
    QSignalSpy values(&box, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    Knob::turn(&box, 3);
    QCOMPARE(box.value(), 1.5);
    Knob::turn(&box, -1, 0.25); // 0.25 * 10 = 2.5 single steps of 0.5: no grid snapping
    QCOMPARE(box.value(), 0.3); // 1.5 - 1.25, shown with one decimal
    Knob::turn(&box, -20, 1.0);
    QCOMPARE(box.value(), -5.0);
    QCOMPARE(values.count(), 15); // 3 + 1 + 11 to reach -5.0: the last steps change nothing
}

void TestSpinBox::doubleOutOfRangeText()
{
    Harness<NQDoubleSpinBox> h(SuffixNone, QuitKeepValue);
    QVERIFY(h.activate());
    h.box->setRange(0.0, 10.0);
    h.box->setValueByManual(4.0);
    h.box->setFocus();
    editOf(h.box)->setText(QStringLiteral("50"));
    setKnobLog(true); // no step, so no line either (an unexpected line would fail below)
    QSignalSpy values(h.box, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    Knob::turn(h.box, 1);
    setKnobLog(false);
    QCOMPARE(values.count(), 0);
    QCOMPARE(editOf(h.box)->text(), QStringLiteral("50"));
}

void TestSpinBox::doubleValidateAndFixup()
{
    NQDoubleSpinBox box(SuffixSecond, QuitKeepValue);
    box.setRange(0.0, 10.0);
    QCOMPARE(validated(box, QStringLiteral("1.234s")), QValidator::Invalid); // six characters
    QCOMPARE(validated(box, QStringLiteral("2.5s")), QValidator::Acceptable);
    QCOMPARE(validated(box, QStringLiteral("12.5s")), QValidator::Intermediate);
    QCOMPARE(validated(box, QStringLiteral("-1.5")), QValidator::Intermediate);
    QCOMPARE(fixedUp(box, QStringLiteral("12.5s")), QStringLiteral("10s"));
    QCOMPARE(fixedUp(box, QStringLiteral("3.14159s")), QStringLiteral("3.14159s"));
    QCOMPARE(fixedUp(box, QStringLiteral("-1s")), QStringLiteral("0s"));
}

void TestSpinBox::doubleFocusAndEdit()
{
    Harness<NQDoubleSpinBox> h(SuffixNone, QuitKeepValue);
    QVERIFY(h.activate());
    h.box->setRange(-10.0, 10.0);
    h.box->setValueByManual(-2.5);
    QSignalSpy finished(h.box, &NQDoubleSpinBox::editFinished);
    h.box->setFocus();
    QCOMPARE(h.box->styleSheet(), QStringLiteral("border: 2px solid rgba(255, 255, 255,0.8)"));
    QCOMPARE(editOf(h.box)->selectedText(), editOf(h.box)->text()); // plain select-all on focus
    // After a step the selection is the sign-aware one.
    Knob::turn(h.box, -1);
    QCOMPARE(h.box->value(), -3.5);
    QCOMPARE(editOf(h.box)->selectedText(), QStringLiteral("3.50"));
    Knob::key(h.box, Qt::Key_0);
    QCOMPARE(h.box->value(), 0.0);
    Knob::press(h.box, true);
    QVERIFY(!h.box->hasFocus());
    QCOMPARE(h.box->styleSheet(), QStringLiteral("border: none"));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(h.box->committedValue(), 0.0);
}

QTEST_MAIN(TestSpinBox)
#include "tst_spinbox.moc"
