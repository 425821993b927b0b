// IP address entry and the number pad: the address pattern with its quirks, refused
// addresses and their warnings, knob steps by level, octet limits, the two knob modes
// of IPLineEdit, the row's edit protocol, IPEdit's parsing, focus and key rules, and
// the pad's form and key routing.
#include "leakcheck.h"

#include <knob.h>
#include <lcdwidgets.h>

#include <QGridLayout>
#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>
#include <limits>

using namespace LCD::Widget;

namespace {

// A host page that takes the focus back after edits.
class Page : public QWidget
{
public:
    Page()
    {
        setFocusPolicy(Qt::StrongFocus);
        new QVBoxLayout(this);
    }
    bool start()
    {
        show();
        QApplication::setActiveWindow(this);
        if (!QTest::qWaitForWindowActive(this))
            return false;
        setFocus();
        return hasFocus();
    }
};

QStringList fields(IPLineEdit const& e)
{
    QStringList out;
    for (int i = 0; i < 4; ++i)
        out << e.field(i)->text();
    return out;
}

void expectRefused(QString const& text)
{
    QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("strIP: ") + text));
    QTest::ignoreMessage(QtWarningMsg, "setIpText Your IP Address is Invalid!");
}

} // namespace

class TestIpEntry : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false")); }

    void patternKeepsItsQuirks();
    void setIpTextRefusesNonAddresses();
    void sizeSettersRefuseAndLog();
    void stepFollowsTheLevel();
    void rowStepsWithinOctetLimits();
    void rowWalksFieldsAfterThePress();
    void rowEscapeEndsTheEditOnce();
    void typedOctetsStayWithin255();
    void disabledRowDoesNotEdit();

    void ipEditParsesAndJoins();
    void ipEditFocusAndKeys();
    void ipEditReportsOneEditPerVisit();

    void padFormAndNames();
    void padRoutesKeysToTheEditor();
    void padOkAndTriangle();
    void padRetranslates();
};

void TestIpEntry::patternKeepsItsQuirks()
{
    IPLineEdit e;
    QVERIFY(e.isTextValid(QString()));
    QVERIFY(e.isTextValid(QStringLiteral("192.168.0.1")));
    QVERIFY(e.isTextValid(QStringLiteral("299.1.1.1")));   // first group: any 1xx/2xx
    QVERIFY(e.isTextValid(QStringLiteral("10x0y0z1")));    // unescaped dots match anything
    QVERIFY(!e.isTextValid(QStringLiteral("192.168.0.256")));
    QVERIFY(!e.isTextValid(QStringLiteral("0.1.1.1")));    // the first octet never starts with 0
    QVERIFY(!e.isTextValid(QStringLiteral("1.1.1")));
    QVERIFY(!e.isTextValid(QStringLiteral("1.1.1.1 ")));
}

void TestIpEntry::setIpTextRefusesNonAddresses()
{
    IPLineEdit e;
    e.setIpText(QStringLiteral("10.20.30.40"));
    QStringList const before = {"10", "20", "30", "40"};
    QCOMPARE(fields(e), before);
    QCOMPARE(e.Iptext(), QStringLiteral("10.20.30.40"));

    for (QString const& bad : {QStringLiteral("224.0.0.1"), QStringLiteral("no address"), QStringLiteral("10.1"),
                               QStringLiteral("::1"), QStringLiteral("1.2.3.4.5"), QStringLiteral("300.1.1.1")}) {
        expectRefused(bad);
        e.setIpText(bad);
        QCOMPARE(fields(e), before);
    }
    e.setIpText(QString()); // empty: nothing, silently
    QCOMPARE(fields(e), before);

    e.setIpText(QStringLiteral("172.016.0.1"));
    QCOMPARE(e.Iptext(), QStringLiteral("172.16.0.1"));
    e.clearText();
    QCOMPARE(e.Iptext(), QStringLiteral("..."));
}

