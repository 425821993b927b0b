// The display rows that react to the knob or carry state: the tick list, the text field
// (worked with real key events), the "more" row's loading animation and area marks, the
// arrow row, the key/value and wrapped rows, the progress row and the bordered row.
#include "leakcheck.h"
#include "knob.h"

#include <lcdwidgets.h>
#include <displaytext_p.h> // internal helpers, compiled into this test

#include <QLineEdit>
#include <QMovie>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using namespace LCD::Widget;

class TestDisplayItems : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void hostileSizesRefused();
    void tickChoosesRow();
    void editWithKnob();
    void editEndsOnFocusLossAndClose();
    void editButtonAndPassword();
    void moreLoadingState();
    void moreAreaMarks();
    void loadingAnimationFile();
    void arrowLabels();
    void keyValueWraps();
    void lineWrapLabels();
    void buttomProgress();
    void valueBorderLineAndClick();
    void valueAndNullUserData();
    void disabledRowsKeepTheirLook();
    void extremeSizes();
};

void TestDisplayItems::tickChoosesRow()
{
    TypeItemTick tick;
    QCOMPARE(tick.getLabelValue().toBool(), false);
    QCOMPARE(tick.tickLabel()->property("isIconListTick").toBool(), false);
    QSignalSpy changed(&tick, &CommonItemType::signalValueChanged);
    tick.editValue();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<QVariant>().toBool(), true);
    QCOMPARE(tick.getLabelValue().toBool(), true);
    QCOMPARE(tick.tickLabel()->property("isIconListTick").toBool(), true);
    tick.setTickLabelHidden(true);
    QCOMPARE(tick.getLabelValue().toBool(), false);
    tick.setRightIconSize(QSize(30, 30));
    QCOMPARE(tick.tickLabel()->size(), QSize(30, 30));
}

