// What a row costs to build: its number of child widgets and of widgets with a
// style sheet of their own, after the set-up a host's page gives it. Both drive
// the time a page takes to build and show (each widget is polished against the
// theme, each own sheet is parsed and matched for its widget), so a change that
// makes a common row dearer fails here, without any timing.
#include "leakcheck.h"

#include <lcdwidgets.h>

#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <functional>

using namespace LCD::Widget;

namespace {

struct Cost
{
    int widgets = 0;
    int sheets = 0;
};

Cost costOf(CommonItemType* row)
{
    row->setItemTitle(QStringLiteral("Setting"));
    row->setItemTitleWidth(768);
    row->setItemHeight(56);
    row->setContentFontSize(20);
    row->ensurePolished();
    row->setItemTitleText(row->itemTitle());
    Cost cost;
    for (QWidget* w : row->findChildren<QWidget*>()) {
        ++cost.widgets;
        if (!w->styleSheet().isEmpty())
            ++cost.sheets;
    }
    return cost;
}

using Factory = std::function<CommonItemType*(QWidget*)>;

} // namespace

Q_DECLARE_METATYPE(Factory)

class TestRowCost : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void rows_data();
    void rows();
    void partsBuiltOnFirstUse();
};

void TestRowCost::rows_data()
{
    QTest::addColumn<Factory>("make");
    QTest::addColumn<int>("widgets");
    QTest::addColumn<int>("sheets");
    // The most common rows of a setting page; the limits are what they cost now (the
    // parts a row hides, such as its right icon, are built only when first used).
    QTest::newRow("TypeItemText") << Factory([](QWidget* p) { return new TypeItemText(p); }) << 4 << 3;
    QTest::newRow("TypeIntAdjust")
        << Factory([](QWidget* p) { return new TypeIntAdjust(SuffixPercent, QuitKeepValue, p, 1); }) << 6 << 3;
    QTest::newRow("TypeFloatAdjust")
        << Factory([](QWidget* p) { return new TypeFloatAdjust(SuffixNone, QuitKeepValue, p, 0); }) << 6 << 3;
    QTest::newRow("TypeItemTip") << Factory([](QWidget* p) { return new TypeItemTip(p); }) << 5 << 3;
    QTest::newRow("TypeItemArrow") << Factory([](QWidget* p) { return new TypeItemArrow(p); }) << 6 << 4;
    QTest::newRow("TypeItemValue") << Factory([](QWidget* p) { return new TypeItemValue(p); }) << 7 << 3;
    QTest::newRow("TypeKeyValueText") << Factory([](QWidget* p) { return new TypeKeyValueText(p); }) << 4 << 3;
    QTest::newRow("TypeStringCombox") << Factory([](QWidget* p) { return new TypeStringCombox(p); })
                                      << 22 << 3; // the editable combo makes its popup window at once
    QTest::newRow("TypeDialogMenu") << Factory([](QWidget* p) { return new TypeDialogMenu(p, nullptr); }) << 4 << 2;
    QTest::newRow("TypeItemSwitch") << Factory([](QWidget* p) { return new TypeItemSwitch(p); }) << 5 << 2;
}

void TestRowCost::rows()
{
    QFETCH(Factory, make);
    QFETCH(int, widgets);
    QFETCH(int, sheets);
    QWidget page;
    Cost const cost = costOf(make(&page));
    if (cost.widgets < widgets || cost.sheets < sheets)
        qInfo("cheaper than its limit (%d widgets, %d sheets): lower the limit", cost.widgets, cost.sheets);
    QVERIFY2(cost.widgets <= widgets, qPrintable(QStringLiteral("%1 widgets, limit %2").arg(cost.widgets).arg(widgets)));
    QVERIFY2(cost.sheets <= sheets, qPrintable(QStringLiteral("%1 own sheets, limit %2").arg(cost.sheets).arg(sheets)));
}

void TestRowCost::partsBuiltOnFirstUse()
{
    // The left icon area and the second title come when first reached, with what
    // was set before.
    QWidget page;
    TypeItemText row(&page);
    row.setContentFontSize(25);
    row.setItemTitleWidth(400);
    row.setItemTitle(QStringLiteral("Network"));
    QVERIFY(!row.findChild<QPushButton*>(QStringLiteral("itemLeftIconButton")));
    row.setLeftIconButtonHide(true); // hidden already: still nothing built
    QVERIFY(!row.findChild<QPushButton*>(QStringLiteral("itemLeftIconButton")));
    row.setLeftIconButtonHide(false);
    auto* icon = row.findChild<QPushButton*>(QStringLiteral("itemLeftIconButton"));
    QVERIFY(icon);
    QVERIFY(!icon->isHidden());
    row.setItemSecondTitle(QStringLiteral("Follows the program bus"), 0);
    row.setItemSecondTitleLabelHide(false);
    bool found = false;
    for (QLabel* label : row.findChildren<QLabel*>()) {
        if (label->text() == QStringLiteral("Follows the program bus")) {
            found = true;
            QCOMPARE(label->styleSheet(), QStringLiteral("QLabel{font-size: 15px; }"));
            QVERIFY(!label->isHidden());
        }
    }
    QVERIFY(found);
}

QTEST_MAIN(TestRowCost)
#include "tst_rowcost.moc"
