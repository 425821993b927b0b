// The drop-down combo and its popups: which popup opens for a screen size and entry
// count, where the standard popup goes inside the home rectangle, the panel's own
// list (placement, keys, hidden rows, scrolling text), the combo's width, the
// knob-kept combo box, and the drop-down choice row built on it.
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>

#include <QLineEdit>
#include <QListView>
#include <QLoggingCategory>
#include <QPainter>
#include <QStandardItemModel>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QPointer>
#include <QTimer>
#include <QtTest>

using namespace LCD::Widget;

namespace {

// A top-level host window at a known place, holding the widget under test at a
// known offset.
class Host : public QWidget
{
public:
    explicit Host(QSize size = QSize(800, 480))
    {
        setFocusPolicy(Qt::StrongFocus);
        setGeometry(QRect(QPoint(0, 0), size));
    }
    bool start()
    {
        show();
        QApplication::setActiveWindow(this);
        return QTest::qWaitForWindowActive(this);
    }
};

QStringList entries(int n)
{
    QStringList list;
    for (int i = 0; i < n; ++i)
        list << QStringLiteral("Entry %1").arg(i);
    return list;
}

// Records the choice row's signals in the order they come.
struct Recorder
{
    QStringList log;
    explicit Recorder(StringComboxBaseType* row)
    {
        QObject::connect(row, &CommonItemType::signalEditStarted, [this] { log << "started"; });
        QObject::connect(row, &CommonItemType::signalValueChanged, [this](QVariant v) { log << "value:" + v.toString(); });
        QObject::connect(row, &CommonItemType::signalEditFinished, [this] { log << "finished"; });
        QObject::connect(row, &CommonItemType::signalCloseEditStatus, [this] { log << "close"; });
        QObject::connect(row, &StringComboxBaseType::signalShowPop, [this] { log << "showpop"; });
        QObject::connect(row, &StringComboxBaseType::signalSelectedIndexChanged, [this](int i) { log << QStringLiteral("cursor:%1").arg(i); });
        QObject::connect(row, &StringComboxBaseType::signalCurrentIndexChanged, [this](int i) { log << QStringLiteral("current:%1").arg(i); });
        QObject::connect(row, &StringComboxBaseType::signalCurrentTextChanged, [this](QString t) { log << "text:" + t; });
        QObject::connect(row, &StringComboxBaseType::signalActivated, [this](int i) { log << QStringLiteral("activated:%1").arg(i); });
    }
    QStringList take()
    {
        QStringList out = log;
        log.clear();
        return out;
    }
};

} // namespace

class TestDropCombobox : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void choiceRowHugeItemHeight();
    void choiceRowDeletedWhileOpening();

    void popupChoice_data();
    void popupChoice();
    void standardPopupPlacement_data();
    void standardPopupPlacement();
    void standardPopupChoiceEndsTheEdit();
    void customPopupPlacementAndKeys();
    void customPopupNeedsAnActiveWindow();
    void customPopupSkipsHiddenRows();
    void scrollingText();
    void widthFollowsEntries();
    void fontSizeSheet();
    void lineEditFilter();

    void focusComboKeepsTheKnob();

    void choiceRowOpensOnlyWithAChoice();
    void choiceRowQuietPopup();
    void choiceRowCommit();
    void choiceRowBack();
    void choiceRowKeyFilter();
    void choiceRowListInterface();

};

void TestDropCombobox::popupChoice_data()
{
    QTest::addColumn<QRect>("home");
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("custom");
    QTest::newRow("480x320, 5 entries") << QRect(0, 0, 480, 320) << 5 << false;
    QTest::newRow("479x319 always custom") << QRect(0, 0, 479, 319) << 5 << true;
    QTest::newRow("479 wide, 320 high") << QRect(0, 0, 479, 320) << 5 << false;
    QTest::newRow("12 entries") << QRect(0, 0, 800, 480) << 12 << false;
    QTest::newRow("13 entries") << QRect(0, 0, 800, 480) << 13 << true;
}

