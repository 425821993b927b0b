// The message box: sizes from the host rectangle, icons by type, the static
// helpers and their roles, the knob's walk over the buttons with its wrap rules,
// the progress box that ignores Escape and Back, the executing flag, the auto-close
// timer, bad input; the progress band and the Apply notice.
#include "leakcheck.h"
#include "knob.h"
#include "modal.h"

#include <lcdfwtranslatemanager.h>
#include <minireminderdialog.h>
#include <reminderdialog.h>

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

using namespace LCD::Widget;

namespace {

QRect const kWide(0, 0, 1024, 600);
QRect const kPanel(0, 0, 800, 480);

QString longText()
{
    QString text;
    for (int i = 0; i < 60; ++i)
        text += QStringLiteral("Line %1 of a long message that needs the scroll bar. ").arg(i);
    return text;
}

// Drops the debug lines that every shown dialog writes.
void quiet() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }

} // namespace

class TestReminderDialog : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void init()
    {
        startLeakCheck();
        quiet();
    }
    void sizesFollowTheHostRectangle();
    void iconAndPartsByType();
    void badInputIsLoggedAndRefused();
    void helpersReturnTheRoleOfTheClosingButton_data();
    void helpersReturnTheRoleOfTheClosingButton();
    void warningWithOtherRolesShowsNothing();
    void informationWithoutButtonsClosesOnEscapeOnly();
    void questionPutsCancelFirstAndFocusesIt();
    void buttonsWrapWithoutScrollBar();
    void scrollBarStopsTheWrapAndLeadsBackToTheText();
    void progressIgnoresEscapeAndBack();
    void executingFlagAndExecLog();
    void autoCloseTimerRejects();
    void clickedRoleMapping();
    void setDefaultButtonOnlyForOwnButtons();
    void scrollBarDetectionIsQueued();
    void miniProcessDialog();
    void reminderDialogApply();
    void buttonsTranslatedAgainByRole();
};

void TestReminderDialog::sizesFollowTheHostRectangle()
{
    ReminderDialog dialog(ReminderDialog::Question, kWide);
    QCOMPARE(dialog.getReminderDialogWidth(), 704);
    QCOMPARE(dialog.getReminderDialogHeight(), 360);
    QCOMPARE(dialog.size(), QSize(704, 360));
    QCOMPARE(dialog.getLineWidth(), 640);
    QVERIFY(qAbs(dialog.getFontSize() - 27.3067f) < 0.001f);
    auto* text = dialog.findChild<QTextEdit*>();
    QVERIFY(text);
    QCOMPARE(text->width(), 704 * 4 / 5);
    auto* line = dialog.findChild<QLabel*>(QStringLiteral("reminderLine"));
    QCOMPARE(line->size(), QSize(704, 1));

    // Three buttons share the row: (704 − 2·64 − 2·27.31) / 3 = 173.
    QPushButton* a = dialog.addButton(QDialogButtonBox::ActionRole);
    QPushButton* b = dialog.addButton(QDialogButtonBox::YesRole);
    QCOMPARE(a->width(), 292); // two buttons: (704 − 64 − 54.61) / 2
    QPushButton* c = dialog.addButton(QDialogButtonBox::NoRole);
    for (QPushButton* button : {a, b, c})
        QCOMPARE(button->width(), 173);
    QCOMPARE(c->height(), 27 + 27 * 10 / 14);

    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    // Centred on the host rectangle, wherever it lies.
    ReminderDialog moved(ReminderDialog::Information, QRect(100, 50, 800, 480));
    moved.show();
    QCOMPARE(moved.pos(), QPoint(100 + 400 - 275, 50 + 240 - 144));
    QCOMPARE(moved.findChild<QLabel*>(QStringLiteral("reminderIcon"))->size(), QSize(42, 42));
}

