// RollLabel: elide or roll, the marquee's timer and seamless wrap; EllipsisLabel.
#include "leakcheck.h"

#include <ellipsislabel.h>
#include <rolllabel.h>

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

class TestLabels : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void speedRefused();
    void init();
    void withoutWidthNothingIsElidedOrRolled();
    void elidesOnlyWhatDoesNotFit();
    void rollsOnlyPlainTextThatDoesNotFit();
    void marqueeWrapsSeamlessly();
    void calTextLabelUsesTwoThirds();
    void pixmapStopsRolling();
    void paintsWhileRolling();
    void ellipsisLabel();

private:
    QFont m_font;
};

void TestLabels::init()
{
    startLeakCheck();
    m_font = QFont();
    m_font.setPixelSize(20);
}

void TestLabels::withoutWidthNothingIsElidedOrRolled()
{
    RollLabel label;
    label.setFont(m_font);
    QString const text = QStringLiteral("A title far too long for any small label on the panel");
    label.setItemName(text);
    label.setTextLabel(text, true);
    QCOMPARE(label.text(), text);
    QVERIFY(!label.isRolling());
    QVERIFY(!label.rollTimer()->isActive());
    label.setTextLabel(text, false);
    QCOMPARE(label.text(), text);
}

void TestLabels::elidesOnlyWhatDoesNotFit()
{
    RollLabel label;
    label.setFont(m_font);
    QString const text = QStringLiteral("Exactly fitting");
    int const w = QFontMetrics(m_font).horizontalAdvance(text);
    label.setWidth(w);
    QCOMPARE(label.width(), w);
    QCOMPARE(label.minimumWidth(), w);
    label.setItemName(text);
    label.setTextLabel(text, false);
    QCOMPARE(label.text(), text); // exactly as wide: unchanged
    label.setTextLabel(text, true);
    QCOMPARE(label.text(), text);
    QVERIFY(!label.isRolling()); // ... and no roll either

    QString const longer = text + QStringLiteral(" and then some");
    label.setItemName(longer);
    label.setTextLabel(longer, false);
    QCOMPARE(label.text(), QFontMetrics(m_font).elidedText(longer, Qt::ElideRight, w));
    QVERIFY(label.text().endsWith(QChar(0x2026)));
    QVERIFY(!label.isRolling());
    QVERIFY(!label.getLabelRoll());
}

void TestLabels::rollsOnlyPlainTextThatDoesNotFit()
{
    RollLabel label;
    label.setFont(m_font);
    label.setWidth(60);
    QString const text = QStringLiteral("A long rolling title");
    label.setItemName(text);
    label.setTextLabel(text, true);
    QCOMPARE(label.text(), text); // rolling shows the whole text
    QVERIFY(label.getLabelRoll());
    QVERIFY(label.isRolling());
    QCOMPARE(label.rollTimer()->interval(), 50);
    QCOMPARE(label.scrollOffset(), 0);
    QCOMPARE(label.gapWidth(), QFontMetrics(m_font).horizontalAdvance(QStringLiteral(" ")));
    QCOMPARE(label.textWidth(), QFontMetrics(m_font).horizontalAdvance(text));

    // Rich text never rolls.
    QString const rich = QStringLiteral("<b>A long rolling title</b>");
    label.setItemName(rich);
    label.setTextLabel(rich, true);
    QVERIFY(!label.isRolling());
    QVERIFY(!label.rollTimer()->isActive());

    // A text that fits stops a running marquee.
    label.setItemName(text);
    label.setTextLabel(text, true);
    QVERIFY(label.isRolling());
    label.setItemName(QStringLiteral("ok"));
    label.setTextLabel(QStringLiteral("ok"), true);
    QVERIFY(!label.isRolling());
    QVERIFY(!label.rollTimer()->isActive());

    // So does one without roll.
    label.setItemName(text);
    label.setTextLabel(text, true);
    label.setTextLabel(text, false);
    QVERIFY(!label.isRolling());

    // The speed applies from the next start.
    label.setspeed(3, 20);
    label.setTextLabel(text, true);
    QCOMPARE(label.rollTimer()->interval(), 20);
}

