#pragma once

#include <string>

namespace kelvor::test {

// What a reader of a file sees: its words and numbers, found without any part of Kelvor.

/// The texts between the tags of a page of the web.
std::string TextOfHtml(const std::string& page);

/// What a program of the distribution writes to its standard output.
std::string OutputOf(const std::string& command);

}  // namespace kelvor::test