void TestDropCombobox::popupChoice()
{
    QFETCH(QRect, home);
    QFETCH(int, rows);
    QFETCH(bool, custom);
    Host host;
    auto* combo = new DropCombobox(true, &host);
    combo->addItems(entries(rows));
    combo->setHomeRect(home);
    QCOMPARE(combo->usesCustomPopup(), custom);
    QVERIFY(host.start());
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    combo->showPopup();
    QCOMPARE(combo->isCustomPopupVisible(), custom);
    QCOMPARE(combo->isPopupVisible(), !custom);
    combo->hidePopup();
    QVERIFY(!combo->isCustomPopupVisible() && !combo->isPopupVisible());
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::standardPopupPlacement_data()
{
    QTest::addColumn<int>("comboY");
    QTest::addColumn<int>("hidden");
    QTest::addColumn<int>("popupTop");
    QTest::addColumn<int>("popupHeight");
    // Home rectangle (0, 40, 800 x 400): H = 400, half = 200; font size 20, 6 entries.
    // Upper half: h = min(400 - y - 25, 120), top = 40 + y + 25.
    QTest::newRow("upper half") << 100 << 0 << 40 + 60 + 25 << 120;
    QTest::newRow("exactly at half opens below") << 240 << 0 << 40 + 200 + 25 << qMin(400 - 200 - 25, 120);
    QTest::newRow("upper half, squeezed by the bottom") << 220 << 0 << 40 + 180 + 25 << qMin(400 - 180 - 25, 120);
    // Lower half: h = min(120, y), the list ends at the combo's top.
    QTest::newRow("lower half") << 300 << 0 << 300 - 120 << 120;
    QTest::newRow("hidden rows shorten it") << 300 << 2 << 300 - 80 << 80;
}

void TestDropCombobox::standardPopupPlacement()
{
    QFETCH(int, comboY);
    QFETCH(int, hidden);
    QFETCH(int, popupTop);
    QFETCH(int, popupHeight);
    Host host;
    auto* combo = new DropCombobox(true, &host);
    combo->addItems(entries(6));
    for (int i = 0; i < hidden; ++i)
        combo->setItemData(i, true, DropCombobox::kHiddenRowRole);
    combo->setFontSize(20);
    combo->move(50, comboY);
    QVERIFY(host.start());
    // The home rectangle is in screen coordinates, like the combo's place.
    QPoint const origin = host.mapToGlobal(QPoint(0, 0));
    combo->setHomeRect(QRect(origin + QPoint(0, 40), QSize(800, 400)));
    QCOMPARE(combo->visibleCount(), 6 - hidden);

    int const y = comboY - 40;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(QStringLiteral("pos: x: 50 pos: y: %1").arg(y)));
    QTest::ignoreMessage(QtDebugMsg, "_homeRect: height 400");
    combo->showPopup();
    QVERIFY(combo->isPopupVisible());
    QWidget* popup = combo->view()->window();
    QCOMPARE(popup->y() - origin.y(), popupTop);
    QCOMPARE(popup->height(), popupHeight);
    QCOMPARE(popup->x() - origin.x(), 50);
    QCOMPARE(popup->width(), qMin(combo->width(), combo->view()->width()));
    QCOMPARE(combo->view()->styleSheet(),
             QStringLiteral("QListView{font-size: 20px;} QListView::item{height: 20px;}"));
    combo->hidePopup();
}

