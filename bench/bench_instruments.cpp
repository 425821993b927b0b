// Dials against the 16.7 ms frame of a 60 Hz display.
//
// BM_PaintFourDials/full     a row of four 168 px dials (the gallery's row, at the
//                            panel's size) painted whole, faces included: every
//                            dial's arc colour changes before each paint, so every
//                            face is drawn again (what a page's first paint costs).
// BM_PaintFourDials/frame    the same paint with the faces kept (what a frame of a
//                            pointer animation costs).
// BM_KnobKey                 the key of one knob step alone (no painting).
// BM_KnobStepToTheEnd        one knob step on the focused dial (a Key_Down press
//                            with its level text) and its pointer animation driven to
//                            the end frame by frame at 60 Hz, each frame painted: the
//                            whole CPU cost of one step.
//
// Painting goes to a QImage through QWidget::render, so the figures do not depend on
// the platform plug-in's screen.
#include "benchpanel.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QAbstractAnimation>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QVBoxLayout>
#include <cstdio>
#include <map>
#include <string>
#include <unistd.h>

using namespace LCD::Widget;

namespace {

constexpr int kFrameMs = 16; // one 60 Hz frame, rounded down

DashBoardData dial(int min, int max, double startAngle, double endAngle, int major, int minor, double step,
                   int fraction, char const* unit, char const* text)
{
    DashBoardData d;
    d.min = min;
    d.max = max;
    d.startAngle = startAngle;
    d.endAngle = endAngle;
    d.scaleMajor = major;
    d.scaleMinor = minor;
    d.step = step;
    d.fraction = fraction;
    d.unit = QString::fromUtf8(unit);
    d.text = QString::fromUtf8(text);
    return d;
}

struct Panel
{
    QWidget window;
    TypeItemDashBoard* row = nullptr;
    QImage target;

    Panel()
    {
        window.setFixedSize(800, 240);
        auto* layout = new QVBoxLayout(&window);
        row = new TypeItemDashBoard(&window);
        QMap<int, DashBoardData> dials;
        dials.insert(0, dial(-60, 12, -50, 230, 6, 4, 1.0, 0, "dB", "Audio level"));
        dials.insert(1, dial(0, 100, -50, 230, 10, 5, 1.0, 0, "%", "T-bar"));
        dials.insert(2, dial(20, 80, -30, 210, 6, 5, 0.5, 1, "°C", "Temperature"));
        dials.insert(3, dial(0, 5000, 0, 180, 5, 4, 50.0, 0, "rpm", "Fan"));
        row->setListItems(dials);
        row->setItemSize(QSize(168, 168));
        row->setItemTitleWidth(768);
        row->setItemHeight(212);
        row->setContentFontSize(20);
        row->setFixedHeight(212);
        layout->addWidget(row);
        Bench::showActive(window);
        target = QImage(row->size() * window.devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
        target.setDevicePixelRatio(window.devicePixelRatioF());
    }

    void paint()
    {
        QPainter p(&target);
        row->render(&p);
    }
};

Panel* panel = nullptr;

void BM_PaintFourDialsFull(benchmark::State& state)
{
    bool selected = false;
    for (auto _ : state) {
        selected = !selected;
        for (int key = 0; key < 4; ++key)
            panel->row->dashBoard(key)->setSelected(selected); // a new arc colour: faces drawn again
        panel->paint();
    }
}

void BM_PaintFourDialsFrame(benchmark::State& state)
{
    panel->paint(); // faces drawn once
    double v = 0;
    for (auto _ : state) {
        v = v > 90 ? 0 : v + 7;
        panel->row->dashBoard(1)->setCurrentValue(v); // the pointer moves, the faces stay
        panel->paint();
    }
}

void BM_KnobStepToTheEnd(benchmark::State& state)
{
    DashBoardWidget* dial = panel->row->dashBoard(1);
    auto* animation = dial->findChild<QPropertyAnimation*>();
    if (!animation) {
        state.SkipWithError("no animation");
        return;
    }
    dial->setFocus(Qt::OtherFocusReason);
    dial->setCurrentValue(50);
    panel->paint();
    bool down = true;
    long long frames = 0;
    for (auto _ : state) {
        Bench::knobKey(dial, down ? Qt::Key_Down : Qt::Key_Up);
        down = !down;
        // The animation's frames, as the 60 Hz animation timer would drive them.
        int const duration = animation->duration();
        for (int t = kFrameMs; t < duration + kFrameMs; t += kFrameMs) {
            animation->setCurrentTime(qMin(t, duration));
            panel->paint();
            ++frames;
        }
        if (animation->state() == QAbstractAnimation::Running)
            animation->stop();
    }
    state.counters["frames/step"] = double(frames) / double(state.iterations());
}

// The key alone: the step computed, the value clamped and rounded, the signal emitted
// and the animation (re)started.
void BM_KnobKey(benchmark::State& state)
{
    DashBoardWidget* dial = panel->row->dashBoard(1);
    dial->setFocus(Qt::OtherFocusReason);
    dial->setCurrentValue(50);
    bool down = true;
    for (auto _ : state) {
        Bench::knobKey(dial, down ? Qt::Key_Down : Qt::Key_Up);
        down = !down;
    }
    dial->setCurrentValue(50);
}

class FrameReporter : public benchmark::ConsoleReporter
{
public:
    FrameReporter() : ConsoleReporter(isatty(STDOUT_FILENO) ? OO_Defaults : OO_Tabular) {}
    std::map<std::string, double> cpuNs;
    std::map<std::string, double> framesPerStep;
    void ReportRuns(std::vector<Run> const& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (Run const& run : runs) {
            if (run.error_occurred || run.iterations == 0)
                continue;
            // Reported in the benchmark's own unit: back to nanoseconds.
            cpuNs[run.benchmark_name()] =
                run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
            auto it = run.counters.find("frames/step");
            if (it != run.counters.end())
                framesPerStep[run.benchmark_name()] = it->second;
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication app(argc, argv);
    Panel thePanel;
    panel = &thePanel;

    benchmark::RegisterBenchmark("BM_PaintFourDials/full", BM_PaintFourDialsFull)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("BM_PaintFourDials/frame", BM_PaintFourDialsFrame)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("BM_KnobStepToTheEnd", BM_KnobStepToTheEnd)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("BM_KnobKey", BM_KnobKey)->Unit(benchmark::kMicrosecond);
    benchmark::Initialize(&argc, argv);
    FrameReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    double const budget = 1000.0 / 60.0; // ms
    std::printf("\nagainst one 60 Hz frame (%.1f ms), CPU time:\n", budget);
    for (auto const& [name, ns] : reporter.cpuNs) {
        double const ms = ns / 1e6;
        if (name == "BM_KnobStepToTheEnd") {
            double const frames = reporter.framesPerStep[name];
            double const perFrame = frames > 0 ? ms / frames : 0.0;
            std::printf("  %-26s %8.1f us per step over %.0f frames: %.1f us a frame (%.1f %% of a frame)\n",
                        name.c_str(), ms * 1000, frames, perFrame * 1000, 100.0 * perFrame / budget);
        } else {
            std::printf("  %-26s %8.1f us (%.2f %% of a frame)\n", name.c_str(), ms * 1000, 100.0 * ms / budget);
        }
    }
    std::printf("aim: a full paint of the four dials well under 4 ms\n");
    benchmark::Shutdown();
    return 0;
}
