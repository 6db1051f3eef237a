#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <bit>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "forms/access_keys.h"
#include "forms/form.h"
#include "forms/indicator.h"
#include "forms/recalculation.h"
#include "shell/main_window.h"
#include "support/random_events.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

/// A number to its last bit.
std::string Bits(const std::optional<double>& number) {
    return number ? std::to_string(std::bit_cast<std::uint64_t>(*number)) : "null";
}

class FormsTest : public testing::Test {
  protected:
    bool Raise(Kind kind, const std::string& name = {}, const std::string& text = {}, int number = 0) {
        return program_.program.Raise({kind, name, text, number});
    }

    Form& Open(const std::string& name) {
        EXPECT_TRUE(Raise(Kind::OpenForm, name));
        return *program_.program.state().formRegistry.Find(name);
    }

    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }

    TestProgram program_;
    std::unique_ptr<ScreenContext> context_ =
        std::make_unique<ScreenContext>(program_.program.state().MakeScreenContext());
};

TEST_F(FormsTest, TheFormThatWasInFrontBeforeComesUpWhenOneCloses) {
    Open("DeF");
    Open("DeR");
    Open("DeS");
    ASSERT_TRUE(Raise(Kind::ActivateForm, "DeF"));
    ASSERT_TRUE(Raise(Kind::ActivateForm, "DeS"));
    ASSERT_TRUE(Raise(Kind::CloseForm, "DeS"));
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm->name(), "DeF");
    ASSERT_TRUE(Raise(Kind::CloseForm, "DeF"));
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm->name(), "DeR");
}

TEST_F(FormsTest, AnArrowKeyInAGroupWithoutAnOptionThatTakesTheFocusDoesNothing) {
    ASSERT_TRUE(Raise(Kind::SwitchTab, {}, {}, 2));
    Form& hub = *program_.program.state().formRegistry.CurrentForm;
    for (const auto& control : hub.controls()) {
        if (control->kind != ControlKind::OptionButton) continue;
        if (hub.CanFocus(*control)) hub.focus = control.get();
        control->enabled = false;
    }
    ASSERT_NE(hub.focus, nullptr);
    ASSERT_EQ(hub.focus->kind, ControlKind::OptionButton);
    const Control* focus = hub.focus;
    EXPECT_TRUE(Raise(Kind::Key, "Down"));
    EXPECT_TRUE(Raise(Kind::Key, "Left"));
    EXPECT_EQ(hub.focus, focus);
    EXPECT_FALSE(focus->value);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FormsTest, EveryFieldOfEveryFormIsBoundToTheCatalogue) {
    const Catalogue& catalogue = *program_.program.state().dbCatalogue;
    for (const std::string& name : program_.program.state().formRegistry.TypeNames()) {
        const Form form(*program_.program.state().formRegistry.FindType(name), catalogue);
        for (const auto& control : form.controls()) {
            if (!control->IsField()) continue;
            EXPECT_NE(catalogue.FindVariable(control->tag), nullptr) << name << "." << control->name;
            EXPECT_FALSE(control->picture.empty()) << name << "." << control->name;
        }
    }
}

/// The letters of a control's text that are the access key of nothing else on its page and of no menu.
std::string FreeLetters(const Form& form, const Control& control) {
    std::string letters;
    for (const char c : control.text) {
        const char key = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        const bool isMenu = kMenuAccessKeys.find(key) != std::string_view::npos;
        if (std::isalnum(static_cast<unsigned char>(key)) == 0 || isMenu) continue;
        const bool taken =
            std::any_of(form.controls().begin(), form.controls().end(), [&](const auto& other) {
                return other->accessKey == key &&
                       (other->page == control.page || other->page == -1 || control.page == -1);
            });
        if (!taken) letters.push_back(key);
    }
    return letters;
}

TEST_F(FormsTest, TheKeysOfTheMenusAreKeptFree) {
    std::string keys;
    for (const MenuTitle& title : MenuTitles()) keys.push_back(MarkedKey(title.caption));
    keys.insert(keys.find('W'), "V");  // the windows put their own menu View before the menu Window
    EXPECT_EQ(keys, kMenuAccessKeys);
}

