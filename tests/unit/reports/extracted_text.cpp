#include "extracted_text.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <utility>

namespace kelvor::test {

namespace {

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t place = text.find(from); place != std::string::npos; place = text.find(from, place)) {
        text.replace(place, from.size(), to);
        place += to.size();
    }
}

}  // namespace

std::string TextOfHtml(const std::string& page) {
    std::string text;
    bool inTag = false;
    for (const char letter : page.substr(page.find("<body>"))) {
        if (letter == '<') inTag = true;
        if (!inTag) text += letter;
        if (letter == '>') {
            inTag = false;
            text += ' ';
        }
    }
    ReplaceAll(text, "&lt;", "<");
    ReplaceAll(text, "&gt;", ">");
    ReplaceAll(text, "&quot;", "\"");
    ReplaceAll(text, "&amp;", "&");
    return text;
}

std::string OutputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
    if (pipe == nullptr) throw std::runtime_error("cannot start " + command);
    std::string output;
    std::array<char, 4096> part{};
    for (std::size_t count = 0; (count = std::fread(part.data(), 1, part.size(), pipe.get())) > 0;) {
        output.append(part.data(), count);
    }
    return output;
}

}  // namespace kelvor::test
