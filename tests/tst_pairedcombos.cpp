// The paired choice rows: the knob's way through both choices (commit opens the
// second, Escape ends the pair at once) with the row's signals in order, the list
// interface reaching the first choice, and the input/backup pair never letting the
// backup be the input.
#include <lcdwidgets.h>

#include "editorpage.h"
#include "leakcheck.h"
#include "knob.h"

#include <QLoggingCategory>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QPointer>
#include <QTimer>
#include <QtTest>

using namespace LCD::Widget;

namespace {

class HomeFrame : public LCD::MainWidgets::IHomeFrame
{
public:
    QSize size() const override { return {800, 480}; }
};

// The host page over the panel's whole screen.
struct Page : EditorTest::Page
{
    Page() : EditorTest::Page(QSize(800, 480), true) {}
};

struct Recorder
{
    QStringList log;
    explicit Recorder(DoubleComboxBaseType* row)
    {
        QObject::connect(row, &CommonItemType::signalEditStarted, [this] { log << "started"; });
        QObject::connect(row, &CommonItemType::signalCloseEditStatus, [this] { log << "close"; });
        QObject::connect(row, &CommonItemType::signalEditFinished, [this] { log << "finished"; });
        QObject::connect(row, &StringComboxBaseType::signalCurrentIndexChanged, [this](int i) { log << QStringLiteral("first:%1").arg(i); });
        QObject::connect(row, &DoubleComboxBaseType::signalSecondCurrentIndexChanged,
                         [this](int i) { log << QStringLiteral("second:%1").arg(i); });
        QObject::connect(row, &CommonItemType::signalValueChanged, [this](QVariant const& v) {
            QStringList s;
            for (QVariant const& x : v.toList())
                s << x.toString();
            log << QStringLiteral("value:") + s.join(',');
        });
    }
    QStringList take() { return std::exchange(log, {}); }
};

TypeItemDoubleCombox* auxRow(Page& page)
{
    auto* row = new TypeItemDoubleCombox(&page);
    page.layout()->addWidget(row);
    row->setHomeRect(QRect(0, 0, 479, 319)); // the panel's own lists
    for (int i = 0; i < 4; ++i)
        row->addItem(QStringLiteral("S%1").arg(i), i);
    for (int i = 0; i < 3; ++i)
        row->addSecondItem(QStringLiteral("F%1").arg(i), 10 + i);
    return row;
}

QWidget* openList(TypeStringCombox* combo) { return combo->comboBox()->getCustomListView(); }

} // namespace

