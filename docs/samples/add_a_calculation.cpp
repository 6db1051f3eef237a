#include <gtest/gtest.h>

#include <array>

#include "calc/dispatch.h"
#include "platform/real.h"
#include "support/test_host.h"

namespace kelvor {

// [calculation]
namespace {

/// The modulus of subgrade reaction, pci, of a slab that lies on the subgrade itself, from the roadbed
/// soil resilient modulus, psi (1993 AASHTO Guide, Part II, Section 3.2.1). Nothing is written if the
/// modulus was not entered.
void CalcSubgradeK(CalcContext& context, std::string_view target) {
    const Real resilientModulus = context.Get("MRSG");
    if (resilientModulus == 0.0) return;
    context.Put(target, resilientModulus / 19.4);
}

constexpr std::array kFields = {FieldKey{"SUBGRADEK", CalcSubgradeK}};

}  // namespace

KeyTable SubgradeKeys() { return {kFields, {}}; }
// [calculation]

namespace test {
namespace {

// [test]
TEST(SubgradeKeysTest, TheModulusIsDividedByTheGuidesNumber) {
    TestProgram program;
    CalcContext context = program.program.state().MakeCalcContext();
    program.Set("MRSG", 7000.0);
    Dispatch({SubgradeKeys()}).CalcField(context, "K", "SUBGRADEK");
    EXPECT_NEAR(program.Get("K"), 360.8, 0.05);  // 7,000 / 19.4
}
// [test]

}  // namespace
}  // namespace test
}  // namespace kelvor
