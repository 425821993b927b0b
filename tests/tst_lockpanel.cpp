// The panel lock: what it swallows while locked (keys, knob turns, the wheel,
// shortcuts), the hold-to-unlock gesture and what the page sees of it, the reminder
// and the indicator, and bad input.
#include "leakcheck.h"
#include "knob.h"

#include <lockpanel.h>
#include <lockreminderdialog.h>

#include <QAction>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

using namespace LCD::Widget;

namespace {
QRect const kPanel(0, 0, 800, 480);

// A page that counts the key events it is given.
class Page : public QWidget
{
public:
    QList<int> presses;
    QList<int> releases;
    int wheels = 0;

protected:
    void keyPressEvent(QKeyEvent* e) override { presses << e->key(); }
    void keyReleaseEvent(QKeyEvent* e) override { releases << e->key(); }
    void wheelEvent(QWheelEvent*) override { ++wheels; }
};

void send(QWidget* w, QEvent::Type type, int key, bool autoRepeat = false, QString const& text = QString())
{
    QKeyEvent e(type, key, Qt::NoModifier, text, autoRepeat);
    QApplication::sendEvent(w, &e);
}
} // namespace

class TestLockPanel : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void init()
    {
        startLeakCheck();
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }
    void lockSwallowsKeysAndShowsTheReminder();
    void holdingBackUnlocks();
    void shortPressDoesNotUnlock();
    void autoRepeatDoesNotRestartTheHold();
    void otherUnlockKeyAndZeroHold();
    void wheelAndShortcutsAreSwallowed();
    void lostReleaseDoesNotKeepTheKeyAway();
    void destroyedWhileLockedFreesTheKeys();
    void indicatorWithoutParent();
    void badInput();
};

void TestLockPanel::lockSwallowsKeysAndShowsTheReminder()
{
    QWidget host;
    Page page;
    LockPanel lock(kPanel, &host);
    QVERIFY(lock.isHidden());
    QSignalSpy changed(&lock, &LockPanel::signalLockedChanged);
    QSignalSpy refused(&lock, &LockPanel::signalKeyRefused);

    Knob::turn(&page, 2);
    QCOMPARE(page.presses, (QList<int>{Qt::Key_Up, Qt::Key_Up}));
    page.presses.clear();
    page.releases.clear();

    lock.lock();
    QVERIFY(lock.isLocked());
    QVERIFY(!lock.isHidden());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toBool(), true);
    lock.lock(); // again: nothing
    QCOMPARE(changed.count(), 1);
    QVERIFY(!lock.reminder());

    Knob::turn(&page, 3, 5.0);
    Knob::turn(&page, -1);
    Knob::press(&page);
    Knob::key(&page, Qt::Key_Left);
    QVERIFY(page.presses.isEmpty());
    QVERIFY(page.releases.isEmpty());
    QCOMPARE(refused.count(), 6);
    QCOMPARE(refused.at(4).at(0).toInt(), int(Qt::Key_Return));
    // One reminder, kept up by the keys, saying how to unlock.
    LockReminderDialog* reminder = lock.reminder();
    QVERIFY(reminder);
    QVERIFY(reminder->isVisible());
    QCOMPARE(reminder->text(), QStringLiteral("The panel is locked\nHold Back for 2 s to unlock"));
    Knob::turn(&page, 1);
    QCOMPARE(lock.reminder(), reminder);
    QVERIFY(reminder->isTimerActive());

    lock.unlock();
    QVERIFY(!lock.isLocked());
    QVERIFY(lock.isHidden());
    QVERIFY(!lock.reminder());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(1).at(0).toBool(), false);
    Knob::turn(&page, -1);
    QCOMPARE(page.presses, (QList<int>{Qt::Key_Down}));
    lock.unlock();
    QCOMPARE(changed.count(), 2);
}

