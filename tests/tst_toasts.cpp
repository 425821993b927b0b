// Self-closing notices: the reminder toast's timer, size, icon and mask; the popup
// toast's flags, types, self-deletion and Escape rule; the tip box's result,
// buttons and separator.
#include "leakcheck.h"
#include "modal.h"

#include <remindertoastdialog.h>
#include <tipdialog.h>
#include <toastdialog.h>

#include <QFile>
#include <QLabel>
#include <QMovie>
#include <QRegularExpression>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace LCD::Widget;

namespace {
QRect const kPanel(0, 0, 800, 480);
} // namespace

class TestToasts : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void init()
    {
        startLeakCheck();
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }
    void reminderToastSizeIconAndMask();
    void reminderToastClosesAfterItsTime();
    void zeroTimeClosesOnTheNextPass();
    void withoutStartTimerItStays();
    void reminderToastBadInput();
    void toastFlagsTypesAndTimer();
    void permanentToastStaysAndEscapeDoesNotClose();
    void toastWhoseParentGoesFirst();
    void stackToastCountsFromShowingAndStaysAlive();
    void tipReturnsTheChoice();
    void tipEscapeAndHiddenButtons();
    void tipBadInputAndAutoDelete();
    void themeImagesOfTheDialogs();
};

void TestToasts::reminderToastSizeIconAndMask()
{
    ReminderToastDialog toast(QRect(100, 20, 800, 480));
    QCOMPARE(toast.size(), QSize(500, 192));
    QCOMPARE(toast.getReminderToastDialogWidth(), 500);
    QCOMPARE(toast.getReminderToastDialogHeight(), 192);
    QVERIFY(qAbs(toast.getFontSize() - 800 / 37.5f) < 0.001f);
    auto* icon = toast.findChild<QLabel*>(QStringLiteral("reminderToastIcon"));
    QCOMPARE(icon->size(), QSize(50, 48));
    QVERIFY(icon->isHidden());
    toast.setDialgIcon(Enum::DialogError);
    QVERIFY(!icon->isHidden());
    QCOMPARE(icon->property("isReminderIcon").toString(), QStringLiteral("error"));
    toast.setDialgIcon(Enum::DialogProsper);
    QCOMPARE(icon->property("isReminderIcon").toString(), QStringLiteral("prosper"));
    auto* text = toast.findChild<QLabel*>(QStringLiteral("reminderToastText"));
    QCOMPARE(text->width(), 400);
    QVERIFY(text->wordWrap());

    toast.setBStartTimer(false);
    toast.show();
    QCOMPARE(toast.pos(), QPoint(100 + 400 - 250, 20 + 240 - 96));
    QCOMPARE(text->styleSheet(), QStringLiteral("QLabel{font-size: 21px; }"));
    // Rounded corners: the corner pixel is outside the mask, the centre inside.
    QVERIFY(!toast.mask().isEmpty());
    QVERIFY(!toast.mask().contains(QPoint(0, 0)));
    QVERIFY(toast.mask().contains(QPoint(250, 96)));
}

void TestToasts::reminderToastClosesAfterItsTime()
{
    Modal::Guard guard(3000);
    QElapsedTimer clock;
    clock.start();
    int const result = ReminderToastDialog::prosper(nullptr, QStringLiteral("Saved"), kPanel, 60);
    QVERIFY(!guard.fired());
    QCOMPARE(result, int(QDialog::Rejected));
    QVERIFY(clock.elapsed() >= 55);
    for (auto helper : {&ReminderToastDialog::information, &ReminderToastDialog::warning, &ReminderToastDialog::error})
        QCOMPARE(helper(nullptr, QStringLiteral("x"), kPanel, 1), int(QDialog::Rejected));
    QVERIFY(!guard.fired());
}

void TestToasts::zeroTimeClosesOnTheNextPass()
{
    ReminderToastDialog toast(kPanel);
    toast.setDialgTipsTime(0);
    toast.show();
    QVERIFY(toast.isVisible());
    QCoreApplication::processEvents();
    QTRY_VERIFY_WITH_TIMEOUT(!toast.isVisible(), 200);
    toast.setDialgTipsTime(-5);
    QCOMPARE(toast.dialogTipsTime(), 0);
}

void TestToasts::withoutStartTimerItStays()
{
    ReminderToastDialog toast(kPanel);
    toast.setDialgTipsTime(20);
    QTest::ignoreMessage(QtDebugMsg, "setBStartTimer false");
    QLoggingCategory::setFilterRules(QString());
    toast.setBStartTimer(false);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    toast.show();
    QTest::qWait(120);
    QVERIFY(toast.isVisible());
    toast.slotCloseDialog();
    QVERIFY(!toast.isVisible());

    // Run modally, a second run meanwhile is refused instead of reaching Qt.
    int second = -1;
    QTimer::singleShot(0, &toast, [&toast, &second] {
        QTest::ignoreMessage(QtWarningMsg, "[ReminderToastDialog] exec: already running, refused");
        second = toast.exec();
        toast.slotCloseDialog();
    });
    toast.exec();
    QCOMPARE(second, int(QDialog::Rejected));
    QVERIFY(!toast.isVisible());
}

