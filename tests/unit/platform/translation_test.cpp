// Catalogues in the format of GNU gettext, and texts that are filled.

#include "platform/translation.h"

#include <gtest/gtest.h>

namespace kelvor {
namespace {

constexpr const char* kPo = R"(# A comment.
msgid ""
msgstr ""
"Content-Type: text/plain; charset=UTF-8\n"

#: src/desktop/start_page.cpp
msgid "New Project"
msgstr "Proyecto nuevo"

msgid ""
"A long text\n"
"on \"two\" lines"
msgstr ""
"Un texto largo\n"
"en \"dos\" líneas"

#, fuzzy
msgid "Guessed"
msgstr "Adivinado"

msgid "Missing"
msgstr ""

msgid "Last"
msgstr "Último")";

TEST(TranslationTest, ReadsTheEntriesOfACatalogue) {
    const Translation spanish = Translation::ReadPo(kPo);
    ASSERT_NE(spanish.Find("New Project"), nullptr);
    EXPECT_EQ(*spanish.Find("New Project"), "Proyecto nuevo");
    EXPECT_EQ(*spanish.Find("A long text\non \"two\" lines"), "Un texto largo\nen \"dos\" líneas");
    EXPECT_EQ(*spanish.Find("Last"), "Último") << "without a new line at the end of the file";
    EXPECT_EQ(spanish.texts().size(), 5U);
}

TEST(TranslationTest, WhatIsGuessedOrMissingStaysEnglish) {
    const Translation spanish = Translation::ReadPo(kPo);
    for (const char* text : {"Guessed", "Missing", "Never heard of", ""}) {
        EXPECT_EQ(spanish.Find(text), nullptr) << text;
    }
}

TEST(TranslationTest, WhatIsNoCatalogueTranslatesNothing) {
    for (const char* text :
         {"", "\n", "msgid", "msgid \"a", "msgstr \"b\"", "\"c\"", "msgid \"a\\\"\nmsgstr \"\\"}) {
        EXPECT_EQ(Translation::ReadPo(text).Find("a"), nullptr) << text;
    }
}

TEST(TranslationTest, LinesMayEndAsOnOtherSystems) {
    EXPECT_EQ(*Translation::ReadPo("msgid \"a\"\r\nmsgstr \"b\"\r\n").Find("a"), "b");
}

TEST(TranslationTest, TheProcessSpeaksTheLanguageThatItWasGiven) {
    EXPECT_EQ(Translated("New Project"), "New Project");
    Speak(Translation::ReadPo(kPo));
    EXPECT_EQ(Translated("New Project"), "Proyecto nuevo");
    EXPECT_EQ(Translated("Guessed"), "Guessed");
    Speak({});
    EXPECT_EQ(Translated("New Project"), "New Project");
}

TEST(TranslationTest, WhatIsTheSameInEveryLanguageIsMadeInEnglish) {
    Speak(Translation::ReadPo(kPo));
    {
        const InEnglish english;
        EXPECT_EQ(Translated("New Project"), "New Project");
    }
    EXPECT_EQ(Translated("New Project"), "Proyecto nuevo");
    Speak({});
}

TEST(TranslationTest, PlaceholdersAreFilledInAnyOrder) {
    EXPECT_EQ(Filled("%1 of %2", {"3", "7"}), "3 of 7");
    EXPECT_EQ(Filled("de %2, %1", {"3", "7"}), "de 7, 3");
    EXPECT_EQ(Filled("%1 (%3 %)", {"a", "b", "c"}), "a (c %)");
    EXPECT_EQ(Filled("%1%2", {"%2", "x"}), "%2x") << "a part is no text to be filled";
    EXPECT_EQ(Filled("100 % of %9%", {"a"}), "100 % of %9%");
}

}  // namespace
}  // namespace kelvor