TEST_F(FormsTest, AccessKeysAreUniqueOnEveryPageAndReachEveryControl) {
    const Catalogue& catalogue = *program_.program.state().dbCatalogue;
    for (const std::string& name : program_.program.state().formRegistry.TypeNames()) {
        Form form(*program_.program.state().formRegistry.FindType(name), catalogue);
        for (const auto& control : form.controls()) {
            if (control->accessKey == '\0') continue;
            form.ShowPage(control->page == -1 ? 0 : control->page);
            const Control* found = form.FindAccessKey(control->accessKey);
            const std::string expected = control->labelOf.empty() ? control->name : control->labelOf;
            ASSERT_NE(found, nullptr);
            EXPECT_EQ(found->name, expected) << name << ": Alt+" << control->accessKey;
        }
        for (const auto& control : form.controls()) {
            const bool bound = control->labelOf.empty() || form.Find(control->labelOf)->TakesFocus();
            // A label that is only heard marks no letter.
            const bool needsKey = bound && control->visible && !control->text.empty() &&
                                  (!control->labelOf.empty() || control->IsButton() || control->IsChoice());
            if (!needsKey || control->accessKey != '\0') continue;
            EXPECT_EQ(FreeLetters(form, *control), "") << name << "." << control->name;
        }
    }
}

TEST_F(FormsTest, TabGoesThroughEveryInputInReadingOrderAndRound) {
    Form& form = Open("DeF");
    std::vector<std::string> order;
    for (int i = 0; i < 12; ++i) {
        order.push_back(form.focus->name);
        Raise(Kind::Key, "Tab");
    }
    EXPECT_THAT(order, ElementsAre("FLEXE18", "FLEXREL", "FLEXDEV", "RM", "SN", "FLEXPO", "FLEXPT",
                                   "Command1", "Command2", "cmdbCS", "cmdAction", "SSHelp"));
    EXPECT_EQ(form.focus->name, "FLEXE18");
    Raise(Kind::Key, "BackTab");
    EXPECT_EQ(form.focus->name, "SSHelp");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FormsTest, EnterOnAButtonMovesOn) {
    Form& form = Open("DeF");
    Raise(Kind::Focus, "FLEXPT");
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(form.focus->name, "Command1") << "in the last field as in any";
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(form.focus->name, "Command2");
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(form.focus->name, "cmdbCS");
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(form.focus->name, "cmdAction");
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(form.focus->name, "SSHelp") << "Enter presses no button";
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(form.focus->name, "FLEXE18");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FormsTest, TabAndEnterPassOverTheSmallButtonsBesideFields) {
    Form& form = Open("DeF");
    for (const char* key : {"Enter", "Tab"}) {
        Raise(Kind::Focus, "RM");
        Raise(Kind::Key, key);
        EXPECT_EQ(form.focus->name, "SN") << key;
    }
    Raise(Kind::Key, "BackTab");
    EXPECT_EQ(form.focus->name, "RM");
    Raise(Kind::Focus, "cmdbRM");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(form.focus->name, "SN");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FormsTest, AFormIsOpenOnceAtMost) {
    Form& form = Open("DeF");
    Raise(Kind::ActivateForm, "TabForm");
    EXPECT_EQ(&Open("DeF"), &form);
    EXPECT_EQ(program_.program.state().formRegistry.InOpeningOrder().size(), 2U);
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm, &form);
}

TEST_F(FormsTest, WhatMakesNoSenseIsTold) {
    EXPECT_FALSE(Raise(Kind::OpenForm, "NoSuch"));
    EXPECT_FALSE(Raise(Kind::CloseForm, "DeF"));
    EXPECT_FALSE(Raise(Kind::Focus, "NoSuch"));
    EXPECT_FALSE(Raise(Kind::SwitchTab, {}, {}, 8));
    EXPECT_FALSE(Raise(Kind::SwitchTab, {}, {}, -1));
    EXPECT_FALSE(Raise(Kind::Menu, "NoSuch"));
    EXPECT_FALSE(Raise(Kind::Key, "Bogus"));
}

TEST_F(FormsTest, ADisabledControlTakesNeitherFocusNorClick) {
    FormType type;
    type.name = "Later";
    type.layout = Rows({Fields({{"RM"}}), Buttons({{"Next", "&Next", "Go on"}})});
    program_.program.state().formRegistry.Declare({type});
    Form& form = Open("Later");
    form.Get("Next").enabled = false;
    EXPECT_TRUE(Raise(Kind::Press, "Next"));
    EXPECT_EQ(form.focus->name, "RM");
    Raise(Kind::Focus, "SolveForField");
    EXPECT_EQ(form.focus->name, "RM") << "a hidden box";
}