void TestDropCombobox::standardPopupChoiceEndsTheEdit()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Host host;
    auto* combo = new DropCombobox(true, &host);
    combo->addItems(entries(4));
    combo->setHomeRect(QRect(0, 0, 800, 480));
    QVERIFY(host.start());
    QSignalSpy finished(combo, &DropCombobox::eidtFinished);
    QSignalSpy closed(combo, &DropCombobox::sigCloseEdit);
    QSignalSpy value(combo, &DropCombobox::signalValueChanged);
    combo->setItemData(2, QStringLiteral("two"));
    combo->showPopup();
    // The standard popup's view takes the knob.
    QAbstractItemView* view = combo->view();
    view->setCurrentIndex(combo->model()->index(2, 0));
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(combo->currentIndex(), 2);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.at(0).at(0).toInt(), 2);
    QCOMPARE(value.last().at(0), QVariant(QStringLiteral("two")));
    QVERIFY(!combo->isPopupVisible());
    QCoreApplication::processEvents();
    QCOMPARE(closed.size(), 0);

    // Escape in the popup closes it without a choice and tells so.
    combo->showPopup();
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    QVERIFY(!combo->isPopupVisible());
    QCOMPARE(closed.size(), 1);
    QCOMPARE(combo->currentIndex(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(closed.size(), 1);
    QCOMPARE(finished.size(), 1);
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::customPopupPlacementAndKeys()
{
    Host host(QSize(479, 319));
    auto* combo = new DropCombobox(true, &host);
    combo->addItems(entries(5));
    combo->setFontSize(18);
    combo->setCurrentIndex(1);
    combo->setHomeRect(QRect(0, 0, 479, 319));
    QVERIFY(host.start());
    QPoint const origin = host.mapToGlobal(QPoint(0, 0));
    QString const place = QStringLiteral("pos: x: %1 pos: y: %2").arg(origin.x() + 240).arg(origin.y() + 24);

    // Half the home width, the home height less a margin of 24 on a screen under 320
    // lines; against the window's right edge, the margin below its top.
    QTest::ignoreMessage(QtDebugMsg, qPrintable(place));
    combo->showPopup();
    CustomListView* list = combo->getCustomListView();
    QVERIFY(list->isVisible());
    QCOMPARE(list->objectName(), QStringLiteral("CustomListView"));
    QCOMPARE(list->size(), QSize(239, 319 - 24));
    QCOMPARE(list->pos(), origin + QPoint(479 - 239, 24));
    QCOMPARE(list->styleSheet(), QStringLiteral("QListView{font-size: 18px; }"));
    QCOMPARE(list->currentIndex().row(), 1);

    QSignalSpy finished(combo, &DropCombobox::eidtFinished);
    QSignalSpy closed(combo, &DropCombobox::sigCloseEdit);
    QSignalSpy index(combo, &DropCombobox::signalIndexChanged);
    Knob::turn(list, -2); // the knob moves the cursor only
    QCOMPARE(list->currentIndex().row(), 3);
    QCOMPARE(combo->currentIndex(), 1);
    QVERIFY(index.isEmpty());
    Knob::press(list);
    QCOMPARE(combo->currentIndex(), 3);
    QCOMPARE(index.size(), 1);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.at(0).at(0).toInt(), 3);
    QVERIFY(!list->isVisible());
    QCoreApplication::processEvents();
    QVERIFY(closed.isEmpty());

    // Escape: closed, nothing chosen.
    QTest::ignoreMessage(QtDebugMsg, qPrintable(place));
    combo->showPopup();
    Knob::turn(list, 1);
    Knob::back(list);
    QVERIFY(!list->isVisible());
    QCOMPARE(closed.size(), 1);
    QCOMPARE(combo->currentIndex(), 3);
    QCOMPARE(finished.size(), 1);

    // Margin 32 on a screen of 320 lines or more.
    combo->addItems(entries(10)); // 15 entries: the panel's list on any screen
    combo->setHomeRect(QRect(0, 0, 479, 400));
    host.resize(479, 400);
    QTest::ignoreMessage(QtDebugMsg,
                         qPrintable(QStringLiteral("pos: x: %1 pos: y: %2").arg(origin.x() + 240).arg(origin.y() + 32)));
    combo->showPopup();
    QCOMPARE(list->size(), QSize(239, 400 - 32));
    combo->hidePopup();
}

void TestDropCombobox::customPopupNeedsAnActiveWindow()
{
    auto* combo = new DropCombobox(true);
    combo->addItems(entries(3));
    combo->setHomeRect(QRect(0, 0, 320, 240));
    QApplication::setActiveWindow(nullptr);
    QTest::ignoreMessage(QtWarningMsg, "-------activeWindow is null-----");
    combo->showPopup();
    QVERIFY(!combo->isCustomPopupVisible());
    delete combo;
}

void TestDropCombobox::customPopupSkipsHiddenRows()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Host host;
    auto* combo = new DropCombobox(true, &host);
    combo->addItems(entries(20));
    combo->setHomeRect(QRect(0, 0, 800, 480));
    for (int i = 3; i < 6; ++i)
        combo->setItemData(i, true, DropCombobox::kHiddenRowRole);
    combo->setItemData(7, false, DropCombobox::kHiddenRowRole); // false is not hidden
    combo->setCurrentIndex(2);
    QVERIFY(host.start());
    QCOMPARE(combo->visibleCount(), 17);
    combo->showPopup();
    CustomListView* list = combo->getCustomListView();
    QVERIFY(list->isRowHidden(4));
    QVERIFY(!list->isRowHidden(7));
    Knob::turn(list, -1);
    QCOMPARE(list->currentIndex().row(), 6);
    combo->hidePopup();
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::scrollingText()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QStringLiteral("short")));
    model.appendRow(new QStandardItem(QStringLiteral("a very long entry text that cannot fit into a narrow row at all")));
    QListView view;
    auto* delegate = new ScrollingTextDelegate(&view);
    view.setItemDelegate(delegate);
    view.setModel(&model);
    view.resize(120, 100);
    QSignalSpy update(delegate, &ScrollingTextDelegate::requestUpdate);

    auto paintRow = [&](int row) {
        QImage image(120, 30, QImage::Format_ARGB32);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.rect = QRect(0, 0, 120, 30);
        option.widget = &view;
        delegate->paint(&painter, option, model.index(row, 0));
    };

    // A short text does not move.
    delegate->setScrollingRow(0);
    paintRow(0);
    delegate->advance();
    QCOMPARE(delegate->offset(), 0);
    QVERIFY(update.isEmpty());

    // A long text under the cursor moves a step per tick and asks for a repaint.
    delegate->setScrollingRow(1);
    paintRow(1);
    delegate->advance();
    delegate->advance();
    QCOMPARE(delegate->offset(), 2 * ScrollingTextDelegate::kStep);
    QCOMPARE(update.size(), 2);
    // The cursor leaves the row: the text starts again from its beginning.
    delegate->setScrollingRow(0);
    QCOMPARE(delegate->offset(), 0);
    delegate->setScrollingRow(1);
    paintRow(1);
    delegate->advance();
    delegate->reset();
    QCOMPARE(delegate->scrollingRow(), -1);
    QCOMPARE(delegate->offset(), 0);
}

