// The text rows: value fitting (plain, cut at two thirds, rolling), the icon size from
// the item height, the font-size rules and refusals, the one-off right spacer, the
// three-value row, and the "..." cut shared by the value rows.
#include "leakcheck.h"

#include <lcdwidgets.h>
#include <displaytext_p.h> // internal helpers, compiled into this test

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpacerItem>
#include <QTimer>
#include <QtTest>

using namespace LCD::Widget;

namespace {

QString const kLong = QStringLiteral("Camera 3 - main stage wide shot from the left balcony, downscaled from 4K");

QHBoxLayout* dynamicLayoutOf(CommonItemType* row)
{
    auto* frame = row->findChild<QFrame*>(QStringLiteral("itemDynamicFrame"));
    return frame ? qobject_cast<QHBoxLayout*>(frame->layout()) : nullptr;
}

int spacerCount(QHBoxLayout* layout)
{
    int n = 0;
    for (int i = 0; i < layout->count(); ++i) {
        QSpacerItem* s = layout->itemAt(i)->spacerItem();
        if (s && s->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed)
            ++n;
    }
    return n;
}

} // namespace

class TestTextItems : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void itemTextStructure();
    void labelValueModes();
    void rollValue();
    void plainValueStopsMarquee();
    void iconSizeFromItemHeight_data();
    void iconSizeFromItemHeight();
    void textFontSheets();
    void tipRefusesBadFontSize();
    void tipFactorAndRows();
    void multiTextRefusesBadFontSize();
    void rightDistanceCorrectionOnce();
    void multiTextLabels();
    void multiTextWidthSharing();
    void multiTextRollBeforeWidth();
    void multiTextBadIndex();
    void elideWithDotsRule();
    void itemValueCutsWithDots();
    void textCenterHalfRow();
};

void TestTextItems::itemTextStructure()
{
    TypeItemText row;
    QPushButton* icon = row.iconButton();
    QCOMPARE(icon->objectName(), QStringLiteral("iconButton"));
    QCOMPARE(icon->focusPolicy(), Qt::NoFocus);
    QVERIFY(icon->isHidden());
    QCOMPARE(row.valueLabel()->property("isValueText").toBool(), true);
    // The right icon the row hides is never built unless asked for.
    QVERIFY(!row.findChild<QPushButton*>(QStringLiteral("itemRightIconButton")));
    // Stretch, icon, value: the value is right-aligned in the row.
    QHBoxLayout* layout = dynamicLayoutOf(&row);
    QCOMPARE(layout->count(), 3);
    QVERIFY(layout->itemAt(0)->spacerItem());
    QCOMPARE(layout->itemAt(1)->widget(), icon);
    QCOMPARE(layout->itemAt(2)->widget(), row.valueLabel());

    row.setLabelStyle();
    QCOMPARE(row.valueLabel()->property("isValueTextStyle").toBool(), true);
    QCOMPARE(row.getTitleLabel()->property("isTitleTextStyle").toBool(), true);

    row.setContentEnabled(false);
    QVERIFY(!row.valueLabel()->isEnabled());
    row.setContentEnabled(true);
    QVERIFY(row.valueLabel()->isEnabled());
}

