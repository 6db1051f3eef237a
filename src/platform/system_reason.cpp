#include "platform/system_reason.h"

#include <cstring>

namespace kelvor {

std::string SystemReason(int code) {
    const char* reason = ::strerrordesc_np(code);
    return reason != nullptr ? reason : "Unknown error " + std::to_string(code);
}

}  // namespace kelvor
