// Lifetimes: dialogs whose parent goes away while they are open, a helper called
// while another modal runs, toasts whose timers outlive their callers, and a
// thousand open/close cycles of every kind without a window, a modal loop or a
// timer left behind.
#include "leakcheck.h"
#include "modal.h"

#include <blockdialog.h>
#include <customreminderdialog.h>
#include <minireminderdialog.h>
#include <reminderdialog.h>
#include <remindertoastdialog.h>
#include <tipdialog.h>
#include <toastdialog.h>
#include <waitingdialog.h>

#include <QPushButton>
#include <QtTest>

using namespace LCD::Widget;

namespace {
QRect const kPanel(0, 0, 800, 480);
constexpr int kCycles = 1000;

// The offscreen platform reports every window feature it lacks (masks, size
// hints, raise); thousands of windows would flood the log with them.
QtMessageHandler g_previous = nullptr;
void dropPlatformNotes(QtMsgType type, QMessageLogContext const& context, QString const& message)
{
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    g_previous(type, context, message);
}

int liveTopLevels()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return QApplication::topLevelWidgets().size();
}

// Deletes `victim` shortly after the next modal dialog is up.
void deleteWhenModal(QWidget* victim)
{
    QPointer<QWidget> guard(victim);
    Modal::whenModal([guard](QWidget*) {
        if (guard)
            delete guard.data();
    });
}
} // namespace

class TestDialogLifetime : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        g_previous = qInstallMessageHandler(dropPlatformNotes);
    }
    void parentDestroyedWhileOpen();
    void helperWhileAnotherModalRuns();
    void thousandCycles();
};

void TestDialogLifetime::parentDestroyedWhileOpen()
{
    int const before = liveTopLevels();
    Modal::Guard guard(6000);

    auto* parent = new QWidget;
    deleteWhenModal(parent);
    QCOMPARE(ReminderDialog::question(parent, QStringLiteral("Orphan"), kPanel), int(QDialogButtonBox::NoRole));

    parent = new QWidget;
    deleteWhenModal(parent);
    QCOMPARE(MiniProcessDialog::prosper(parent, QStringLiteral("Orphan"), kPanel), int(QDialogButtonBox::NoRole));

    parent = new QWidget;
    deleteWhenModal(parent);
    QCOMPARE(ReminderToastDialog::information(parent, QStringLiteral("Orphan"), kPanel, 100000), int(QDialog::Rejected));

    parent = new QWidget;
    deleteWhenModal(parent);
    QVERIFY(!TipDialog::createTipDialog(QStringLiteral("Orphan"), parent));

    parent = new QWidget;
    deleteWhenModal(parent);
    BlockDialog::createBlockDialog(QStringLiteral("Orphan"), parent);

    parent = new QWidget;
    WaitingDialog::instance(kPanel, parent)->showWaitingDialog(QStringLiteral("Orphan"), kPanel);
    delete parent;
    QCOMPARE(WaitingDialog::existingInstance(), nullptr);

    QVERIFY(!guard.fired());
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
    QCOMPARE(liveTopLevels(), before);
}

void TestDialogLifetime::helperWhileAnotherModalRuns()
{
    Modal::Guard guard(6000);
    int inner = -1;
    bool outerStillOpen = false;
    Modal::whenModal([&](QWidget* outer) {
        // A second box over the first, answered, then the first is answered.
        Modal::whenModal([](QWidget* modal) { Modal::key(modal, Qt::Key_Enter); });
        inner = ReminderDialog::information(outer, QStringLiteral("Inner"), kPanel);
        outerStillOpen = outer->isVisible() && QApplication::activeModalWidget() == outer;
        // The knob comes back to the first box's buttons.
        (void)QTest::qWaitFor([outer] {
            QWidget* focus = QApplication::focusWidget();
            return focus && outer->isAncestorOf(focus);
        }, 1000);
        Modal::key(outer, Qt::Key_Down); // Cancel to OK
        Modal::key(outer, Qt::Key_Enter);
    });
    int const outer = ReminderDialog::question(nullptr, QStringLiteral("Outer"), kPanel);
    QVERIFY(!guard.fired());
    QCOMPARE(inner, int(QDialogButtonBox::YesRole));
    QVERIFY(outerStillOpen);
    QCOMPARE(outer, int(QDialogButtonBox::YesRole));
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

void TestDialogLifetime::thousandCycles()
{
    int const before = liveTopLevels();
    QWidget host;
    host.resize(800, 480);
    QElapsedTimer clock;
    clock.start();

    for (int i = 0; i < kCycles; ++i) {
        // Modal boxes, closed from inside their own loops.
        QTimer::singleShot(0, [] { Modal::key(QApplication::activeModalWidget(), Qt::Key_Escape); });
        ReminderDialog::information(&host, QStringLiteral("Cycle"), kPanel);

        auto* progress = ReminderDialog::progress(&host, QStringLiteral("Cycle"), kPanel, QDialogButtonBox::NoRole, true);
        progress->show();
        progress->setProgressValue(i % 100);
        delete progress;

        MiniProcessDialog* band = MiniProcessDialog::ongoing(&host, QStringLiteral("Cycle"), QRect(0, 0, 800, 96));
        band->show();
        delete band;

        ReminderToastDialog::prosper(&host, QStringLiteral("Cycle"), kPanel, 0);

        ToastDialog::createToastDialog(QStringLiteral("Cycle"), 0, i % 4, false, &host);

        auto* tip = new TipDialog(QStringLiteral("Cycle"), &host);
        QTimer::singleShot(0, tip, [tip] { tip->okButton()->click(); });
        tip->run();

        WaitingDialog* waiting = WaitingDialog::instance(kPanel, &host);
        waiting->showWaitingDialog(QStringLiteral("Cycle"), kPanel);
        waiting->hideWaitingDialog();
        if (i % 100 == 99)
            WaitingDialog::deleteInstance();

        auto* block = new BlockDialog(QStringLiteral("Cycle"), &host);
        block->setEffectDurationMs(12);
        QTimer::singleShot(0, block, &QDialog::accept);
        block->run();

        CustomReminderDialog tiles(kPanel);
        tiles.addButton(1, QStringLiteral("One"), QStringLiteral("isIconTileSave"));
        QTimer::singleShot(0, &tiles, [&tiles] { tiles.findChild<QPushButton*>()->click(); });
        QCOMPARE(tiles.exec(), 1);

        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QTRY_COMPARE(host.findChildren<ToastDialog*>().size(), 0);
    WaitingDialog::deleteInstance();
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
    QCOMPARE(host.findChildren<QDialog*>().size(), 0);
    QCOMPARE(liveTopLevels(), before + 1); // the host
    qInfo("%d cycles of every kind in %lld ms", kCycles, clock.elapsed());
}

QTEST_MAIN(TestDialogLifetime)
#include "tst_dialoglifetime.moc"
