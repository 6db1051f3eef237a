#include "platform/system_reason.h"

#include <array>
#include <cstring>

#include "platform/translation.h"

namespace kelvor {

namespace {

/// What the system says most often, for the catalogue of texts.
[[maybe_unused]] constexpr std::array kCommonReasons = {
    ToTranslate("Device or resource busy"),
    ToTranslate("Disk quota exceeded"),
    ToTranslate("File name too long"),
    ToTranslate("Input/output error"),
    ToTranslate("Is a directory"),
    ToTranslate("No space left on device"),
    ToTranslate("No such file or directory"),
    ToTranslate("Not a directory"),
    ToTranslate("Permission denied"),
    ToTranslate("Read-only file system"),
};

}  // namespace

std::string SystemReason(int code) {
    const char* reason = ::strerrordesc_np(code);
    if (reason == nullptr) return Filled(Translated("Unknown error %1"), {std::to_string(code)});
    return Translated(reason);
}

}  // namespace kelvor
