// The text view and multi-progress dialogs and the lock reminder: sizes from the
// host rectangle, the knob's scrolling by level, who may close them and with which
// result, task states, summaries and signal order, self-closing, and bad input.
#include "leakcheck.h"
#include "knob.h"
#include "modal.h"

#include <lockreminderdialog.h>
#include <mutilprogressbardialog.h>
#include <textviewdialog.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace LCD::Widget;

namespace {
QRect const kPanel(0, 0, 800, 480);

QString longText(int lines)
{
    QStringList all;
    for (int i = 0; i < lines; ++i)
        all << QStringLiteral("Line %1 of the licence text").arg(i);
    return all.join(QLatin1Char('\n'));
}

void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}
} // namespace

class TestSystemDialogs : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void init()
    {
        startLeakCheck();
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }
    void textViewSizesFromTheHost();
    void textViewScrollsByLevel();
    void textViewClosesWithEnterOrEscapeOnly();
    void textViewBadInput();
    void textViewEndsWhenItsParentGoes();
    void multiProgressTasksAndSummary();
    void multiProgressBadInput();
    void multiProgressUserClosesOnlyWhenAllEnded();
    void multiProgressScrollsLongLists();
    void multiProgressHostCloses();
    void lockReminderClosesItself();
    void lockReminderBadInputAndText();
};

void TestSystemDialogs::textViewSizesFromTheHost()
{
    TextViewDialog dialog(QRect(50, 40, 1024, 600));
    QCOMPARE(dialog.size(), QSize(768, 480));
    QCOMPARE(dialog.getTextViewDialogWidth(), 768);
    QVERIFY(qAbs(dialog.getFontSize() - 1024 / 37.5f) < 0.001f);
    dialog.show();
    settle();
    // Centred on the host area.
    QCOMPARE(dialog.pos(), QPoint(50 + 512 - 384, 40 + 300 - 240));
    // No title: no title row.
    auto* title = dialog.findChild<QLabel*>(QStringLiteral("textViewTitle"));
    QVERIFY(title->isHidden());
    dialog.setTitle(QStringLiteral("Licences"));
    QVERIFY(!title->isHidden());

    QTest::ignoreMessage(QtWarningMsg, "[TextViewDialog] host rectangle is empty, using 800x480");
    TextViewDialog fallback(QRect(0, 0, 0, -5));
    QCOMPARE(fallback.size(), QSize(600, 384));
}

void TestSystemDialogs::textViewScrollsByLevel()
{
    TextViewDialog dialog(kPanel);
    dialog.setText(longText(200));
    dialog.show();
    settle();
    int const step = dialog.lineStep();
    QVERIFY(step > 1);
    QVERIFY(dialog.scrollMaximum() > 20 * step);
    QCOMPARE(dialog.scrollValue(), 0);

    Knob::turnText(&dialog, -1, QStringLiteral("1")); // Down
    QCOMPARE(dialog.scrollValue(), step);
    Knob::turnText(&dialog, -1, QStringLiteral("3"));
    QCOMPARE(dialog.scrollValue(), 4 * step);
    Knob::turnText(&dialog, 1, QString()); // Up, no level: one line
    QCOMPARE(dialog.scrollValue(), 3 * step);
    Knob::turnText(&dialog, 1, QStringLiteral("nan"));
    QCOMPARE(dialog.scrollValue(), 2 * step);
    Knob::turnText(&dialog, -1, QStringLiteral("-2")); // the level's size counts, not its sign
    QCOMPARE(dialog.scrollValue(), 4 * step);
    Knob::turnText(&dialog, -1, QStringLiteral("0"));
    QCOMPARE(dialog.scrollValue(), 5 * step);
    // A huge level scrolls one page at most.
    int const before = dialog.scrollValue();
    Knob::turnText(&dialog, -1, QStringLiteral("1e9"));
    int const page = dialog.scrollValue() - before;
    QVERIFY2(page > 3 * step && page < 30 * step, qPrintable(QString::number(page)));
    // Clamped at both ends.
    Knob::turnText(&dialog, 1, QStringLiteral("1e9"));
    Knob::turnText(&dialog, 1, QStringLiteral("1e9"));
    QCOMPARE(dialog.scrollValue(), 0);
    for (int i = 0; i < 100; ++i)
        Knob::turnText(&dialog, -1, QStringLiteral("1e9"));
    QCOMPARE(dialog.scrollValue(), dialog.scrollMaximum());
    // Other keys do nothing; the text does not change.
    Knob::key(&dialog, Qt::Key_Backspace);
    Knob::key(&dialog, Qt::Key_A, QStringLiteral("a"));
    QCOMPARE(dialog.text(), longText(200));
    QVERIFY(dialog.isVisible());
    // A new text starts at the top.
    dialog.setText(longText(150));
    QCOMPARE(dialog.scrollValue(), 0);
}

