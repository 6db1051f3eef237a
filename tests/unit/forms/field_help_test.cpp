// Field help: what it shows, what it refuses, and that it changes nothing unless a value was typed.

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "forms/form.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

class FieldHelpTest : public testing::Test {
  protected:
    bool Raise(Kind kind, const std::string& name = {}, const std::string& text = {}, int number = 0) {
        return program_.program.Raise({kind, name, text, number});
    }

    Form& Current() { return *program_.program.state().formRegistry.CurrentForm; }
    FormRegistry& Forms() { return program_.program.state().formRegistry; }
    std::vector<std::string> Messages() { return program_.host.record.TakeTexts(); }

    bool IsComputed(const std::string& variable) {
        const std::vector<Field>& fields = program_.program.state().dbCatalogue->fields();
        return std::any_of(fields.begin(), fields.end(),
                           [&](const Field& field) { return field.name == variable && field.IsOutput(); });
    }

    void Fill(const std::string& variable) {
        const Variable* known = program_.program.state().dbCatalogue->FindVariable(variable);
        if (known == nullptr || known->IsText() || IsComputed(variable)) return;
        const double low = known->low.value_or(1.0);
        program_.store().SetCell(variable, 1, 1,
                                 {low + (known->high.value_or(low + 2.0) - low) / 3.0, std::nullopt});
    }

    /// Every filled cell but those in which the help keeps what it was asked for, the one that follows the
    /// cursor of a grid, and the two that follow from a survey of which no count has changed.
    std::vector<std::string> Dump() {
        static const std::set<std::string> kKept = {"FieldName", "FormName", "FieldName2",   "FormName2",
                                                    "Dim1",      "Column",   "FieldChanged", "LDAdditThick",
                                                    "APDETTOT",  "APBOLFJC"};
        std::vector<std::string> cells;
        program_.store().ForEachFilled([&](const CellKey& key, const CellValue& value) {
            if (kKept.contains(key.name)) return;
            cells.push_back(key.name + "(" + std::to_string(key.dim1) + "," + std::to_string(key.dim2) +
                            ") = " + (value.number ? std::to_string(*value.number) : "-") + " " +
                            value.text.value_or("-"));
        });
        return cells;
    }

    /// The single outputs of a form, as an edit would have left them.
    void CalcTotals(const Form& form) {
        for (const Field* output : program_.program.state().dbCatalogue->OutputsOfScreen(form.tag)) {
            if (!output->IsColumn()) program_.program.CalcField(output->name, output->equation);
        }
    }

    static std::vector<bool> Warnings(const Form& form) {
        return {form.solveState(0) == SolveState::Warning, form.solveState(1) == SolveState::Warning};
    }

    /// What screens that work a value out have to say is taken over by the fields for which they are opened.
    void WorkOut(const Form& form) {
        for (const HelpRoute& route : form.type().helpRoutes) {
            if (route.form != "H_K" && route.form != "H_SRM") continue;
            Raise(Kind::Focus, route.variable);
            Raise(Kind::Key, "F1");
            for (int i = 0; i < 3 && &Current() != &form; ++i) Raise(Kind::Key, "Esc");
        }
    }

    TestProgram program_;
};

TEST_F(FieldHelpTest, WithNoFieldSelectedItAsksForOne) {
    Raise(Kind::OpenForm, "DeF");
    Current().iCurrentField.reset();
    Current().SetText("SolveForField", "");
    Current().focus = nullptr;
    Raise(Kind::Press, "SSHelp");
    EXPECT_THAT(Messages(), ElementsAre("Please select field first."));
    EXPECT_EQ(Current().name(), "DeF");
}

