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

enum class FactoryTestItem { Keys = 0, Knob, ScreenColours, ScreenPatterns, TBar };
constexpr int kFactoryTestCount = 5;
enum class FactoryTestResult { NotTested = 0, Passed, Failed };

// The translated name of a test ("Keys", "Knob", "Screen colours", "Screen patterns",
// "T-bar"); empty for a bad index.
LCDWIDGETS_EXPORT QString factoryTestName(int test);

class LCDWIDGETS_EXPORT FactoryTestLeftFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int currentTest READ currentTest WRITE setCurrentTest)
public:
    explicit FactoryTestLeftFrame(QWidget* parent = nullptr);
    ~FactoryTestLeftFrame() override;

    void setCurrentTest(int index);
    int currentTest() const;
    void setResult(int test, FactoryTestResult result);
    FactoryTestResult result(int test) const; // NotTested for a bad index (logged)
    void resetResults();
    int passedCount() const;
    int failedCount() const;
    int untestedCount() const;
    QString summaryText() const;
    void retranslateUi();

signals:
    void signalTestChosen(int index);
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
