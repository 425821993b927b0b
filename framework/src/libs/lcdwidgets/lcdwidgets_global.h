#pragma once

// Every public class of the library is exported through this one macro; all other
// symbols stay hidden (the library is built with -fvisibility=hidden).
#if defined(LCDWIDGETS_BUILD)
#define LCDWIDGETS_EXPORT __attribute__((visibility("default")))
#else
#define LCDWIDGETS_EXPORT
#endif

// The private parts of exported classes (their Impl structs, defined in the sources)
// stay out of the export table, member functions included.
#define LCDWIDGETS_HIDDEN __attribute__((visibility("hidden")))
