// Progress bar: sizes from the host rectangle, the per-task percentage and the
// finish rule, result texts and colours, and the special value setters.
#include "leakcheck.h"

#include <lcdwidgets.h>

#include <QLabel>
#include <QProgressBar>
#include <QTranslator>
#include <QtTest>
#include <climits>
#include <cmath>
#include <limits>

using namespace LCD::Widget;

namespace {

const QRect kHome(0, 0, 800, 480);

QProgressBar* barOf(ProgressBarCtr& p) { return p.findChild<QProgressBar*>(QStringLiteral("progressBar")); }
QLabel* valueLabelOf(ProgressBarCtr& p) { return p.findChild<QLabel*>(QStringLiteral("progressValueLabel")); }
QLabel* infoLabelOf(ProgressBarCtr& p) { return p.findChild<QLabel*>(QStringLiteral("progressInfoLabel")); }

// The result colour, checked in every colour group.
QColor colourOf(ProgressBarCtr& p)
{
    QPalette const pal = valueLabelOf(p)->palette();
    QColor const c = pal.color(QPalette::Active, QPalette::ButtonText);
    if (pal.color(QPalette::Inactive, QPalette::ButtonText) != c || pal.color(QPalette::Disabled, QPalette::ButtonText) != c)
        return QColor(); // groups disagree: invalid
    return c;
}

} // namespace

class TestProgressBar : public LeakCheckedTest
{
    Q_OBJECT

private slots:
    void initialState()
    {
        ProgressBarCtr p(kHome);
        QCOMPARE(p.count(), 1);
        QCOMPARE(barOf(p)->minimum(), 0);
        QCOMPARE(barOf(p)->maximum(), 100);
        QCOMPARE(p.currentValue(), 0.0);
        QVERIFY(!barOf(p)->isTextVisible());
        QCOMPARE(p.valueText(), QStringLiteral("1%"));
        QCOMPARE(infoLabelOf(p)->text(), QString());
        for (QLabel* l : {valueLabelOf(p), infoLabelOf(p)}) {
            QCOMPARE(l->property("isProgressText").toBool(), true);
            QCOMPARE(l->minimumWidth(), 80);
        }
        QVERIFY(valueLabelOf(p)->alignment() & Qt::AlignRight);
        QVERIFY(infoLabelOf(p)->alignment() & Qt::AlignLeft);
        QCOMPARE(valueLabelOf(p)->foregroundRole(), QPalette::ButtonText); // the colour is what it draws with
    }

