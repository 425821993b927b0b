// The line edits: the floating-point edit's knob steps, typed input and edit
// signals; the signalling line edit's sequence for a number pad; the knob-only text
// entry; the titled widgets; and the text row's protocol in both kinds.
#include "leakcheck.h"

#include <editorpage.h>
#include <knob.h>
#include <lcdwidgets.h>

#include <QLabel>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QtTest>
#include <cmath>

using namespace LCD::Widget;
using EditorTest::Page;
using EditorTest::QtWarningWatch;
using EditorTest::Recorder;

class TestLineEdits : public LeakCheckedTest
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        QtWarningWatch::install();
    }
    void cleanup()
    {
        QCOMPARE(QtWarningWatch::count(), 0);
        endLeakCheck();
    }

    void doubleKnobSteps_data();
    void doubleKnobSteps();
    void doubleSaturatesWithoutEcho();
    void doubleTypedInput();
    void doubleEditSignals();
    void doubleBadInput();
    void signalEditSequence();
    void signalEditOnPress();
    void knobTextEntry();
    void knobTextFastTurnsAndForeignCharacters();
    void knobTextBadInput();
    void titledWidgets();
    void textRowKnob();
    void textRowPad();
    void textRowBadInput();
};

void TestLineEdits::doubleKnobSteps_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("start");
    QTest::addColumn<QString>("level");
    QTest::addColumn<bool>("up");
    QTest::addColumn<double>("expected");
    QTest::newRow("level 1 is one step") << 0.0 << 10.0 << 0.1 << 5.0 << "1" << true << 5.1;
    QTest::newRow("empty text is level 1") << 0.0 << 10.0 << 0.1 << 5.0 << "" << false << 4.9;
    QTest::newRow("unreadable text is level 1") << 0.0 << 10.0 << 0.1 << 5.0 << "fast" << true << 5.1;
    QTest::newRow("nan is level 1") << 0.0 << 10.0 << 0.1 << 5.0 << "nan" << true << 5.1;
    QTest::newRow("share of the range") << 0.0 << 10.0 << 0.1 << 5.0 << "0.5" << false << 4.5;
    QTest::newRow("small share is one step") << 0.0 << 10.0 << 0.1 << 5.0 << "0.01" << true << 5.1;
    QTest::newRow("huge level saturates") << 0.0 << 10.0 << 0.1 << 5.0 << "1e9" << true << 10.0;
    QTest::newRow("maximum 0 does not stall") << -60.0 << 0.0 << 0.5 << -30.0 << "0.5" << true << -29.5;
}

void TestLineEdits::doubleKnobSteps()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, step);
    QFETCH(double, start);
    QFETCH(QString, level);
    QFETCH(bool, up);
    QFETCH(double, expected);
    Page page;
    auto* edit = page.add(new NDoubleLineEdit(&page));
    edit->setRange(minimum, maximum);
    edit->setSingleStep(step);
    edit->setValue(start);
    QVERIFY(page.start());
    edit->setFocus();
    QSignalSpy changed(edit, &NDoubleLineEdit::signalValueChanged);
    Knob::key(edit, up ? Qt::Key_Up : Qt::Key_Down, level);
    QVERIFY(qFuzzyCompare(edit->value() + 1000.0, expected + 1000.0));
    QCOMPARE(changed.count(), 1);
    QVERIFY(qFuzzyCompare(changed.first().first().toDouble() + 1000.0, expected + 1000.0));
    QCOMPARE(edit->text(), QString::number(expected, 'f', 1));
}

void TestLineEdits::doubleSaturatesWithoutEcho()
{
    Page page;
    auto* edit = page.add(new NDoubleLineEdit(&page));
    edit->setRange(0.0, 1.0);
    edit->setDecimals(2);
    edit->setSingleStep(0.25);
    edit->setValue(0.75);
    QVERIFY(page.start());
    edit->setFocus();
    QSignalSpy changed(edit, &NDoubleLineEdit::signalValueChanged);
    Knob::turn(edit, 3);
    QCOMPARE(edit->value(), 1.0);
    QCOMPARE(changed.count(), 1); // the turns at the bound report nothing
    QCOMPARE(edit->text(), QStringLiteral("1.00"));
    Knob::turn(edit, -6);
    QCOMPARE(edit->value(), 0.0);
    QCOMPARE(changed.count(), 5);
}

