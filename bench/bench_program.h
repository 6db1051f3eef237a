#pragma once

#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/component_probe.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "shell/program.h"

namespace kelvor::bench {

/// A copy of the built home folder, made in a temporary folder and removed at the end, so that nothing
/// is ever written to the built one.
class TemporaryHome {
  public:
    TemporaryHome();
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;
    ~TemporaryHome();

    [[nodiscard]] const Path& path() const { return path_; }

  private:
    Path path_;
};

/// The program, started in a home folder, with a fresh project open.
class BenchProgram {
  public:
    /// Throws std::runtime_error if it does not start.
    explicit BenchProgram(const Path& home);

    [[nodiscard]] ProjectStore& store() { return program_.state().dbWork; }
    [[nodiscard]] Program& program() { return program_; }
    [[nodiscard]] Clock& clock() { return clock_; }
    [[nodiscard]] FileSystem& files() { return files_; }
    [[nodiscard]] CalcContext MakeCalcContext() { return program_.state().MakeCalcContext(); }

    /// The names of all variables, in an order that is the same in every run but follows nothing.
    [[nodiscard]] std::vector<std::string> ShuffledNames();

    /// How many cells a project has.
    [[nodiscard]] int CountCells();

  private:
    NativeFileSystem files_;
    SystemClock clock_;
    ScriptedDialogs dialogs_;
    LinkedComponents components_;
    Program program_;
};

}  // namespace kelvor::bench