void TestSystemDialogs::textViewClosesWithEnterOrEscapeOnly()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true"));
    {
        Modal::Guard guard;
        Modal::whenModal([](QWidget* modal) {
            Modal::key(modal, Qt::Key_A, QStringLiteral("a"));
            Modal::key(modal, Qt::Key_Left);
            Modal::key(modal, Qt::Key_Down, QStringLiteral("2"));
            QVERIFY(modal->isVisible());
            Modal::key(modal, Qt::Key_Return);
        });
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^TextViewDialog pos")));
        QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with 1");
        QCOMPARE(TextViewDialog::showText(nullptr, QStringLiteral("Log"), longText(80), kPanel), 1);
        QVERIFY(!guard.fired());
    }
    {
        Modal::Guard guard;
        Modal::keysWhenModal({Qt::Key_Escape});
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^TextViewDialog pos")));
        QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with 0");
        QCOMPARE(TextViewDialog::showText(nullptr, QString(), QStringLiteral("short"), kPanel), 0);
        QVERIFY(!guard.fired());
    }
    {
        // The keypad's Enter closes too; isExec() is true only while it runs.
        TextViewDialog dialog(kPanel);
        dialog.setText(QStringLiteral("x"));
        bool wasExec = false;
        Modal::Guard guard;
        Modal::whenModal([&](QWidget* modal) {
            wasExec = dialog.isExec();
            Modal::key(modal, Qt::Key_Enter);
        });
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("^TextViewDialog pos")));
        QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with 1");
        QCOMPARE(dialog.exec(), 1);
        QVERIFY(wasExec);
        QVERIFY(!dialog.isExec());
        QVERIFY(!guard.fired());
    }
}

void TestSystemDialogs::textViewBadInput()
{
    QTest::ignoreMessage(QtWarningMsg, "[TextViewDialog] showText: text is empty: nothing shown");
    QCOMPARE(TextViewDialog::showText(nullptr, QStringLiteral("Log"), QString(), kPanel), 0);
    QVERIFY(!QApplication::activeModalWidget());

    TextViewDialog dialog(kPanel);
    QString huge(TextViewDialog::maxTextLength() + 10, QLatin1Char('x'));
    QTest::ignoreMessage(QtWarningMsg, "[TextViewDialog] setText: text of 1048586 characters cut to 1048576");
    dialog.setText(huge);
    QCOMPARE(dialog.text().size(), TextViewDialog::maxTextLength());
    // Knob turns on a dialog that has no text scroll nothing and break nothing.
    dialog.setText(QString());
    Knob::turnText(&dialog, -3, QStringLiteral("inf"));
    QCOMPARE(dialog.scrollValue(), 0);
}

void TestSystemDialogs::textViewEndsWhenItsParentGoes()
{
    auto* parent = new QWidget;
    QPointer<TextViewDialog> dialog = new TextViewDialog(kPanel, parent);
    dialog->setText(longText(10));
    Modal::Guard guard;
    Modal::whenModal([parent](QWidget*) { delete parent; });
    QCOMPARE(dialog->exec(), -1);
    QVERIFY(!guard.fired());
    QVERIFY(dialog); // not owned by the parent: the caller deletes it
    delete dialog.data();
}