void TestReminderDialog::iconAndPartsByType()
{
    char const* const names[] = {"information", "question", "warning", "prosper", "error"};
    for (int t = 0; t <= ReminderDialog::Progress; ++t) {
        ReminderDialog dialog(ReminderDialog::DialogType(t), kPanel);
        dialog.setIcon(ReminderDialog::DialogType(t));
        auto* icon = dialog.findChild<QLabel*>(QStringLiteral("reminderIcon"));
        QString const expected = t <= 4 ? QLatin1String(names[t]) : QStringLiteral("question"); // 5, 6: unchanged
        QCOMPARE(icon->property("isReminderIcon").toString(), expected);
        QCOMPARE(icon->isHidden(), t >= ReminderDialog::Ongoing);
        QWidget* bar = dialog.findChild<QWidget*>(QStringLiteral("progressBar"))->parentWidget()->parentWidget();
        QCOMPARE(bar->isHidden(), t != ReminderDialog::Progress);
        QCOMPARE(int(dialog.getDialogType()), t);
    }
}

void TestReminderDialog::badInputIsLoggedAndRefused()
{
    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] host rectangle is empty, using 800x480");
    ReminderDialog dialog(ReminderDialog::Information, QRect());
    QCOMPARE(dialog.size(), QSize(550, 288));

    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] setIcon: unknown dialog type 9");
    dialog.setIcon(ReminderDialog::DialogType(9));
    QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("reminderIcon"))->property("isReminderIcon").toString(),
             QStringLiteral("question"));

    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] addButton: unknown button role 42");
    QCOMPARE(dialog.addButton(QDialogButtonBox::ButtonRole(42)), nullptr);
    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] addButton: unknown button role -1");
    QCOMPARE(dialog.addButton(QDialogButtonBox::InvalidRole), nullptr);

    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] information text is empty: nothing shown");
    QCOMPARE(ReminderDialog::information(nullptr, QString(), kPanel), int(QDialogButtonBox::NoRole));

    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] setDialogSize: negative size refused QSize(-1, 10)");
    dialog.setDialogSize(QSize(-1, 10));
    QCOMPARE(dialog.size(), QSize(550, 288));

    // A rectangle larger than any screen (a window sized from it could not be
    // painted) is refused like an empty one.
    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] host rectangle is larger than any screen, using 800x480");
    ReminderDialog huge(ReminderDialog::Information, QRect(0, 0, INT_MAX, INT_MAX));
    QCOMPARE(huge.getReminderDialogWidth(), 550);

    // Sizes the host sets stop at the host rectangle, and a second run of a running
    // dialog is refused instead of reaching Qt.
    dialog.setDialogSize(QSize(100000, 100000));
    QCOMPARE(dialog.size(), QSize(800, 480));
    QTimer::singleShot(0, &dialog, [&dialog] {
        QTest::ignoreMessage(QtWarningMsg, "[ReminderDialog] exec: already running, refused");
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        dialog.done(QDialog::Accepted);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
}

void TestReminderDialog::helpersReturnTheRoleOfTheClosingButton_data()
{
    QTest::addColumn<QString>("helper");
    QTest::addColumn<int>("role");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("expected");
    int const Yes = QDialogButtonBox::YesRole, No = QDialogButtonBox::NoRole, Action = QDialogButtonBox::ActionRole;
    QTest::newRow("information Enter") << "information" << Yes << QList<int>{Qt::Key_Enter} << Yes;
    QTest::newRow("information Return") << "information" << Yes << QList<int>{Qt::Key_Return} << Yes;
    QTest::newRow("information Escape") << "information" << Yes << QList<int>{Qt::Key_Escape} << No;
    QTest::newRow("prosper Enter") << "prosper" << Yes << QList<int>{Qt::Key_Enter} << Yes;
    QTest::newRow("question Cancel") << "question" << Yes << QList<int>{Qt::Key_Enter} << No;
    QTest::newRow("question OK") << "question" << Yes << QList<int>{Qt::Key_Down, Qt::Key_Enter} << Yes;
    QTest::newRow("warning Details") << "warning" << Action << QList<int>{Qt::Key_Enter} << Action;
    QTest::newRow("warning OK") << "warning" << Yes << QList<int>{Qt::Key_Enter} << Yes;
    QTest::newRow("error OK even with NoRole") << "error" << No << QList<int>{Qt::Key_Enter} << Yes;
}

void TestReminderDialog::helpersReturnTheRoleOfTheClosingButton()
{
    QFETCH(QString, helper);
    QFETCH(int, role);
    QFETCH(QList<int>, keys);
    QFETCH(int, expected);
    using Helper = int (*)(QWidget*, QString const&, QRect, QDialogButtonBox::ButtonRole);
    QMap<QString, Helper> const helpers = {{"information", &ReminderDialog::information},
                                           {"prosper", &ReminderDialog::prosper},
                                           {"question", &ReminderDialog::question},
                                           {"warning", &ReminderDialog::warning},
                                           {"error", &ReminderDialog::error}};
    Modal::Guard guard;
    Modal::keysWhenModal(keys);
    int const result = helpers.value(helper)(nullptr, QStringLiteral("Message"), kPanel, QDialogButtonBox::ButtonRole(role));
    QVERIFY(!guard.fired());
    QCOMPARE(result, expected);
}

void TestReminderDialog::warningWithOtherRolesShowsNothing()
{
    Modal::Guard guard(1000);
    for (auto role : {QDialogButtonBox::NoRole, QDialogButtonBox::RejectRole, QDialogButtonBox::ApplyRole})
        QCOMPARE(ReminderDialog::warning(nullptr, QStringLiteral("Careful"), kPanel, role), int(QDialogButtonBox::NoRole));
    QVERIFY(!guard.fired());
}

void TestReminderDialog::informationWithoutButtonsClosesOnEscapeOnly()
{
    Modal::Guard guard;
    bool stayedOpen = false;
    Modal::whenModal([&stayedOpen](QWidget* modal) {
        QVERIFY(modal->findChildren<QPushButton*>().isEmpty());
        QCOMPARE(QApplication::focusWidget(), modal);
        Modal::key(modal, Qt::Key_Enter);
        Modal::key(modal, Qt::Key_Return);
        Modal::key(modal, Qt::Key_Down);
        stayedOpen = modal->isVisible();
        Modal::key(modal, Qt::Key_Escape);
    });
    int const role = ReminderDialog::information(nullptr, QStringLiteral("No buttons"), kPanel, QDialogButtonBox::NoRole);
    QVERIFY(!guard.fired());
    QVERIFY(stayedOpen);
    QCOMPARE(role, int(QDialogButtonBox::NoRole));
}

void TestReminderDialog::questionPutsCancelFirstAndFocusesIt()
{
    Modal::Guard guard;
    QString focused;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    Modal::whenModal([&](QWidget* modal) {
        focused = qobject_cast<QPushButton*>(QApplication::focusWidget())->text();
        direction = modal->findChild<QDialogButtonBox*>()->layoutDirection();
        auto* cancel = qobject_cast<QPushButton*>(QApplication::focusWidget());
        QVERIFY(cancel->isDefault());
        Modal::key(modal, Qt::Key_Escape);
    });
    QCOMPARE(ReminderDialog::question(nullptr, QStringLiteral("Sure?"), kPanel), int(QDialogButtonBox::NoRole));
    QCOMPARE(focused, QStringLiteral("Cancel"));
    QCOMPARE(direction, Qt::RightToLeft);
}

void TestReminderDialog::buttonsWrapWithoutScrollBar()
{
    ReminderDialog dialog(ReminderDialog::Question, kPanel);
    // Box order is by role: Action, Yes, No; the knob walks it backwards.
    QPushButton* details = dialog.addButton(QDialogButtonBox::ActionRole);
    QPushButton* ok = dialog.addButton(QDialogButtonBox::YesRole);
    QPushButton* cancel = dialog.addButton(QDialogButtonBox::NoRole);
    dialog.setText(QStringLiteral("Short"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::focusWidget(), cancel); // the last button takes the focus
    QVERIFY(!dialog.hasScrollBar());

    Knob::key(&dialog, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), ok);
    Knob::key(&dialog, Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), details);
    Knob::key(&dialog, Qt::Key_Down); // past the end: back to the first
    QCOMPARE(QApplication::focusWidget(), cancel);
    Knob::key(&dialog, Qt::Key_Up); // before the first: to the last
    QCOMPARE(QApplication::focusWidget(), details);
    Knob::key(&dialog, Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), ok);
    QVERIFY(dialog.isVisible());
}