TEST_F(FieldHelpTest, AVariableWithoutAnExplanationIsNamedByItsDescription) {
    TestProgram bare;
    SQLite::Database((bare.home / "DataBase/Kelvor.mdb").string(), SQLite::OPEN_READWRITE)
        .exec("UPDATE Variable SET HelpText = NULL WHERE Name IN ('FLEXREL', 'MRSB')");
    bare.program.state().OpenCatalogue(bare.home / "DataBase/Kelvor.mdb");
    const auto raise = [&](Kind kind, const std::string& name) { bare.program.Raise({kind, name, {}, 0}); };
    raise(Kind::OpenForm, "DeF");
    raise(Kind::Focus, "FLEXREL");
    raise(Kind::Press, "SSHelp");
    EXPECT_THAT(bare.host.record.TakeTexts(), ElementsAre("No Help Available for Reliability."));
    EXPECT_EQ(bare.program.state().formRegistry.CurrentForm->name(), "DeF");
    raise(Kind::OpenForm, "H_K");
    raise(Kind::Focus, "MRSB");
    raise(Kind::Press, "SSHelp");
    EXPECT_THAT(bare.host.record.TakeTexts(), ElementsAre("No help available for: MRSB"));
}

TEST_F(FieldHelpTest, AVariableThatIsNotThereIsTold) {
    Raise(Kind::OpenForm, "DeF");
    Current().SetText("SolveForField", "NOSUCH");
    Current().Find("RM")->tag = "NOSUCH";
    Raise(Kind::Focus, "RM");
    Raise(Kind::Press, "SSHelp");
    EXPECT_THAT(Messages(), ElementsAre("Variable not found: NOSUCH"));
}

TEST_F(FieldHelpTest, TheCaptionAndTheHeadAreTheVariables) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "FLEXDEV");
    Raise(Kind::Key, "F1");
    EXPECT_EQ(Current().caption, "Help Screen for the Overall Standard Deviation of the Flexible Design");
    EXPECT_EQ(Current().TextOf("Label"), "Overall Deviation");
    EXPECT_EQ(Current().TextOf("Units"), "") << "no unit worth showing";
    EXPECT_TRUE(Current().modal);
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(Current().name(), "DeF");
    EXPECT_EQ(Current().focus->name, "FLEXDEV") << "the field that it was opened for";
}

TEST_F(FieldHelpTest, AMetricValueIsConvertedOnItsWayBack) {
    program_.Set("DEPTH", 10.0);
    program_.program.ChooseUnits(true);
    Raise(Kind::OpenForm, "DeR");
    Raise(Kind::Key, "F1");
    EXPECT_EQ(Current().TextOf("TextBox"), "254.0");
    EXPECT_EQ(Current().TextOf("Units"), "mm");
    Raise(Kind::Type, {}, "203.2");
    Raise(Kind::Press, "Command1");
    EXPECT_EQ(program_.Get("DEPTH"), 203.2 / 25.4);
    EXPECT_EQ(Current().solveState(0), SolveState::Warning);
}

TEST_F(FieldHelpTest, AValueOutOfRangeKeepsTheHelpOpen) {
    program_.Set("FLEXREL", 95.0);
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "100");
    Raise(Kind::Key, "Esc");
    EXPECT_THAT(Messages(), ElementsAre("Warning: Input out of range. Enter value between 50 and 99.99"));
    EXPECT_EQ(Current().name(), "HelpForm");
    EXPECT_EQ(program_.Get("FLEXREL"), 95.0);
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(Current().name(), "DeF");
    EXPECT_EQ(program_.Get("FLEXREL"), 95.0) << "the empty box was not typed";
}

TEST_F(FieldHelpTest, AnEmptiedBoxEmptiesTheField) {
    program_.Set("FLEXREL", 95.0);
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "");
    Raise(Kind::Key, "Esc");
    EXPECT_FALSE(program_.store().FindCell("FLEXREL", 1, 1)->IsFilled());
    EXPECT_EQ(Current().solveState(0), SolveState::Warning);
}

TEST_F(FieldHelpTest, AnEntryThatAListDoesNotOfferIsRefused) {
    Raise(Kind::OpenForm, "LayDet");
    Raise(Kind::Key, "F1");
    EXPECT_EQ(Current().focus->name, "ComboBox");
    Raise(Kind::Type, {}, "Straw");
    Raise(Kind::Press, "Command1");
    EXPECT_THAT(Messages(), ElementsAre("Please select item from the list"));
    EXPECT_EQ(Current().name(), "HelpGrid");
}