void TestLockPanel::holdingBackUnlocks()
{
    Page page;
    LockPanel lock(kPanel);
    lock.setUnlockHoldTime(60);
    QSignalSpy changed(&lock, &LockPanel::signalLockedChanged);
    QSignalSpy refused(&lock, &LockPanel::signalKeyRefused);
    lock.lock();
    send(&page, QEvent::KeyPress, Qt::Key_Escape);
    QVERIFY(lock.isUnlocking());
    QVERIFY(lock.isLocked());
    QTRY_VERIFY_WITH_TIMEOUT(!lock.isLocked(), 1000);
    QCOMPARE(changed.count(), 2);
    // The rest of the unlocking press never reaches the page: auto-repeats, release.
    send(&page, QEvent::KeyPress, Qt::Key_Escape, true);
    send(&page, QEvent::KeyRelease, Qt::Key_Escape, true);
    send(&page, QEvent::KeyPress, Qt::Key_Escape, true);
    Knob::turn(&page, 1); // other keys are the page's again at once
    send(&page, QEvent::KeyRelease, Qt::Key_Escape);
    QCOMPARE(page.presses, (QList<int>{Qt::Key_Up}));
    QCOMPARE(page.releases, (QList<int>{Qt::Key_Up}));
    QVERIFY(refused.isEmpty()); // the unlock key is not a refused key
    // Then Back is the page's again.
    Knob::back(&page);
    QCOMPARE(page.presses, (QList<int>{Qt::Key_Up, Qt::Key_Escape}));
}

void TestLockPanel::shortPressDoesNotUnlock()
{
    Page page;
    LockPanel lock(kPanel);
    lock.setUnlockHoldTime(150);
    lock.lock();
    send(&page, QEvent::KeyPress, Qt::Key_Escape);
    QTest::qWait(20);
    send(&page, QEvent::KeyRelease, Qt::Key_Escape);
    QVERIFY(!lock.isUnlocking());
    QVERIFY(lock.reminder()); // let go too early: how to unlock
    QTest::qWait(250);
    QVERIFY(lock.isLocked());
    QVERIFY(page.presses.isEmpty());
    QVERIFY(page.releases.isEmpty());
}