void TestReminderDialog::scrollBarStopsTheWrapAndLeadsBackToTheText()
{
    ReminderDialog dialog(ReminderDialog::Information, kPanel);
    QPushButton* ok = dialog.addButton(QDialogButtonBox::YesRole);
    QPushButton* cancel = dialog.addButton(QDialogButtonBox::NoRole);
    dialog.setText(longText());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* text = dialog.findChild<QTextEdit*>();
    QTRY_VERIFY(dialog.hasScrollBar());
    QCOMPARE(QApplication::focusWidget(), text); // focused once, at the start
    QCOMPARE(text->focusPolicy(), Qt::WheelFocus);

    // Scrolling to the end hands the knob to the last button.
    text->verticalScrollBar()->setValue(text->verticalScrollBar()->maximum());
    QCOMPARE(QApplication::focusWidget(), cancel);
    Knob::key(&dialog, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), ok);
    Knob::key(&dialog, Qt::Key_Down); // no wrap with a scroll bar
    QCOMPARE(QApplication::focusWidget(), ok);
    Knob::key(&dialog, Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), cancel);
    Knob::key(&dialog, Qt::Key_Up); // the first button leads back to the text
    QCOMPARE(QApplication::focusWidget(), text);

    // A later range change does not take the focus again.
    cancel->setFocus();
    text->append(QStringLiteral("More"));
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::focusWidget(), cancel);
}