TEST_F(FieldHelpTest, TheListIsTheCallersAndWithoutItThereIsABox) {
    program_.Set("AT51", 2.0);
    Raise(Kind::OpenForm, "TrVe");
    Raise(Kind::Focus, "AT51");
    Raise(Kind::Key, "F1");
    EXPECT_THAT(Current().Find("ComboBox")->items, ElementsAre("Single", "Tandem", "Tridem"));
    EXPECT_EQ(Current().TextOf("ComboBox"), "Tandem");
    EXPECT_FALSE(Current().Find("TextBox")->visible);
    Raise(Kind::Key, "Esc");
    Raise(Kind::CloseForm, "TrVe");
    Raise(Kind::OpenForm, "HelpForm");
    EXPECT_EQ(Current().TextOf("FieldName"), "AT51") << "the field of before";
    EXPECT_FALSE(Current().Find("ComboBox")->visible);
    EXPECT_EQ(Current().TextOf("TextBox"), "2") << "the code";
}

TEST_F(FieldHelpTest, AHelpThatIsOpenForAnotherScreenGivesWay) {
    Raise(Kind::OpenForm, "DeR");
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    Raise(Kind::OpenForm, "DeS");
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    EXPECT_EQ(Current().name(), "H_K");
    EXPECT_EQ(Current().TextOf("FormName"), "DeS");
    Raise(Kind::Type, {}, "7000");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(Current().name(), "DeS");
    EXPECT_EQ(program_.Get("K"), 360.8);
    EXPECT_EQ(Current().solveState(0), SolveState::Warning);
    EXPECT_EQ(Current().solveState(1), SolveState::Resting);
}

TEST_F(FieldHelpTest, InputsFromBeforeShowAKAndHandItOverOnlyAfterAnEdit) {
    program_.Set("MRSG", 7000.0);
    Raise(Kind::OpenForm, "DeR");
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    EXPECT_EQ(Current().TextOf("K"), "");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Current().TextOf("K"), "360.8");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(program_.Get("K"), 0.0) << "nothing was edited";
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "7000");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(program_.Get("K"), 360.8);
}

TEST_F(FieldHelpTest, AnInputThatItsOwnHelpHasChangedGivesANewK) {
    program_.Set("K", 200.0);
    Raise(Kind::OpenForm, "DeR");
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    Raise(Kind::Key, "F1");
    ASSERT_EQ(Current().name(), "HelpForm");
    Raise(Kind::Type, {}, "7000");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(Current().TextOf("K"), "360.8");
    EXPECT_EQ(program_.store().FindCell("FieldName", 1, 1)->text, "K") << "the first caller";
    EXPECT_EQ(program_.store().FindCell("FieldName2", 1, 1)->text, "MRSG");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(program_.Get("K"), 360.8);
}

TEST_F(FieldHelpTest, KFollowsTheBoxesAsTheyStand) {
    program_.program.ChooseUnits(true);
    Raise(Kind::OpenForm, "DeR");
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "7.55");
    EXPECT_EQ(Current().TextOf("K"), "15.8") << "7.55 / 0.477 = 15.828";
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Current().TextOf("MRSG"), "7.6") << "in its picture";
    EXPECT_EQ(Current().TextOf("K"), "15.9") << "7.6 / 0.477 = 15.933";
    Raise(Kind::Key, "Esc");
    EXPECT_NEAR(program_.Get("MRSG"), 7.55 / 0.006894757, 1e-9) << "what was typed is stored";
}

TEST_F(FieldHelpTest, AKTypedByHandSurvivesALookAtWhatItWouldBe) {
    program_.Set("MRSG", 7000.0);
    program_.Set("K", 100.0);
    Raise(Kind::OpenForm, "DeR");
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    EXPECT_EQ(Current().TextOf("K"), "100.0");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Current().TextOf("K"), "360.8");
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.Get("K"), 100.0);
    EXPECT_NE(Current().solveState(0), SolveState::Warning);
}

