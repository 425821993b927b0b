// The factory test now running, one of FactoryTestItem:
// - Keys: every expected key (by default Up, Down, the press and Escape) is ticked off
//   when seen; the test passes as soon as all were seen, Escape before that fails it.
//   While it runs, the keys are the test's: Escape is ticked off like the others; pressed
//   again (or when it is not expected) it leaves, failing the test.
// - Knob: turns are counted by direction (detents, whatever the level); the test passes
//   when both directions reached the target (5 by default); Escape before that fails it.
// - Screen colours and screen patterns: the frame asks to be shown full screen
//   (signalFullScreen(true)) and fills itself with red, green, blue, white, black, or
//   with a grey ramp, a checkerboard, colour bars and a grid. Turns step through them;
//   the press steps on, and after the last one asks for the verdict: the knob chooses
//   "Pass" or "Fail", the press confirms. Escape leaves without a verdict.
// - T-bar: the T-bar is read every 50 ms through the host's keyboard proxy
//   ("lcdKeyboardEvent"); the test passes once the readings reached both ends of the
//   range (<= low and >= high; 50 and 950 by default). Escape before that fails it.
//   Without a proxy it logs "_pKeyBoard is nullptr" once and shows no reading.
// A finished test emits signalTestFinished(test, result) once; NotTested means left
// without a verdict.
//
// Bad input is refused and logged at warning level, nothing changes:
// "[FactoryTestRightFrame] test index out of range:" N, "[FactoryTestRightFrame] no keys
// to test", "[FactoryTestRightFrame] invalid knob target:" N (< 1 or > 1000),
// "[FactoryTestRightFrame] invalid T-bar range:" LOW HIGH (low >= high).
// Theme: the frame has "isFactoryTestFill" (true while it fills the screen), its labels
// "isFactoryTestTitle", "isFactoryTestBody", "isFactoryTestHint"; the verdict's choices
// "isFactoryTestVerdict" with "isFactoryTestChosen".
#pragma once

#include "factorytestleftframe.h"
#include "lcdwidgets_global.h"

#include <QColor>
#include <QFrame>
#include <QVector>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT FactoryTestRightFrame : public QFrame
{
    Q_OBJECT
public:
    explicit FactoryTestRightFrame(QWidget* parent = nullptr);
    ~FactoryTestRightFrame() override;

    void startTest(int test);
    // Ends the running test with that result (nothing runs afterwards).
    void finishTest(FactoryTestResult result);
    // -1 when no test runs.
    int runningTest() const;

    void setExpectedKeys(QVector<int> const& keys);
    QVector<int> expectedKeys() const;
    QVector<int> seenKeys() const;
    void setKnobTarget(int detents);
    int knobTarget() const;
    int knobUpCount() const;
    int knobDownCount() const;
    void setTBarRange(int low, int high);
    // Reads the T-bar now: the position, or -1 without a proxy (logged; a T-bar may
    // read -1 too, so the test asks the proxy, not the value).
    int readTBar();
    int tbarMinimum() const; // -1 before the first reading of a run
    int tbarMaximum() const;
    // Colour and pattern steps: the index shown (0-based) and their number.
    int fillIndex() const;
    int fillCount() const;
    QColor fillColor() const; // invalid unless a colour is shown
    bool isFullScreen() const;
    bool isAskingVerdict() const;
    // The body text (what was seen or read so far).
    QString bodyText() const;

signals:
    void signalTestFinished(int test, int result);
    void signalFullScreen(bool full);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void refresh();
    void setFill(bool full);
    void stepFill(int delta);
    void pollTBar();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
