// The helps of the overlays: what they hand to the field for which they were opened, and when.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "forms/form.h"
#include "rehab_fixture.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;

/// A screen with fields that the helps serve.
FormType CallerForm() {
    FormType type;
    type.name = "Caller";
    type.caption = "Caller";
    type.layout = Fields({{"NDTEFFSN"}, {"CONDEFFSN"}, {"BOLFJC"}, {"UBOLFJCU"}});
    type.helpRoutes = {
        {"NDTEFFSN", "SNHelp"}, {"CONDEFFSN", "SNCHELP"}, {"BOLFJC", "FjcHelp"}, {"UBOLFJCU", "FjcHelp"}};
    return type;
}

class SideScreensTest : public RehabTest {
  protected:
    SideScreensTest() {
        program_.program.state().formRegistry.Declare({CallerForm()});
        Raise(Kind::OpenForm, "Caller");
    }

    void Raise(Kind kind, const std::string& name = {}, const std::string& text = {}, int number = 0) {
        EXPECT_TRUE(program_.program.Raise({kind, name, text, number}));
    }

    Form& Current() { return *program_.program.state().formRegistry.CurrentForm; }
    bool& Changed() { return program_.program.state().bProjectChanged; }

    /// Opens the help of one of the caller's fields.
    void OpenHelp(const std::string& field, const std::string& screen) {
        Raise(Kind::ActivateForm, "Caller");
        Raise(Kind::Focus, field);
        Raise(Kind::Key, "F1");
        ASSERT_EQ(Current().name(), screen);
        Changed() = false;
    }

    void Enter(const std::string& box, const std::string& text) {
        Raise(Kind::Focus, box);
        Raise(Kind::Type, {}, text);
    }

    /// What the caller was told: that its field has a new value, and that the project has changed.
    void ExpectTaken(bool taken, const std::string& field) {
        EXPECT_EQ(Current().name(), "Caller");
        EXPECT_EQ(Current().focus->name, field);
        EXPECT_EQ(Changed(), taken);
        EXPECT_EQ(program_.Get("FieldChanged"), taken ? -1.0 : 0.0);
    }

    std::string Text(const std::string& name) {
        return program_.store().FindCell(name, 1, 1)->text.value_or("");
    }

    bool IsEmpty(const std::string& name) { return !program_.store().FindCell(name, 1, 1)->IsFilled(); }
};

// --- SNHelp -------------------------------------------------------------------------------------------

TEST_F(SideScreensTest, TheNumberFromDeflectionsIsHandedOverAsItIsShown) {
    OpenHelp("NDTEFFSN", "SNHelp");
    Enter("NDTEFFD", "10");
    Enter("NDTEFFEP2", "100000");
    Raise(Kind::Press, "cmdAction");
    ExpectTaken(true, "NDTEFFSN");
    EXPECT_EQ(program_.Get("NDTEFFSN"), 2.09);  // 0.0045 * 10 * 46.42
    EXPECT_EQ(Current().FindField("NDTEFFSN")->text, "2.09");
}

TEST_F(SideScreensTest, InMetricUnitsTheShownNumberIsConvertedBack) {
    program_.program.ChooseUnits(true);
    OpenHelp("NDTEFFSN", "SNHelp");
    Enter("NDTEFFD", "254");
    Enter("NDTEFFEP2", "689.4757");
    Raise(Kind::Press, "cmdAction");
    ExpectTaken(true, "NDTEFFSN");
    EXPECT_EQ(Current().FindField("NDTEFFSN")->text, "53.05");  // 2.0887 * 25.4
    EXPECT_NEAR(program_.Get("NDTEFFSN"), 53.05 / 25.4, 1e-12);
}

TEST_F(SideScreensTest, LookedAtAloneTheNumberStays) {
    Set({{"NDTEFFD", 10.0}, {"NDTEFFEP2", 100000.0}, {"NDTEFFSN", 3.0}});
    OpenHelp("NDTEFFSN", "SNHelp");
    EXPECT_EQ(Current().TextOf("NDTEFFSN"), "2.09") << "what the formula gives is shown";
    Raise(Kind::Focus, "NDTEFFEP2");
    Raise(Kind::Key, "Esc");
    ExpectTaken(false, "NDTEFFSN");
    EXPECT_EQ(program_.Get("NDTEFFSN"), 3.0);
}

TEST_F(SideScreensTest, TheSameNumberOnceMoreIsNoChange) {
    OpenHelp("NDTEFFSN", "SNHelp");
    Enter("NDTEFFD", "10");
    Enter("NDTEFFEP2", "100000");
    Raise(Kind::Press, "cmdAction");
    OpenHelp("NDTEFFSN", "SNHelp");
    Enter("NDTEFFD", "10.0");
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.Get("FieldChanged"), 0.0);
    EXPECT_EQ(program_.Get("NDTEFFSN"), 2.09);
}

TEST_F(SideScreensTest, ANegativeModulusLeavesTheNumberOfBefore) {
    Set({{"NDTEFFD", 10.0}, {"NDTEFFEP2", -5.0}, {"NDTEFFSN", 3.0}});
    OpenHelp("NDTEFFSN", "SNHelp");
    EXPECT_EQ(Current().TextOf("NDTEFFSN"), "3.00");
}

