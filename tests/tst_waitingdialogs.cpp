// Busy indicators: the shared waiting panel (single instance, sizes, levels, the
// function button, never closed by the user, hidden only by the host) and the
// block dialog with its twelve-segment bar and animation.
#include "leakcheck.h"
#include "modal.h"

#include <blockdialog.h>
#include <waitingdialog.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace LCD::Widget;

namespace {
QRect const kPanel(0, 0, 800, 480);
void quiet() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }

QColor textColour(WaitingDialog* w)
{
    return w->findChild<QLabel*>(QStringLiteral("waitingText"))->palette().color(QPalette::WindowText);
}
} // namespace

class TestWaitingDialogs : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void init()
    {
        startLeakCheck();
        quiet();
    }
    void cleanup()
    {
        WaitingDialog::deleteInstance();
        endLeakCheck();
    }
    void oneInstanceKeepsItsFirstRectangle();
    void userCannotCloseIt();
    void hideTwiceWarns();
    void refusedWhileAnotherModalRuns();
    void textLevels();
    void functionButtonReportsOnce();
    void parentDestroyedClearsTheInstance();
    void segmentsFilledByValue_data();
    void segmentsFilledByValue();
    void segmentsArePainted();
    void animationIntervals();
    void animationReachesTheEndOnTheTwelfthTick();
    void blockDialogCoversItsParentAndIgnoresEscape();
    void blockDialogBadInputAndLifetime();
};

void TestWaitingDialogs::oneInstanceKeepsItsFirstRectangle()
{
    WaitingDialog* first = WaitingDialog::instance(kPanel);
    WaitingDialog* second = WaitingDialog::instance(QRect(0, 0, 1024, 600));
    QCOMPARE(first, second);
    QCOMPARE(first->hostRect(), kPanel);
    QCOMPARE(first->size(), QSize(500, 240));
    QCOMPARE(first->indicatorSize(), WaitingDialog::Large);
    QCOMPARE(first->getFontSize(), 21);
    QVERIFY(first->isModal());

    first->showWaitingDialog(QStringLiteral("Saving"), QRect(0, 0, 1024, 600));
    QCOMPARE(first->hostRect(), QRect(0, 0, 1024, 600));
    QCOMPARE(first->size(), QSize(640, 300));
    QCOMPARE(first->pos(), QPoint(512 - 320, 300 - 150));
    QVERIFY(first->isVisible());
    QCOMPARE(first->informativeText(), QStringLiteral("Saving"));
    auto* image = first->findChild<QLabel*>(QStringLiteral("waitingImage"));
    QCOMPARE(image->size(), QSize(102, 102));
    QVERIFY(image->movie());

    int angle = first->angle();
    for (int i = 0; i < 13; ++i)
        first->step();
    QVERIFY(first->angle() >= 0 && first->angle() < 360);
    QVERIFY(first->angle() != angle);
}

void TestWaitingDialogs::userCannotCloseIt()
{
    WaitingDialog* w = WaitingDialog::instance(kPanel);
    w->showWaitingDialog(QStringLiteral("Busy"), kPanel);
    QVERIFY(QTest::qWaitForWindowExposed(w));
    for (int key : {Qt::Key_Escape, Qt::Key_Enter, Qt::Key_Return, Qt::Key_Back})
        Modal::key(w, key);
    QVERIFY(!w->close());
    QCoreApplication::processEvents();
    QVERIFY(w->isVisible());

    QSignalSpy hidden(w, &WaitingDialog::hideDialog);
    w->hideWaitingDialog();
    QVERIFY(!w->isVisible());
    QCOMPARE(hidden.count(), 1);
    QCOMPARE(w->property("WindowStateShow"), QVariant(false));
    QVERIFY(w->informativeText().isEmpty());
}