void TestDropCombobox::widthFollowsEntries()
{
    DropCombobox combo(true);
    combo.setFontSize(20);
    int const empty = combo.width();
    combo.addItem(QStringLiteral("720p"));
    int const one = combo.maximumWidth();
    QCOMPARE(combo.minimumWidth(), one);
    combo.addItem(QStringLiteral("1920 x 1080 progressive at 59.94 frames"));
    int const wide = combo.maximumWidth();
    QVERIFY(wide > one);
    QVERIFY(one >= empty);
    // A hidden entry does not widen it.
    combo.setItemData(1, true, DropCombobox::kHiddenRowRole);
    QCOMPARE(combo.maximumWidth(), one);
    combo.setItemData(1, QVariant(), DropCombobox::kHiddenRowRole);
    QCOMPARE(combo.maximumWidth(), wide);
    // Within its limit.
    combo.setComboBoxWidthLimit(150);
    QCOMPARE(combo.maximumWidth(), 150);
    combo.removeItem(1);
    QCOMPARE(combo.maximumWidth(), qMin(one, 150));
    // A fixed combo keeps its width.
    combo.setComboxAutomaticCal(false);
    combo.setFixedWidth(300);
    combo.addItem(QStringLiteral("another rather long entry that would widen it"));
    QCOMPARE(combo.width(), 300);
}

void TestDropCombobox::fontSizeSheet()
{
    DropCombobox combo(false);
    QCOMPARE(combo.property("isHaveArrow"), QVariant(false));
    QCOMPARE(combo.fontSize(), -1);
    combo.setFontSize(22);
    QCOMPARE(combo.styleSheet(), QStringLiteral("QComboBox{padding-right:5px}"));
    QCOMPARE(combo.lineEdit()->font().pixelSize(), 22);
    combo.setArrowSize(QSize(16, 12));
    QCOMPARE(combo.styleSheet(),
             QStringLiteral("QComboBox{padding-right:5px}QComboBox::down-arrow{width:16px;height:12px;}"));
    // Sizes Qt would refuse are refused here.
    QTest::ignoreMessage(QtDebugMsg, "[DropCombobox] setFontSize: size out of range: 0");
    combo.setFontSize(0);
    QCOMPARE(combo.fontSize(), 22);
    QTest::ignoreMessage(QtDebugMsg, "[DropCombobox] setHeight: negative height refused: -4");
    combo.setHeight(-4);
    QTest::ignoreMessage(QtDebugMsg, "[DropCombobox] setHeight: height above 16777215 refused: 16777216");
    combo.setHeight(QWIDGETSIZE_MAX + 1);
    combo.setHeight(36);
    QCOMPARE(combo.height(), 36);
    QCOMPARE(combo.lineEdit()->height(), 36);
}