void TestIpEntry::sizeSettersRefuseAndLog()
{
    IPLineEdit e;
    e.setFontSize(20);
    e.setHeight(30);
    int const width = e.field(0)->maximumWidth();
    for (int bad : {0, -5, 513, std::numeric_limits<int>::max()}) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("[IPLineEdit] setFontSize: font size %1 refused").arg(bad)));
        e.setFontSize(bad);
    }
    for (int bad : {0, -1, std::numeric_limits<int>::min()}) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("[IPLineEdit] setHeight: length %1 refused").arg(bad)));
        e.setHeight(bad);
    }
    QCOMPARE(e.field(0)->font().pixelSize(), 20);
    QCOMPARE(e.field(3)->maximumHeight(), 30);
    QCOMPARE(e.field(0)->maximumWidth(), width);

    // The row forwards its sizes: a refused font size is refused by both.
    TypeIpAdjust row(nullptr, 0);
    QTest::ignoreMessage(QtWarningMsg, "[CommonItemType] setContentFontSize: font size 600 refused");
    QTest::ignoreMessage(QtWarningMsg, "[IPLineEdit] setFontSize: font size 600 refused");
    row.setContentFontSize(600);
}

void TestIpEntry::stepFollowsTheLevel()
{
    IPLineEdit e;
    QCOMPARE(e.getStep(1.0f), 1);
    QCOMPARE(e.getStep(0.5f), 127);
    QCOMPARE(e.getStep(2.0f), 255);
    QCOMPARE(e.getStep(0.001f), 0); // no lower bound of 1
    QCOMPARE(e.getStep(1.0e9f), 255);
    QCOMPARE(e.getStep(-3.0f), 0);
    QCOMPARE(e.getStep(std::numeric_limits<float>::quiet_NaN()), 1);
    QCOMPARE(e.getStep(std::numeric_limits<float>::infinity()), 255);
}

void TestIpEntry::rowStepsWithinOctetLimits()
{
    Page page;
    auto* row = new TypeIpAdjust(&page, 9);
    page.layout()->addWidget(row);
    row->setLabelValue(QStringLiteral("2.0.254.3"));
    QVERIFY(page.start());
    QSignalSpy started(row, &CommonItemType::signalEditStarted);
    row->editValue();
    QCOMPARE(started.count(), 1);
    IPLineEdit* e = row->lineEdit();
    QCOMPARE(QApplication::focusWidget(), e->field(3));

    Knob::turn(e, -5); // fourth octet: 3 -> 0, not below
    QCOMPARE(e->field(3)->text(), QStringLiteral("0"));
    Knob::turn(e, 1, 0.5); // +127
    QCOMPARE(e->field(3)->text(), QStringLiteral("127"));
    Knob::turn(e, 1, 0.001); // step 0: no move
    QCOMPARE(e->field(3)->text(), QStringLiteral("127"));
    Knob::turnText(e, 1, QStringLiteral("1e9")); // clamped level
    QCOMPARE(e->field(3)->text(), QStringLiteral("255"));
    Knob::turn(e, 1);
    QCOMPARE(e->field(3)->text(), QStringLiteral("255"));
    QVERIFY(row->isModified());
    // Every step is logged.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true"));
    QTest::ignoreMessage(QtDebugMsg, "m_isEdit true ,index: 3 ,val: 255 ,step: 0 ,newVal: 255");
    Knob::turn(e, -1, 0.001);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    // Walk to the first octet (the press switches to walking), then step it down.
    Knob::press(e);
    Knob::turn(e, 3);
    QCOMPARE(QApplication::focusWidget(), e->field(0));
    Knob::turn(e, 2); // at the first field Up stays there
    QCOMPARE(QApplication::focusWidget(), e->field(0));
    Knob::press(e);
    Knob::turn(e, -4);
    QCOMPARE(e->field(0)->text(), QStringLiteral("1")); // the first octet stops at 1
    QCOMPARE(row->getLabelValue().toString(), QStringLiteral("1.0.254.255"));
}