void TestTextItems::labelValueModes()
{
    TypeItemText row;
    row.setItemTitleWidth(300);
    QFontMetrics const fm(row.valueLabel()->font());
    QVERIFY2(fm.horizontalAdvance(kLong) > 200, "the sample must be wider than two thirds of 300 px");

    // Mode 1: never cut, whatever the width.
    row.setLabelValue(kLong, 1);
    QCOMPARE(row.getLabelValue().toString(), kLong);

    // Mode 0: cut at two thirds of the item width (200 px).
    row.setLabelValue(kLong, 0);
    QString const shown = row.getLabelValue().toString();
    QVERIFY(shown != kLong);
    QVERIFY(shown.endsWith(QChar(0x2026)));
    QCOMPARE(row.valueLabel()->storedWidth(), 200);
    QVERIFY(fm.horizontalAdvance(shown) <= 200);
    QVERIFY(!row.valueLabel()->isRolling());

    // A short value is not cut, and its box is its own width.
    row.setLabelValue(QStringLiteral("1080p"), 0);
    QCOMPARE(row.getLabelValue().toString(), QStringLiteral("1080p"));
    QCOMPARE(row.valueLabel()->storedWidth(), fm.horizontalAdvance(QStringLiteral("1080p")));

    // Numbers arrive as variants too.
    row.setLabelValue(42, 1);
    QCOMPARE(row.getLabelValue().toString(), QStringLiteral("42"));

    // Without an item width (the default -1) nothing is cut.
    TypeItemText fresh;
    fresh.setLabelValue(kLong, 0);
    QCOMPARE(fresh.getLabelValue().toString(), kLong);
}

void TestTextItems::rollValue()
{
    TypeItemText row;
    row.setItemTitleWidth(300);
    row.setRollValue(kLong);
    RollLabel* label = row.valueLabel();
    QCOMPARE(label->storedWidth(), 200);
    QCOMPARE(label->itemName(), kLong);
    QCOMPARE(label->text(), kLong); // shown whole, scrolled by painting
    QVERIFY(label->isRolling());
    QVERIFY(label->rollTimer()->isActive());
    QCOMPARE(label->maximumWidth(), 200); // the marquee runs inside its box
    int const before = label->scrollOffset();
    label->updateText();
    QCOMPARE(label->scrollOffset(), before + 2);

    // A value that fits does not roll.
    row.setRollValue(QStringLiteral("On"));
    QVERIFY(!label->isRolling());
    QVERIFY(!label->rollTimer()->isActive());
}

void TestTextItems::plainValueStopsMarquee()
{
    TypeItemText row;
    row.setItemTitleWidth(300);
    row.setRollValue(kLong);
    QVERIFY(row.valueLabel()->isRolling());
    row.setLabelValue(QStringLiteral("Off"), 1);
    QVERIFY(!row.valueLabel()->isRolling());
    QCOMPARE(row.getLabelValue().toString(), QStringLiteral("Off"));
    // A later font change must not bring the old text back.
    row.setContentFontSize(24);
    QCOMPARE(row.getLabelValue().toString(), QStringLiteral("Off"));
}

void TestTextItems::iconSizeFromItemHeight_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("side");
    QTest::newRow("unset") << -1 << 0;
    QTest::newRow("35") << 35 << 0;
    QTest::newRow("36") << 36 << 24;
    QTest::newRow("56") << 56 << 24;
    QTest::newRow("71") << 71 << 24;
    QTest::newRow("72") << 72 << 48;
    QTest::newRow("110") << 110 << 72;
}

void TestTextItems::iconSizeFromItemHeight()
{
    QFETCH(int, height);
    QFETCH(int, side);
    TypeItemText row;
    row.setItemHeight(height);
    row.setContentFontSize(20);
    row.setContentDisabled(true);
    // The icon is built on first use, with the size and state set before.
    QVERIFY(!row.findChild<QPushButton*>(QStringLiteral("iconButton")));
    QCOMPARE(row.iconButton()->minimumSize(), QSize(side, side));
    QCOMPARE(row.iconButton()->maximumSize(), QSize(side, side));
    QVERIFY(!row.iconButton()->isEnabled());
    QCOMPARE(itemIconSide(height), side);
}