void TestLockPanel::autoRepeatDoesNotRestartTheHold()
{
    Page page;
    LockPanel lock(kPanel);
    lock.setUnlockHoldTime(120);
    lock.lock();
    QElapsedTimer clock;
    clock.start();
    send(&page, QEvent::KeyPress, Qt::Key_Escape);
    // A held key auto-repeats (X11 pairs each repeat with a release).
    while (lock.isLocked() && clock.elapsed() < 1000) {
        QTest::qWait(15);
        send(&page, QEvent::KeyRelease, Qt::Key_Escape, true);
        send(&page, QEvent::KeyPress, Qt::Key_Escape, true);
    }
    QVERIFY(!lock.isLocked());
    QVERIFY2(clock.elapsed() < 400, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(page.presses.isEmpty());
}

void TestLockPanel::otherUnlockKeyAndZeroHold()
{
    Page page;
    LockPanel lock(kPanel);
    lock.setUnlockKey(Qt::Key_Return);
    lock.setUnlockHoldTime(0);
    lock.lock();
    Knob::back(&page); // Back is just another key now
    QVERIFY(lock.isLocked());
    QCOMPARE(lock.reminder()->text(), QStringLiteral("The panel is locked\nHold the knob for 0 s to unlock"));
    send(&page, QEvent::KeyPress, Qt::Key_Return);
    QVERIFY(!lock.isLocked());
    send(&page, QEvent::KeyRelease, Qt::Key_Return);
    QVERIFY(page.presses.isEmpty());
    QVERIFY(page.releases.isEmpty());

    lock.setReminderText(QStringLiteral("Locked by the director"));
    lock.lock();
    Knob::turn(&page, 1);
    QCOMPARE(lock.reminder()->text(), QStringLiteral("Locked by the director"));
}

void TestLockPanel::wheelAndShortcutsAreSwallowed()
{
    Page page;
    page.resize(200, 100);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    auto* action = new QAction(&page);
    action->setShortcut(QKeySequence(Qt::Key_F5));
    action->setShortcutContext(Qt::ApplicationShortcut);
    page.addAction(action);
    QSignalSpy triggered(action, &QAction::triggered);
    LockPanel lock(kPanel);
    lock.lock();
    QTest::keyClick(&page, Qt::Key_F5);
    QWheelEvent wheel(QPointF(10, 10), QPointF(page.mapToGlobal(QPoint(10, 10))), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&page, &wheel);
    QCOMPARE(triggered.count(), 0);
    QCOMPARE(page.wheels, 0);
    QVERIFY(page.presses.isEmpty());
    lock.unlock();
    QTest::keyClick(&page, Qt::Key_F5);
    QCOMPARE(triggered.count(), 1);
    QApplication::sendEvent(&page, &wheel);
    QCOMPARE(page.wheels, 1);
}

void TestLockPanel::lostReleaseDoesNotKeepTheKeyAway()
{
    Page page;
    LockPanel lock(kPanel);
    lock.setUnlockHoldTime(30);
    lock.lock();
    send(&page, QEvent::KeyPress, Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!lock.isLocked(), 1000);
    // The release never came (the window lost the keys): the next press is the page's.
    Knob::back(&page);
    QCOMPARE(page.presses, (QList<int>{Qt::Key_Escape}));
    QCOMPARE(page.releases, (QList<int>{Qt::Key_Escape}));
}

void TestLockPanel::destroyedWhileLockedFreesTheKeys()
{
    Page page;
    auto* lock = new LockPanel(kPanel);
    lock->lock();
    Knob::turn(&page, 1);
    QPointer<LockReminderDialog> reminder = lock->reminder();
    QVERIFY(reminder);
    delete lock;
    QVERIFY(!reminder); // the reminder goes with it
    Knob::turn(&page, 1);
    QCOMPARE(page.presses, (QList<int>{Qt::Key_Up}));
}

void TestLockPanel::indicatorWithoutParent()
{
    LockPanel lock(QRect(100, 50, 800, 480));
    QVERIFY(lock.isWindow());
    QVERIFY(lock.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(lock.windowFlags() & Qt::WindowDoesNotAcceptFocus);
    QCOMPARE(lock.property("isLockPanel").toBool(), true);
    // Top-right corner of the host area.
    QVERIFY(lock.x() + lock.width() <= 900);
    QVERIFY(lock.x() > 500);
    QVERIFY(lock.y() >= 50 && lock.y() < 100);
    lock.lock();
    QVERIFY(lock.isVisible());
    lock.unlock();
    QVERIFY(!lock.isVisible());
}

void TestLockPanel::badInput()
{
    QTest::ignoreMessage(QtWarningMsg, "[LockPanel] host rectangle is empty, using 800x480");
    LockPanel lock{QRect()};
    QTest::ignoreMessage(QtWarningMsg, "[LockPanel] setUnlockHoldTime: negative time -1 refused");
    lock.setUnlockHoldTime(-1);
    QCOMPARE(lock.unlockHoldTime(), 2000);
    QTest::ignoreMessage(QtWarningMsg, "[LockPanel] setUnlockKey: 0 is no key");
    lock.setUnlockKey(0);
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("[LockPanel] setUnlockKey: %1 is no key").arg(int(Qt::Key_Shift))));
    lock.setUnlockKey(Qt::Key_Shift);
    QCOMPARE(lock.unlockKey(), int(Qt::Key_Escape));
    QTest::ignoreMessage(QtWarningMsg, "[LockPanel] setReminderTime: negative time -1 refused");
    lock.setReminderTime(-1);
    QCOMPARE(lock.reminderTime(), 2000);
    lock.setLocked(true);
    QVERIFY(lock.isLocked());
    lock.setLocked(false);
    QVERIFY(!lock.isLocked());
}

QTEST_MAIN(TestLockPanel)
#include "tst_lockpanel.moc"
