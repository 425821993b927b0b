// The item row: its skeleton, the title and caption rules, second-title elision,
// font sizes, enabling, label wrapping, the under-line and the edit keys.
#include <commonitemtype.h>

#include "leakcheck.h"
#include "knob.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using LCD::Widget::CommonItemType;

namespace {

// The smallest real row: one fixed-width value widget in the dynamic frame.
class Row : public CommonItemType
{
public:
    explicit Row(int valueWidth = 100) : CommonItemType(nullptr)
    {
        value = new QLineEdit(dynamicFrame());
        value->setFixedWidth(valueWidth);
        dynamicLayout()->addWidget(value);
        value->installEventFilter(this);
    }
    void setContentDisabled(bool disabled) const override
    {
        value->setDisabled(disabled);
        disabledCalls << disabled;
    }
    QLineEdit* value;
    mutable QList<bool> disabledCalls;

    using CommonItemType::leftIconButton;
    using CommonItemType::leftIconTitle;
    using CommonItemType::rightIconButton;
    using CommonItemType::rowLayout;
    using CommonItemType::secondTitleLabel;
    using CommonItemType::underLine;
};

QFont pixelFont(int px)
{
    QFont f;
    f.setPixelSize(px);
    return f;
}

} // namespace

class TestCommonItemType : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void skeleton();
    void titleWidth();
    void sizeHintFollowsTitleWidth();
    void captionDropsTwoWords();
    void contentFontSize();
    void secondTitle();
    void widgetRow();
    void enabling();
    void leftIconArea();
    void rightIconBuiltOnFirstUse();
    void labelRowLatin();
    void labelRowChinese();
    void labelRowDegenerate();
    void hostileSizesRefused();
    void labelRowLongText();
    void chineseRange();
    void underLine();
    void editKeys();
    void signalsOfTheBase();
    void extremeSizesAreSafe();
};

void TestCommonItemType::skeleton()
{
    Row row;
    QCOMPARE(row.leftIconButton()->objectName(), QStringLiteral("itemLeftIconButton"));
    QCOMPARE(row.rightIconButton()->objectName(), QStringLiteral("itemRightIconButton"));
    QCOMPARE(row.leftIconButton()->focusPolicy(), Qt::NoFocus);
    QCOMPARE(row.rightIconButton()->focusPolicy(), Qt::NoFocus);
    QVERIFY(row.leftIconButton()->isHidden());
    QVERIFY(!row.rightIconButton()->isHidden());
    QVERIFY(row.leftIconTitle()->isHidden());
    QVERIFY(row.secondTitleLabel()->isHidden());
    QVERIFY(!row.getTitleLabel()->isHidden());
    for (QWidget* w : {static_cast<QWidget*>(row.getTitleLabel()), static_cast<QWidget*>(row.leftIconTitle()),
                       static_cast<QWidget*>(row.secondTitleLabel())})
        QCOMPARE(w->property("itemTitleLabel"), QVariant(true));
    QCOMPARE(row.leftIconTitle()->alignment(), Qt::AlignCenter);
    QVERIFY(row.findChild<QFrame*>(QStringLiteral("itemDynamicFrame")));

    QHBoxLayout* layout = row.rowLayout();
    QCOMPARE(layout->spacing(), 4);
    QCOMPARE(layout->contentsMargins(), QMargins(8, 0, 8, 0));
    QCOMPARE(layout->itemAt(2)->widget()->objectName(), QStringLiteral("itemDynamicFrame"));
    QCOMPARE(layout->itemAt(3)->widget(), row.rightIconButton());

    QVERIFY(row.underLine());
    QCOMPARE(row.underLine()->styleSheet(), QStringLiteral("background-color: rgba(255, 255, 255, 0.1);"));
    QCOMPARE(row.underLine()->height(), 3);

    QCOMPARE(row.getItemWidth(), -1);
    QCOMPARE(row.getDynamicMaxWidth(), -1);
    QCOMPARE(row.contentFontSize(), 20);
    QCOMPARE(row.itemHeight(), -1);
    QVERIFY(row.getContentEnabled());
    QVERIFY(!row.getAutoUpdateContent());
    QVERIFY(!row.isEditing());
    QVERIFY(!row.getLabelValue().isValid());
}

