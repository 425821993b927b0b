// The factory test page: the list of tests on the left (FactoryTestLeftFrame, a third
// of the width) and the running test on the right (FactoryTestRightFrame). The list has
// the knob; its press starts the chosen test and hands the knob to the right frame;
// when the test ends its result goes to the list's mark and summary and the knob comes
// back to the list. Colour and pattern fills take the whole page (the list is hidden
// meanwhile). Escape on the list is not used: it goes on to the host's page.
//
// Signals: signalTestStarted(test), signalTestFinished(test, result) (result as
// FactoryTestResult; NotTested when left without a verdict, which keeps the old mark),
// signalSummaryChanged(passed, failed, untested).
// Bad input: startTest with a bad index is refused with
// "[FactoryTestFrame] test index out of range:" N (warning).
// Theme: the page is "factoryTestFrame" (object name).
#pragma once

#include "factorytestleftframe.h"
#include "factorytestrightframe.h"
#include "lcdwidgets_global.h"

#include <QFrame>
#include <memory>

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT FactoryTestFrame : public QFrame
{
    Q_OBJECT
public:
    // The list and the right frame, no test running, every test NotTested.
    explicit FactoryTestFrame(QWidget* parent = nullptr);
    ~FactoryTestFrame() override;

    // The list of tests (owned by the page).
    FactoryTestLeftFrame* leftFrame() const;
    // The running test's frame (owned by the page).
    FactoryTestRightFrame* rightFrame() const;

    // Starts a test (FactoryTestItem as int), makes it the list's current one and, when the
    // page had the knob, hands it to the right frame; then signalTestStarted(test).
    void startTest(int test);
    // Whether a test runs.
    bool isTestRunning() const;
    // A test's mark; NotTested for a bad index (logged by the list).
    FactoryTestResult result(int test) const;
    // Clears every mark to NotTested (the summary follows).
    void resetResults();

signals:
    // A test started.
    void signalTestStarted(int test);
    // A test ended: its FactoryTestResult as int (NotTested: left without a verdict).
    void signalTestFinished(int test, int result);
    // The list's counts changed.
    void signalSummaryChanged(int passed, int failed, int untested);

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
