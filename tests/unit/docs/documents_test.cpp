#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "platform/version.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

const Path kRoot = KELVOR_SOURCE_FOLDER;

/// A piece of a source that stands further to the right, moved to the margin.
std::string WithoutIndent(const std::string& piece, std::size_t indent) {
    std::istringstream lines(piece);
    std::string line;
    std::string result;
    while (std::getline(lines, line)) {
        if (line.find_first_not_of(' ') == std::string::npos && lines.eof()) break;
        result += (line.size() >= indent ? line.substr(indent) : line) + "\n";
    }
    return result;
}

/// The part of a source between two comments `// [name]`.
std::string SampleRegion(const std::string& source, const std::string& name) {
    const std::string marker = "// [" + name + "]\n";
    const std::size_t begin = source.find(marker);
    const std::size_t end = source.find(marker, begin + 1);
    if (begin == std::string::npos || end == std::string::npos) return "no region " + name;
    const std::size_t line = source.rfind('\n', begin) + 1;
    return WithoutIndent(source.substr(begin + marker.size(), end - begin - marker.size()), begin - line);
}

/// The block of code that follows a page's mark of a sample.
std::string CodeBlock(const std::string& page, const std::string& sample, const std::string& language) {
    const std::string mark = "<!-- " + sample + " -->\n```" + language + "\n";
    const std::size_t begin = page.find(mark);
    if (begin == std::string::npos) return "no block " + sample;
    const std::size_t start = begin + mark.size();
    return page.substr(start, page.find("```", start) - start);
}

void ExpectShown(const std::string& sample, const std::vector<std::string>& regions) {
    const std::string source = ReadFile(kRoot / sample);
    const std::string page = ReadFile(kRoot / "CONTRIBUTING.md");
    for (const std::string& region : regions) {
        EXPECT_EQ(CodeBlock(page, sample + ": " + region, "cpp"), SampleRegion(source, region));
    }
}

void ExpectShownWhole(const std::string& sample, const std::string& language) {
    EXPECT_EQ(CodeBlock(ReadFile(kRoot / "CONTRIBUTING.md"), sample, language), ReadFile(kRoot / sample));
}

TEST(ContributingPageTest, ShowsTheSamplesThatAreCompiled) {
    ExpectShown("docs/samples/add_a_calculation.cpp", {"calculation", "test"});
    ExpectShown("docs/samples/add_a_screen.cpp", {"screen", "test"});
    ExpectShown("docs/samples/add_an_equation_screen.cpp", {"equation", "screen", "row", "test"});
    ExpectShownWhole("docs/samples/shoulder/Screen.tsv", "text");
    ExpectShownWhole("docs/samples/shoulder/shoulder.tsv", "text");
    ExpectShownWhole("docs/samples/shoulder/Shoul.html", "html");
}

/// What stands between two texts, the first time; empty if it does not.
std::string Between(const std::string& page, const std::string& before, const std::string& after) {
    const std::size_t begin = page.find(before);
    if (begin == std::string::npos) return {};
    const std::size_t start = begin + before.size();
    return page.substr(start, page.find(after, start) - start);
}

TEST(VersionTest, WhatIsWrittenForUsersAndForThePackageIsOfTheVersionThatIsBuilt) {
    const std::string version(ProgramVersion());
    EXPECT_EQ(Between(ReadFile(kRoot / "CMakeLists.txt"), "project(Kelvor VERSION ", " "), version);
    EXPECT_EQ(Between(ReadFile(kRoot / "docs/changes.md"), "\n## ", "\n"), version);
    EXPECT_EQ(Between(ReadFile(kRoot / "debian/changelog"), "kelvor (", ")"), version);
}

}  // namespace
}  // namespace kelvor::test
