// Undo and redo: what each step is called, what it puts back, and that no random walk gets lost.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>

#include "support/project_fixture.h"
#include "support/random_events.h"

namespace kelvor::test {
namespace {

using testing::Optional;

using Kind = UserEvent::Kind;
using Cells = std::map<std::string, CellValue>;

class UndoTest : public ProjectTest {
  protected:
    Form& Front() { return *State().formRegistry.CurrentForm; }
    void Raise(Kind kind, const std::string& name, const std::string& text = {}, int number = 0) {
        Run().Raise({kind, name, text, number});
    }
    void TypeInto(const std::string& field, const std::string& text) {
        Raise(Kind::Focus, field);
        Raise(Kind::Type, {}, text);
        Raise(Kind::Key, "Tab");
    }

    Cells AllCells() {
        Cells cells;
        State().dbWork.ForEachFilled([&](const CellKey& key, const CellValue& value) {
            cells.emplace(CellText(key.name, key.dim1, key.dim2), value);
        });
        return cells;
    }

    /// A flexible design, entered and solved for its structural number.
    void SolveFlexible() {
        Raise(Kind::OpenForm, "DeF");
        const std::pair<const char*, const char*> values[] = {{"FLEXE18", "5000000"}, {"FLEXREL", "95"},
                                                              {"FLEXDEV", "0.35"},    {"RM", "5000"},
                                                              {"FLEXPO", "4.4"},      {"FLEXPT", "2.5"}};
        for (const auto& [field, value] : values) TypeInto(field, value);
        Raise(Kind::Focus, "SN");
        Raise(Kind::Press, "Command1");
    }
};

TEST_F(UndoTest, WithNothingDoneThereIsNothingToUndo) {
    EXPECT_EQ(Run().Undo(), std::nullopt);
    EXPECT_EQ(Run().Redo(), std::nullopt);
    Raise(Kind::OpenForm, "DeF");
    EXPECT_EQ(Run().Undo(), std::nullopt) << "opening a screen is no step";
}

TEST_F(UndoTest, AnUndoneSolveShowsWhatItShowedBefore) {
    SolveFlexible();
    const std::string solved = Front().TextOf("SolveFor");
    const double number = Get("SN");
    EXPECT_NEAR(number, 5.0, 0.05);  // the example beside the Guide's nomograph, figure 3.1
    EXPECT_THAT(Run().Undo(), Optional(std::string("Solve For")));
    EXPECT_EQ(Get("SN"), 0.0);
    EXPECT_TRUE(Front().TextOf("SolveFor").starts_with("WARNING!"));
    EXPECT_EQ(Front().TextOf("SN"), "");
    EXPECT_THAT(Run().Undo(), Optional(std::string("change of Terminal Serviceability, Pt")));
    EXPECT_THAT(Run().Redo(), Optional(std::string("change of Terminal Serviceability, Pt")));
    EXPECT_THAT(Run().Redo(), Optional(std::string("Solve For")));
    EXPECT_EQ(Run().Redo(), std::nullopt);
    EXPECT_EQ(Get("SN"), number);
    EXPECT_EQ(Front().TextOf("SolveFor"), solved);
    EXPECT_TRUE(Front().Get("SolveFor").bold);
}

TEST_F(UndoTest, TheScreenInQuestionComesInFrontAndIsOpenedIfNeedBe) {
    SolveFlexible();
    program_.host.dialogs.QueueAnswer("yes");
    Raise(Kind::CloseForm, "DeF");
    Raise(Kind::SwitchTab, {}, {}, 0);
    TypeInto("Agency", "County");
    EXPECT_THAT(Run().Undo(), Optional(std::string("change of Agency")));
    EXPECT_EQ(Front().name(), "TabForm");
    EXPECT_EQ(Front().page(), 0);
    Raise(Kind::SwitchTab, {}, {}, 7);
    EXPECT_THAT(Run().Undo(), Optional(std::string("Solve For")));
    EXPECT_EQ(Front().name(), "DeF");
    EXPECT_EQ(Front().TextOf("SN"), "");
}

TEST_F(UndoTest, WhatIsBeingTypedGoesFirst) {
    Raise(Kind::OpenForm, "DeF");
    TypeInto("FLEXREL", "95");
    Raise(Kind::Focus, "FLEXREL");
    Raise(Kind::Type, {}, "99");
    EXPECT_THAT(Run().Undo(), Optional(std::string("typing")));
    EXPECT_EQ(Front().TextOf("FLEXREL"), "95.00");
    EXPECT_THAT(Run().Undo(), Optional(std::string("change of Reliability")));
    EXPECT_EQ(Front().TextOf("FLEXREL"), "");
}

TEST_F(UndoTest, ABlockIsOneStepAndSoIsARowThatGoes) {
    const Cells before = AllCells();
    Raise(Kind::OpenForm, "LayDet");
    Raise(Kind::MoveToCell, "LDLayerCoef", {}, 1);
    Raise(Kind::PasteCells, {}, "0.4\t1\t6\n0.2\t1\t8\n");
    const Cells pasted = AllCells();
    program_.host.dialogs.QueueAnswer("yes");
    Raise(Kind::DeleteRow, {}, {}, 1);
    EXPECT_NE(AllCells(), pasted);
    EXPECT_THAT(Run().Undo(), Optional(std::string("deletion of layer 1")));
    EXPECT_EQ(AllCells(), pasted);
    EXPECT_THAT(Run().Undo(), Optional(std::string("paste of 2 layers")));
    EXPECT_EQ(AllCells(), before);
}

TEST_F(UndoTest, ANewStepEndsWhatCouldBeRedone) {
    Enter("FLEXREL", "95");
    Run().Undo();
    Enter("FLEXDEV", "0.45");
    EXPECT_EQ(Run().Redo(), std::nullopt);
    EXPECT_THAT(Run().Undo(), Optional(std::string("change of Overall Deviation")));
    EXPECT_EQ(Run().Undo(), std::nullopt);
}

TEST_F(UndoTest, AnotherProjectHasItsOwnStepsAndASaveKeepsThem) {
    Enter("FLEXREL", "95");
    EXPECT_TRUE(Run().SaveAs(File("a.kvr")));
    EXPECT_THAT(Run().Undo(), Optional(std::string("change of Reliability")));
    EXPECT_EQ(Get("FLEXREL"), 0.0);
    EXPECT_TRUE(State().bProjectChanged) << "the file has another value";
    EXPECT_THAT(Run().Redo(), Optional(std::string("change of Reliability")));
    Run().NewProject();
    EXPECT_EQ(Run().Undo(), std::nullopt);
    Enter("FLEXREL", "99");
    Run().OpenProject(File("a.kvr"));
    EXPECT_EQ(Run().Undo(), std::nullopt);
    EXPECT_EQ(Get("FLEXREL"), 95.0);
}

TEST_F(UndoTest, AThousandStepsAreKept) {
    for (int i = 1; i <= 1000; ++i) Enter("RM", std::to_string(2000 + i));
    for (int i = 1000; i >= 1; --i) {
        ASSERT_EQ(Get("RM"), 2000.0 + i);
        ASSERT_TRUE(Run().Undo());
    }
    EXPECT_FALSE(State().dbWork.FindCell("RM", 1, 1)->IsFilled());
}

/// What is kept has an end: a program that runs for weeks does not grow.
TEST_F(UndoTest, OfVeryManyStepsTheOldestGo) {
    constexpr int kEntries = 2100;
    constexpr int kKept = 2000;
    for (int i = 1; i <= kEntries; ++i) Enter("RM", std::to_string(2000 + i));
    int undone = 0;
    while (Run().Undo()) ++undone;
    EXPECT_EQ(undone, kKept);
    EXPECT_EQ(Get("RM"), 2000.0 + kEntries - kKept);
}

TEST_F(UndoTest, TheMenuNamesTheStep) {
    const auto entry = [&](const std::string& name) {
        for (const MenuEntry& e : Run().Menus()) {
            if (e.name == name) return e;
        }
        return MenuEntry{};
    };
    EXPECT_FALSE(entry("MenuEditUndo").enabled);
    Enter("FLEXREL", "95");
    EXPECT_EQ(entry("MenuEditUndo").caption, "&Undo change of Reliability");
    EXPECT_TRUE(entry("MenuEditUndo").enabled);
    EXPECT_FALSE(entry("MenuEditRedo").enabled);
    Raise(Kind::Menu, "MenuEditUndo");
    EXPECT_EQ(entry("MenuEditRedo").caption, "&Redo change of Reliability");
    Raise(Kind::Menu, "MenuEditRedo");
    EXPECT_EQ(Get("FLEXREL"), 95.0);
}

/// The cells in which two projects differ, with what the first has.
std::vector<std::string> Differences(const Cells& one, const Cells& other) {
    std::vector<std::string> differences;
    for (const auto& [cell, value] : one) {
        const auto found = other.find(cell);
        if (found == other.end() || !(found->second == value))
            differences.push_back(cell + " = " + std::to_string(value.number.value_or(0.0)));
    }
    for (const auto& [cell, value] : other) {
        if (!one.contains(cell)) differences.push_back(cell + " is empty");
    }
    return differences;
}

/// What the indicators of the open forms say.
std::map<std::string, std::string> Indicators(const FormRegistry& forms) {
    std::map<std::string, std::string> said;
    for (const Form* form : forms.InOpeningOrder()) {
        for (const FormEquation& equation : form->type().equations)
            said[form->name() + "." + equation.indicator] = form->TextOf(equation.indicator);
    }
    return said;
}

/// A page of costs with quantities of areas in some of its rows.
struct QuantityPage {
    const char* form;
    const char* quantity;
    const char* unit;
};
constexpr QuantityPage kQuantityPages[] = {{"LcA1_2", "InitialQuantity", "InitialUnit"},
                                           {"LcA1_4", "RehabQuantity", "RehabUnit"}};
constexpr int kFirstArea = 2;
constexpr int kLastArea = 4;
constexpr double kSquareMetresOfYard = 0.9144 * 0.9144;

class QuantityWalk : public UndoTest {
  protected:
    QuantityWalk() {
        for (const QuantityPage& page : kQuantityPages) {
            for (int row = kFirstArea; row <= kLastArea; ++row)
                program_.store().SetCell(page.unit, row, 1, {std::nullopt, "sq yd"});
        }
    }

