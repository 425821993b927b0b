// Dialogs on the panel: opening a message box (build, show, first paint, close)
// must fit in one 60 Hz frame (16.7 ms), and a knob step between its buttons must
// cost microseconds. Also the tile dialog and the waiting panel, which the host
// shows and hides often.
#include <lcdwidgets.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <cstdio>
#include <QPushButton>

using namespace LCD::Widget;

namespace {

QRect const kPanel(0, 0, 800, 480);

void BM_ReminderDialogOpenClose(benchmark::State& state)
{
    for (auto _ : state) {
        ReminderDialog dialog(ReminderDialog::Question, kPanel);
        dialog.setIcon(ReminderDialog::Question);
        dialog.addButton(QDialogButtonBox::YesRole);
        dialog.setDefaultButton(dialog.addButton(QDialogButtonBox::NoRole));
        dialog.setText(QStringLiteral("Overwrite preset 4 with the current settings?"));
        dialog.show();
        QImage frame(dialog.size(), QImage::Format_ARGB32_Premultiplied);
        dialog.render(&frame);
        dialog.close();
        benchmark::DoNotOptimize(frame.constBits());
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
    for (auto _ : state) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QStringLiteral("1"));
        QApplication::sendEvent(QApplication::focusWidget(), &down);
    }
}
BENCHMARK(BM_ReminderDialogKnobStep)->Unit(benchmark::kMicrosecond);

void BM_CustomReminderDialogOpenClose(benchmark::State& state)
{
    for (auto _ : state) {
        CustomReminderDialog dialog(kPanel);
        dialog.addButton(1, QStringLiteral("Save"), QStringLiteral("isIconTileSave"));
        dialog.addButton(2, QStringLiteral("Load"), QStringLiteral("isIconTileLoad"));
        dialog.addButton(3, QStringLiteral("Delete"), QStringLiteral("isIconTileDelete"), true);
        dialog.show();
        QImage frame(dialog.size(), QImage::Format_ARGB32_Premultiplied);
        dialog.render(&frame);
        dialog.close();
        benchmark::DoNotOptimize(frame.constBits());
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

// The offscreen platform notes every window feature it lacks.
QtMessageHandler g_previous = nullptr;
void dropPlatformNotes(QtMsgType type, QMessageLogContext const& context, QString const& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        g_previous(type, context, message);
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    g_previous = qInstallMessageHandler(dropPlatformNotes);
    // With the default theme when the build tree has it (bin/ next to share/).
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    QFile theme(QStringLiteral("./../share/themes/default/default.qss"));
    if (theme.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(theme.readAll()));
    std::printf("theme: %s\n", theme.isOpen() ? "default" : "none (not in the build tree)");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
