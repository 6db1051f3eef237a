// The hub: what its tabs offer, and when.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <stdexcept>

#include "forms/layout.h"
#include "shell/hub/hub.h"
#include "shell/hub/hub_table.h"
#include "shell/hub/offer.h"
#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array kSharedInputs = {"TrafficDEPTH", "TrafficSN", "PT", "Life", "GrowthRate", "TrPer"};

class HubTest : public ProjectTest {
  protected:
    Form& Hub() { return *State().formRegistry.Find("TabForm"); }
    const Control& At(const std::string& name) { return *Hub().Find(name); }

    void SwitchTo(int tab) { EXPECT_TRUE(Run().Raise({UserEvent::Kind::SwitchTab, {}, {}, tab})); }
    void Choose(const std::string& name) { EXPECT_TRUE(Run().Raise({UserEvent::Kind::Choose, name, {}, 0})); }
    void Press(const std::string& name) { EXPECT_TRUE(Run().Raise({UserEvent::Kind::Press, name, {}, 0})); }

    std::vector<std::string> Enabled(const std::vector<std::string>& names) {
        std::vector<std::string> enabled;
        for (const std::string& name : names) {
            if (At(name).enabled) enabled.push_back(name);
            EXPECT_EQ(At(name).enabled, At(name).toolTip == At(name).does)
                << name << ": a hint says why it is off";
        }
        return enabled;
    }

    /// What the routes to the ESALs need.
    void EnterSharedInputs() {
        for (const char* input : kSharedInputs) Enter(input, "2");
    }

    std::vector<std::string> Ticked() {
        std::vector<std::string> ticked;
        for (const auto& control : Hub().controls()) {
            if (control->kind == ControlKind::CheckBox && control->value) ticked.push_back(control->name);
        }
        return ticked;
    }
};

/// What every option opens.
const std::map<std::string, std::string> kScreenOf = {
    {"PavementTrafficFactors", "TrFa"},
    {"AxleData", "TrAx"},
    {"VehicleType", "TrVe"},
    {"TrafficFactor", "TrTr"},
    {"oDeF", "DeF"},
    {"oDeR", "DeR"},
    {"oDeS", "DeS"},
    {"oOvBP", "OvBP"},
    {"oOvUP", "OvUP"},
    {"oOvWT", "OvWT"},
    {"oOvAA", "OvAA"},
    {"oOvAP", "OvAP"},
    {"oOvAAP", "OvAAP"},
    {"oOvAFP", "OvAFP"},
    {"oExR", "ExR"},
    {"oExF", "ExF"},
    {"oExC", "ExC"},
    {"RPNDTCalc", "ReDfR"},
    {"FPNDTCalc", "ReDfF"},
    {"CPNDTCalc", "ReDfC"},
    {"oLcA1", "LcA1"},
    {"oLcA2", "LcA1"},
    {"oLcS", "LcS"},
};

// --- The table -------------------------------------------------------------------------------------------

TEST_F(HubTest, AfterARowWasAddedToAListThePointerWaitsNoMore) {
    SwitchTo(6);
    ASSERT_TRUE(Run().Raise({UserEvent::Kind::Choose, "CustCombo", "Axle Types", 0}));
    Press("cmdbAddMaint");
    EXPECT_FALSE(program_.host.dialogs.waiting());
}

TEST_F(HubTest, EveryNameOfTheTableIsOne) {
    EXPECT_NO_THROW(CheckHubTable(State().formRegistry, *State().dbCatalogue));
    std::map<std::string, std::string> screens;
    for (const HubRow& row : HubTable()) {
        if (row.group != HubGroup::Graphs) screens[row.option] = row.screen;
    }
    EXPECT_EQ(screens, kScreenOf);
}

TEST_F(HubTest, ASlipInARowOfTheTableIsFound) {
    const HubRow right = *FindHubRow("TrAx");
    const auto check = [&](const HubRow& row) {
        CheckHubRow(row, State().formRegistry, *State().dbCatalogue);
    };
    const auto fails = [](const std::string& slip) {
        return testing::ThrowsMessage<std::logic_error>("option AxleData of the hub: " + slip);
    };
    EXPECT_NO_THROW(check(right));
    HubRow row = right;
    row.screen = "TrXa";
    EXPECT_THAT([&] { check(row); }, fails("TrXa is no screen"));
    row = right;
    constexpr std::array kNeeds = {"TrPer", "TrPre"};
    row.needs.variables = kNeeds;
    EXPECT_THAT([&] { check(row); }, fails("TrPre is no variable"));
    row = right;
    row.report.category = "rbTR";
    EXPECT_THAT([&] { check(row); }, fails("rbTR is no category of reports"));
    row = right;
    row.report.box = "rbTRopTrVe";  // that of another screen
    EXPECT_THAT([&] { check(row); }, fails("rbTRopTrVe is a box without a report"));
}