void TestWaitingDialogs::hideTwiceWarns()
{
    WaitingDialog* w = WaitingDialog::instance(kPanel);
    QSignalSpy hidden(w, &WaitingDialog::hideDialog);
    w->setInformativeText(QStringLiteral("left over"));
    QTest::ignoreMessage(QtWarningMsg, "Fail to hide waitingdialog: isHidden() == true");
    w->hideWaitingDialog();
    QCOMPARE(hidden.count(), 0);
    QVERIFY(w->informativeText().isEmpty());
    QCOMPARE(w->property("WindowStateShow"), QVariant(false));
}

void TestWaitingDialogs::refusedWhileAnotherModalRuns()
{
    WaitingDialog* w = WaitingDialog::instance(kPanel);
    QDialog other;
    Modal::Guard guard;
    bool shown = true;
    Modal::whenModal([&](QWidget*) {
        QLoggingCategory::setFilterRules(QString());
        QTest::ignoreMessage(QtDebugMsg, "show waitingdialog start");
        w->showWaitingDialog(QStringLiteral("Not now"), kPanel);
        quiet();
        shown = w->isVisible();
        other.accept();
    });
    other.exec();
    QVERIFY(!guard.fired());
    QVERIFY(!shown);
}

void TestWaitingDialogs::textLevels()
{
    WaitingDialog* w = WaitingDialog::instance(kPanel);
    w->setInformativeText(QStringLiteral("Careful"), WaitingDialog::Yellow);
    QCOMPARE(textColour(w), QColor(Qt::yellow));
    w->setInformativeText(QStringLiteral("Failed"), WaitingDialog::Red);
    QCOMPARE(textColour(w), QColor(Qt::red));
    // Shown text is always white, whatever level the call names.
    w->showWaitingDialog(QStringLiteral("Shown"), kPanel, WaitingDialog::Red);
    QCOMPARE(textColour(w), QColor(Qt::white));
    QTest::ignoreMessage(QtWarningMsg, "[WaitingDialog] setInformativeText: unknown text level 7");
    w->setInformativeText(QStringLiteral("x"), WaitingDialog::TooltipLevel(7));
    QCOMPARE(textColour(w), QColor(Qt::white));
    w->hideWaitingDialog();
}

void TestWaitingDialogs::functionButtonReportsOnce()
{
    WaitingDialog* w = WaitingDialog::instance(kPanel);
    w->showWaitingDialog(QStringLiteral("Downloading"), kPanel);
    w->setFunButtonStatus(true, QStringLiteral("Cancel"), 7);
    auto* button = w->findChild<QPushButton*>(QStringLiteral("waitingFunButton"));
    QVERIFY(button->isVisible());
    QCOMPARE(button->text(), QStringLiteral("Cancel"));
    QCOMPARE(w->width(), 550);
    QCOMPARE(w->findChild<QFrame*>(QStringLiteral("waitingFrame"))->size(), QSize(550, 288));
    QCOMPARE(w->findChild<QLabel*>(QStringLiteral("waitingText"))->property("isLockPanelText").toString(),
             QStringLiteral("detail"));

    QSignalSpy clicked(w, &WaitingDialog::signalFunButtonClicked);
    button->click();
    button->click(); // disabled by the first press
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toInt(), 7);
    w->setFunButtonEnable(true);
    button->click();
    QCOMPARE(clicked.count(), 2);

    w->hideWaitingDialog();
    QVERIFY(!w->isFunButtonVisible());
    QCOMPARE(w->size(), QSize(500, 240));

    // Showing again starts without the button, at the waiting size.
    w->setFunButtonStatus(true, QStringLiteral("Cancel"), 7);
    w->showWaitingDialog(QStringLiteral("Again"), kPanel);
    QVERIFY(!w->isFunButtonVisible());
    QCOMPARE(w->size(), QSize(500, 240));
    QCOMPARE(w->findChild<QFrame*>(QStringLiteral("waitingFrame"))->property("isWaitingDialogFrameBg"), QVariant(true));
    w->hideWaitingDialog();
}