void TestLineEdits::doubleTypedInput()
{
    Page page;
    auto* edit = page.add(new NDoubleLineEdit(&page));
    edit->setRange(-5.0, 10.0);
    edit->setDecimals(1);
    edit->setValue(2.0);
    QVERIFY(page.start());
    edit->setFocus();
    QSignalSpy changed(edit, &NDoubleLineEdit::signalValueChanged);
    QSignalSpy finished(edit, &NDoubleLineEdit::signalEditFinished);
    // The focus selects the text: typing replaces it; a second decimal is refused.
    QTest::keyClicks(edit, QStringLiteral("7.25"));
    QCOMPARE(edit->text(), QStringLiteral("7.2"));
    QCOMPARE(edit->value(), 7.2);
    QCOMPARE(changed.last().first().toDouble(), 7.2);
    // A knob turn goes on from the typed value.
    Knob::turn(edit, 1);
    QCOMPARE(edit->value(), 7.3);
    // Beyond the range: shown while typing, clamped at the end of the edit.
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("-9"));
    QCOMPARE(edit->text(), QStringLiteral("-9"));
    QCOMPARE(edit->value(), 7.3);
    Knob::press(edit);
    QCOMPARE(edit->value(), -5.0);
    QCOMPARE(edit->text(), QStringLiteral("-5.0"));
    QCOMPARE(finished.count(), 1);
    QVERIFY(page.hasFocus());
    // An unreadable text ("-") gives the last value back.
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("-"));
    Knob::back(edit);
    QCOMPARE(edit->text(), QStringLiteral("-5.0"));
    QCOMPARE(edit->value(), -5.0);
}

void TestLineEdits::doubleEditSignals()
{
    Page page;
    auto* edit = page.add(new NDoubleLineEdit(&page));
    QVERIFY(page.start());
    QStringList log;
    connect(edit, &NDoubleLineEdit::signalEditStarted, [&] { log << "started"; });
    connect(edit, &NDoubleLineEdit::signalValueChanged, [&](double v) { log << QString::number(v); });
    connect(edit, &NDoubleLineEdit::signalEditFinished, [&] { log << "finished"; });
    edit->setFocus();
    QVERIFY(edit->isEditing());
    QCOMPARE(edit->property("lineEditEditing"), QVariant(true));
    Knob::turn(edit, 2);
    Knob::back(edit);
    QCOMPARE(log, QStringList({"started", "0.1", "0.2", "finished"}));
    QVERIFY(page.hasFocus());
    QVERIFY(!edit->isEditing());
    QCOMPARE(edit->property("lineEditEditing"), QVariant(false));
    // No key of the edit reached the page, not even a release.
    QVERIFY(page.pressed.isEmpty());
    QCOMPARE(page.released, 0);
    // The loss of the focus ends an edit too, once.
    log.clear();
    edit->setFocus();
    page.setFocus();
    QCOMPARE(log, QStringList({"started", "finished"}));
}

void TestLineEdits::doubleBadInput()
{
    NDoubleLineEdit edit;
    edit.setRange(0.0, 10.0);
    edit.setValue(4.0);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setRange: 5..1 is not a range, ignored");
    edit.setRange(5.0, 1.0);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setRange: nan..1 is not a range, ignored");
    edit.setRange(std::nan(""), 1.0);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setRange: 0..inf is not a range, ignored");
    edit.setRange(0.0, INFINITY);
    QCOMPARE(edit.minimum(), 0.0);
    QCOMPARE(edit.maximum(), 10.0);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setDecimals: 7 is outside 0..6, ignored");
    edit.setDecimals(7);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setDecimals: -1 is outside 0..6, ignored");
    edit.setDecimals(-1);
    QCOMPARE(edit.decimals(), 1);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setSingleStep: 0 is not a step of 0..10, ignored");
    edit.setSingleStep(0.0);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setSingleStep: 11 is not a step of 0..10, ignored");
    edit.setSingleStep(11.0);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setSingleStep: -1 is not a step of 0..10, ignored");
    edit.setSingleStep(-1.0);
    QCOMPARE(edit.singleStep(), 0.1);
    QTest::ignoreMessage(QtWarningMsg, "[NDoubleLineEdit] setValue: value is not a number, ignored");
    edit.setValue(std::nan(""));
    QCOMPARE(edit.value(), 4.0);
    // Out of range is clamped; decimals round the value.
    edit.setValue(1e300);
    QCOMPARE(edit.value(), 10.0);
    edit.setValue(-INFINITY);
    QCOMPARE(edit.value(), 0.0);
    edit.setValue(3.14159);
    QCOMPARE(edit.text(), QStringLiteral("3.1"));
    edit.setDecimals(0);
    QCOMPARE(edit.value(), 3.0);
    // A narrower range pulls the value and the step in.
    edit.setRange(0.0, 0.05);
    QCOMPARE(edit.value(), 0.0);
    QCOMPARE(edit.singleStep(), 0.05);
}

