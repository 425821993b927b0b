#include "driver.h"

#include "fakehost.h"
#include "monkey_classes.h"

#include <lcd/ihomeframe.h>

#include <QApplication>
#include <QDialog>
#include <QThread>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>
#include <QVBoxLayout>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <thread>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#define MONKEY_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MONKEY_SANITIZED 1
#endif
#endif
#ifdef MONKEY_SANITIZED
extern "C" void __sanitizer_set_death_callback(void (*callback)(void));
#endif

namespace Monkey {

namespace {

// ---- The replay log: plain char buffers, so that a signal handler can print them ----

constexpr int kRing = 40;
constexpr qint64 kSlowMs = 250;
constexpr int kLine = 200;
char g_ring[kRing][kLine];
std::atomic<int> g_ringNext{0};
char g_header[256];                       // "seed S, class X"
std::atomic<long> g_event{-1};
std::atomic<unsigned long> g_heartbeat{0};
std::atomic<bool> g_busy{false};          // inside one action (the watchdog looks at it)

void writeOut(char const* text) { (void)!::write(2, text, std::strlen(text)); }

void printRing()
{
    char line[kLine + 32];
    std::snprintf(line, sizeof line, "monkey: %s, event %ld; last actions (oldest first):\n", g_header,
                  g_event.load());
    writeOut(line);
    int const next = g_ringNext.load();
    for (int i = 0; i < kRing; ++i) {
        int const n = next - kRing + i;
        if (n < 0)
            continue;
        std::snprintf(line, sizeof line, "  #%d %s\n", n, g_ring[n % kRing]);
        writeOut(line);
    }
}

void record(QString const& text)
{
    int const n = g_ringNext.fetch_add(1);
    QByteArray const bytes = text.left(kLine - 1).toUtf8();
    std::snprintf(g_ring[n % kRing], kLine, "%s", bytes.constData());
}

void onFatalSignal(int sig)
{
    char line[64];
    std::snprintf(line, sizeof line, "\nmonkey: CRASH (signal %d)\n", sig);
    writeOut(line);
    printRing();
    std::signal(sig, SIG_DFL);
    std::raise(sig);
}

void onSanitizerDeath()
{
    writeOut("\nmonkey: SANITIZER REPORT (see above)\n");
    printRing();
}

// ---- Messages ----

struct MessageState
{
    QList<QRegularExpression> allowed;    // the current class's documented warnings + the global list
    QStringList failures;                 // messages that fail the class
    bool checking = false;
    bool abortOnFailure = false;          // --abort: stop at the message (for a debugger)
    bool keepGoing = false;               // --keep-going: report each distinct message once, run on
    QSet<QString> reported;
    int seen = 0;                         // allowed library warnings (counted for the summary)
};
MessageState g_messages;

// Library messages any class may log when the host lacks an object (a page built
// outside a full host).
QStringList const kGlobalAllowed = {
    QStringLiteral("^_pKeyBoard is nullptr"),
    QStringLiteral("^-------activeWindow is null"),
    QStringLiteral("key delegate is nullptr"),
};

// Noise of the offscreen platform plug-in (not about our widgets).
QStringList const kPlatformNoise = {
    QStringLiteral("^This plugin does not support propagateSizeHints"),
    QStringLiteral("^This plugin does not support raise"),
    QStringLiteral("^This plugin does not support setting window masks"),
    QStringLiteral("^This plugin does not support grabbing the keyboard"),
    QStringLiteral("^QFontDatabase: Cannot find font directory"),
};

QtMessageHandler g_previousHandler = nullptr;

void messageHandler(QtMsgType type, QMessageLogContext const& context, QString const& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg) {
        // Informational: not checked (refusals of the older classes are logged here).
        return;
    }
    for (QString const& noise : kPlatformNoise)
        if (QRegularExpression(noise).match(text).hasMatch())
            return;
    if (g_messages.checking) {
        for (QRegularExpression const& re : g_messages.allowed) {
            if (re.match(text).hasMatch()) {
                ++g_messages.seen;
                return;
            }
        }
        QString const kind = type == QtWarningMsg ? QStringLiteral("warning")
                             : type == QtCriticalMsg ? QStringLiteral("critical")
                                                     : QStringLiteral("fatal");
        g_messages.failures << QStringLiteral("%1: %2").arg(kind, text.left(300));
        if (g_messages.keepGoing) {
            QString key = text.left(120);
            key.replace(QRegularExpression(QStringLiteral("-?\\d+")), QStringLiteral("N"));
            if (g_messages.reported.contains(key))
                return;
            g_messages.reported.insert(key);
        }
        QByteArray const line = QStringLiteral("\nmonkey: UNEXPECTED %1: %2\n").arg(kind, text.left(300)).toUtf8();
        writeOut(line.constData());
        printRing();
        if (g_messages.abortOnFailure)
            std::abort();   // a core or a debugger shows where the message came from
    } else if (g_previousHandler) {
        g_previousHandler(type, context, text);
    }
    if (type == QtFatalMsg) {
        printRing();
        std::abort();
    }
}

// ---- The watchdog: no tick for longer than the limit is a hang (an action that
// never returns, or a nested loop nothing ends) ----

void startWatchdog(int seconds)
{
    std::thread([seconds] {
        unsigned long last = g_heartbeat.load();
        auto since = std::chrono::steady_clock::now();
        for (;;) {
            std::this_thread::sleep_for(std::chrono::milliseconds(250));
            unsigned long const now = g_heartbeat.load();
            if (now != last) {
                last = now;
                since = std::chrono::steady_clock::now();
                continue;
            }
            if (std::chrono::steady_clock::now() - since > std::chrono::seconds(seconds)) {
                writeOut("\nmonkey: HANG (no progress for longer than the watchdog's limit)\n");
                printRing();
                if (g_messages.abortOnFailure)
                    std::abort();   // a debugger's "thread apply all bt" shows where the loop is
                ::_exit(3);
            }
        }
    }).detach();
}

// ---- The page: a shown top-level with a layout, and the host's home frame ----

class Page : public QWidget, public LCD::MainWidgets::IHomeFrame
{
public:
    Page()
    {
        setObjectName(QStringLiteral("monkeyPage"));
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        // The panel's screen: a host page never grows with its rows.
        setFixedSize(800, 480);
    }
    QSize size() const override { return QWidget::size(); }
};

// ---- One class's run ----

class ClassRun
{
public:
    ClassRun(ClassEntry const& entry, quint64 seed, int events, bool verbose)
        : m_entry(entry), m_rng(seed), m_events(events), m_verbose(verbose)
    {
    }

