// Button groups: the operation pad (values, knob walk, press), the selection row
// (remembered focus, MarkValue, sizing), the selection dialog (driven by keys while
// modal), and the spinner-like value chooser.
#include <lcdwidgets.h>

#include "hostwindow.h"
#include "leakcheck.h"
#include "knob.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <QtTest>
#include <climits>
#include <memory>

using namespace LCD::Widget;

namespace {

std::unique_ptr<QWidget> activeHost() { return HostWindow::activeHost(QSize(700, 120), HostWindow::NoFocus); }

std::vector<ItemSelectInfo> inputs()
{
    return {{QStringLiteral("HDMI 1"), QIcon(), QVariant(101)},
            {QStringLiteral("HDMI 2"), QIcon(), QVariant(102)},
            {QStringLiteral("SDI"), QIcon(), QVariant(QStringLiteral("sdi"))}};
}

// Once the modal dialog runs, sends the keys to its focused widget; a guard closes a
// dialog still open after two seconds and records the failure.
struct ModalDriver
{
    bool timedOut = false;
    void drive(QList<int> keys)
    {
        auto* poll = new QTimer;
        poll->setInterval(5);
        QObject::connect(poll, &QTimer::timeout, [poll, keys] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal || !modal->isVisible() || !modal->isActiveWindow())
                return;
            poll->stop();
            poll->deleteLater();
            for (int k : keys) {
                QWidget* target = modal->focusWidget() ? modal->focusWidget() : modal;
                Knob::key(target, k);
            }
        });
        poll->start();
        QTimer::singleShot(2000, [this] {
            if (QWidget* w = QApplication::activeModalWidget()) {
                timedOut = true;
                static_cast<QDialog*>(w)->reject();
            }
        });
    }
};

} // namespace