void TestLineEdits::signalEditSequence()
{
    Page page;
    auto* edit = page.add(new NSignalLineEdit(&page));
    QVERIFY(page.start());
    QStringList log;
    connect(edit, &NSignalLineEdit::signalFocusIn, [&] { log << "in"; });
    connect(edit, &NSignalLineEdit::signalEditStarted, [&] { log << "started"; });
    connect(edit, &NSignalLineEdit::signalTextEdited, [&](QString const& t) { log << "text:" + t; });
    connect(edit, &NSignalLineEdit::signalEditFinished, [&](QString const& t) { log << "finished:" + t; });
    connect(edit, &NSignalLineEdit::signalFocusOut, [&] { log << "out"; });
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("12"));
    edit->setText(QStringLiteral("125")); // the pad's answer
    page.released = 0;
    Knob::turn(edit, 2); // swallowed while editing
    QCOMPARE(page.released, 0);
    Knob::press(edit);
    QCOMPARE(log, QStringList({"in", "started", "text:1", "text:12", "text:125", "finished:125", "out"}));
    QVERIFY(page.hasFocus());
    QCOMPARE(page.pressed, QList<int>());
    // Escape ends an edit as well, and the text stays.
    log.clear();
    edit->setFocus();
    Knob::back(edit);
    QCOMPARE(log, QStringList({"in", "started", "finished:125", "out"}));
    QCOMPARE(edit->text(), QStringLiteral("125"));
}

void TestLineEdits::signalEditOnPress()
{
    Page page;
    auto* edit = page.add(new NSignalLineEdit(&page));
    edit->setEditOnFocus(false);
    QVERIFY(page.start());
    QSignalSpy started(edit, &NSignalLineEdit::signalEditStarted);
    QSignalSpy finished(edit, &NSignalLineEdit::signalEditFinished);
    edit->setFocus();
    QCOMPARE(started.count(), 0);
    // Not editing: the knob and back belong to the page.
    Knob::turn(edit, 1);
    Knob::back(edit);
    QCOMPARE(page.pressed, QList<int>({Qt::Key_Up, Qt::Key_Escape}));
    Knob::press(edit);
    QCOMPARE(started.count(), 1);
    QVERIFY(edit->isEditing());
    Knob::press(edit);
    QCOMPARE(finished.count(), 1);
    // startEdit() from the page: focus and one start, never two.
    page.setFocus();
    edit->startEdit();
    edit->startEdit();
    QVERIFY(edit->hasFocus());
    QCOMPARE(started.count(), 2);
    edit->finishEdit();
    QCOMPARE(finished.count(), 2);
    QTest::ignoreMessage(QtWarningMsg, "[NSignalLineEdit] setTextMaxLength: 0 is not a length, ignored");
    edit->setTextMaxLength(0);
    QCOMPARE(edit->maxLength(), 32767);
}

void TestLineEdits::knobTextEntry()
{
    Page page;
    auto* edit = page.add(new QMLineEdit(&page));
    edit->setCharacterSet(QStringLiteral("AAB")); // duplicates dropped
    QCOMPARE(edit->characterSet(), QStringLiteral("AB"));
    edit->setTextMaxLength(3);
    QVERIFY(page.start());
    QStringList log;
    connect(edit, &QMLineEdit::signalEditStarted, [&] { log << "started"; });
    connect(edit, &QMLineEdit::signalTextChanged, [&](QString const& t) { log << t; });
    connect(edit, &QMLineEdit::signalEditFinished, [&](QString const& t) { log << "finished:" + t; });
    QCOMPARE(edit->editPosition(), -1);
    edit->setFocus();
    QCOMPARE(edit->editPosition(), 0);
    Knob::turn(edit, 1);  // appends the first character
    Knob::turn(edit, 1);  // next
    Knob::turn(edit, 1);  // wraps around
    Knob::turn(edit, -1); // and back
    Knob::press(edit);
    QCOMPARE(edit->editPosition(), 1);
    Knob::turn(edit, -1); // a new character from the end of the set
    Knob::press(edit);
    Knob::turn(edit, 1);
    QCOMPARE(edit->selectedText(), QStringLiteral("A")); // the character at the position is marked
    Knob::press(edit);                                   // the text is full: the edit ends
    QCOMPARE(log, QStringList({"started", "A", "B", "A", "B", "BB", "BBA", "finished:BBA"}));
    QVERIFY(page.hasFocus());
    QCOMPARE(page.released, 0);
    // The press on the position after the text ends the edit early.
    log.clear();
    edit->setValueText(QStringLiteral("A"));
    edit->setFocus();
    Knob::press(edit);
    QCOMPARE(edit->editPosition(), 1);
    Knob::press(edit);
    QCOMPARE(log, QStringList({"started", "finished:A"}));
}