TEST_F(FormsTest, LeavingAFieldThatWasNotTypedInStoresNothing) {
    program_.store().SetCell("RM", 1, 1, {1.0, "1"});  // below the limit
    Form& form = Open("DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Focus, "SN");
    EXPECT_EQ(form.focus->name, "SN");
    EXPECT_EQ(*program_.store().FindCell("RM", 1, 1), (CellValue{1.0, "1"}));
    EXPECT_EQ(form.solveState(0), SolveState::Resting);
    EXPECT_FALSE(program_.program.state().bProjectChanged);
}

TEST_F(FormsTest, AFieldOutsideTheEquationDoesNotWarn) {
    SQLite::Database((program_.home / "DataBase/Kelvor.mdb").string(), SQLite::OPEN_READWRITE)
        .exec("UPDATE Field SET SolveFor = NULL WHERE Screen = 'DeF' AND Name = 'RM'");
    program_.program.state().OpenCatalogue(program_.home / "DataBase/Kelvor.mdb");
    program_.Set("FLEXPO", 4.2);
    program_.Set("FLEXPT", 2.5);
    Form& form = Open("DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Type, {}, "5000");
    Raise(Kind::Focus, "SN");
    EXPECT_EQ(program_.Get("RM"), 5000.0);
    EXPECT_EQ(form.solveState(0), SolveState::Resting);
    Raise(Kind::Focus, "RM");
    Raise(Kind::Press, "Command1");
    EXPECT_THAT(Messages(), ElementsAre("Cannot solve for: Soil Resilient Mod."));
    EXPECT_EQ(form.focus->name, "RM");
    EXPECT_EQ(form.solveState(0), SolveState::Resting);
}

TEST_F(FormsTest, ALimitThatIsMissingBoundsNothingAndReadsEmpty) {
    SQLite::Database((program_.home / "DataBase/Kelvor.mdb").string(), SQLite::OPEN_READWRITE)
        .exec("UPDATE Variable SET Low = NULL WHERE Name = 'RM'");
    program_.program.state().OpenCatalogue(program_.home / "DataBase/Kelvor.mdb");
    Open("DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Type, {}, "-5");
    Raise(Kind::Focus, "SN");
    EXPECT_EQ(program_.Get("RM"), -5.0);
    Raise(Kind::Focus, "RM");
    Raise(Kind::Type, {}, "200,000");
    Raise(Kind::Focus, "SN");
    EXPECT_THAT(Messages(), ElementsAre("Warning: Input out of range. Enter value between  and 100000"));
}

TEST_F(FormsTest, AnEventInsideAnEventIsDropped) {
    // A message box whose observer acts like an impatient user.
    class Impatient : public Dialogs {
      public:
        Answer ShowMessage(const Message& message) override {
            program->Raise({Kind::CloseForm, "DeF", {}, 0});
            return DefaultAnswer(message.style);
        }
        std::optional<std::string> AskText(const InputRequest&) override { return std::nullopt; }
        std::optional<Path> AskFile(const FileRequest&) override { return std::nullopt; }
        void SetWaitCursor(bool) override {}
        Program* program = nullptr;
    };
    TestHome home;
    TestHost host;
    Impatient dialogs;
    Program program({host.native, host.clock, dialogs, host.components}, home.home());
    dialogs.program = &program;
    ASSERT_EQ(program.Start(""), StartResult::Running);
    program.Raise({Kind::OpenForm, "DeF", {}, 0});
    program.Raise({Kind::Type, {}, "abc", 0});
    program.Raise({Kind::Key, "Enter", {}, 0});
    EXPECT_NE(program.state().formRegistry.Find("DeF"), nullptr);
}

TEST_F(FormsTest, TwentySwitchesOfTheUnitsLeaveEveryCellAsItWas) {
    Open("DeF");
    for (const char* field : {"FLEXE18", "FLEXREL", "FLEXDEV", "RM", "FLEXPO", "FLEXPT"}) {
        Raise(Kind::Focus, field);
        Raise(Kind::Type, {},
              std::string(field) == "FLEXE18"   ? "5,000,000"
              : std::string(field) == "FLEXREL" ? "95"
              : std::string(field) == "FLEXDEV" ? "0.45"
              : std::string(field) == "RM"      ? "5,000"
              : std::string(field) == "FLEXPO"  ? "4.2"
                                                : "2.5");
    }
    Raise(Kind::Focus, "SN");
    Raise(Kind::Press, "Command1");
    const auto snapshot = [&] {
        std::string all;
        program_.store().ForEachFilled([&](const CellKey& key, const CellValue& value) {
            all += CellText(key.name, key.dim1, key.dim2) + "=" + Bits(value.number) + " " +
                   value.text.value_or("null") + "\n";
        });
        return all;
    };
    const std::string before = snapshot();
    for (int i = 0; i < 20; ++i) Raise(Kind::Menu, i % 2 == 0 ? "MenuUnitsMetric" : "MenuUnitsEnglish");
    EXPECT_EQ(snapshot(), before);
}

TEST_F(FormsTest, AThousandPastedCharactersAreRefusedWithOneMessage) {
    Form& form = Open("DeF");
    Raise(Kind::Type, {}, std::string(1000, 'x'));
    Raise(Kind::Key, "Enter");
    EXPECT_THAT(Messages(), ElementsAre("Please enter valid numeric value."));
    EXPECT_EQ(form.focus->name, "FLEXE18");
    EXPECT_EQ(form.focus->text, "");
}

TEST_F(FormsTest, WithNoProjectOpenScreensDoNothing) {
    WriteFile(program_.home / "bad.kvr", "no project");
    program_.program.OpenProject((program_.home / "bad.kvr").string());
    (void)Messages();
    EXPECT_TRUE(Raise(Kind::OpenForm, "DeF"));
    EXPECT_EQ(program_.program.state().formRegistry.Find("DeF"), nullptr);
    EXPECT_TRUE(Raise(Kind::Menu, "MenuUnitsMetric"));
}

TEST_F(FormsTest, AScreenKeptOverAFailedOpenDoesNothingButClose) {
    Form* form = &Open("DeF");
    Raise(Kind::Type, {}, "5000000");
    Raise(Kind::Focus, "SN");
    WriteFile(program_.home / "bad.kvr", "no project");
    program_.host.dialogs.QueueAnswer("no");  // keeps the screen, whose values are not balanced
    program_.program.OpenProject((program_.home / "bad.kvr").string());
    ASSERT_EQ(program_.program.state().formRegistry.Find("DeF"), form);
    (void)Messages();
    program_.program.state().bProjectChanged = false;
    Raise(Kind::ActivateForm, "DeF");
    Raise(Kind::Focus, "SN");
    Raise(Kind::Type, {}, "4");
    Raise(Kind::Key, "Enter");
    Raise(Kind::Press, "Command1");
    Raise(Kind::Press, "Command2");
    Raise(Kind::Menu, "MenuUnitsMetric");
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_FALSE(program_.program.state().bProjectChanged);
    Raise(Kind::CloseForm, "DeF");
    EXPECT_EQ(program_.program.state().formRegistry.Find("DeF"), nullptr);
}

TEST_F(FormsTest, AScreenKeptOverNewShowsTheNewProject) {
    Form& form = Open("DeF");
    Raise(Kind::Type, {}, "5,000,000");
    Raise(Kind::Key, "Tab");
    program_.host.dialogs.QueueAnswer("no");  // not balanced: it stays open, and New goes on
    program_.program.NewProject();
    EXPECT_EQ(Messages().size(), 1U);
    ASSERT_EQ(program_.program.state().formRegistry.Find("DeF"), &form);
    EXPECT_EQ(form.TextOf("FLEXE18"), "");
    Raise(Kind::ActivateForm, "DeF");
    EXPECT_EQ(form.TextOf("FLEXE18"), "");
}

TEST_F(FormsTest, AScreenKeptOverAFailedOpenIsEmptyAndItsOkClosesIt) {
    Form& form = Open("DeF");
    Raise(Kind::Type, {}, "5,000,000");
    Raise(Kind::Key, "Tab");
    program_.host.dialogs.QueueAnswer("no");
    program_.program.OpenProject((program_.home / "nothing.kvr").string());
    EXPECT_EQ(form.TextOf("FLEXE18"), "");
    Raise(Kind::ActivateForm, "DeF");
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.program.state().formRegistry.Find("DeF"), nullptr);
    program_.program.Raise({Kind::Menu, "Sub1"});
    EXPECT_EQ(program_.program.state().formRegistry.Find("Blank"), nullptr) << "no project, no screen";
}

TEST_F(FormsTest, TheLimitsThemselvesPass) {
    Open("DeF");
    for (const auto& [text, number] : {std::pair{"50", 50.0}, std::pair{"99.99", 99.99}}) {
        Raise(Kind::Focus, "FLEXREL");
        Raise(Kind::Type, {}, text);
        Raise(Kind::Key, "Enter");
        EXPECT_EQ(program_.Get("FLEXREL"), number);
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FormsTest, MillimetresTypedIntoAFieldAreStoredAsInches) {
    Form& form = Open("DeF");
    Raise(Kind::Menu, "MenuUnitsMetric");
    Raise(Kind::Focus, "SN");
    Raise(Kind::Type, {}, "12.7");
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(*program_.store().FindCell("SN", 1, 1), (CellValue{0.5, "12.7"}));
    Raise(Kind::Menu, "MenuUnitsEnglish");
    EXPECT_EQ(form.Find("SN")->text, "0.50");
}

TEST_F(FormsTest, ALabelThatBeginsLikeAWarningCountsAsOne) {
    Form& form = Open("DeF");
    SetSolveForState(form, SolveState::Solved, 0, {"WARNING!s per mile", "3", ""});
    program_.host.dialogs.QueueAnswer("no");
    Raise(Kind::CloseForm, "DeF");
    EXPECT_EQ(Messages().size(), 1U);
    SetSolveForState(form, SolveState::Solved, 0, {"WARNING per mile", "3", ""});
    Raise(Kind::CloseForm, "DeF");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(FormsTest, AFieldWithoutATagIsLeftAlone) {
    Form& form = Open("DeF");
    form.SetText("Dim1", "");
    form.SetText("SolveForSide", "kept");
    RefreshScreen(*context_, form);
    EXPECT_EQ(form.TextOf("SolveForSide"), "kept");
}

TEST_F(FormsTest, OnTheHubASwitchOfUnitsTouchesNothingElse) {
    Raise(Kind::SwitchTab, {}, {}, 2);
    const Form& hub = *program_.program.state().formRegistry.CurrentForm;
    const Control* focus = hub.focus;
    Raise(Kind::Menu, "MenuUnitsMetric");
    EXPECT_TRUE(program_.program.state().units->bMetric());
    EXPECT_EQ(hub.page(), 2);
    EXPECT_EQ(hub.focus, focus);
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm, &hub);
}

TEST_F(FormsTest, AButtonBringsAnOpenScreenToTheFront) {
    const auto& registry = program_.program.state().formRegistry;
    for (int i = 0; i < 2; ++i) {
        Raise(Kind::SwitchTab, {}, {}, 2);
        Raise(Kind::Choose, "oDeF");
        Raise(Kind::Press, "Command4");
        EXPECT_EQ(registry.CurrentForm->name(), "DeF");
        EXPECT_EQ(registry.InOpeningOrder().size(), 2U);
    }
}

TEST_F(FormsTest, TheNamesOfTwoTabsOpenThem) {
    Open("DeF");
    EXPECT_TRUE(Raise(Kind::OpenForm, "EcFa"));
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm->page(), 4);
    EXPECT_TRUE(Raise(Kind::OpenForm, "InfForm"));
    EXPECT_EQ(program_.program.state().formRegistry.CurrentForm->page(), 0);
}

TEST_F(FormsTest, CharactersGoWhereTheCursorIs) {
    Form& form = Open("DeF");
    const auto keys = [&](std::initializer_list<const char*> names) {
        for (const char* name : names) Raise(Kind::Key, name);
        return form.focus->text;
    };
    Raise(Kind::Type, {}, "5000");
    Raise(Kind::Key, "Enter");
    Raise(Kind::Key, "BackTab");
    EXPECT_EQ(keys({"Left", "1"}), "15,000");
    EXPECT_EQ(keys({"Right", "2", "Delete"}), "152000");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(keys({"Right", "7"}), "5,0007");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(keys({"7"}), "7") << "after Esc the value is selected as a whole";
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(keys({"Delete"}), "");
}

TEST_F(FormsTest, AHundredThousandRandomEventsDoNoHarm) {
    std::mt19937 random(20260103);
    FormRegistry& forms = program_.program.state().formRegistry;
    WriteFile(program_.home / "bad.kvr", "no project");
    const std::string answers[] = {"yes", "no", "ok", (program_.home / "bad.kvr").string()};
    for (int i = 0; i < 100'000; ++i) {
        program_.host.dialogs.QueueAnswer(answers[random() % 4]);
        program_.program.Raise(RandomEvent(random, forms.CurrentForm, {"TabForm", "DeF", "LayDet"}));
        program_.host.dialogs.DropAnswers();
        program_.host.record.messages.clear();
        program_.host.record.answers.clear();
        ASSERT_NE(forms.CurrentForm, nullptr);
        const Control* focus = forms.CurrentForm->focus;
        ASSERT_TRUE(focus == nullptr || forms.CurrentForm->CanFocus(*focus)) << "event " << i;
    }
    program_.program.NewProject();
    EXPECT_TRUE(program_.store().CompareWithWorkCopy().empty());
    program_.store().ForEachFilled([](const CellKey& key, const CellValue& value) {
        EXPECT_TRUE(std::isfinite(value.number.value_or(0.0))) << key.name;
    });
}

}  // namespace
}  // namespace kelvor::test
