#include "platform/component_probe.h"

namespace kelvor {

bool LinkedComponents::Prove(Component /*component*/) { return true; }

}  // namespace kelvor