TEST_F(HubTest, TheButtonOfATabOpensTheScreenOfItsOption) {
    struct Row {
        const char* option;
        const char* button;
        int tab;
    };
    for (const Row& row :
         {Row{"PavementTrafficFactors", "Command1", 1}, Row{"oExF", "Command7", 3},
          Row{"oExR", "Command7", 3}, Row{"oExC", "Command7", 3}, Row{"FPNDTCalc", "Command7", 3},
          Row{"RPNDTCalc", "Command7", 3}, Row{"CPNDTCalc", "Command7", 3}, Row{"oLcS", "Command2", 4}}) {
        SCOPED_TRACE(row.option);
        const std::string& screen = kScreenOf.at(row.option);
        SwitchTo(row.tab);
        EXPECT_TRUE(At(row.option).enabled);
        EXPECT_TRUE(At(row.button).enabled);
        Choose(row.option);
        Press(row.button);
        EXPECT_EQ(State().formRegistry.CurrentForm->name(), screen);
        Run().Raise({UserEvent::Kind::ActivateForm, "TabForm", {}, 0});
        Press(row.button);
        EXPECT_EQ(State().formRegistry.CurrentForm->name(), screen);
        EXPECT_EQ(State().formRegistry.InOpeningOrder().size(), 2U) << "no second instance";
        Run().Raise({UserEvent::Kind::CloseForm, screen, {}, 0});
    }
}