class TestPairedCombos : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void deletedWhileOpening();
    void init()
    {
        startLeakCheck();
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }
    void cleanup()
    {
        QLoggingCategory::setFilterRules(QString());
        endLeakCheck();
    }

    void commitWalksBothChoices()
    {
        Page page;
        TypeItemDoubleCombox* row = auxRow(page);
        QVERIFY(page.start());
        Recorder rec(row);
        row->editValue();
        QCOMPARE(rec.take(), QStringList({"started"}));
        QCOMPARE(row->editStage(), 1);
        QWidget* first = openList(row->firstCombox());
        QVERIFY(first->isVisible());
        Knob::turn(first, -2);
        Knob::press(first);
        // The first is committed, the second opens; the pair's edit goes on.
        QCOMPARE(rec.take(), QStringList({"first:2", "value:2,10"}));
        QCOMPARE(row->editStage(), 2);
        QVERIFY(row->isEditing());
        QWidget* second = openList(row->secondCombox());
        QVERIFY(second->isVisible());
        QCOMPARE(QApplication::focusWidget(), second);
        Knob::turn(second, -1);
        Knob::press(second);
        QCOMPARE(rec.take(), QStringList({"second:1", "value:2,11", "finished"}));
        QCOMPARE(row->editStage(), 0);
        QVERIFY(!row->isEditing());
        QCOMPARE(QApplication::focusWidget(), &page);
        QCOMPARE(row->currentText(), QStringLiteral("S2"));
        QCOMPARE(row->secondCurrentText(), QStringLiteral("F1"));
        QCoreApplication::processEvents();
        QCOMPARE(rec.take(), QStringList());
    }

    void escapeEndsThePair()
    {
        Page page;
        TypeItemDoubleCombox* row = auxRow(page);
        QVERIFY(page.start());
        row->editValue();
        QWidget* first = openList(row->firstCombox());
        Knob::turn(first, -1);
        Recorder rec(row);
        Knob::back(first);
        QCOMPARE(rec.take(), QStringList({"close", "finished"}));
        QVERIFY(!openList(row->secondCombox())->isVisible()); // the second never opened
        QCOMPARE(row->currentIndex(), 0);
        QCOMPARE(QApplication::focusWidget(), &page);

        // Escape in the second keeps the first's commit.
        row->editValue();
        first = openList(row->firstCombox());
        Knob::turn(first, -3);
        Knob::press(first);
        QWidget* second = openList(row->secondCombox());
        rec.take();
        Knob::back(second);
        QCOMPARE(rec.take(), QStringList({"close", "finished"}));
        QCOMPARE(row->currentIndex(), 3);
        QCOMPARE(row->secondCurrentIndex(), 0);
        QCOMPARE(QApplication::focusWidget(), &page);
    }

    void singleChoicesAreSteppedOver()
    {
        Page page;
        auto* row = new TypeItemDoubleCombox(&page);
        page.layout()->addWidget(row);
        row->setHomeRect(QRect(0, 0, 479, 319));
        row->addItem(QStringLiteral("Only"), 1);
        row->addSecondItem(QStringLiteral("A"), 1);
        row->addSecondItem(QStringLiteral("B"), 2);
        QVERIFY(page.start());
        QSignalSpy started(row, &CommonItemType::signalEditStarted);
        row->editValue();
        QCOMPARE(started.size(), 1);
        QCOMPARE(row->editStage(), 2); // straight to the second
        row->closeEditValue();
        QCOMPARE(row->editStage(), 0);
        QCOMPARE(QApplication::focusWidget(), &page);

        row->secondChoice()->removeItem(1);
        QLoggingCategory::setFilterRules(QString());
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("nothing to choose from"));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("nothing to choose from"));
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemDoubleCombox] : nothing to choose from");
        row->editValue();
        QCOMPARE(started.size(), 1);
        QCOMPARE(row->editStage(), 0);
    }

    void listInterfaceReachesTheFirst()
    {
        TypeItemDoubleCombox row;
        StringComboxBaseType* list = &row; // used through the common interface
        list->addItem(QStringLiteral("A"), 1);
        list->addItem(QStringLiteral("B"), 2);
        list->insertItem(0, QStringLiteral("Z"), 0);
        QCOMPARE(list->count(), 3);
        QCOMPARE(row.firstCombox()->count(), 3);
        QCOMPARE(row.secondCount(), 0);
        list->setCurrentText(QStringLiteral("B"));
        QCOMPARE(list->currentIndex(), 2);
        QCOMPARE(list->currentData().toInt(), 2);
        list->setCurrentUserData(1);
        QCOMPARE(list->currentText(), QStringLiteral("A"));
        QCOMPARE(list->findData(0), 0);
        std::list<std::pair<int, QString>> rename{{0, QStringLiteral("Y")}};
        list->updateItems(rename);
        QCOMPARE(list->itemText(0), QStringLiteral("Y"));
        row.addSecondItem(QStringLiteral("x"), 7);
        row.setSecondCurrentText(QStringLiteral("x"));
        QCOMPARE(row.secondCurrentData().toInt(), 7);
        QCOMPARE(row.secondChoice(), row.secondCombox());
        QTest::ignoreMessage(QtDebugMsg, "[DoubleComboxBaseType] setContentFontSize: font size must be positive, got 0");
        QLoggingCategory::setFilterRules(QString());
        row.setContentFontSize(0);
        list->clear();
        QCOMPARE(list->count(), 0);
        QCOMPARE(row.secondCount(), 1);
    }

    void backupNeverTheInput()
    {
        TypeInputBackupCombox row;
        for (int i = 0; i < 4; ++i)
            row.addItem(QStringLiteral("In%1").arg(i), i);
        QCOMPARE(row.currentIndex(), 0);
        QCOMPARE(row.backupIndex(), -1); // no backup until one is chosen
        QCOMPARE(row.secondCount(), 4);  // same inputs, same indexes
        QVERIFY(row.secondCombox()->itemData(0, StringComboxBaseType::kHiddenRowRole).toBool());
        QVERIFY(!row.isBackupCandidate(0));

        QLoggingCategory::setFilterRules(QString());
        QTest::ignoreMessage(QtDebugMsg, "[TypeInputBackupCombox] setBackupIndex: the backup can't be the input itself");
        row.setBackupIndex(0);
        QCOMPARE(row.backupIndex(), -1);
        QTest::ignoreMessage(QtDebugMsg, "[TypeInputBackupCombox] setBackupText: no such input");
        row.setBackupText(QStringLiteral("nope"));
        QTest::ignoreMessage(QtDebugMsg, "[TypeInputBackupCombox] setBackupUserData: the backup can't be the input itself");
        row.setBackupUserData(0);

        QSignalSpy backup(&row, &TypeInputBackupCombox::signalBackupIndexChanged);
        row.setBackupText(QStringLiteral("In2"));
        QCOMPARE(row.backupIndex(), 2);
        // The input moves onto the backup: the backup moves to the first other input.
        row.setCurrentIndex(2);
        QCOMPARE(row.backupIndex(), 0);
        QCOMPARE(backup.size(), 2);
        QVERIFY(row.secondCombox()->itemData(2, StringComboxBaseType::kHiddenRowRole).toBool());
        QVERIFY(!row.secondCombox()->itemData(0, StringComboxBaseType::kHiddenRowRole).toBool());

        // An input hidden by the host leaves both lists and can't stay the backup.
        row.setRowHidden(0, true);
        QCOMPARE(row.backupIndex(), 1);
        QVERIFY(row.firstCombox()->itemData(0, StringComboxBaseType::kHiddenRowRole).toBool());
        // Inserting before shifts both lists alike.
        row.insertItem(0, QStringLiteral("New"), 9);
        QCOMPARE(row.currentText(), QStringLiteral("In2"));
        QCOMPARE(row.backupText(), QStringLiteral("In1"));
        QCOMPARE(row.secondCombox()->itemText(0), QStringLiteral("New"));
        QVERIFY(row.secondCombox()->itemData(3, StringComboxBaseType::kHiddenRowRole).toBool()); // In2, the input
        QVERIFY(row.secondCombox()->itemData(1, StringComboxBaseType::kHiddenRowRole).toBool()); // In0, hidden
        row.removeItem(2); // the backup itself
        QCOMPARE(row.secondCount(), 4);
        QVERIFY(row.backupIndex() != row.currentIndex());
        QVERIFY(row.isBackupCandidate(row.backupIndex()));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("removeItem.*9"));
        row.removeItem(9);
        QCOMPARE(row.secondCount(), 4);

        // Only the input left: no backup.
        row.clear();
        row.addItem(QStringLiteral("Solo"), 1);
        QCOMPARE(row.backupIndex(), -1);
    }

    void menuPairWorksWithTheKnob()
    {
        HomeFrame frame;
        Page page;
        auto* row = new TypeItemDialogDoubleCombox(&page, &frame);
        page.layout()->addWidget(row);
        for (int i = 0; i < 4; ++i) {
            row->addItem(QStringLiteral("F%1").arg(i), i);
            row->addSecondItem(QStringLiteral("K%1").arg(i), i);
        }
        row->setCurrentIndex(1);
        row->setSecondCurrentIndex(1);
        QVERIFY(page.start());
        Recorder rec(row);
        row->editValue();
        QCOMPARE(rec.take(), QStringList({"started"}));
        QWidget* list = QApplication::focusWidget();
        QCOMPARE(list, row->firstMenu()->menuDialog()->listWidget());
        Knob::turn(list, -1);
        Knob::press(list);
        QCOMPARE(rec.take(), QStringList({"first:2", "value:2,1"}));
        QVERIFY(row->secondMenu()->menuDialog()->isVisible());
        list = QApplication::focusWidget();
        QCOMPARE(list, row->secondMenu()->menuDialog()->listWidget());
        Knob::turn(list, -2);
        Knob::back(list); // the menu restores its choice and the pair ends
        QCOMPARE(rec.take(), QStringList({"close", "finished"}));
        QCOMPARE(row->secondCurrentIndex(), 1);
        QCOMPARE(row->currentIndex(), 2);
        QVERIFY(!row->secondMenu()->menuDialog()->isVisible());
        QCOMPARE(QApplication::focusWidget(), &page);
    }
};

// A timer deleting the pair while its first list opens (the list lets events run).
void TestPairedCombos::deletedWhileOpening()
{
    Page page;
    QPointer<TypeItemDoubleCombox> row = auxRow(page);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QTimer::singleShot(0, row.data(), [&row] { delete row.data(); });
    row->editValue();
    QTRY_VERIFY(row.isNull());
}

QTEST_MAIN(TestPairedCombos)
#include "tst_pairedcombos.moc"