void TestIpEntry::rowWalksFieldsAfterThePress()
{
    Page page;
    auto* row = new TypeIpAdjust(&page, 10);
    page.layout()->addWidget(row);
    row->setLabelValue(QStringLiteral("10.0.0.1"));
    QVERIFY(page.start());
    row->editValue();
    IPLineEdit* e = row->lineEdit();
    QCOMPARE(e->field(0)->property("editing"), QVariant(true));
    Knob::press(e, true); // Enter: walking
    QCOMPARE(e->field(0)->property("editing"), QVariant(false));
    Knob::turn(e, 1);
    QCOMPARE(QApplication::focusWidget(), e->field(2));
    QCOMPARE(e->currentIndex(), 2);
    QCOMPARE(e->field(2)->selectedText(), QStringLiteral("0"));
    Knob::turn(e, -1);
    QCOMPARE(QApplication::focusWidget(), e->field(3));
    Knob::turn(e, -1); // last field: stays
    QCOMPARE(QApplication::focusWidget(), e->field(3));
    // Period moves on like Down; the values are untouched by walking.
    Knob::turn(e, 3);
    Knob::key(e, Qt::Key_Period, QStringLiteral("."));
    QCOMPARE(QApplication::focusWidget(), e->field(1));
    QCOMPARE(row->getLabelValue().toString(), QStringLiteral("10.0.0.1"));
}

void TestIpEntry::rowEscapeEndsTheEditOnce()
{
    Page page;
    auto* row = new TypeIpAdjust(&page, 9);
    page.layout()->addWidget(row);
    row->setLabelValue(QStringLiteral("10.0.0.1"));
    QVERIFY(page.start());
    QStringList log;
    connect(row, &TypeIpAdjust::signalLineEditFinished, [&] { log << "line"; });
    connect(row, &CommonItemType::signalEditFinished, [&] { log << "finished"; });
    connect(row, &CommonItemType::signalEditClosed, [&] { log << "closed"; });
    row->editValue();
    Knob::turn(row->lineEdit(), 2);
    Knob::back(row->lineEdit());
    QCOMPARE(log, QStringList({"closed", "line", "finished"}));
    QCOMPARE(QApplication::focusWidget(), &page);
    QCOMPARE(row->lineEdit()->editStatus(), false);
    QCOMPARE(row->getLabelValue().toString(), QStringLiteral("10.0.0.3")); // live: Escape keeps the value
    // A later Escape on the page is not the row's.
    Knob::back(&page);
    QCOMPARE(log.size(), 3);
}

void TestIpEntry::typedOctetsStayWithin255()
{
    Page page;
    auto* e = new IPLineEdit(&page);
    page.layout()->addWidget(e);
    QVERIFY(page.start());
    e->setIpText(QStringLiteral("10.0.0.1"));
    e->setIPFocus();
    QTest::keyClicks(e->field(3), QStringLiteral("300"));
    QCOMPARE(e->field(3)->text(), QStringLiteral("255"));
    // The first field takes no leading zero.
    e->field(0)->setFocus();
    e->field(0)->selectAll();
    QTest::keyClicks(e->field(0), QStringLiteral("0"));
    QCOMPARE(e->field(0)->text(), QStringLiteral("10"));
    // Leaving a field brings what the program put there back within the rules.
    e->field(1)->setText(QStringLiteral("007"));
    e->slot_fixInput();
    QCOMPARE(e->field(1)->text(), QStringLiteral("7"));
}

void TestIpEntry::disabledRowDoesNotEdit()
{
    Page page;
    auto* row = new TypeIpAdjust(&page, 9);
    page.layout()->addWidget(row);
    QVERIFY(page.start());
    row->setContentEnabled(false);
    QSignalSpy started(row, &CommonItemType::signalEditStarted);
    row->editValue();
    QCOMPARE(started.count(), 0);
    QCOMPARE(QApplication::focusWidget(), &page);
    row->setContentFontSize(0); // refused, no Qt warning
    row->setContentFontSize(24);
    IPLineEdit* e = row->lineEdit();
    QCOMPARE(e->minimumWidth(), e->maximumWidth());
    QCOMPARE(e->maximumWidth(), qMax(192, e->fieldsWidth()));
    // Every field shows three digits whole.
    QFont font = e->field(0)->font();
    QCOMPARE(font.pixelSize(), 24);
    QVERIFY(e->field(0)->width() >= QFontMetrics(font).horizontalAdvance(QStringLiteral("255")));
}

