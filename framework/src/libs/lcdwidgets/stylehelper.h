// Small helpers for the theme's dynamic-property styling.
#pragma once

#include "lcdwidgets_global.h"

class QWidget;
class QVariant;

namespace LCD {
namespace Widget {

// Unpolishes and polishes the widget's style, then updates it, so that the style
// sheet's property selectors see a changed dynamic property. Null is ignored.
LCDWIDGETS_EXPORT void repolish(QWidget* widget);

// Sets a dynamic property and re-polishes the widget. Null is ignored.
LCDWIDGETS_EXPORT void setStyleProperty(QWidget* widget, char const* name, QVariant const& value);

} // namespace Widget
} // namespace LCD
