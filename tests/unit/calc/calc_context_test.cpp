#include "calc/calc_context.h"

#include <gtest/gtest.h>

#include "support/test_host.h"

namespace kelvor::test {
namespace {

class CalcContextTest : public testing::Test {
  protected:
    TestProgram program_;
    CalcContext context_ = program_.program.state().MakeCalcContext();
};

TEST_F(CalcContextTest, AnEmptyCellIsZeroToGetAndNothingToFind) {
    EXPECT_EQ(context_.Get("SN"), 0.0);
    EXPECT_EQ(context_.Find("SN"), std::nullopt);
    context_.Put("SN", 0.0);
    EXPECT_EQ(context_.Find("SN"), Real(0.0));
    context_.Put("NDTRM", 3, 1, 5000.0);
    EXPECT_EQ(context_.Get("NDTRM", 3), 5000.0);
    EXPECT_EQ(context_.Find("NDTRM", 3), Real(5000.0));
}

TEST_F(CalcContextTest, ClearEmptiesNumberAndText) {
    program_.store().SetCell("SN", 1, 1, {5.0, "5.0"});
    context_.Clear("SN");
    EXPECT_FALSE(program_.store().FindCell("SN", 1, 1)->IsFilled());
    context_.Clear("NOSUCH");
}

TEST_F(CalcContextTest, ACellThatIsNotThereStopsTheProgramUnlessItIsASingleTarget) {
    EXPECT_THROW((void)context_.Get("NOSUCH"), ProgramStop);
    EXPECT_THROW((void)context_.Find("NDTRM", 301), ProgramStop);
    EXPECT_THROW(context_.Put("NDTRM", 301, 1, 1.0), ProgramStop);
    context_.Put("NOSUCH", 1.0);
}

}  // namespace
}  // namespace kelvor::test