    void exec()
    {
        m_page = new Page;
        m_page->show();
        build();
        schedule(0);
        m_loop.exec();
        teardown();
    }

    int eventsRun() const { return m_done; }
    int rebuilds() const { return m_rebuilds; }

private:
    void log(QString const& what)
    {
        QString const line = QStringLiteral("%1 %2").arg(m_done).arg(what);
        record(line);
        if (m_verbose)
            std::fprintf(stderr, "  %s\n", line.toUtf8().constData());
    }

    void build()
    {
        log(QStringLiteral("build"));
        QWidget* w = m_entry.create(m_page);
        m_widget = w;
        if (w && w->parentWidget() == m_page && !w->isWindow()) {
            m_page->layout()->addWidget(w);
            w->show();
        }
        if (w && w->isWindow() && !w->isVisible() && m_rng.chance(0.5))
            w->show();
    }

    void destroy(bool later)
    {
        if (!m_widget)
            return;
        log(later ? QStringLiteral("destroy (deleteLater)") : QStringLiteral("destroy"));
        if (later)
            m_widget->deleteLater();
        else
            delete m_widget.data();
    }

    // The widget that gets the monkey's keys: an open popup, else a modal dialog,
    // else the focus widget inside the class's widget, else the widget itself.
    QWidget* keyTarget() const
    {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup->focusWidget() ? popup->focusWidget() : popup;
        if (QWidget* modal = QApplication::activeModalWidget()) {
            QWidget* focus = QApplication::focusWidget();
            return focus && modal->isAncestorOf(focus) ? focus : modal;
        }
        if (!m_widget)
            return nullptr;
        QWidget* focus = QApplication::focusWidget();
        if (focus && (focus == m_widget || m_widget->isAncestorOf(focus)))
            return focus;
        // A top-level the class opened (a menu, a dialog shown without exec) has the focus.
        if (focus && focus->window() != m_page && !m_baseline.contains(focus->window()))
            return focus;
        return m_widget;
    }