TEST_F(SideScreensTest, AModulusTypedIntoItsHelpCountsToo) {
    Set({{"NDTEFFD", 10.0}});
    OpenHelp("NDTEFFSN", "SNHelp");
    Raise(Kind::Focus, "NDTEFFEP2");
    Raise(Kind::Key, "F1");
    ASSERT_EQ(Current().name(), "HelpForm");
    Raise(Kind::Type, {}, "100000");
    Raise(Kind::Key, "Esc");
    EXPECT_EQ(Current().TextOf("NDTEFFSN"), "2.09");
    Raise(Kind::Key, "Esc");
    ExpectTaken(true, "NDTEFFSN");
    EXPECT_EQ(program_.Get("NDTEFFSN"), 2.09);
}

// --- SNCHELP ------------------------------------------------------------------------------------------

TEST_F(SideScreensTest, OnlyOkHandsTheTotalOfTheSurveyOver) {
    for (const bool ok : {false, true}) {
        OpenHelp("CONDEFFSN", "SNCHELP");
        program_.program.Raise({Kind::EditCell, "EXISTMAT", "Crushed Stone Base", 1});
        program_.program.Raise({Kind::EditCell, "EXISTLT", "10", 1});
        program_.program.Raise({Kind::EditCell, "EXISTDC", "1", 1});
        EXPECT_EQ(Current().TextOf("SNEFFTOT"), "1.20");  // 10 * 1 * 0.12
        Changed() = false;
        if (ok) {
            Raise(Kind::Press, "cmdAction");
        } else {
            Raise(Kind::CloseForm, "SNCHELP");
        }
        ExpectTaken(ok, "CONDEFFSN");
        EXPECT_EQ(IsEmpty("CONDEFFSN"), !ok);
    }
    EXPECT_NEAR(program_.Get("CONDEFFSN"), 1.2, 1e-12);
    OpenHelp("CONDEFFSN", "SNCHELP");
    Raise(Kind::Press, "cmdAction");
    ExpectTaken(false, "CONDEFFSN");
}

// --- FjcHelp ------------------------------------------------------------------------------------------

TEST_F(SideScreensTest, EachOverlayHasItsCurve) {
    OpenHelp("BOLFJC", "FjcHelp");
    Enter("APDETJTS", "20");
    Enter("APDETPNCH", "16");
    Raise(Kind::Press, "cmdAction");
    ExpectTaken(true, "BOLFJC");
    EXPECT_EQ(Text("BOLFJC"), "0.92");  // 1 - 0.00232 * 36 = 0.91648
    EXPECT_EQ(Text("APDETTOT"), "36");
    EXPECT_EQ(Text("APBOLFJC"), "0.92");

    OpenHelp("UBOLFJCU", "FjcHelp");
    EXPECT_EQ(Current().TextOf("APDETTOT"), "20") << "the unbonded overlay counts no punchouts";
    EXPECT_EQ(Current().TextOf("APDETPNCH"), "16");
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(Text("UBOLFJCU"), "0.98");  // 1 - 0.00106 * 20 = 0.9788
    EXPECT_EQ(program_.Get("APDETPNCH"), 16.0) << "the survey itself stays whole";
}

TEST_F(SideScreensTest, WithNoCountChangedOnlyAnEmptyFactorIsFilled) {
    OpenHelp("BOLFJC", "FjcHelp");
    EXPECT_EQ(Current().TextOf("APDETTOT"), "");
    EXPECT_EQ(Current().TextOf("APBOLFJC"), "1.00");
    Raise(Kind::Press, "cmdAction");
    ExpectTaken(true, "BOLFJC");
    EXPECT_EQ(program_.Get("BOLFJC"), 1.0);
    Set({{"BOLFJC", 0.85}});
    OpenHelp("BOLFJC", "FjcHelp");
    Raise(Kind::Press, "cmdAction");
    ExpectTaken(false, "BOLFJC");
    EXPECT_EQ(program_.Get("BOLFJC"), 0.85);
}

TEST_F(SideScreensTest, ACountThatGivesTheFactorOfBeforeWarnsOfNothing) {
    Set({{"UBOLFJCU", 0.9}});
    OpenHelp("UBOLFJCU", "FjcHelp");
    Enter("APDETCRKS", "200");  // 0.977 - 0.000385 * 200 = 0.9
    Raise(Kind::Press, "cmdAction");
    EXPECT_EQ(program_.Get("FieldChanged"), 0.0);
    EXPECT_EQ(program_.Get("UBOLFJCU"), 0.9);
    EXPECT_EQ(program_.Get("APDETCRKS"), 200.0);
}

TEST_F(SideScreensTest, ANegativeSurveyLeavesTheFactorAtItsLastValueHeldToTheLeastOfTheCurve) {
    OpenHelp("BOLFJC", "FjcHelp");
    Enter("APDETJTS", "100");
    Raise(Kind::Focus, "APDETCRKS");
    EXPECT_EQ(Current().TextOf("APBOLFJC"), "0.77");  // 1 - 0.232 = 0.768
    Enter("APDETJTS", "-3");
    Raise(Kind::Focus, "APDETCRKS");
    EXPECT_EQ(Current().TextOf("APDETTOT"), "-3");
    EXPECT_EQ(Current().TextOf("APBOLFJC"), "0.77");
    Raise(Kind::Key, "Esc");
    Set({{"UBOLFJCU", 0.0}});
    OpenHelp("UBOLFJCU", "FjcHelp");
    EXPECT_EQ(Current().TextOf("APBOLFJC"), "0.90") << "no factor of before: the least";
}

}  // namespace
}  // namespace kelvor::test
