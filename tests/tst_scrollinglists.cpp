// The scrolling lists: the knob list's steps by level over hidden rows, the slider
// list's live choice and edit protocol, the wrapping delegate's line breaking and row
// sizes, and the expandable table's groups worked with the knob.
#include <lcdwidgets.h>

#include "hostwindow.h"
#include "leakcheck.h"
#include "knob.h"

#include <QLoggingCategory>
#include <QSignalSpy>
#include <QSlider>
#include <QStandardItemModel>
#include <QListView>
#include <QtTest>
#include <memory>

using namespace LCD::Widget;

namespace {

std::unique_ptr<QWidget> activeHost() { return HostWindow::activeHost(QSize(600, 300), HostWindow::HasFocus); }

QString const kLong = QStringLiteral("Audience, balcony camera with the long lens on the tripod behind the last row");

} // namespace

class TestScrollingLists : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void knobListStepsByLevel()
    {
        auto host = activeHost();
        auto* list = new NQListWidget(host.get());
        list->resize(300, 200);
        list->show();
        for (int i = 0; i < 10; ++i)
            list->addItem(QStringLiteral("R%1").arg(i));
        list->setRowHidden(3, true);
        QCOMPARE(list->visibleCount(), 9);
        list->setFocus();
        QCOMPARE(list->currentIndex(), 0); // focus lands on the first row
        Knob::turn(list, -2);
        QCOMPARE(list->currentIndex(), 2);
        Knob::turn(list, -1);
        QCOMPARE(list->currentIndex(), 4); // over the hidden row
        Knob::turn(list, -1, 3);
        QCOMPARE(list->currentIndex(), 7);
        Knob::turnText(list, -1, QStringLiteral("1e9")); // clamped at the end
        QCOMPARE(list->currentIndex(), 9);
        Knob::turn(list, 1, 0.05); // a slow turn still moves one row
        QCOMPARE(list->currentIndex(), 8);
        Knob::turnText(list, 1, QStringLiteral("nan"));
        QCOMPARE(list->currentIndex(), 7);
        Knob::turnText(list, 1, QStringLiteral("-4")); // the level's sign does not turn the knob round
        QCOMPARE(list->currentIndex(), 2);

        QSignalSpy activated(list, &NQListWidget::signalActivated);
        QSignalSpy closed(list, &NQListWidget::sigCloseEdit);
        Knob::press(list);
        Knob::press(list, true);
        QCOMPARE(activated.size(), 2);
        QCOMPARE(activated.at(0).at(0).toInt(), 2);
        Knob::back(list);
        QCOMPARE(closed.size(), 1);

        QTest::ignoreMessage(QtDebugMsg, "[NQListWidget] setCurrentIndex: index 10 out of range (count 10)");
        list->setCurrentIndex(10);
        QCOMPARE(list->currentIndex(), 2);
        QTest::ignoreMessage(QtDebugMsg, "[NQListWidget] setContentFontSize: font size must be positive, got 0");
        list->setContentFontSize(0);
        QTest::ignoreMessage(QtDebugMsg, "[NQListWidget] setScrollInterval: interval must be positive, got -5");
        list->setScrollInterval(-5);
    }

    void knobListScrollsOrWraps()
    {
        auto host = activeHost();
        auto* list = new NQListWidget(host.get());
        list->resize(160, 200);
        list->show();
        list->addItems({QStringLiteral("Short"), kLong});
        list->setCurrentIndex(1);
        auto* scrolling = qobject_cast<ScrollingTextDelegate*>(list->itemDelegate());
        QVERIFY(scrolling);
        list->setFocus();
        QCOMPARE(scrolling->scrollingRow(), 1); // the current row's text scrolls
        list->setScrollInterval(5);
        QTRY_VERIFY(scrolling->offset() > 0);
        host->setFocus(); // leaving stops it and brings the text back
        QCOMPARE(scrolling->offset(), 0);

        list->setWrapText(true);
        QVERIFY(qobject_cast<WrapListDelegate*>(list->itemDelegate()));
        QTRY_VERIFY(list->visualItemRect(list->item(1)).height() > 2 * list->visualItemRect(list->item(0)).height());
        list->setWrapText(false);
        QCOMPARE(list->itemDelegate(), scrolling);
    }

    void wrapDelegateBreaksLines()
    {
        WrapListDelegate wrap;
        QFont font;
        font.setPixelSize(16);
        QFontMetrics fm(font);
        QCOMPARE(wrap.lineCount(QStringLiteral("short"), font, 400), 1);
        int const narrow = fm.horizontalAdvance(QStringLiteral("Audience, balcony"));
        int const lines = wrap.lineCount(kLong, font, narrow);
        QVERIFY(lines >= 4);
        // A single word wider than the row breaks inside the word rather than overflowing.
        QVERIFY(wrap.lineCount(QString(40, QLatin1Char('W')), font, fm.horizontalAdvance(QStringLiteral("WWWW"))) >= 10);
        wrap.setMaximumLines(2);
        QCOMPARE(wrap.lineCount(kLong, font, narrow), 2);

        QStandardItemModel model;
        model.appendRow(new QStandardItem(QStringLiteral("short")));
        model.appendRow(new QStandardItem(kLong));
        QStyleOptionViewItem option;
        option.font = font;
        option.rect = QRect(0, 0, narrow + 2 * wrap.horizontalMargin(), 10);
        wrap.setMaximumLines(0);
        int const one = wrap.sizeHint(option, model.index(0, 0)).height();
        int const many = wrap.sizeHint(option, model.index(1, 0)).height();
        QCOMPARE(one, fm.lineSpacing() + 2 * wrap.verticalMargin());
        QCOMPARE(many, lines * fm.lineSpacing() + 2 * wrap.verticalMargin());

        QTest::ignoreMessage(QtDebugMsg, "[WrapListDelegate] setTextMargins: negative margins");
        wrap.setTextMargins(-1, 2);
        QCOMPARE(wrap.horizontalMargin(), 8);
        QTest::ignoreMessage(QtDebugMsg, "[WrapListDelegate] setMaximumLines: negative line count");
        wrap.setMaximumLines(-3);
        QCOMPARE(wrap.maximumLines(), 0);
    }

    void sliderListChoosesLive()
    {
        auto host = activeHost();
        auto* row = new TypeItemSliderList(host.get());
        row->setItemTitle(QStringLiteral("Rate"));
        for (int i = 0; i < 6; ++i)
            row->addItem(QStringLiteral("V%1").arg(i), 100 + i);
        row->setRowHidden(2, true);
        QSignalSpy silent(row, &StringComboxBaseType::signalCurrentIndexChanged);
        row->setCurrentIndex(1);
        QCOMPARE(silent.size(), 0);
        QCOMPARE(row->slider()->value(), 1);
        QCOMPARE(row->textLabel()->text(), QStringLiteral("V1"));

        QStringList order;
        connect(row, &CommonItemType::signalEditStarted, this, [&order] { order << "started"; });
        connect(row, &StringComboxBaseType::signalSelectedIndexChanged, this, [&order](int i) { order << QStringLiteral("cursor:%1").arg(i); });
        connect(row, &StringComboxBaseType::signalCurrentIndexChanged, this, [&order](int i) { order << QStringLiteral("current:%1").arg(i); });
        connect(row, &StringComboxBaseType::signalCurrentTextChanged, this, [&order](QString const& t) { order << "text:" + t; });
        connect(row, &CommonItemType::signalValueChanged, this, [&order](QVariant const& v) { order << "value:" + v.toString(); });
        connect(row, &CommonItemType::signalCloseEditStatus, this, [&order] { order << "close"; });
        connect(row, &CommonItemType::signalEditFinished, this, [&order] { order << "finished"; });

        row->editValue();
        QCOMPARE(row->slider()->property("sliderListStatus").toString(), QStringLiteral("edit"));
        Knob::turn(row->slider(), 1); // Up: the next entry, over the hidden one
        QCOMPARE(order, QStringList({"started", "cursor:3", "current:3", "text:V3", "value:103"}));
        QCOMPARE(row->slider()->value(), 3);
        QCOMPARE(row->textLabel()->text(), QStringLiteral("V3"));
        order.clear();
        Knob::turn(row->slider(), 1, 50); // clamped at the last
        QCOMPARE(row->currentIndex(), 5);
        Knob::turn(row->slider(), 1);
        Knob::turn(row->slider(), -1, 0.05);
        QCOMPARE(row->currentIndex(), 4);
        Knob::turn(row->slider(), -1, 2);
        QCOMPARE(row->currentIndex(), 1); // two visible entries down: 3, then 1
        order.clear();
        Knob::back(row->slider());
        QCOMPARE(order, QStringList({"close", "finished"}));
        QCOMPARE(QApplication::focusWidget(), host.get());
        QCOMPARE(row->slider()->property("sliderListStatus").toString(), QStringLiteral("normal"));
        QCOMPARE(row->currentData().toInt(), 101);
    }

    void sliderListRefusesBadInput()
    {
        auto host = activeHost();
        TypeItemSliderList row(host.get());
        row.setItemTitle(QStringLiteral("Rate"));
        row.addItem(QStringLiteral("A"), 1);
        row.addItem(QStringLiteral("B"), 2);
        row.setRowHidden(1, true);
        QSignalSpy started(&row, &CommonItemType::signalEditStarted);
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemSliderList] Rate: nothing to choose from");
        row.editValue();
        QCOMPARE(started.size(), 0);
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemSliderList] setCurrentIndex: index 2 out of range (count 2)");
        row.setCurrentIndex(2);
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemSliderList] itemText: index -1 out of range (count 2)");
        QCOMPARE(row.itemText(-1), QString());
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemSliderList] insertItem: index 3 out of range (count 2)");
        row.insertItem(3, QStringLiteral("X"));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("setCurrentText: no entry holds"));
        row.setCurrentText(QStringLiteral("nope"));
        QCOMPARE(row.currentIndex(), -1);
        QVERIFY(!row.currentData().isValid());
        // Entries before the choice shift it; removing it clears it.
        row.setCurrentIndex(1);
        row.insertItem(0, QStringLiteral("Z"), 0);
        QCOMPARE(row.currentText(), QStringLiteral("B"));
        row.removeItem(2);
        QCOMPARE(row.currentIndex(), -1);
        QCOMPARE(row.textLabel()->text(), QString());
        row.setEditable(false);
        row.addItem(QStringLiteral("C"), 3);
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemSliderList] setContentFontSize: font size must be positive, got 0");
        row.setContentFontSize(0);
        QCOMPARE(row.contentFontSize(), 20);
        QTest::ignoreMessage(QtDebugMsg, "[TypeItemSliderList] Rate: the choice is fixed");
        row.editValue();
        QCOMPARE(started.size(), 0);
    }

    void tableGroupsOpenWithThePress()
    {
        auto host = activeHost();
        auto* table = new ExpandableTable(host.get());
        table->resize(400, 260);
        table->show();
        int const video = table->addGroup(QStringLiteral("Video"));
        table->addRow(video, QStringLiteral("Format"), QStringLiteral("1080p50"));
        table->addRow(video, QStringLiteral("Genlock"), kLong);
        int const audio = table->addGroup(QStringLiteral("Audio"));
        table->addRow(audio, QStringLiteral("Rate"), QStringLiteral("48 kHz"));
        table->setFocus();

        QStringList order;
        connect(table, &ExpandableTable::signalCurrentChanged, this,
                [&order](int g, int r) { order << QStringLiteral("at:%1,%2").arg(g).arg(r); });
        connect(table, &ExpandableTable::signalGroupExpanded, this,
                [&order](int g, bool open) { order << QStringLiteral("open:%1,%2").arg(g).arg(open); });
        connect(table, &ExpandableTable::signalRowActivated, this,
                [&order](int g, int r) { order << QStringLiteral("row:%1,%2").arg(g).arg(r); });

        QCOMPARE(table->currentGroup(), 0); // focus lands on the first group
        Knob::turn(table, -1); // closed: straight to the next group
        QCOMPARE(order, QStringList({"at:1,-1"}));
        order.clear();
        Knob::turn(table, 1);
        Knob::press(table);
        QVERIFY(table->isGroupExpanded(0));
        Knob::turn(table, -2);
        Knob::press(table, true);
        QCOMPARE(order, QStringList({"at:0,-1", "open:0,1", "at:0,0", "at:0,1", "row:0,1"}));
        order.clear();
        Knob::turn(table, -5); // no wrap past the last line
        QCOMPARE(table->currentGroup(), 1);
        QCOMPARE(table->currentRowInGroup(), -1);
        Knob::turn(table, 3);
        Knob::press(table); // closing a group
        QVERIFY(!table->isGroupExpanded(0));
        QSignalSpy closed(table, &ExpandableTable::sigCloseEdit);
        Knob::back(table);
        QCOMPARE(closed.size(), 1);

        QCOMPARE(table->value(video, 1), kLong);
        table->setValue(audio, 0, QStringLiteral("96 kHz"));
        QCOMPARE(table->value(audio, 0), QStringLiteral("96 kHz"));
        QTest::ignoreMessage(QtDebugMsg, "[ExpandableTable] addRow: no group 5 (count 2)");
        QCOMPARE(table->addRow(5, QStringLiteral("k"), QStringLiteral("v")), -1);
        QTest::ignoreMessage(QtDebugMsg, "[ExpandableTable] value: no row 4 in group 0 (count 2)");
        QCOMPARE(table->value(0, 4), QString());
        QTest::ignoreMessage(QtDebugMsg, "[ExpandableTable] rowCount: no group -1 (count 2)");
        QCOMPARE(table->rowCount(-1), -1);
        QTest::ignoreMessage(QtDebugMsg, "[ExpandableTable] setContentFontSize: font size must be positive, got -2");
        table->setContentFontSize(-2);
        // Going to a row opens its group.
        table->setCurrent(video, 0);
        QVERIFY(table->isGroupExpanded(video));
        table->removeGroup(video);
        QCOMPARE(table->groupCount(), 1);
        QCOMPARE(table->groupTitle(0), QStringLiteral("Audio"));
    }
};

QTEST_MAIN(TestScrollingLists)
#include "tst_scrollinglists.moc"