void TestCommonItemType::titleWidth()
{
    Row row(100);
    int callbacks = 0;
    row.setTextChangedCB([&callbacks] { ++callbacks; });

    row.setItemTitle(QStringLiteral("Brightness"));
    QCOMPARE(row.getTitleLabel()->width(), 40); // item width -1: never below 2F
    QCOMPARE(row.itemTitle(), QStringLiteral("Brightness"));
    QCOMPARE(callbacks, 1);

    row.setItemTitleWidth(500);
    QCOMPARE(callbacks, 2);
    row.setItemTitle(QStringLiteral("Brightness"));
    QCOMPARE(row.getTitleLabel()->width(), 500 - 100 - 40);
    QCOMPARE(row.leftIconTitle()->width(), 360);

    row.value->hide(); // hidden value widgets take no room
    row.setItemTitle(QStringLiteral("Brightness"));
    QCOMPARE(row.getTitleLabel()->width(), 460);

    row.setContentFontSize(30);
    row.value->show();
    row.setItemTitleWidth(150);
    row.setItemTitle(QStringLiteral("Brightness"));
    QCOMPARE(row.getTitleLabel()->width(), 60);

    int dyn = 0;
    row.calDynamicLayoutWidth(dyn);
    QCOMPARE(dyn, 100);

    // The roll setting is kept by setItemTitleText.
    row.setItemTitleWidth(300);
    row.setItemTitleRoll(QStringLiteral("A title far too long for this narrow row"), true);
    QVERIFY(row.getLabelRoll());
    row.setItemTitleText(QStringLiteral("Another title far too long for this narrow row"));
    QVERIFY(row.getLabelRoll());
    QVERIFY(row.getTitleLabel()->isRolling());
    row.setItemTitle(QStringLiteral("Another title far too long for this narrow row"));
    QVERIFY(!row.getLabelRoll());
    QVERIFY(!row.getTitleLabel()->isRolling());
}

void TestCommonItemType::sizeHintFollowsTitleWidth()
{
    // A host fits a row to its page from its size hint, right after giving it a width:
    // the hint must already count the new title width, not a cached one.
    Row row(100);
    row.setItemTitle(QStringLiteral("Brightness"));
    row.setItemTitleWidth(500);
    row.setItemTitleText(row.itemTitle());
    int const wide = row.sizeHint().width();
    row.setItemTitleWidth(400);
    row.setItemTitleText(row.itemTitle());
    QCOMPARE(row.sizeHint().width(), wide - 100);
}

void TestCommonItemType::captionDropsTwoWords()
{
    Row row;
    row.setItemTitleWidth(600);
    row.setItemTitle(QStringLiteral("画面设置"));
    QCOMPARE(row.getTitleLabel()->text(), QStringLiteral("画面设置"));
    QCOMPARE(row.leftIconTitle()->text(), QString());
    row.setItemTitle(QStringLiteral("网络设置"));
    QCOMPARE(row.leftIconTitle()->text(), QStringLiteral("网络"));
    row.setItemTitle(QStringLiteral("设置画面设置音频"));
    QCOMPARE(row.leftIconTitle()->text(), QStringLiteral("音频"));
    row.setItemTitle(QStringLiteral("Setup"));
    QCOMPARE(row.leftIconTitle()->text(), QStringLiteral("Setup"));
}

void TestCommonItemType::contentFontSize()
{
    Row row;
    row.setContentFontSize(25);
    QCOMPARE(row.contentFontSize(), 25);
    QCOMPARE(row.getTitleLabel()->styleSheet(), QStringLiteral("QLabel{font-size: 25px; }"));
    QCOMPARE(row.leftIconTitle()->styleSheet(), QStringLiteral("QLabel{font-size: 15px; }"));
    QCOMPARE(row.secondTitleLabel()->styleSheet(), QStringLiteral("QLabel{font-size: 15px; }"));
    row.setContentFontSize(21);
    QCOMPARE(row.leftIconTitle()->styleSheet(), QStringLiteral("QLabel{font-size: 12px; }"));
    QCOMPARE(row.secondTitleLabel()->styleSheet(), QStringLiteral("QLabel{font-size: 12px; }"));
}