    void TypeQuantity(int row, int quantity) {
        const auto* page = PageInFront();
        if (page == nullptr) return;
        Raise(Kind::MoveToCell, page->quantity, {}, row);
        Raise(Kind::Type, {}, std::to_string(quantity));
        Raise(Kind::Key, "Enter");
    }

    const QuantityPage* PageInFront() {
        const auto* page =
            std::find_if(std::begin(kQuantityPages), std::end(kQuantityPages),
                         [&](const QuantityPage& each) { return Front().name() == each.form; });
        return page == std::end(kQuantityPages) ? nullptr : page;
    }

    void Act(std::mt19937& random) {
        const char* const screens[] = {"LcA1_2", "LcA1_4", "LcA1", "DeF"};
        const int what = static_cast<int>(random() % 10);
        if (what < 3)
            TypeQuantity(kFirstArea + static_cast<int>(random() % 3), static_cast<int>(random() % 500));
        if (what == 3) Raise(Kind::OpenForm, screens[random() % 4], {}, 1);
        if (what == 4 && Front().name() != "TabForm") Raise(Kind::CloseForm, Front().name());
        if (what == 5 || what == 6) Run().ChooseUnits(random() % 2 == 0);
        if (what == 7 || what == 8) Run().Undo();
        if (what == 9) Run().Redo();
    }

