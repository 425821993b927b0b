// The tile dialog: tiles by id, the ids returned from exec(), the z-order mode,
// the knob keys (Left and Right do nothing), the centring of the visible tiles,
// bad ids; the rounded plain dialog.
#include "leakcheck.h"
#include "modal.h"

#include <customreminderdialog.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace LCD::Widget;

namespace {
QRect const kPanel(0, 0, 800, 480);

QPushButton* tile(CustomReminderDialog& dialog, int id)
{
    for (auto* b : dialog.findChildren<QPushButton*>())
        if (b->property("MyButtonRole").toInt() == id)
            return b;
    return nullptr;
}

QLabel* caption(CustomReminderDialog& dialog, int id)
{
    for (auto* l : dialog.findChildren<QLabel*>())
        if (l->property("MyButtonRole").toInt() == id)
            return l;
    return nullptr;
}

void fill(CustomReminderDialog& dialog)
{
    dialog.addButton(1, QStringLiteral("Save"), QStringLiteral("isIconTileSave"));
    dialog.addButton(2, QStringLiteral("Load"), QStringLiteral("isIconTileLoad"));
    dialog.addButton(3, QStringLiteral("Delete"), QStringLiteral("isIconTileDelete"), true);
}
} // namespace

class TestCustomReminderDialog : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void tilesAndSizes();
    void duplicateAndUnknownIds();
    void pressReturnsTheId();
    void escapeReturnsMinusOneAndSignals();
    void upDownMoveLeftRightDoNothing();
    void zOrderModeReportsAndStays();
    void visibleTilesAreCentred();
    void roundedCornersDialog();
};

void TestCustomReminderDialog::tilesAndSizes()
{
    CustomReminderDialog dialog(kPanel);
    fill(dialog);
    QCOMPARE(dialog.size(), QSize(550, 288));
    QCOMPARE(dialog.getCustomReminderDialogWidth(), 550);
    QCOMPARE(dialog.getCustomReminderDialogHeight(), 288);
    QCOMPARE(dialog.buttonIds(), (QList<int>{1, 2, 3}));
    QPushButton* save = tile(dialog, 1);
    QCOMPARE(save->size(), QSize(100, 144));
    QCOMPARE(save->property("isIconTileSave"), QVariant(true));
    QLabel* del = caption(dialog, 3);
    QCOMPARE(del->size(), QSize(100, 80));
    QCOMPARE(del->property("isDeleteLabel"), QVariant(true));
    QCOMPARE(del->property("isPresetDialogText"), QVariant(true));
    QVERIFY(del->wordWrap());
    QCOMPARE(caption(dialog, 1)->property("isDeleteLabel"), QVariant());

    dialog.setLabelText(2, QStringLiteral("Load all"));
    QCOMPARE(caption(dialog, 2)->text(), QStringLiteral("Load all"));
    dialog.setButtonDisabled(1, true);
    QVERIFY(!save->isEnabled());
    QCOMPARE(caption(dialog, 1)->property("isPresetDialogText"), QVariant(false));
    dialog.setButtonDisabled(3, true);
    QCOMPARE(del->property("isDeleteLabel"), QVariant(false));
}

void TestCustomReminderDialog::duplicateAndUnknownIds()
{
    CustomReminderDialog dialog(kPanel);
    fill(dialog);
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(QtDebugMsg, "button(3) has already exist.");
    dialog.addButton(3, QStringLiteral("Other"), QStringLiteral("isIconTileSave"));
    QCOMPARE(dialog.buttonIds(), (QList<int>{1, 2, 3}));
    QCOMPARE(caption(dialog, 3)->text(), QStringLiteral("Delete"));

    QTest::ignoreMessage(QtWarningMsg, "[CustomReminderDialog] setLabelText button(9) does not exist.");
    dialog.setLabelText(9, QStringLiteral("x"));
    QTest::ignoreMessage(QtWarningMsg, "[CustomReminderDialog] setBtnFocus button(9) does not exist.");
    dialog.setBtnFocus(9);
    QTest::ignoreMessage(QtWarningMsg, "[CustomReminderDialog] setButtonDisabled button(9) does not exist.");
    dialog.setButtonDisabled(9, true);
    QTest::ignoreMessage(QtWarningMsg, "[CustomReminderDialog] setButtonVisible button(9) does not exist.");
    dialog.setButtonVisible(9, false);
    QTest::ignoreMessage(QtWarningMsg, "[CustomReminderDialog] host rectangle is empty, using 800x480");
    CustomReminderDialog empty{QRect()};
    QCOMPARE(empty.size(), QSize(550, 288));
}