void TestDropCombobox::lineEditFilter()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Host host;
    auto* combo = new DropCombobox(true, &host);
    combo->addItems(entries(3));
    combo->setHomeRect(QRect(0, 0, 800, 480));
    QVERIFY(host.start());
    // A click on the text toggles the popup.
    QTest::mouseClick(combo->lineEdit(), Qt::LeftButton);
    QVERIFY(combo->isPopupVisible());
    combo->hidePopup();
    // Escape on the text is swallowed.
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(combo->eventFilter(combo->lineEdit(), &escape));
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::focusComboKeepsTheKnob()
{
    Host host;
    auto* layout = new QVBoxLayout(&host);
    auto* before = new QLineEdit(&host);
    auto* combo = new FocusComboBox(&host);
    auto* after = new QLineEdit(&host);
    layout->addWidget(before);
    layout->addWidget(combo);
    layout->addWidget(after);
    combo->addItems({QStringLiteral("Manual"), QStringLiteral("DHCP"), QStringLiteral("Auto IP")});
    QVERIFY(host.start());

    // Closed: the knob walks the page.
    combo->setFocus();
    Knob::turn(combo, -1);
    QCOMPARE(QApplication::focusWidget(), after);
    combo->setFocus();
    Knob::turn(combo, 1);
    QCOMPARE(QApplication::focusWidget(), before);

    // The press opens it; the knob moves its cursor without wrapping; the choice
    // waits for the press.
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Return);
    QVERIFY(combo->view()->isVisible());
    QCOMPARE(combo->view()->currentIndex().row(), 0);
    auto turnCombo = [combo](int key) {
        QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("1"));
        QApplication::sendEvent(combo, &e);
    };
    turnCombo(Qt::Key_Up);
    QCOMPARE(combo->view()->currentIndex().row(), 0);
    for (int i = 0; i < 5; ++i)
        turnCombo(Qt::Key_Down);
    QCOMPARE(combo->view()->currentIndex().row(), 2);
    QCOMPARE(combo->currentIndex(), 0);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);
    QApplication::sendEvent(combo, &enter);
    QCOMPARE(combo->currentIndex(), 2);
    QVERIFY(!combo->view()->isVisible());

    // Escape sent to the combo closes its open popup, choice unchanged.
    combo->showPopup();
    turnCombo(Qt::Key_Up);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(combo, &escape);
    QVERIFY(escape.isAccepted());
    QVERIFY(!combo->view()->isVisible());
    QCOMPARE(combo->currentIndex(), 2);
}