    void sendKey(int key, QString const& text)
    {
        QPointer<QWidget> target = keyTarget();
        if (!target)
            return;
        log(QStringLiteral("key %1 \"%2\" to %3").arg(keyName(key), text,
                                                     QString::fromLatin1(target->metaObject()->className())));
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(target, &press);
        if (!target)
            target = keyTarget();
        if (target) {
            QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
            QApplication::sendEvent(target, &release);
        }
    }

    static QString keyName(int key)
    {
        switch (key) {
        case Qt::Key_Up: return QStringLiteral("Up");
        case Qt::Key_Down: return QStringLiteral("Down");
        case Qt::Key_Return: return QStringLiteral("Return");
        case Qt::Key_Enter: return QStringLiteral("Enter");
        case Qt::Key_Escape: return QStringLiteral("Escape");
        default: return QStringLiteral("0x%1").arg(key, 0, 16);
        }
    }

    // A widget of the class's (the widget, a child, or an open popup/dialog) at random.
    QWidget* someWidget()
    {
        QWidget* root = QApplication::activePopupWidget();
        if (!root)
            root = QApplication::activeModalWidget();
        if (!root)
            root = m_widget;
        if (!root)
            return nullptr;
        QList<QWidget*> kids = root->findChildren<QWidget*>();
        if (kids.isEmpty() || m_rng.chance(0.3))
            return root;
        return kids.at(m_rng.between(0, kids.size() - 1));
    }

