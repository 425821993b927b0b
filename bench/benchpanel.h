// Shared by the benchmarks: the panel's screen, the knob's detents, one frame of a
// dialog (build, show, first paint, close) and a main() that runs under the default
// theme as a host does.
#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QWidget>
#include <cstdio>

namespace Bench {

// The host rectangle of the panel's screen.
inline QRect const kPanel(0, 0, 800, 480);

// One knob detent (level 1) sent to `target`.
inline void knobKey(QWidget* target, int key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("1"));
    QApplication::sendEvent(target, &press);
}

// Detents down and up in turn, each to the widget that has the focus then.
inline void runDetents(benchmark::State& state)
{
    bool up = false;
    for (auto _ : state) {
        knobKey(QApplication::focusWidget(), up ? Qt::Key_Up : Qt::Key_Down);
        up = !up;
    }
}

// Shows `window` as the active window and lets it settle.
inline void showActive(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    QApplication::processEvents();
}

// What a dialog costs the host once it is built: show, the first paint, close.
inline void showPaintClose(QWidget& dialog)
{
    dialog.show();
    QImage frame(dialog.size(), QImage::Format_ARGB32_Premultiplied);
    dialog.render(&frame);
    dialog.close();
    benchmark::DoNotOptimize(frame.constBits());
}

namespace Detail {
inline QtMessageHandler previousHandler = nullptr;

// The offscreen platform notes every window feature it lacks.
inline void dropPlatformNotes(QtMsgType type, QMessageLogContext const& context, QString const& message)
{
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (previousHandler)
        previousHandler(type, context, message);
}
} // namespace Detail

// main() of a benchmark of windows: quiet debug output, the offscreen platform unless
// another is chosen, the default theme when the build tree has it (bin/ next to
// share/), then the registered benchmarks.
inline int themedMain(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.debug=false");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Detail::previousHandler = qInstallMessageHandler(Detail::dropPlatformNotes);
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

} // namespace Bench