void TestDisplayItems::editWithKnob()
{
    QWidget page;
    auto* layout = new QVBoxLayout(&page);
    auto* row = new TypeItemEdit(&page);
    layout->addWidget(row);
    page.setFocusPolicy(Qt::StrongFocus);
    page.show();
    QApplication::setActiveWindow(&page);
    QVERIFY(QTest::qWaitForWindowActive(&page));
    page.setFocus();
    row->setLabelValue(QStringLiteral("Studio"), 0);

    QSignalSpy started(row, &CommonItemType::signalEditStarted);
    QSignalSpy changed(row, &CommonItemType::signalValueChanged);
    QSignalSpy finished(row, &CommonItemType::signalEditFinished);
    // The end of an edit: the focus is back on the page, then "closed", then "finished".
    QStringList ends;
    QObject::connect(row, &CommonItemType::signalCloseEditStatus, row, [&ends, &page] {
        ends << QStringLiteral("close") + (QApplication::focusWidget() == &page ? "@page" : "");
    });
    QObject::connect(row, &CommonItemType::signalEditFinished, row, [&ends] { ends << QStringLiteral("finish"); });

    row->editValue();
    QCOMPARE(started.count(), 1);
    QVERIFY(row->isEditing());
    QCOMPARE(QApplication::focusWidget(), row->lineEdit());
    QCOMPARE(row->lineEdit()->cursorPosition(), 6);
    // A second press while editing does not start again.
    row->editValue();
    QCOMPARE(started.count(), 1);

    // Knob turns move the cursor and are consumed; the text stays.
    Knob::turn(row, -2);
    QCOMPARE(row->lineEdit()->cursorPosition(), 4);
    Knob::turn(row, 1, 0.05);
    QCOMPARE(row->lineEdit()->cursorPosition(), 5);
    QCOMPARE(changed.count(), 0);

    // Typed text is reported live.
    Knob::key(row, Qt::Key_X, QStringLiteral("x"));
    QCOMPARE(row->getLabelValue().toString(), QStringLiteral("Studixo"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<QVariant>().toString(), QStringLiteral("Studixo"));

    // The press ends the edit and hands the knob back to the page.
    QVERIFY(Knob::press(row));
    QCOMPARE(finished.count(), 1);
    QCOMPARE(ends, (QStringList{"close@page", "finish"}));
    QVERIFY(!row->isEditing());
    QCOMPARE(QApplication::focusWidget(), &page);

    // Escape (and the keypad's Enter) end it too.
    row->editValue();
    Knob::back(row);
    QCOMPARE(finished.count(), 2);
    row->editValue();
    Knob::press(row, true);
    QCOMPARE(finished.count(), 3);
    QCOMPARE(started.count(), 3);
    QCOMPARE(ends.count(QStringLiteral("close@page")), 3);
    QCOMPARE(ends.size(), 6);
    QCOMPARE(row->getLabelValue().toString(), QStringLiteral("Studixo"));
}

void TestDisplayItems::editEndsOnFocusLossAndClose()
{
    QWidget page;
    auto* layout = new QVBoxLayout(&page);
    auto* row = new TypeItemEdit(&page);
    auto* other = new QLineEdit(&page);
    layout->addWidget(row);
    layout->addWidget(other);
    page.show();
    QApplication::setActiveWindow(&page);
    QVERIFY(QTest::qWaitForWindowActive(&page));

    QSignalSpy finished(row, &CommonItemType::signalEditFinished);
    QSignalSpy closed(row, &CommonItemType::signalEditClosed);
    row->editValue();
    other->setFocus(Qt::MouseFocusReason);
    QTRY_COMPARE(finished.count(), 1);
    QVERIFY(!row->isEditing());

    // A focus that comes straight back keeps the edit.
    row->editValue();
    other->setFocus(Qt::MouseFocusReason);
    row->lineEdit()->setFocus(Qt::OtherFocusReason);
    QTest::qWait(20);
    QVERIFY(row->isEditing());
    row->closeEditValue();
    QCOMPARE(finished.count(), 2);
    finished.clear();
    closed.clear();

    row->editValue();
    row->closeEditValue();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(closed.count(), 1);
    // Closing a row that does not edit only reports the close.
    row->closeEditValue();
    QTest::qWait(10);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(closed.count(), 2);
}

void TestDisplayItems::editButtonAndPassword()
{
    TypeItemEdit row;
    QCOMPARE(row.editButton()->property("isIconPwdBtn").toBool(), true);
    QCOMPARE(row.editButton()->focusPolicy(), Qt::NoFocus);
    QSignalSpy clicked(&row, &TypeItemEdit::signalEditBtnClicked);
    row.editButton()->click();
    QCOMPARE(clicked.count(), 1);
    row.setPasswordMode(true);
    QCOMPARE(row.lineEdit()->echoMode(), QLineEdit::Password);
    row.setItemTitleWidth(400);
    QCOMPARE(row.lineEdit()->width(), 180);
    row.setValueLabelSize(QSize(150, 30));
    row.setItemTitleWidth(800);
    QCOMPARE(row.lineEdit()->size(), QSize(150, 30));
    row.setIconButtonSize(QSize(28, 28));
    QCOMPARE(row.editButton()->size(), QSize(28, 28));
}

void TestDisplayItems::moreLoadingState()
{
    QWidget page;
    auto* row = new TypeItemMore(&page);
    QCOMPARE(row->loadingState(), TypeItemMore::NotLoading);
    QVERIFY(row->loadingMovie() == nullptr); // nothing decoded until it is needed
    QVERIFY(row->loadingLabel()->isHidden());
    QCOMPARE(row->loadingLabel()->property("isPicLoading").toBool(), true);
    QCOMPARE(row->loadingLabel()->property("loadingstate").toString(), QStringLiteral("none"));
    QCOMPARE(TypeItemMore::loadingImage(), QStringLiteral("./../share/themes/default/images/icon_picture_loading.gif"));
    page.show();

    row->setLoadingState(TypeItemMore::Loading);
    QCOMPARE(row->loadingState(), TypeItemMore::Loading);
    QCOMPARE(row->loadingLabel()->property("loadingstate").toString(), QStringLiteral("loading"));
    QVERIFY(!row->loadingLabel()->isHidden());
    QMovie* movie = row->loadingMovie();
    QVERIFY(movie);
    QVERIFY(movie->isValid());
    QCOMPARE(movie->state(), QMovie::Running);
    QCOMPARE(row->loadingLabel()->movie(), movie);

    // Hidden rows do not animate.
    page.hide();
    QCOMPARE(movie->state(), QMovie::Paused);
    page.show();
    QCOMPARE(movie->state(), QMovie::Running);

    row->setLoadingState(TypeItemMore::LoadFailed);
    QCOMPARE(row->loadingLabel()->property("loadingstate").toString(), QStringLiteral("failed"));
    QCOMPARE(movie->state(), QMovie::NotRunning);
    QVERIFY(!row->loadingLabel()->isHidden());
    QVERIFY(!row->loadingLabel()->pixmap(Qt::ReturnByValue).isNull());

    row->setLoadingState(TypeItemMore::LoadSucceeded);
    QCOMPARE(row->loadingLabel()->property("loadingstate").toString(), QStringLiteral("succeeded"));
    QVERIFY(row->loadingLabel()->isHidden());

    // The same movie is reused.
    row->setLoadingState(TypeItemMore::Loading);
    QCOMPARE(row->loadingMovie(), movie);

    QTest::ignoreMessage(QtWarningMsg, "TypeItemMore::setLoadingState: unknown state 9");
    row->setLoadingState(static_cast<TypeItemMore::LoadingState>(9));
    QCOMPARE(row->loadingState(), TypeItemMore::Loading);
}

void TestDisplayItems::moreAreaMarks()
{
    TypeItemMore row;
    QVERIFY(!row.hasArea());
    QVERIFY(row.programmeMark()->isHidden());
    QVERIFY(row.previewMark()->isHidden());
    row.setArea(true, false);
    QVERIFY(row.hasArea());
    QCOMPARE(row.programmeMark()->property("isPgmShow").toBool(), true);
    QCOMPARE(row.previewMark()->property("isPvwShow").toBool(), false);
    QVERIFY(!row.programmeMark()->isHidden());
    QVERIFY(row.previewMark()->isHidden());
    row.setArea(false, true);
    QVERIFY(row.hasArea());
    QVERIFY(row.programmeMark()->isHidden());
    QVERIFY(!row.previewMark()->isHidden());
    row.setArea(false, false);
    QVERIFY(!row.hasArea());
    auto* more = row.findChild<QPushButton*>();
    QVERIFY(more);
    bool found = false;
    for (QPushButton* b : row.findChildren<QPushButton*>())
        found = found || b->property("isIconListMore").toBool();
    QVERIFY(found);
}

void TestDisplayItems::loadingAnimationFile()
{
    // The theme's animation is a looping GIF with several frames.
    QMovie movie(TypeItemMore::loadingImage());
    movie.setCacheMode(QMovie::CacheAll);
    QVERIFY(movie.isValid());
    QVERIFY(movie.frameCount() > 1);
    QCOMPARE(movie.loopCount(), -1);
    QVERIFY(movie.jumpToFrame(0));
    QImage const first = movie.currentImage();
    QVERIFY(movie.jumpToFrame(movie.frameCount() / 2));
    QImage const middle = movie.currentImage();
    QVERIFY(!first.isNull());
    QCOMPARE(first.size(), middle.size());
    QVERIFY(first != middle);
    QVERIFY(movie.nextFrameDelay() > 0);
    // Corners are transparent, as on any background.
    QCOMPARE(qAlpha(first.pixel(0, 0)), 0);
}

void TestDisplayItems::arrowLabels()
{
    TypeItemArrow row;
    QVERIFY(row.arrowButton()->property("isIconListArrow").toBool());
    QVERIFY(row.tagLabel()->isHidden());
    row.setTagLabelText(QStringLiteral("NEW"));
    QVERIFY(!row.tagLabel()->isHidden());
    row.setTagLabelText(QString());
    QVERIFY(row.tagLabel()->isHidden());

    row.setLabelText(0, QStringLiteral("Wipe"));
    row.setLabelText(1, 1.5);
    QCOMPARE(row.valueLabel(0)->text(), QStringLiteral("Wipe"));
    QCOMPARE(row.labelText(1), QStringLiteral("1.5"));
    QCOMPARE(row.valueLabel(1)->property("isValueText").toBool(), true);
    row.setValueLabelHidden(1, true);
    QVERIFY(row.valueLabel(1)->isHidden());
    row.setLabelProperty(0, "isValueTextStyle", true);
    QCOMPARE(row.valueLabel(0)->property("isValueTextStyle").toBool(), true);

    // Long values are cut with dots at a third of the row.
    row.setItemTitleWidth(300);
    row.setLabelText(0, QStringLiteral("A transition name far longer than a third of the row"));
    QVERIFY(row.valueLabel(0)->text().endsWith(QStringLiteral("...")));
    QVERIFY(row.valueLabel(0)->fontMetrics().horizontalAdvance(row.valueLabel(0)->text()) <= 100);

    QTest::ignoreMessage(QtWarningMsg, "TypeItemArrow::setLabelText invalid label index 2");
    row.setLabelText(2, QStringLiteral("x"));
    QTest::ignoreMessage(QtWarningMsg, "TypeItemArrow::setValueLabelHidden invalid label index -1");
    row.setValueLabelHidden(-1, true);
    QTest::ignoreMessage(QtWarningMsg, "TypeItemArrow::valueLabel invalid label index 5");
    QVERIFY(row.valueLabel(5) == nullptr);
}

void TestDisplayItems::keyValueWraps()
{
    TypeKeyValueText row;
    QCOMPARE(row.getTitleLabel()->objectName(), QStringLiteral("AboutTextEdit"));
    QCOMPARE(row.valueLabel()->objectName(), QStringLiteral("AboutTextValueEdit"));
    row.setContentFontSize(20);

    // Without an item width nothing is wrapped.
    row.setKeyValueText(QStringLiteral("Licences"), QStringLiteral("Streaming encoder, multiview, keyer"));
    QCOMPARE(row.getWidgetRow(), 1);
    QCOMPARE(row.itemTitle(), QStringLiteral("Licences"));

    row.setItemWidth(400);
    row.setKeyValueText(QStringLiteral("Licences"),
                        QStringLiteral("Streaming encoder, multiview with sixteen windows, chroma keyer pro, "
                                       "macro recorder, remote control over the network"));
    int const rows = row.getWidgetRow();
    QVERIFY(rows >= 3);
    QCOMPARE(row.getItemValueRow(), rows);
    QCOMPARE(row.valueLabel()->text().count(QLatin1Char('\n')), rows - 1);
    QCOMPARE(row.getLabelValue().toString().count(QLatin1Char('\n')), 0); // the value is kept whole
    // Key and value share the row: key + value + the gaps fit the item width.
    QVERIFY(row.getTitleLabel()->width() + row.valueLabel()->width() + 2 * 20 <= 400);

    // A short value stays on one line, right-aligned.
    row.setKeyValueText(QStringLiteral("Serial number"), QStringLiteral("2301-7788-0042"));
    QCOMPARE(row.getWidgetRow(), 1);
    QVERIFY(row.valueLabel()->alignment() & Qt::AlignRight);

    // A long key wraps in its column.
    row.setItemTitles(QStringLiteral("Date of the last successful firmware update"));
    QVERIFY(row.getWidgetRow() >= 2);
    QVERIFY(row.getTitleLabel()->text().contains(QLatin1Char('\n')));
}

void TestDisplayItems::lineWrapLabels()
{
    TypeItemLineWrap row(nullptr, 3);
    QCOMPARE(row.labelCount(), 3);
    row.setContentFontSize(20);
    row.setItemHeight(56);
    row.setItemTitleWidth(500);
    QCOMPARE(row.getItemHeight(), 56); // nothing shown yet
    for (int i = 0; i < 3; ++i)
        QVERIFY(row.label(i)->property("isValueText").toBool());

    row.setLabelText(0, QStringLiteral("SDI 1-2: program"));
    row.setLabelText(1, QStringLiteral("HDMI 1: multiview with audio meters, tally borders and clocks"));
    QVERIFY(!row.label(1)->isHidden());
    QVERIFY(row.label(2)->isHidden());
    QCOMPARE(row.getTextMaxWidth(QStringLiteral("a very long text that is much wider than three fifths of the row")),
             301);
    int const twoLabels = row.getItemHeight();
    QVERIFY(twoLabels > 56);
    row.setLabelVisible(1, false);
    QVERIFY(row.getItemHeight() < twoLabels);
    row.setLabelVisible(1, true);
    QCOMPARE(row.getItemHeight(), twoLabels);
    row.setLabelProperty(0, "isValueTextStyle", true);
    QCOMPARE(row.label(0)->property("isValueTextStyle").toBool(), true);

    QTest::ignoreMessage(QtWarningMsg, "TypeItemLineWrap::setLabelText invalid label index 3");
    row.setLabelText(3, QStringLiteral("x"));
    QTest::ignoreMessage(QtWarningMsg, "TypeItemLineWrap: invalid label count 0");
    TypeItemLineWrap none(nullptr, 0);
    QCOMPARE(none.labelCount(), 1);
}

void TestDisplayItems::buttomProgress()
{
    TypeItemButtom row;
    QProgressBar* bar = row.progressBar();
    QCOMPARE(bar->property("loopType").toBool(), false);
    QCOMPARE(row.iconLabel()->styleSheet(), QStringLiteral("background: transparent;"));
    row.setProgressBarRange(0, 200);
    row.setProgressBarValue(50);
    QCOMPARE(bar->value(), 50);
    QCOMPARE(bar->maximum(), 200);
    row.setProgressBarRange(0, 0);
    QCOMPARE(bar->property("loopType").toBool(), true);
    row.setProgressBarRange(0, 10);
    QCOMPARE(bar->property("loopType").toBool(), false);

    QTest::ignoreMessage(QtWarningMsg, "TypeItemButtom::setProgressBarRange: invalid range 10 5");
    row.setProgressBarRange(10, 5);
    QCOMPARE(bar->maximum(), 10);

    // The bar follows the item width.
    row.setItemTitleWidth(800);
    QCOMPARE(bar->width(), 200);
    row.setItemTitleWidth(100);
    QCOMPARE(bar->width(), 80);

    row.setItemTitleWidth(300);
    row.setLabelValue(QStringLiteral("Exporting the recording of the afternoon session"), 0);
    QVERIFY(row.valueLabel()->text().endsWith(QStringLiteral("...")));
    QCOMPARE(row.getLabelValue().toString(), QStringLiteral("Exporting the recording of the afternoon session"));

    QTest::ignoreMessage(QtWarningMsg, "TypeItemButtom: cannot load image \"missing.png\"");
    row.setLabelIcon(QStringLiteral("missing.png"));
    row.setProgressBarVisible(false);
    QVERIFY(bar->isHidden());
    row.setItemData(7);
    QCOMPARE(row.getUserData().toInt(), 7);
    row.setContentEnabled(false);
    QVERIFY(!bar->isEnabled());
}

void TestDisplayItems::valueBorderLineAndClick()
{
    TypeItemValueBorder row;
    row.setStyleSheet(QStringLiteral("background: black;"));
    row.resize(200, 56);
    QImage image(row.size(), QImage::Format_ARGB32);
    image.fill(Qt::black);
    row.render(&image);
    // White at alpha 128 over black, along the top edge only.
    QColor const top = image.pixelColor(100, 0);
    QVERIFY(qAbs(top.red() - 128) <= 2);
    QCOMPARE(top.red(), top.blue());
    QCOMPARE(image.pixelColor(100, 20).red(), 0);

    QSignalSpy clicked(&row, &TypeItemValueBorder::signalClicked);
    row.editValue();
    QCOMPARE(clicked.count(), 1);
    QTest::mouseClick(&row, Qt::LeftButton, Qt::NoModifier, QPoint(50, 20));
    QCOMPARE(clicked.count(), 2);
}

void TestDisplayItems::valueAndNullUserData()
{
    TypeItemValue value;
    value.setItemData(QStringLiteral("still-4"));
    QSignalSpy changed(&value, &CommonItemType::signalValueChanged);
    value.editValue();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).value<QVariant>().toString(), QStringLiteral("still-4"));
    QCOMPARE(value.getUserData().toString(), QStringLiteral("still-4"));

    TypeItemNull heading;
    QCOMPARE(heading.getTitleLabel()->property("AboutTextEdit").toBool(), true);
    heading.setItemData(3);
    QCOMPARE(heading.getUserData().toInt(), 3);
}

