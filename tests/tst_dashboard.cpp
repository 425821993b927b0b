// Dials: the step arithmetic of the knob, stepping and clamping, the animation and
// its end value, the keys' signals, bad settings, painting and lifetime; the dial row
// walked with the knob.
#include "leakcheck.h"
#include "knob.h"

#include <lcdwidgets.h>

#include <QPointer>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QtTest>
#include <climits>
#include <cmath>
#include <limits>

using namespace LCD::Widget;

namespace {

// Collects the Qt warnings emitted while it lives (ignored ones included), so that a
// test can prove that nothing reached Qt that it would complain about.
class WarningWatch
{
public:
    WarningWatch()
    {
        s_messages.clear();
        m_previous = qInstallMessageHandler(handler);
        s_previous = m_previous;
    }
    ~WarningWatch() { qInstallMessageHandler(m_previous); }
    QStringList qtWarnings() const
    {
        QStringList out;
        for (QString const& m : qAsConst(s_messages))
            if (m.startsWith(QLatin1String("Q")) || m.contains(QLatin1String("QPainter")))
                out << m;
        return out;
    }

private:
    static void handler(QtMsgType type, QMessageLogContext const& context, QString const& message)
    {
        if (type == QtWarningMsg)
            s_messages << message;
        if (s_previous)
            s_previous(type, context, message);
    }
    QtMessageHandler m_previous = nullptr;
    static inline QStringList s_messages;
    static inline QtMessageHandler s_previous = nullptr;
};

DashBoardData data(int min, int max, double step, int fraction)
{
    DashBoardData d;
    d.min = min;
    d.max = max;
    d.step = step;
    d.fraction = fraction;
    d.unit = QStringLiteral("dB");
    d.text = QStringLiteral("Level");
    return d;
}

// Sends a key straight to the dial, as the panel driver does to the focus widget.
void press(QWidget* w, int key, QString const& text = QString())
{
    QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(w, &e);
}

} // namespace

