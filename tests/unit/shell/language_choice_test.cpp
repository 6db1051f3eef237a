// Which language the environment asks for, and what of the model speaks it.

#include "shell/language_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <map>

#include "platform/translation.h"
#include "reports/run/report_texts.h"
#include "shell/overview.h"
#include "support/test_home.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;

std::vector<std::string> Asked(const std::map<std::string, std::string>& variables) {
    return LanguagesOf([&](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? std::string() : found->second;
    });
}

TEST(LanguageChoiceTest, TheEnvironmentAsksForLanguages) {
    EXPECT_THAT(Asked({}), IsEmpty());
    EXPECT_THAT(Asked({{"LANG", "es_MX.UTF-8"}}), ElementsAre("es_MX", "es"));
    EXPECT_THAT(Asked({{"LANG", "de_DE@euro"}, {"LC_MESSAGES", "es"}}), ElementsAre("es"));
    EXPECT_THAT(Asked({{"LC_ALL", "C"}, {"LC_MESSAGES", "es"}}), IsEmpty());
    EXPECT_THAT(Asked({{"LANGUAGE", "fr:es"}, {"LANG", "de_DE"}}), ElementsAre("fr", "es", "de_DE", "de"));
    EXPECT_THAT(Asked({{"LANGUAGE", "fr:en_GB:es"}, {"LANG", "de_DE"}}), ElementsAre("fr"))
        << "who prefers English reads no Spanish";
    EXPECT_THAT(Asked({{"LANGUAGE", "../es:e s:"}}), IsEmpty());
}

/// The language of one test.
class SpanishTest : public testing::Test {
  public:
    SpanishTest() { SpeakFirstOf({"fr", "es"}, files, home.home()); }
    ~SpanishTest() override { Speak({}); }

  protected:
    NativeFileSystem files;
    TestHome home;
};

TEST_F(SpanishTest, TheFirstLanguageThatIsThereIsSpoken) {
    EXPECT_THAT(SpokenLanguages(files, home.home()), Contains("es"));
    EXPECT_EQ(Translated("Overview"), "Resumen");
    SpeakFirstOf({"fr"}, files, home.home());
    EXPECT_EQ(Translated("Overview"), "Overview");
}

TEST_F(SpanishTest, WithoutTheFolderOfLanguagesEnglishIsSpoken) {
    std::filesystem::remove_all(home / "Languages");
    EXPECT_THAT(SpokenLanguages(files, home.home()), IsEmpty());
    SpeakFirstOf({"es"}, files, home.home());
    EXPECT_EQ(Translated("Overview"), "Overview");
}

TEST_F(SpanishTest, TheModelsOwnMenusAreSpanishAndTheOthersStayAsTheyAre) {
    TestProgram program;
    std::map<std::string, std::string> captions;
    for (const MenuEntry& entry : program.program.Menus()) captions.emplace(entry.name, entry.caption);
    EXPECT_EQ(captions["MenuEditUndo"], "&Deshacer");
    EXPECT_EQ(captions["MenuRecover"], "&Recuperar");
    EXPECT_EQ(captions["NewProj"], "&New Project");
    EXPECT_EQ(captions["MenuUnitsMetric"], "&Metric");
    for (const MenuTitle& title : MenuTitles()) {
        if (title.name == "MenuEdit") {
            EXPECT_EQ(title.caption, "Ed&ición");
        }
        if (title.name == "MenuWindow") {
            EXPECT_EQ(title.caption, "&Window");
        }
    }
}

TEST_F(SpanishTest, WhatAnEngineerUndoesIsToldInSpanish) {
    TestProgram program;
    program.program.Raise({UserEvent::Kind::OpenForm, "DeF"});
    program.program.Raise({UserEvent::Kind::Type, {}, "5000000.5"});
    program.program.Raise({UserEvent::Kind::Key, "Enter"});
    for (const MenuEntry& entry : program.program.Menus()) {
        if (entry.name != "MenuEditUndo") continue;
        EXPECT_TRUE(entry.caption.starts_with("&Deshacer cambio de ")) << entry.caption;
    }
}

/// 1 / 8 has the same digits in every language, and the C library still writes them with a point.
TEST_F(SpanishTest, NumbersAndWhatEveryVersionHasAlikeDoNotChange) {
    TestProgram program;
    const std::string locale = std::setlocale(LC_NUMERIC, nullptr);
    program.program.SetValue("FLEXDEV", 1, 1, "0.125");
    program.program.SetValue("FLEXE18", 1, 1, "5,000,000");
    EXPECT_EQ(program.Get("FLEXDEV"), 0.125);
    EXPECT_EQ(program.Get("FLEXE18"), 5e6);
    EXPECT_EQ(program.program.state().units->GetDisplayValue("FLEXE18"), "5,000,000");
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), locale);
    program.program.Raise({UserEvent::Kind::OpenForm, "DeF"});
    const Form& form = *program.program.state().formRegistry.Find("DeF");
    EXPECT_EQ(form.caption, program.program.state().formRegistry.FindType("DeF")->caption);
    const std::vector<OverviewLine> lines = MakeOverview(program.program.state());
    ASSERT_EQ(lines.size(), 1U);
    Speak({});
    const std::vector<OverviewLine> english = MakeOverview(program.program.state());
    EXPECT_EQ(lines[0].title, english[0].title);
    EXPECT_EQ(lines[0].results[0].text, english[0].results[0].text);
}

TEST_F(SpanishTest, AScreenSaysInSpanishWhatItsReportSaysInEnglish) {
    TestProgram program;
    program.program.Raise({UserEvent::Kind::OpenForm, "OvWT"});
    const Form& form = *program.program.state().formRegistry.Find("OvWT");
    EXPECT_EQ(form.TextOf("GOVERNS"), "El espesor del whitetopping no se conoce todavía.");
    const auto texts = ReportTexts(program.program.state().MakeScreenContext(), "OvWT", "road.kvr");
    EXPECT_THAT(texts, Contains(Pair("Governs", "The whitetopping thickness is not known yet.")));
    EXPECT_THAT(texts, Contains(Pair("Check", StartsWith("Missing: "))));
}

TEST_F(SpanishTest, WhyAnOptionIsOffIsToldInSpanish) {
    TestProgram program;
    program.program.Raise({UserEvent::Kind::SwitchTab, {}, {}, 1});
    const Form& hub = *program.program.state().formRegistry.Find("TabForm");
    EXPECT_EQ(hub.Find("AxleData")->toolTip, "necesita los valores de Pavement & Traffic Inputs");
    program.program.Raise({UserEvent::Kind::SwitchTab, {}, {}, 3});
    EXPECT_EQ(hub.Find("oOvAA")->toolTip,
              "necesita " + program.program.state().dbCatalogue->FindVariable("EXISTRM")->desc);
}

}  // namespace
}  // namespace kelvor::test
