// The grouped choice controls: the button row's list, its current-setters (silent),
// focus entry, the knob's focus steps without wrap, the signal order of a choice,
// Escape's restore, sizing; the check-box row's key table and setters.
#include <lcdwidgets.h>

#include "hostwindow.h"
#include "leakcheck.h"
#include "knob.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>
#include <cmath>
#include <memory>

using namespace LCD::Widget;

namespace {

std::unique_ptr<QWidget> activeHost() { return HostWindow::activeHost(QSize(700, 80), HostWindow::NoFocus); }

QList<QAbstractButton*> buttons(MultiWidgetControl const* c)
{
    QList<QAbstractButton*> list;
    for (auto const& pair : c->widgetList())
        list << qobject_cast<QAbstractButton*>(pair.second);
    return list;
}

QList<bool> checks(MultiWidgetControl const* c)
{
    QList<bool> list;
    for (QAbstractButton* b : buttons(c))
        list << b->isChecked();
    return list;
}

// Records the control's signals in the order they come.
struct ChoiceLog
{
    QStringList calls;
    explicit ChoiceLog(MultiBtnControl* c)
    {
        QObject::connect(c, &MultiBtnControl::signalValueChanged, c, [this](int v) { calls << QStringLiteral("value %1").arg(v); });
        QObject::connect(c, &MultiBtnControl::signalTextChanged, c, [this](QString t) { calls << QStringLiteral("text ") + t; });
        QObject::connect(c, &MultiBtnControl::signalIndexChanged, c, [this](int i) { calls << QStringLiteral("index %1").arg(i); });
        QObject::connect(c, &MultiBtnControl::signalCloseEditStatus, c, [this] { calls << QStringLiteral("close"); });
    }
};

MultiBtnControl* threeButtons(QWidget* parent)
{
    auto* c = new MultiBtnControl(parent);
    c->setBtnData(QVector<QPair<QString, int>>{{"Auto", 10}, {"R&D", 20}, {"Off", 30}});
    return c;
}

} // namespace