void TestCustomReminderDialog::pressReturnsTheId()
{
    CustomReminderDialog dialog(kPanel);
    fill(dialog);
    dialog.setBtnFocus(2);
    Modal::Guard guard;
    Modal::keysWhenModal({Qt::Key_Down, Qt::Key_Return});
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with 3");
    QCOMPARE(dialog.exec(), 3);
    QVERIFY(!guard.fired());
    QCOMPARE(caption(dialog, 1)->styleSheet(), QStringLiteral("QLabel{font-size: 16px; }")); // int(21 · 0.8)
    QCOMPARE(dialog.pos(), QPoint(400 - 275, 240 - 144));
}

void TestCustomReminderDialog::escapeReturnsMinusOneAndSignals()
{
    CustomReminderDialog dialog(kPanel);
    fill(dialog);
    QSignalSpy back(&dialog, &CustomReminderDialog::backSpaceClicked);
    QSignalSpy finished(&dialog, &QDialog::finished);
    Modal::Guard guard;
    Modal::whenModal([&dialog](QWidget*) {
        dialog.setBtnFocus(1);
        Modal::key(&dialog, Qt::Key_Escape);
    });
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(QtDebugMsg, "[dialog] exec finish with -1");
    QCOMPARE(dialog.exec(), -1);
    QVERIFY(!guard.fired());
    QCOMPARE(back.count(), 1);
    QCOMPARE(finished.count(), 1);
}

void TestCustomReminderDialog::upDownMoveLeftRightDoNothing()
{
    CustomReminderDialog dialog(kPanel);
    fill(dialog);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.setBtnFocus(1);
    Modal::key(&dialog, Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), tile(dialog, 1));
    Modal::key(&dialog, Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), tile(dialog, 1));
    Modal::key(&dialog, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), tile(dialog, 2));
    dialog.setButtonDisabled(3, true); // skipped by the walk
    Modal::key(&dialog, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), tile(dialog, 1));
    Modal::key(&dialog, Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), tile(dialog, 2));
    Modal::key(&dialog, Qt::Key_A); // dropped
    QVERIFY(dialog.isVisible());
}

void TestCustomReminderDialog::zOrderModeReportsAndStays()
{
    CustomReminderDialog dialog(kPanel);
    fill(dialog);
    dialog.setZOrderFlag(true);
    QSignalSpy pressed(&dialog, &CustomReminderDialog::btnPressed);
    Modal::Guard guard;
    bool open = false;
    Modal::whenModal([&](QWidget*) {
        tile(dialog, 2)->click();
        tile(dialog, 3)->click();
        open = dialog.isVisible();
        dialog.done(77);
    });
    QCOMPARE(dialog.exec(), 77);
    QVERIFY(!guard.fired());
    QVERIFY(open);
    QCOMPARE(pressed.count(), 2);
    QCOMPARE(pressed.at(0).at(0).toInt(), 2);
    QCOMPARE(pressed.at(1).at(0).toInt(), 3);
}

void TestCustomReminderDialog::visibleTilesAreCentred()
{
    CustomReminderDialog dialog(kPanel);
    fill(dialog);
    dialog.setButtonVisible(1, false);
    dialog.setButtonVisible(3, false);
    QVERIFY(!tile(dialog, 1)->isEnabled()); // hidden tiles are disabled too
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto* row = dialog.findChild<QFrame*>(QStringLiteral("customReminderFrame"))->layout();
    int const margin = (550 - 100) / 2;
    QCOMPARE(row->contentsMargins().left(), margin);
    QCOMPARE(row->contentsMargins().right(), margin);
    QCoreApplication::processEvents();
    QWidget* remaining = tile(dialog, 2)->parentWidget();
    QCOMPARE(remaining->geometry().center().x(), 275 - 1 + (100 % 2));

    dialog.setButtonVisible(3, true); // two tiles: (550 − 200 − 25) / 2
    QCOMPARE(row->contentsMargins().left(), (550 - 200 - 25) / 2);
}

void TestCustomReminderDialog::roundedCornersDialog()
{
    RoundedCornersDialog dialog;
    dialog.resize(200, 100);
    dialog.show();
    QVERIFY(!dialog.mask().contains(QPoint(0, 0)));
    QVERIFY(dialog.mask().contains(QPoint(100, 50)));
    QVERIFY(dialog.mask().contains(QPoint(6, 0)));
}

QTEST_MAIN(TestCustomReminderDialog)
#include "tst_customreminderdialog.moc"