void TestTextItems::textFontSheets()
{
    TypeItemText row;
    row.setContentFontSize(25);
    QCOMPARE(row.valueLabel()->styleSheet(), QStringLiteral("QLabel{font-size: 25px; }"));
    QCOMPARE(row.getTitleLabel()->styleSheet(), QStringLiteral("QLabel{font-size: 25px; }"));
    QCOMPARE(row.contentFontSize(), 25);

    TypeItemArrow arrow;
    arrow.setContentFontSize(21);
    QCOMPARE(arrow.valueLabel(0)->styleSheet(), QStringLiteral("QLabel { font-size: 21px; }"));
    QCOMPARE(arrow.valueLabel(1)->styleSheet(), QStringLiteral("QLabel { font-size: 21px; }"));

    TypeItemEdit edit;
    edit.setContentFontSize(22);
    QCOMPARE(edit.lineEdit()->styleSheet(), QStringLiteral("QLineEdit{font-size: 22px; }"));

    TypeItemValue value;
    value.setContentFontSize(19);
    QCOMPARE(value.valueLabel()->styleSheet(), QStringLiteral("QLabel{font-size: 19px; }"));
}

void TestTextItems::tipRefusesBadFontSize()
{
    TypeItemTip tip;
    tip.setContentFontSize(25);
    QString const tipSheet = tip.tipLabel()->styleSheet();
    QString const titleSheet = tip.getTitleLabel()->styleSheet();
    QCOMPARE(tipSheet, QStringLiteral("QLabel { font-size: 20px; }"));

    QTest::ignoreMessage(QtWarningMsg, "Invalid font size: 0");
    tip.setContentFontSize(0);
    QCOMPARE(tip.tipLabel()->styleSheet(), tipSheet);
    QCOMPARE(tip.getTitleLabel()->styleSheet(), titleSheet);
    QCOMPARE(tip.contentFontSize(), 25);

    QTest::ignoreMessage(QtWarningMsg, "Invalid font size: -7");
    tip.setContentFontSize(-7);
    QCOMPARE(tip.contentFontSize(), 25);
}

void TestTextItems::tipFactorAndRows()
{
    TypeItemTip tip;
    // 0.8, truncated: 21 -> 16, 20 -> 16, 24 -> 19.
    tip.setContentFontSize(21);
    QCOMPARE(tip.tipLabel()->styleSheet(), QStringLiteral("QLabel { font-size: 16px; }"));
    tip.setContentFontSize(24);
    QCOMPARE(tip.tipLabel()->styleSheet(), QStringLiteral("QLabel { font-size: 19px; }"));
    QCOMPARE(tip.tipLabel()->property("isTipText").toBool(), true);
    QCOMPARE(tip.tipIcon()->property("isTipItemIcon").toBool(), true);

    tip.setContentFontSize(20);
    tip.setItemTitleWidth(300);
    tip.setLabelValue(QStringLiteral("Changes to the output format restart the video engine: the program output "
                                     "is black for about two seconds."),
                      0);
    int const rows = tip.getWidgetRow();
    QVERIFY(rows > 1);
    QCOMPARE(tip.tipLabel()->text().count(QLatin1Char('\n')), rows - 1);
    // Wrapping again gives the same lines.
    QCOMPARE(tip.getWidgetRow(), rows);
    tip.setItemTitleWidth(4000);
    QCOMPARE(tip.getWidgetRow(), 1);
    tip.setIconHidden(true);
    QVERIFY(tip.tipIcon()->isHidden());
}

void TestTextItems::multiTextRefusesBadFontSize()
{
    TypeMultItemText multi;
    multi.setContentFontSize(25);
    // 0.9, truncated: 25 -> 22.
    for (int i = 0; i < 3; ++i)
        QCOMPARE(multi.label(i)->styleSheet(), QStringLiteral("QLabel { font-size: 22px; }"));
    multi.setContentFontSize(21);
    QCOMPARE(multi.label(0)->styleSheet(), QStringLiteral("QLabel { font-size: 18px; }"));

    QTest::ignoreMessage(QtWarningMsg, "Invalid font size: 0");
    multi.setContentFontSize(0);
    QCOMPARE(multi.label(2)->styleSheet(), QStringLiteral("QLabel { font-size: 18px; }"));
    QCOMPARE(multi.contentFontSize(), 21);
}

