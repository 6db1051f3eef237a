#include "platform/markup.h"

namespace kelvor {

std::string EscapedMarkup(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char letter : text) {
        switch (letter) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += letter;
        }
    }
    return escaped;
}

}  // namespace kelvor
