#pragma once

#include <string>
#include <string_view>

#include "shell/process_state.h"
#include "shell/start_up.h"

namespace kelvor {

/// The program behind every front end. Each operation is one event: what it writes reaches the work copy
/// in one transaction.
class Program {
  public:
    Program(Host host, Home home) : state_(host, std::move(home)) {}

    StartResult Start(const std::string& commandLine) { return Main(state_, commandLine); }

    [[nodiscard]] ProcessState& state() { return state_; }

    /// The File menu. Each tells whether it succeeded; the messages were shown.
    bool NewProject();
    bool OpenProject(const std::string& path);
    bool Save();
    bool SaveAs(const std::string& name);

    /// The Units menu: a choice of the system that is active does nothing.
    void ChooseUnits(bool metric);

    /// Stores a value given in the active unit system, as a user's change, without any test.
    void SetValue(std::string_view name, int dim1, int dim2, std::string_view value);

    void CalcField(std::string_view target, std::string_view key);
    void CalcCell(std::string_view target, int dim1, int dim2, std::string_view key);

    /// Solves one term of a screen's equation; see SolveForVariable.
    int Solve(std::string_view screen, int term);

  private:
    template <typename Action>
    auto InEvent(Action action);

    ProcessState state_;
};

}  // namespace kelvor
