// The switcher selection page holding 128 switchers: building it and showing it (the
// first paint included), against a bare-Qt composite of the same shape (a scrolled
// grid of 128 frames with two labels each) under the same theme, in the same run;
// and one knob step (Key_Down / Key_Up) from switcher to switcher across the grid.
//
// The theme is the build tree's copy of the default theme, loaded as the application
// style sheet as a host does; debug output is off ("Switcher Info" is a debug line).
#include "benchpanel.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <unistd.h>

using namespace LCD::Widget;

namespace {

constexpr int kCount = SwitcherSelect::kMaxSwitchers;
QSize const kWindow(1280, 400);

std::vector<SwitcherInfo> const& switchers()
{
    static std::vector<SwitcherInfo> const list = [] {
        std::vector<SwitcherInfo> out;
        for (int i = 0; i < kCount; ++i) {
            SwitcherInfo s;
            s.model = "V-8HD";
            s.name = "Studio " + std::to_string(i);
            s.ip = "10.0." + std::to_string(i / 100) + "." + std::to_string(10 + i % 100);
            s.sn = "SW" + std::to_string(240100 + i);
            s.online = i % 3 != 0;
            s.isBind = i == 5;
            out.push_back(s);
        }
        return out;
    }();
    return list;
}

// Shows a window and lets it lay out and paint.
void showAndSettle(QWidget* window)
{
    window->show();
    QApplication::processEvents();
    QApplication::processEvents();
}

void BM_BareGrid(benchmark::State& state)
{
    for (auto _ : state) {
        auto window = std::make_unique<QWidget>();
        window->resize(kWindow);
        auto* layout = new QVBoxLayout(window.get());
        auto* scroll = new QScrollArea(window.get());
        scroll->setWidgetResizable(true);
        scroll->setFixedHeight(180);
        auto* container = new QWidget;
        auto* grid = new QGridLayout(container);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setHorizontalSpacing(32);
        grid->setVerticalSpacing(8);
        grid->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        for (int i = 0; i < kCount; ++i) {
            SwitcherInfo const& s = switchers()[i];
            auto* frame = new QFrame(container);
            frame->setFixedSize(510, 52);
            auto* row = new QHBoxLayout(frame);
            row->addWidget(new QLabel(QString::fromStdString(s.model), frame));
            row->addWidget(new QLabel(QStringLiteral("%1(%2)").arg(QString::fromStdString(s.name),
                                                                    QString::fromStdString(s.ip)), frame));
            grid->addWidget(frame, i / 2, i % 2);
        }
        scroll->setWidget(container);
        layout->addWidget(scroll);
        showAndSettle(window.get());
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

void BM_SwitcherSelect(benchmark::State& state)
{
    for (auto _ : state) {
        auto window = std::make_unique<QWidget>();
        window->resize(kWindow);
        auto* layout = new QVBoxLayout(window.get());
        auto* page = new SwitcherSelect(window.get());
        page->addSwitchers(switchers());
        layout->addWidget(page);
        showAndSettle(window.get());
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

void BM_SwitcherKnobStep(benchmark::State& state)
{
    QWidget window;
    window.resize(kWindow);
    auto* layout = new QVBoxLayout(&window);
    auto* page = new SwitcherSelect(&window);
    page->addSwitchers(switchers());
    layout->addWidget(page);
    showAndSettle(&window);
    QApplication::setActiveWindow(&window);
    // From the middle of the grid: each step moves to the next (or previous) switcher
    // and scrolls it into view.
    for (int i = 0; i < kCount / 2; ++i)
        Bench::knobKey(QApplication::focusWidget(), Qt::Key_Down);
    if (page->selectedIndex() != kCount / 2) {
        state.SkipWithError("the knob does not reach the middle of the grid");
        return;
    }
    bool down = true;
    for (auto _ : state) {
        Bench::knobKey(QApplication::focusWidget(), down ? Qt::Key_Down : Qt::Key_Up);
        down = !down;
    }
    QApplication::processEvents();
}

constexpr int kRounds = 3;

void registerBenchmarks()
{
    for (int round = 1; round <= kRounds; ++round) {
        benchmark::RegisterBenchmark(("BM_BareGrid/round" + std::to_string(round)).c_str(), BM_BareGrid)
            ->Unit(benchmark::kMillisecond)
            ->MinTime(1.0);
        benchmark::RegisterBenchmark(("BM_SwitcherSelect/round" + std::to_string(round)).c_str(), BM_SwitcherSelect)
            ->Unit(benchmark::kMillisecond)
            ->MinTime(1.0);
    }
    benchmark::RegisterBenchmark("BM_SwitcherKnobStep", BM_SwitcherKnobStep)->Unit(benchmark::kMicrosecond)->MinTime(0.5);
}

class RatioReporter : public benchmark::ConsoleReporter
{
public:
    RatioReporter() : ConsoleReporter(isatty(STDOUT_FILENO) ? OO_Defaults : OO_Tabular) {}
    std::map<std::string, double> realNs, cpuNs;
    void ReportRuns(std::vector<Run> const& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (Run const& run : runs) {
            if (run.error_occurred || run.iterations == 0)
                continue;
            double const toNs = run.time_unit == benchmark::kMillisecond   ? 1e6
                                : run.time_unit == benchmark::kMicrosecond ? 1e3
                                                                           : 1.0;
            realNs[run.run_name.function_name] = run.GetAdjustedRealTime() * toNs;
            cpuNs[run.run_name.function_name] = run.GetAdjustedCPUTime() * toNs;
        }
    }
};

// The offscreen platform warns on every top-level show; nothing else is dropped.
QtMessageHandler defaultHandler = nullptr;
void quietOffscreen(QtMsgType type, QMessageLogContext const& context, QString const& message)
{
    if (message.contains(QLatin1String("does not support propagateSizeHints")))
        return;
    defaultHandler(type, context, message);
}

} // namespace

int main(int argc, char** argv)
{
    defaultHandler = qInstallMessageHandler(quietOffscreen);
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication app(argc, argv);
    // The host's working directory: the theme and its images are found from bin/.
    QDir::setCurrent(QStringLiteral(LCDWIDGETS_BENCH_BIN));
    QFile theme(QStringLiteral("./../share/themes/default/default.qss"));
    if (!theme.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "bench_switcherselect: theme not found\n");
        return 1;
    }
    app.setStyleSheet(QString::fromUtf8(theme.readAll()));

    registerBenchmarks();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    auto best = [&](std::map<std::string, double> const& times, std::string const& prefix) {
        double v = 0.0;
        for (auto const& [name, ns] : times)
            if (name.compare(0, prefix.size() + 1, prefix + "/") == 0 && (v == 0.0 || ns < v))
                v = ns;
        return v;
    };
    for (auto const* times : {&reporter.realNs, &reporter.cpuNs}) {
        double const bare = best(*times, "BM_BareGrid");
        double const page = best(*times, "BM_SwitcherSelect");
        if (bare <= 0.0 || page <= 0.0)
            continue;
        std::printf("\nbuild and show 128 switchers, %s time (best of %d rounds):\n",
                    times == &reporter.realNs ? "wall" : "CPU", kRounds);
        std::printf("  bare grid of frames  %7.2f ms\n  SwitcherSelect       %7.2f ms\n", bare / 1e6, page / 1e6);
        std::printf("ratio SwitcherSelect / bare = %.2f (aim: at most 1.3, and under 50 ms)\n", page / bare);
    }
    if (auto it = reporter.realNs.find("BM_SwitcherKnobStep"); it != reporter.realNs.end())
        std::printf("knob step across the grid: %.1f us\n", it->second / 1e3);
    benchmark::Shutdown();
    return 0;
}
