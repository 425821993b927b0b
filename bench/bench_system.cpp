// The System classes on the panel: opening the text view and the multi-progress
// dialog (build, show, first paint, close) must fit in one 60 Hz frame; a knob step
// in the text view and the about page, a progress update, and a key swallowed by the
// locked panel must cost microseconds.
#include "benchpanel.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>

using namespace LCD::Widget;
using Bench::kPanel;

namespace {

QString licence()
{
    QStringList lines;
    for (int i = 0; i < 300; ++i)
        lines << QStringLiteral("Line %1: the software is provided as is, without warranty of any kind.").arg(i);
    return lines.join(QLatin1Char('\n'));
}

void BM_TextViewOpenClose(benchmark::State& state)
{
    QString const text = licence();
    for (auto _ : state) {
        TextViewDialog dialog(kPanel);
        dialog.setTitle(QStringLiteral("Licences"));
        dialog.setText(text);
        Bench::showPaintClose(dialog);
    }
}
BENCHMARK(BM_TextViewOpenClose)->Unit(benchmark::kMillisecond);

void BM_TextViewKnobStep(benchmark::State& state)
{
    TextViewDialog dialog(kPanel);
    dialog.setText(licence());
    dialog.show();
    QApplication::processEvents();
    QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : &dialog;
    int i = 0;
    for (auto _ : state)
        Bench::knobKey(target, (i++ / 20) % 2 ? Qt::Key_Up : Qt::Key_Down);
}
BENCHMARK(BM_TextViewKnobStep)->Unit(benchmark::kMicrosecond);

void BM_MultiProgressOpenClose(benchmark::State& state)
{
    for (auto _ : state) {
        MutilProgressBarDialog dialog(kPanel);
        dialog.setTitle(QStringLiteral("Updating cameras"));
        for (int t = 0; t < 8; ++t)
            dialog.addTask(QStringLiteral("Camera %1").arg(t));
        Bench::showPaintClose(dialog);
    }
}
BENCHMARK(BM_MultiProgressOpenClose)->Unit(benchmark::kMillisecond);

void BM_MultiProgressUpdate(benchmark::State& state)
{
    MutilProgressBarDialog dialog(kPanel);
    for (int t = 0; t < 8; ++t)
        dialog.addTask(QStringLiteral("Camera %1").arg(t));
    int v = 0;
    for (auto _ : state) {
        dialog.setTaskValue(v % 8, (v / 8) % 101);
        ++v;
    }
}
BENCHMARK(BM_MultiProgressUpdate)->Unit(benchmark::kMicrosecond);

void BM_AboutPageKnobStep(benchmark::State& state)
{
    AboutPage page;
    page.resize(800, 400);
    for (int r = 0; r < 20; ++r)
        page.setInfo(QStringLiteral("Key %1").arg(r), QStringLiteral("Value %1").arg(r));
    page.show();
    QApplication::processEvents();
    int i = 0;
    for (auto _ : state)
        Bench::knobKey(&page, (i++ / 19) % 2 ? Qt::Key_Up : Qt::Key_Down);
}
BENCHMARK(BM_AboutPageKnobStep)->Unit(benchmark::kMicrosecond);

void BM_LockedPanelSwallowsKey(benchmark::State& state)
{
    QWidget page;
    LockPanel lock(kPanel, &page);
    lock.setReminderTime(3600000);
    lock.lock();
    Bench::knobKey(&page, Qt::Key_Down); // the reminder is up: later keys only keep it up
    for (auto _ : state)
        Bench::knobKey(&page, Qt::Key_Down);
    lock.unlock();
}
BENCHMARK(BM_LockedPanelSwallowsKey)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) { return Bench::themedMain(argc, argv); }
