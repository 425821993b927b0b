// The knob menu and the menu row: the seven-row window with the cursor in the
// middle (spacers, list height, scroll), moving over hidden rows without wrapping,
// the signals of a commit and of an Escape, the refusals and their messages, the
// row's placement over the home frame and its list interface.
#include "editorpage.h"
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>

#include <QLabel>
#include <QListWidget>
#include <QLoggingCategory>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

using namespace LCD::Widget;

namespace {

QVector<DialogMenuWidget::Entry> entries(int n)
{
    QVector<DialogMenuWidget::Entry> list;
    for (int i = 0; i < n; ++i)
        list.append({QStringLiteral("Entry %1").arg(i), {{Qt::UserRole, i * 10}}});
    return list;
}

// The menu at the panel's size: a menu height of 320 gives rows of 320 / 8 = 40.
constexpr int kMenuHeight = 320;
constexpr int kRow = kMenuHeight / 8;

void prepare(DialogMenuWidget& menu, int n)
{
    menu.setMenuWidgetHeight(kMenuHeight);
    menu.setFixedSize(400, kMenuHeight + 32);
    menu.setListItems(entries(n));
}

int rows(QWidget* w) { return w->minimumHeight() / kRow; }

class HomeFrame : public LCD::MainWidgets::IHomeFrame
{
public:
    QSize size() const override { return m_size; }
    QSize m_size{800, 480};
};

// The host page over the panel's whole screen.
struct Page : EditorTest::Page
{
    Page() : EditorTest::Page(QSize(800, 480), true) {}
};

struct Recorder
{
    QStringList log;
    explicit Recorder(TypeDialogMenu* row)
    {
        QObject::connect(row, &CommonItemType::signalEditStarted, [this] { log << "started"; });
        QObject::connect(row, &CommonItemType::signalValueChanged, [this](QVariant v) { log << "value:" + v.toString(); });
        QObject::connect(row, &CommonItemType::signalEditFinished, [this] { log << "finished"; });
        QObject::connect(row, &StringComboxBaseType::signalSelectedChanged, [this](QString t) { log << "cursorText:" + t; });
        QObject::connect(row, &StringComboxBaseType::signalSelectedIndexChanged, [this](int i) { log << QStringLiteral("cursor:%1").arg(i); });
        QObject::connect(row, &StringComboxBaseType::signalCurrentTextChanged, [this](QString t) { log << "text:" + t; });
        QObject::connect(row, &StringComboxBaseType::signalCurrentIndexChanged, [this](int i) { log << QStringLiteral("current:%1").arg(i); });
    }
    QStringList take()
    {
        QStringList out = log;
        log.clear();
        return out;
    }
};

// A menu row on `page` with the entries "E0".."E<n-1>" (data 0..n-1).
TypeDialogMenu* menuRow(Page& page, HomeFrame& frame, int n)
{
    auto* row = new TypeDialogMenu(&page, &frame);
    page.layout()->addWidget(row);
    for (int i = 0; i < n; ++i)
        row->addItem(QStringLiteral("E%1").arg(i), i);
    return row;
}

} // namespace

class TestDialogMenu : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void windowHeightsRefused();
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }
    void init()
    {
        startLeakCheck();
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }
    void cleanup()
    {
        QVERIFY(!QApplication::activeModalWidget());
        endLeakCheck();
    }

    void construction();
    void window_data();
    void window();
    void hiddenRowsWithoutWrap();
    void commitSignals();
    void escapeRestores();
    void refusals();
    void delegateColours();
    void runsModally();

    void rowPlacement();
    void rowWithoutHomeFrame();
    void rowSingleChoiceNeverOpens();
    void rowCommit();
    void rowBack();
    void rowListInterface();
    void rowMessages();
    void rowDestroyedWhileOpen();

};

