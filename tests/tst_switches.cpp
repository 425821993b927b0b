// The painted switch (size, toggling, the thumb's slide and its end), the labelled
// switch, and the switch rows: signal order of a toggle, the lone-switch press, the
// knob's walk through a row of switches.
#include <lcdwidgets.h>

#include "hostwindow.h"
#include "leakcheck.h"
#include "knob.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

using namespace LCD::Widget;

namespace {

// A shown, active top-level window: focus only lands in an active window.
std::unique_ptr<QWidget> activeHost() { return HostWindow::activeHost(QSize(600, 80), HostWindow::NoFocus); }

void click(QWidget* w, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(w, button, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(w, button, Qt::NoModifier, QPoint(5, 5));
}

} // namespace

class TestSwitches : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void switchSizeIsTwiceTheHeight()
    {
        SwitchControl s;
        QCOMPARE(s.isToggled(), false);
        s.setSwitchSize(QSize(100, 30));
        QCOMPARE(s.minimumSize(), QSize(60, 30));
        QCOMPARE(s.maximumSize(), QSize(60, 30));
        // Size hints follow the present height: 2 * (6 + 15) by 6 + (6 + 15).
        s.resize(60, 30);
        QCOMPARE(s.sizeHint(), QSize(42, 27));
        QCOMPARE(s.minimumSizeHint(), QSize(42, 27));

        // A size of 0 (or a negative one) is refused and logged.
        QTest::ignoreMessage(QtDebugMsg, "SwitchControl::setSwitchSize: invalid size 10x0");
        s.setSwitchSize(QSize(10, 0));
        QTest::ignoreMessage(QtDebugMsg, "SwitchControl::setSwitchSize: invalid size -1x-1");
        s.setSwitchSize(QSize());
        // A width no widget can have would overflow the thumb's position when painted.
        QTest::ignoreMessage(QtDebugMsg, "SwitchControl::setSwitchSize: invalid size 2147483647x30");
        s.setSwitchSize(QSize(INT_MAX, 30));
        QCOMPARE(s.minimumSize(), QSize(60, 30));
    }

    void setToggleAlwaysReports()
    {
        SwitchControl s;
        QSignalSpy toggled(&s, &SwitchControl::toggled);
        s.setToggle(false);
        s.setToggle(true);
        s.setToggle(true);
        QCOMPARE(toggled.size(), 3);
        QCOMPARE(toggled.at(0).at(0).toBool(), false);
        QCOMPARE(toggled.at(2).at(0).toBool(), true);
        QVERIFY(!s.isSliding()); // no slide without a click
    }

    void unsizedSwitchPaintsWithoutHarm()
    {
        SwitchControl s;
        s.resize(40, 20);
        QImage const img = s.grab().toImage(); // size (-1, -1) as it stands
        QVERIFY(!img.isNull());
    }

    void clickTogglesAndTheSlideStopsAtBothEnds()
    {
        auto host = activeHost();
        auto* s = new SwitchControl(host.get());
        s->setSwitchSize(QSize(60, 30));
        s->show();
        QVERIFY(QTest::qWaitForWindowExposed(host.get()));
        QSignalSpy toggled(s, &SwitchControl::toggled);

        click(s);
        QCOMPARE(toggled.size(), 1);
        QCOMPARE(toggled.at(0).at(0).toBool(), true);
        QVERIFY(s->isSliding());
        QTRY_VERIFY_WITH_TIMEOUT(!s->isSliding(), 2000); // on: the thumb reached the right end

        click(s);
        QCOMPARE(s->isToggled(), false);
        QVERIFY(s->isSliding());
        QTRY_VERIFY_WITH_TIMEOUT(!s->isSliding(), 2000); // off: back at the left end, painted meanwhile

        // End states: the thumb sits at the right end when on, at the left end when off
        // (seen against a black background).
        QPalette black = s->palette();
        black.setColor(QPalette::Window, Qt::black);
        s->setPalette(black);
        s->setAutoFillBackground(true);
        auto isThumb = [s](int x) {
            QColor const c = s->grab().toImage().pixelColor(x, 15);
            return c.red() > 230 && c.green() > 230 && c.blue() > 230;
        };
        QVERIFY(isThumb(14));
        QVERIFY(!isThumb(47));
        click(s);
        QTRY_VERIFY_WITH_TIMEOUT(!s->isSliding(), 2000);
        QVERIFY(isThumb(47));
        QVERIFY(!isThumb(14));
        click(s);
        QTRY_VERIFY_WITH_TIMEOUT(!s->isSliding(), 2000);

        // Other buttons neither press nor toggle.
        click(s, Qt::RightButton);
        QCOMPARE(toggled.size(), 4);
        QVERIFY(!s->isSliding());
    }

