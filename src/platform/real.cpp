#include "platform/real.h"

namespace kelvor {

void RaiseArithmeticFault(const char* operation) { throw ArithmeticFault(operation); }

}  // namespace kelvor