void TestCommonItemType::secondTitle()
{
    Row row;
    row.secondTitleLabel()->setFont(pixelFont(12));
    int callbacks = 0;
    row.setTextChangedCB([&callbacks] { ++callbacks; });
    QString const text = QStringLiteral("Follows the program bus and the monitor outputs");

    row.setItemSecondTitle(text, 0); // 0 never elides
    QCOMPARE(row.secondTitleLabel()->text(), text);
    QCOMPARE(row.itemSecondTitle(), text);
    QVERIFY(row.secondTitleLabel()->isHidden()); // setting the text does not show it
    QCOMPARE(callbacks, 1);

    row.setItemSecondTitle(text, 2000); // fits
    QCOMPARE(row.secondTitleLabel()->text(), text);

    row.setItemSecondTitle(text, 120);
    QString const elided = row.secondTitleLabel()->fontMetrics().elidedText(text, Qt::ElideRight, 120);
    QCOMPARE(row.secondTitleLabel()->text(), elided.left(elided.size() - 3) + QStringLiteral("..."));
    QVERIFY(row.secondTitleLabel()->text().endsWith(QStringLiteral("...")));
    QCOMPARE(row.itemSecondTitle(), text);
    QCOMPARE(callbacks, 3);
}

void TestCommonItemType::widgetRow()
{
    Row row(100);
    row.setItemTitleWidth(500);
    row.setItemTitle(QStringLiteral("Gain"));
    QCOMPARE(row.getWidgetRow(), 1);
    QCOMPARE(row.getTitleLabel()->width(), 360);
    QCOMPARE(row.getDynamicMaxWidth(), 500 - 80);

    // A narrow row with a title still gives it 4F.
    row.setItemTitleWidth(150);
    QCOMPARE(row.getWidgetRow(), 1);
    QCOMPARE(row.getTitleLabel()->width(), 80);
    QCOMPARE(row.getDynamicMaxWidth(), 70);

    // Without a title the floor is 2F.
    row.setItemTitle(QString());
    row.getWidgetRow();
    QCOMPARE(row.getTitleLabel()->width(), 40);
}

void TestCommonItemType::enabling()
{
    Row row;
    row.setContentEnabled(false);
    QVERIFY(!row.getContentEnabled());
    QCOMPARE(row.getTitleLabel()->property("itemTitleLabel"), QVariant(false));
    QVERIFY(!row.leftIconButton()->isEnabled());
    QVERIFY(!row.rightIconButton()->isEnabled());
    QCOMPARE(row.disabledCalls, QList<bool>{true});
    QVERIFY(!row.value->isEnabled());

    row.setContentEnabled(true);
    QVERIFY(row.getContentEnabled());
    QCOMPARE(row.getTitleLabel()->property("itemTitleLabel"), QVariant(true));
    QVERIFY(row.rightIconButton()->isEnabled());
    QCOMPARE(row.disabledCalls, (QList<bool>{true, false}));

    // updateContentEnabled alone does not store the flag.
    row.updateContentEnabled(false);
    QVERIFY(row.getContentEnabled());
}

void TestCommonItemType::leftIconArea()
{
    Row row;
    row.setItemTitleWidth(200);
    row.setLeftIconButtonHide(false);
    row.setLeftIconSize(QSize(32, 32));
    QCOMPARE(row.leftIconButton()->size(), QSize(32, 32));
    QWidget* area = row.leftIconButton()->parentWidget();
    QCOMPARE(area->width(), 32); // caption hidden: the area is as wide as the icon

    row.setLeftIconTitleHide(false);
    QVERIFY(!row.leftIconTitle()->isHidden());
    QCOMPARE(area->width(), 184);
    QCOMPARE(row.leftIconTitle()->width(), 184);

    row.setLeftIconTitleHide(true);
    QVERIFY(row.leftIconTitle()->isHidden());
    QCOMPARE(area->width(), 32);

    row.setLeftIconButtonHide(true);
    row.setLeftIconTitleHide(false);
    QVERIFY(area->isHidden());

    row.setRightIconSize(QSize(24, 20));
    QCOMPARE(row.rightIconButton()->size(), QSize(24, 20));
}

