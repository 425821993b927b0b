// The factory test's list of tests (keys, knob, screen colours, screen patterns,
// T-bar), each with its pass/fail mark, and a summary line under them.
//
// Keys (when it has the focus): Up and Down move the current test (one per detent,
// stopping at the ends), the press emits signalTestChosen(index); Escape is not used
// and goes on to the parent (the host's page leaves the factory test).
//
// Bad input is refused and logged at warning level, nothing changes:
// "[FactoryTestLeftFrame] test index out of range:" N; result values outside
// FactoryTestResult are refused with "[FactoryTestLeftFrame] unknown result:" N.
// Theme: a test's name has "isFactoryTestName" and "isFactoryTestCurrent" (true for the
// current one), its mark "factoryTestResult" ("none", "pass", "fail"), the summary
// "isFactoryTestSummary".
#pragma once

#include "lcdwidgets_global.h"

#include <QFrame>
#include <memory>

namespace LCD {
namespace Widget {

// The factory tests, in list order.
enum class FactoryTestItem { Keys = 0, Knob, ScreenColours, ScreenPatterns, TBar };
// Number of factory tests.
constexpr int kFactoryTestCount = 5;
// A test's mark.
enum class FactoryTestResult { NotTested = 0, Passed, Failed };

// The translated name of a test ("Keys", "Knob", "Screen colours", "Screen patterns",
// "T-bar"); empty for a bad index.
LCDWIDGETS_EXPORT QString factoryTestName(int test);

class LCDWIDGETS_EXPORT FactoryTestLeftFrame : public QFrame
{
    Q_OBJECT
    // The current test (0..4).
    Q_PROPERTY(int currentTest READ currentTest WRITE setCurrentTest)
public:
    // The five tests, the first current, all NotTested.
    explicit FactoryTestLeftFrame(QWidget* parent = nullptr);
    ~FactoryTestLeftFrame() override;

    // Makes a test current (0..4); a bad index is refused (see above). No signal.
    void setCurrentTest(int index);
    // The current test.
    int currentTest() const;
    // Sets a test's mark; the summary follows (signalSummaryChanged() when its text changes).
    void setResult(int test, FactoryTestResult result);
    FactoryTestResult result(int test) const; // NotTested for a bad index (logged)
    // Every mark back to NotTested.
    void resetResults();
    // Number of tests passed.
    int passedCount() const;
    // Number of tests failed.
    int failedCount() const;
    // Number of tests not tested.
    int untestedCount() const;
    // "Passed N, failed N, not tested N", with "All tests passed" or "Test failed" on a
    // second line once every test has a mark.
    QString summaryText() const;
    // Sets the tests' names and the summary again in the current language.
    void retranslateUi();

signals:
    // The press chose the current test.
    void signalTestChosen(int index);
    // The summary changed: the counts.
    void signalSummaryChanged(int passed, int failed, int untested);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void updateSummary();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
