// One knob detent in the editors: a Key_Up/Key_Down press with level 1 sent to the
// focused number line edit, the knob text entry, a field of a multi-value row and
// a channel of the colour row, against a bare QDoubleSpinBox stepped by its own
// stepBy().
#include "benchpanel.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWidget>

using namespace LCD::Widget;

namespace {

struct Panel
{
    QWidget window;
    QDoubleSpinBox* bare = nullptr;
    NDoubleLineEdit* number = nullptr;
    QMLineEdit* text = nullptr;
    MultiSpinBox* multi = nullptr;
    TypeColorAdjust* colour = nullptr;

    Panel()
    {
        auto* layout = new QVBoxLayout(&window);
        bare = new QDoubleSpinBox(&window);
        bare->setRange(-1000.0, 1000.0);
        number = new NDoubleLineEdit(&window);
        number->setRange(-1000.0, 1000.0);
        text = new QMLineEdit(&window);
        text->setValueText(QStringLiteral("Studio A"));
        multi = new MultiSpinBox(&window);
        multi->setRange(-1000, 1000);
        colour = new TypeColorAdjust(&window);
        colour->setLabelValue(QColor(128, 128, 128));
        for (QWidget* w : {static_cast<QWidget*>(bare), static_cast<QWidget*>(number), static_cast<QWidget*>(text),
                           static_cast<QWidget*>(multi), static_cast<QWidget*>(colour)})
            layout->addWidget(w);
        window.resize(800, 400);
        Bench::showActive(window);
    }
};

Panel* panel = nullptr;

using Bench::runDetents;

void BM_BareDoubleSpinBox(benchmark::State& state)
{
    panel->bare->setFocus();
    bool up = false;
    for (auto _ : state) {
        panel->bare->stepBy(up ? 1 : -1);
        up = !up;
    }
}

void BM_NDoubleLineEdit(benchmark::State& state)
{
    panel->number->setFocus();
    runDetents(state);
}

void BM_QMLineEdit(benchmark::State& state)
{
    panel->text->setFocus();
    runDetents(state);
}

void BM_MultiSpinBoxField(benchmark::State& state)
{
    panel->multi->editValue();
    runDetents(state);
    panel->multi->closeEditValue();
}

void BM_TypeColorAdjustChannel(benchmark::State& state)
{
    panel->colour->editValue();
    runDetents(state);
    panel->colour->closeEditValue();
}

} // namespace

BENCHMARK(BM_BareDoubleSpinBox)->MinTime(0.5);
BENCHMARK(BM_NDoubleLineEdit)->MinTime(0.5);
BENCHMARK(BM_QMLineEdit)->MinTime(0.5);
BENCHMARK(BM_MultiSpinBoxField)->MinTime(0.5);
BENCHMARK(BM_TypeColorAdjustChannel)->MinTime(0.5);

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication app(argc, argv);
    Panel thePanel;
    panel = &thePanel;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