    void click()
    {
        QPointer<QWidget> w = someWidget();
        if (!w || !w->isVisible() || w->width() <= 0 || w->height() <= 0)
            return;
        QPoint const pos(m_rng.between(0, w->width() - 1), m_rng.between(0, w->height() - 1));
        log(QStringLiteral("click %1 at %2,%3").arg(QString::fromLatin1(w->metaObject()->className())).arg(pos.x()).arg(pos.y()));
        QPoint const global = w->mapToGlobal(pos);
        QMouseEvent press(QEvent::MouseButtonPress, pos, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(w, &press);
        if (!w)
            return;
        QMouseEvent release(QEvent::MouseButtonRelease, pos, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(w, &release);
    }

    void focus()
    {
        QWidget* w = someWidget();
        if (!w)
            return;
        if (m_rng.chance(0.3)) {
            log(QStringLiteral("clearFocus %1").arg(QString::fromLatin1(w->metaObject()->className())));
            w->clearFocus();
        } else {
            log(QStringLiteral("setFocus %1").arg(QString::fromLatin1(w->metaObject()->className())));
            w->setFocus(Qt::OtherFocusReason);
        }
    }

    void resizeSome()
    {
        QWidget* w = m_widget.data();
        if (!w)
            return;
        QSize const s(m_rng.between(0, 1200), m_rng.between(0, 800));
        log(QStringLiteral("resize %1 to %2x%3").arg(QString::fromLatin1(w->metaObject()->className())).arg(s.width()).arg(s.height()));
        w->resize(s);
    }

    void hideShow()
    {
        if (!m_widget)
            return;
        bool const hide = m_widget->isVisible();
        log(hide ? QStringLiteral("hide") : QStringLiteral("show"));
        m_widget->setVisible(!hide);
    }

    void waitTimers()
    {
        m_pauseMs = m_rng.between(1, 100);
        log(QStringLiteral("let timers run %1 ms").arg(m_pauseMs));
        m_pausedUntil.start();
    }

    void setter()
    {
        if (!m_widget || m_entry.actions.empty())
            return;
        Action const& a = m_entry.actions[size_t(m_rng.between(0, int(m_entry.actions.size()) - 1))];
        log(QStringLiteral("call %1").arg(a.name));
        a.call(m_widget, m_rng);
    }

    // Closes whatever the class left open (popups, modal dialogs), then ends the run.
    void finish()
    {
        if (++m_finishTries > 500) {
            // Something keeps reopening: fail rather than spin.
            if (m_finishTries == 501) {
                g_messages.failures << QStringLiteral("a popup or modal dialog cannot be closed");
                writeOut("\nmonkey: a popup or modal dialog cannot be closed\n");
                printRing();
            }
            if (QWidget* modal = QApplication::activeModalWidget())
                delete modal;
            if (m_depth == 1) {
                m_ended = true;
                m_loop.quit();
            }
            return;
        }
        if (QWidget* popup = QApplication::activePopupWidget()) {
            log(QStringLiteral("close popup %1").arg(QString::fromLatin1(popup->metaObject()->className())));
            popup->close();
            return;
        }
        if (QWidget* modal = QApplication::activeModalWidget()) {
            log(QStringLiteral("hide modal %1").arg(QString::fromLatin1(modal->metaObject()->className())));
            modal->hide();   // ends its exec(); the dialog's owner deletes it
            return;
        }
        if (QThread::currentThread()->loopLevel() > m_baseLevel) {
            // A loop is still running without a modal window: a dialog hidden while its
            // exec() ran (hiding it again does nothing), or one that is not modal any more.
            // Show and hide every dialog to end them.
            for (QWidget* w : QApplication::topLevelWidgets()) {
                auto* dialog = qobject_cast<QDialog*>(w);
                if (!dialog)
                    continue;
                log(QStringLiteral("end dialog %1%2").arg(QString::fromLatin1(w->metaObject()->className()),
                                                         dialog->isVisible() ? QString() : QStringLiteral(" (hidden)")));
                if (!dialog->isVisible())
                    dialog->show();
                dialog->hide();
            }
            return;
        }
        if (m_depth == 1) {
            m_ended = true;
            m_loop.quit();
        }
    }

    // Each tick is a fresh zero timer, posted before the action runs: a timer does not
    // fire again while its own slot runs, and a modal dialog's exec() or a popup started
    // by the action must keep receiving the monkey's events.
    void schedule(int ms) { QTimer::singleShot(ms, &m_context, [this] { tick(); }); }

    void tick()
    {
        if (m_ended)
            return;
        if (m_pausedUntil.isValid() && !m_pausedUntil.hasExpired(m_pauseMs)) {
            schedule(1);
            return;
        }
        m_pausedUntil.invalidate();
        if (m_baseLevel < 0)
            m_baseLevel = QThread::currentThread()->loopLevel();   // the first tick runs in the driver's own loop
        schedule(0);
        ++m_ticks;
        ++m_depth;
        g_busy = true;
        ++g_heartbeat;
        if (m_done >= m_events || (!g_messages.keepGoing && !g_messages.failures.isEmpty())) {
            finish();
        } else {
            g_event = m_done;
            QElapsedTimer took;
            took.start();
            long const ticksBefore = m_ticks;
            act();
            // Slow actions are reported (not failed): a knob step should cost microseconds.
            // An action that ran a nested loop (a modal dialog's exec()) is not timed.
            if (took.elapsed() > kSlowMs && m_ticks == ticksBefore) {
                QByteArray const last = QByteArray(g_ring[(g_ringNext.load() + kRing - 1) % kRing]);
                std::fprintf(stderr, "monkey: slow (%lld ms): %s: %s\n", static_cast<long long>(took.elapsed()),
                             qPrintable(m_entry.name), last.constData());
            }
            ++m_done;
        }
        ++g_heartbeat;
        g_busy = false;
        --m_depth;
    }

    void act()
    {
        if (!m_widget) {
            build();
            ++m_rebuilds;
            return;
        }
        int const r = m_rng.between(0, 999);
        if (r < 380) {
            sendKey(m_rng.coin() ? Qt::Key_Up : Qt::Key_Down, m_rng.levelText());
        } else if (r < 470) {
            sendKey(m_rng.coin() ? Qt::Key_Return : Qt::Key_Enter, QString());
        } else if (r < 540) {
            sendKey(Qt::Key_Escape, QString());
        } else if (r < 600) {
            static int const others[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Tab, Qt::Key_Backtab,
                                         Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_PageUp,
                                         Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_0,
                                         Qt::Key_5, Qt::Key_9, Qt::Key_A, Qt::Key_X, Qt::Key_Z,
                                         Qt::Key_Period, Qt::Key_F1, Qt::Key_Menu};
            int const key = others[m_rng.between(0, int(std::size(others)) - 1)];
            QString text;
            if (key >= Qt::Key_0 && key <= Qt::Key_Z)
                text = QString(QChar(key)).toLower();
            else if (key == Qt::Key_Period)
                text = QStringLiteral(".");
            sendKey(key, text);
        } else if (r < 640) {
            click();
        } else if (r < 670) {
            focus();
        } else if (r < 690) {
            resizeSome();
        } else if (r < 710) {
            hideShow();
        } else if (r < 720) {
            waitTimers();
        } else if (r < 988) {
            setter();
        } else {
            destroy(m_rng.coin());
        }
    }

    void teardown()
    {
        log(QStringLiteral("teardown"));
        delete m_widget.data();
        delete m_page.data();
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }

public:
    QSet<QWidget*> m_baseline;

private:
    ClassEntry const& m_entry;
    Rng m_rng;
    int m_events;
    bool m_verbose;
    int m_done = 0;
    int m_rebuilds = 0;
    int m_depth = 0;
    int m_finishTries = 0;
    long m_ticks = 0;
    bool m_ended = false;
    QElapsedTimer m_pausedUntil;
    int m_pauseMs = 0;
    QObject m_context;
    QEventLoop m_loop;
    int m_baseLevel = -1;
    QPointer<Page> m_page;
    QPointer<QWidget> m_widget;
};

bool isQtInternal(QWidget* w)
{
    QByteArray const cls = w->metaObject()->className();
    return cls == "QDesktopWidget" || cls == "QDesktopScreenWidget" || cls == "QTipLabel";
}

} // namespace

quint64 classSeed(quint64 runSeed, QString const& className)
{
    // FNV-1a over the name, mixed with the run seed (splitmix64's finaliser).
    quint64 h = 1469598103934665603ull;
    for (QChar c : className) {
        h ^= c.unicode();
        h *= 1099511628211ull;
    }
    quint64 z = h ^ (runSeed + 0x9e3779b97f4a7c15ull);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ull;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebull;
    return z ^ (z >> 31);
}

QStringList exportedClasses()
{
    QStringList out;
    for (char const* name : kMonkeyExportedClasses)
        out << QString::fromLatin1(name);
    return out;
}

int run(Options const& options, std::vector<ClassEntry> const& entries, bool deviceClassesJoined)
{
    std::signal(SIGSEGV, onFatalSignal);
    std::signal(SIGBUS, onFatalSignal);
    std::signal(SIGFPE, onFatalSignal);
    std::signal(SIGILL, onFatalSignal);
    std::signal(SIGABRT, onFatalSignal);
#ifdef MONKEY_SANITIZED
    __sanitizer_set_death_callback(onSanitizerDeath);
#endif
    g_messages.keepGoing = options.keepGoing;
    g_messages.abortOnFailure = options.abortOnFailure;
    g_previousHandler = qInstallMessageHandler(messageHandler);
    startWatchdog(options.hangSeconds);

    int failures = 0;

    // Every exported class has an entry.
    QSet<QString> names;
    for (ClassEntry const& e : entries)
        names.insert(e.name);
    for (QString const& cls : exportedClasses()) {
        if (names.contains(cls))
            continue;
        if (deviceClassesJoined) {
            std::fprintf(stderr, "monkey: FAIL: class %s has no monkey entry\n", qPrintable(cls));
            ++failures;
        } else if (options.verbose) {
            std::fprintf(stderr, "monkey: class %s has no monkey entry (device classes not joined yet)\n",
                         qPrintable(cls));
        }
    }
    for (QString const& name : options.only) {
        if (!names.contains(name)) {
            std::fprintf(stderr, "monkey: FAIL: --only names an unknown class: %s\n", qPrintable(name));
            ++failures;
        }
    }

    HostScope host(true);
    std::printf("monkey: seed %llu, %d events per class\n", static_cast<unsigned long long>(options.seed),
                options.events);
    std::fflush(stdout);

    QElapsedTimer total;
    total.start();
    int classes = 0;
    long allEvents = 0;
    for (ClassEntry const& entry : entries) {
        if (!options.only.isEmpty() && !options.only.contains(entry.name))
            continue;
        quint64 const seed = classSeed(options.seed, entry.name);
        std::snprintf(g_header, sizeof g_header, "seed %llu, class %s (replay: --seed %llu --only=%s)",
                      static_cast<unsigned long long>(options.seed), qPrintable(entry.name),
                      static_cast<unsigned long long>(options.seed), qPrintable(entry.name));
        g_ringNext = 0;
        g_event = -1;

        // Let whatever the previous class posted settle before the baseline.
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
        QSet<QWidget*> baseline;
        for (QWidget* w : QApplication::allWidgets())
            baseline.insert(w);

        g_messages.allowed.clear();
        for (QString const& re : entry.allowedWarnings + kGlobalAllowed)
            g_messages.allowed << QRegularExpression(re);
        g_messages.failures.clear();
        g_messages.checking = true;

        QElapsedTimer clock;
        clock.start();
        ClassRun runner(entry, seed, options.events, options.verbose);
        runner.m_baseline = baseline;
        runner.exec();

        QStringList left;
        for (QWidget* w : QApplication::allWidgets()) {
            if (baseline.contains(w) || isQtInternal(w))
                continue;
            if (w->parentWidget() && !baseline.contains(w->parentWidget()))
                continue;
            left << QStringLiteral("%1 \"%2\"").arg(QString::fromLatin1(w->metaObject()->className()),
                                                    w->objectName());
        }
        g_messages.checking = false;
        bool failed = !g_messages.failures.isEmpty();
        if (!left.isEmpty()) {
            std::fprintf(stderr, "\nmonkey: widgets left alive: %s\n", qPrintable(left.join(QStringLiteral(", "))));
            printRing();
            failed = true;
            // Do not let them spoil the next class's baseline.
            for (QWidget* w : QApplication::allWidgets())
                if (!baseline.contains(w) && !isQtInternal(w) && !w->parentWidget())
                    w->deleteLater();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        ++classes;
        allEvents += runner.eventsRun();
        std::printf("%-28s %6d events %4d rebuilds %6lld ms  %s\n", qPrintable(entry.name), runner.eventsRun(),
                    runner.rebuilds(), static_cast<long long>(clock.elapsed()),
                    failed ? "FAIL" : "ok");
        std::fflush(stdout);
        if (failed) {
            ++failures;
            std::fprintf(stderr, "monkey: replay with: lcdmonkey --seed %llu --events %d --only=%s\n",
                         static_cast<unsigned long long>(options.seed), options.events, qPrintable(entry.name));
        }
    }
    std::printf("monkey: %d classes, %ld events, %lld ms, %d failure(s)\n", classes, allEvents,
                static_cast<long long>(total.elapsed()), failures);
    qInstallMessageHandler(g_previousHandler);
    return failures == 0 ? 0 : 1;
}

} // namespace Monkey
