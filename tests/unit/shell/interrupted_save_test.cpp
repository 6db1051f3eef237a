#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstddef>
#include <random>

#include "support/child_process.h"
#include "support/file_system_doubles.h"
#include "support/project_fixture.h"
#include "support/small_home.h"

// Saves that do not run to their end. Each begins with a project file that holds SN 4.5 and stores 5.5.

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const char* const kOld = "4.5";
const char* const kNew = "5.5";

/// A program on a file system in which one operation goes wrong.
class FaultyProgram {
  public:
    FaultyProgram(const SmallHome& home, FaultyFileSystem::Plan plan) : files_(host_.native, plan) {
        host_.fileSystem = &files_;
        program_.emplace(host_.host(), home.home());
    }

    Program& operator*() { return *program_; }
    Program* operator->() { return &*program_; }
    [[nodiscard]] int operations() const { return files_.operations(); }
    std::vector<std::string> Messages() { return host_.record.TakeTexts(); }

  private:
    TestHost host_;
    FaultyFileSystem files_;
    std::optional<Program> program_;
};

struct Save {
    const char* what;
    bool (*run)(Program&, const std::string& project, const std::string& other);
    bool replaces;  // the project file rather than another one
};

const std::vector<Save>& Saves() {
    static const std::vector<Save> kSaves = {
        {"Save", [](Program& p, const std::string&, const std::string&) { return p.Save(); }, true},
        {"Save As over the same file",
         [](Program& p, const std::string& project, const std::string&) { return p.SaveAs(project); }, true},
        {"Save As under a new name",
         [](Program& p, const std::string&, const std::string& other) { return p.SaveAs(other); }, false},
    };
    return kSaves;
}

class InterruptedSaveTest : public testing::Test {
  protected:
    InterruptedSaveTest() {
        old_ = Saved(kOld);
        new_ = Saved(kNew);
    }

    [[nodiscard]] std::string Project() const { return (folder_ / "plan.kvr").string(); }
    [[nodiscard]] std::string Other() const { return (folder_ / "other.kvr").string(); }

    void Restore() {
        for (const std::string& name : NamesIn(folder_.path())) std::filesystem::remove(folder_ / name);
        WriteFile(Project(), old_);
        std::filesystem::remove_all(home_ / "Kept");  // each start then takes the same operations
    }

    /// Opens the project and enters the new value.
    static bool Prepare(Program& program, const std::string& project) {
        if (program.Start(project) != StartResult::Running) return false;
        program.SetValue("SN", 1, 1, kNew);
        return true;
    }

    struct Range {
        int first = 0;  // the first operation of the save
        int end = 0;
    };

    /// The file operations of a save that meets no fault.
    Range OperationsOf(const Save& save) {
        Restore();
        FaultyProgram program(home_, {});
        Range range;
        EXPECT_TRUE(Prepare(*program, Project()));
        range.first = program.operations();
        EXPECT_TRUE(save.run(*program, Project(), Other()));
        range.end = program.operations();
        EXPECT_EQ(ReadFile(save.replaces ? Project() : Other()), new_);
        return range;
    }

    /// Checks that the old or the new file stands at the target, whole. True if it is the new one.
    bool ExpectOldOrNew(const Save& save) {
        if (!save.replaces) {
            EXPECT_EQ(ReadFile(Project()), old_) << "a save under another name touched the project's file";
            if (!std::filesystem::exists(Other())) return false;
            EXPECT_EQ(ReadFile(Other()), new_);
            ExpectOpens(Other(), 5.5);
            return true;
        }
        const std::string found = ReadFile(Project());
        EXPECT_TRUE(found == old_ || found == new_);
        ExpectOpens(Project(), found == new_ ? 5.5 : 4.5);
        return found == new_;
    }

    /// Lets one operation of a save fail, and checks what is left.
    void FailAt(const Save& save, int operation, std::size_t bytes, bool savesAllTheSame) {
        Restore();
        {
            FaultyProgram program(home_, {operation, bytes, false});
            ASSERT_TRUE(Prepare(*program, Project()));
            const std::string target = save.replaces ? Project() : Other();
            EXPECT_EQ(save.run(*program, Project(), Other()), savesAllTheSame);
            if (savesAllTheSame) {
                EXPECT_THAT(program.Messages(), IsEmpty());
                EXPECT_EQ(program->state().sProjectFile, target);
            } else {
                EXPECT_THAT(program.Messages(),
                            ElementsAre("Error saving to " + target + ": No space left on device"));
                EXPECT_EQ(program->state().sProjectFile, Project());
            }
            EXPECT_EQ(program->state().bProjectChanged, !savesAllTheSame);
            EXPECT_EQ(program->state().dbWork.GetVar("SN"), 5.5);

            // From there Save As works, with all values.
            const std::string rescue = folder_ / "rescue.kvr";
            EXPECT_TRUE(program->SaveAs(rescue));
            EXPECT_EQ(ReadFile(rescue), new_);
            std::filesystem::remove(rescue);
        }
        EXPECT_EQ(ExpectOldOrNew(save), savesAllTheSame);
        std::vector<std::string> names = NamesIn(folder_.path());
        std::erase(names, "other.kvr");
        EXPECT_THAT(names, ElementsAre("plan.kvr")) << "a half-made file was left behind";
    }

