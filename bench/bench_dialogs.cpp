// Dialogs on the panel: opening a message box (build, show, first paint, close)
// must fit in one 60 Hz frame (16.7 ms), and a knob step between its buttons must
// cost microseconds. Also the tile dialog and the waiting panel, which the host
// shows and hides often.
#include "benchpanel.h"

#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

using namespace LCD::Widget;
using Bench::kPanel;

namespace {

void BM_ReminderDialogOpenClose(benchmark::State& state)
{
    for (auto _ : state) {
        ReminderDialog dialog(ReminderDialog::Question, kPanel);
        dialog.setIcon(ReminderDialog::Question);
        dialog.addButton(QDialogButtonBox::YesRole);
        dialog.setDefaultButton(dialog.addButton(QDialogButtonBox::NoRole));
        dialog.setText(QStringLiteral("Overwrite preset 4 with the current settings?"));
        Bench::showPaintClose(dialog);
    }
}
BENCHMARK(BM_ReminderDialogOpenClose)->Unit(benchmark::kMillisecond);

void BM_ReminderDialogKnobStep(benchmark::State& state)
{
    ReminderDialog dialog(ReminderDialog::Warning, kPanel);
    dialog.addButton(QDialogButtonBox::ActionRole);
    dialog.addButton(QDialogButtonBox::YesRole);
    dialog.addButton(QDialogButtonBox::NoRole);
    dialog.setText(QStringLiteral("Input 3 has lost its signal."));
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QApplication::processEvents();
    for (auto _ : state)
        Bench::knobKey(QApplication::focusWidget(), Qt::Key_Down);
}
BENCHMARK(BM_ReminderDialogKnobStep)->Unit(benchmark::kMicrosecond);

void BM_CustomReminderDialogOpenClose(benchmark::State& state)
{
    for (auto _ : state) {
        CustomReminderDialog dialog(kPanel);
        dialog.addButton(1, QStringLiteral("Save"), QStringLiteral("isIconTileSave"));
        dialog.addButton(2, QStringLiteral("Load"), QStringLiteral("isIconTileLoad"));
        dialog.addButton(3, QStringLiteral("Delete"), QStringLiteral("isIconTileDelete"), true);
        Bench::showPaintClose(dialog);
    }
}
BENCHMARK(BM_CustomReminderDialogOpenClose)->Unit(benchmark::kMillisecond);

void BM_WaitingDialogShowHide(benchmark::State& state)
{
    WaitingDialog* waiting = WaitingDialog::instance(kPanel);
    for (auto _ : state) {
        waiting->showWaitingDialog(QStringLiteral("Saving..."), kPanel);
        waiting->hideWaitingDialog();
    }
    WaitingDialog::deleteInstance();
}
BENCHMARK(BM_WaitingDialogShowHide)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) { return Bench::themedMain(argc, argv); }
