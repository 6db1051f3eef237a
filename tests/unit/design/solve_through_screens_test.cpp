#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "design/calc/solve_for.h"
#include "forms/form.h"
#include "platform/number_text.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Kind = UserEvent::Kind;
using testing::IsEmpty;

/// From where to where the values of a term are drawn.
struct Drawn {
    double least, most;
};

// Not drawn: reliabilities from 75 to 80, between which the table of the normal distribution does not lead
// back to where one came from, and thicknesses near the bounds to which a solved one is held, 4 and 20 in.
constexpr std::array<Drawn, kFlexibleTerms> kFlexible = {
    {{4.5, 6.5}, {0, 0}, {81, 98}, {0.35, 0.5}, {5000, 12000}, {4.2, 4.5}, {2.2, 2.8}}};
constexpr std::array<Drawn, kRigidTerms> kRigid = {{{9.5, 12},
                                                    {0, 0},
                                                    {81, 98},
                                                    {0.3, 0.4},
                                                    {600, 750},
                                                    {3.5e6, 5.5e6},
                                                    {2.7, 3.6},
                                                    {80, 400},
                                                    {0.9, 1.15},
                                                    {4.2, 4.5},
                                                    {2.2, 2.8}}};

constexpr int kRounds = 5;

/// The search for term 1 ends within a thousandth of the traffic, which goes with its fifth power or more.
constexpr double kOfSearch = 1e-3;

/// Traffic is rounded to hundreds. No term but the first changes the traffic less than by a tenth of its own
/// change.
double OfRounding(double traffic) { return 10.0 * 50.0 / traffic; }

class SolveThroughScreens : public testing::TestWithParam<const char*> {
  protected:
    SolveThroughScreens() { Raise(Kind::OpenForm, GetParam()); }

    bool Raise(Kind kind, const std::string& name, const std::string& text = {}) {
        return program_.program.Raise({kind, name, text, 0});
    }

    void Type(const std::string& variable, double value) {
        ASSERT_TRUE(Raise(Kind::Focus, variable));
        ASSERT_TRUE(Raise(Kind::Type, {}, NumberToText(value)));
    }

    Form& Screen() { return *program_.program.state().formRegistry.Find(GetParam()); }

    /// Solves for the term in hand by the button of its equation.
    void Solve(const std::string& variable, std::size_t equation) {
        ASSERT_TRUE(Raise(Kind::Focus, variable));
        ASSERT_TRUE(Raise(Kind::Press, Screen().type().equations[equation].button));
        EXPECT_EQ(Screen().solveState(equation), SolveState::Solved) << variable;
        EXPECT_EQ(Screen().equations[equation].solvedFor, variable);
    }

    double Draw(const Drawn& drawn) {
        return std::uniform_real_distribution<double>(drawn.least, drawn.most)(random_);
    }

    /// Draws all terms but the traffic, and solves for that.
    void EnterBalanced(const SolveKey& key, std::size_t equation) {
        const bool rigid = key.terms.size() == kRigidTerms;
        for (std::size_t i = 0; i < key.terms.size(); ++i) {
            if (i + 1 == kRigidTraffic) continue;
            Type(std::string(key.terms[i]), Draw(rigid ? kRigid[i] : kFlexible[i]));
        }
        Solve(std::string(key.Traffic()), equation);
    }

    /// Another start at which the equation still holds: a larger initial serviceability, less of all others.
    static double OtherStart(const SolveKey& key, std::string_view term, double value) {
        return value * (term == key.InitialServiceability() ? 1.1 : 0.9);
    }

    void SolveEachTerm(const SolveKey& key, std::size_t equation) {
        const double traffic = program_.Get(std::string(key.Traffic()));
        const bool rigid = key.terms.size() == kRigidTerms;
        for (std::size_t i = 0; i < key.terms.size(); ++i) {
            if (rigid && i + 1 == kRigidPt) continue;  // has no solution in the rigid equation
            const std::string term(key.terms[i]);
            const double given = program_.Get(term);
            Type(term, OtherStart(key, term, given));
            Solve(term, equation);
            const double tolerance = i == 0 ? kOfSearch : OfRounding(traffic);
            EXPECT_NEAR(program_.Get(term), given, tolerance * given) << term;
            Type(term, given);
        }
    }

    TestProgram program_;
    std::mt19937 random_{1993};  // the same numbers in every run
};

TEST_P(SolveThroughScreens, EachTermIsTheGivenOneAgain) {
    const std::vector<const SolveKey*> keys = program_.program.state().calculations.EquationsOf(Screen().tag);
    ASSERT_EQ(keys.size(), Screen().type().equations.size());
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t equation = 0; equation < keys.size(); ++equation) {
            EnterBalanced(*keys[equation], equation);
            SolveEachTerm(*keys[equation], equation);
        }
    }
    EXPECT_THAT(program_.host.record.TakeTexts(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(AllScreens, SolveThroughScreens,
                         testing::Values("DeF", "DeR", "DeS", "OvAA", "OvAFP", "OvAP", "OvAAP", "OvBP",
                                         "OvUP", "OvWT"),
                         [](const auto& screen) { return std::string(screen.param); });

}  // namespace
}  // namespace kelvor::test
