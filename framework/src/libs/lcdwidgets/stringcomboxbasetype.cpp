#include "stringcomboxbasetype.h"

namespace LCD {
namespace Widget {

StringComboxBaseType::StringComboxBaseType(QWidget* parent) : CommonItemType(parent) {}

StringComboxBaseType::~StringComboxBaseType() = default;

void StringComboxBaseType::setRowHidden(int, bool) {}

void StringComboxBaseType::setHomeFramePoint(QPoint) {}

void StringComboxBaseType::setEditable(bool) {}

void StringComboxBaseType::setDlgMenuWidgetHidden(bool) {}

} // namespace Widget
} // namespace LCD
