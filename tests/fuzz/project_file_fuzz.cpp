// Any file opened as a project: it is open and consistent, or refused with one message.

#include <cmath>

#include "confined_files.h"
#include "fuzz_target.h"
#include "support/small_home.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

const std::string kValue = "12.5";

class ProjectFileTarget {
  public:
    ProjectFileTarget() : files_(std::filesystem::canonical(home_.home().folder)) {
        host_.fileSystem = &files_;
        program_.emplace(host_.host(), home_.home());
        Require(program_->Start("") == StartResult::Running, "the program starts");
    }

    [[nodiscard]] std::string Good() const { return ReadFile(home_ / "kvrwork.tpl"); }

    void Run(const std::string& content) {
        const std::string path = home_ / "input.kvr";
        WriteFile(path, content);
        const bool opened = program_->OpenProject(path);
        const std::vector<std::string> messages = host_.record.TakeTexts();
        Require(opened == Store().IsOpen(), "a project is open if, and only if, the opening said so: " +
                                                (messages.empty() ? "no message" : messages.back()));
        Require(ReadFile(path) == content, "opening leaves the file as it was");
        if (opened) {
            Require(messages.empty(), "an open project came without a message");
            CheckConsistent();
            CheckSaving();
        } else {
            Require(messages.size() == 1, "a refusal is one message");
            Require(messages[0] == "File " + path + " is not a kvor file" ||
                        messages[0].starts_with("Error loading from " + path + ": "),
                    "a refusal is one of two messages: " + messages[0]);
            CheckNothingBeside();
        }
    }

  private:
    ProjectStore& Store() { return program_->state().dbWork; }

    void CheckConsistent() {
        for (const CellBounds& cell : program_->state().projectBounds) {
            Require(Store().FindCell(cell.name, cell.dim1, cell.dim2) != nullptr, "every cell is there");
        }
        Store().ForEachFilled([](const CellKey& key, const CellValue& value) {
            Require(!value.number || std::isfinite(*value.number), key.name + " is a number");
        });
        Require(Store().CompareWithWorkCopy().empty(), "memory and work copy agree");
    }

    /// What opened can be changed and saved whole, or the save says why not.
    void CheckSaving() {
        const std::string path = home_ / "output.kvr";
        program_->SetValue("SN", 1, 1, kValue);
        const bool saved = program_->SaveAs(path);
        const std::vector<std::string> messages = host_.record.TakeTexts();
        if (!saved) {
            Require(!messages.empty() && messages[0].starts_with("Error saving to " + path + ": "),
                    "a failed save says so");
            return;
        }
        Require(messages.empty(), "a save came without a message");
        Require(ReadFile(path) == ReadFile(home_ / "kvrwork.tmp"), "file and work copy are equal");
        Require(program_->OpenProject(path), "what was saved opens");
        Require(Store().GetVar("SN") == 12.5, "what was saved holds its values");
        CheckConsistent();
    }

    void CheckNothingBeside() {
        for (const char* ending : {"-journal", "-wal", "-shm"}) {
            Require(!std::filesystem::exists(home_ / (std::string("kvrwork.tmp") + ending)),
                    "no file stays beside the work copy");
        }
    }

    SmallHome home_;
    ConfinedFiles files_;
    TestHost host_;
    std::optional<Program> program_;
};

ProjectFileTarget& Target() {
    static ProjectFileTarget target;
    return target;
}

}  // namespace

std::vector<std::string> Seeds() { return {Target().Good()}; }

int FuzzProjectFile(const std::uint8_t* data, std::size_t size) {
    Target().Run(ToText(data, size));
    return 0;
}

}  // namespace kelvor::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kelvor::test::FuzzProjectFile(data, size);
}
