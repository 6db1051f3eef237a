// What a form is made of beyond its declaration, and slips of the pen in one.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "forms/declaration_check.h"
#include "forms/form.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

class DeclarationTest : public testing::Test {
  protected:
    const Catalogue& catalogue() { return *program_.program.state().dbCatalogue; }

    static FormType Trial() {
        FormType type;
        type.name = "Trial";
        type.layout = Rows({Frame("Frame1", "Inputs", {Fields({{"RM"}, {"SN"}})}),
                            Options({{"First", "One"}}), Grid("Grid", {{"LDLayerThick"}})});
        return type;
    }

    /// The names of the hidden boxes of a form.
    std::vector<std::string> Hidden(const FormType& type) {
        std::vector<std::string> names;
        const Form form(type, catalogue());
        for (const auto& control : form.controls()) {
            if (!control->visible && control->IsBox()) names.push_back(control->name);
        }
        return names;
    }

    TestProgram program_;
};

// --- What every form has ---------------------------------------------------------------------------------

TEST_F(DeclarationTest, TheKeyOfTheCatalogueIsTheNameUnlessItIsSaid) {
    FormRegistry registry;
    FormType other = Trial();
    other.name = "Other";
    other.tag = "DeF";
    registry.Declare({Trial(), other});
    EXPECT_EQ(registry.FindType("Trial")->tag, "Trial");
    EXPECT_EQ(registry.FindType("Other")->tag, "DeF");
}

TEST_F(DeclarationTest, AFormIsMadeWhenItIsFirstAskedForAndOnce) {
    int made = 0;
    FormRegistry registry;
    registry.Declare({{"Trial", [&] { return ++made, Trial(); }}},
                     [](FormType& type) { type.caption += "!"; });
    EXPECT_TRUE(registry.IsDeclared("trial"));
    EXPECT_FALSE(registry.IsDeclared("Other"));
    EXPECT_EQ(made, 0);
    const std::string caption = Trial().caption + "!";
    EXPECT_EQ(registry.FindType("Trial")->caption, caption);
    EXPECT_EQ(registry.FindType("TRIAL")->caption, caption);
    EXPECT_EQ(registry.FindType("Trial")->tag, "Trial");
    EXPECT_EQ(made, 1);
}

TEST_F(DeclarationTest, ANameThatIsNotTheFormsOrStandsTwiceIsRefused) {
    FormRegistry registry;
    registry.Declare({{"Tiral", Trial}});
    EXPECT_THAT([&] { (void)registry.FindType("Tiral"); },
                testing::ThrowsMessage<std::logic_error>("form Tiral is declared as Trial"));
    EXPECT_THAT(
        [&] {
            registry.Declare({{"tiral", Trial}});
        },
        testing::ThrowsMessage<std::logic_error>("form tiral stands twice"));
}

TEST_F(DeclarationTest, AFormHasTheUsualButtonsAtItsFootOrItsOwn) {
    const Form usual(Trial(), catalogue());
    EXPECT_EQ(usual.Get("cmdAction").text, "&OK");
    EXPECT_EQ(usual.Get("SSHelp").text, "Hel&p");
    FormType type = Trial();
    type.foot = {{"Command9", "&Close"}};
    const Form own(type, catalogue());
    EXPECT_TRUE(own.Get("Command9").IsButton());
    EXPECT_EQ(own.Find("cmdAction"), nullptr);
    EXPECT_EQ(own.Find("SSHelp"), nullptr);
}

TEST_F(DeclarationTest, AFormOfTheProjectShowsSubscripts) {
    EXPECT_THAT(Hidden(Trial()), ElementsAre("Dim1", "Dim2", "FieldChanged", "SolveForField"));
    FormType type = Trial();
    type.needsProject = false;
    EXPECT_THAT(Hidden(type), ElementsAre("FieldChanged", "SolveForField"));
}

TEST_F(DeclarationTest, AHelpKnowsForWhichFieldItIsOpen) {
    FormType type = Trial();
    type.isHelp = true;
    EXPECT_THAT(Hidden(type), ElementsAre("FieldName", "FormName", "Dim2", "FieldChanged", "SolveForField"));
}

TEST_F(DeclarationTest, AFormWithAnEquationKnowsWhichEquationWasSolved) {
    FormType type = Trial();
    type.equations = {{}};
    EXPECT_THAT(Hidden(type), ElementsAre("SolveForSide", "Dim1", "Dim2", "FieldChanged", "SolveForField"));
}

TEST_F(DeclarationTest, BoxesOfItsOwnStandBeforeThoseThatManyFormsHave) {
    FormType type = Trial();
    type.layout = Rows({type.layout, kelvor::Hidden({"Column", "Carry", "Dim2"})});
    EXPECT_THAT(Hidden(type),
                ElementsAre("Carry", "Dim1", "Dim2", "Column", "FieldChanged", "SolveForField"));
}

TEST_F(DeclarationTest, AComputedBoxIsLockedAndHasItsColour) {
    FormType type = Trial();
    type.layout = Fields({{.variable = "RM", .computed = true}, {.variable = "SN", .locked = true}});
    const Form form(type, catalogue());
    EXPECT_TRUE(form.Get("RM").computed);
    EXPECT_TRUE(form.Get("RM").locked);
    EXPECT_EQ(form.Get("RM").backColor, colours::kLightCyan);
    EXPECT_FALSE(form.Get("SN").computed);
    EXPECT_EQ(form.Get("SN").backColor, colours::kWindow);
}

