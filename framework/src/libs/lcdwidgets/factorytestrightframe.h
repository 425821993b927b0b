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
// without a verdict (or dropped by startTest()).
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
    // No test running; keys Up, Down, press and Escape expected; knob target 5; T-bar
    // range 50..950.
    explicit FactoryTestRightFrame(QWidget* parent = nullptr);
    ~FactoryTestRightFrame() override;

    // Starts a test (FactoryTestItem as int) from scratch; a test already running (the same
    // one included) is dropped first and emits signalTestFinished(its index, NotTested). A
    // bad index is refused (see above) and leaves a running test alone.
    void startTest(int test);
    // Ends the running test with that result (nothing runs afterwards).
    void finishTest(FactoryTestResult result);
    // -1 when no test runs.
    int runningTest() const;

    // The Qt keys the Keys test waits for; an empty list is refused ("[FactoryTestRightFrame]
    // no keys to test").
    void setExpectedKeys(QVector<int> const& keys);
    // The keys the Keys test waits for.
    QVector<int> expectedKeys() const;
    // The expected keys seen so far in this run.
    QVector<int> seenKeys() const;
    // Detents each direction needs in the Knob test, 1..1000 (see above).
    void setKnobTarget(int detents);
    // Detents each direction needs (default 5).
    int knobTarget() const;
    // Up detents counted in this run.
    int knobUpCount() const;
    // Down detents counted in this run.
    int knobDownCount() const;
    // The ends the T-bar must reach (low < high; see above).
    void setTBarRange(int low, int high);
    // Reads the T-bar now: the position, or -1 without a proxy (logged; a T-bar may
    // read -1 too, so the test asks the proxy, not the value).
    int readTBar();
    int tbarMinimum() const; // -1 before the first reading of a run
    // Highest reading of the run; -1 before the first.
    int tbarMaximum() const;
    // Colour and pattern steps: the index shown (0-based) and their number.
    int fillIndex() const;
    // Number of colours (5) or patterns (4) of the running fill test; 0 for another test.
    int fillCount() const;
    QColor fillColor() const; // invalid unless a colour is shown
    // Whether the frame asks to fill the screen (a colour or pattern test runs).
    bool isFullScreen() const;
    // Whether the fill test waits for "Pass" or "Fail".
    bool isAskingVerdict() const;
    // The body text (what was seen or read so far).
    QString bodyText() const;

signals:
    // The running test ended (once): its FactoryTestResult as int; NotTested when it was
    // left without a verdict or dropped by startTest().
    void signalTestFinished(int test, int result);
    // The frame asks to be shown full screen (true) or back in the page.
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