void TestTextItems::rightDistanceCorrectionOnce()
{
    // The only test in this process that asks for the spacer: the flag is process-wide.
    TypeItemText first;
    TypeItemText second;
    QHBoxLayout* a = dynamicLayoutOf(&first);
    QHBoxLayout* b = dynamicLayoutOf(&second);
    int const countA = a->count();
    int const countB = b->count();
    int const spacersA = spacerCount(a);
    int const spacersB = spacerCount(b);
    first.rightDistanceCorrection(12);
    second.rightDistanceCorrection(12);
    first.rightDistanceCorrection(30);
    QCOMPARE(a->count(), countA + 1);
    QCOMPARE(b->count(), countB);
    QCOMPARE(spacerCount(a), spacersA + 1);
    QCOMPARE(spacerCount(b), spacersB);
    QSpacerItem* spacer = a->itemAt(a->count() - 1)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(12, 0));
    // A row made later never gets one either.
    TypeItemText third;
    int const countC = dynamicLayoutOf(&third)->count();
    third.rightDistanceCorrection(12);
    QCOMPARE(dynamicLayoutOf(&third)->count(), countC);
}

void TestTextItems::multiTextLabels()
{
    TypeMultItemText multi;
    QCOMPARE(multi.label(0)->property("isSelfCheckValueText").toBool(), true);
    QCOMPARE(multi.label(1)->property("isSelfCheckSecondValueText").toBool(), true);
    QCOMPARE(multi.label(2)->property("isSelfCheckValueText").toBool(), true);
    QCOMPARE(multi.label(0)->alignment(), QLabel().alignment());
    QCOMPARE(multi.label(1)->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(multi.label(2)->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(multi.label(i)->text().isEmpty());
        QVERIFY(!multi.label(i)->getLabelRoll());
    }
    // First, stretch, second, stretch, third.
    QHBoxLayout* layout = dynamicLayoutOf(&multi);
    QCOMPARE(layout->count(), 5);
    QCOMPARE(layout->itemAt(0)->widget(), multi.label(0));
    QVERIFY(layout->itemAt(1)->spacerItem());
    QCOMPARE(layout->itemAt(2)->widget(), multi.label(1));
    QVERIFY(layout->itemAt(3)->spacerItem());
    QCOMPARE(layout->itemAt(4)->widget(), multi.label(2));

    multi.setLabelText(0, QStringLiteral("Fan 1"));
    multi.setLabelText(1, 3120);
    multi.setLabelText(2, QStringLiteral("Normal"));
    QCOMPARE(multi.getLabelText(1), QStringLiteral("3120"));
    QCOMPARE(multi.label(2)->text(), QStringLiteral("Normal"));
    multi.setLabelProperty(2, "isSelfCheckValueText", QStringLiteral("fail"));
    QCOMPARE(multi.label(2)->property("isSelfCheckValueText").toString(), QStringLiteral("fail"));
}

void TestTextItems::multiTextWidthSharing()
{
    TypeMultItemText multi;
    multi.setContentFontSize(20);
    QFont font;
    font.setPixelSize(20);
    QFontMetrics const fm(font);
    QString const a = QStringLiteral("Fan");
    QString const b = QStringLiteral("12.0 V");
    QString const c = QStringLiteral("Power supply B reports an output voltage below its lower limit");
    multi.setLabelText(0, a);
    multi.setLabelText(1, b);
    multi.setLabelText(2, c);
    int const wa = fm.horizontalAdvance(a);
    int const wb = fm.horizontalAdvance(b);
    QVERIFY(wa < 100 && wb < 100);

    // The narrow texts keep their width; the long one gets the rest and is cut.
    multi.setLabelWidth(300);
    QCOMPARE(multi.label(0)->storedWidth(), wa);
    QCOMPARE(multi.label(1)->storedWidth(), wb);
    QCOMPARE(multi.label(2)->storedWidth(), 300 - wa - wb);
    QCOMPARE(multi.label(2)->width(), 300 - wa - wb);
    QVERIFY(multi.label(2)->text().endsWith(QChar(0x2026)));
    QCOMPARE(multi.getLabelText(2), c); // the full text is kept
    QCOMPARE(multi.calTextSize(c, 300 - wa - wb), multi.label(2)->text());

    // Room for all three: nothing is cut.
    multi.setLabelWidth(4000);
    QCOMPARE(multi.label(2)->text(), c);
    QCOMPARE(multi.label(2)->storedWidth(), fm.horizontalAdvance(c));

    // Three long texts share equally.
    for (int i = 0; i < 3; ++i)
        multi.setLabelText(i, c);
    multi.setLabelWidth(300);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(multi.label(i)->storedWidth(), 100);

    // Rolling: the long texts scroll in their share instead of being cut.
    multi.setRollLabel(true);
    QVERIFY(multi.label(0)->isRolling());
    QCOMPARE(multi.label(0)->text(), c);
    multi.setRollLabel(false);
    QVERIFY(!multi.label(0)->isRolling());

    QTest::ignoreMessage(QtWarningMsg, "TypeMultItemText::setLabelWidth: invalid width 0");
    multi.setLabelWidth(0);
    QCOMPARE(multi.label(0)->storedWidth(), 100);
}

void TestTextItems::multiTextRollBeforeWidth()
{
    // Hosts switch rolling on when they build the row, before the page knows its width.
    TypeMultItemText multi;
    multi.setContentFontSize(20);
    multi.setRollLabel(true);
    QString const c = QStringLiteral("Power supply B reports an output voltage below its lower limit");
    multi.setLabelText(0, QStringLiteral("PSU B"));
    multi.setLabelText(2, c);
    QVERIFY(!multi.label(2)->isRolling()); // no width yet: shown as it is
    multi.setLabelWidth(300);
    QVERIFY(multi.label(2)->isRolling());
    QCOMPARE(multi.label(2)->text(), c);
    QVERIFY(!multi.label(0)->isRolling()); // fits its share
    // A new text keeps rolling; switching off cuts it again.
    multi.setLabelText(2, c + QStringLiteral(" (2)"));
    QVERIFY(multi.label(2)->isRolling());
    multi.setRollLabel(false);
    QVERIFY(!multi.label(2)->isRolling());
    QVERIFY(multi.label(2)->text().endsWith(QChar(0x2026)));
}

void TestTextItems::multiTextBadIndex()
{
    TypeMultItemText multi;
    QTest::ignoreMessage(QtWarningMsg, "TypeMultItemText::setLabelText invalid label index 3");
    multi.setLabelText(3, QStringLiteral("x"));
    QTest::ignoreMessage(QtWarningMsg, "TypeMultItemText::getLabelText invalid label index -1");
    QVERIFY(multi.getLabelText(-1).isEmpty());
    QTest::ignoreMessage(QtWarningMsg, "TypeMultItemText::setLabelProperty invalid label index 7");
    multi.setLabelProperty(7, "isSelfCheckValueText", true);
    // A null property name is ignored.
    multi.setLabelProperty(0, nullptr, true);

    TypeKeyCheck check;
    QTest::ignoreMessage(QtWarningMsg, "TypeKeyCheck::setLabelText invalid label index 2");
    check.setLabelText(2, QStringLiteral("x"));
    check.setLabelText(1, QStringLiteral("Pass"));
    check.setLabelProperty(1, QStringLiteral("pass"));
    QCOMPARE(check.label(1)->property("isValueText").toString(), QStringLiteral("pass"));
    QCOMPARE(check.getLabelValue().toString(), QStringLiteral("Pass"));
    QCOMPARE(check.label(0)->property("isSelfCheckValueText").toBool(), true);

    // The result column is four font sizes wide, without overflowing on absurd sizes
    // (the sanitizer build catches the overflow; Qt takes the widget limit as "none").
    check.setContentFontSize(20);
    QCOMPARE(check.label(1)->minimumWidth(), 80);
    check.setContentFontSize(std::numeric_limits<int>::max() / 2);
    QVERIFY(check.label(1)->minimumWidth() >= 0);
}

void TestTextItems::elideWithDotsRule()
{
    QFont font;
    font.setPixelSize(20);
    QFontMetrics const fm(font);
    QString const elided = fm.elidedText(kLong, Qt::ElideRight, 150);
    QString const shown = elideWithDots(fm, kLong, 150);
    // The ellipsis and the two characters before it become three dots.
    QCOMPARE(shown, elided.left(elided.size() - 3) + QStringLiteral("..."));
    QVERIFY(kLong.startsWith(shown.left(shown.size() - 3)));
    // A text that fits, or no width, is shown as it is.
    QCOMPARE(elideWithDots(fm, QStringLiteral("On"), 150), QStringLiteral("On"));
    QCOMPARE(elideWithDots(fm, kLong, 0), kLong);
    // Very narrow: never a negative cut.
    QVERIFY(elideWithDots(fm, kLong, 2).endsWith(QStringLiteral("...")));
}

void TestTextItems::itemValueCutsWithDots()
{
    TypeItemValue value(nullptr, 120);
    QCOMPARE(value.valueWidth(), 120);
    value.setLabelValue(kLong, 0);
    QString const shown = value.valueLabel()->text();
    QVERIFY(shown.endsWith(QStringLiteral("...")));
    QCOMPARE(shown, elideWithDots(value.valueLabel()->fontMetrics(), kLong, 120));
    QCOMPARE(value.getLabelValue().toString(), kLong);
    value.setLabelValue(kLong, 1);
    QCOMPARE(value.valueLabel()->text(), kLong);

    // Without a width of its own: two thirds of the item width.
    TypeItemValue wide;
    wide.setItemTitleWidth(600);
    QCOMPARE(wide.valueWidth(), 400);

    value.setRollLabelText(kLong, true);
    QVERIFY(value.valueLabel()->isRolling());
    value.setRollLabelText(kLong, false);
    QVERIFY(!value.valueLabel()->isRolling());
    QVERIFY(value.valueLabel()->text().endsWith(QStringLiteral("...")));
    // After a scroll, a plain value is not held in the old box.
    value.setRollLabelText(kLong, true);
    value.setLabelValue(QStringLiteral("On"), 1);
    QVERIFY(!value.valueLabel()->isRolling());
    QCOMPARE(value.valueLabel()->minimumWidth(), 0);
    QCOMPARE(value.valueLabel()->maximumWidth(), QWIDGETSIZE_MAX);

    // A missing picture is reported and the picture stays hidden.
    QTest::ignoreMessage(QtWarningMsg, "TypeItemValue: cannot load image \"no-such-picture.png\"");
    value.setLeftImageHidden(QStringLiteral("no-such-picture.png"), false);
    QVERIFY(value.findChildren<QLabel*>().size() >= 2);

    value.setItemValueProperty("isValueTextStyle", true);
    QCOMPARE(value.valueLabel()->property("isValueTextStyle").toBool(), true);
    value.setValueLabelHidden();
    QVERIFY(value.valueLabel()->isHidden());
}

void TestTextItems::textCenterHalfRow()
{
    TypeItemTextCenter centre;
    QCOMPARE(centre.valueLabel()->alignment(), Qt::Alignment(Qt::AlignCenter));
    centre.setItemTitleWidth(600);
    QCOMPARE(centre.valueLabel()->minimumWidth(), 300);
    centre.setValueLabelSize(QSize(120, 40));
    centre.setItemTitleWidth(800);
    QCOMPARE(centre.valueLabel()->minimumWidth(), 120);
    QCOMPARE(centre.valueLabel()->maximumHeight(), 40);
    centre.setLabelValue(QStringLiteral("59.94 fps"), 1);
    QCOMPARE(centre.getLabelValue().toString(), QStringLiteral("59.94 fps"));
    centre.setContentEnabled(false);
    QVERIFY(!centre.valueLabel()->isEnabled());
    QVERIFY(!centre.getContentEnabled());
}

QTEST_MAIN(TestTextItems)
#include "tst_textitems.moc"