void TestCommonItemType::rightIconBuiltOnFirstUse()
{
    auto rightOf = [](QWidget const& w) { return w.findChild<QPushButton*>(QStringLiteral("itemRightIconButton")); };

    // A row that never hides it has it once polished, shown, in its place.
    Row shown;
    shown.ensurePolished();
    QPushButton* right = rightOf(shown);
    QVERIFY(right);
    QVERIFY(!right->isHidden());
    QCOMPARE(shown.rowLayout()->itemAt(3)->widget(), right);
    QCOMPARE(shown.rowLayout()->count(), 4);

    // A row that hides it before it is polished never builds it...
    QWidget page;
    auto* hidden = new Row;
    hidden->setParent(&page);
    hidden->setRightIconButtonHide(true);
    hidden->setContentEnabled(false);
    page.show();
    QVERIFY(!rightOf(*hidden));
    QCOMPARE(hidden->rowLayout()->count(), 4);
    // ...until asked for: then it is what it would have been (disabled with the row,
    // in position 3, and shown on a row already on screen).
    hidden->setRightIconButtonHide(false);
    right = rightOf(*hidden);
    QVERIFY(right);
    QCOMPARE(hidden->rowLayout()->itemAt(3)->widget(), right);
    QCOMPARE(right->focusPolicy(), Qt::NoFocus);
    QVERIFY(!right->isEnabled());
    QVERIFY(right->isVisible());
    hidden->setRightIconButtonHide(true);
    QVERIFY(right->isHidden());

    // A property or a size set on the hidden icon builds it, still hidden.
    Row styled;
    styled.setRightIconButtonHide(true);
    styled.setRightIconButtonProperty("isIconListEdit", true);
    QVERIFY(rightOf(styled));
    QVERIFY(rightOf(styled)->isHidden());
    QCOMPARE(rightOf(styled)->property("isIconListEdit"), QVariant(true));
}

void TestCommonItemType::labelRowLatin()
{
    Row row(100);
    row.setItemTitleWidth(400);
    QFont const font = pixelFont(20);
    QFontMetrics const fm(font);

    // The title wraps into item width - D - 2F = 260 px.
    row.getTitleLabel()->setText(QStringLiteral("one two three four five six seven eight nine ten eleven twelve"));
    int const lines = row.getLabelRow(row.getTitleLabel());
    QString const wrapped = row.getTitleLabel()->text();
    QCOMPARE(row.getTitleLabel()->width(), 260);
    QCOMPARE(lines, wrapped.split(QLatin1Char('\n')).size());
    QVERIFY(lines >= 2);
    QStringList const parts = wrapped.split(QLatin1Char('\n'));
    for (int i = 0; i < parts.size() - 1; ++i) {
        QVERIFY2(parts.at(i).endsWith(QLatin1Char(' ')), qPrintable(parts.at(i))); // broken after a space
        QVERIFY(fm.horizontalAdvance(parts.at(i)) <= 260 + fm.horizontalAdvance(QLatin1Char(' ')));
    }
    QCOMPARE(parts.join(QString()), QStringLiteral("one two three four five six seven eight nine ten eleven twelve"));

    // A word longer than the line is cut where it overflows.
    QLabel other(&row);
    other.setText(QString(60, QLatin1Char('x')));
    int const n = row.getLabelRow(&other);
    QStringList const cut = other.text().split(QLatin1Char('\n'));
    QCOMPARE(n, cut.size());
    QVERIFY(n >= 2);
    QVERIFY(fm.horizontalAdvance(cut.first()) <= other.width());
    QCOMPARE(cut.join(QString()), QString(60, QLatin1Char('x')));

    // Line feeds in the text are dropped before wrapping.
    other.setText(QStringLiteral("a\nb"));
    QCOMPARE(row.getLabelRow(&other), 1);
    QCOMPARE(other.text(), QStringLiteral("ab"));
}

