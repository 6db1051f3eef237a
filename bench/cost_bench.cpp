#include <functional>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <utility>

#include "benchmarks.h"

namespace kelvor::bench {

namespace {

constexpr int kRows = 35;

/// Two pavements with an item in every row of every page.
void FillCosts(Program& program) {
    using Input = std::pair<const char*, const char*>;
    for (const auto& [name, value] : {Input{"DiscountRate", "4"}, Input{"InflationRate", "2"},
                                      Input{"AnalysisPeriodA", "100"}, Input{"AnalysisPeriodB", "100"}}) {
        program.SetValue(name, 1, 1, value);
    }
    for (const int pavement : {1, 2}) {
        for (int row = 1; row <= kRows; ++row) {
            for (const char* name :
                 {"InitialQuantity", "InitialUnitCost", "RehabQuantity", "RehabUnitCost"}) {
                program.SetValue(name, row, pavement, std::to_string(1000 * pavement + row));
            }
            program.SetValue("RehabYear", row, pavement, std::to_string(row));
            program.CalcCell("RehabItemCost", row, pavement, "RehabItemCost");
            program.CalcCell("InitialItemCost", row, pavement, "InitialItemCost");
        }
        program.SetValue("ItemTotal2", 1, pavement, pavement == 1 ? "5000000" : "1000000");
    }
}

/// Opens a screen anew and closes it again.
void OpenAndClose(Program& program, const char* screen) {
    program.Raise({UserEvent::Kind::OpenForm, screen, {}, 0});
    if (program.state().formRegistry.Find(screen) == nullptr) throw std::runtime_error("it does not open");
    program.Raise({UserEvent::Kind::CloseForm, screen, {}, 0});
}

/// One event: another quantity, its cost, and the total of the page.
void EditQuantity(Program& program, int quantity) {
    program.Raise({UserEvent::Kind::EditCell, "InitialQuantity", std::to_string(quantity), kRows});
}

/// What is measured must be the whole work: another quantity gives another total.
void CheckEdit(Program& program) {
    program.Raise({UserEvent::Kind::OpenForm, "LcA1_2", {}, 1});
    EditQuantity(program, 1);
    const double before = program.state().dbWork.GetVar("ItemTotal2").value();
    EditQuantity(program, 2);
    if (!(program.state().dbWork.GetVar("ItemTotal2") > before)) {
        throw std::runtime_error("the costs are not recalculated");
    }
}

Pair Limited(const char* name, const char* ours, double longestSeconds) {
    return {.name = name,
            .ours = ours,
            .reference = {},
            .measure = Measure::Real,
            .limit = 1.0,
            .longestSeconds = longestSeconds};
}

void Register(const Pair& pair, Program& program, const std::function<void(Program&)>& prepare,
              const std::function<void(Program&)>& act) {
    Repeat(benchmark::RegisterBenchmark(pair.ours.c_str(),
                                        [&program, prepare, act](auto& state) {
                                            FillCosts(program);
                                            prepare(program);
                                            for (auto _ : state) act(program);
                                        }),
           benchmark::kMicrosecond);
}

}  // namespace

std::vector<Pair> RegisterCosts(BenchProgram& bench) {
    Program& program = bench.program();
    const Pair summary = Limited("the cost summary of 70 items opened, beside 1 ms", "Costs/Summary", 0.001);
    const Pair cell = Limited("a cell of a cost page of 35 rows, beside 1 ms", "Costs/Cell", 0.001);
    const Pair histogram = Limited("a histogram of 100 years opened, beside 20 ms", "Costs/Histogram", 0.020);
    const auto nothing = [](Program&) {};
    Register(summary, program, nothing, [](Program& p) { OpenAndClose(p, "LcS"); });
    Register(cell, program, CheckEdit, [quantity = 0](Program& p) mutable { EditQuantity(p, ++quantity); });
    Register(histogram, program, nothing, [](Program& p) { OpenAndClose(p, "Histogr"); });
    return {summary, cell, histogram};
}

}  // namespace kelvor::bench