void TestIpEntry::ipEditParsesAndJoins()
{
    IPEdit e;
    e.setIpText(QStringLiteral("192.168.1.20"));
    QCOMPARE(e.ipText(), QStringLiteral("192.168.1.20"));
    e.setIpText(QStringLiteral("10.0.0")); // three parts: ignored
    QCOMPARE(e.ipText(), QStringLiteral("192.168.1.20"));
    e.setIpText(QStringLiteral("10.0.0.300")); // bad part clears its field
    QCOMPARE(e.field(3)->text(), QString());
    QCOMPARE(e.ipText(), QStringLiteral("10.0.0.0")); // empty counts as 0
    e.setIpText(QStringLiteral("010.x..-1"));
    QCOMPARE(e.field(0)->text(), QStringLiteral("10"));
    QCOMPARE(e.field(1)->text(), QString());
    QCOMPARE(e.field(2)->text(), QString());
    QCOMPARE(e.field(3)->text(), QString());
    e.clearText();
    QCOMPARE(e.ipText(), QStringLiteral("0.0.0.0"));
}

void TestIpEntry::ipEditFocusAndKeys()
{
    Page page;
    auto* e = new IPEdit(&page);
    page.layout()->addWidget(e);
    e->setIpText(QStringLiteral("10.1.2.3"));
    QVERIFY(page.start());
    QVERIFY(!e->isEnterSwitchEidt());

    e->setFocus();
    Knob::press(e); // Enter on the frame: the fourth field
    QCOMPARE(QApplication::focusWidget(), e->field(3));
    QCOMPARE(e->field(3)->selectedText(), QStringLiteral("3"));
    QVERIFY(e->hasEditingFocus());
    QTest::keyClicks(e->field(3), QStringLiteral("300"));
    QCOMPARE(e->field(3)->text(), QStringLiteral("255"));
    QTest::keyClicks(e->field(3), QStringLiteral("a!")); // swallowed
    QCOMPARE(e->field(3)->text(), QStringLiteral("255"));

    Knob::turn(e, 2); // Up: field 2, then 1
    QCOMPARE(QApplication::focusWidget(), e->field(1));
    Knob::key(e, Qt::Key_Minus, QStringLiteral("-"));
    QCOMPARE(QApplication::focusWidget(), e->field(2));
    // Enter with the flag off ends the edit of the field: the frame has the focus.
    Knob::press(e);
    QCOMPARE(QApplication::focusWidget(), e);
    // With the flag on, Enter walks towards the first field and leaves from there.
    e->setEnterSwitchEidt(true);
    Knob::press(e);
    QCOMPARE(QApplication::focusWidget(), e->field(3));
    Knob::press(e, true);
    QCOMPARE(QApplication::focusWidget(), e->field(2));
    Knob::key(e, Qt::Key_Period, QStringLiteral("."));
    Knob::key(e, Qt::Key_Period, QStringLiteral("."));
    QCOMPARE(QApplication::focusWidget(), e->field(3));
    Knob::back(e);
    QCOMPARE(QApplication::focusWidget(), e);

    // At the ends the key is not the editor's: it goes on to the page, and the
    // knob's level text is never typed.
    e->field(0)->setFocus();
    QVERIFY(!Knob::key(e, Qt::Key_Up, QStringLiteral("1")));
    e->field(3)->setFocus();
    QVERIFY(!Knob::key(e, Qt::Key_Down, QStringLiteral("7")));
    QCOMPARE(QApplication::focusWidget(), e->field(3));
    QCOMPARE(e->ipText(), QStringLiteral("10.1.2.255"));
}