void TestLineEdits::knobTextFastTurnsAndForeignCharacters()
{
    Page page;
    auto* edit = page.add(new QMLineEdit(&page));
    edit->setCharacterSet(QStringLiteral("0123456789"));
    edit->setValueText(QStringLiteral("x5"));
    QVERIFY(page.start());
    edit->setFocus();
    Knob::key(edit, Qt::Key_Down); // not in the set: the last character
    QCOMPARE(edit->text(), QStringLiteral("95"));
    Knob::press(edit);
    Knob::key(edit, Qt::Key_Up, QStringLiteral("3")); // level 3 skips three
    QCOMPARE(edit->text(), QStringLiteral("98"));
    Knob::key(edit, Qt::Key_Up, QStringLiteral("1e9")); // at most one round
    QCOMPARE(edit->text(), QStringLiteral("98"));
    Knob::key(edit, Qt::Key_Down, QStringLiteral("-4")); // the magnitude counts
    QCOMPARE(edit->text(), QStringLiteral("94"));
    Knob::back(edit);
    QVERIFY(!edit->isEditing());
    QCOMPARE(edit->text(), QStringLiteral("94"));
    // Back while not editing goes to the page.
    edit->setFocus();
    edit->finishEdit();
    QVERIFY(page.hasFocus());
}

void TestLineEdits::knobTextBadInput()
{
    QMLineEdit edit;
    QTest::ignoreMessage(QtWarningMsg, "[QMLineEdit] setCharacterSet: empty character set, ignored");
    edit.setCharacterSet(QString());
    QCOMPARE(edit.characterSet(), QMLineEdit::defaultCharacterSet());
    QTest::ignoreMessage(QtWarningMsg, "[QMLineEdit] setTextMaxLength: 0 is not a length, ignored");
    edit.setTextMaxLength(0);
    QTest::ignoreMessage(QtWarningMsg, "[QMLineEdit] setTextMaxLength: -5 is not a length, ignored");
    edit.setTextMaxLength(-5);
    QCOMPARE(edit.textMaxLength(), 16);
    edit.setTextMaxLength(4);
    QTest::ignoreMessage(QtWarningMsg, "[QMLineEdit] setValueText: text longer than 4 characters, cut");
    edit.setValueText(QStringLiteral("CAM-12"));
    QCOMPARE(edit.text(), QStringLiteral("CAM-"));
}

void TestLineEdits::titledWidgets()
{
    Page page;
    auto* gain = page.add(new QDoubleLineEditWidget(QStringLiteral("Gain"), QStringLiteral("dB"), &page));
    gain->setRange(-12.0, 12.0);
    gain->setSingleStep(0.5);
    gain->setValue(0.0);
    auto* name = page.add(new QSignalLineEditWidget(QStringLiteral("Port")));
    QVERIFY(page.start());
    QCOMPARE(gain->property("isLineEditWidget"), QVariant(true));
    QCOMPARE(gain->unit(), QStringLiteral("dB"));
    QVERIFY(!gain->findChildren<QLabel*>().isEmpty());
    QSignalSpy gainChanged(gain, &QDoubleLineEditWidget::signalValueChanged);
    QSignalSpy gainFinished(gain, &QDoubleLineEditWidget::signalEditFinished);
    gain->startEdit();
    QVERIFY(gain->editor()->hasFocus());
    Knob::turn(gain, -3);
    QCOMPARE(gain->value(), -1.5);
    QCOMPARE(gainChanged.count(), 3);
    Knob::back(gain);
    QCOMPARE(gainFinished.count(), 1);
    // The frame hands its focus to the editor: the end of the edit must not land
    // there and start a new one.
    QVERIFY(!gain->editor()->isEditing());
    QVERIFY(page.hasFocus());
    // An empty unit hides its label, a unit shows it again.
    gain->setUnit(QString());
    QLabel* unit = nullptr;
    for (QLabel* l : gain->findChildren<QLabel*>())
        if (l->property("isLineEditUnit").toBool())
            unit = l;
    QVERIFY(unit && unit->isHidden());
    gain->setUnit(QStringLiteral("%"));
    QVERIFY(!unit->isHidden());

    QSignalSpy started(name, &QSignalLineEditWidget::signalEditStarted);
    QSignalSpy finished(name, &QSignalLineEditWidget::signalEditFinished);
    name->startEdit();
    QCOMPARE(started.count(), 1);
    name->setText(QStringLiteral("9990"));
    Knob::press(name);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(started.count(), 1);
    QVERIFY(page.hasFocus());
    QCOMPARE(finished.first().first().toString(), QStringLiteral("9990"));
}