void TestDisplayItems::disabledRowsKeepTheirLook()
{
    // Rows without value widgets accept the call and change nothing of their own.
    TypeMainButton main;
    main.setContentEnabled(false);
    QVERIFY(!main.getContentEnabled());
    TypeItemNull null;
    null.setContentEnabled(false);
    QCOMPARE(null.getTitleLabel()->property("AboutTextEdit").toBool(), true);

    // The main button is the bare row: left icon hidden, right icon shown, so a page
    // that only styles the right icon (an arrow) sees it.
    TypeMainButton entry;
    // (The left icon is built when first used: absent means hidden.)
    auto* left = entry.findChild<QPushButton*>(QStringLiteral("itemLeftIconButton"));
    auto* right = entry.findChild<QPushButton*>(QStringLiteral("itemRightIconButton"));
    QVERIFY(right);
    QVERIFY(!left || left->isHidden());
    QVERIFY(!right->isHidden());

    // It keeps its title clear of its icons (4 px row spacing each).
    entry.setRightIconSize(QSize(24, 24));
    entry.setItemTitleWidth(400);
    QCOMPARE(entry.getItemWidth(), 400 - 24 - 4);
    entry.setLeftIconButtonHide(false);
    entry.setLeftIconSize(QSize(32, 32));
    QCOMPARE(entry.getItemWidth(), 400 - 24 - 4 - 32 - 4);
    entry.setRightIconButtonHide(true);
    QSignalSpy widthChanged(&entry, &CommonItemType::signalItemWidthChanged);
    entry.setItemTitleWidth(400);
    QCOMPARE(entry.getItemWidth(), 400 - 32 - 4);
    // A page that takes the width back (-1: unknown) is still heard.
    entry.setItemTitleWidth(-1);
    QCOMPARE(entry.getItemWidth(), -1);
    QCOMPARE(widthChanged.count(), 2);
    QCOMPARE(widthChanged.last().at(0).toInt(), -1);
}

