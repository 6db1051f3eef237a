#include "design/calc/design_equations.h"

#include "calc/calc_messages.h"
#include "design/calc/reliability.h"

namespace kelvor {

Real FlexibleTraffic(Real ZR, const FlexibleInputs& inputs, Real SN) {
    const Real a = Log(SN + 1.0);
    const Real b = Log(inputs.MR);
    const Real t1 = 9.36 * a / Ln10;
    const Real t2 = Log((inputs.P0 - inputs.Pt) / 2.7) / (1094.0 / Pow(SN + 1.0, 5.19) + 0.4) / Ln10;
    const Real t3 = b / Ln10 * 2.32;
    const Real exponent = ZR * inputs.S0 + t1 - 0.2 + t2 + t3 - 8.07;
    return Pow(10.0, exponent);
}

Real RigidTraffic(Real ZR, const RigidInputs& inputs, Real D) {
    const auto& [S0, MR, Ec, J, k, Cd, P0, Pt] = inputs;
    const Real t1 = 7.35 * Log(D + 1.0) / Ln10;
    const Real t2 = Log((P0 - Pt) / 3.0) / (1.624e7 / Pow(D + 1.0, 8.46) + 1.0) / Ln10;
    const Real left = ZR * S0 + t1 - 0.06 + t2;
    const Real numerator = MR * Cd * (Pow(D, 0.75) - 1.132);
    const Real tail = Pow(D, 0.75) - 18.42 / Pow(Ec / k, 0.25);
    const Real ratio = numerator / (215.63 * J * tail);
    const Real right = (4.22 - 0.32 * Pt) * Log(ratio) / Ln10;
    return Pow(10.0, left + right);
}

Real RoundTraffic(Real w18) {
    if (w18 <= 100.0) return w18;
    return Floor(w18 / 100.0 + 0.49) * 100.0;
}

void EvaluateFlexible(CalcContext& context, const FlexibleInputs& inputs, Real SN, Real& w18) {
    try {
        w18 = RoundTraffic(FlexibleTraffic(context.reliability.ZR, inputs, SN));
    } catch (const ArithmeticFault&) {
        ReportMathOverflow(context.dialogs);
    }
}

void EvaluateRigid(CalcContext& context, const RigidInputs& inputs, Real D, Real& w18) {
    try {
        w18 = RoundTraffic(RigidTraffic(context.reliability.ZR, inputs, D));
    } catch (const ArithmeticFault&) {
        ReportMathOverflow(context.dialogs);
    }
}

void EvaluateE18(CalcContext& context, std::string_view pavementType, Real x, Real& w18,
                 const std::array<std::string_view, 8>& names) {
    const auto input = [&](std::size_t i) { return context.Get(names[i]); };
    if (EqualNoCase(pavementType, "Rigid")) {
        EvaluateRigid(context,
                      {input(0), input(1), input(2), input(3), input(4), input(5), input(6), input(7)}, x,
                      w18);
    } else if (EqualNoCase(pavementType, "Flexible") || EqualNoCase(pavementType, "Flex")) {
        EvaluateFlexible(context, {input(0), input(1), input(2), input(3)}, x, w18);
    }
}

}  // namespace kelvor
