#include <gtest/gtest.h>

#include <string>

#include "support/test_home.h"

namespace kelvor::test {
namespace {

const Path kRoot = KELVOR_SOURCE_FOLDER;

/// The part of a source between two comments `// [name]`.
std::string SampleRegion(const std::string& source, const std::string& name) {
    const std::string marker = "// [" + name + "]\n";
    const std::size_t begin = source.find(marker);
    const std::size_t end = source.find(marker, begin + 1);
    if (begin == std::string::npos || end == std::string::npos) return "no region " + name;
    return source.substr(begin + marker.size(), end - begin - marker.size());
}

/// The block of code that follows a page's mark of a sample's region.
std::string CodeBlock(const std::string& page, const std::string& sample, const std::string& region) {
    const std::string mark = "<!-- " + sample + ": " + region + " -->\n```cpp\n";
    const std::size_t begin = page.find(mark);
    if (begin == std::string::npos) return "no block " + region;
    const std::size_t start = begin + mark.size();
    return page.substr(start, page.find("```", start) - start);
}

TEST(ContributingPageTest, ShowsTheSampleThatIsCompiled) {
    const std::string sample = "docs/samples/add_a_calculation.cpp";
    const std::string source = ReadFile(kRoot / sample);
    const std::string page = ReadFile(kRoot / "CONTRIBUTING.md");
    for (const char* region : {"calculation", "test"}) {
        EXPECT_EQ(CodeBlock(page, sample, region), SampleRegion(source, region));
    }
}

}  // namespace
}  // namespace kelvor::test
