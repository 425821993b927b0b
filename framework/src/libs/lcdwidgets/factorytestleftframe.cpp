#include "factorytestleftframe.h"

#include "lcdtranslate.h"
#include "stylehelper.h"

#include <QDebug>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <array>

namespace LCD {
namespace Widget {

QString factoryTestName(int test)
{
    switch (test) {
    case int(FactoryTestItem::Keys): return lcdTranslate(QStringLiteral("Keys"));
    case int(FactoryTestItem::Knob): return lcdTranslate(QStringLiteral("Knob"));
    case int(FactoryTestItem::ScreenColours): return lcdTranslate(QStringLiteral("Screen colours"));
    case int(FactoryTestItem::ScreenPatterns): return lcdTranslate(QStringLiteral("Screen patterns"));
    case int(FactoryTestItem::TBar): return lcdTranslate(QStringLiteral("T-bar"));
    default: return QString();
    }
}

namespace {
QString markText(FactoryTestResult r)
{
    switch (r) {
    case FactoryTestResult::Passed: return QStringLiteral("\u2713");
    case FactoryTestResult::Failed: return QStringLiteral("\u2717");
    case FactoryTestResult::NotTested: break;
    }
    return QStringLiteral("\u2013");
}
char const* markName(FactoryTestResult r)
{
    return r == FactoryTestResult::Passed ? "pass" : r == FactoryTestResult::Failed ? "fail" : "none";
}
} // namespace

struct LCDWIDGETS_HIDDEN FactoryTestLeftFrame::Impl
{
    std::array<QLabel*, kFactoryTestCount> names{};
    std::array<QLabel*, kFactoryTestCount> marks{};
    std::array<FactoryTestResult, kFactoryTestCount> results{};
    QLabel* summary = nullptr;
    int current = 0;
};

FactoryTestLeftFrame::FactoryTestLeftFrame(QWidget* parent) : QFrame(parent), d(std::make_unique<Impl>())
{
    setObjectName(QStringLiteral("factoryTestLeftFrame"));
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(4);
    auto* grid = new QGridLayout;
    grid->setSpacing(4);
    for (int i = 0; i < kFactoryTestCount; ++i) {
        d->results[i] = FactoryTestResult::NotTested;
        d->names[i] = new QLabel(this);
        d->names[i]->setProperty("isFactoryTestName", true);
        d->names[i]->setProperty("isFactoryTestCurrent", i == 0);
        d->marks[i] = new QLabel(markText(FactoryTestResult::NotTested), this);
        d->marks[i]->setAlignment(Qt::AlignCenter);
        d->marks[i]->setProperty("factoryTestResult", QStringLiteral("none"));
        grid->addWidget(d->names[i], i, 0);
        grid->addWidget(d->marks[i], i, 1);
    }
    grid->setColumnStretch(0, 1);
    column->addLayout(grid);
    column->addStretch();
    d->summary = new QLabel(this);
    d->summary->setProperty("isFactoryTestSummary", true);
    d->summary->setWordWrap(true);
    column->addWidget(d->summary);
    retranslateUi();
}

FactoryTestLeftFrame::~FactoryTestLeftFrame() = default;

void FactoryTestLeftFrame::retranslateUi()
{
    for (int i = 0; i < kFactoryTestCount; ++i)
        d->names[i]->setText(factoryTestName(i));
    updateSummary();
}

void FactoryTestLeftFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QFrame::changeEvent(event);
}

void FactoryTestLeftFrame::setCurrentTest(int index)
{
    if (index < 0 || index >= kFactoryTestCount) {
        qWarning() << "[FactoryTestLeftFrame] test index out of range:" << index;
        return;
    }
    if (index == d->current)
        return;
    setStyleProperty(d->names[d->current], "isFactoryTestCurrent", false);
    d->current = index;
    setStyleProperty(d->names[d->current], "isFactoryTestCurrent", true);
}

int FactoryTestLeftFrame::currentTest() const { return d->current; }

void FactoryTestLeftFrame::setResult(int test, FactoryTestResult result)
{
    if (test < 0 || test >= kFactoryTestCount) {
        qWarning() << "[FactoryTestLeftFrame] test index out of range:" << test;
        return;
    }
    int const r = int(result);
    if (r < int(FactoryTestResult::NotTested) || r > int(FactoryTestResult::Failed)) {
        qWarning() << "[FactoryTestLeftFrame] unknown result:" << r;
        return;
    }
    if (d->results[test] == result)
        return;
    d->results[test] = result;
    d->marks[test]->setText(markText(result));
    setStyleProperty(d->marks[test], "factoryTestResult", QString::fromLatin1(markName(result)));
    updateSummary();
}

FactoryTestResult FactoryTestLeftFrame::result(int test) const
{
    if (test < 0 || test >= kFactoryTestCount) {
        qWarning() << "[FactoryTestLeftFrame] test index out of range:" << test;
        return FactoryTestResult::NotTested;
    }
    return d->results[test];
}

void FactoryTestLeftFrame::resetResults()
{
    for (int i = 0; i < kFactoryTestCount; ++i)
        setResult(i, FactoryTestResult::NotTested);
}

int FactoryTestLeftFrame::passedCount() const
{
    return int(std::count(d->results.begin(), d->results.end(), FactoryTestResult::Passed));
}

int FactoryTestLeftFrame::failedCount() const
{
    return int(std::count(d->results.begin(), d->results.end(), FactoryTestResult::Failed));
}

int FactoryTestLeftFrame::untestedCount() const { return kFactoryTestCount - passedCount() - failedCount(); }

QString FactoryTestLeftFrame::summaryText() const { return d->summary->text(); }

void FactoryTestLeftFrame::updateSummary()
{
    int const passed = passedCount(), failed = failedCount(), untested = untestedCount();
    QString text = lcdTranslate(QStringLiteral("Passed %1, failed %2, not tested %3"))
                       .arg(passed)
                       .arg(failed)
                       .arg(untested);
    if (untested == 0)
        text += QLatin1Char('\n')
                + (failed == 0 ? lcdTranslate(QStringLiteral("All tests passed"))
                               : lcdTranslate(QStringLiteral("Test failed")));
    if (d->summary->text() == text)
        return;
    d->summary->setText(text);
    emit signalSummaryChanged(passed, failed, untested);
}

void FactoryTestLeftFrame::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        setCurrentTest(qMax(0, d->current - 1));
        return;
    case Qt::Key_Down:
        setCurrentTest(qMin(kFactoryTestCount - 1, d->current + 1));
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit signalTestChosen(d->current);
        return;
    default:
        event->ignore();
    }
}

} // namespace Widget
} // namespace LCD