void TestToasts::reminderToastBadInput()
{
    QTest::ignoreMessage(QtWarningMsg, "[ReminderToastDialog] host rectangle is empty, using 800x480");
    ReminderToastDialog toast(QRect(0, 0, 0, 300));
    QCOMPARE(toast.size(), QSize(500, 192));
    QTest::ignoreMessage(QtWarningMsg, "[ReminderToastDialog] setDialgIcon: unknown dialog type 6");
    toast.setDialgIcon(Enum::DialogProgress);
    QVERIFY(toast.findChild<QLabel*>(QStringLiteral("reminderToastIcon"))->isHidden());
    Modal::Guard guard(1000);
    QTest::ignoreMessage(QtWarningMsg, "[ReminderToastDialog] warning text is empty: nothing shown");
    QCOMPARE(ReminderToastDialog::warning(nullptr, QString(), kPanel, 10), int(QDialog::Rejected));
    QVERIFY(!guard.fired());
}

void TestToasts::toastFlagsTypesAndTimer()
{
    QWidget parent;
    parent.setGeometry(40, 30, 800, 480);
    parent.show();
    QPointer<ToastDialog> toast = ToastDialog::createToastDialog(QStringLiteral("Recording"), 50, 3, false, &parent);
    QVERIFY(toast);
    QCOMPARE(toast->windowFlags(), Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QVERIFY(toast->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(toast->isVisible());
    auto* icon = toast->findChild<QLabel*>(QStringLiteral("toastIcon"));
    QCOMPARE(icon->property("image").toString(), QStringLiteral("toast_success"));
    char const* const images[] = {"toast_warning", "toast_critical", "toast_info", "toast_success"};
    for (int t = 0; t < 4; ++t) {
        toast->setPopupType(t);
        QCOMPARE(icon->property("image").toString(), QLatin1String(images[t]));
    }
    QTest::ignoreMessage(QtWarningMsg, "[ToastDialog] setPopupType: unknown popup type 4");
    toast->setPopupType(4);
    QCOMPARE(icon->property("image").toString(), QStringLiteral("toast_success"));
    // Centred on the parent, in global coordinates.
    QPoint const centre = parent.mapToGlobal(parent.rect().center());
    QVERIFY(qAbs(toast->geometry().center().x() - centre.x()) <= 1);
    QVERIFY(qAbs(toast->geometry().center().y() - centre.y()) <= 1);
    // Closed and deleted by its timer.
    QTRY_VERIFY_WITH_TIMEOUT(toast.isNull(), 2000);

    QTest::ignoreMessage(QtWarningMsg, "[ToastDialog] createToastDialog: text is empty: nothing shown");
    QCOMPARE(ToastDialog::createToastDialog(QString(), 10), nullptr);
}

void TestToasts::permanentToastStaysAndEscapeDoesNotClose()
{
    QPointer<ToastDialog> toast = ToastDialog::createToastDialog(QStringLiteral("Stays"), 10, 2, true);
    QVERIFY(toast->isPermanent());
    QTest::qWait(60);
    QVERIFY(toast);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(toast, &escape);
    QVERIFY(!escape.isAccepted());
    QCoreApplication::processEvents();
    QVERIFY(toast && toast->isVisible());
    toast->close();
    QTRY_VERIFY(toast.isNull());
}

void TestToasts::toastWhoseParentGoesFirst()
{
    // The timer belongs to the toast: deleting the parent (and so the toast)
    // before it fires leaves nothing to fire.
    auto* parent = new QWidget;
    parent->show();
    QPointer<ToastDialog> toast = ToastDialog::createToastDialog(QStringLiteral("Bye"), 30, 0, false, parent);
    delete parent;
    QVERIFY(toast.isNull());
    QTest::qWait(60);

    auto* owner = new QWidget;
    QPointer<ReminderToastDialog> reminder = new ReminderToastDialog(kPanel, owner);
    reminder->setDialgTipsTime(20);
    reminder->show();
    delete owner;
    QVERIFY(reminder.isNull());
    QTest::qWait(60);
}

void TestToasts::stackToastCountsFromShowingAndStaysAlive()
{
    // A toast of the caller's own: closing it must not delete it (it is deleted once,
    // by its scope), and its time starts when it is shown, not when it is made.
    ToastDialog toast(QStringLiteral("On the stack"), 80, 2, false);
    QVERIFY(!toast.testAttribute(Qt::WA_DeleteOnClose));
    QTest::qWait(150);
    toast.show();
    QVERIFY(toast.isVisible());
    QTest::qWait(20);
    QVERIFY(toast.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!toast.isVisible(), 2000);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Shown again, it counts again; closed by hand it stays alive too.
    toast.show();
    QTRY_VERIFY_WITH_TIMEOUT(!toast.isVisible(), 2000);
    toast.show();
    toast.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!toast.isVisible());

    // Made permanent while shown, it stops counting.
    toast.show();
    toast.setPermanent(true);
    QTest::qWait(150);
    QVERIFY(toast.isVisible());
    toast.close();
}

void TestToasts::tipReturnsTheChoice()
{
    Modal::Guard guard;
    Modal::whenModal([](QWidget* modal) { modal->findChild<QPushButton*>(QStringLiteral("tipOkButton"))->click(); });
    QVERIFY(TipDialog::createTipDialog(QStringLiteral("Restart?")));
    Modal::whenModal([](QWidget* modal) { modal->findChild<QPushButton*>(QStringLiteral("tipCancelButton"))->click(); });
    QVERIFY(!TipDialog::createTipDialog(QStringLiteral("Restart?")));
    // Return on the focused button presses it.
    Modal::whenModal([](QWidget* modal) {
        auto* ok = modal->findChild<QPushButton*>(QStringLiteral("tipOkButton"));
        ok->setFocus();
        Modal::key(modal, Qt::Key_Return);
    });
    QVERIFY(TipDialog::createTipDialog(QStringLiteral("Restart?")));
    QVERIFY(!guard.fired());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestToasts::tipEscapeAndHiddenButtons()
{
    TipDialog tip(QStringLiteral("Question"));
    tip.setAutoDelete(false);
    QCOMPARE(tip.width(), 520);
    QCOMPARE(tip.cancelButton()->text(), QStringLiteral("Cancel"));
    QCOMPARE(tip.okButton()->text(), QStringLiteral("OK"));
    QCOMPARE(tip.getVisibleButtonCount(), 2);
    QWidget* line = nullptr;
    for (QWidget* w : tip.findChildren<QWidget*>())
        if (w->property("background") == QStringLiteral("white_30"))
            line = w;
    QVERIFY(line);

    bool stayed = false;
    Modal::Guard guard;
    Modal::whenModal([&](QWidget* modal) {
        Modal::key(modal, Qt::Key_Escape);
        QCoreApplication::processEvents();
        stayed = modal->isVisible();
        tip.cancelButton()->click();
    });
    QVERIFY(!tip.run());
    QVERIFY(stayed);
    QVERIFY(!guard.fired());

    tip.setCancelBtnVisible(false);
    QCOMPARE(tip.getVisibleButtonCount(), 1);
    QVERIFY(!line->isHidden());
    tip.setOkBtnVisible(false);
    QCOMPARE(tip.getVisibleButtonCount(), 0);
    QVERIFY(line->isHidden());
    tip.setOkBtnVisible(true);
    QVERIFY(!line->isHidden());
}

void TestToasts::tipBadInputAndAutoDelete()
{
    QTest::ignoreMessage(QtWarningMsg, "[TipDialog] createTipDialog: text is empty: nothing shown");
    QVERIFY(!TipDialog::createTipDialog(QString()));

    QPointer<TipDialog> tip = new TipDialog(QStringLiteral("Auto"));
    Modal::whenModal([](QWidget* modal) { modal->findChild<QPushButton*>(QStringLiteral("tipOkButton"))->click(); });
    QVERIFY(tip->run());
    QVERIFY(tip); // deleted later, not at once
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(tip.isNull());

    // A parent that goes away while the tip runs ends it: Cancel's result, no crash.
    auto* parent = new QWidget;
    parent->show();
    QTimer::singleShot(20, parent, [parent] { parent->deleteLater(); });
    Modal::Guard guard;
    QVERIFY(!TipDialog::createTipDialog(QStringLiteral("Orphan"), parent));
    QVERIFY(!guard.fired());
}

void TestToasts::themeImagesOfTheDialogs()
{
    // Every image the theme's dialog rules name is there and loads.
    QFile theme(QStringLiteral("./../share/themes/default/default.qss"));
    QVERIFY(theme.open(QIODevice::ReadOnly));
    QString const sheet = QString::fromUtf8(theme.readAll());
    int const start = sheet.indexOf(QStringLiteral("---- Dialogs"));
    QVERIFY(start > 0);
    QRegularExpression const url(QStringLiteral("url\\(([^)]+)\\)"));
    QStringList files;
    for (auto it = url.globalMatch(sheet.mid(start)); it.hasNext();)
        files << it.next().captured(1);
    QVERIFY(files.size() >= 13);
    for (QString const& file : files)
        QVERIFY2(!QImage(file).isNull(), qPrintable(file));

    // The loading animation of the waiting and block dialogs.
    QMovie loading(QStringLiteral("./../share/themes/default/images/icon_loading.gif"));
    QVERIFY(loading.isValid());
    QCOMPARE(loading.frameCount(), 12);
}

QTEST_MAIN(TestToasts)
#include "tst_toasts.moc"
