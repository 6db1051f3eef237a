// The catalogue of texts holds what the sources mark, and each language fits it. KELVOR_RENEW_EXPECTED=1
// makes the catalogue anew from the sources.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "platform/translation.h"
#include "support/temporary_folder.h"

namespace kelvor::test {
namespace {

using testing::Contains;

const Path kSources = Path(KELVOR_SOURCE_FOLDER) / "src";
const Path kTranslations = Path(KELVOR_SOURCE_FOLDER) / "data/translations";

/// The page of the help that is translated, and what of it: headings, paragraphs and cells of nothing but
/// text.
const char* const kKeys = "data/help/Keys.html";

void AddTextsOfKeys(std::map<std::string, std::string>& texts) {
    static const std::regex element(R"re(<(title|h1|h2|p|th|td)>([^<]+)</\1>)re");
    static const std::regex blanks("\\s+");
    const std::string page = ReadFile(Path(KELVOR_SOURCE_FOLDER) / kKeys);
    for (std::sregex_iterator hit(page.begin(), page.end(), element), end; hit != end; ++hit) {
        texts.emplace(std::regex_replace((*hit)[2].str(), blanks, " "), kKeys);
    }
}

/// The marked texts, as the sources write them, each with the first file that it stands in.
std::map<std::string, std::string> MarkedTexts() {
    static const std::regex marked(
        R"re((?:Translated|TranslatedText|ToTranslate)\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\))re");
    static const std::regex literal(R"re("((?:[^"\\]|\\.)*)")re");
    std::map<std::string, std::string> texts;
    std::set<Path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kSources)) {
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
            files.insert(entry.path());
    }
    for (const Path& file : files) {
        const std::string source = ReadFile(file);
        for (std::sregex_iterator call(source.begin(), source.end(), marked), end; call != end; ++call) {
            const std::string literals = (*call)[1];
            std::string text;
            for (std::sregex_iterator part(literals.begin(), literals.end(), literal); part != end; ++part) {
                text += (*part)[1];
            }
            texts.emplace(text, file.lexically_relative(KELVOR_SOURCE_FOLDER).string());
        }
    }
    AddTextsOfKeys(texts);
    return texts;
}

std::string MakeCatalogue(const std::map<std::string, std::string>& texts) {
    std::map<std::string, std::set<std::string>> byFile;
    for (const auto& [text, file] : texts) byFile[file].insert(text);
    std::ostringstream pot;
    pot << "# The texts of Kelvor's own. A language is a file beside this one with translations in it, such "
           "as\n"
           "# es.po; msgmerge brings one up to date.\n"
           "msgid \"\"\nmsgstr \"\"\n"
           "\"Project-Id-Version: kelvor\\n\"\n"
           "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
           "\"Content-Transfer-Encoding: 8bit\\n\"\n";
    for (const auto& [file, own] : byFile) {
        for (const std::string& text : own) {
            pot << "\n#: " << file << "\nmsgid \"" << text << "\"\nmsgstr \"\"\n";
        }
    }
    return pot.str();
}

Translation ReadCatalogue(const Path& file) { return Translation::ReadPo(ReadFile(file)); }

std::multiset<std::string> PlaceholdersOf(const std::string& text) {
    static const std::regex placeholder("%[1-9]");
    std::multiset<std::string> found;
    for (std::sregex_iterator hit(text.begin(), text.end(), placeholder), end; hit != end; ++hit) {
        found.insert(hit->str());
    }
    return found;
}

/// A letter marked for an access key; doubled ampersands and pairs of words ("A & B") mark none.
int MarkedKeys(const std::string& text) {
    static const std::regex mark("&[^& ]");
    return static_cast<int>(
        std::distance(std::sregex_iterator(text.begin(), text.end(), mark), std::sregex_iterator()));
}

bool EndsInDots(const std::string& text) { return text.ends_with("..."); }

std::size_t LinesOf(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

TEST(TranslationCatalogueTest, TheCatalogueHoldsWhatTheSourcesMark) {
    const std::string wanted = MakeCatalogue(MarkedTexts());
    const Path file = kTranslations / "kelvor.pot";
    if (std::getenv("KELVOR_RENEW_EXPECTED") != nullptr) std::ofstream(file) << wanted;
    EXPECT_GT(MarkedTexts().size(), 100U);
    EXPECT_EQ(ReadFile(file), wanted);
}

TEST(TranslationCatalogueTest, EveryLanguageFitsTheCatalogue) {
    const Translation catalogue = ReadCatalogue(kTranslations / "kelvor.pot");
    std::vector<std::string> languages;
    for (const auto& entry : std::filesystem::directory_iterator(kTranslations)) {
        if (entry.path().extension() != ".po") continue;
        languages.push_back(entry.path().stem().string());
        SCOPED_TRACE(languages.back());
        const Translation language = ReadCatalogue(entry.path());
        for (const auto& [english, translation] : language.texts()) {
            EXPECT_TRUE(catalogue.texts().contains(english)) << "no text of Kelvor's: " << english;
            if (translation.empty()) continue;
            EXPECT_EQ(PlaceholdersOf(translation), PlaceholdersOf(english)) << english;
            EXPECT_EQ(MarkedKeys(translation), MarkedKeys(english)) << english;
            EXPECT_EQ(EndsInDots(translation), EndsInDots(english)) << english;
            EXPECT_EQ(LinesOf(translation), LinesOf(english)) << english;
        }
    }
    EXPECT_THAT(languages, Contains("es"));
}

TEST(TranslationCatalogueTest, SpanishHasEveryText) {
    const Translation catalogue = ReadCatalogue(kTranslations / "kelvor.pot");
    const Translation spanish = ReadCatalogue(kTranslations / "es.po");
    EXPECT_GT(catalogue.texts().size(), 400U);
    for (const auto& [english, none] : catalogue.texts()) {
        EXPECT_NE(spanish.Find(english), nullptr) << english;
    }
}

}  // namespace
}  // namespace kelvor::test