void TestDialogMenu::construction()
{
    DialogMenuWidget menu;
    QVERIFY(menu.isModal());
    QCOMPARE(menu.slidWindowCount(), 7);
    QVERIFY(qAbs(menu.windowOpacity() - 0.9) < 0.01); // kept in 8 bits
    QCOMPARE(menu.palette().color(QPalette::Window), QColor(61, 61, 61, 230));
    QCOMPARE(menu.titleLabel()->property("isDialogMenuTitle"), QVariant(true));
    QCOMPARE(menu.titleLabel()->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(menu.listWidget()->property("isDialogMenuWidget"), QVariant(true));
    QCOMPARE(menu.listWidget()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(menu.listWidget()->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(menu.delegate()->fontPixelSize(), 20);
    QCOMPARE(menu.delegate()->selectedColor(), QColor(255, 150, 38));
    QCOMPARE(menu.delegate()->normalColor(), QColor(Qt::white));
    // Rows take the menu height split in eight (the title is one of them).
    prepare(menu, 3);
    QCOMPARE(menu.titleLabel()->height(), kRow);
    QCOMPARE(menu.listWidget()->item(0)->sizeHint().height(), kRow);
    QCOMPARE(menu.listWidget()->item(0)->textAlignment(), int(Qt::AlignCenter));
    QCOMPARE(menu.listWidget()->item(2)->data(Qt::UserRole), QVariant(20));
    menu.setContentFontSize(24);
    QCOMPARE(menu.delegate()->fontPixelSize(), 24);
    QCOMPARE(menu.titleLabel()->styleSheet(), QStringLiteral("font-size:24px;"));
}

void TestDialogMenu::window_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("listRows");
    QTest::addColumn<int>("scroll");
    QTest::newRow("three, first") << 3 << 0 << 3 << 1 << 3 << 0;
    QTest::newRow("three, last") << 3 << 2 << 1 << 3 << 3 << 0;
    QTest::newRow("twenty, 10") << 20 << 10 << 0 << 0 << 7 << 7;
    QTest::newRow("twenty, 2") << 20 << 2 << 1 << 0 << 6 << 0;
    // Past the end the scroll stops at its maximum: the last row still stands in
    // the middle, the bottom spacer below it.
    QTest::newRow("twenty, last") << 20 << 19 << 0 << 3 << 4 << 16;
    QTest::newRow("one") << 1 << 0 << 3 << 3 << 1 << 0;
}

void TestDialogMenu::window()
{
    QFETCH(int, count);
    QFETCH(int, current);
    QFETCH(int, top);
    QFETCH(int, bottom);
    QFETCH(int, listRows);
    QFETCH(int, scroll);
    DialogMenuWidget menu;
    prepare(menu, count);
    menu.show();
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QVERIFY(menu.setCurrentIndex(current));
    QCOMPARE(rows(menu.topSpacer()), top);
    QCOMPARE(rows(menu.bottomSpacer()), bottom);
    QCOMPARE(menu.listWidget()->minimumHeight(), listRows * kRow);
    QCOMPARE(menu.listWidget()->maximumHeight(), listRows * kRow);
    QCOMPARE(menu.listWidget()->verticalScrollBar()->value(), scroll * kRow);
    // The cursor stands in the fourth of the seven positions.
    QRect const r = menu.listWidget()->visualItemRect(menu.listWidget()->item(current));
    QCOMPARE(top + r.top() / kRow, 3);
    menu.hide();
}

void TestDialogMenu::hiddenRowsWithoutWrap()
{
    DialogMenuWidget menu;
    prepare(menu, 20);
    for (int i = 4; i < 20; ++i)
        menu.setRowHidden(i, true);
    QCOMPARE(menu.visibleCount(), 4);
    QCOMPARE(menu.count(), 20);
    menu.show();
    QVERIFY(menu.setCurrentIndex(3));
    QListWidget* list = menu.listWidget();
    Knob::turn(list, -1);
    QCOMPARE(menu.getCurrentIndex(), 3);
    // Up skips hidden rows, and stops at the top.
    menu.setRowHidden(1, true);
    Knob::turn(list, 1);
    QCOMPARE(menu.getCurrentIndex(), 2);
    Knob::turn(list, 1);
    QCOMPARE(menu.getCurrentIndex(), 0);
    Knob::turn(list, 5);
    QCOMPARE(menu.getCurrentIndex(), 0);
    // A hidden first row: up stops on the first visible one.
    menu.setRowHidden(0, true);
    menu.setRowHidden(1, false);
    QVERIFY(menu.setCurrentIndex(2));
    Knob::turn(list, 3);
    QCOMPARE(menu.getCurrentIndex(), 1);
    // Hidden rows stay hidden across a rebuild.
    menu.updateItemDatas(entries(20));
    QVERIFY(list->isRowHidden(10));
    QVERIFY(list->isRowHidden(0));
    menu.hide();
}

void TestDialogMenu::commitSignals()
{
    DialogMenuWidget menu;
    prepare(menu, 5);
    menu.show();
    QVERIFY(menu.setCurrentIndex(1));
    QStringList log;
    connect(&menu, &DialogMenuWidget::signalSelectedChanged, [&](QString t) { log << "selText:" + t; });
    connect(&menu, &DialogMenuWidget::signalSelectedIndexChanged, [&](int i) { log << QStringLiteral("sel:%1").arg(i); });
    connect(&menu, &DialogMenuWidget::signalValueChanged, [&](QVariant v) { log << "value:" + v.toString(); });
    connect(&menu, &DialogMenuWidget::signalCurrentChanged, [&](QString t) { log << "curText:" + t; });
    connect(&menu, &DialogMenuWidget::signalCurrentIndexChanged, [&](int i) { log << QStringLiteral("cur:%1").arg(i); });
    connect(&menu, &DialogMenuWidget::signalEditFinished, [&] { log << "finished"; });

    Knob::turn(menu.listWidget(), -2);
    QCOMPARE(log, QStringList({"selText:Entry 2", "sel:2", "selText:Entry 3", "sel:3"}));
    log.clear();
    Knob::press(menu.listWidget());
    QCOMPARE(log, QStringList({"value:30", "curText:Entry 3", "cur:3", "finished"}));
    QCOMPARE(menu.selectedIndex(), 3);
    QVERIFY(!menu.isKeyBackPressed());
    // The keypad's Enter commits too.
    log.clear();
    Knob::turn(menu.listWidget(), 1);
    Knob::press(menu.listWidget(), true);
    QCOMPARE(log.mid(2), QStringList({"value:20", "curText:Entry 2", "cur:2", "finished"}));
    menu.hide();
}

void TestDialogMenu::escapeRestores()
{
    DialogMenuWidget menu;
    prepare(menu, 12);
    menu.show();
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QVERIFY(menu.setCurrentIndex(6));
    Knob::turn(menu.listWidget(), -4);
    QCOMPARE(menu.getCurrentIndex(), 10);
    QSignalSpy value(&menu, &DialogMenuWidget::signalValueChanged);
    QSignalSpy selected(&menu, &DialogMenuWidget::signalSelectedIndexChanged);
    QSignalSpy current(&menu, &DialogMenuWidget::signalCurrentIndexChanged);
    QSignalSpy finished(&menu, &DialogMenuWidget::signalEditFinished);
    QSignalSpy rejected(&menu, &QDialog::rejected);
    Knob::back(menu.listWidget());
    QCOMPARE(menu.getCurrentIndex(), 6);
    QVERIFY(menu.isKeyBackPressed());
    QCOMPARE(finished.size(), 1);
    QVERIFY(value.isEmpty());
    QVERIFY(selected.isEmpty());
    QVERIFY(current.isEmpty());
    // The key goes on to the dialog, which closes.
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!menu.isVisible());
    // The window is back on the committed row.
    QCOMPARE(menu.listWidget()->currentRow(), 6);
    // The next key clears the flag.
    menu.show();
    Knob::turn(menu.listWidget(), 1);
    QVERIFY(!menu.isKeyBackPressed());
    menu.hide();
}

void TestDialogMenu::refusals()
{
    DialogMenuWidget menu;
    prepare(menu, 4);
    menu.show();
    QVERIFY(menu.setCurrentIndex(2));
    int const top = menu.topSpacer()->minimumHeight();
    QSignalSpy current(&menu, &DialogMenuWidget::signalCurrentIndexChanged);
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _itemNameList!");
    QVERIFY(!menu.setCurrentIndex(4));
    QCOMPARE(menu.getCurrentIndex(), 2);
    QCOMPARE(menu.topSpacer()->minimumHeight(), top);
    QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _itemNameList!");
    menu.updateCurrentIndex(9, false);
    QCOMPARE(menu.getCurrentIndex(), 2);
    // A negative index is not a choice: refused, the cursor stays.
    QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _itemNameList!");
    QVERIFY(!menu.setCurrentIndex(-1));
    QCOMPARE(menu.getCurrentIndex(), 2);
    QCOMPARE(menu.selectedIndex(), 2);
    QCOMPARE(menu.listWidget()->currentRow(), 2);
    QVERIFY(current.isEmpty());
    // New data for an entry (the current one included) is no new choice.
    QSignalSpy currentText(&menu, &DialogMenuWidget::signalCurrentChanged);
    menu.setItemData(2, 42);
    menu.setItemData(0, QStringLiteral("x"), Qt::UserRole + 1);
    QCOMPARE(menu.getItemData(2), QVariant(42));
    QCOMPARE(menu.getItemData(0, Qt::UserRole + 1), QVariant(QStringLiteral("x")));
    QVERIFY(current.isEmpty());
    QVERIFY(currentText.isEmpty());
    // A hidden row can't be chosen.
    menu.setRowHidden(3, true);
    QTest::ignoreMessage(QtDebugMsg, "[DialogMenuWidget] setCurrentIndex: row 3 is hidden");
    QVERIFY(!menu.setCurrentIndex(3));
    QCOMPARE(menu.getItemText(7), QString());
    QCOMPARE(menu.getItemData(7), QVariant());
    QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _itemNameList!");
    menu.setItemText(-1, QStringLiteral("x"));
    // An empty menu: nothing to refresh, nothing to commit.
    menu.clear();
    QCOMPARE(menu.count(), 0);
    QCOMPARE(menu.getCurrentText(), QString());
    QSignalSpy finished(&menu, &DialogMenuWidget::signalEditFinished);
    QSignalSpy value(&menu, &DialogMenuWidget::signalValueChanged);
    Knob::turn(menu.listWidget(), -2);
    Knob::press(menu.listWidget());
    QVERIFY(value.isEmpty());
    QVERIFY(finished.isEmpty());
    menu.hide();
}

void TestDialogMenu::delegateColours()
{
    QListWidget list;
    list.addItem(QStringLiteral("MMMMMMMM"));
    ListWidgetDelegate delegate;
    auto render = [&](bool selected) {
        QImage image(200, 40, QImage::Format_ARGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.initFrom(&list);
        option.rect = image.rect();
        option.state = QStyle::State_Enabled | (selected ? QStyle::State_Selected : QStyle::State_None);
        delegate.paint(&painter, option, list.model()->index(0, 0));
        painter.end();
        return image;
    };
    auto has = [](QImage const& image, QColor c) {
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == c)
                    return true;
        return false;
    };
    QImage const normal = render(false);
    QVERIFY(has(normal, Qt::white));
    QVERIFY(!has(normal, QColor(255, 150, 38)));
    QImage const selected = render(true);
    QVERIFY(has(selected, QColor(255, 150, 38)));
    delegate.setNormalColor(QColor(0, 255, 0));
    QVERIFY(has(render(false), QColor(0, 255, 0)));
}

void TestDialogMenu::runsModally()
{
    // A host may also run the menu with exec(): the keys arrive from the event loop.
    DialogMenuWidget menu;
    prepare(menu, 6);
    menu.setCurrentIndex(0);
    connect(&menu, &DialogMenuWidget::signalEditFinished, &menu, [&menu] {
        if (!menu.isKeyBackPressed())
            menu.accept();
    });
    QTimer::singleShot(0, &menu, [&menu] {
        Knob::turn(menu.listWidget(), -3);
        Knob::press(menu.listWidget());
    });
    bool guardFired = false;
    QTimer guard;
    guard.setSingleShot(true);
    connect(&guard, &QTimer::timeout, &menu, [&] {
        guardFired = true;
        menu.reject();
    });
    guard.start(5000);
    int const result = menu.exec();
    QVERIFY(!guardFired);
    QCOMPARE(result, int(QDialog::Accepted));
    QCOMPARE(menu.getCurrentIndex(), 3);
}

void TestDialogMenu::rowPlacement()
{
    HomeFrame frame;
    Page page;
    TypeDialogMenu* row = menuRow(page, frame, 5);
    row->setHomeFramePoint(QPoint(10, 20));
    QVERIFY(page.start());
    row->editValue();
    DialogMenuWidget* menu = row->menuDialog();
    QVERIFY(menu->isVisible());
    // 11/16 of the width, 9/10 of the height, centred over the frame.
    QCOMPARE(menu->size(), QSize(550, 432));
    QCOMPARE(menu->pos(), QPoint(10 + 125, 20 + 24));
    QCOMPARE(menu->menuWidgetHeight(), 432);
    QCOMPARE(menu->titleLabel()->height(), 432 / 8);
    QCOMPARE(menu->property("isMenuDialogBg"), QVariant(true));
    QVERIFY(menu->windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(QApplication::focusWidget(), menu->listWidget());
    // A second press while it is open does nothing; a moved frame moves it.
    row->editValue();
    row->setHomeFramePoint(QPoint(0, 0));
    QCOMPARE(menu->pos(), QPoint(125, 24));
    row->closeEditValue();
    QVERIFY(!menu->isVisible());
}

void TestDialogMenu::rowWithoutHomeFrame()
{
    Page page;
    auto* row = new TypeDialogMenu(&page, nullptr);
    row->addItem(QStringLiteral("A"));
    row->addItem(QStringLiteral("B"));
    DialogMenuWidget* menu = row->menuDialog();
    menu->setFixedSize(300, 200);
    menu->move(40, 50);
    QVERIFY(page.start());
    row->editValue();
    QVERIFY(menu->isVisible());
    QCOMPARE(menu->size(), QSize(300, 200));
    QCOMPARE(menu->pos(), QPoint(40, 50));
    row->closeEditValue();
}

void TestDialogMenu::rowSingleChoiceNeverOpens()
{
    HomeFrame frame;
    Page page;
    auto* row = new TypeDialogMenu(&page, &frame);
    row->addItem(QStringLiteral("Only"));
    row->addItem(QStringLiteral("Hidden"));
    row->setRowHidden(1, true);
    QVERIFY(page.start());
    QSignalSpy started(row, &CommonItemType::signalEditStarted);
    row->editValue();
    QVERIFY(!row->menuDialog()->isVisible());
    QVERIFY(started.isEmpty());
    row->setRowHidden(1, false);
    row->editValue();
    QVERIFY(row->menuDialog()->isVisible());
    QCOMPARE(started.size(), 1);
    row->closeEditValue();
}

void TestDialogMenu::rowCommit()
{
    HomeFrame frame;
    Page page;
    TypeDialogMenu* row = menuRow(page, frame, 6);
    row->setCurrentIndex(1);
    QCOMPARE(row->labelText(), QStringLiteral("E1"));
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    // Opening centres the committed row and reports where the cursor stands.
    QCOMPARE(rec.take(), QStringList({"cursorText:E1", "cursor:1", "started"}));
    QWidget* list = QApplication::focusWidget();
    QCOMPARE(list, row->menuDialog()->listWidget());
    Knob::turn(list, -2);
    QCOMPARE(rec.take(), QStringList({"cursorText:E2", "cursor:2", "cursorText:E3", "cursor:3"}));
    QCOMPARE(row->labelText(), QStringLiteral("E1"));
    Knob::press(list);
    QCOMPARE(rec.take(), QStringList({"text:E3", "current:3", "finished"}));
    QVERIFY(!row->menuDialog()->isVisible());
    QVERIFY(!row->isKeyBackPressed());
    QCOMPARE(row->labelText(), QStringLiteral("E3"));
    QCOMPARE(row->currentIndex(), 3);
    QCOMPARE(row->currentData(), QVariant(3));
    QCOMPARE(QApplication::focusWidget(), &page);
}

void TestDialogMenu::rowBack()
{
    HomeFrame frame;
    Page page;
    TypeDialogMenu* row = menuRow(page, frame, 6);
    row->setCurrentIndex(4);
    QVERIFY(page.start());
    row->editValue();
    QWidget* list = QApplication::focusWidget();
    Knob::turn(list, 3);
    Recorder rec(row);
    Knob::back(list);
    QCOMPARE(rec.take(), QStringList({"finished"}));
    QVERIFY(row->isKeyBackPressed());
    QVERIFY(!row->menuDialog()->isVisible());
    QCOMPARE(row->currentIndex(), 4);
    QCOMPARE(row->labelText(), QStringLiteral("E4"));
    QCOMPARE(QApplication::focusWidget(), &page);
    // It opens again on the committed row.
    row->editValue();
    QCOMPARE(row->menuDialog()->listWidget()->currentRow(), 4);
    row->closeEditValue();
}

void TestDialogMenu::rowListInterface()
{
    TypeDialogMenu row(nullptr, nullptr);
    row.addItem(QStringLiteral("Mix"), 1);
    row.addItem(QStringLiteral("Wipe"), 2);
    row.insertItem(1, QStringLiteral("Dip"), 3);
    QCOMPARE(row.count(), 3);
    QCOMPARE(row.itemText(1), QStringLiteral("Dip"));
    QCOMPARE(row.findText(QStringLiteral("Wipe")), 2);
    QCOMPARE(row.findData(3), 1);
    QCOMPARE(row.itemData(2), QVariant(2));
    QCOMPARE(row.menuDialog()->count(), 3);

    row.setCurrentUserData(2);
    QCOMPARE(row.currentIndex(), 2);
    QCOMPARE(row.labelText(), QStringLiteral("Wipe"));
    row.setCurrentText(QStringLiteral("Dip"));
    QCOMPARE(row.currentText(), QStringLiteral("Dip"));

    row.setItemText(1, QStringLiteral("Dip to black"));
    QCOMPARE(row.labelText(), QStringLiteral("Dip to black"));
    QCOMPARE(row.menuDialog()->getItemText(1), QStringLiteral("Dip to black"));
    QCOMPARE(row.itemData(1), QVariant(3)); // the data goes with the renamed entry
    std::list<std::pair<int, QString>> renames{{0, QStringLiteral("Cut")}, {2, QStringLiteral("Push")}};
    row.updateItems(renames);
    QCOMPARE(row.itemText(0), QStringLiteral("Cut"));
    QCOMPARE(row.menuDialog()->getItemText(2), QStringLiteral("Push"));

    row.setItemData(0, QStringLiteral("c"), Qt::UserRole + 1);
    QCOMPARE(row.itemData(0, Qt::UserRole + 1), QVariant(QStringLiteral("c")));
    QCOMPARE(row.menuDialog()->getItemData(0, Qt::UserRole + 1), QVariant(QStringLiteral("c")));

    row.removeItem(0);
    QCOMPARE(row.count(), 2);
    QCOMPARE(row.menuDialog()->count(), 2);
    row.setRowHidden(1, true);
    QCOMPARE(row.itemData(1, StringComboxBaseType::kHiddenRowRole), QVariant(true));
    QCOMPARE(row.menuDialog()->visibleCount(), 1);
    row.removeItem(0); // the hidden entry moves up and stays hidden
    QVERIFY(row.menuDialog()->isRowHidden(0));
    QVERIFY(!row.menuDialog()->isRowHidden(1));

    row.setEditable(false); // ignored
    row.setDialogTitle(QStringLiteral("Transition"));
    QCOMPARE(row.menuDialog()->dialogMenuTitle(), QStringLiteral("Transition"));
    row.setTextLabelProperty(QStringLiteral("isValueGray"));
    QCOMPARE(row.findChild<EllipsisLabel*>()->property("isValueGray"), QVariant(true));
    QCOMPARE(row.findChild<EllipsisLabel*>()->property("isComboboxLabel"), QVariant(true));
    row.clear();
    QCOMPARE(row.count(), 0);
    QCOMPARE(row.currentIndex(), -1);
    QCOMPARE(row.menuDialog()->count(), 0);
}

void TestDialogMenu::rowMessages()
{
    QLoggingCategory::setFilterRules(QString());
    TypeDialogMenu row(nullptr, nullptr);
    QTest::ignoreMessage(QtDebugMsg, "[TypeDialogMenu]  : nothing to choose from");
    row.editValue();
    row.addItem(QStringLiteral("A"), 1);
    row.addItem(QStringLiteral("B"), 2);
    QTest::ignoreMessage(QtDebugMsg, "the text has been exist!");
    row.addItem(QStringLiteral("A"), 3);
    QCOMPARE(row.count(), 2);
    QCOMPARE(row.itemData(0), QVariant(1));
    QTest::ignoreMessage(QtDebugMsg, "the text has been exist!");
    row.setItemText(1, QStringLiteral("A"));
    QCOMPARE(row.itemText(1), QStringLiteral("B"));
    QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _itemNameVec!");
    row.removeItem(2);
    QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _kvItemVec!");
    row.setItemText(5, QStringLiteral("C"));
    QTest::ignoreMessage(QtDebugMsg, "setItemData: index is bigger than vec size!");
    row.setItemData(-1, 5);
    QCOMPARE(row.labelText(), QStringLiteral("A"));
    QTest::ignoreMessage(QtDebugMsg, "the index is bigger than _kvItemVec!");
    row.slotCurrentIndexChanged(-1);
    QCOMPARE(row.labelText(), QStringLiteral("A"));
    // An entry without a text is shown, with a warning.
    row.addItem(QString(), 9);
    QTest::ignoreMessage(QtWarningMsg, "-TypeDialogMenu::Impl::setLabelText is empty");
    QTest::ignoreMessage(QtWarningMsg, "-TypeDialogMenu::Impl::setLabelText is empty");
    row.setCurrentIndex(2);
    QCOMPARE(row.labelText(), QString());
    QCOMPARE(row.count(), 3);
}

void TestDialogMenu::rowDestroyedWhileOpen()
{
    HomeFrame frame;
    Page page;
    auto* row = new TypeDialogMenu(&page, &frame);
    row->addItem(QStringLiteral("A"));
    row->addItem(QStringLiteral("B"));
    QVERIFY(page.start());
    row->editValue();
    QPointer<DialogMenuWidget> menu = row->menuDialog();
    QVERIFY(menu->isVisible());
    delete row;
    QVERIFY(menu.isNull());
}

// Heights no window can have are refused before they size the menu.
void TestDialogMenu::windowHeightsRefused()
{
    DialogMenuWidget menu;
    menu.setMenuWidgetHeight(300);
    QTest::ignoreMessage(QtWarningMsg, "[DialogMenuWidget] setMenuWidgetHeight: length 100000 refused");
    menu.setMenuWidgetHeight(100000);
    QCOMPARE(menu.menuWidgetHeight(), 300);
    QTest::ignoreMessage(QtWarningMsg, "[DialogMenuWidget] updateItemHeight: length 2147483647 refused");
    menu.updateItemHeight(300, std::numeric_limits<int>::max());
}

QTEST_MAIN(TestDialogMenu)
#include "tst_dialogmenu.moc"
