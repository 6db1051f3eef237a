// Any text obeyed as a script: it runs to an end that the exit statuses know, and what it printed is JSON.

#include <nlohmann/json.hpp>
#include <sstream>

#include "confined_files.h"
#include "console/model_driver.h"
#include "console/script/runner.h"
#include "fuzz_target.h"
#include "support/small_home.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

constexpr std::size_t kLongestScript = 64 * 1024;

class ScriptTarget {
  public:
    ScriptTarget() : files_(std::filesystem::canonical(home_.home().folder)) {
        clock_.gain = 1.0;  // a search that finds nothing ends after a few passes
    }

    void Run(const std::string& script) {
        std::ostringstream printed;
        std::ostringstream errors;
        {
            JsonOutput output(printed);
            ScriptedDialogs dialogs(&output);
            Program program({files_, clock_, dialogs, components_}, home_.home());
            Require(program.Start("") == StartResult::Running, "the program starts");
            ModelDriver driver(program, [&](const std::string& answer) { dialogs.QueueAnswer(answer); });
            std::istringstream input(script);
            const ScriptEnd end = RunScript(input, driver, output, errors);
            Require(errors.str().empty() == (end == ScriptEnd::Done), "an early end is told, and only that");
            ProjectStore& store = program.state().dbWork;
            if (store.IsOpen()) Require(store.CompareWithWorkCopy().empty(), "memory and work copy agree");
        }
        std::istringstream lines(printed.str());
        for (std::string line; std::getline(lines, line);) {
            Require(nlohmann::json::accept(line), "every line is JSON: " + line);
        }
    }

  private:
    SmallHome home_;
    ConfinedFiles files_;
    FakeClock clock_;
    FakeComponents components_;
};

}  // namespace

std::vector<std::string> Seeds() {
    const Path samples = Path(KELVOR_SOURCE_FOLDER) / "data/samples";
    return {
        ReadFile(samples / "flexible_design.kvs"), ReadFile(samples / "rigid_design.kvs"),
        "set SN \"4 \\\"5\\\"\"\nget SN 1 1\nshow sn\ndump S*\nunits metric\nset DEPTH 1 1 254\nsave\n"
        "answer \"plan\"\nsave\nsave other.kvr\nopen plan.kvr\nnew\ncalc SSN\ncalccell LDLayerStructNo 1 1\n"
        "solve DeR 1\nsolve DeS 18\nget NOSUCH -1 32767 # the end\n",
        "form open DeF\nforms\nfocus FLEXE18\ntype 5,000,000\nkey Enter\ntype 950\nkey Tab\nkey Esc\n"
        "menu MenuUnitsMetric\nanswer no\npress Command1\nread SolveFor text\ncontrols\ntab 2\n"
        "form activate DeF\nchoose SN 1\nform close\nmenu MenuFileSave\nanswer cancel\nmenu MenuFileExit\n"};
}

int FuzzScript(const std::uint8_t* data, std::size_t size) {
    static ScriptTarget target;
    if (size <= kLongestScript) target.Run(ToText(data, size));
    return 0;
}

}  // namespace kelvor::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kelvor::test::FuzzScript(data, size);
}