class TestButtonGroups : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void operationPadLayoutAndData()
    {
        MultiBtnWidget pad(3);
        QCOMPARE(pad.count(), 3);
        auto* layout = qobject_cast<QHBoxLayout*>(pad.layout());
        QVERIFY(layout);
        QCOMPARE(layout->spacing(), 16);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 5, 0, 15));
        QCOMPARE(pad.button(0)->property("isMultiBtnChecked").toBool(), true);
        QCOMPARE(pad.button(0)->property("isMultiBtnFocus").toBool(), true);
        QCOMPARE(pad.button(0)->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
        pad.setBtnData({{"Cut", 1}, {"Auto", 2}, {"FTB", 3}, {"extra", 4}});
        QCOMPARE(pad.button(2)->text(), QStringLiteral("FTB"));
        QCOMPARE(pad.getIndex(pad.button(1)), 1);
        QCOMPARE(pad.getIndex(nullptr), -1);
        pad.setFontSize(18);
        QCOMPARE(pad.button(1)->styleSheet(), QStringLiteral("QPushButton{font-size:18px; }"));
        QTest::ignoreMessage(QtDebugMsg, "MultiBtnWidget::setFontSize: invalid font size 0");
        pad.setFontSize(0);
        pad.setBtnDefaultStyle(QStringLiteral("isOperationBtn"));
        QCOMPARE(pad.button(2)->property("isOperationBtn").toBool(), true);

        MultiBtnWidget none(-2);
        QCOMPARE(none.count(), 0);
        QSignalSpy value(&none, &MultiBtnWidget::signalValueChanged);
        none.enterPressed(); // no focused button: nothing
        QCOMPARE(value.size(), 0);
    }

    void operationPadKeys()
    {
        auto host = activeHost();
        auto* pad = new MultiBtnWidget(3, host.get());
        pad->setBtnData({{"Cut", 1}, {"Auto", 2}, {"FTB", 3}});
        pad->show();
        QSignalSpy value(pad, &MultiBtnWidget::signalValueChanged);
        QSignalSpy closed(pad, &MultiBtnWidget::signalCloseEditStatus);
        QSignalSpy back(pad, &MultiBtnWidget::signalBackBtnClicked);
        pad->setFocus(Qt::TabFocusReason);
        QCOMPARE(QApplication::focusWidget(), pad->button(0));
        Knob::turn(pad, 1);
        QCOMPARE(QApplication::focusWidget(), pad->button(0));
        Knob::turn(pad, -4);
        QCOMPARE(QApplication::focusWidget(), pad->button(2));
        QTest::ignoreMessage(QtDebugMsg, "signalValueChanged: 3");
        Knob::press(pad);
        QCOMPARE(value.size(), 1);
        QCOMPARE(value.at(0).at(0), QVariant(3));
        QCOMPARE(closed.size(), 0); // a pad stays in edit after a press
        Knob::key(pad, Qt::Key_Back);
        QCOMPARE(back.size(), 1);
        Knob::back(pad);
        QCOMPARE(closed.size(), 1);
    }

    void selectionRowRemembersItsFocus()
    {
        auto host = activeHost();
        auto* row = new MultipleSelectBtn(1, inputs(), host.get());
        row->show();
        QCOMPARE(row->count(), 3);
        QCOMPARE(row->button(2)->property("MarkValue"), QVariant(QStringLiteral("sdi")));
        QCOMPARE(row->button(0)->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QSignalSpy chosen(row, &MultipleSelectBtn::signalSelectBtnClicked);
        QSignalSpy finished(row, &MultipleSelectBtn::signalEditFinished);

        row->setFocus(); // the row itself: the remembered button takes over
        QCOMPARE(QApplication::focusWidget(), row->button(1));
        row->button(0)->setFocus(); // any button: the remembered one still
        QCOMPARE(QApplication::focusWidget(), row->button(1));
        Knob::turn(row, 3);
        QCOMPARE(QApplication::focusWidget(), row->button(0));
        QCOMPARE(row->currentIndex(), 0);
        Knob::turn(row, -5);
        QCOMPARE(QApplication::focusWidget(), row->button(2));
        Knob::key(row, Qt::Key_Enter);
        Knob::press(row);
        QCOMPARE(chosen.size(), 2);
        QCOMPARE(chosen.at(0).at(0), QVariant(QStringLiteral("sdi")));
        Knob::back(row);
        QCOMPARE(finished.size(), 1);

        host->setFocus();
        row->setFocus();
        QCOMPARE(QApplication::focusWidget(), row->button(2)); // still remembered
    }

    // The focus leaves a selection row while it is taken down: the row's focus slot
    // must not run on the half-destroyed row (the sanitizers' type check watches).
    void selectionRowDestroyedWithTheFocus()
    {
        auto host = activeHost();
        auto* row = new MultipleSelectBtn(1, inputs(), host.get());
        row->show();
        row->button(1)->setFocus();
        QCOMPARE(QApplication::focusWidget(), row->button(1));
        delete row;
        QVERIFY(!host->findChild<MultipleSelectBtn*>());
    }

    void selectionRowSizingAndBadInput()
    {
        MultipleSelectBtn row(0, 12, inputs(), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(row.button(0)->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(row.layout()->spacing(), 12);
        QVERIFY(row.styleSheet().startsWith(QStringLiteral("QToolButton{background-color: rgba(255,255,255,20);")));
        MultipleSelectBtn square(0, inputs()); // text under the icon: square buttons
        square.setBtnSize(48);
        QCOMPARE(square.button(1)->styleSheet(),
                 QStringLiteral("QToolButton {    background-color: transparent;    font-size: 38px;    color: "
                                "rgba(0,140,242,1);    min-height: 64px;    max-height: 64px;    min-width: 64px;    "
                                "max-width: 64px;}QToolButton:focus {    border: 3px solid rgb(255,255,255);}"));
        row.setBtnSize(48); // text beside the icon: as wide as the text needs
        QVERIFY(row.button(1)->styleSheet().contains(QStringLiteral("min-height: 64px;")));
        QVERIFY(!row.button(1)->styleSheet().contains(QStringLiteral("min-width: 64px;")));
        QString const sized = row.button(1)->styleSheet();
        QTest::ignoreMessage(QtDebugMsg, "Invalid button size: 0");
        row.setBtnSize(0);
        QCOMPARE(row.button(1)->styleSheet(), sized);
        // Too small for a height (the style takes 0 for unset) or past any font: refused.
        QTest::ignoreMessage(QtDebugMsg, "Invalid button size: 2");
        row.setBtnSize(2);
        QTest::ignoreMessage(QtDebugMsg, "Invalid button size: 2147483647");
        row.setBtnSize(INT_MAX);
        QCOMPARE(row.button(1)->styleSheet(), sized);
        QTest::ignoreMessage(QtDebugMsg, "MultipleSelectBtn::setBtnText: invalid index 3");
        row.setBtnText(3, QStringLiteral("x"));
        row.setBtnText(0, QStringLiteral("Camera"));
        QCOMPARE(row.button(0)->text(), QStringLiteral("Camera"));
        QCOMPARE(row.getIndex(row.button(2)), 2);

        QTest::ignoreMessage(QtDebugMsg, "MultipleSelectBtn: focus index 7 out of range, using 0");
        MultipleSelectBtn far(7, inputs());
        QCOMPARE(far.currentIndex(), 0);
        MultipleSelectBtn empty(0, {});
        QCOMPARE(empty.count(), 0);
        QSignalSpy chosen(&empty, &MultipleSelectBtn::signalSelectBtnClicked);
        empty.setFocus();
        QCOMPARE(chosen.size(), 0);
    }

    void selectionDialogChoosesAndCancels()
    {
        auto host = activeHost();
        QRect const home(0, 0, 800, 480);
        MultipleDialog dialog(0, inputs(), home, host.get());
        QCOMPARE(dialog.getReminderDialogWidth(), 480);
        QCOMPARE(dialog.getReminderDialogHeight(), 192);
        QCOMPARE(dialog.size(), QSize(480, 192));
        QSignalSpy chosen(&dialog, &MultipleDialog::signalSelectBtnClicked);
        ModalDriver driver;
        driver.drive({Qt::Key_Down, Qt::Key_Return});
        QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with 1");
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(!driver.timedOut);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.at(0).at(0), QVariant(102));

        QSignalSpy finished(&dialog, &MultipleDialog::signalEditFinished);
        ModalDriver again;
        again.drive({Qt::Key_Escape});
        QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with 0");
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QVERIFY(!again.timedOut);
        QCOMPARE(finished.size(), 1);
    }

    void valueChooserSteps()
    {
        auto host = activeHost();
        auto* c = new MultiButtonControl(host.get());
        QVector<QPair<QString, int>> data{{"25p", 25}, {"50p", 50}, {"60p", 60}};
        c->setBtnText(data);
        c->show();
        QCOMPARE(c->getCurrentData(), 25);
        QCOMPARE(c->button(0)->property("multiButtonCurrent").toBool(), true);
        QSignalSpy value(c, &MultiButtonControl::signalValueChanged);
        QSignalSpy finished(c, &MultiButtonControl::signalEditFinished);
        c->setFocus();
        Knob::turn(c, 1); // Up on the first: no wrap, no signal
        QCOMPARE(value.size(), 0);
        Knob::turn(c, -3);
        QCOMPARE(value.size(), 2);
        QCOMPARE(value.at(1).at(0), QVariant(60));
        QCOMPARE(c->button(0)->property("multiButtonCurrent").toBool(), false);
        QCOMPARE(c->button(2)->property("multiButtonCurrent").toBool(), true);
        Knob::press(c);
        QCOMPARE(finished.size(), 1);

        c->setOneBtnVisible(true);
        QVERIFY(c->button(0)->isHidden());
        QVERIFY(!c->button(2)->isHidden());
        c->setCurrentData(50); // silent
        QCOMPARE(value.size(), 2);
        QVERIFY(c->button(2)->isHidden());
        QVERIFY(!c->button(1)->isHidden());
        QTest::ignoreMessage(QtDebugMsg, "MultiButtonControl::setCurrentData: no button with value 7");
        c->setCurrentData(7);
        QCOMPARE(c->getCurrentData(), 50);

        QTest::mouseClick(c->button(1), Qt::LeftButton);
        QCOMPARE(value.size(), 3);
        QCOMPARE(finished.size(), 2);

        c->updateBtnStyle(nullptr); // no such button: nothing
        QCOMPARE(c->getCurrentData(), 50);
        QVector<QPair<QString, int>> none;
        c->setBtnText(none);
        QCOMPARE(c->getCurrentData(), -1);
        c->nextBtnClicked();
        c->previousClicked();
        QCOMPARE(value.size(), 3);
    }
};

QTEST_MAIN(TestButtonGroups)
#include "tst_buttongroups.moc"