void TestReminderDialog::progressIgnoresEscapeAndBack()
{
    std::unique_ptr<ReminderDialog> dialog(ReminderDialog::progress(nullptr, QStringLiteral("Copying"), kPanel,
                                                                    QDialogButtonBox::NoRole, true));
    Modal::Guard guard;
    bool open = false;
    Modal::whenModal([&open](QWidget* modal) {
        QVERIFY(qobject_cast<QPushButton*>(QApplication::focusWidget())); // the default Cancel button
        Modal::key(modal, Qt::Key_Escape);
        Modal::key(modal, Qt::Key_Back);
        modal->setFocus();
        Modal::key(modal, Qt::Key_Escape);
        Modal::key(modal, Qt::Key_Back);
        open = modal->isVisible();
        qobject_cast<QPushButton*>(modal->findChild<QDialogButtonBox*>()->buttons().value(0))->click();
    });
    int const result = dialog->exec();
    QVERIFY(!guard.fired());
    QVERIFY(open);
    QCOMPARE(result, int(QDialogButtonBox::NoRole));
    QCOMPARE(dialog->clickedButtonRole(), int(QDialogButtonBox::NoRole));

    // Without Cancel there is no button and no line.
    std::unique_ptr<ReminderDialog> bare(ReminderDialog::progress(nullptr, QStringLiteral("Copying"), kPanel));
    QVERIFY(bare->findChild<QDialogButtonBox*>()->buttons().isEmpty());
    QVERIFY(bare->findChild<QLabel*>(QStringLiteral("reminderLine"))->isHidden());
}

void TestReminderDialog::executingFlagAndExecLog()
{
    QLoggingCategory::setFilterRules(QString());
    ReminderDialog dialog(ReminderDialog::Information, kPanel);
    dialog.addButton(QDialogButtonBox::YesRole);
    dialog.setText(QStringLiteral("Flag"));
    QVERIFY(!dialog.isExec());
    bool during = false;
    Modal::whenModal([&](QWidget*) {
        during = dialog.isExec();
        Modal::key(&dialog, Qt::Key_Enter);
    });
    QTest::ignoreMessage(QtDebugMsg, "ReminderDialog pos x:125;y:96");
    QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with 1");
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(during);
    QVERIFY(!dialog.isExec());
    quiet();
}

