#include "forms/equation_lines.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "forms/indicator.h"
#include "platform/number_picture.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// How far the stored traffic may be from that of the equation. A search ends within a thousandth, and
/// traffic is rounded to hundreds.
constexpr double kBalanceTolerance = 0.002;

constexpr const char* kTrafficPicture = "#,##0";
constexpr const char* kPercentPicture = "0.00";

/// The label that says what decides the result.
constexpr const char* kGoverns = "GOVERNS";

/// So many missing terms are named; of more the first ones.
constexpr std::size_t kMostNamed = 4;

/// What a term is called on the form.
std::string LabelOf(const ScreenContext& context, const Form& form, std::string_view variable) {
    for (const auto& control : form.controls()) {
        const Control* box = control->labelOf.empty() ? nullptr : form.Find(control->labelOf);
        if (box != nullptr && EqualNoCase(box->tag, variable)) return control->text;
    }
    const Variable* row = context.catalogue.FindVariable(variable);
    return row == nullptr ? std::string(variable) : row->desc;
}

/// The terms that are not entered, which a value of 0 tells.
std::vector<std::string> MissingTerms(const ScreenContext& context, const Form& form,
                                      const SolveKey& equation) {
    std::vector<std::string> missing;
    for (const std::string_view term : equation.terms) {
        if (context.calc.Get(term) == 0.0) missing.push_back(LabelOf(context, form, term));
    }
    return missing;
}

StatusLine MissingLine(const std::vector<std::string>& missing) {
    const std::size_t named = missing.size() > kMostNamed ? kMostNamed - 1 : missing.size();
    std::string names = missing.front();
    for (std::size_t i = 1; i < named; ++i) names += ", " + missing[i];
    if (named == missing.size()) return {Filled(Translated("Missing: %1"), {names}), false};
    const std::string others = std::to_string(missing.size() - named);
    return {Filled(Translated("Missing: %1 and %2 more"), {names, others}), false};
}

/// Sets the traffic that the equation gives, in whole ESALs that the pavement carries, beside the stored one.
StatusLine CompareLine(Real given, Real stored) {
    const double difference = std::fabs((given - stored).value()) / std::fabs(stored.value());
    const std::string gives = FormatNumber(std::floor(given.value()), kTrafficPicture);
    const std::string wanted = FormatNumber(stored.value(), kTrafficPicture);
    if (difference > kBalanceTolerance) {
        return {Filled(Translated("Not in balance: the equation gives %1 ESALs for %2."), {gives, wanted}),
                true};
    }
    return {Filled(Translated("In balance: the equation gives %1 ESALs for %2 (%3 %)."),
                   {gives, wanted, FormatNumber(difference * 100.0, kPercentPicture)}),
            false};
}

/// What the equation says of terms that are all entered.
StatusLine AnswerLine(const ScreenContext& context, const SolveKey& equation) {
    try {
        const EquationAnswer answer = equation.answer(context.calc, equation.terms);
        if (answer.traffic) return CompareLine(*answer.traffic, context.calc.Get(equation.Traffic()));
        return {
            Filled(Translated("Not in balance: the equation has no value: %1."), {Translated(answer.whyNot)}),
            true};
    } catch (const ArithmeticFault&) {
        return {Translated("Not in balance: the equation has no value."), true};
    }
}

StatusLine CheckLine(const ScreenContext& context, const Form& form, const SolveKey& equation) {
    const std::vector<std::string> missing = MissingTerms(context, form, equation);
    return missing.empty() ? AnswerLine(context, equation) : MissingLine(missing);
}

/// What a press of a Solve For button would do for the field that had the focus last.
std::string TargetText(const ScreenContext& context, const Form& form) {
    const Control* current = CurrentField(form);
    if (current == nullptr) return {};
    const Field* field = FindScreenField(context, form, current->name);
    const Variable* variable = context.catalogue.FindVariable(current->name);
    if (variable == nullptr) return {};
    const bool solves = field != nullptr && field->solveFor;
    return Filled(solves ? Translated("Solves for: %1") : Translated("Cannot solve for: %1"),
                  {variable->desc});
}

StatusLine GovernsLine(const ScreenContext& context, const FormType& type) {
    try {
        return type.governs(context);
    } catch (const ArithmeticFault&) {
        return {Translated("The thickness has no value."), true};
    }
}

void Show(Form& form, const std::string& name, const StatusLine& line) {
    Control* label = form.Find(name);
    if (label == nullptr) return;
    label->text = line.text;
    label->foreColor = line.warns ? colours::kRed : colours::kWindowText;
}

}  // namespace

void ShowEquationLines(const ScreenContext& context, Form& form) {
    const bool open = context.calc.store.IsOpen();
    if (form.type().governs != nullptr) {
        Show(form, kGoverns, open ? GovernsLine(context, form.type()) : StatusLine{});
    }
    const std::vector<const SolveKey*> keys = context.calculations.EquationsOf(form.tag);
    const std::vector<FormEquation>& equations = form.type().equations;
    for (std::size_t i = 0; i < std::min(equations.size(), keys.size()); ++i) {
        Show(form, equations[i].target, {open ? TargetText(context, form) : "", false});
        Show(form, equations[i].check, open ? CheckLine(context, form, *keys[i]) : StatusLine{});
    }
}

std::optional<bool> EquationHolds(const ScreenContext& context, std::string_view screen) {
    const std::vector<const SolveKey*> keys = context.calculations.EquationsOf(screen);
    if (keys.empty()) return std::nullopt;
    return std::all_of(keys.begin(), keys.end(), [&](const SolveKey* key) {
        const auto isMissing = [&](std::string_view term) { return context.calc.Get(term) == 0.0; };
        if (std::any_of(key->terms.begin(), key->terms.end(), isMissing)) return false;
        return !AnswerLine(context, *key).warns;
    });
}

std::string EquationCheck(const ScreenContext& context, std::string_view screen) {
    const FormType* type = context.forms.FindType(screen);
    const std::vector<const SolveKey*> keys = context.calculations.EquationsOf(screen);
    if (type == nullptr || type->equations.empty() || keys.empty()) return {};
    const Form closed(*type, context.catalogue);
    return CheckLine(context, closed, *keys.front()).text;
}

std::string WhatGoverns(const ScreenContext& context, std::string_view screen) {
    const FormType* type = context.forms.FindType(screen);
    return type == nullptr || type->governs == nullptr ? "" : GovernsLine(context, *type).text;
}

}  // namespace kelvor
