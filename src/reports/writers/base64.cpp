#include "reports/writers/base64.h"

#include <cstddef>
#include <cstdint>

namespace kelvor {

std::string Base64(std::string_view bytes) {
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t kGroup = 3;
    std::string text;
    text.reserve((bytes.size() + 2) / kGroup * 4);
    for (std::size_t place = 0; place < bytes.size(); place += kGroup) {
        const std::string_view group = bytes.substr(place, kGroup);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < kGroup; ++i) {
            bits = bits << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        }
        for (std::size_t i = 0; i <= kGroup; ++i) {
            text += i <= group.size() ? kLetters[bits >> (18U - 6U * i) & 0x3FU] : '=';
        }
    }
    return text;
}

}  // namespace kelvor