void TestReminderDialog::autoCloseTimerRejects()
{
    ReminderDialog dialog(ReminderDialog::Information, kPanel);
    dialog.addButton(QDialogButtonBox::YesRole);
    dialog.setText(QStringLiteral("Bye"));
    dialog.setDialogShowTimer(30);
    QVERIFY(dialog.findChild<QDialogButtonBox*>()->isHidden());
    Modal::Guard guard(2000);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(!guard.fired());
    QVERIFY(clock.elapsed() >= 25);
    QCOMPARE(dialog.clickedButtonRole(), -1);
}

void TestReminderDialog::clickedRoleMapping()
{
    ReminderDialog dialog(ReminderDialog::Information, kPanel);
    QPushButton* reset = dialog.addButton(QDialogButtonBox::ResetRole);
    QPushButton* apply = dialog.addButton(QDialogButtonBox::ApplyRole);
    QPushButton* details = dialog.addButton(QDialogButtonBox::ActionRole);
    QCOMPARE(reset->text(), QStringLiteral("Reset"));
    QCOMPARE(apply->text(), QStringLiteral("Apply"));
    QCOMPARE(reset->property("isIconReset"), QVariant(true));
    QCOMPARE(apply->property("isIconApply"), QVariant(true));
    QCOMPARE(dialog.buttonRole(reset), -1);
    QCOMPARE(dialog.buttonRole(apply), -1);
    QCOMPARE(dialog.buttonRole(details), int(QDialogButtonBox::ActionRole));
    QCOMPARE(dialog.buttonRole(nullptr), -1);
    QCOMPARE(dialog.button(QDialogButtonBox::ApplyRole), apply);

    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy finished(&dialog, &QDialog::finished);
    reset->click(); // remembered, but does not close
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.clickedButtonRole(), -1);
    details->hide();
    dialog.slot_buttonClicked(details); // hidden: ignored
    dialog.slot_buttonClicked(nullptr);
    QVERIFY(dialog.isVisible());
    details->show();
    details->click();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.at(0).at(0).toInt(), int(QDialog::Accepted));
    QCOMPARE(dialog.clickedButtonRole(), int(QDialogButtonBox::ActionRole));
}

void TestReminderDialog::setDefaultButtonOnlyForOwnButtons()
{
    ReminderDialog dialog(ReminderDialog::Information, kPanel);
    QPushButton* ok = dialog.addButton(QDialogButtonBox::YesRole);
    QPushButton stranger;
    dialog.setDefaultButton(&stranger);
    QVERIFY(!stranger.isDefault());
    dialog.setDefaultButton(ok);
    QVERIFY(ok->isDefault());
}

void TestReminderDialog::scrollBarDetectionIsQueued()
{
    ReminderDialog dialog(ReminderDialog::Information, kPanel);
    dialog.addButton(QDialogButtonBox::YesRole);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy detect(&dialog, &ReminderDialog::signalDetectScrollbar);
    dialog.setText(longText());
    QTRY_VERIFY(detect.count() >= 1);
    // The detection runs on a later pass, after the range has settled.
    QTRY_VERIFY(dialog.hasScrollBar());
    dialog.setText(QStringLiteral("Short again"));
    QTRY_VERIFY(!dialog.hasScrollBar());
    QCOMPARE(dialog.findChild<QTextEdit*>()->focusPolicy(), Qt::NoFocus);
}