    void switchDestroyedWhileSlidingLeavesNoTimer()
    {
        auto host = activeHost();
        QPointer<SwitchControl> s = new SwitchControl(host.get());
        s->setSwitchSize(QSize(2000, 1000)); // a long slide
        s->show();
        click(s);
        QVERIFY(s->isSliding());
        delete s;
        QTest::qWait(20); // a dangling tick would touch freed memory (caught under ASan)
        QVERIFY(s.isNull());
    }

    void disabledSwitchIgnoresClicks()
    {
        auto host = activeHost();
        auto* s = new SwitchControl(host.get());
        s->setSwitchSize(QSize(60, 30));
        s->setEnabled(false);
        s->show();
        QSignalSpy toggled(s, &SwitchControl::toggled);
        click(s);
        QCOMPARE(toggled.size(), 0);
        QCOMPARE(s->isToggled(), false);
        QVERIFY(!s->isSliding());
    }

    void trackColoursFollowTheState()
    {
        SwitchControl s;
        s.setSwitchSize(QSize(60, 30));
        s.resize(60, 30);
        auto trackAt = [&s] { return s.grab().toImage().pixelColor(10, 15); };
        s.setToggle(true);
        QColor on = trackAt();
        QVERIFY2(on.green() > on.red() + 60 && on.green() > on.blue() + 60, qPrintable(on.name(QColor::HexArgb))); // green track
        s.setCheckedColor(QColor(Qt::blue));
        on = trackAt();
        QVERIFY2(on.blue() > on.red() + 60 && on.blue() > on.green() + 60, qPrintable(on.name(QColor::HexArgb)));
        s.setEnabled(false); // a custom colour stays when disabled
        QColor const dim = trackAt();
        QVERIFY2(dim.blue() > dim.green() + 20 && dim.red() > on.red(), qPrintable(dim.name(QColor::HexArgb)));
    }

    void switchWidgetForwardsAndStyles()
    {
        SwitchWidget w;
        QCOMPARE(w.switchControl()->objectName(), QStringLiteral("switchControl"));
        QCOMPARE(w.focusPolicy(), Qt::StrongFocus);
        QSignalSpy spy(&w, &SwitchWidget::signalSwitchControlStatusChanged);
        w.setToggle(true);
        QCOMPARE(spy.size(), 1);
        QVERIFY(w.getToggle());
        QTest::ignoreMessage(QtDebugMsg, "SwitchWidget::setSwitchColor: invalid colour nocolour");
        w.setSwitchColor(QStringLiteral("nocolour"));
        QTest::ignoreMessage(QtDebugMsg, "SwitchWidget::setContentFontSize: invalid font size 0");
        w.setContentFontSize(0);
        w.setContentDisabled(true);
        QVERIFY(!w.switchControl()->isEnabled());
        w.setContentDisabled(false);
        QVERIFY(w.switchControl()->isEnabled());
    }

    // ---- TypeItemSwitch -------------------------------------------------------

    void itemPressFlipsWithSignalsInOrder()
    {
        TypeItemSwitch item;
        QStringList order;
        connect(&item, &TypeItemSwitch::signalSwitchControlStatusChanged, this,
                [&order](bool b) { order << QStringLiteral("status %1").arg(b); });
        connect(&item, &CommonItemType::signalEditFinished, this, [&order] { order << QStringLiteral("finished"); });
        connect(&item, &CommonItemType::signalValueChanged, this,
                [&order](QVariant v) { order << QStringLiteral("value %1").arg(v.toBool()); });
        item.editValue();
        QCOMPARE(item.getToggle(), true);
        QVERIFY(!item.switchControl()->isSliding()); // the press flips at once
        QCOMPARE(order, QStringList({"status 1", "finished", "value 1"}));
        order.clear();
        item.setToggle(true); // the same state still reports
        QCOMPARE(order, QStringList({"status 1", "finished", "value 1"}));
    }

    void itemSizesAndDisables()
    {
        TypeItemSwitch item;
        item.setRightIconSize(QSize(10, 20));
        QCOMPARE(item.switchControl()->maximumSize(), QSize(40, 20));
        QTest::ignoreMessage(QtDebugMsg, "TypeItemSwitch::setRightIconSize: invalid size 5x0");
        item.setRightIconSize(QSize(5, 0));
        QCOMPARE(item.switchControl()->maximumSize(), QSize(40, 20));

        item.setContentDisabled(true);
        QSignalSpy value(&item, &CommonItemType::signalValueChanged);
        item.editValue();
        QCOMPARE(value.size(), 0);
        QCOMPARE(item.getToggle(), false);
        item.setContentDisabled(false);
        item.editValue();
        QCOMPARE(value.size(), 1);
    }

    // ---- TypeItemMultiSwitch ------------------------------------------------