void TestDisplayItems::extremeSizes()
{
    // Widths and heights far outside a panel's range: values stay sane, nothing overflows.
    QString const text = QStringLiteral("A value text long enough to be cut or wrapped somewhere");
    for (int width : {-1000000, -1, 0, 1, 1000000000}) {
        TypeItemText a;
        TypeItemValue b;
        TypeKeyValueText c;
        TypeItemTip d;
        TypeItemLineWrap e;
        TypeMultItemText f;
        TypeItemButtom g;
        TypeItemEdit h;
        TypeItemTextCenter i;
        TypeItemArrow j;
        TypeItemMore k;
        for (CommonItemType* row : QList<CommonItemType*>{&a, &b, &c, &d, &e, &f, &g, &h, &i, &j, &k}) {
            row->setItemHeight(width);
            row->setItemTitleWidth(width);
            row->setLabelValue(text, 0);
            row->getWidgetRow();
        }
        a.setRollValue(text);
        c.setItemWidth(width);
        c.setKeyValueText(text, text);
        QVERIFY(c.getWidgetRow() >= 1);
        QVERIFY(d.getWidgetRow() >= 1);
        QVERIFY(e.getItemHeight() >= 0);
        QVERIFY(e.getTextMaxWidth(text) >= 1);
        f.setLabelText(1, text);
        if (width > 0)
            f.setLabelWidth(width);
        QVERIFY(b.valueWidth() >= 0);
        QVERIFY(a.iconButton()->width() >= 0);
    }
    QCOMPARE(itemIconSide(std::numeric_limits<int>::max()), (std::numeric_limits<int>::max() / 36) * 24);
    QCOMPARE(itemIconSide(std::numeric_limits<int>::min()), 0);
}