void TestSystemDialogs::multiProgressTasksAndSummary()
{
    MutilProgressBarDialog dialog(QRect(0, 0, 1024, 600));
    QCOMPARE(dialog.size(), QSize(704, 480));
    QCOMPARE(dialog.summaryText(), QString());
    QVERIFY(!dialog.allEnded());
    QCOMPARE(dialog.addTask(QStringLiteral("Camera 1")), 0);
    QCOMPARE(dialog.addTask(QStringLiteral("Camera 2")), 1);
    QCOMPARE(dialog.addTask(QStringLiteral("Camera 3")), 2);
    QCOMPARE(dialog.taskCount(), 3);
    QCOMPARE(dialog.taskLabel(1), QStringLiteral("Camera 2"));
    auto* summary = dialog.findChild<QLabel*>(QStringLiteral("multiProgressSummary"));
    QCOMPARE(dialog.summaryText(), QStringLiteral("Finished: 0 of 3"));
    QCOMPARE(summary->property("multiProgressSummary").toString(), QStringLiteral("running"));

    QSignalSpy ended(&dialog, &MutilProgressBarDialog::signalTaskEnded);
    QSignalSpy all(&dialog, &MutilProgressBarDialog::signalAllEnded);
    // 100 % is not the end: only the host says how a task ended.
    dialog.setTaskValue(0, 100);
    QCOMPARE(dialog.taskValue(0), 100);
    QCOMPARE(dialog.taskState(0), MutilProgressBarDialog::TaskRunning);
    QVERIFY(ended.isEmpty());

    dialog.setTaskValue(1, 40);
    dialog.setTaskFailed(1, QStringLiteral("No answer"));
    QCOMPARE(dialog.taskState(1), MutilProgressBarDialog::TaskFailed);
    QCOMPARE(dialog.taskValue(1), 40);
    QCOMPARE(dialog.summaryText(), QStringLiteral("Finished: 1 of 3"));
    dialog.setTaskSucceeded(0);
    QCOMPARE(dialog.taskState(0), MutilProgressBarDialog::TaskSucceeded);
    QVERIFY(all.isEmpty());
    dialog.setTaskSucceeded(2);
    QCOMPARE(dialog.taskValue(2), 100);

    QCOMPARE(ended.count(), 3);
    QCOMPARE(ended.at(0), (QList<QVariant>{1, false}));
    QCOMPARE(ended.at(1), (QList<QVariant>{0, true}));
    QCOMPARE(ended.at(2), (QList<QVariant>{2, true}));
    QCOMPARE(all.count(), 1);
    QCOMPARE(all.at(0), (QList<QVariant>{2, 1}));
    QVERIFY(dialog.allEnded());
    QCOMPARE(dialog.succeededCount(), 2);
    QCOMPARE(dialog.failedCount(), 1);
    QCOMPARE(dialog.summaryText(), QStringLiteral("2 succeeded, 1 failed"));
    QCOMPARE(summary->property("multiProgressSummary").toString(), QStringLiteral("failure"));
    // The failed task shows its reason, the others their result.
    QList<QLabel*> values;
    for (QLabel* l : dialog.findChildren<QLabel*>(QStringLiteral("progressValueLabel")))
        values << l;
    QCOMPARE(values.size(), 3);
    QStringList texts;
    for (QLabel* l : values)
        texts << l->text();
    QVERIFY2(texts.contains(QStringLiteral("No answer")), qPrintable(texts.join(',')));

    // A new list starts over.
    dialog.setTasks({QStringLiteral("A"), QStringLiteral("B")});
    QCOMPARE(dialog.taskCount(), 2);
    QCOMPARE(dialog.succeededCount(), 0);
    QVERIFY(!dialog.allEnded());
    dialog.setTaskSucceeded(0);
    dialog.setTaskSucceeded(1);
    QCOMPARE(dialog.summaryText(), QStringLiteral("All 2 tasks succeeded"));
    QCOMPARE(summary->property("multiProgressSummary").toString(), QStringLiteral("success"));
    QCOMPARE(all.count(), 2);
}

