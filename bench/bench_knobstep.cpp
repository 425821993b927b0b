// One knob detent on a numeric row, end to end: a Key_Up/Key_Down press carrying a
// level text is sent to the focused spin box of a TypeIntAdjust, and the row's
// signalValueChanged comes out. The same key events go to a bare QSpinBox in the
// same run; the ratio of the two times is printed at the end.
//
// The "[knobspin]" debug line goes through Qt's logger, which a bare QSpinBox never
// calls: debug output of the default category is switched off (QT_LOGGING_RULES
// "default.debug=false", unless the caller sets the variable), so both sides do the
// same work. BM_TypeIntAdjustLogged shows the cost of the line when debug output is
// on and a message handler throws it away.
#include <lcdwidgets.h>

#include "benchpanel.h"
#include "benchratio.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <unistd.h>

using namespace LCD::Widget;

namespace {

constexpr int kMinimum = 0;
constexpr int kMaximum = 10000;
// A medium-speed turn: 0.01 of the (capped) range per detent.
char const* const kLevelText = "0.01";
constexpr int kBareStep = 80; // what level 0.01 gives on 0..10000: the bare box's single step

// The host page the widgets live in; shown and active so that focus is real.
struct Panel
{
    QWidget window;
    QVBoxLayout* layout = new QVBoxLayout(&window);
    TypeIntAdjust* row = nullptr;
    QSpinBox* bare = nullptr;
    long long rowSignals = 0;
    long long bareSignals = 0;

    Panel()
    {
        row = new TypeIntAdjust(SuffixPercent, QuitKeepValue, &window, 1);
        row->setItemTitleWidth(768);
        row->setItemHeight(56);
        row->setContentFontSize(20);
        row->setRange(kMinimum, kMaximum);
        row->setLabelValue(kMaximum / 2);
        row->setItemTitle(QStringLiteral("Level"));
        QObject::connect(row, &CommonItemType::signalValueChanged, [this](QVariant const&) { ++rowSignals; });

        bare = new QSpinBox(&window);
        bare->setRange(kMinimum, kMaximum);
        bare->setSingleStep(kBareStep);
        bare->setValue(kMaximum / 2);
        bare->setSuffix(QStringLiteral("%"));
        bare->setKeyboardTracking(false);
        bare->setButtonSymbols(QAbstractSpinBox::NoButtons);
        QObject::connect(bare, QOverload<int>::of(&QSpinBox::valueChanged), [this](int) { ++bareSignals; });

        layout->addWidget(row);
        layout->addWidget(bare);
        Bench::showActive(window);
    }
};

Panel* panel = nullptr;

// One detent: a fresh press event, as the panel driver posts it, alternating the
// direction so that the value never sticks at a bound.
inline void detent(QWidget* target, bool up)
{
    QKeyEvent press(QEvent::KeyPress, up ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier, QLatin1String(kLevelText));
    QApplication::sendEvent(target, &press);
}

void runDetents(benchmark::State& state, QWidget* target, long long& signalCount)
{
    long long const before = signalCount;
    bool up = true;
    for (auto _ : state) {
        detent(target, up);
        up = !up;
    }
    state.counters["signals/step"] =
        static_cast<double>(signalCount - before) / static_cast<double>(state.iterations());
}

void BM_QSpinBox(benchmark::State& state)
{
    panel->bare->setFocus(Qt::TabFocusReason);
    QWidget* target = QApplication::focusWidget();
    if (!target) {
        state.SkipWithError("no focus widget");
        return;
    }
    runDetents(state, target, panel->bareSignals);
}

void BM_TypeIntAdjust(benchmark::State& state)
{
    panel->row->editValue();
    QWidget* target = QApplication::focusWidget();
    if (!target) {
        state.SkipWithError("no focus widget");
        return;
    }
    runDetents(state, target, panel->rowSignals);
}

void discardMessages(QtMsgType, QMessageLogContext const&, QString const&) {}

void BM_TypeIntAdjustLogged(benchmark::State& state)
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=true"));
    QtMessageHandler const previous = qInstallMessageHandler(discardMessages);
    BM_TypeIntAdjust(state);
    qInstallMessageHandler(previous);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
}

// The two sides alternate, three rounds each, so that a slow phase of the machine
// hits both; the best round of each side is compared.
constexpr int kRounds = 3;

void registerBenchmarks()
{
    for (int round = 1; round <= kRounds; ++round) {
        benchmark::RegisterBenchmark(("BM_QSpinBox/round" + std::to_string(round)).c_str(), BM_QSpinBox)->MinTime(0.5);
        benchmark::RegisterBenchmark(("BM_TypeIntAdjust/round" + std::to_string(round)).c_str(), BM_TypeIntAdjust)
            ->MinTime(0.5);
    }
    for (int round = 1; round <= kRounds; ++round)
        benchmark::RegisterBenchmark(("BM_TypeIntAdjustLogged/round" + std::to_string(round)).c_str(),
                                     BM_TypeIntAdjustLogged)
            ->MinTime(0.5);
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication app(argc, argv);
    Panel thePanel;
    panel = &thePanel;

    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    double const bare = reporter.best("BM_QSpinBox");
    double const row = reporter.best("BM_TypeIntAdjust");
    double const logged = reporter.best("BM_TypeIntAdjustLogged");
    if (bare > 0.0 && row > 0.0) {
        std::printf("\nknob step, CPU time per detent (best of %d rounds):\n", kRounds);
        std::printf("  QSpinBox       %8.0f ns\n  TypeIntAdjust  %8.0f ns\n", bare, row);
        std::printf("ratio TypeIntAdjust / QSpinBox = %.2f (aim: at most 1.5)\n", row / bare);
        if (logged > 0.0)
            std::printf("with the [knobspin] line built and handed to a message handler: %.0f ns (%.2f x QSpinBox)\n",
                        logged, logged / bare);
    }
    benchmark::Shutdown();
    return 0;
}