void TestCommonItemType::labelRowChinese()
{
    Row row(100);
    row.setItemTitleWidth(400);
    QString const text = QStringLiteral("这是一个很长的中文说明文字，它会在任意两个字符之间换行，而不是在空格处换行");
    row.getTitleLabel()->setText(text);
    int const lines = row.getLabelRow(row.getTitleLabel());
    QString const wrapped = row.getTitleLabel()->text();
    QCOMPARE(lines, row.calculateTextLineCount(text, 260, pixelFont(20)));
    QVERIFY(lines >= 2);
    QCOMPARE(wrapped.split(QLatin1Char('\n')).size(), lines);
    QCOMPARE(QString(wrapped).remove(QLatin1Char('\n')), text);
    QFontMetrics const fm(pixelFont(20));
    QStringList const parts = wrapped.split(QLatin1Char('\n'));
    for (int i = 0; i < parts.size() - 1; ++i)
        QVERIFY(fm.horizontalAdvance(parts.at(i)) <= 260);
}

void TestCommonItemType::labelRowDegenerate()
{
    Row row(100);
    QCOMPARE(row.getLabelRow(nullptr), 1);
    // Default item width: no room at all.
    row.getTitleLabel()->setText(QStringLiteral("some words that would wrap"));
    QCOMPARE(row.getLabelRow(row.getTitleLabel()), 1);
    QCOMPARE(row.getTitleLabel()->text(), QStringLiteral("some words that would wrap"));
    // A font size below 1 is refused: the row keeps its size.
    row.setItemTitleWidth(400);
    QTest::ignoreMessage(QtWarningMsg, "[CommonItemType] setContentFontSize: font size 0 refused");
    row.setContentFontSize(0);
    QCOMPARE(row.contentFontSize(), 20);
    // With the title hidden, another label gets the whole item width.
    row.setContentFontSize(20);
    row.setItemTitleLabelHide(true);
    QLabel other(&row);
    other.setText(QStringLiteral("short"));
    QCOMPARE(row.getLabelRow(&other), 1);
    QCOMPARE(other.width(), 400);
}

void TestCommonItemType::chineseRange()
{
    Row row;
    QVERIFY(row.isStrContainsChinese(QString(QChar(0x4E00))));
    QVERIFY(row.isStrContainsChinese(QStringLiteral("abc") + QChar(0x9FA5)));
    QVERIFY(!row.isStrContainsChinese(QString(QChar(0x9FA6))));
    QVERIFY(!row.isStrContainsChinese(QString(QChar(0x4DFF))));
    QVERIFY(!row.isStrContainsChinese(QStringLiteral("Latin only")));
    QVERIFY(!row.isStrContainsChinese(QString()));
}

void TestCommonItemType::underLine()
{
    Row row;
    QLabel* line = row.underLine();
    row.addUnderLine();
    QCOMPARE(row.underLine(), line);
    int lines = 0;
    for (QLabel* l : row.findChildren<QLabel*>())
        lines += l->styleSheet().startsWith(QStringLiteral("background-color: rgba(255, 255, 255, 0.1)")) ? 1 : 0;
    QCOMPARE(lines, 1);
    row.removeUnderLine();
    QCOMPARE(row.underLine(), nullptr);
    row.removeUnderLine(); // nothing to remove: nothing happens
    row.addUnderLine();
    QVERIFY(row.underLine());
}

void TestCommonItemType::editKeys()
{
    Row row;
    row.show();
    row.value->setFocus();
    QSignalSpy finished(&row, &CommonItemType::signalEditFinished);

    Knob::back(row.value);
    QCOMPARE(finished.count(), 1);
    Knob::press(row.value);
    QCOMPARE(finished.count(), 2);
    Knob::press(row.value, true);
    QCOMPARE(finished.count(), 3);

    // Other keys reach the editor.
    Knob::key(row.value, Qt::Key_A, QStringLiteral("a"));
    QCOMPARE(finished.count(), 3);
    QCOMPARE(row.value->text(), QStringLiteral("a"));

    // The filter consumes the finishing keys: the editor never sees them.
    QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(row.eventFilter(row.value, &esc));
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(!row.eventFilter(row.value, &release));
    QCOMPARE(finished.count(), 4);
}