    /// On the page in front each quantity is of the active unit system, and so is its unit.
    void ExpectQuantitiesInActiveUnits() {
        const auto* page = PageInFront();
        if (page == nullptr) return;
        const bool metric = State().units->bMetric();
        for (int row = kFirstArea; row <= kLastArea; ++row) {
            const CellValue* unit = State().dbWork.FindCell(page->unit, row, 1);
            const CellValue* quantity = State().dbWork.FindCell(page->quantity, row, 1);
            ASSERT_NE(unit, nullptr);
            EXPECT_EQ(unit->text, metric ? "sq m" : "sq yd");
            if (quantity == nullptr || !quantity->number) continue;
            ASSERT_TRUE(quantity->text);  // in square yards
            const double english = std::stod(*quantity->text);
            EXPECT_NEAR(*quantity->number, metric ? english * kSquareMetresOfYard : english, 1e-9);
        }
    }
};

TEST_F(QuantityWalk, EveryQuantityIsOfTheActiveUnits) {
    for (unsigned seed = 1; seed <= 60 && !HasFailure(); ++seed) {
        std::mt19937 random(seed);
        for (int act = 0; act < 60 && !HasFailure(); ++act) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", act " + std::to_string(act));
            Act(random);
            ExpectQuantitiesInActiveUnits();
        }
    }
}

TEST_F(UndoTest, ARandomWalkIsGoneBackAndForthBitForBit) {
    const std::vector<std::string> screens = {"TabForm", "DeF",  "DeR",  "LayDet", "DeS",   "TrAx", "ExF",
                                              "OvAA",    "OvUP", "OvAP", "SNHelp", "H_SRM", "TrTr"};
    const std::string answers[] = {"yes", "no", "ok"};
    int stepsOfAll = 0;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        std::mt19937 random(seed);
        Run().NewProject();
        const Cells start = AllCells();
        for (int act = 0; act < 400; ++act) {
            UserEvent event = RandomEvent(random, State().formRegistry.CurrentForm, screens);
            if (event.kind == Kind::Menu && (event.name == "NewProj" || event.name == "MenuFileOpen"))
                continue;
            program_.host.dialogs.QueueAnswer(answers[random() % 3]);
            Run().Raise(event);
            program_.host.dialogs.DropAnswers();
        }
        program_.host.dialogs.QueueAnswer("yes");
        while (Front().modal) Raise(Kind::CloseForm, Front().name());
        program_.host.dialogs.DropAnswers();
        const Cells end = AllCells();
        const auto said = Indicators(State().formRegistry);
        int steps = 0;
        while (const auto act = Run().Undo()) steps += *act == "typing" ? 0 : 1;
        EXPECT_THAT(Differences(AllCells(), start), testing::IsEmpty()) << "seed " << seed;
        stepsOfAll += steps;
        for (int i = 0; i < steps; ++i) ASSERT_TRUE(Run().Redo());
        EXPECT_EQ(Run().Redo(), std::nullopt);
        EXPECT_THAT(Differences(AllCells(), end), testing::IsEmpty()) << "seed " << seed;
        for (const auto& [indicator, text] : Indicators(State().formRegistry)) {
            if (!said.contains(indicator)) continue;  // of a form that was opened on the way
            EXPECT_EQ(text, said.at(indicator)) << indicator << ", seed " << seed;
        }
        EXPECT_TRUE(State().dbWork.CompareWithWorkCopy().empty());
    }
    EXPECT_GT(stepsOfAll, 100);
}

}  // namespace
}  // namespace kelvor::test