void TestSystemDialogs::multiProgressBadInput()
{
    MutilProgressBarDialog dialog(kPanel);
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] addTask: empty label refused");
    QCOMPARE(dialog.addTask(QString()), -1);
    dialog.addTask(QStringLiteral("Camera 1"));
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] setTaskValue: no task 7 (1 tasks)");
    dialog.setTaskValue(7, 10);
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] setTaskSucceeded: no task -1 (1 tasks)");
    dialog.setTaskSucceeded(-1);
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] setTaskValue: value 150 clamped to 0..100");
    dialog.setTaskValue(0, 150);
    QCOMPARE(dialog.taskValue(0), 100);
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] setTaskValue: value -3 clamped to 0..100");
    dialog.setTaskValue(0, -3);
    QCOMPARE(dialog.taskValue(0), 0);
    dialog.setTaskFailed(0);
    QSignalSpy ended(&dialog, &MutilProgressBarDialog::signalTaskEnded);
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] setTaskSucceeded: task 0 has already ended");
    dialog.setTaskSucceeded(0);
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] setTaskValue: task 0 has already ended");
    dialog.setTaskValue(0, 50);
    QCOMPARE(dialog.taskState(0), MutilProgressBarDialog::TaskFailed);
    QCOMPARE(dialog.failedCount(), 1);
    QVERIFY(ended.isEmpty());
    QCOMPARE(dialog.taskState(5), MutilProgressBarDialog::TaskInvalid);
    QCOMPARE(dialog.taskValue(5), -1);
    QCOMPARE(dialog.taskLabel(5), QString());

    for (int i = dialog.taskCount(); i < MutilProgressBarDialog::kMaxTasks; ++i)
        QVERIFY(dialog.addTask(QStringLiteral("T%1").arg(i)) >= 0);
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] addTask: at most 64 tasks");
    QCOMPARE(dialog.addTask(QStringLiteral("one too many")), -1);
    QCOMPARE(dialog.taskCount(), 64);
}

void TestSystemDialogs::multiProgressUserClosesOnlyWhenAllEnded()
{
    MutilProgressBarDialog dialog(kPanel);
    int const a = dialog.addTask(QStringLiteral("Switcher A"));
    int const b = dialog.addTask(QStringLiteral("Switcher B"));
    auto* box = dialog.findChild<QDialogButtonBox*>(QStringLiteral("reminderButtonBox"));
    QVERIFY(box);
    bool openAfterKeys = false;
    bool okShownEarly = true;
    Modal::Guard guard;
    Modal::whenModal([&](QWidget* modal) {
        // Running: Escape, Back and the press are swallowed.
        Modal::key(modal, Qt::Key_Escape);
        Modal::key(modal, Qt::Key_Back);
        Modal::key(modal, Qt::Key_Return);
        Modal::key(modal, Qt::Key_Enter);
        openAfterKeys = modal->isVisible();
        okShownEarly = box->isVisible();
        dialog.setTaskSucceeded(a);
        Modal::key(modal, Qt::Key_Escape);
        openAfterKeys = openAfterKeys && modal->isVisible();
        dialog.setTaskFailed(b);
        // Ended: the OK button has the knob; its press closes the dialog.
        QVERIFY(box->isVisible());
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(box->buttons().value(0)));
        Modal::key(modal, Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), 1);
    QVERIFY(!guard.fired());
    QVERIFY(openAfterKeys);
    QVERIFY(!okShownEarly);

    // Once all have ended, Escape closes too (rejected).
    Modal::Guard guard2;
    Modal::keysWhenModal({Qt::Key_Escape});
    QCOMPARE(dialog.exec(), 0);
    QVERIFY(!guard2.fired());
}

void TestSystemDialogs::multiProgressScrollsLongLists()
{
    MutilProgressBarDialog dialog(kPanel);
    for (int i = 0; i < 12; ++i)
        dialog.addTask(QStringLiteral("Device %1").arg(i));
    dialog.show();
    settle();
    QVERIFY(dialog.scrollMaximum() > 0);
    Knob::turnText(&dialog, -1, QStringLiteral("1"));
    int const row = dialog.scrollValue();
    QVERIFY(row > 10);
    Knob::turnText(&dialog, -1, QStringLiteral("2"));
    QCOMPARE(dialog.scrollValue(), qMin(3 * row, dialog.scrollMaximum()));
    Knob::turnText(&dialog, 1, QStringLiteral("nan"));
    QCOMPARE(dialog.scrollValue(), qMin(3 * row, dialog.scrollMaximum()) - row);
    Knob::turnText(&dialog, -1, QStringLiteral("1e9"));
    QCOMPARE(dialog.scrollValue(), dialog.scrollMaximum());
    Knob::turnText(&dialog, 1, QStringLiteral("-1e9"));
    QCOMPARE(dialog.scrollValue(), 0);
    QVERIFY(dialog.isVisible());
}