class TestDashBoard : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void defaults()
    {
        DashBoardWidget d;
        QCOMPARE(d.max(), 100.0);
        QCOMPARE(d.min(), 0.0);
        QCOMPARE(d.startAngle(), -50.0);
        QCOMPARE(d.endAngle(), 230.0);
        QCOMPARE(d.value(), 0.0);
        QCOMPARE(d.scaleMajor(), 10);
        QCOMPARE(d.scaleMinor(), 5);
        QCOMPARE(d.getRealStep(1.0f), 100);
        QCOMPARE(d.fraction(), 1);
        QCOMPARE(d.unit(), QStringLiteral("unit"));
        QCOMPARE(d.text(), QStringLiteral("test"));
        QCOMPARE(d.arcColor(), QColor(19, 80, 159));
        QCOMPARE(d.scaleColor(), QColor(4, 168, 173));
        QCOMPARE(d.pointerColor(), QColor(4, 181, 200));
        QCOMPARE(d.textColor(), QColor(144, 133, 116));
        QCOMPARE(d.backgroundColor(), QColor(Qt::transparent));
        QCOMPARE(DashBoardWidget::FOCUS_ARG_COLOR, QColor(210, 105, 19));
        QCOMPARE(d.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(d.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }

    void realStep_data()
    {
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<double>("step");
        QTest::addColumn<float>("factor");
        QTest::addColumn<int>("expected");
        // range in hundredths = (max - min) * 100; k = (int)(range * factor)
        QTest::newRow("level 1: the plain step") << 0 << 100 << 1.0 << 1.0f << 100;
        QTest::newRow("k = 10 steps") << 0 << 100 << 1.0 << 0.001f << 1000;
        QTest::newRow("k steps beyond the range: the range") << 0 << 100 << 1.0 << 0.05f << 10000;
        QTest::newRow("k = 1: the plain step") << 0 << 100 << 1.0 << 0.0001f << 100;
        QTest::newRow("whole steps of the range only") << 0 << 1 << 0.3 << 0.05f << 90;
        QTest::newRow("range below one step: no step") << 0 << 0 << 1.0 << 0.5f << 0;
        QTest::newRow("step 0") << 0 << 100 << 0.0 << 0.05f << 0;
        QTest::newRow("negative level: the plain step") << 0 << 100 << 1.0 << -3.0f << 100;
        QTest::newRow("huge range and level stay in int")
            << -1000000000 << 1000000000 << 1.0 << 1.0e6f << (INT_MAX / 100) * 100;
    }

    void realStep()
    {
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(double, step);
        QFETCH(float, factor);
        QFETCH(int, expected);
        DashBoardWidget d;
        d.setDashBoardData(data(min, max, step, 1));
        QCOMPARE(d.getRealStep(factor), expected);
    }

    void knobStepsClampsAndAnimatesToTheEnd()
    {
        DashBoardWidget d;
        d.setDashBoardData(data(0, 10, 1.5, 1));
        QCOMPARE(d.value(), 0.0);
        QSignalSpy values(&d, &DashBoardWidget::signalValueChanged);

        QTest::ignoreMessage(QtDebugMsg, "DashBoardWidget::valueChange d->realStep: 150");
        press(&d, Qt::Key_Down, QStringLiteral("1")); // Down raises
        QCOMPARE(d.realStep(), 150);
        QCOMPARE(d.targetValue(), 1.5);
        QVERIFY(d.isAnimating());
        QCOMPARE(values.count(), 1);
        QCOMPARE(values.at(0).at(0), QVariant(1.5));
        QTRY_VERIFY(!d.isAnimating());
        QCOMPARE(d.value(), 1.5);

        // Turns during the animation step from where the pointer is heading.
        press(&d, Qt::Key_Down);
        press(&d, Qt::Key_Down, QStringLiteral("not a level"));
        QCOMPARE(d.targetValue(), 4.5);
        QTRY_COMPARE(d.value(), 4.5);

        press(&d, Qt::Key_Up); // Up lowers
        QTRY_COMPARE(d.value(), 3.0);

        // A fast turn goes to the end and stops there; a further turn emits nothing.
        press(&d, Qt::Key_Down, QStringLiteral("0.05"));
        QCOMPARE(d.targetValue(), 10.0);
        values.clear();
        press(&d, Qt::Key_Down, QStringLiteral("0.05"));
        QCOMPARE(values.count(), 0);
        QTRY_COMPARE(d.value(), 10.0);
        QVERIFY(!d.isAnimating());
    }

    void stepsRoundToTheShownDecimals()
    {
        DashBoardWidget d;
        d.setDashBoardData(data(0, 10, 0.4, 0));
        QSignalSpy values(&d, &DashBoardWidget::signalValueChanged);
        press(&d, Qt::Key_Down); // 0.4 shows as "0": no change
        QCOMPARE(values.count(), 0);
        QCOMPARE(d.targetValue(), 0.0);
        d.setStep(0.6);
        press(&d, Qt::Key_Down); // 0.6 shows as "1"
        QCOMPARE(d.targetValue(), 1.0);
    }

    void animationStartsOnlyInsideTheRangeAndOnAChange()
    {
        DashBoardWidget d;
        QSignalSpy values(&d, &DashBoardWidget::signalValueChanged);
        d.onStartAnimation(150.0);
        d.onStartAnimation(-1.0);
        d.onStartAnimation(0.0); // the present value
        d.onStartAnimation(std::nan(""));
        QCOMPARE(values.count(), 0);
        QVERIFY(!d.isAnimating());
        emit d.valueChanged(42.0); // the dial's own signal drives it too
        QCOMPARE(values.count(), 1);
        QTRY_COMPARE(d.value(), 42.0);
    }

    void keysEndTheEdit()
    {
        DashBoardWidget d;
        d.setDashBoardData(data(0, 100, 2.5, 1));
        d.setCurrentValue(12.34);
        QStringList order;
        connect(&d, &DashBoardWidget::signalValueChanged, this,
                [&order](QVariant const& v) {
                    order << QStringLiteral("value %1 %2").arg(QLatin1String(v.typeName())).arg(double(v.toFloat()));
                });
        connect(&d, &DashBoardWidget::signalEditFinished, this, [&order] { order << QStringLiteral("finished"); });
        connect(&d, &DashBoardWidget::signalCloseEditStatus, this, [&order] { order << QStringLiteral("closed"); });
        press(&d, Qt::Key_Enter);
        press(&d, Qt::Key_Escape);
        QCOMPARE(order, (QStringList{QStringLiteral("value float 12.3"), QStringLiteral("finished"),
                                     QStringLiteral("closed")}));
    }

    void badSettingsAreRefused()
    {
        DashBoardWidget d;
        WarningWatch watch;
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setScaleMajor: scale out of range, ignored: 0");
        d.setScaleMajor(0);
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setScaleMinor: scale out of range, ignored: -3");
        d.setScaleMinor(-3);
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setScaleMajor: scale out of range, ignored: 101");
        d.setScaleMajor(101);
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setScaleMinor: scale out of range, ignored: 101");
        d.setScaleMinor(101); // 10 x 100 = 1000 ticks would be the most
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setStartAngle: angle out of range"));
        d.setStartAngle(std::nan(""));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setEndAngle: angle out of range"));
        d.setEndAngle(1.0e9);
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setMin: not a finite number, ignored");
        d.setMin(std::numeric_limits<double>::infinity());
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setValue: not a finite number, ignored");
        d.setValue(std::nan(""));
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setStep: not a finite number, ignored");
        d.setStep(std::nan(""));
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setFraction: decimals out of range, ignored: -1");
        d.setFraction(-1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setItemSize: negative size"));
        d.setItemSize(QSize(-1, 10));
        QCOMPARE(d.scaleMajor(), 10);
        QCOMPARE(d.scaleMinor(), 5);
        QCOMPARE(d.startAngle(), -50.0);
        QCOMPARE(d.endAngle(), 230.0);
        QCOMPARE(d.min(), 0.0);
        QCOMPARE(d.value(), 0.0);
        QCOMPARE(d.getRealStep(1.0f), 100);
        QCOMPARE(d.fraction(), 1);

        // A record whose minimum lies above its maximum changes nothing.
        DashBoardData inverted = data(50, 10, 1.0, 0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setDashBoardData: minimum 50 above maximum 10"));
        d.setDashBoardData(inverted);
        QCOMPARE(d.max(), 100.0);
        QCOMPARE(d.fraction(), 1);

        // Huge steps are kept in the int range.
        d.setStep(1.0e12);
        QCOMPARE(d.getRealStep(1.0f), INT_MAX);
        QVERIFY(watch.qtWarnings().isEmpty());
    }

    void invertedRangeHoldsStill()
    {
        DashBoardWidget d;
        d.resize(120, 120);
        d.setMin(80);
        d.setmax(20); // the setters may come in any order: stored, but inert
        QSignalSpy values(&d, &DashBoardWidget::signalValueChanged);
        press(&d, Qt::Key_Down, QStringLiteral("0.05"));
        press(&d, Qt::Key_Up);
        QCOMPARE(values.count(), 0);
        QCOMPARE(d.value(), 0.0);
        WarningWatch watch;
        QImage const img = d.grab().toImage(); // no division by the empty range
        QVERIFY(!img.isNull());
        d.setMin(d.max()); // an empty range paints too
        d.grab();
        QVERIFY(watch.qtWarnings().isEmpty());
    }

    void extremeRangesStayFinite()
    {
        DashBoardWidget d;
        d.resize(120, 120);
        d.setMin(-1.0e308);
        d.setmax(1.0e308); // the span overflows to infinity
        d.setFraction(0);
        WarningWatch watch;
        d.grab();
        QSignalSpy values(&d, &DashBoardWidget::signalValueChanged);
        press(&d, Qt::Key_Down, QStringLiteral("1e9"));
        press(&d, Qt::Key_Up, QStringLiteral("nan"));
        QVERIFY(std::isfinite(d.targetValue()));
        d.grab();
        QVERIFY(watch.qtWarnings().isEmpty());
    }

    void paintsTheDefaultFace()
    {
        DashBoardWidget d;
        d.setBackgroundColor(Qt::black);
        d.resize(300, 300);
        QSignalSpy drawn(&d, &DashBoardWidget::signalDrawValueChanged);
        QImage const img = d.grab().toImage();
        // side 300: R = 100, arc pen 20, arc radius 80 -> the ring lies 70..90 from the
        // centre; open at the bottom (from 230 to 310 degrees).
        auto at = [&img](double deg, double radius) {
            double const a = qDegreesToRadians(deg);
            return img.pixelColor(int(150 + radius * std::cos(a)), int(150 - radius * std::sin(a)));
        };
        QColor const arc = DashBoardWidget::DEFAULT_ARG_COLOR;
        QCOMPARE(at(90, 80), arc);   // top
        QCOMPARE(at(0, 80), arc);    // right
        QCOMPARE(at(180, 80), arc);  // left
        QCOMPARE(at(-40, 80), arc);  // just inside the start
        QCOMPARE(at(220, 80), arc);  // just inside the end
        QCOMPARE(at(270, 80), QColor(Qt::black)); // the opening
        QCOMPARE(drawn.count(), 1);
        QCOMPARE(drawn.at(0).at(0).toString(), QStringLiteral("0.0"));
        QCOMPARE(drawn.at(0).at(1).toString(), QStringLiteral("unit"));
        d.grab(); // nothing new to tell
        QCOMPARE(drawn.count(), 1);
    }

    void paintsAtAnySize()
    {
        WarningWatch watch;
        // The last one is too large to keep its face in a pixmap.
        for (QSize s : {QSize(0, 0), QSize(1, 1), QSize(10, 40), QSize(24, 24), QSize(2000, 30), QSize(2100, 2100)}) {
            DashBoardWidget d;
            d.setFraction(0);
            d.setScaleMajor(100);
            d.setScaleMinor(10);
            d.resize(s);
            d.grab();
        }
        QVERIFY2(watch.qtWarnings().isEmpty(), qPrintable(watch.qtWarnings().join('\n')));
    }

    void labelShowsWhatTheDialDraws()
    {
        DashBoardWidget d;
        d.setDashBoardData(data(-60, 12, 1.0, 0));
        d.setCurrentValue(-18.4);
        DashBoardLabel label(QSize(100, 60));
        QCOMPARE(label.size(), QSize(100, 60));
        connect(&d, &DashBoardWidget::signalDrawValueChanged, &label, &DashBoardLabel::slotDrawValueChanged);
        d.resize(160, 160);
        d.grab();
        QCOMPARE(label.valueText(), QStringLiteral("-18"));
        QCOMPARE(label.unitText(), QStringLiteral("dB"));
        d.setCurrentValue(-0.2); // never "-0"
        d.grab();
        QCOMPARE(label.valueText(), QStringLiteral("0"));
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardLabel] setContentFontSize: size refused: 0");
        label.setContentFontSize(0);
        // Past any font the unit's 3/5 would overflow: refused.
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardLabel] setContentFontSize: size refused: 2147483647");
        label.setContentFontSize(INT_MAX);
    }

    void contentFontSizeIsShared()
    {
        int const before = DashBoardWidget::getContentFontSize();
        DashBoardWidget::setContentFontSize(32);
        QCOMPARE(DashBoardWidget::getContentFontSize(), 32);
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setContentFontSize: size refused: 0");
        DashBoardWidget::setContentFontSize(0);
        QTest::ignoreMessage(QtWarningMsg, "[DashBoardWidget] setContentFontSize: size refused: 100000");
        DashBoardWidget::setContentFontSize(100000);
        QCOMPARE(DashBoardWidget::getContentFontSize(), 32);
        DashBoardWidget::setContentFontSize(before);
    }

    void focusAndSelectionColours()
    {
        QWidget window;
        auto* d = new DashBoardWidget(&window);
        auto* other = new QWidget(&window);
        other->setFocusPolicy(Qt::StrongFocus);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        d->setSelected(true);
        QCOMPARE(d->arcColor(), DashBoardWidget::SELECTED_COLOR);
        d->setFocus();
        QCOMPARE(d->arcColor(), DashBoardWidget::FOCUS_ARG_COLOR);
        other->setFocus();
        QCOMPARE(d->arcColor(), DashBoardWidget::SELECTED_COLOR);
        d->setSelected(false);
        QCOMPARE(d->arcColor(), DashBoardWidget::DEFAULT_ARG_COLOR);
    }

    void destroyedWhileAnimating()
    {
        auto* d = new DashBoardWidget;
        d->resize(100, 100);
        d->show();
        QPointer<QPropertyAnimation> animation = d->findChild<QPropertyAnimation*>();
        QVERIFY(animation);
        d->onStartAnimation(90);
        QVERIFY(d->isAnimating());
        delete d;
        QVERIFY(animation.isNull());
        QTest::qWait(60); // a few animation ticks: nothing left to drive
    }

    // --- The dial row ------------------------------------------------------

    void rowWalksItsDialsWithTheKnob()
    {
        QWidget page;
        page.setFocusPolicy(Qt::StrongFocus);
        auto* row = new TypeItemDashBoard(&page);
        QMap<int, DashBoardData> dials;
        dials.insert(5, data(0, 100, 1.0, 0));
        dials.insert(2, data(-60, 12, 1.0, 0));
        dials.insert(9, data(0, 10, 0.5, 1));
        row->setListItems(dials);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        page.setFocus();

        QSignalSpy started(row, &CommonItemType::signalEditStarted);
        QSignalSpy closed(row, &CommonItemType::signalCloseEditStatus);
        QSignalSpy values(row, &TypeItemDashBoard::signalDashBoardValueChanged);
        row->editValue();
        QCOMPARE(started.count(), 1);
        QCOMPARE(QApplication::focusWidget(), row);
        QCOMPARE(row->currentDashBoard(), row->dashBoard(2)); // first in key order
        QVERIFY(row->dashBoard(2)->isSelected());

        Knob::turn(row, -1); // Down: next
        QCOMPARE(row->currentDashBoard(), row->dashBoard(5));
        QVERIFY(!row->dashBoard(2)->isSelected());
        Knob::turn(row, -5); // stops at the last
        QCOMPARE(row->currentDashBoard(), row->dashBoard(9));
        row->setItemVisible(5, false);
        Knob::turn(row, 1); // Up skips the hidden dial
        QCOMPARE(row->currentDashBoard(), row->dashBoard(2));
        Knob::turn(row, 1); // nothing before the first
        QCOMPARE(row->currentDashBoard(), row->dashBoard(2));

        Knob::press(row); // the dial takes the knob
        QCOMPARE(QApplication::focusWidget(), row->dashBoard(2));
        QCOMPARE(row->dashBoard(2)->arcColor(), DashBoardWidget::FOCUS_ARG_COLOR);
        Knob::turn(row, -3); // Down raises: -60 -> -57
        QCOMPARE(values.count(), 3);
        QCOMPARE(values.last().at(0).toInt(), 2);
        QCOMPARE(values.last().at(1).toDouble(), -57.0);
        QCOMPARE(row->getCurrentValue(2), QVariant(-57.0));
        Knob::back(row); // the dial gives the knob back to the row
        QCOMPARE(QApplication::focusWidget(), row);
        QCOMPARE(closed.count(), 0);
        QCOMPARE(row->dashBoard(2)->arcColor(), DashBoardWidget::SELECTED_COLOR);

        Knob::back(row); // the row ends the edit
        QCOMPARE(QApplication::focusWidget(), &page);
        QCOMPARE(closed.count(), 1);
        for (int key : {2, 5, 9})
            QVERIFY(!row->dashBoard(key)->isSelected());
    }

    void rowRefusesBadRequests()
    {
        QWidget page;
        auto* row = new TypeItemDashBoard(&page);
        QSignalSpy started(row, &CommonItemType::signalEditStarted);
        row->editValue(); // no dials: no edit to announce
        QCOMPARE(started.count(), 0);

        row->setListItems({{1, data(0, 100, 1.0, 1)}});
        QTest::ignoreMessage(QtWarningMsg, "[TypeItemDashBoard] setCurrentValue: no dial with key 7");
        row->setCurrentValue(7, 3);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setCurrentValue: not a number for key 1"));
        row->setCurrentValue(1, QVariant(QStringLiteral("loud")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setCurrentValue: not a number for key 1"));
        row->setCurrentValue(1, QVariant(std::nan("")));
        QCOMPARE(row->getCurrentValue(1), QVariant(0.0));
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemDashBoard] getCurrentValue: no dial with key 3");
        QCOMPARE(row->getCurrentValue(3), QVariant());
        row->setCurrentValue(1, QStringLiteral("12.5"));
        QCOMPARE(row->getCurrentValue(1), QVariant(12.5));
        DashBoardWidget foreign;
        QTest::ignoreMessage(QtWarningMsg, "[TypeItemDashBoard] setCurrentSelected: not a dial of this row");
        row->setCurrentSelected(&foreign);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setItemSize: negative size"));
        row->setItemSize(QSize(-5, 5));
        row->setItemSize(QSize(90, 90));
        QCOMPARE(row->dashBoard(1)->size(), QSize(90, 90));
    }
};

QTEST_MAIN(TestDashBoard)
#include "tst_dashboard.moc"