class TestMultiControls : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void buttonListAndLookups()
    {
        MultiBtnControl c;
        QCOMPARE(c.property("multiButtonFrame").toString(), QStringLiteral("normal"));
        c.setBtnData(QVector<QPair<QString, int>>{{"Auto", 10}, {"R&D", 20}});
        c.insertBtnData(1, QStringLiteral("A&&B"), 15);
        c.insertBtnData(99, QIcon(), QStringLiteral("Last"), 40); // beyond the end: appended
        QCOMPARE(c.count(), 4);
        QList<QAbstractButton*> b = buttons(&c);
        QCOMPARE(b.at(1)->text(), QStringLiteral("A&&B")); // already doubled: kept
        QCOMPARE(b.at(2)->text(), QStringLiteral("R&&D")); // a single & shows as such
        QVERIFY(b.at(0)->isCheckable());
        QCOMPARE(b.at(0)->property("isMultiBtnChecked").toBool(), true);
        for (auto const& pair : c.widgetList())
            QCOMPARE(pair.first, e_PushButton);

        QCOMPARE(c.btnData(2, 256).toInt(), 20);
        QCOMPARE(c.findData(40, 256), 3);
        QCOMPARE(c.findData(QStringLiteral("15"), 256), 1); // compared as ints
        QCOMPARE(c.findData(99, 256), -1);
        QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _widList!");
        QVERIFY(!c.btnData(4, 256).isValid());
        QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _widList!");
        QVERIFY(!c.btnData(-1, 256).isValid());
        QVERIFY(!c.btnData(0, -5).isValid()); // a bad role is no user data at all
    }

    void currentSettersAreSilent()
    {
        MultiBtnControl* c = threeButtons(nullptr);
        std::unique_ptr<MultiBtnControl> owner(c);
        ChoiceLog log(c);
        QCOMPARE(c->getCurrentIndex(), 0); // none current
        QCOMPARE(c->getCurrentText(), QString());
        QVERIFY(!c->getCurrentData(256).isValid());

        c->setCurrentIndex(1);
        QCOMPARE(checks(c), QList<bool>({false, true, false}));
        QCOMPARE(c->getCurrentText(), QStringLiteral("R&D"));
        QCOMPARE(c->getCurrentData(256).toInt(), 20);

        QTest::ignoreMessage(QtDebugMsg, "index error! index is: -1");
        c->setCurrentIndex(-1);
        QTest::ignoreMessage(QtDebugMsg, "index error! index is: 3");
        c->setCurrentIndex(3);
        QCOMPARE(c->getCurrentIndex(), 1);

        c->setCurrentData(30);
        QCOMPARE(c->getCurrentIndex(), 2);
        c->setCurrentText(QStringLiteral("Auto"));
        QCOMPARE(c->getCurrentIndex(), 0);
        QCOMPARE(c->getCurrentIndex(), 0); // the first button: also 0
        c->setCurrentUserData(QVariant(20));
        QCOMPARE(c->getCurrentIndex(), 1);
        c->setCurrentData(99); // no such value: unchanged
        QCOMPARE(c->getCurrentIndex(), 1);
        QCOMPARE(checks(c), QList<bool>({false, true, false}));
        QVERIFY(log.calls.isEmpty());
    }

    void focusEntryShowsTheChoiceAsFocused()
    {
        auto host = activeHost();
        MultiBtnControl* c = threeButtons(host.get());
        c->show();
        c->setCurrentIndex(1);
        c->setFocus(Qt::TabFocusReason);
        QList<QAbstractButton*> b = buttons(c);
        QCOMPARE(QApplication::focusWidget(), b.at(1));
        QCOMPARE(checks(c), QList<bool>({false, false, false}));

        // Without a checked button the first visible one takes the focus.
        host->setFocus();
        c->removeAllBtnData();
        c->setBtnData(QVector<QPair<QString, int>>{{"A", 1}, {"B", 2}});
        buttons(c).at(0)->hide();
        c->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), buttons(c).at(1));
    }

    void knobStepsWithoutWrapAndEscapeRestores()
    {
        auto host = activeHost();
        MultiBtnControl* c = threeButtons(host.get());
        c->show();
        ChoiceLog log(c);
        c->setCurrentIndex(1);
        c->setFocus(Qt::TabFocusReason);
        QList<QAbstractButton*> b = buttons(c);
        Knob::turn(c, 1); // Up: previous
        QCOMPARE(QApplication::focusWidget(), b.at(0));
        Knob::turn(c, 1); // no wrap
        QCOMPARE(QApplication::focusWidget(), b.at(0));
        Knob::turn(c, -5, 2.5); // Down, fast: stops on the last
        QCOMPARE(QApplication::focusWidget(), b.at(2));
        Knob::back(c);
        QCOMPARE(checks(c), QList<bool>({false, true, false})); // the committed choice again
        QCOMPARE(log.calls, QStringList({"close"}));
    }

    void pressChoosesWithSignalsInOrder()
    {
        auto host = activeHost();
        MultiBtnControl* c = threeButtons(host.get());
        c->show();
        ChoiceLog log(c);
        c->setCurrentIndex(0);
        c->setFocus(Qt::TabFocusReason);
        Knob::turn(c, -2);
        QTest::ignoreMessage(QtDebugMsg, "MultiBtnControl index changed: 2");
        QTest::ignoreMessage(QtDebugMsg, "MultiBtnControl text changed: Off");
        QVERIFY(Knob::press(c));
        QCOMPARE(log.calls, QStringList({"value 30", "text Off", "index 2", "close"}));
        QCOMPARE(checks(c), QList<bool>({false, false, true}));
        QCOMPARE(c->getCurrentIndex(), 2);

        // A click does the same; the index is the button's present one after an insert.
        log.calls.clear();
        c->insertBtnData(0, QStringLiteral("First"), 5);
        QTest::ignoreMessage(QtDebugMsg, "MultiBtnControl index changed: 2");
        QTest::ignoreMessage(QtDebugMsg, "MultiBtnControl text changed: R&D");
        QTest::mouseClick(buttons(c).at(2), Qt::LeftButton);
        QCOMPARE(log.calls, QStringList({"value 20", "text R&D", "index 2", "close"}));
        QCOMPARE(checks(c), QList<bool>({false, false, true, false}));
    }

    void enterPressedChecksSilently()
    {
        auto host = activeHost();
        MultiBtnControl* c = threeButtons(host.get());
        c->show();
        ChoiceLog log(c);
        c->setFocus(Qt::TabFocusReason);
        Knob::turn(c, -1);
        QTest::ignoreMessage(QtDebugMsg, "enterPressed");
        c->enterPressed();
        QCOMPARE(c->getCurrentIndex(), 1);
        QVERIFY(buttons(c).at(1)->isChecked());
        QVERIFY(log.calls.isEmpty());
    }

    void sizingFollowsTheFontSize()
    {
        MultiBtnControl* c = threeButtons(nullptr);
        std::unique_ptr<MultiBtnControl> owner(c);
        c->setContentFontSize(16);
        QCOMPARE(c->styleSheet(), QStringLiteral("QFrame{border-radius: 4px;}"));
        QCOMPARE(c->maximumHeight(), 24);
        int sum = 0;
        for (QAbstractButton* b : buttons(c)) {
            QCOMPARE(b->maximumHeight(), 24);
            QCOMPARE(b->styleSheet(),
                     QStringLiteral("QPushButton{font-size:16px;border-radius:4px;padding-left:4px;padding-right:4px;}"));
            sum += b->sizeHint().width();
        }
        QCOMPARE(c->maximumWidth(), sum + 2 * 5);
        // Hidden buttons still count.
        c->setBtnVisible(20, false);
        QVERIFY(buttons(c).at(1)->isHidden());
        QCOMPARE(c->maximumWidth(), sum + 2 * 5);
        // A button added later is sized as the others.
        c->addBtnData(QStringLiteral("New"), 40);
        QCOMPARE(buttons(c).at(3)->maximumHeight(), 24);

        QTest::ignoreMessage(QtDebugMsg, "MultiBtnControl::setContentFontSize: invalid font size 0");
        c->setContentFontSize(0);
        QCOMPARE(c->contentFontSize(), 16);
        c->setContentFontSize(1000000000); // no overflow, no Qt warning
        QCOMPARE(c->maximumHeight(), QWIDGETSIZE_MAX);
    }

    void iconButtonsKeepTheirText()
    {
        MultiBtnControl c;
        QPixmap px(16, 16);
        px.fill(Qt::red);
        c.setBtnData(QVector<QPair<QIcon, QPair<QString, int>>>{{QIcon(px), {"Red", 1}}, {QIcon(px), {"Blue", 2}}});
        QCOMPARE(c.widgetList().at(0).first, e_ToolButton);
        QVERIFY(qobject_cast<QToolButton*>(c.widgetList().at(1).second));
        QCOMPARE(c.widgetList().at(0).second->size(), QSize(40, 40));
        QCOMPARE(c.btnData(1, 257).toString(), QStringLiteral("Blue"));
        c.setCurrentText(QStringLiteral("Blue"));
        QCOMPARE(c.getCurrentIndex(), 1);
        std::list<std::pair<int, QString>> names{{2, QStringLiteral("Cyan")}};
        c.updateBtns(names);
        QCOMPARE(c.getCurrentText(), QStringLiteral("Cyan"));
        c.setContentFontSize(16);
        QVERIFY(c.widgetList().at(0).second->styleSheet().startsWith(QStringLiteral("QToolButton{font-size:16px;")));
        // An icon placed at no number, or at a place an int cannot hold, stays in reach.
        c.addBtnData(QIcon(px), QPointF(std::nan(""), 1e300), QStringLiteral("Far"), 3);
        QLabel const* icon = c.widgetList().at(2).second->findChild<QLabel*>();
        QVERIFY(icon);
        QCOMPARE(icon->pos(), QPoint(0, QWIDGETSIZE_MAX));
    }

    void removingButtons()
    {
        MultiBtnControl* c = threeButtons(nullptr);
        std::unique_ptr<MultiBtnControl> owner(c);
        c->setCurrentIndex(1);
        QPointer<QAbstractButton> removed = buttons(c).at(1);
        QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _widList!");
        c->removeBtnData(3);
        c->removeBtnData(1);
        QCOMPARE(c->count(), 2);
        QCOMPARE(c->getCurrentText(), QString()); // the current button went with it
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(removed.isNull());
        c->removeAllBtnData();
        QCOMPARE(c->count(), 0);
        std::list<std::pair<int, QString>> names{{10, QStringLiteral("x")}};
        c->updateBtns(names); // nothing to rename: harmless
        c->resetBtnCheckStatus();
        c->enterPressed();
    }

    void emptyRowEndsTheEditOnEscape()
    {
        auto host = activeHost();
        auto* c = new MultiBtnControl(host.get());
        c->show();
        QSignalSpy closed(c, &MultiBtnControl::signalCloseEditStatus);
        c->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), c);
        Knob::turn(c, 2);
        Knob::press(c);
        Knob::back(c);
        QCOMPARE(closed.size(), 1);
    }

    // ---- MultiCheckBoxControl -----------------------------------------------

    void checkBoxKeys()
    {
        auto host = activeHost();
        auto* c = new MultiCheckBoxControl(host.get());
        c->setCheckBoxData({{"Mic 1", 1}, {"Mic 2", 2}, {"Line", 3}});
        c->show();
        QList<QAbstractButton*> b = buttons(c);
        QCOMPARE(b.size(), 3);
        QCOMPARE(b.at(0)->property("isMultiCheckItem").toBool(), true);
        QCOMPARE(c->widgetList().at(2).first, e_CheckBox);
        QSignalSpy value(c, &MultiCheckBoxControl::signalValueChanged);
        QSignalSpy closed(c, &MultiCheckBoxControl::signalCloseEditStatus);

        c->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), b.at(0));
        Knob::turn(c, 1);
        QCOMPARE(QApplication::focusWidget(), b.at(0));
        Knob::turn(c, -1);
        Knob::key(c, Qt::Key_Return); // does not flip
        QCOMPARE(value.size(), 0);
        Knob::key(c, Qt::Key_Enter);
        QCOMPARE(value.size(), 1);
        QCOMPARE(value.at(0), QVariantList({2, true}));
        // What the user flipped is what the control reports.
        QCOMPARE(c->getCurrentData(), QVector<int>({2}));
        Knob::key(c, Qt::Key_Enter);
        QCOMPARE(c->getCurrentData(), QVector<int>());
        Knob::key(c, Qt::Key_Enter);
        QCOMPARE(value.size(), 3);
        Knob::turn(c, -3);
        QCOMPARE(QApplication::focusWidget(), b.at(2));
        Knob::back(c);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(c->getCheckStatus(2), int(Qt::Checked));
    }

    void checkBoxSetters()
    {
        MultiCheckBoxControl c;
        c.setCheckBoxData({{"A", 1}, {"B", 2}});
        QSignalSpy value(&c, &MultiCheckBoxControl::signalValueChanged);
        c.setCheckStatus(1, true, true);
        QCOMPARE(c.getCheckStatus(1), int(Qt::PartiallyChecked));
        c.setCheckStatus(1, false, false);
        QCOMPARE(c.getCheckStatus(1), int(Qt::Unchecked));
        QCOMPARE(c.getCheckStatus(9), -1);
        c.setCurrentData({2, 7});
        QCOMPARE(c.getCurrentData(), QVector<int>({2})); // 7 has no box
        c.setCheckStatus(1, true, true);
        QCOMPARE(c.getCurrentData(), QVector<int>({2})); // partially checked is not checked
        c.setCheckStatus(1, true, false);
        QCOMPARE(c.getCurrentData(), QVector<int>({1, 2}));
        c.setCheckStatus(1, false, false);
        QCOMPARE(c.getCheckStatus(2), int(Qt::Checked));
        QCOMPARE(c.getCheckStatus(1), int(Qt::Unchecked));
        QCOMPARE(value.size(), 0);

        c.setFontSize(20);
        QCOMPARE(buttons(&c).at(0)->styleSheet(),
                 QStringLiteral("QCheckBox{font-size: 20px; }QCheckBox::indicator:unchecked{width:20px; height:20px; }"
                                "QCheckBox::indicator:checked{width:20px; height:20px; }"
                                "QCheckBox::indicator:indeterminate{width:20px; height:20px; }"
                                "QCheckBox:focus {border:1px solid rgb(0,140,242) }"));
        QCOMPARE(c.styleSheet(), QStringLiteral("QFrame{background-color:transparent;}"));
        QTest::ignoreMessage(QtDebugMsg, "MultiCheckBoxControl::setFontSize: invalid font size 0");
        c.setFontSize(0);
        // Boxes added later get the font too.
        c.setCheckBoxData({{"C", 3}});
        QCOMPARE(buttons(&c).at(2)->styleSheet(), buttons(&c).at(0)->styleSheet());
        c.setIconSize(QSize(12, 12));
        QCOMPARE(buttons(&c).at(1)->iconSize(), QSize(12, 12));
    }
};

QTEST_MAIN(TestMultiControls)
#include "tst_multicontrols.moc"
