#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kelvor {

/// Far above anything that ships.
inline constexpr std::size_t kLargestPart = 64UL * 1024UL * 1024UL;

/// One file that ships with the program and that a user's home has a copy of.
struct ShippedPart {
    std::string name;  // its path in the program folder, such as "Reports/Rep_DeF.vsr"
    std::string mark;  // of its content; see ContentMark
};

/// The files that ship, as the list of them in a program folder names them.
class ShippedParts {
  public:
    static constexpr const char* kListName = "shipped.lst";

    ShippedParts() = default;

    /// Reads the text of a list: a line each of a mark, a blank, and the name. Other lines are passed over,
    /// and so are names that lead out of the folder.
    explicit ShippedParts(std::string text);

    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] const std::vector<ShippedPart>& parts() const { return parts_; }

    /// The mark of a part; empty if it is not in the list.
    [[nodiscard]] std::string MarkOf(std::string_view name) const;

  private:
    std::string text_;
    std::vector<ShippedPart> parts_;
};

/// Sixteen digits that differ for contents that differ (64-bit FNV-1a): tells whether a user changed his
/// copy.
std::string ContentMark(std::string_view content);

/// The text of the list of a program folder: every file of it that homes have copies of.
std::string ListShippedParts(const FileSystem& files, const Path& folder);

}  // namespace kelvor