void TestIpEntry::ipEditReportsOneEditPerVisit()
{
    Page page;
    auto* e = new IPEdit(&page);
    page.layout()->addWidget(e);
    QVERIFY(page.start());
    QStringList log;
    connect(e, &IPEdit::sigEditingStarted, [&] { log << "started"; });
    connect(e, &IPEdit::sigEditingFinished, [&] { log << "finished"; });
    e->setFocus();
    Knob::press(e);
    Knob::turn(e, 3);
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({"started"}));
    Knob::back(e);
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({"started", "finished"}));
    // Deleted while the check is pending: nothing happens.
    Knob::press(e);
    page.setFocus();
    delete e;
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({"started", "finished", "started"}));
}

void TestIpEntry::padFormAndNames()
{
    NumberPad pad(QRect(10, 20, 460, 420));
    QCOMPARE(pad.objectName(), QStringLiteral("NumberPad"));
    QCOMPARE(pad.geometry(), QRect(10, 20, 460, 420));
    QCOMPARE(pad.minimumSize(), QSize(460, 0));
    QCOMPARE(pad.maximumSize(), QSize(460, 16777215));
    QCOMPARE(pad.property("isNetworkSettingFrame"), QVariant(true));
    auto* grid = pad.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QVERIFY(grid);
    QCOMPARE(grid->spacing(), 20);
    QStringList const names[3] = {{"1", "2", "3", "pushBtn_dot"}, {"4", "5", "6", "0"}, {"7", "8", "9", "pushBtn_backSpace"}};
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 4; ++c) {
            QWidget* w = grid->itemAtPosition(r, c)->widget();
            QCOMPARE(w->objectName(), names[r].at(c));
            QCOMPARE(w->minimumSize(), QSize(80, 80));
            QCOMPARE(w->focusPolicy(), Qt::NoFocus);
        }
    }
    auto* ok = pad.findChild<QPushButton*>(QStringLiteral("pushButton_ok"));
    QVERIFY(ok);
    QCOMPARE(ok->minimumSize(), QSize(380, 50));
    QCOMPARE(ok->property("isIconLongApply"), QVariant(true));
    auto* tri = pad.findChild<QPushButton*>(QStringLiteral("pushBtn_triangle"));
    QCOMPARE(tri->minimumSize(), QSize(32, 90));
    QCOMPARE(tri->maximumSize(), QSize(32, 90));
    auto* v2 = pad.findChild<QVBoxLayout*>(QStringLiteral("verticalLayout_2"));
    QCOMPARE(v2->contentsMargins().left(), 23);
    QCOMPARE(v2->contentsMargins().right(), 24);
    QVERIFY(pad.findChild<QFrame*>(QStringLiteral("lineeditFrame"))->isAncestorOf(pad.lineEdit()));
    QCOMPARE(pad.findChild<QLabel*>(QStringLiteral("textLabel"))->text(), QStringLiteral("IP Address:"));
}

