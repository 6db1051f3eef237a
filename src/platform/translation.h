#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/translation.h"

namespace kelvor {

/// The program's own texts in one language, by their English wording: a catalogue in the format of GNU
/// gettext (a PO file). Numbers, units, and the texts that every version has alike are never in it.
class Translation {
  public:
    /// English: nothing is translated.
    Translation() = default;

    /// Reads a PO file. An entry that is marked fuzzy or has no translation stays English; what is no entry
    /// is passed over.
    [[nodiscard]] static Translation ReadPo(std::string_view po);

    /// The translation of a text; null if there is none.
    [[nodiscard]] const std::string* Find(std::string_view english) const;

    /// By their English wording; those without a translation are empty.
    [[nodiscard]] const std::unordered_map<std::string, std::string>& texts() const { return texts_; }

  private:
    std::unordered_map<std::string, std::string> texts_;
};

/// What the process speaks from now on. It is the one thing that all programs of a process share, and set
/// before they are made: a text that stands on the screen stays as it is.
void Speak(Translation language);

/// A text in the language that the process speaks.
[[nodiscard]] std::string Translated(std::string_view english);

/// English for as long as it lives: a report is the same in whatever language its maker works.
class InEnglish {
  public:
    InEnglish();
    InEnglish(const InEnglish&) = delete;
    InEnglish& operator=(const InEnglish&) = delete;
    ~InEnglish();

  private:
    Translation spoken_;
};

/// Marks a text of a table for the catalogue. It is translated where it is shown.
[[nodiscard]] constexpr const char* ToTranslate(const char* english) { return english; }

/// A text with its placeholders, %1 to %9, filled in. What is filled in keeps a placeholder of its own.
[[nodiscard]] std::string Filled(std::string_view text, std::initializer_list<std::string_view> parts);

}  // namespace kelvor
