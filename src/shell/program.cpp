#include "shell/program.h"

#include "design/calc/solve_for.h"
#include "shell/project_files.h"

namespace kelvor {

namespace {

/// Makes the writes between its making and its end one transaction.
class EventScope {
  public:
    explicit EventScope(ProjectStore& store) : store_(store) { store_.BeginEvent(); }
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;
    ~EventScope() { store_.EndEvent(); }

  private:
    ProjectStore& store_;
};

}  // namespace

template <typename Action>
auto Program::InEvent(Action action) {
    const EventScope event(state_.dbWork);
    return action();
}

bool Program::NewProject() {
    return InEvent([&] { return ProjectFiles(state_).NewProject(); });
}

bool Program::OpenProject(const std::string& path) {
    return InEvent([&] { return ProjectFiles(state_).OpenProject(path); });
}

bool Program::Save() {
    return InEvent([&] { return ProjectFiles(state_).Save(); });
}

bool Program::SaveAs(const std::string& name) {
    return InEvent([&] { return ProjectFiles(state_).SaveProjectAs(name); });
}

void Program::ChooseUnits(bool metric) {
    state_.units->SetMetric(metric);
}

void Program::SetValue(std::string_view name, int dim1, int dim2, std::string_view value) {
    InEvent([&] {
        if (state_.dbWork.FindCell(name, dim1, dim2) == nullptr) return;
        state_.units->SetDisplayValue(name, dim1, dim2, value);
        state_.bProjectChanged = true;
    });
}

void Program::CalcField(std::string_view target, std::string_view key) {
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        state_.calculations.CalcField(context, target, key);
    });
}

void Program::CalcCell(std::string_view target, int dim1, int dim2, std::string_view key) {
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        state_.calculations.CalcCell(context, target, dim1, dim2, key);
    });
}

int Program::Solve(std::string_view screen, int term) {
    return InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        const int result = SolveForVariable(context, screen, term);
        state_.bProjectChanged = true;
        return result;
    });
}

}  // namespace kelvor
