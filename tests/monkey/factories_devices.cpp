#include "factories.h"

namespace Monkey {

void addDeviceClasses(std::vector<ClassEntry>&) {}

} // namespace Monkey