    void loneSwitchFlipsOnThePress()
    {
        auto host = activeHost();
        auto* item = new TypeItemMultiSwitch(host.get());
        QVector<QPair<QString, int>> data{{QStringLiteral("Tally"), 7}};
        item->setTextData(data);
        item->show();
        QSignalSpy value(item, &TypeItemMultiSwitch::signalMultiSwitchValueChanged);
        QSignalSpy closed(item, &CommonItemType::signalCloseEditStatus);
        QSignalSpy started(item, &CommonItemType::signalEditStarted);
        item->editValue();
        QCOMPARE(value.size(), 1);
        QCOMPARE(value.at(0), QVariantList({7, 1}));
        QCOMPARE(closed.size(), 1);
        QCOMPARE(started.size(), 0); // nothing left open
        QCOMPARE(item->getCurrentValue(7), 1);
        QCOMPARE(QApplication::focusWidget(), host.get());
    }

    void switchesAreWalkedAndFlipped()
    {
        auto host = activeHost();
        auto* item = new TypeItemMultiSwitch(host.get());
        QVector<QPair<QString, int>> data{{"PGM", 1}, {"PVW", 2}, {"AUX", 3}};
        item->setTextData(data);
        item->show();
        QList<QWidget*> sw;
        for (auto const& pair : item->multiSwitchWidget()->widgetList()) {
            QCOMPARE(pair.first, e_SwitchWidget);
            sw << pair.second;
        }
        QCOMPARE(sw.size(), 3);

        QSignalSpy value(item, &TypeItemMultiSwitch::signalMultiSwitchValueChanged);
        QSignalSpy started(item, &CommonItemType::signalEditStarted);
        QSignalSpy closed(item, &CommonItemType::signalCloseEditStatus);
        item->editValue();
        QCOMPARE(started.size(), 1);
        QCOMPARE(value.size(), 0);
        QCOMPARE(QApplication::focusWidget(), sw.at(0));
        Knob::turn(item, 1); // Up on the first: no wrap
        QCOMPARE(QApplication::focusWidget(), sw.at(0));
        Knob::turn(item, -1, 3.0);
        QCOMPARE(QApplication::focusWidget(), sw.at(1));
        Knob::key(item, Qt::Key_Enter);
        Knob::key(item, Qt::Key_Return);
        QCOMPARE(value.size(), 2);
        QCOMPARE(value.at(0), QVariantList({2, 1}));
        QCOMPARE(value.at(1), QVariantList({2, 0}));

        // A hidden switch is stepped over; Down on the last does nothing.
        item->setItemVisible(3, false);
        Knob::turn(item, -1);
        QCOMPARE(QApplication::focusWidget(), sw.at(1));
        item->setItemVisible(3, true);
        Knob::turn(item, -2);
        QCOMPARE(QApplication::focusWidget(), sw.at(2));

        Knob::back(item);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(QApplication::focusWidget(), host.get());
    }

    void loneSwitchTakesNoKeys()
    {
        auto host = activeHost();
        auto* w = new MultiSwitchWidget(host.get());
        w->setTextData({{"Solo", 1}});
        w->show();
        QSignalSpy value(w, &MultiSwitchWidget::signalValueChanged);
        QSignalSpy closed(w, &MultiSwitchWidget::signalCloseEditStatus);
        w->setFocus();
        QWidget* lone = w->widgetList().at(0).second;
        QCOMPARE(QApplication::focusWidget(), lone);
        for (int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Enter, Qt::Key_Escape}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QVERIFY(!w->eventFilter(lone, &press)); // the filter leaves every key alone
        }
        Knob::key(lone, Qt::Key_Enter);
        Knob::back(lone);
        QCOMPARE(value.size(), 0);
        QCOMPARE(closed.size(), 0);
    }

    void multiSwitchSettersAndBadInput()
    {
        MultiSwitchWidget w;
        w.setTextData({{"A", 10}, {"B", 20}});
        QCOMPARE(w.visibleWidgetCount(), 2);
        QSignalSpy value(&w, &MultiSwitchWidget::signalValueChanged);
        w.setCurrentData(20, 5);
        QCOMPARE(w.getCurrentData(20), true);
        QCOMPARE(w.getCurrentData(99), false); // no such switch
        w.setCurrentData(99, 1);
        QCOMPARE(value.size(), 1);
        QTest::ignoreMessage(QtDebugMsg, "MultiSwitchWidget::setSwitchSize: invalid size 0x0");
        w.setSwitchSize(QSize(0, 0));
        QTest::ignoreMessage(QtDebugMsg, "MultiSwitchWidget::setContentFontSize: invalid font size -3");
        w.setContentFontSize(-3);
        w.setSwitchSize(QSize(40, 20));
        for (auto const& pair : w.widgetList())
            QCOMPARE(static_cast<SwitchWidget*>(pair.second)->switchControl()->maximumSize(), QSize(40, 20));
        // An empty row ends the press at once.
        MultiSwitchWidget empty;
        QSignalSpy closed(&empty, &MultiSwitchWidget::signalCloseEditStatus);
        empty.singleItemEnterPressed();
        QCOMPARE(closed.size(), 1);
    }
};

QTEST_MAIN(TestSwitches)
#include "tst_switches.moc"