TEST_F(HubTest, WithNoOptionSelectedAButtonDoesNothing) {
    SwitchTo(2);
    Press("Command4");
    EXPECT_EQ(State().formRegistry.InOpeningOrder().size(), 1U);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(HubTest, OneOptionOfATabIsSelectedAlsoAcrossItsFrames) {
    SwitchTo(3);
    Choose("oExF");
    Choose("FPNDTCalc");
    EXPECT_FALSE(At("oExF").value);
    EXPECT_TRUE(At("FPNDTCalc").value);
}

TEST_F(HubTest, ATableThatNamesWhatIsNotThereFails) {
    EXPECT_THAT([&] { Offer(Hub(), "oDeG", true, {}); },
                testing::ThrowsMessage<std::logic_error>("form TabForm has no control oDeG"));
}

TEST_F(HubTest, BothPavementsHaveTheSameScreenWithTheirOwnNumber) {
    SwitchTo(4);
    Choose("oLcA2");
    Press("Command2");
    EXPECT_EQ(State().formRegistry.CurrentForm->TextOf("Dim2"), "2");
    SwitchTo(4);
    Choose("oLcA1");
    Press("Command2");
    EXPECT_EQ(State().formRegistry.CurrentForm->TextOf("Dim2"), "1");
}

// --- What the options need ------------------------------------------------------------------------

const std::vector<std::string> kOverlays = {"oOvAA", "oOvAFP", "oOvAP", "oOvAAP", "oOvBP", "oOvUP", "oOvWT"};

TEST_F(HubTest, OverlaysFollowWhatIsKnownOfTheExistingPavement) {
    SwitchTo(3);
    EXPECT_THAT(Enabled(kOverlays), IsEmpty());
    Enter("EXISTRM", "5000");
    SwitchTo(3);
    EXPECT_THAT(Enabled(kOverlays), ElementsAre("oOvAA", "oOvWT"));
    Enter("EXISTRM", "");
    for (const char* name : {"EXISTMR", "EXISTEC", "EXISTJ", "EXISTK"}) Enter(name, "650");
    SwitchTo(3);
    EXPECT_THAT(Enabled(kOverlays), ElementsAre("oOvAFP", "oOvAP", "oOvBP"));
    Enter("EXISTDEPTH", "9");
    SwitchTo(3);
    EXPECT_THAT(Enabled(kOverlays), ElementsAre("oOvAFP", "oOvAP", "oOvAAP", "oOvBP", "oOvUP"));
    Enter("EXISTJ", "");
    SwitchTo(3);
    EXPECT_THAT(Enabled(kOverlays), IsEmpty());
}

struct SlabOrSoilField {
    const char* name;
    const char* label;
    const char* overlays;  // that need it, by their letters
};

/// Each field of the existing pavement with the overlays that need it: Bonded, asphalt on Slab, on Fractured
/// slab, Unbonded, on Composite, on Asphalt, Whitetopping.
constexpr SlabOrSoilField kNeeded[] = {{"EXISTDEPTH", "Existing PCC Slab Thickness", "UC"},
                                       {"EXISTMR", "Existing PCC Modulus of Rupture", "BSFUC"},
                                       {"EXISTEC", "Existing PCC Modulus of Elasticity", "BSFUC"},
                                       {"EXISTJ", "Existing Load Transfer, J", "BSFUC"},
                                       {"EXISTK", "Effective Mod. Subgrade Reaction, k", "BSFUC"},
                                       {"EXISTRM", "Soil Resilient Modulus", "AW"}};
const std::map<char, std::string> kOverlayOfLetter = {{'B', "oOvBP"}, {'S', "oOvAP"},  {'F', "oOvAFP"},
                                                      {'U', "oOvUP"}, {'C', "oOvAAP"}, {'A', "oOvAA"},
                                                      {'W', "oOvWT"}};

TEST_F(HubTest, EachCombinationOfTheSixFieldsOffersItsOverlaysAndTheHintsNameWhatIsMissing) {
    for (unsigned filled = 0; filled < 64; ++filled) {
        SCOPED_TRACE(filled);
        std::map<std::string, std::string> hints;
        for (unsigned i = 0; i < std::size(kNeeded); ++i) {
            const bool isFilled = (filled >> i & 1U) != 0;
            Enter(kNeeded[i].name, isFilled ? "0" : "");  // what counts is that something stands there
            for (const char letter : std::string(isFilled ? "" : kNeeded[i].overlays)) {
                std::string& hint = hints[kOverlayOfLetter.at(letter)];
                hint += (hint.empty() ? "needs " : "; ") + std::string(kNeeded[i].label);
            }
        }
        SwitchTo(3);
        for (const auto& [letter, option] : kOverlayOfLetter) {
            const std::string& hint = hints[option].empty() ? At(option).does : hints[option];
            EXPECT_EQ(At(option).toolTip, hint) << option;
            EXPECT_EQ(At(option).enabled, hints[option].empty()) << option;
        }
    }
}

TEST_F(HubTest, OverlaysFollowTheProjectAtNewOpenAndWhenAScreenCloses) {
    Enter("EXISTRM", "5000");
    Run().Raise({UserEvent::Kind::OpenForm, "DeF", {}, 0});
    Run().Raise({UserEvent::Kind::CloseForm, "DeF", {}, 0});
    EXPECT_THAT(Enabled(kOverlays), IsEmpty()) << "only the screens that decide it count";
    Run().Raise({UserEvent::Kind::OpenForm, "DeR", {}, 0});
    Run().Raise({UserEvent::Kind::CloseForm, "DeR", {}, 0});
    EXPECT_THAT(Enabled(kOverlays), ElementsAre("oOvAA", "oOvWT"));
    ASSERT_TRUE(Run().SaveAs(File("road.kvr")));
    ASSERT_TRUE(Run().NewProject());
    EXPECT_THAT(Enabled(kOverlays), IsEmpty());
    ASSERT_TRUE(Run().OpenProject(File("road.kvr")));
    EXPECT_THAT(Enabled(kOverlays), ElementsAre("oOvAA", "oOvWT"));
}

TEST_F(HubTest, TheRoutesToTheEsalsNeedAllSixSharedInputs) {
    const std::vector<std::string> routes = {"AxleData", "VehicleType", "TrafficFactor"};
    for (const char* input : kSharedInputs) {
        SwitchTo(1);
        EXPECT_THAT(Enabled(routes), IsEmpty());
        EXPECT_TRUE(At("PavementTrafficFactors").enabled);
        Enter(input, "2");
    }
    SwitchTo(1);
    EXPECT_EQ(Enabled(routes), routes);
}

TEST_F(HubTest, TheRoutesFollowTheInputsWhenTheseAreClosedAndNotBefore) {
    const std::vector<std::string> routes = {"AxleData", "VehicleType", "TrafficFactor"};
    const std::vector<std::string> boxes = {"rbTRopTrAx", "rbTRopTrVe", "rbTRopTrTr"};
    SwitchTo(1);
    Run().Raise({UserEvent::Kind::OpenForm, "TrFa", {}, 0});
    EnterSharedInputs();
    Run().Raise({UserEvent::Kind::ActivateForm, "TabForm", {}, 0});
    EXPECT_THAT(Enabled(routes), IsEmpty()) << "the screen is still open";
    Run().Raise({UserEvent::Kind::CloseForm, "TrFa", {}, 0});
    EXPECT_EQ(Enabled(routes), routes);
    EXPECT_EQ(Enabled(boxes), boxes) << "set with the routes, whatever their screens hold";
    Enter("Life", "");
    Run().Raise({UserEvent::Kind::OpenForm, "TrTr", {}, 0});
    Run().Raise({UserEvent::Kind::CloseForm, "TrTr", {}, 0});
    SwitchTo(2);
    EXPECT_EQ(Enabled(routes), routes);
    EXPECT_EQ(Enabled(boxes), boxes) << "no other tab decides";
    Enter("Life", "20");
    SwitchTo(1);
    EXPECT_EQ(Enabled(routes), routes);
    EXPECT_THAT(Enabled(boxes), ElementsAre("rbTRopTrTr"))
        << "whose screen shows the life and the growth rate";
}

// --- Report boxes ----------------------------------------------------------------------------------

TEST_F(HubTest, AnOverlayReportIsOffWithoutDataAndLosesItsTick) {
    Enter("ACACPO", "4.2");
    SwitchTo(5);
    Choose("rbOVopAA");
    EXPECT_THAT(Ticked(), ElementsAre("rbOVopAA"));
    EXPECT_TRUE(At("rbOV").value);
    EXPECT_FALSE(At("rbOVopBP").enabled);
    Enter("ACACPO", "0");
    SwitchTo(3);
    EXPECT_FALSE(At("rbOVopAA").enabled);
    EXPECT_THAT(Ticked(), IsEmpty());
}

TEST_F(HubTest, ATrafficReportNeedsDataOfItsScreen) {
    const std::vector<std::string> boxes = {"rbTRopTrVe"};
    SwitchTo(5);
    EXPECT_THAT(Enabled(boxes), IsEmpty());
    EnterSharedInputs();
    Enter("AW51", "10");  // not the middle axle
    SwitchTo(5);
    EXPECT_THAT(Enabled(boxes), IsEmpty());
    Enter("AW58", "10");
    SwitchTo(1);
    EXPECT_THAT(Enabled(boxes), ElementsAre("rbTRopTrVe"));
    Enter("GrowthRate", "");
    SwitchTo(5);
    EXPECT_THAT(Enabled(boxes), IsEmpty()) << "and the inputs that all routes share";
}

TEST_F(HubTest, ASelectionClearsTheBoxesOfEveryOtherCategory) {
    Enter("ACACPO", "4.2");
    Enter("ACPCPO", "4.2");
    SwitchTo(5);
    Choose("rbNDopF");
    Choose("rbNDopR");
    EXPECT_THAT(Ticked(), ElementsAre("rbNDopF", "rbNDopR"));
    Choose("rbOVopAA");
    EXPECT_THAT(Ticked(), ElementsAre("rbOVopAA"));
    EXPECT_FALSE(At("rbND").value);
    EXPECT_TRUE(At("rbOV").value);
    Choose("rbOVopAP");
    EXPECT_THAT(Ticked(), ElementsAre("rbOVopAA", "rbOVopAP"));
    Choose("rbOVopAP");
    EXPECT_THAT(Ticked(), ElementsAre("rbOVopAA")) << "taking a tick away clears no other";
    Choose("rbND");
    EXPECT_THAT(Ticked(), IsEmpty());
    EXPECT_FALSE(At("rbOV").value);
}

TEST_F(HubTest, ATrafficTickStaysOnlyOnceItsCategoryIsSelected) {
    EnterSharedInputs();
    Enter("AW52", "10");
    SwitchTo(5);
    Choose("rbTRopTrVe");
    EXPECT_THAT(Ticked(), IsEmpty()) << "the category was off: its own click clears the tick";
    EXPECT_TRUE(At("rbTr").value);
    Choose("rbTRopTrVe");
    EXPECT_THAT(Ticked(), ElementsAre("rbTRopTrVe"));
    Choose("rbTr");
    EXPECT_THAT(Ticked(), IsEmpty()) << "a click on the category clears its own boxes too";
}

TEST_F(HubTest, TheCostsStandAlone) {
    SwitchTo(5);
    EXPECT_FALSE(At("rbCost").enabled);
    // A cost screen holds data as soon as a row of the catalogue does.
    RunSql(program_.home / "DataBase/Kelvor.mdb",
           "INSERT INTO Field (Screen, Name, Seq) VALUES ('LcA2_4', 'RehabQuantity', 20)");
    TestHost host;
    Program program(host.host(), {program_.home.path(), folder_.path()});
    ASSERT_EQ(program.Start(""), StartResult::Running);
    program.SetValue("RehabQuantity", 1, 1, "3");
    program.Raise({UserEvent::Kind::SwitchTab, {}, {}, 5});
    Form& hub = *program.state().formRegistry.Find("TabForm");
    program.Raise({UserEvent::Kind::Choose, "rbNDopF", {}, 0});
    program.Raise({UserEvent::Kind::Choose, "rbCost", {}, 0});
    EXPECT_TRUE(hub.Find("rbCost")->value);
    EXPECT_FALSE(hub.Find("rbND")->value);
    EXPECT_FALSE(hub.Find("rbNDopF")->value);
    EXPECT_EQ(hub.focus, hub.Find("rbCost"));
}

TEST_F(HubTest, TheGraphsAskForAChoice) {
    SwitchTo(4);
    EXPECT_TRUE(At("ExpenditureHistogram").enabled);
    Press("Command8");
    EXPECT_EQ(program_.host.record.messages.at(0).title, "Graphs");
    EXPECT_THAT(Messages(), ElementsAre("Please select the graph."));
    Choose("EUAC");
    Press("Command8");
    EXPECT_EQ(State().formRegistry.CurrentForm->name(), "CostChart");
}

// --- Without a project -----------------------------------------------------------------------------

/// A good project, and a file that is none opened over it.
class NoProjectTest : public HubTest {
  protected:
    NoProjectTest() {
        Enter("SN", "4.5");
        Enter("Agency", "County");
        Run().SaveAs(File("good.kvr"));
        good_ = ReadFile(File("good.kvr"));
        WriteFile(File("bad.kvr"), "no project");
    }

    void OpenBadFile() {
        Run().OpenProject(File("bad.kvr"));
        ASSERT_FALSE(program_.store().IsOpen());
        (void)Messages();
    }

    std::string good_;
};

TEST_F(NoProjectTest, TabsThatShowTheProjectDoNothing) {
    OpenBadFile();
    for (const int tab : {0, 4}) {
        SwitchTo(tab);
        EXPECT_EQ(Hub().page(), 7);
    }
    for (const int tab : {1, 2, 3, 5, 6, 7}) {
        SwitchTo(tab);
        EXPECT_EQ(Hub().page(), tab);
    }
    SwitchTo(6);
    EXPECT_TRUE(Run().Raise({UserEvent::Kind::Choose, "CustCombo", "Axle Types", 0}));
    EXPECT_EQ(At("DBGrid1").grid->rows, 3) << "the lists are no part of a project";
    EXPECT_TRUE(Run().Raise({UserEvent::Kind::EditCell, "Value", "Mono", 1}));
    Press("cmdbSort");
    EXPECT_EQ(Run().CellText(Hub(), 1, At("DBGrid1").grid->columns[2]), "Mono");
}

TEST_F(NoProjectTest, NoCommandMenuOrCloseTouchesTheGoodFile) {
    std::vector<UserEvent> acts;
    for (const MenuEntry& entry : Run().Menus()) {
        if (!entry.IsSeparator()) acts.push_back({UserEvent::Kind::Menu, entry.name, {}, entry.index});
    }
    for (const std::string& name : State().formRegistry.TypeNames()) {
        acts.push_back({UserEvent::Kind::OpenForm, name, {}, 0});
        acts.push_back({UserEvent::Kind::CloseForm, name, {}, 0});
    }
    for (int tab = 0; tab < 8; ++tab) acts.push_back({UserEvent::Kind::SwitchTab, {}, {}, tab});
    for (const auto& control : Hub().controls()) {
        acts.push_back({UserEvent::Kind::Focus, control->name, {}, 0});
        acts.push_back({UserEvent::Kind::Press, control->name, {}, 0});
        acts.push_back({UserEvent::Kind::Choose, control->name, "Axle Types", 0});
    }
    acts.push_back({UserEvent::Kind::Type, {}, "9", 0});
    for (const char* key : {"Enter", "Tab", "Esc", "Space", "F1", "Delete", "5"}) {
        acts.push_back({UserEvent::Kind::Key, key, {}, 0});
    }
    acts.push_back({UserEvent::Kind::OpenFile, {}, File("bad.kvr"), 0});
    for (const char* answer : {"yes", "no", "cancel", "ok"}) {
        for (const UserEvent& act : acts) {
            OpenBadFile();
            State().bProjectChanged = true;
            if (act.name == "MenuFileExit" && std::string(answer) == "no") continue;  // that ends the program
            program_.host.dialogs.QueueAnswer(answer);
            Run().Raise(act);
            program_.host.dialogs.DropAnswers();
            Run().SetValue("SN", 1, 1, "7");
            Run().CalcField("SSN", "SSN");
            ASSERT_FALSE(Run().ended());
            ASSERT_EQ(ReadFile(File("good.kvr")), good_) << act.name << " " << act.text << " " << answer;
        }
    }
}

}  // namespace
}  // namespace kelvor::test
