#include "stylehelper.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace LCD {
namespace Widget {

void repolish(QWidget* widget)
{
    if (!widget)
        return;
    // A widget not polished yet matches the sheet's selectors when it is: polishing
    // it now would only be done again then.
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return;
    QStyle* style = widget->style();
    style->unpolish(widget);
    style->polish(widget);
    widget->update();
}

void setStyleProperty(QWidget* widget, char const* name, QVariant const& value)
{
    if (!widget)
        return;
    widget->setProperty(name, value);
    repolish(widget);
}

} // namespace Widget
} // namespace LCD