void TestWaitingDialogs::parentDestroyedClearsTheInstance()
{
    auto* parent = new QWidget;
    WaitingDialog* w = WaitingDialog::instance(kPanel, parent);
    w->showWaitingDialog(QStringLiteral("x"), kPanel);
    delete parent;
    QCOMPARE(WaitingDialog::existingInstance(), nullptr);
    // A new one can be made and attached elsewhere.
    QWidget host;
    host.resize(800, 480);
    w = WaitingDialog::instance(kPanel);
    w->attachToWidget(&host);
    QCOMPARE(w->parentWidget(), &host);
    w->attachToWidget(nullptr);
    QCOMPARE(w->parentWidget(), nullptr);
}

void TestWaitingDialogs::segmentsFilledByValue_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("filled");
    QTest::newRow("empty") << 0 << 12 << 0 << 0;
    QTest::newRow("half") << 0 << 12 << 6 << 6;
    QTest::newRow("full") << 0 << 12 << 12 << 12;
    QTest::newRow("rounds down") << 0 << 100 << 4 << 0;  // (50 + 48) / 100
    QTest::newRow("rounds up") << 0 << 100 << 5 << 1;    // (50 + 60) / 100
    QTest::newRow("offset range") << 100 << 200 << 150 << 6;
    QTest::newRow("no range") << 5 << 5 << 5 << 0;
    QTest::newRow("int limits") << INT_MIN << INT_MAX << 0 << 6;
    QTest::newRow("int limits full") << INT_MIN << INT_MAX << INT_MAX << 12;
}

void TestWaitingDialogs::segmentsFilledByValue()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, filled);
    TwelveSegmentVerticalProgressBar bar;
    bar.setRange(minimum, maximum);
    bar.setValue(value);
    QCOMPARE(bar.filledSegments(), filled);
}

void TestWaitingDialogs::segmentsArePainted()
{
    TwelveSegmentVerticalProgressBar bar;
    bar.setRange(0, 12);
    bar.setValue(3);
    bar.setFixedSize(18, 120);
    QImage image = bar.grab().toImage();
    // h = 120 − 3 = 117 ≥ 67: segments of (117 − 43) / 12 = 6 rows, 4 rows apart,
    // the first ending one row above the bottom edge.
    QColor const lit(0x00, 0xe6, 0x76), dark(0x1a, 0x1f, 0x28), back(0x2a, 0x30, 0x38);
    QCOMPARE(image.pixelColor(9, 119 - 1), lit);       // segment 0
    QCOMPARE(image.pixelColor(9, 119 - 6), lit);       // its top row
    QCOMPARE(image.pixelColor(9, 119 - 7), back);      // the gap
    QCOMPARE(image.pixelColor(9, 119 - 10 - 6), lit);  // segment 1
    QCOMPARE(image.pixelColor(9, 119 - 30 - 1), dark); // segment 3 is not lit
    QCOMPARE(image.pixelColor(0, 60), back);           // the edge column

    TwelveSegmentVerticalProgressBar tiny;
    tiny.setFixedSize(1, 1); // no inner area: only the background
    tiny.grab();
}

void TestWaitingDialogs::animationIntervals()
{
    BlockDialog dialog(QStringLiteral("x"));
    dialog.setEffectDurationMs(0);
    QCOMPARE(dialog.animationInterval(), 0);
    dialog.setEffectDurationMs(-50);
    QCOMPARE(dialog.effectDurationMs(), 0);
    QCOMPARE(dialog.animationInterval(), 0);
    dialog.setEffectDurationMs(12);
    QCOMPARE(dialog.animationInterval(), 1);
    dialog.setEffectDurationMs(23);
    QCOMPARE(dialog.animationInterval(), 1);
    dialog.setEffectDurationMs(24);
    QCOMPARE(dialog.animationInterval(), 2);
    dialog.setEffectDurationMs(1200);
    QCOMPARE(dialog.animationInterval(), 100);
    QCOMPARE(dialog.animationStep(), 0);
    QCOMPARE(dialog.progressBar()->value(), 0);
}