void TestLineEdits::textRowKnob()
{
    Page page;
    auto* row = page.add(new LineEditorWidget(&page));
    row->setCharacterSet(QStringLiteral("ABC"));
    row->setTextMaxLength(8);
    row->setLabelValue(QStringLiteral("CA"));
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    row->editValue(); // a second press while editing starts nothing
    QVERIFY(row->knobEditor()->hasFocus());
    Knob::turn(row, 1);
    Knob::press(row);
    Knob::turn(row, -1);
    QCOMPARE(page.released, 0); // the releases of the turns and the press stay in the row
    Knob::back(row);            // the page has the focus again when Escape is released
    QCOMPARE(rec.log, QStringList({"started", "value:AA", "value:AC", "close", "finished"}));
    QCOMPARE(row->getLabelValue(), QVariant(QStringLiteral("AC")));
    QVERIFY(page.hasFocus());
    // The page may end the edit itself.
    rec.log.clear();
    row->editValue();
    row->closeEditValue();
    QCOMPARE(rec.log, QStringList({"started", "close", "finished"}));
    QVERIFY(page.hasFocus());
    // A disabled row announces nothing.
    rec.log.clear();
    row->setContentDisabled(true);
    row->editValue();
    QVERIFY(rec.log.isEmpty());
}

void TestLineEdits::textRowPad()
{
    Page page;
    auto* row = page.add(new LineEditorWidget(&page, LineEditorWidget::PadText));
    QVERIFY(row->padEditor() && !row->knobEditor());
    QVERIFY(page.start());
    Recorder rec(row);
    row->editValue();
    row->setLabelValue(QStringLiteral("42")); // the pad's answer while editing
    Knob::turn(row, 2);                       // swallowed
    Knob::press(row);
    QCOMPARE(rec.log, QStringList({"started", "value:42", "close", "finished"}));
    QVERIFY(page.hasFocus());
    QCOMPARE(page.pressed, QList<int>());
    // Set while not editing: no value signal (the host set it).
    rec.log.clear();
    row->setLabelValue(QStringLiteral("43"));
    QVERIFY(rec.log.isEmpty());
}

void TestLineEdits::textRowBadInput()
{
    LineEditorWidget pad(nullptr, LineEditorWidget::PadText);
    QTest::ignoreMessage(QtWarningMsg,
                         "[LineEditorWidget] setCharacterSet: a PadText row has no character set, ignored");
    pad.setCharacterSet(QStringLiteral("AB"));
    QTest::ignoreMessage(QtWarningMsg, "[LineEditorWidget] setLabelValue: value has no text form, ignored");
    pad.setLabelValue(QVariant());
    QTest::ignoreMessage(QtWarningMsg, "[LineEditorWidget] setLabelValue: value has no text form, ignored");
    pad.setLabelValue(QVariant(QSize(3, 4)));
    QTest::ignoreMessage(QtWarningMsg, "[LineEditorWidget] setTextMaxLength: 0 is not a length, ignored");
    pad.setTextMaxLength(0);
    QTest::ignoreMessage(QtWarningMsg, "[LineEditorWidget] setEditorWidth: -3 is not a width, ignored");
    pad.setEditorWidth(-3);
    QTest::ignoreMessage(QtWarningMsg, "[LineEditorWidget] setContentFontSize: 0 is not a size, ignored");
    pad.setContentFontSize(0);
    // Without a parent the end of an edit just drops the focus: nothing to crash on.
    pad.show();
    QApplication::setActiveWindow(&pad);
    pad.editValue();
    pad.closeEditValue();
    QVERIFY(!pad.padEditor()->isEditing());
}

QTEST_MAIN(TestLineEdits)
#include "tst_lineedits.moc"