void TestLabels::marqueeWrapsSeamlessly()
{
    // The offset runs in steps of 2 while it stays within one copy of the text plus
    // the gap, then starts again at 0 (with a total of 103 px: 0, 2, ..., 102, 0).
    RollLabel label;
    label.setFont(m_font);
    label.setWidth(10);
    QString const text = QStringLiteral("Seamless marquee");
    label.setItemName(text);
    label.setTextLabel(text, true);
    QVERIFY(label.isRolling());
    int const total = label.textWidth() + label.gapWidth();
    QList<int> offsets;
    for (int i = 0; i < 200; ++i) {
        offsets << label.scrollOffset();
        label.updateText();
        if (label.scrollOffset() == 0)
            break;
    }
    // 0, 2, 4, ... up to the last even offset not beyond the total, then back to 0.
    QCOMPARE(offsets.first(), 0);
    for (int i = 1; i < offsets.size(); ++i)
        QCOMPARE(offsets.at(i), offsets.at(i - 1) + 2);
    QVERIFY(offsets.last() <= total);
    QVERIFY(offsets.last() + 2 > total);
    QCOMPARE(label.scrollOffset(), 0);
}

void TestLabels::calTextLabelUsesTwoThirds()
{
    RollLabel label;
    label.setFont(m_font);
    QString const text = QStringLiteral("A value text much wider than two thirds of the row");
    label.setCalTextLabel(text, 300, false);
    QCOMPARE(label.storedWidth(), 200); // (2 * 300) / 3
    QCOMPARE(label.itemName(), text);
    QCOMPARE(label.text(), QFontMetrics(m_font).elidedText(text, Qt::ElideRight, 200));

    label.setCalTextLabel(QStringLiteral("short"), 301, true);
    QCOMPARE(label.storedWidth(), QFontMetrics(m_font).horizontalAdvance(QStringLiteral("short")));
    QCOMPARE(label.text(), QStringLiteral("short"));
    QVERIFY(!label.isRolling());

    label.setCalTextLabel(text, 300, true);
    QCOMPARE(label.text(), text);
    QVERIFY(label.isRolling());
}

void TestLabels::pixmapStopsRolling()
{
    RollLabel label;
    label.setFont(m_font);
    label.setWidth(40);
    label.setItemName(QStringLiteral("rolling away"));
    label.setTextLabel(QStringLiteral("rolling away"), true);
    QVERIFY(label.isRolling());
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    label.setPixmapLabel(pixmap);
    QVERIFY(!label.isRolling());
    QVERIFY(label.pixmap());
}

void TestLabels::paintsWhileRolling()
{
    RollLabel label;
    label.setFont(m_font);
    label.setWidth(50);
    label.setFixedHeight(30);
    label.setStyleSheet(QStringLiteral("color: white; background: black;"));
    label.setItemName(QStringLiteral("MMMMMMMMMM"));
    label.setTextLabel(QStringLiteral("MMMMMMMMMM"), true);
    QImage const first = label.grab().toImage();
    for (int i = 0; i < 5; ++i)
        label.updateText();
    QImage const later = label.grab().toImage();
    QVERIFY(first != later); // the text has moved
    // Something was drawn at all.
    bool lit = false;
    for (int x = 0; x < later.width() && !lit; ++x)
        for (int y = 0; y < later.height() && !lit; ++y)
            lit = qGray(later.pixel(x, y)) > 128;
    QVERIFY(lit);
}

void TestLabels::ellipsisLabel()
{
    EllipsisLabel label;
    QCOMPARE(label.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(label.sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    label.setFont(m_font);
    label.setContentsMargins(3, 0, 5, 0);
    QString const text = QStringLiteral("An address that is rather long");
    int const full = QFontMetrics(m_font).horizontalAdvance(text) + 8;

    label.setText(text);
    label.updateElidedText(0); // no limit: whole text, never elided
    QCOMPARE(label.width(), full);
    QCOMPARE(label.text(), text);

    label.updateElidedText(full + 50); // fits
    QCOMPARE(label.width(), full);
    QCOMPARE(label.text(), text);

    label.updateElidedText(100); // cut: elided 10 px short of the limit
    QCOMPARE(label.width(), 100);
    QCOMPARE(label.text(), QFontMetrics(m_font).elidedText(text, Qt::ElideRight, 90));
}

// A roll interval below 1 ms would be a busy timer (and Qt refuses negative ones).
void TestLabels::speedRefused()
{
    RollLabel label;
    label.setspeed(2, 40);
    QTest::ignoreMessage(QtWarningMsg, "[RollLabel] setspeed: interval -5 refused");
    label.setspeed(3, -5);
    QTest::ignoreMessage(QtWarningMsg, "[RollLabel] setspeed: interval 0 refused");
    label.setspeed(3, 0);
    QTest::ignoreMessage(QtWarningMsg, "[RollLabel] setspeed: step -2147483648 refused");
    label.setspeed(std::numeric_limits<int>::min(), 40);
    QTest::ignoreMessage(QtWarningMsg, "[RollLabel] setWidth: length 16777216 refused");
    label.setWidth(QWIDGETSIZE_MAX + 1);
    QCOMPARE(label.storedWidth(), 0);
}

QTEST_MAIN(TestLabels)
#include "tst_labels.moc"