TEST_F(FieldHelpTest, AnOverflowLeavesKAsItWas) {
    program_.program.ChooseUnits(true);
    Raise(Kind::OpenForm, "H_K");
    Raise(Kind::Type, {}, "48");
    EXPECT_EQ(Current().TextOf("K"), "100.6") << "48 / 0.477 = 100.63";
    Raise(Kind::Type, {}, "1e308");
    EXPECT_EQ(Current().TextOf("K"), "100.6");
}

TEST_F(FieldHelpTest, TheModulusOfTheTestsIsHandedOverOnceOneWasEdited) {
    program_.Set("CBR", 5.0);
    program_.Set("RM", 6000.0);
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Key, "F1");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Current().TextOf("V"), "5,842.0");
    EXPECT_NEAR(program_.Get("V"), 1941.488 * std::pow(5.0, 0.6844709), 1e-9) << "and it is stored";
    program_.program.ChooseUnits(true);
    EXPECT_EQ(Current().TextOf("V"), "40.3") << "5842 * 0.006894757 = 40.279";
    program_.program.ChooseUnits(false);
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.Get("RM"), 6000.0) << "a modulus typed by hand survives a look";
    EXPECT_NE(Current().solveState(0), SolveState::Warning);
    Raise(Kind::Focus, "RM");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "5.0");
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.Get("RM"), 5842.0) << "as it is shown";
    EXPECT_EQ(Current().solveState(0), SolveState::Warning);
    // Other tests than those that the outputs tell of.
    program_.Set("CBR", 10.0);
    Raise(Kind::OpenForm, "H_SRM");
    Raise(Kind::Key, "Tab");
    EXPECT_NEAR(program_.Get("OCBR"), 1941.488 * std::pow(10.0, 0.6844709), 1e-9);
}

TEST_F(FieldHelpTest, TestsThatAreOutOfRangeAreToldOnceAndTheOutputsStay) {
    program_.Set("RVAL", 1e6);  // e to the power 34,350
    program_.Set("V", 4000.0);
    Raise(Kind::OpenForm, "H_SRM");
    Raise(Kind::Type, {}, "5");
    Raise(Kind::Key, "Tab");
    EXPECT_THAT(Messages(), ElementsAre("Math Overflow Error: One or more values out of range."));
    EXPECT_EQ(Current().TextOf("V"), "4,000.0");
    EXPECT_EQ(program_.Get("CBR"), 5.0);
}

TEST_F(FieldHelpTest, WhatAPictureHidesOfATestCounts) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "0.96");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Current().TextOf("CBR"), "1.0");
    EXPECT_EQ(Current().TextOf("OCBR"), "1,888.0");
    EXPECT_EQ(Current().TextOf("V"), "0.0") << "a CBR below 1 governs nothing";
}

TEST_F(FieldHelpTest, ATestThatWasRefusedCountsNoMore) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "5");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Current().TextOf("V"), "5,842.0");
    Raise(Kind::Focus, "CBR");
    Raise(Kind::Type, {}, "101");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Current().TextOf("V"), "0.0");
    Raise(Kind::Type, {}, "5");
    Raise(Kind::Key, "Tab");
    Raise(Kind::Focus, "CBR");
    Raise(Kind::Type, {}, "much");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(Current().TextOf("V"), "0.0");
}

TEST_F(FieldHelpTest, AHelpThatIsClosedFromOutsideReturnsItsValue) {
    Raise(Kind::OpenForm, "DeR");
    Raise(Kind::Focus, "K");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "7000");
    Raise(Kind::ActivateForm, "DeR");
    Raise(Kind::CloseForm, "H_K");
    EXPECT_EQ(Current().name(), "DeR");
    EXPECT_EQ(Current().TextOf("K"), "360.8");
    EXPECT_EQ(Current().solveState(0), SolveState::Warning);
}

