// A widget's own style sheet is parsed, matched and applied again at each change
// (a repolish): give it a new text only when the text really changes.
#pragma once

#include <QString>
#include <QWidget>

namespace LCD {
namespace Widget {

inline void applyStyleSheet(QWidget* widget, QString const& sheet)
{
    if (widget && widget->styleSheet() != sheet)
        widget->setStyleSheet(sheet);
}

} // namespace Widget
} // namespace LCD
