// Bottom button bar, reset/apply bar and the reset/apply rows: button choice and
// order, click signals, the knob's walk between Reset and Apply, the hand-over of
// keys to the page, and re-translation.
#include <lcdwidgets.h>

#include "leakcheck.h"
#include "knob.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>
#include <memory>

using namespace LCD::Widget;

namespace {

// Stands in for the page: records the keys a bar hands to its event filter.
class Recorder : public QWidget
{
public:
    struct Call
    {
        QObject* watched;
        int key;
    };
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            calls.append({watched, static_cast<QKeyEvent*>(event)->key()});
        return answer;
    }
    QList<Call> calls;
    bool answer = true;
};

Enum::BottomButtonType flags(int f) { return static_cast<Enum::BottomButtonType>(f); }

QList<QPushButton*> buttonsLeftToRight(QWidget* bar)
{
    QList<QPushButton*> list = bar->findChildren<QPushButton*>();
    std::sort(list.begin(), list.end(), [](QPushButton* a, QPushButton* b) { return a->x() < b->x(); });
    return list;
}

void showAndLayout(QWidget* w, int width = 700)
{
    w->resize(width, 56);
    w->show();
    QVERIFY(QTest::qWaitForWindowExposed(w));
}

} // namespace

class TestBars : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    // ---- BottomButtomFrame ------------------------------------------------------

    void bottomOkCancelIsRightAlignedCancelFirst()
    {
        Recorder page;
        BottomButtomFrame frame(flags(Enum::BottomOk | Enum::BottomCancel), &page);
        QCOMPARE(frame.parentWidget(), nullptr); // placed by the page's layout, not parented
        QCOMPARE(frame.storedParent(), &page);
        QCOMPARE(frame.property("isCenterBottomFrame").toBool(), true);
        showAndLayout(&frame);

        QList<QPushButton*> const buttons = buttonsLeftToRight(&frame);
        QCOMPARE(buttons.size(), 2);
        QCOMPARE(buttons.at(0)->text(), QStringLiteral("Cancel"));
        QCOMPARE(buttons.at(0)->property("isBottomCancelBtn").toBool(), true);
        QCOMPARE(buttons.at(1)->text(), QStringLiteral("Ok"));
        QCOMPARE(buttons.at(1)->property("isBottomOkBtn").toBool(), true);
        // Right-aligned, 16 px apart.
        QCOMPARE(buttons.at(1)->geometry().right(), frame.width() - 1);
        QCOMPARE(buttons.at(1)->x() - buttons.at(0)->geometry().right() - 1, 16);
        QVERIFY(!frame.button(Enum::BottomUpdate));
    }

    void bottomUpdateAloneLooksLikeOk()
    {
        BottomButtomFrame frame(Enum::BottomUpdate, nullptr);
        QList<QPushButton*> const buttons = frame.findChildren<QPushButton*>();
        QCOMPARE(buttons.size(), 1);
        QCOMPARE(buttons.at(0)->text(), QStringLiteral("Update"));
        QCOMPARE(buttons.at(0)->property("isBottomOkBtn").toBool(), true);
        QCOMPARE(frame.button(Enum::BottomUpdate), buttons.at(0));
        QVERIFY(!frame.button(Enum::BottomOk));
    }

    void bottomAllFlagsInOrder()
    {
        BottomButtomFrame frame(flags(31), nullptr);
        showAndLayout(&frame, 760);
        QStringList texts;
        for (QPushButton* b : buttonsLeftToRight(&frame))
            texts << b->text();
        QCOMPARE(texts, (QStringList{"Cancel", "Previous step", "Export", "Ok", "Update"}));
        QCOMPARE(frame.button(Enum::BottomPreStep)->property("isBottomPreStepBtn").toBool(), true);
        QCOMPARE(frame.button(Enum::BottomExport)->property("isBottomExportBtn").toBool(), true);
    }

    void bottomEachFlagHasItsSignal_data()
    {
        QTest::addColumn<int>("flag");
        QTest::addColumn<int>("signalIndex");
        QTest::newRow("ok") << 1 << 0;
        QTest::newRow("cancel") << 2 << 1;
        QTest::newRow("previous step") << 4 << 2;
        QTest::newRow("export") << 8 << 3;
        QTest::newRow("update") << 16 << 4;
    }

    void bottomEachFlagHasItsSignal()
    {
        QFETCH(int, flag);
        QFETCH(int, signalIndex);
        // All buttons present, so a wrong wiring shows up as the wrong spy firing.
        BottomButtomFrame frame(flags(31), nullptr);
        QSignalSpy ok(&frame, &BottomButtomFrame::signalOkBtnClicked);
        QSignalSpy cancel(&frame, &BottomButtomFrame::signalCancelBtnClicked);
        QSignalSpy pre(&frame, &BottomButtomFrame::signalPreStepBtnClicked);
        QSignalSpy exportSpy(&frame, &BottomButtomFrame::signalExportBtnClicked);
        QSignalSpy update(&frame, &BottomButtomFrame::signalUpdateBtnClicked);
        QSignalSpy* spies[] = {&ok, &cancel, &pre, &exportSpy, &update};

        frame.button(flags(flag))->click();
        for (int i = 0; i < 5; ++i)
            QCOMPARE(spies[i]->count(), i == signalIndex ? 1 : 0);
    }

    void bottomWithoutButtons()
    {
        BottomButtomFrame frame(flags(0), nullptr);
        QVERIFY(frame.findChildren<QPushButton*>().isEmpty());
    }

    // ---- ResetApplyWidget -------------------------------------------------------

    void resetApplyLayoutAndNames()
    {
        Recorder page;
        ResetApplyWidget bar(Enum::ResetAndApplyButton, &page);
        QCOMPARE(bar.parentWidget(), nullptr);
        QPushButton* reset = bar.getResetButton();
        QPushButton* apply = bar.getApplyButton();
        QVERIFY(reset && apply);
        QCOMPARE(bar.getfirstButton(), reset);
        QCOMPARE(reset->objectName(), QStringLiteral("firstBtn"));
        QCOMPARE(apply->objectName(), QStringLiteral("lastBtn"));
        QCOMPARE(reset->property("isIconReset").toBool(), true);
        QCOMPARE(apply->property("isIconApply").toBool(), true);
        QCOMPARE(reset->text(), QStringLiteral("Reset"));
        QCOMPARE(apply->text(), QStringLiteral("Apply"));
        showAndLayout(&bar);
        QCOMPARE(apply->x() - reset->geometry().right() - 1, 20);
        // Centred between the two stretches.
        QVERIFY(qAbs((reset->x()) - (bar.width() - 1 - apply->geometry().right())) <= 1);

        QSignalSpy resetSpy(&bar, &ResetApplyWidget::signalResetBtnClicked);
        QSignalSpy applySpy(&bar, &ResetApplyWidget::signalApplyBtnClicked);
        reset->click();
        apply->click();
        apply->click();
        QCOMPARE(resetSpy.count(), 1);
        QCOMPARE(applySpy.count(), 2);
    }

    void resetApplySingleButtonBars()
    {
        ResetApplyWidget resetOnly(Enum::ResetButton, nullptr);
        QVERIFY(resetOnly.getResetButton());
        QVERIFY(!resetOnly.getApplyButton());
        QCOMPARE(resetOnly.findChildren<QPushButton*>().size(), 1);

        ResetApplyWidget applyOnly(Enum::ApplyButton, nullptr);
        QVERIFY(!applyOnly.getResetButton());
        QVERIFY(applyOnly.getApplyButton());
        QCOMPARE(applyOnly.getfirstButton(), applyOnly.getApplyButton());
        QCOMPARE(applyOnly.findChildren<QPushButton*>().size(), 1);
    }

    void resetApplyEnable()
    {
        ResetApplyWidget bar(Enum::ResetAndApplyButton, nullptr);
        QVERIFY(bar.getEnable());
        bar.setEnable(false);
        QVERIFY(!bar.getEnable());
        QVERIFY(!bar.getResetButton()->isEnabled());
        QVERIFY(!bar.getApplyButton()->isEnabled());
        bar.polishBtnStyle();
        bar.setEnable(true);
        QVERIFY(bar.getResetButton()->isEnabled() && bar.getApplyButton()->isEnabled());

        ResetApplyWidget applyOnly(Enum::ApplyButton, nullptr);
        applyOnly.setEnable(false); // no Reset button to touch
        applyOnly.polishBtnStyle();
        QVERIFY(!applyOnly.getApplyButton()->isEnabled());
    }

    void resetApplyKnobWalksBetweenButtons()
    {
        Recorder page;
        ResetApplyWidget bar(Enum::ResetAndApplyButton, &page);
        showAndLayout(&bar);
        bar.activateWindow();
        QPushButton* reset = bar.getResetButton();
        QPushButton* apply = bar.getApplyButton();
        reset->setFocus(Qt::OtherFocusReason);
        QCOMPARE(QApplication::focusWidget(), reset);

        Knob::turn(&bar, 1); // Up: Reset -> Apply
        QCOMPARE(QApplication::focusWidget(), apply);
        QVERIFY(page.calls.isEmpty());

        Knob::turn(&bar, -1); // Down: Apply -> Reset
        QCOMPARE(QApplication::focusWidget(), reset);

        Knob::turn(&bar, -1, 8.0); // Down on Reset: stays, nothing handed over
        QCOMPARE(QApplication::focusWidget(), reset);
        QVERIFY(page.calls.isEmpty());

        // Up on Apply goes to the page, which answers for the bar.
        Knob::turn(&bar, 2);
        QCOMPARE(page.calls.size(), 1);
        QCOMPARE(page.calls.at(0).watched, apply);
        QCOMPARE(page.calls.at(0).key, int(Qt::Key_Up));
    }

    void resetApplyKeys()
    {
        Recorder page;
        ResetApplyWidget bar(Enum::ResetAndApplyButton, &page);
        showAndLayout(&bar);
        bar.activateWindow();
        QSignalSpy resetSpy(&bar, &ResetApplyWidget::signalResetBtnClicked);
        QSignalSpy applySpy(&bar, &ResetApplyWidget::signalApplyBtnClicked);
        QSignalSpy backSpy(&bar, &ResetApplyWidget::signalBackBtnClicked);
        for (QPushButton* button : {bar.getResetButton(), bar.getApplyButton()}) {
            button->setFocus(Qt::OtherFocusReason);
            // Space would click an ordinary push button; Left/Right would move its focus.
            for (int key : {int(Qt::Key_Space), int(Qt::Key_Escape), int(Qt::Key_Left), int(Qt::Key_Right),
                            int(Qt::Key_Tab), int(Qt::Key_A)})
                Knob::key(&bar, key);
            QCOMPARE(QApplication::focusWidget(), button);
        }
        QCOMPARE(resetSpy.count(), 0);
        QCOMPARE(applySpy.count(), 0);
        QCOMPARE(backSpy.count(), 0);
        QVERIFY(page.calls.isEmpty());

        // The press clicks the focused button; the back key goes back.
        bar.getResetButton()->setFocus(Qt::OtherFocusReason);
        QVERIFY(Knob::press(&bar));
        QCOMPARE(resetSpy.count(), 1);
        QCOMPARE(applySpy.count(), 0);
        bar.getApplyButton()->setFocus(Qt::OtherFocusReason);
        QVERIFY(Knob::press(&bar, true)); // the keypad's Enter
        QVERIFY(Knob::press(&bar));
        QCOMPARE(resetSpy.count(), 1);
        QCOMPARE(applySpy.count(), 2);
        QCOMPARE(QApplication::focusWidget(), bar.getApplyButton());

        QVERIFY(Knob::key(&bar, Qt::Key_Back));
        bar.getResetButton()->setFocus(Qt::OtherFocusReason);
        QVERIFY(Knob::key(&bar, Qt::Key_Back));
        QCOMPARE(backSpy.count(), 2);
        QCOMPARE(resetSpy.count(), 1);
        QCOMPARE(applySpy.count(), 2);
        QVERIFY(page.calls.isEmpty());

        // A disabled bar clicks nothing.
        bar.setEnable(false);
        Knob::press(&bar);
        QCOMPARE(resetSpy.count(), 1);
    }

    void resetApplySingleButtonHandsUpToThePage_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("reset only") << 1;
        QTest::newRow("apply only") << 2;
    }

    void resetApplySingleButtonHandsUpToThePage()
    {
        QFETCH(int, type);
        Recorder page;
        ResetApplyWidget bar(static_cast<Enum::ResetApplyButtonType>(type), &page);
        showAndLayout(&bar);
        bar.activateWindow();
        QPushButton* button = bar.getfirstButton();
        button->setFocus(Qt::OtherFocusReason);

        Knob::turn(&bar, -3); // Down is consumed
        QVERIFY(page.calls.isEmpty());
        QCOMPARE(QApplication::focusWidget(), button);

        Knob::turn(&bar, 1, 0.25);
        QCOMPARE(page.calls.size(), 1);
        QCOMPARE(page.calls.at(0).watched, button);
        QCOMPARE(page.calls.at(0).key, int(Qt::Key_Up));

        // The page's answer is the bar's answer: "not handled" lets the key reach
        // the button, which ignores Up.
        page.answer = false;
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QStringLiteral("1"));
        QVERIFY(!bar.eventFilter(button, &up));
        page.answer = true;
        QVERIFY(bar.eventFilter(button, &up));
        QCOMPARE(page.calls.size(), 3);
    }

    void resetApplyWithoutPageSwallowsTheKey()
    {
        ResetApplyWidget lonely(Enum::ResetButton, nullptr);
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString());
        QTest::ignoreMessage(QtWarningMsg, "[ResetApplyWidget] key delegate is nullptr");
        QVERIFY(lonely.eventFilter(lonely.getResetButton(), &up));

        // A page that went away is treated the same.
        auto page = std::make_unique<Recorder>();
        ResetApplyWidget bar(Enum::ResetAndApplyButton, page.get());
        page.reset();
        QTest::ignoreMessage(QtWarningMsg, "[ResetApplyWidget] key delegate is nullptr");
        QVERIFY(bar.eventFilter(bar.getApplyButton(), &up));
    }

    void resetApplyWatchedOtherObjects()
    {
        Recorder page;
        ResetApplyWidget bar(Enum::ResetAndApplyButton, &page);
        QObject stranger;
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString());
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString());
        QVERIFY(bar.eventFilter(&stranger, &up));     // consumed, not handed over
        QVERIFY(!bar.eventFilter(&stranger, &down));  // default filter
        QVERIFY(page.calls.isEmpty());
        QEvent other(QEvent::FocusIn);
        QVERIFY(!bar.eventFilter(bar.getResetButton(), &other));
    }

    // ---- Rows -------------------------------------------------------------------

    void rows()
    {
        TypeReset resetRow;
        QCOMPARE(resetRow.resetButton()->text(), QStringLiteral("Reset"));
        QCOMPARE(resetRow.resetButton()->property("isIconReset").toBool(), true);
        QSignalSpy resetSpy(&resetRow, &TypeReset::signalResetBtnClicked);
        resetRow.resetButton()->click();
        QCOMPARE(resetSpy.count(), 1);

        TypeApply applyRow;
        QCOMPARE(applyRow.applyButton()->text(), QStringLiteral("Apply"));
        QCOMPARE(applyRow.applyButton()->property("isIconApply").toBool(), true);
        QSignalSpy applySpy(&applyRow, &TypeApply::signalApplyBtnClicked);
        applyRow.applyButton()->click();
        QCOMPARE(applySpy.count(), 1);

        TypeResetApply both;
        showAndLayout(&both);
        QCOMPARE(both.applyButton()->x() - both.resetButton()->geometry().right() - 1, 44);
        QSignalSpy r(&both, &TypeResetApply::signalResetBtnClicked);
        QSignalSpy a(&both, &TypeResetApply::signalApplyBtnClicked);
        both.applyButton()->click();
        QCOMPARE(r.count(), 0);
        QCOMPARE(a.count(), 1);
        both.resetButton()->click();
        QCOMPARE(r.count(), 1);
    }

    // ---- Language ---------------------------------------------------------------

    void languageChangeRetranslates()
    {
        BottomButtomFrame frame(flags(Enum::BottomOk | Enum::BottomCancel | Enum::BottomUpdate | Enum::BottomExport), nullptr);
        ResetApplyWidget bar(Enum::ResetAndApplyButton, nullptr);
        QWidget page; // rows live inside a page: the change reaches them through it
        auto* row = new TypeReset(&page);
        auto* rowBoth = new TypeResetApply(&page);

        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(LCDWIDGETS_TEST_DATA "/lcdwidgets_test_bars_zh.qm")));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();

        QCOMPARE(frame.button(Enum::BottomOk)->text(), QStringLiteral("确定"));
        QCOMPARE(frame.button(Enum::BottomCancel)->text(), QStringLiteral("取消"));
        QCOMPARE(frame.button(Enum::BottomUpdate)->text(), QStringLiteral("更新"));
        QCOMPARE(frame.button(Enum::BottomExport)->text(), QStringLiteral("Export")); // no translation
        QCOMPARE(bar.getResetButton()->text(), QStringLiteral("重置"));
        QCOMPARE(bar.getApplyButton()->text(), QStringLiteral("应用"));
        QCOMPARE(row->resetButton()->text(), QStringLiteral("重置"));
        // Each class has its own context: this catalogue has no Reset for TypeResetApply.
        QCOMPARE(rowBoth->resetButton()->text(), QStringLiteral("Reset"));
        QCOMPARE(rowBoth->applyButton()->text(), QStringLiteral("应用"));

        QVERIFY(QCoreApplication::removeTranslator(&translator));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCOMPARE(frame.button(Enum::BottomOk)->text(), QStringLiteral("Ok"));
        QCOMPARE(bar.getApplyButton()->text(), QStringLiteral("Apply"));
        QCOMPARE(row->resetButton()->text(), QStringLiteral("Reset"));
    }
};

QTEST_MAIN(TestBars)
#include "tst_bars.moc"
