#include "platform/translation.h"

#include <utility>

namespace kelvor {

namespace {

/// The characters of one quoted line, with what stands for a new line, a tab or a quote resolved.
std::string Unquoted(std::string_view line) {
    const std::size_t first = line.find('"');
    const std::size_t last = line.rfind('"');
    std::string text;
    if (first == last) return text;
    for (std::size_t i = first + 1; i < last; ++i) {
        if (line[i] != '\\' || i + 1 == last) {
            text += line[i];
            continue;
        }
        const char escaped = line[++i];
        text += escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped == 'r' ? '\r' : escaped;
    }
    return text;
}

/// Takes the lines of a PO file, one after the other.
class PoReader {
  public:
    explicit PoReader(std::unordered_map<std::string, std::string>& texts) : texts_(texts) {}

    void Take(std::string_view line) {
        if (line.starts_with("#,")) {
            Finish();
            fuzzy_ = line.find("fuzzy") != std::string_view::npos;
        } else if (line.starts_with("msgid ")) {
            Finish();
            Begin(english_, line);
        } else if (line.starts_with("msgstr ")) {
            complete_ = true;
            Begin(translation_, line);
        } else if (line.starts_with('"') && under_ != nullptr) {
            *under_ += Unquoted(line);
        } else {
            under_ = nullptr;
        }
    }

    /// Keeps the entry that has been read; that without English is the head of the file.
    void Finish() {
        if (!complete_) return;
        if (!english_.empty()) texts_[english_] = fuzzy_ ? std::string() : translation_;
        complete_ = fuzzy_ = false;
        under_ = nullptr;
    }

  private:
    void Begin(std::string& text, std::string_view line) {
        under_ = &text;
        text = Unquoted(line);
    }

    std::unordered_map<std::string, std::string>& texts_;
    std::string english_;
    std::string translation_;
    std::string* under_ = nullptr;  // the text that the next quoted line goes on with
    bool complete_ = false;
    bool fuzzy_ = false;
};

Translation& Language() {
    static Translation language;
    return language;
}

}  // namespace

Translation Translation::ReadPo(std::string_view po) {
    Translation translation;
    PoReader reader(translation.texts_);
    while (!po.empty()) {
        const std::size_t end = std::min(po.find('\n'), po.size());
        std::string_view line = po.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        reader.Take(line);
        po.remove_prefix(std::min(end + 1, po.size()));
    }
    reader.Finish();
    return translation;
}

const std::string* Translation::Find(std::string_view english) const {
    if (texts_.empty()) return nullptr;
    const auto found = texts_.find(std::string(english));
    return found == texts_.end() || found->second.empty() ? nullptr : &found->second;
}

void Speak(Translation language) { Language() = std::move(language); }

std::string Translated(std::string_view english) {
    const std::string* translation = Language().Find(english);
    return translation == nullptr ? std::string(english) : *translation;
}

InEnglish::InEnglish() { std::swap(spoken_, Language()); }

InEnglish::~InEnglish() { std::swap(spoken_, Language()); }

std::string Filled(std::string_view text, std::initializer_list<std::string_view> parts) {
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool placeholder =
            text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        const std::size_t part = placeholder ? static_cast<std::size_t>(text[i + 1] - '1') : parts.size();
        if (part >= parts.size()) {
            filled += text[i];
            continue;
        }
        filled += parts.begin()[part];
        ++i;
    }
    return filled;
}

}  // namespace kelvor