    /// Opening the project has cleared up; beside another name the next save under it does.
    void ExpectNothingIsLeft(const Save& save) {
        if (!save.replaces) {
            TestHost host;
            Program program(host.host(), home_.home());
            EXPECT_EQ(program.Start(""), StartResult::Running);
            EXPECT_TRUE(program.SaveAs(Other()));
            std::filesystem::remove(Other());
        }
        EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("plan.kvr"));
    }

    void ExpectOpens(const std::string& path, double value) {
        TestHost host;
        Program program(host.host(), home_.home());
        EXPECT_EQ(program.Start(path), StartResult::Running);
        // After a kill the work that was not saved has been kept, and that is said.
        EXPECT_THAT(host.record.TakeTexts(), SizeIs(program.state().keptWork.empty() ? 0 : 1));
        for (const KeptProject& kept : program.state().keptWork)
            EXPECT_EQ(NumberInFile(kept.file, "SN"), 5.5);
        EXPECT_EQ(program.state().dbWork.GetVar("SN"), value);
    }

    NativeFileSystem native_;
    SmallHome home_;
    TemporaryFolder folder_;
    std::string old_;
    std::string new_;

  private:
    /// What a project file with a value holds.
    std::string Saved(const char* value) {
        TestHost host;
        Program program(host.host(), home_.home());
        const bool first = old_.empty();
        program.Start(first ? "" : Project());
        program.SetValue("SN", 1, 1, value);
        const std::string path = first ? Project() : Other();
        program.SaveAs(path);
        return ReadFile(path);
    }
};

TEST_F(InterruptedSaveTest, AFailureAtAnyFileOperationLeavesTheOldOrTheNewFileWhole) {
    ASSERT_NE(old_, new_);
    for (const Save& save : Saves()) {
        const Range range = OperationsOf(save);
        ASSERT_GE(range.end - range.first, 5) << "at least: read, write, flush, rename, flush the folder";
        for (int operation = range.first; operation < range.end; ++operation) {
            for (const std::size_t bytes : {std::size_t{0}, std::size_t{1}, new_.size() / 2, new_.size()}) {
                SCOPED_TRACE(testing::Message() << save.what << ", operation " << operation - range.first
                                                << ", bytes written " << bytes);
                // Behind the renaming the new file is in place: the folder is flushed, and the note of
                // unsaved work goes.
                FailAt(save, operation, bytes, operation >= range.end - 2);
            }
        }
    }
}

TEST_F(InterruptedSaveTest, AKillAtAnyMomentLeavesTheOldOrTheNewFileWhole) {
    // Repeatable: each moment is an operation of the save and a number of bytes that still reach the disk.
    constexpr int kMoments = 200;
    std::mt19937_64 random(20010203);
    int stillOld = 0;
    int alreadyNew = 0;
    std::vector<Range> ranges;
    for (const Save& save : Saves()) ranges.push_back(OperationsOf(save));
    for (int moment = 0; moment < kMoments; ++moment) {
        const std::size_t choice = random() % Saves().size();
        const Save& save = Saves()[choice];
        const Range range = ranges[choice];
        const auto operations = static_cast<std::uint64_t>(range.end - range.first);
        const int operation = range.first + static_cast<int>(random() % operations);
        const std::size_t bytes = random() % (new_.size() + 1);
        SCOPED_TRACE(testing::Message() << save.what << ", operation " << operation - range.first
                                        << ", bytes written " << bytes);
        Restore();
        const ChildEnd end = RunInChild([&]() -> std::string {
            FaultyProgram program(home_, {operation, bytes, true});
            if (!Prepare(*program, Project())) return "not started";
            save.run(*program, Project(), Other());
            return "survived";
        });
        ASSERT_EQ(end.signal, SIGKILL) << end.report;
        ++(ExpectOldOrNew(save) ? alreadyNew : stillOld);
        ExpectNothingIsLeft(save);
    }
    EXPECT_GT(stillOld, 0);
    EXPECT_GT(alreadyNew, 0) << "no moment lay behind the replacement";
}

TEST_F(InterruptedSaveTest, AKillAtAnyMomentOfNewLeavesTheOldOrTheNewFileWhole) {
    // New saves a named project over its file and then drops the work copy.
    Restore();
    Range range;
    {
        FaultyProgram program(home_, {});
        ASSERT_TRUE(Prepare(*program, Project()));
        range.first = program.operations();
        ASSERT_TRUE(program->NewProject());
        range.end = program.operations();
    }
    EXPECT_EQ(ReadFile(Project()), new_);
    ASSERT_GE(range.end - range.first, 6);
    for (int operation = range.first; operation < range.end; ++operation) {
        SCOPED_TRACE(operation - range.first);
        Restore();
        const ChildEnd end = RunInChild([&]() -> std::string {
            FaultyProgram program(home_, {operation, new_.size() / 3, true});
            if (!Prepare(*program, Project())) return "not started";
            program->NewProject();
            return "survived";
        });
        ASSERT_EQ(end.signal, SIGKILL) << end.report;
        ExpectOldOrNew(Saves()[0]);
    }
}

