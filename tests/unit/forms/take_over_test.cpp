// A value from elsewhere that a field may take, on a small button behind it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "forms/form.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using testing::IsEmpty;

using Kind = UserEvent::Kind;

class TakeOverTest : public testing::Test {
  protected:
    void Raise(Kind kind, const std::string& name = {}, const std::string& text = {}) {
        program_.program.Raise({kind, name, text, 0});
    }

    Form& FormNamed(const char* name) { return *program_.program.state().formRegistry.Find(name); }

    TestProgram program_;
};

TEST_F(TakeOverTest, ThePressedButtonStoresWhatItShowsAsIfItWereTyped) {
    program_.Set("AVGSTATK", 215.46);
    Raise(Kind::OpenForm, "ExR");
    Raise(Kind::Press, "cmdtEXISTK");
    EXPECT_EQ(program_.Get("EXISTK"), 215.5);  // as it is shown
    EXPECT_EQ(FormNamed("ExR").TextOf("EXISTK"), "215.5");
    EXPECT_EQ(FormNamed("ExR").focus->name, "EXISTK");
    EXPECT_TRUE(program_.program.state().bProjectChanged);
}

TEST_F(TakeOverTest, ATermThatIsTakenOverIsWarnedOf) {
    program_.Set("AVGSTATK", 200.0);
    Raise(Kind::OpenForm, "OvAP");
    const std::string before = FormNamed("OvAP").TextOf("SolveFor");
    Raise(Kind::Press, "cmdtEXISTK");
    EXPECT_NE(FormNamed("OvAP").solveState(0), SolveState::Solved);
    EXPECT_EQ(FormNamed("OvAP").solveState(0), SolveState::Warning) << before;
}

TEST_F(TakeOverTest, TheButtonFollowsTheAverageAndGoesWithIt) {
    Raise(Kind::OpenForm, "ExF");
    EXPECT_FALSE(FormNamed("ExF").Get("cmdtEXISTRM").visible);
    program_.program.SetValue("AVGNDTRM", 1, 1, "4,321");
    EXPECT_TRUE(FormNamed("ExF").Get("cmdtEXISTRM").visible);
    EXPECT_THAT(FormNamed("ExF").TextOf("cmdtEXISTRM"), testing::EndsWith("4,321"));
    program_.program.SetValue("AVGNDTRM", 1, 1, "");
    EXPECT_FALSE(FormNamed("ExF").Get("cmdtEXISTRM").visible);
}

TEST_F(TakeOverTest, EnterPassesTheButtonAndTabStopsAtIt) {
    program_.Set("AVGNDTRM", 4321.0);
    Raise(Kind::OpenForm, "ExF");
    Raise(Kind::Focus, "EXISTRM");
    Raise(Kind::Key, "Enter");
    EXPECT_EQ(FormNamed("ExF").focus->name, "EXISTEP");
    Raise(Kind::Focus, "cmdtEXISTRM");
    EXPECT_EQ(FormNamed("ExF").focus->name, "cmdtEXISTRM");
    Raise(Kind::Key, "Tab");
    EXPECT_EQ(FormNamed("ExF").focus->name, "EXISTEP");
}

TEST_F(TakeOverTest, ANegativeModulusGivesNoStructuralNumber) {
    program_.Set("NDTEFFD", 12.0);
    program_.Set("AVGNDTEFFEP", -8.0);
    Raise(Kind::OpenForm, "OvAA");
    EXPECT_FALSE(FormNamed("OvAA").Get("cmdtNDTEFFSN").visible);
    EXPECT_THAT(program_.host.record.TakeTexts(), IsEmpty());
    program_.Set("AVGNDTEFFEP", 216'000.0);
    Raise(Kind::ActivateForm, "TabForm");
    EXPECT_THAT(FormNamed("OvAA").TextOf("cmdtNDTEFFSN"), testing::EndsWith("3.24"));  // 0.0045 x 12 x 60
}

}  // namespace
}  // namespace kelvor::test
