// The monkey's run loop: builds each class's widget on a shown page, works it with
// random events from the event loop, and fails on a crash, a hang, a sanitizer
// report, a message from Qt itself, a library warning the class does not document,
// or a widget left alive after the class is done.
#pragma once

#include "monkey.h"

#include <QStringList>

namespace Monkey {

struct Options
{
    quint64 seed = 1;
    int events = 300;            // per class
    QStringList only;            // class names; empty: every class
    bool verbose = false;        // print every action
    bool abortOnFailure = false; // abort() at the first unexpected message (run it in a debugger)
    bool keepGoing = false;      // a class runs all its events after a failure (each message reported once)
    int hangSeconds = 30;        // the watchdog's limit for one action
};

// The seed a class's run starts from: the run seed mixed with the class name, so that
// `--only=X --seed S` replays what the full run did for X.
quint64 classSeed(quint64 runSeed, QString const& className);

// Classes exported by the library (collected at configure time).
QStringList exportedClasses();

// Runs the entries; returns the process exit code (0: no failure).
int run(Options const& options, std::vector<ClassEntry> const& entries, bool deviceClassesJoined);

} // namespace Monkey