void TestSystemDialogs::multiProgressHostCloses()
{
    // With no task only the host can close it; it says so.
    MutilProgressBarDialog dialog(kPanel);
    Modal::Guard guard;
    Modal::whenModal([&](QWidget* modal) {
        Modal::key(modal, Qt::Key_Escape);
        QVERIFY(modal->isVisible());
        dialog.done(5);
    });
    QTest::ignoreMessage(QtWarningMsg, "[MutilProgressBarDialog] exec: no task: only the host can close the dialog");
    QCOMPARE(dialog.exec(), 5);
    QVERIFY(!guard.fired());

    // A parent that goes away ends it.
    auto* parent = new QWidget;
    QPointer<MutilProgressBarDialog> child = new MutilProgressBarDialog(kPanel, parent);
    child->addTask(QStringLiteral("x"));
    Modal::whenModal([parent](QWidget*) { delete parent; });
    QCOMPARE(child->exec(), -1);
    QVERIFY(child);
    delete child.data();
}

void TestSystemDialogs::lockReminderClosesItself()
{
    LockReminderDialog reminder(QRect(0, 0, 1024, 600));
    QCOMPARE(reminder.size(), QSize(512, 200));
    QCOMPARE(reminder.displayTime(), 2000);
    reminder.setDisplayTime(40);
    QElapsedTimer clock;
    clock.start();
    Modal::Guard guard;
    QCOMPARE(reminder.exec(), 0);
    QVERIFY(!guard.fired());
    QVERIFY(clock.elapsed() >= 35);
    QVERIFY(!reminder.isTimerActive());

    // Shown without exec: closes itself, restartTimer() keeps it up.
    reminder.setDisplayTime(80);
    reminder.show();
    QVERIFY(reminder.isTimerActive());
    QTest::qWait(50);
    reminder.restartTimer();
    QTest::qWait(50);
    QVERIFY(reminder.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!reminder.isVisible(), 1000);
    // The press closes it early; other keys do not.
    reminder.setDisplayTime(10000);
    Modal::Guard guard2;
    Modal::whenModal([](QWidget* modal) {
        Modal::key(modal, Qt::Key_Down);
        QVERIFY(modal->isVisible());
        Modal::key(modal, Qt::Key_Return);
    });
    QCOMPARE(reminder.exec(), 0);
    QVERIFY(!guard2.fired());
    // The static helper.
    Modal::Guard guard3;
    QCOMPARE(LockReminderDialog::remind(nullptr, QStringLiteral("Locked by the operator"), kPanel, 0), 0);
    QVERIFY(!guard3.fired());
}

void TestSystemDialogs::lockReminderBadInputAndText()
{
    QTest::ignoreMessage(QtWarningMsg, "[LockReminderDialog] host rectangle is empty, using 800x480");
    LockReminderDialog reminder{QRect()};
    QCOMPARE(reminder.size(), QSize(400, 160));
    QTest::ignoreMessage(QtWarningMsg, "[LockReminderDialog] setDisplayTime: negative time -5 refused");
    reminder.setDisplayTime(-5);
    QCOMPARE(reminder.displayTime(), 2000);
    QCOMPARE(reminder.text(), QStringLiteral("The panel is locked\nHold Back for 2 s to unlock"));
    QCOMPARE(LockReminderDialog::unlockText(Qt::Key_Return, 1500),
             QStringLiteral("The panel is locked\nHold the knob for 1.5 s to unlock"));
    QCOMPARE(LockReminderDialog::unlockText(Qt::Key_F1, -4), QStringLiteral("The panel is locked\nHold F1 for 0 s to unlock"));
    reminder.setText(QStringLiteral("Locked"));
    QCOMPARE(reminder.text(), QStringLiteral("Locked"));
}

QTEST_MAIN(TestSystemDialogs)
#include "tst_systemdialogs.moc"