void TestDropCombobox::choiceRowOpensOnlyWithAChoice()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Host host;
    auto* row = new TypeStringCombox(&host);
    row->setHomeRect(QRect(0, 0, 800, 480));
    row->addItem(QStringLiteral("A"), 1);
    row->addItem(QStringLiteral("B"), 2);
    row->addItem(QStringLiteral("C"), 3);
    row->setRowHidden(1, true);
    row->setRowHidden(2, true);
    QCOMPARE(row->visableCount(), 1);
    QCOMPARE(row->count(), 3);
    QVERIFY(host.start());
    Recorder rec(row);
    row->editValue();
    QVERIFY(!row->comboBox()->isPopupVisible() && !row->comboBox()->isCustomPopupVisible());
    QCOMPARE(rec.take(), QStringList());
    // The auto-update-content flag lets a single entry open.
    row->setAutoUpdateContent(true);
    row->editValue();
    QVERIFY(row->comboBox()->isPopupVisible());
    row->closeEditValue();
    row->setAutoUpdateContent(false);
    row->setRowHidden(2, false);
    // A fixed choice never opens.
    row->setEditable(false);
    row->editValue();
    QVERIFY(!row->comboBox()->isPopupVisible());
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::choiceRowQuietPopup()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Host host;
    auto* row = new TypeStringCombox(&host);
    row->setHomeRect(QRect(0, 0, 800, 480));
    for (int i = 0; i < 3; ++i)
        row->addItem(QStringLiteral("E%1").arg(i), i * 10);
    QVERIFY(host.start());
    QSignalSpy value(row, &CommonItemType::signalValueChanged);
    QSignalSpy shown(row, &StringComboxBaseType::signalShowPop);
    row->showPopup(true);
    QVERIFY(row->comboBox()->isPopupVisible());
    QVERIFY(value.isEmpty());
    QVERIFY(shown.isEmpty());
    row->hidePopup();
    // Not quiet: the current entry's data, then the show signal.
    row->setCurrentIndex(2);
    value.clear();
    Recorder rec(row);
    row->showPopup(false);
    QCOMPARE(rec.take(), QStringList({"value:20", "showpop"}));
    QCOMPARE(row->curSelectedRow(), 2);
    row->hidePopup();
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::choiceRowCommit()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Host host;
    auto* row = new TypeStringCombox(&host);
    row->setHomeRect(QRect(0, 0, 479, 319)); // the panel's own list
    for (int i = 0; i < 5; ++i)
        row->addItem(QStringLiteral("E%1").arg(i), i);
    row->setCurrentIndex(1);
    QVERIFY(host.start());
    host.setFocus();
    Recorder rec(row);
    row->editValue();
    QCOMPARE(rec.take(), QStringList({"value:1", "showpop", "started"}));
    CustomListView* list = row->comboBox()->getCustomListView();
    QVERIFY(list->isVisible());
    QCOMPARE(QApplication::focusWidget(), list);

    Knob::turn(list, -2);
    QCOMPARE(rec.take(), QStringList({"cursor:2", "cursor:3"}));
    QCOMPARE(row->currentIndex(), 1);
    Knob::press(list);
    QCOMPARE(rec.take(), QStringList({"current:3", "text:E3", "value:3", "activated:3", "finished"}));
    QVERIFY(!list->isVisible());
    QCOMPARE(QApplication::focusWidget(), &host);
    QCOMPARE(row->currentText(), QStringLiteral("E3"));
    QCoreApplication::processEvents();
    QCOMPARE(rec.take(), QStringList());
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::choiceRowBack()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    Host host;
    auto* row = new TypeStringCombox(&host);
    row->setHomeRect(QRect(0, 0, 479, 319));
    for (int i = 0; i < 5; ++i)
        row->addItem(QStringLiteral("E%1").arg(i), i);
    QVERIFY(host.start());
    host.setFocus();
    row->editValue();
    CustomListView* list = row->comboBox()->getCustomListView();
    // With no entry chosen the list opens on the first one.
    QCOMPARE(list->currentIndex().row(), 0);
    Knob::turn(list, -3);
    Recorder rec(row);
    Knob::back(list);
    QCOMPARE(rec.take(), QStringList({"close", "finished"}));
    QVERIFY(!list->isVisible());
    QCOMPARE(row->currentIndex(), 0);
    QCOMPARE(QApplication::focusWidget(), &host);
    QCoreApplication::processEvents();
    QCOMPARE(rec.take(), QStringList());
    QLoggingCategory::setFilterRules(QString());
}

void TestDropCombobox::choiceRowKeyFilter()
{
    TypeStringCombox row;
    row.addItem(QStringLiteral("A"));
    row.addItem(QStringLiteral("B"));
    QSignalSpy finished(&row, &CommonItemType::signalEditFinished);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);
    QVERIFY(row.eventFilter(row.comboBox(), &enter));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(row.eventFilter(row.comboBox(), &escape));
    QCOMPARE(finished.size(), 2);
    // Return is left to the combo.
    QKeyEvent ret(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(!row.eventFilter(row.comboBox(), &ret));
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(!row.eventFilter(row.comboBox(), &release));
    QCOMPARE(finished.size(), 2);
}