/// Loses the work copy as soon as a file was replaced.
class LosingFiles : public NativeFileSystem {
  public:
    explicit LosingFiles(Path workCopy) : workCopy_(std::move(workCopy)) {}
    void Rename(const Path& from, const Path& to) override {
        NativeFileSystem::Rename(from, to);
        std::filesystem::remove(workCopy_);
    }

  private:
    Path workCopy_;
};

TEST_F(InterruptedSaveTest, AWorkCopyThatDoesNotReopenAfterTheSaveIsToldAndTheFileIsSafe) {
    Restore();
    TestHost host;
    LosingFiles files(home_ / "kvrwork.tmp");
    host.fileSystem = &files;
    Program program(host.host(), home_.home());
    ASSERT_TRUE(Prepare(program, Project()));
    EXPECT_FALSE(program.Save());
    EXPECT_THAT(host.record.TakeTexts(),
                ElementsAre("Error saving to " + Project() + ": unable to open database file"));
    EXPECT_EQ(ReadFile(Project()), new_);
    EXPECT_FALSE(program.state().dbWork.IsOpen());
    EXPECT_FALSE(program.Save());
    EXPECT_THAT(host.record.TakeTexts(),
                ElementsAre("Error saving to " + Project() + ": no project is open"));
    EXPECT_TRUE(program.NewProject());
    EXPECT_EQ(ReadFile(Project()), new_);
}

TEST_F(InterruptedSaveTest, AFailureAtAnyFileOperationOfAnOpenNeverTakesAnotherProject) {
    Restore();
    WriteFile(Other(), new_);
    Range range;
    {
        FaultyProgram program(home_, {});
        ASSERT_EQ(program->Start(Project()), StartResult::Running);
        range.first = program.operations();
        ASSERT_TRUE(program->OpenProject(Other()));
        range.end = program.operations();
    }
    ASSERT_GE(range.end - range.first, 2) << "at least: read, write";
    for (int operation = range.first; operation < range.end; ++operation) {
        SCOPED_TRACE(operation - range.first);
        FaultyProgram program(home_, {operation, new_.size() / 2, false});
        ASSERT_EQ(program->Start(Project()), StartResult::Running);
        EXPECT_FALSE(program->OpenProject(Other()));
        EXPECT_THAT(program.Messages(),
                    ElementsAre("Error loading from " + Other() + ": No space left on device"));
        EXPECT_FALSE(program->state().dbWork.IsOpen());
        EXPECT_EQ(program->state().sProjectFile, Project());
        EXPECT_EQ(ReadFile(Project()), old_);
        EXPECT_EQ(ReadFile(Other()), new_);
        EXPECT_TRUE(program->OpenProject(Other()));
        EXPECT_EQ(program->state().dbWork.GetVar("SN"), 5.5);
    }
}

TEST_F(InterruptedSaveTest, AFailureAtAnyFileOperationOfNewGivesAFreshProjectOrNone) {
    Range range;
    Restore();
    {
        FaultyProgram program(home_, {});
        ASSERT_EQ(program->Start(""), StartResult::Running);
        program->SetValue("SN", 1, 1, kNew);
        range.first = program.operations();
        ASSERT_TRUE(program->NewProject());
        range.end = program.operations();
    }
    int failures = 0;
    for (int operation = range.first; operation < range.end; ++operation) {
        SCOPED_TRACE(operation - range.first);
        Restore();
        FaultyProgram program(home_, {operation, 5000, false});
        ASSERT_EQ(program->Start(""), StartResult::Running);
        program->SetValue("SN", 1, 1, kNew);
        const bool made = program->NewProject();
        EXPECT_EQ(program->state().dbWork.IsOpen(), made);
        EXPECT_THAT(program.Messages(), SizeIs(made ? 0 : 1));
        EXPECT_EQ(program->state().sProjectFile, "");
        const std::vector<KeptProject> kept = KeptWork(native_, home_ / "Kept").List();
        ASSERT_THAT(kept, SizeIs(1)) << "what New dropped is lost";
        EXPECT_EQ(NumberInFile(kept[0].file, "SN"), 5.5);
        failures += made ? 0 : 1;
        EXPECT_TRUE(program->NewProject());
        EXPECT_EQ(program->state().dbWork.GetVar("SN"), 0.0);
    }
    EXPECT_GE(failures, 2) << "reading the template and writing the work copy";
}

}  // namespace
}  // namespace kelvor::test
