// Translation of visible texts through the host's translation service.
#pragma once

#include "lcdwidgets_global.h"

#include <QString>

namespace LCD {
namespace Widget {

// The host translation of `source` in the context "LCD::MenuWidgets", group "Global";
// the source itself when the host has no translation.
LCDWIDGETS_EXPORT QString lcdTranslate(QString const& source);

} // namespace Widget
} // namespace LCD
