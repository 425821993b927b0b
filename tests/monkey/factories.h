// Each factory file appends the entries of its group of classes.
#pragma once

#include "monkey.h"

namespace Monkey {

void addRowClasses(std::vector<ClassEntry>& out);     // item rows, editors, lists, pictures (factories_rows.cpp)
void addDeviceClasses(std::vector<ClassEntry>& out);  // choices, dialogs, device pages, instruments, system, layers (factories_devices.cpp)

} // namespace Monkey
