#pragma once

// Every public class of the library is exported through this one macro; all other
// symbols stay hidden (the library is built with -fvisibility=hidden).
#if defined(LCDWIDGETS_BUILD)
#define LCDWIDGETS_EXPORT __attribute__((visibility("default")))
#else
#define LCDWIDGETS_EXPORT
#endif