    void sizesFollowTheHostRect_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QSize>("bar");
        QTest::addColumn<QSize>("dialog");
        QTest::newRow("800x480") << kHome << QSize(500, 48) << QSize(550, 288);
        QTest::newRow("odd 801x479") << QRect(10, 20, 801, 479) << QSize(500, 47) << QSize(550, 287);
        QTest::newRow("1920x1080") << QRect(0, 0, 1920, 1080) << QSize(1200, 108) << QSize(1320, 648);
        QTest::newRow("empty") << QRect() << QSize(0, 0) << QSize(0, 0);
    }

    void sizesFollowTheHostRect()
    {
        QFETCH(QRect, rect);
        QFETCH(QSize, bar);
        QFETCH(QSize, dialog);
        ProgressBarCtr p(rect);
        QCOMPARE(barOf(p)->minimumSize(), bar);
        QCOMPARE(barOf(p)->maximumSize(), bar);
        QCOMPARE(p.findChild<QWidget*>(QStringLiteral("progressTextRow"))->maximumWidth(), bar.width());
        QCOMPARE(p.findChild<QWidget*>(QStringLiteral("progressBarRow"))->maximumWidth(), bar.width());
        QCOMPARE(p.getReminderDialogWidth(), dialog.width());
        QCOMPARE(p.getReminderDialogHeight(), dialog.height());
    }

    void hugeRectDoesNotOverflow()
    {
        ProgressBarCtr p(QRect(0, 0, INT_MAX / 2, INT_MAX / 2));
        QVERIFY(p.getReminderDialogWidth() > 0);
        QVERIFY(p.getReminderDialogHeight() > 0);
        QVERIFY(barOf(p)->maximumWidth() > 0);
    }

    void singleTaskPercentageAndFinish()
    {
        ProgressBarCtr p(kHome);
        p.setCurrentValue(99.9);
        QCOMPARE(p.valueText(), QStringLiteral("99%"));
        QCOMPARE(p.currentValue(), 99.0);
        QCOMPARE(colourOf(p), QColor(Qt::white));

        p.setCurrentValue(100);
        QCOMPARE(p.valueText(), QStringLiteral("Succeed"));
        QCOMPARE(colourOf(p), QColor(Qt::green));
        QCOMPARE(p.currentValue(), 100.0);

        // A new value after the result is white again.
        p.setCurrentValue(42.7);
        QCOMPARE(p.valueText(), QStringLiteral("42%"));
        QCOMPARE(colourOf(p), QColor(Qt::white));
    }

    void severalTasks()
    {
        ProgressBarCtr p(kHome);
        p.setCount(3);
        QCOMPARE(barOf(p)->maximum(), 300);
        p.setCurrentValue(150);
        QCOMPARE(p.valueText(), QStringLiteral("50%"));
        QCOMPARE(p.currentValue(), 150.0);
        p.setCurrentValue(299.9);
        QCOMPARE(p.valueText(), QStringLiteral("99%"));

        for (double v : {300.0, 301.5, 302.99}) {
            p.Clear();
            p.setCurrentValue(v);
            QCOMPARE(p.valueText(), QStringLiteral("Succeed"));
            QCOMPARE(p.currentValue(), 300.0);
            QCOMPARE(colourOf(p), QColor(Qt::green));
        }
        p.setCurrentValue(303);
        QCOMPARE(p.valueText(), QStringLiteral("101%"));
        QCOMPARE(colourOf(p), QColor(Qt::white));

        // Past either end the bar shows its end, not the value it had before.
        p.Clear();
        p.setCurrentValue(450);
        QCOMPARE(p.valueText(), QStringLiteral("150%"));
        QCOMPARE(p.currentValue(), 300.0);
        p.setCurrentValue(-20);
        QCOMPARE(p.valueText(), QStringLiteral("-6%"));
        QCOMPARE(p.currentValue(), 0.0);
    }

    void countZeroIsOneAndBadCounts()
    {
        ProgressBarCtr p(kHome);
        p.setCount(4);
        p.setCount(0);
        QCOMPARE(p.count(), 1);
        QCOMPARE(barOf(p)->maximum(), 100);
        p.setCurrentValue(100);
        QCOMPARE(p.valueText(), QStringLiteral("Succeed"));

        QTest::ignoreMessage(QtWarningMsg, "[ProgressBarCtr] negative task count refused: -2");
        p.setCount(-2);
        QCOMPARE(p.count(), 1);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("task count .* clamped"));
        p.setCount(INT_MAX);
        QCOMPARE(p.count(), INT_MAX / 100);
        QVERIFY(barOf(p)->maximum() > 0);
    }

    void resultsAndTexts()
    {
        ProgressBarCtr p(kHome);
        p.setCurrentValue(60);
        p.setError();
        QCOMPARE(p.valueText(), QStringLiteral("Failure"));
        QCOMPARE(colourOf(p), QColor(Qt::red));
        QCOMPARE(p.currentValue(), 0.0);

        p.Clear();
        QCOMPARE(p.valueText(), QStringLiteral("0%"));
        QCOMPARE(colourOf(p), QColor(Qt::white));

        p.setCurrentValue(30);
        p.setError(QStringLiteral("Disk full"));
        QCOMPARE(p.valueText(), QStringLiteral("Disk full"));
        QCOMPARE(colourOf(p), QColor(Qt::red));
        QCOMPARE(p.currentValue(), 0.0);

        p.setInfo(QStringLiteral("Waiting for device"));
        QCOMPARE(p.valueText(), QStringLiteral("Waiting for device"));
        QCOMPARE(colourOf(p), QColor(Qt::white));

        p.setCount(2);
        p.setFinish();
        QCOMPARE(p.currentValue(), 200.0);
        QCOMPARE(colourOf(p), QColor(Qt::green));

        p.setProgressText(QStringLiteral("Upgrading firmware"));
        QCOMPARE(infoLabelOf(p)->text(), QStringLiteral("Upgrading firmware"));
    }

    void fontSizeAndVisibility()
    {
        ProgressBarCtr p(kHome);
        p.setError();
        p.setFontSize(20);
        QCOMPARE(valueLabelOf(p)->styleSheet(), QStringLiteral("QLabel{font-size: 20px; }"));
        QCOMPARE(infoLabelOf(p)->styleSheet(), QStringLiteral("QLabel{font-size: 20px; }"));
        QCOMPARE(p.minimumHeight(), 50);
        QCOMPARE(p.maximumHeight(), 50);
        QCOMPARE(colourOf(p), QColor(Qt::red)); // the result colour survives the new sheet
        p.setFontSize(15);
        QCOMPARE(p.maximumHeight(), 37); // 37.5 truncated
        QTest::ignoreMessage(QtWarningMsg, "[ProgressBarCtr] font size refused: 0");
        p.setFontSize(0);
        QCOMPARE(p.maximumHeight(), 37);
        p.setFontSize(INT_MAX);
        QCOMPARE(p.maximumHeight(), QWIDGETSIZE_MAX);

        p.setProcessShow(false);
        QVERIFY(barOf(p)->isHidden());
        QVERIFY(valueLabelOf(p)->isHidden());
        QVERIFY(!infoLabelOf(p)->isHidden());
        p.setProcessShow(true);
        QVERIFY(!barOf(p)->isHidden() && !valueLabelOf(p)->isHidden());
        p.setValueLabelVisable(false);
        QVERIFY(valueLabelOf(p)->isHidden());
        QVERIFY(!barOf(p)->isHidden());
    }

    void variants()
    {
        ProgressBarCtr p(kHome);
        // Special value: a full task does not finish, the percentage stops at 100.
        p.setSpecialValue(100);
        QCOMPARE(p.valueText(), QStringLiteral("100%"));
        QCOMPARE(colourOf(p), QColor(Qt::white));
        p.setSpecialValue(180);
        QCOMPARE(p.valueText(), QStringLiteral("100%"));
        p.setFinish();
        QCOMPARE(p.valueText(), QStringLiteral("Succeed"));

        // Special process: the overall percentage over all tasks.
        p.setCount(4);
        p.setSpecialProcess(37.8);
        QCOMPARE(p.valueText(), QStringLiteral("37%"));
        QCOMPARE(p.currentValue(), 151.0); // 37.8 % of 400
        QCOMPARE(colourOf(p), QColor(Qt::white));
        p.setSpecialProcess(250);
        QCOMPARE(p.valueText(), QStringLiteral("Succeed"));
        QCOMPARE(p.currentValue(), 400.0);
        p.setSpecialProcess(-5);
        QCOMPARE(p.valueText(), QStringLiteral("0%"));

        // Process: negative is the device's failure report.
        p.setCount(1);
        p.setProcess(55.5);
        QCOMPARE(p.valueText(), QStringLiteral("55%"));
        p.setProcess(-1);
        QCOMPARE(p.valueText(), QStringLiteral("Failure"));
        QCOMPARE(colourOf(p), QColor(Qt::red));
        QCOMPARE(p.currentValue(), 0.0);
        p.setProcess(100);
        QCOMPARE(p.valueText(), QStringLiteral("Succeed"));
        QCOMPARE(colourOf(p), QColor(Qt::green));
    }

    void unusableValues()
    {
        ProgressBarCtr p(kHome);
        p.setCurrentValue(40);
        double const nan = std::numeric_limits<double>::quiet_NaN();
        QTest::ignoreMessage(QtWarningMsg, "[ProgressBarCtr] progress value is not a number");
        p.setCurrentValue(nan);
        QCOMPARE(p.valueText(), QStringLiteral("40%"));
        QTest::ignoreMessage(QtWarningMsg, "[ProgressBarCtr] progress value is not a number");
        p.setSpecialValue(nan);
        QTest::ignoreMessage(QtWarningMsg, "[ProgressBarCtr] progress value is not a number");
        p.setSpecialProcess(nan);
        QCOMPARE(p.valueText(), QStringLiteral("40%"));
        p.setProcess(nan);
        QCOMPARE(p.valueText(), QStringLiteral("Failure"));

        // Out-of-range values: no overflow; the bar keeps a legal value.
        p.setCurrentValue(1e300);
        QCOMPARE(p.valueText(), QStringLiteral("%1%").arg(INT_MAX));
        p.setCurrentValue(-1e300);
        p.setSpecialValue(std::numeric_limits<double>::infinity());
        QVERIFY(p.currentValue() >= 0 && p.currentValue() <= 100);
    }

    void resultTextsAreRetranslated()
    {
        ProgressBarCtr ok(kHome);
        ProgressBarCtr failed(kHome);
        ProgressBarCtr custom(kHome);
        ok.setFinish();
        failed.setError();
        custom.setError(QStringLiteral("Disk full"));

        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(LCDWIDGETS_TEST_DATA "/lcdwidgets_test_bars_zh.qm")));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(ok.valueText(), QStringLiteral("成功"));
        QCOMPARE(failed.valueText(), QStringLiteral("失败"));
        QCOMPARE(custom.valueText(), QStringLiteral("Disk full")); // the caller's own text

        ok.setCurrentValue(20);
        QVERIFY(QCoreApplication::removeTranslator(&translator));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(ok.valueText(), QStringLiteral("20%")); // a percentage stays a percentage
        QCOMPARE(failed.valueText(), QStringLiteral("Failure"));
    }
};

QTEST_MAIN(TestProgressBar)
#include "tst_progressbar.moc"