TEST_F(DeclarationTest, AHandlerIsToldOfTheControlAndOfNoneOnAnEventOfTheForm) {
    static std::vector<std::string> told;
    told.clear();
    const auto tell = [](ScreenEvent& event) {
        told.push_back(event.form.name() + "." + (event.control == nullptr ? "" : event.control->name));
    };
    FormType type = Trial();
    type.handlers = {{FormEvent::Load, "", HandlerOrder::Instead, tell},
                     {FormEvent::Click, "First", HandlerOrder::After, tell}};
    Program& program = program_.program;
    program.state().formRegistry.Declare({type});
    program.Raise({UserEvent::Kind::OpenForm, "Trial"});
    program.Raise({UserEvent::Kind::Choose, "First"});
    EXPECT_THAT(told, ElementsAre("Trial.", "Trial.First"));
}

// --- Slips of the pen ------------------------------------------------------------------------------------

void Nothing(ScreenEvent& /*event*/) {}

TEST_F(DeclarationTest, NamesThatTheFormHasPass) {
    FormType type = Trial();
    type.handlers = {{FormEvent::Click, "cmdAction", HandlerOrder::Before, Nothing},
                     {FormEvent::Load, "", HandlerOrder::Before, Nothing}};
    type.helpRoutes = {
        {"rm", "H_SRM", "Work it out"}, {"LDLayerThick", "H_SN"}, {"First", "H_SN"}, {"SN", "H_SN"}};
    EXPECT_NO_THROW(CheckDeclaration(type, catalogue()));
}

TEST_F(DeclarationTest, AHandlerOfAControlThatIsNotThereFails) {
    FormType type = Trial();
    type.handlers = {{FormEvent::Click, "Comand1", HandlerOrder::Instead, Nothing}};
    EXPECT_THAT([&] { CheckDeclaration(type, catalogue()); },
                ThrowsMessage<std::logic_error>("form Trial: Comand1 has a handler and is no control"));
}

TEST_F(DeclarationTest, AnEquationWithoutItsIndicatorOrButtonFails) {
    FormType type = Trial();
    type.equations = {{}};
    EXPECT_THAT([&] { CheckDeclaration(type, catalogue()); },
                ThrowsMessage<std::logic_error>("form Trial: SolveFor is of an equation and is no control"));
    type.layout = Rows({type.layout, SolveForFrame("Frame2", FormEquation{.button = "Command9"})});
    EXPECT_THAT([&] { CheckDeclaration(type, catalogue()); },
                ThrowsMessage<std::logic_error>(HasSubstr("Command1")));
}

TEST_F(DeclarationTest, AHelpOfWhatIsNoFieldFails) {
    FormType type = Trial();
    type.helpRoutes = {{"RMM", "H_SRM"}};
    EXPECT_THAT([&] { CheckDeclaration(type, catalogue()); },
                ThrowsMessage<std::logic_error>("form Trial: RMM has a help and is no field"));
    type.helpRoutes = {{"Frame1", "H_SRM"}};
    EXPECT_THAT([&] { CheckDeclaration(type, catalogue()); },
                ThrowsMessage<std::logic_error>(HasSubstr("Frame1")));
}

TEST_F(DeclarationTest, OnlyAFieldInAGroupHasRoomForASmallButton) {
    FormType type = Trial();
    type.helpRoutes = {{"LDLayerThick", "H_LDLayerCoef", "Work it out"}};
    EXPECT_THAT([&] { CheckDeclaration(type, catalogue()); },
                ThrowsMessage<std::logic_error>(HasSubstr("Trial: LDLayerThick")));
}

TEST_F(DeclarationTest, AControlThatStandsTwiceFails) {
    FormType type = Trial();
    type.layout = Rows({Fields({{"RM"}}), Fields({{"RM"}})});
    EXPECT_THAT([&] { CheckDeclaration(type, catalogue()); },
                ThrowsMessage<std::logic_error>("form Trial: LabRM stands twice"));
}

TEST_F(DeclarationTest, AHelpThatIsNoFormFails) {
    FormRegistry& registry = program_.program.state().formRegistry;
    EXPECT_NO_THROW(CheckDeclarations(registry, catalogue()));
    FormType type = Trial();
    type.helpRoutes = {{"RM", "H_SMR"}};
    registry.Declare({type});
    EXPECT_THAT([&] { CheckDeclarations(registry, catalogue()); },
                ThrowsMessage<std::logic_error>("form Trial: H_SMR is a help and no form"));
}

TEST_F(DeclarationTest, TheStartLooksAtWhatIsDeclared) {
    TestHome home;
    TestHost host;
    Program program(host.host(), home.home());
    FormType type = Trial();
    type.handlers = {{FormEvent::Click, "Comand1", HandlerOrder::Instead, Nothing}};
    program.state().formRegistry.Declare({type});
    EXPECT_THROW((void)program.Start(""), std::logic_error);
}

TEST_F(DeclarationTest, AFormTellsWhichControlItLacks) {
    const FormType type = Trial();
    Form form(type, catalogue());
    EXPECT_EQ(form.Get("frame1").name, "Frame1");
    EXPECT_THAT([&] { (void)form.Get("Frame9"); },
                ThrowsMessage<std::logic_error>("form Trial has no control Frame9"));
    EXPECT_THAT(form.TextOf("Frame9"), IsEmpty());
}

}  // namespace
}  // namespace kelvor::test