void TestWaitingDialogs::animationReachesTheEndOnTheTwelfthTick()
{
    BlockDialog dialog(QStringLiteral("x"));
    dialog.setProgressRange(0, 1200);
    QSignalSpy values(dialog.progressBar(), &QProgressBar::valueChanged);
    dialog.setEffectDurationMs(120); // ticks of 10 ms
    QTRY_VERIFY_WITH_TIMEOUT(dialog.animationInterval() == 0, 2000);
    QCOMPARE(dialog.progressBar()->value(), 1200);
    QCOMPARE(dialog.animationStep(), 12); // stopped on the twelfth tick
    QList<int> seen;
    for (auto const& args : values)
        seen << args.at(0).toInt();
    QCOMPARE(seen, (QList<int>{100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 1100, 1200}));

    // Hiding stops a running animation.
    dialog.show();
    dialog.setEffectDurationMs(1200);
    QVERIFY(dialog.animationInterval() > 0);
    dialog.hide();
    QCOMPARE(dialog.animationInterval(), 0);
    QCOMPARE(dialog.animationStep(), 0);
}

void TestWaitingDialogs::blockDialogCoversItsParentAndIgnoresEscape()
{
    QWidget parent;
    parent.setGeometry(30, 40, 640, 400);
    parent.show();
    QPointer<BlockDialog> dialog = new BlockDialog(QStringLiteral("Calibrating"), &parent);
    dialog->setWinIsShow(true);
    dialog->setProgressBarVisible(true);
    Modal::Guard guard;
    QSize size;
    QPoint pos;
    bool open = false;
    Modal::whenModal([&](QWidget* modal) {
        size = modal->size();
        pos = modal->pos();
        Modal::key(modal, Qt::Key_Escape);
        QCoreApplication::processEvents();
        open = modal->isVisible();
        dialog->accept();
    });
    QCOMPARE(dialog->run(), int(QDialog::Accepted));
    QVERIFY(!guard.fired());
    QVERIFY(open);
    QCOMPARE(size, QSize(640, 400));
    QCOMPARE(pos, parent.mapToGlobal(QPoint(0, 0)));
    QVERIFY(dialog); // deleted later
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(dialog.isNull());
}

void TestWaitingDialogs::blockDialogBadInputAndLifetime()
{
    QTest::ignoreMessage(QtWarningMsg, "[BlockDialog] createBlockDialog: text is empty: nothing shown");
    QCOMPARE(BlockDialog::createBlockDialog(QString()), int(QDialog::Rejected));
    BlockDialog dialog(QStringLiteral("x"));
    QTest::ignoreMessage(QtWarningMsg, "[BlockDialog] setProgressRange: minimum 10 above maximum 5");
    dialog.setProgressRange(10, 5);
    QCOMPARE(dialog.progressBar()->maximum(), 12);

    // The parent goes away while the dialog runs: run() returns, nothing is left.
    auto* parent = new QWidget;
    parent->show();
    QPointer<BlockDialog> orphan = new BlockDialog(QStringLiteral("Orphan"), parent);
    orphan->setEffectDurationMs(500);
    QTimer::singleShot(20, parent, [parent] { parent->deleteLater(); });
    Modal::Guard guard;
    orphan->run();
    QVERIFY(!guard.fired());
    QVERIFY(orphan.isNull());

    // A second run while the first one is under way is refused, not passed to Qt.
    int second = -1;
    QTimer::singleShot(0, &dialog, [&dialog, &second] {
        QTest::ignoreMessage(QtWarningMsg, "[BlockDialog] run: already running, refused");
        second = dialog.run();
        dialog.done(QDialog::Accepted);
    });
    Modal::Guard again;
    QCOMPARE(dialog.run(), int(QDialog::Accepted));
    QCOMPARE(second, int(QDialog::Rejected));
    QVERIFY(!again.fired());
}

QTEST_MAIN(TestWaitingDialogs)
#include "tst_waitingdialogs.moc"