void TestCommonItemType::signalsOfTheBase()
{
    Row row;
    QSignalSpy width(&row, &CommonItemType::signalItemWidthChanged);
    QSignalSpy closed(&row, &CommonItemType::signalEditClosed);
    row.setItemTitleWidth(321);
    QCOMPARE(width.count(), 1);
    QCOMPARE(width.first().first().toInt(), 321);
    QCOMPARE(row.getItemWidth(), 321);
    row.closeEditValue();
    QCOMPARE(closed.count(), 1);
    row.setEdit(true);
    QVERIFY(row.isEditing());
    row.setItemHeight(48);
    QCOMPARE(row.itemHeight(), 48);
    row.setAutoUpdateContent(true);
    QVERIFY(row.getAutoUpdateContent());

    row.setRollLabelStretchMax();
    QCOMPARE(row.rowLayout()->stretch(2), 1);
    QCOMPARE(row.rowLayout()->stretch(1), 0);
}

void TestCommonItemType::extremeSizesAreSafe()
{
    // Nonsense from a host must neither overflow (the sanitizer build aborts on it)
    // nor hand Qt an impossible width.
    Row row;
    for (int width : {std::numeric_limits<int>::min(), -1, 0, std::numeric_limits<int>::max()}) {
        for (int font : {-5, 0, 20, std::numeric_limits<int>::max()}) {
            row.setItemTitleWidth(width);
            row.setContentFontSize(font);
            row.setItemTitle(QStringLiteral("Title"));
            QVERIFY(row.getTitleLabel()->width() >= 0);
            QVERIFY(row.getTitleLabel()->width() <= QWIDGETSIZE_MAX);
            QCOMPARE(row.getWidgetRow(), 1);
            QVERIFY(row.getLabelRow(row.getTitleLabel()) >= 1);
            row.setLeftIconButtonHide(false);
            row.setLeftIconTitleHide(false);
            row.setLeftIconButtonHide(true);
        }
    }
    row.setItemTitleWidth(500);
    row.setContentFontSize(20);
    row.setItemTitle(QStringLiteral("Title"));
    QCOMPARE(row.getTitleLabel()->width(), 360);
}

// Sizes Qt cannot take are refused with the row's message and change nothing (Qt
// would warn, or overflow its text layout, if they reached it).
void TestCommonItemType::hostileSizesRefused()
{
    Row row;
    row.setRightIconSize(QSize(20, 20));
    QTest::ignoreMessage(QtWarningMsg, "[CommonItemType] setRightIconSize: size -1x5 refused");
    row.setRightIconSize(QSize(-1, 5));
    QTest::ignoreMessage(QtWarningMsg, "[CommonItemType] setLeftIconSize: size 5x16777216 refused");
    row.setLeftIconSize(QSize(5, QWIDGETSIZE_MAX + 1));
    QTest::ignoreMessage(QtWarningMsg, "[CommonItemType] setContentFontSize: font size 513 refused");
    row.setContentFontSize(513);
    QCOMPARE(row.contentFontSize(), 20);
    QTest::ignoreMessage(QtWarningMsg, "[CommonItemType] setMaximumWidthRoll: length -2147483648 refused");
    row.setMaximumWidthRoll(std::numeric_limits<int>::min());
    QCOMPARE(row.getTitleLabel()->maximumWidth(), QWIDGETSIZE_MAX);
    row.setContentFontSize(1);  // the caption's small font stays at least a pixel
    row.setLeftIconTitleHide(false);
    QCOMPARE(row.contentFontSize(), 1);
}

// A very long title wraps in a time that grows with its length, not its square, and
// every line but the last fits.
void TestCommonItemType::labelRowLongText()
{
    Row row(100);
    row.setItemTitleWidth(400);
    QString const text = QString(20000, QLatin1Char('W'));
    row.getTitleLabel()->setText(text);
    QElapsedTimer clock;
    clock.start();
    int const lines = row.getLabelRow(row.getTitleLabel());
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
    QString const wrapped = row.getTitleLabel()->text();
    QStringList const parts = wrapped.split(QLatin1Char('\n'));
    QCOMPARE(parts.size(), lines);
    QCOMPARE(QString(wrapped).remove(QLatin1Char('\n')), text);
    QVERIFY(lines > 10);
}

QTEST_MAIN(TestCommonItemType)
#include "tst_commonitemtype.moc"