TEST_F(FieldHelpTest, AnEntryThatHasLeftItsListStaysWithoutAnEdit) {
    program_.store().SetCell("LDLayerMat", 1, 1, {std::nullopt, "Old Material"});
    Raise(Kind::OpenForm, "LayDet");
    Raise(Kind::Key, "F1");
    EXPECT_EQ(Current().TextOf("ComboBox"), "Old Material");
    Raise(Kind::Press, "Command1");
    EXPECT_THAT(Messages(), IsEmpty());
    EXPECT_EQ(Current().name(), "LayDet");
    EXPECT_EQ(program_.store().FindCell("LDLayerMat", 1, 1)->text, "Old Material");
}

TEST_F(FieldHelpTest, AnEqualNumberIsNoChange) {
    program_.store().SetCell("RM", 1, 1, {5842.0, "5842"});
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Key, "F1");
    Raise(Kind::Type, {}, "5");
    Raise(Kind::Key, "Esc");
    EXPECT_NE(Current().solveState(0), SolveState::Warning);
}

// --- The small buttons beside fields --------------------------------------------------------------------

TEST_F(FieldHelpTest, ASmallButtonOpensTheHelpThatWorksTheValueOfItsFieldOut) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "RM");
    Raise(Kind::Type, {}, "6000");
    Raise(Kind::Press, "cmdbRM");
    EXPECT_EQ(Current().name(), "H_SRM");
    EXPECT_EQ(Current().TextOf("FieldName"), "RM");
    EXPECT_EQ(program_.Get("RM"), 6000.0) << "the field was left first";
    Raise(Kind::Type, {}, "5");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(Current().name(), "DeF");
    EXPECT_EQ(Current().focus->name, "RM");
    EXPECT_EQ(Current().TextOf("RM"), "5,842") << "1941.488 * 5 ^ 0.6844709";
}

TEST_F(FieldHelpTest, ASmallButtonMeansItsOwnFieldWhereverTheFocusWas) {
    Raise(Kind::OpenForm, "DeS");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Type, {}, "95");
    Raise(Kind::Press, "cmdbK");
    EXPECT_EQ(program_.Get("FLEXREL"), 95.0);
    EXPECT_EQ(Current().name(), "H_K");
    EXPECT_EQ(Current().TextOf("FieldName"), "K");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(Current().focus->name, "K");
    Raise(Kind::Focus, "cmdbK");
    Raise(Kind::Key, "Space");
    EXPECT_EQ(Current().name(), "H_K");
}

TEST_F(FieldHelpTest, F2PressesTheSmallButtonOfTheField) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Key, "F2");
    EXPECT_EQ(Current().name(), "DeF") << "this field has none";
    Raise(Kind::Focus, "RM");
    Raise(Kind::Type, {}, "6000");
    Raise(Kind::Key, "F2");
    EXPECT_EQ(Current().name(), "H_SRM");
    EXPECT_EQ(program_.Get("RM"), 6000.0) << "the field was left first";
}

TEST_F(FieldHelpTest, ARefusedValueKeepsTheFocusFromASmallButton) {
    Raise(Kind::OpenForm, "DeF");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Type, {}, "100");
    Raise(Kind::Press, "cmdbRM");
    EXPECT_THAT(Messages(), ElementsAre("Warning: Input out of range. Enter value between 50 and 99.99"));
    EXPECT_EQ(Current().name(), "DeF");
    EXPECT_EQ(Current().focus->name, "FLEXREL");
}

TEST_F(FieldHelpTest, OnlyHelpsThatWorkAValueOutHaveSmallButtons) {
    std::vector<std::string> buttons;
    for (const std::string& screen : Forms().TypeNames()) {
        const Form form(*Forms().FindType(screen), *program_.program.state().dbCatalogue);
        for (const auto& control : form.controls()) {
            if (control->worksOut.empty()) continue;
            buttons.push_back(screen + "." + control->name + ": " + control->toolTip);
            EXPECT_EQ(control->text, "\u2026");
        }
    }
    EXPECT_THAT(buttons,
                testing::IsSupersetOf({"DeF.cmdbRM: Work out the soil resilient modulus",
                                       "DeR.cmdbK: Work out the modulus of subgrade reaction",
                                       "DeS.cmdbK: Work out the modulus of subgrade reaction",
                                       "DeS.cmdbRM: Work out the soil resilient modulus",
                                       "ExC.cmdbEXISTK: Work out the modulus of subgrade reaction",
                                       "ExF.cmdbEXISTRM: Work out the soil resilient modulus",
                                       "ExR.cmdbEXISTK: Work out the modulus of subgrade reaction"}));
    EXPECT_THAT(buttons, testing::Not(testing::Contains(testing::StartsWith("DeF.cmdbSN"))))
        << "it only explains";
}

