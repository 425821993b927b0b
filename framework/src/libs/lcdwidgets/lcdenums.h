// Enumerations shared by the widgets and the host's pages.
#pragma once

namespace LCD {
namespace Widget {

// Suffix shown after a spin box value.
enum SuffixType {
    SuffixNone = 0,
    SuffixPercent = 1, // "%"
    SuffixSecond = 2,  // "s"
    SuffixDegree = 3,  // "°" (integer boxes only)
};

// How a numeric row is left; passed through to the spin boxes, which only keep it.
enum QuitStrategy {
    QuitKeepValue = 0,
    QuitOnFocusOut = 1,
    QuitOnEnter = 2,
};

namespace Enum {

// Buttons of a bottom bar; combine the flags.
enum BottomButtonType {
    BottomOk = 1,
    BottomCancel = 2,
    BottomPreStep = 4,
    BottomExport = 8,
    BottomUpdate = 16,
};

// Buttons of a reset/apply bar.
enum ResetApplyButtonType {
    ResetButton = 1,
    ApplyButton = 2,
    ResetAndApplyButton = 3,
};

// ---- Dialogs ----
// Kind of a reminder or toast dialog; selects its icon ("isReminderIcon").
enum DialogType {
    DialogInformation = 0,
    DialogQuestion = 1,
    DialogWarning = 2,
    DialogProsper = 3, // success
    DialogError = 4,
    DialogOngoing = 5,  // busy, no buttons
    DialogProgress = 6, // with a progress bar
};

} // namespace Enum
} // namespace Widget
} // namespace LCD