void TestDropCombobox::choiceRowListInterface()
{
    TypeStringCombox row;
    row.addItem(QStringLiteral("Mix"), 10);
    row.addItem(QStringLiteral("Wipe"), 20);
    row.insertItem(1, QStringLiteral("Dip"), 30);
    row.addItem(QIcon(), 40);
    QCOMPARE(row.count(), 4);
    QCOMPARE(row.itemText(1), QStringLiteral("Dip"));
    QCOMPARE(row.itemText(3), QString());
    QCOMPARE(row.findData(30), 1);
    QCOMPARE(row.findText(QStringLiteral("Wipe")), 2);

    QSignalSpy current(&row, &StringComboxBaseType::signalCurrentIndexChanged);
    row.setCurrentUserData(20);
    QCOMPARE(row.currentIndex(), 2);
    QCOMPARE(row.currentData(), QVariant(20));
    row.setCurrentText(QStringLiteral("Mix"));
    QCOMPARE(row.currentIndex(), 0);
    QCOMPARE(current.size(), 2);

    std::list<std::pair<int, QString>> renames{{0, QStringLiteral("Cut")}, {7, QStringLiteral("None")}};
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] setItemText: index 7 out of range (4 entries)");
    row.updateItems(renames);
    QCOMPARE(row.itemText(0), QStringLiteral("Cut"));

    // Bad indexes and unknown values are logged and change nothing.
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] setCurrentIndex: index 4 out of range (4 entries)");
    row.setCurrentIndex(4);
    QCOMPARE(row.currentIndex(), 0);
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] removeItem: index -1 out of range (4 entries)");
    row.removeItem(-1);
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] itemText: index 9 out of range (4 entries)");
    QCOMPARE(row.itemText(9), QString());
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] itemData: index -2 out of range (4 entries)");
    QCOMPARE(row.itemData(-2), QVariant());
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] insertItem: index 6 out of range (4 entries)");
    row.insertItem(6, QStringLiteral("Far"));
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] setCurrentUserData: no entry holds QVariant(int, 99)");
    row.setCurrentUserData(99);
    QCOMPARE(row.count(), 4);
    QCOMPARE(current.size(), 2);

    // The labels around the value.
    row.setPreValueLabelText(QStringLiteral("Rate"));
    row.setPreValueLabelUserdata(QStringLiteral("fr"));
    QCOMPARE(row.getPreValueLabelUserdata(), QVariant(QStringLiteral("fr")));
    row.setPreValueLabelObjectName(QStringLiteral("rateLabel"));
    QCOMPARE(row.getPreValueLabelObjectName(), QStringLiteral("rateLabel"));
    QTest::ignoreMessage(QtDebugMsg, "[TypeStringCombox] setPreValueLabelProperty: no property name");
    row.setPreValueLabelProperty(nullptr, true);
    row.setContentDisabled(true);
    QCOMPARE(row.comboBox()->property("Gray"), QVariant(true));
    QVERIFY(!row.comboBox()->isEnabled());
    row.clear();
    QCOMPARE(row.count(), 0);
    QCOMPARE(row.currentIndex(), -1);
}

// The drop-down lets pending events run while it opens; a host timer that deletes the
// row then must not leave the row's edit running on freed memory.
void TestDropCombobox::choiceRowDeletedWhileOpening()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    for (bool custom : {false, true}) {
        Host host;
        QPointer<TypeStringCombox> row = new TypeStringCombox(&host);
        row->setHomeRect(custom ? QRect(0, 0, 800, 480) : QRect());
        row->addItem(QStringLiteral("A"), 1);
        row->addItem(QStringLiteral("B"), 2);
        QVERIFY(host.start());
        QTimer::singleShot(0, row.data(), [&row] { delete row.data(); });
        row->editValue();
        QTRY_VERIFY(row.isNull());
    }
    QLoggingCategory::setFilterRules(QString());
}

// The combo takes 5/7 of the row's height, computed wide: a huge height is refused by
// the combo, not overflowed on the way.
void TestDropCombobox::choiceRowHugeItemHeight()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    TypeStringCombox row;
    row.setItemHeight(70);
    QCOMPARE(row.comboBox()->height(), 50);
    row.setItemHeight(std::numeric_limits<int>::max());
    QCOMPARE(row.comboBox()->maximumHeight(), 50);
    QLoggingCategory::setFilterRules(QString());
}

QTEST_MAIN(TestDropCombobox)
#include "tst_dropcombobox.moc"