TEST_F(FieldHelpTest, ExistingPavementsHaveSubgradeDataOfTheirOwn) {
    Raise(Kind::OpenForm, "DeR");
    Form& caller = Current();
    for (const char* screen : {"ExC", "ExR"}) {
        Raise(Kind::OpenForm, screen);
        Raise(Kind::Focus, "EXISTK");
        Raise(Kind::Key, "F1");
        ASSERT_EQ(Current().name(), "H_K");
        Raise(Kind::Type, {}, "7000");
        Raise(Kind::Focus, "MRSB");
        Raise(Kind::Key, "Esc");
        EXPECT_EQ(program_.Get("EXISTK"), 360.8);
        EXPECT_EQ(program_.Get("EXISTMRSG"), 7000.0);
        EXPECT_EQ(program_.Get("MRSG"), 0.0);
        EXPECT_EQ(program_.Get("K"), 0.0);
        program_.Set("EXISTMRSG", 0.0);
    }
    EXPECT_EQ(caller.name(), "DeR");
}

/// Every field of every screen, filled with numbers that its picture rounds, and every cell of a grid.
TEST_F(FieldHelpTest, OpenedAndClosedWithoutAnEditItChangesNothing) {
    for (const Variable& variable : program_.program.state().dbCatalogue->variables()) Fill(variable.name);
    int helps = 0;
    for (const std::string& screen : Forms().TypeNames()) {
        if (Forms().FindType(screen)->isHub) continue;
        Raise(Kind::OpenForm, screen);
        if (Current().name() != screen || Current().Find("SSHelp") == nullptr) {
            Raise(Kind::CloseForm, screen);
            continue;
        }
        Form& form = Current();
        CalcTotals(form);
        std::vector<std::string> fields;
        for (const auto& control : form.controls()) {
            if (control->IsField() && form.CanFocus(*control)) fields.push_back(control->name);
        }
        WorkOut(form);
        for (const std::string& field : fields) Raise(Kind::Focus, field);  // what leaving one works out
        const auto warned = Warnings(form);
        const std::vector<std::string> before = Dump();
        for (const std::string& field : fields) {
            Raise(Kind::Focus, field);
            Raise(Kind::Key, "F1");
            if (&Current() != &form) ++helps;
            for (int i = 0; i < 3 && &Current() != &form; ++i) Raise(Kind::Key, "Tab");
            for (int i = 0; i < 3 && &Current() != &form; ++i) Raise(Kind::Key, "Esc");
            ASSERT_EQ(&Current(), &form) << screen << "." << field;
            EXPECT_EQ(Warnings(form), warned) << screen << "." << field;
        }
        if (const Control* grid = form.FindGrid()) {
            for (const GridColumn& column : grid->grid->columns) {
                Raise(Kind::MoveToCell, column.variable, {}, 2);
                Raise(Kind::Key, "F1");
                if (&Current() != &form) ++helps;
                for (int i = 0; i < 3 && &Current() != &form; ++i) Raise(Kind::Key, "Esc");
                ASSERT_EQ(&Current(), &form) << screen << "." << column.variable;
            }
        }
        EXPECT_THAT(Dump(), testing::ContainerEq(before)) << screen;
        Raise(Kind::CloseForm, screen);
    }
    EXPECT_GT(helps, 40);
    EXPECT_THAT(Messages(), testing::Each(testing::AnyOf(testing::HasSubstr("not balanced"),
                                                         "No Help Available for 'Traffic Input by'.")));
}

}  // namespace
}  // namespace kelvor::test
