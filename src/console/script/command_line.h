#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelvor {

/// A command that is not understood; what() says why. The script ends there.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The words of one line of a script. Blanks separate words; a word with blanks stands in double quotes,
/// with `\"`, `\\`, `\n` and `\t` inside; a word that begins with `#` begins a comment. Throws
/// ScriptError.
std::vector<std::string> SplitWords(std::string_view line);

}  // namespace kelvor