void TestReminderDialog::miniProcessDialog()
{
    MiniProcessDialog dialog(MiniProcessDialog::Progress, QRect(0, 0, 800, 96), nullptr, MiniProcessDialog::Top);
    QCOMPARE(dialog.size(), QGuiApplication::primaryScreen()->geometry().size());
    QFrame* band = dialog.findChild<QFrame*>(QStringLiteral("miniProcessFrame"));
    QCOMPARE(band->height(), 96);
    QCOMPARE(dialog.verticalPosition(), MiniProcessDialog::Top);
    dialog.setIcon(MiniProcessDialog::Progress);
    dialog.setText(QStringLiteral("kept"));
    QCOMPARE(dialog.text(), QStringLiteral("kept"));

    // The progress band ignores Escape; its Cancel closes it with NoRole.
    std::unique_ptr<MiniProcessDialog> progress(MiniProcessDialog::progress(nullptr, QStringLiteral("Import"), QRect(0, 0, 800, 96),
                                                                            MiniProcessDialog::Bottom,
                                                                            QDialogButtonBox::NoRole, true));
    Modal::Guard guard;
    bool open = false;
    Modal::whenModal([&](QWidget* modal) {
        Modal::key(modal, Qt::Key_Escape);
        open = modal->isVisible();
        QCOMPARE(QApplication::focusWidget(), progress->button(QDialogButtonBox::NoRole));
        Modal::key(modal, Qt::Key_Enter);
    });
    QCOMPARE(progress->exec(), int(QDialogButtonBox::NoRole));
    QVERIFY(open);
    QVERIFY(!guard.fired());

    Modal::keysWhenModal({Qt::Key_Enter});
    QCOMPARE(MiniProcessDialog::prosper(nullptr, QStringLiteral("Done"), QRect(0, 0, 800, 96)),
             int(QDialogButtonBox::YesRole));
}

void TestReminderDialog::reminderDialogApply()
{
    ReminderDialogApply dialog;
    QCOMPARE(dialog.size(), QSize(800, 480));
    QCOMPARE(dialog.findChild<QFrame*>(QStringLiteral("reminderApplyFrame"))->size(), QSize(544, 288));
    QCOMPARE(dialog.applyButton()->text(), QStringLiteral("Apply"));
    QSignalSpy clicked(&dialog, &ReminderDialogApply::signalPushBtnClicked);
    dialog.applyButton()->click();
    QCOMPARE(clicked.count(), 1);
    QTest::ignoreMessage(QtWarningMsg, "[ReminderDialogApply] cannot load icon /nonexistent.png");
    dialog.setIconPath(QStringLiteral("/nonexistent.png"));

    // A second run while the first is under way is refused instead of reaching Qt.
    QTimer::singleShot(0, &dialog, [&dialog] {
        QTest::ignoreMessage(QtWarningMsg, "[ReminderDialogApply] exec: already running, refused");
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        dialog.done(QDialog::Accepted);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
}

void TestReminderDialog::buttonsTranslatedAgainByRole()
{
    ReminderDialog dialog(ReminderDialog::Question, kPanel);
    QPushButton* details = dialog.addButton(QDialogButtonBox::ActionRole);
    QPushButton* ok = dialog.addButton(QDialogButtonBox::YesRole);
    QPushButton* cancel = dialog.addButton(QDialogButtonBox::NoRole);
    QPushButton* reset = dialog.addButton(QDialogButtonBox::ResetRole);
    LCDFWTranslateManager* manager = LCDFWTranslateManager::instance();
    QVERIFY(manager->setLanguage(QStringLiteral(LCDWIDGETS_TEST_DATA "/lcdwidgets_test_dialogs_zh.qm")));
    QCoreApplication::processEvents();
    QCOMPARE(details->text(), QStringLiteral("详情"));
    QCOMPARE(ok->text(), QStringLiteral("确定"));
    QCOMPARE(cancel->text(), QStringLiteral("取消"));
    // Reset is not among the roles the mapping reports: it keeps its text.
    QCOMPARE(reset->text(), QStringLiteral("Reset"));
    // New buttons come in the current language.
    QCOMPARE(dialog.addButton(QDialogButtonBox::YesRole)->text(), QStringLiteral("确定"));
    manager->resetLanguage();
    QCoreApplication::processEvents();
    QCOMPARE(ok->text(), QStringLiteral("OK"));
}

QTEST_MAIN(TestReminderDialog)
#include "tst_reminderdialog.moc"