// Sizes Qt cannot take are refused by the display rows before they reach it; the
// derived caption and tip fonts stay at least a pixel for the smallest row font.
void TestDisplayItems::hostileSizesRefused()
{
    TypeItemText text;
    QTest::ignoreMessage(QtWarningMsg, "[TypeItemText] setIconButtonSize: size -1x-1 refused");
    text.setIconButtonSize(QSize(-1, -1));
    QTest::ignoreMessage(QtWarningMsg, "[TypeItemText] rightDistanceCorrection: length -3 refused");
    text.rightDistanceCorrection(-3);
    TypeItemTip tip;
    QTest::ignoreMessage(QtWarningMsg, "[TypeItemTip] setTextLabelWidth: length 16777216 refused");
    tip.setTextLabelWidth(QWIDGETSIZE_MAX + 1);
    tip.setContentFontSize(1);   // 0.8 px would be no font at all
    TypeKeyValueText keyValue;
    QTest::ignoreMessage(QtWarningMsg, "[TypeKeyValueText] setValueLabelSize: size 16777216x10 refused");
    keyValue.setValueLabelSize(QSize(QWIDGETSIZE_MAX + 1, 10));
    TypeSpinAdjust spin;
    QTest::ignoreMessage(QtWarningMsg, "[TypeSpinAdjust] slotUpdateItemWidth: length 1014089499 refused");
    spin.setItemTitleWidth(std::numeric_limits<int>::max());
}

QTEST_MAIN(TestDisplayItems)
#include "tst_displayitems.moc"