void TestIpEntry::padRoutesKeysToTheEditor()
{
    Page page;
    auto* pad = new NumberPad(QRect(), &page);
    page.layout()->addWidget(pad);
    QVERIFY(page.start());
    auto button = [pad](QString const& name) { return pad->findChild<QPushButton*>(name); };

    // No field has had the focus: the keys go nowhere.
    button("7")->click();
    QCOMPARE(pad->lineEdit()->Iptext(), DEFAULT_IP_ADDRESS);

    // The synthetic events are real key events with the digit as text.
    struct Spy : QObject
    {
        QList<QPair<int, QString>> keys;
        bool eventFilter(QObject*, QEvent* e) override
        {
            if (e->type() == QEvent::KeyPress || e->type() == QEvent::KeyRelease) {
                auto* k = static_cast<QKeyEvent*>(e);
                keys << qMakePair(e->type() == QEvent::KeyPress ? k->key() : -k->key(), k->text());
            }
            return false;
        }
    } spy;
    pad->setIPFocus();
    pad->lineEdit()->field(3)->installEventFilter(&spy);
    button("1")->click();
    button("2")->click();
    QCOMPARE(spy.keys.size(), 4);
    QCOMPARE(spy.keys.at(0), qMakePair(int(Qt::Key_1), QStringLiteral("1")));
    QCOMPARE(spy.keys.at(1), qMakePair(-int(Qt::Key_1), QStringLiteral("1")));
    QCOMPARE(pad->lineEdit()->field(3)->text(), QStringLiteral("12"));
    QVERIFY(!button("1")->hasFocus());

    // Dot: on to the next field (the fourth is the last: it stays).
    pad->lineEdit()->field(1)->setFocus();
    pad->lineEdit()->field(1)->selectAll();
    button("9")->click();
    button("pushBtn_dot")->click();
    QCOMPARE(QApplication::focusWidget(), pad->lineEdit()->field(2));
    button("0")->click();
    QCOMPARE(pad->lineEdit()->Iptext(), QStringLiteral("192.9.0.12"));

    // Back-space sends Escape: the edit ends, the pad takes the focus, and the last
    // field still receives the next key.
    QSignalSpy finished(pad->lineEdit(), &IPLineEdit::signalEditFinished);
    button("pushBtn_backSpace")->click();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(QApplication::focusWidget(), pad);
    button("5")->click();
    QCOMPARE(pad->lineEdit()->field(2)->text(), QStringLiteral("5"));

    // A digit button whose name is no digit sends Qt's unknown key: nothing typed.
    QPushButton* five = button("5");
    five->setObjectName(QStringLiteral("12"));
    pad->lineEdit()->field(2)->installEventFilter(&spy);
    spy.keys.clear();
    five->click();
    QCOMPARE(spy.keys.value(0).first, int(Qt::Key_unknown));
    QCOMPARE(pad->lineEdit()->field(2)->text(), QStringLiteral("5"));
}

void TestIpEntry::padOkAndTriangle()
{
    NumberPad pad(QRect(0, 0, 460, 420));
    QSignalSpy ok(&pad, &NumberPad::signalOkPushBtnClicked);
    QSignalSpy tri(&pad, &NumberPad::signalTriangleClicked);
    pad.findChild<QPushButton*>(QStringLiteral("pushButton_ok"))->click();
    QCOMPARE(ok.count(), 1);
    QCOMPARE(ok.at(0).at(0).toString(), QStringLiteral("192.168.0.50"));
    pad.setLineEditText(QStringLiteral("10.1.1.9"));
    pad.findChild<QPushButton*>(QStringLiteral("pushButton_ok"))->click();
    QCOMPARE(ok.at(1).at(0).toString(), QStringLiteral("10.1.1.9"));
    pad.findChild<QPushButton*>(QStringLiteral("pushBtn_triangle"))->click();
    QCOMPARE(tri.count(), 1);
}

void TestIpEntry::padRetranslates()
{
    NumberPad pad(QRect(0, 0, 460, 420));
    auto* title = pad.findChild<QLabel*>(QStringLiteral("textLabel"));
    auto* ok = pad.findChild<QPushButton*>(QStringLiteral("pushButton_ok"));
    QCOMPARE(ok->text(), QStringLiteral("OK"));
    pad.setLabelText(QStringLiteral("Gateway"));
    QCOMPARE(title->text(), QStringLiteral("Gateway:"));
    title->setText(QString());
    ok->setText(QString());
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(&pad, &change);
    QCOMPARE(title->text(), QStringLiteral("Gateway:"));
    QCOMPARE(ok->text(), QStringLiteral("OK"));
    QCOMPARE(pad.findChild<QPushButton*>(QStringLiteral("1"))->text(), QStringLiteral("1"));
}

QTEST_MAIN(TestIpEntry)
#include "tst_ipentry.moc"
