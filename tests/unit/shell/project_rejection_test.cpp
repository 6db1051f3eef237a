#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <functional>

#include "support/child_process.h"
#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr std::size_t kPageSize = 4096;
constexpr std::uintmax_t kAboveAnyProject = 64UL * 1024 * 1024 + 1;

/// Makes a file that is no project. It stands as a copy of a good project when this is called.
using Maker = std::function<void(const Path&)>;

struct Rejected {
    const char* what;
    Maker make;
    const char* reason;  // a regular expression
};

/// The reason of what is not a database at all.
const char* const kNotAKvorFile = nullptr;

const char* const kColumns =
    "Name TEXT NOT NULL COLLATE NOCASE, Dim1 INTEGER NOT NULL, Dim2 INTEGER NOT NULL, RValue REAL, SValue "
    "TEXT";

Maker Content(const std::string& content) {
    return [content](const Path& path) { WriteFile(path, content); };
}

Maker Sql(const std::string& statements) {
    return [statements](const Path& path) { RunSql(path, statements); };
}

/// A database made from nothing by SQL.
Maker FreshSql(const std::string& statements) {
    return [statements](const Path& path) {
        std::filesystem::remove(path);
        RunSql(path, statements);
    };
}

/// The rows of the good project in a table made by other words.
Maker Remade(const std::string& columns) {
    return Sql("CREATE TABLE P AS SELECT * FROM Project; DROP TABLE Project; CREATE TABLE Project (" +
               columns + "; INSERT INTO Project SELECT * FROM P; DROP TABLE P");
}

/// Files that are no database, or no file.
std::vector<Rejected> OtherFiles() {
    const auto instead = [](void (*make)(const Path&)) {
        return [make](const Path& path) {
            std::filesystem::remove(path);
            make(path);
        };
    };
    return {
        {"a text", Content("Dear colleague,\nplease find enclosed the design.\n"), kNotAKvorFile},
        {"an empty file", Content(""), kNotAKvorFile},
        {"one byte", Content("S"), kNotAKvorFile},
        {"noise", Content(std::string(8192, '\xA5')), kNotAKvorFile},
        {"another magic", Content("SQLite format 2" + std::string(4081, '\0')), kNotAKvorFile},
        {"a text above any size",
         [](const Path& path) {
             WriteFile(path, "Station\tThickness\n");
             std::filesystem::resize_file(path, kAboveAnyProject);
         },
         kNotAKvorFile},
        {"a database above any size",
         [](const Path& path) { std::filesystem::resize_file(path, kAboveAnyProject); }, "File too large"},
        {"no file", instead([](const Path& /*path*/) {}), "No such file or directory"},
        {"a folder", instead([](const Path& path) { std::filesystem::create_directory(path); }),
         "Is a directory"},
        {"a pipe", instead([](const Path& path) { ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0); }),
         "Not a regular file"},
        {"a device", instead([](const Path& path) { std::filesystem::create_symlink("/dev/zero", path); }),
         "Not a regular file"},
        {"a link to nowhere",
         instead([](const Path& path) { std::filesystem::create_symlink("nowhere", path); }),
         "No such file or directory"},
    };
}

/// Databases that are no projects.
std::vector<Rejected> OtherDatabases() {
    return {
        {"a foreign database", FreshSql("CREATE TABLE Roads (Name TEXT)"),
         "table Roads does not belong there"},
        {"a database without a table", FreshSql("CREATE TABLE t (x); DROP TABLE t"),
         "table Project is missing"},
        {"other columns", FreshSql("CREATE TABLE Project (Name, Row, Dim2, RValue, SValue)"),
         "table Project has other columns"},
        {"too few columns", FreshSql("CREATE TABLE Project (Name, Dim1, Dim2, RValue)"),
         "table Project lacks columns"},
        {"too many columns", FreshSql("CREATE TABLE Project (Name, Dim1, Dim2, RValue, SValue, More)"),
         "table Project has other columns"},
        {"no key", Remade(std::string(kColumns) + ")"), "table Project is not made as a project's"},
        {"a key that tells cases apart",
         Remade("Name TEXT NOT NULL, Dim1 INTEGER NOT NULL, Dim2 INTEGER NOT NULL, RValue REAL, SValue TEXT, "
                "PRIMARY KEY (Name, Dim1, Dim2)) WITHOUT ROWID"),
         "table Project is not made as a project's"},
        {"a virtual table of that name",
         FreshSql("CREATE VIRTUAL TABLE Project USING fts5(Name, Dim1, Dim2, RValue, SValue)"),
         "table Project_data does not belong there"},
        {"a view of that name",
         FreshSql("CREATE VIEW Project AS SELECT 1 Name, 1 Dim1, 1 Dim2, 1 RValue, 1 SValue"),
         "view Project does not belong there"},
    };
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): it loses sight of what a std::function owns

/// Projects with more in them, or less.
std::vector<Rejected> SpoiltProjects() {
    const char* const badSubscript = "a cell has a subscript out of range";
    return {
        {"an extra table", Sql("CREATE TABLE Extra (x)"), "table Extra does not belong there"},
        {"an index", Sql("CREATE INDEX I ON Project (RValue)"), "index I does not belong there"},
        {"a view", Sql("CREATE VIEW V AS SELECT * FROM Project"), "view V does not belong there"},
        {"a trigger", Sql("CREATE TRIGGER T AFTER UPDATE ON Project BEGIN DELETE FROM Project; END"),
         "trigger T does not belong there"},
        {"no rows but one", Sql("DELETE FROM Project WHERE Name <> 'SN'"), "cell .+ is missing"},
        {"a missing cell", Sql("DELETE FROM Project WHERE Name = 'SN'"), "cell SN\\(1,1\\) is missing"},
        {"a missing row of an array", Sql("DELETE FROM Project WHERE Name = 'NDTRM' AND Dim1 = 300"),
         "cell NDTRM\\(300,1\\) is missing"},
        {"a hole in an array", Sql("DELETE FROM Project WHERE Name = 'NDTRM' AND Dim1 = 7"),
         "cell NDTRM\\(7,1\\) is missing"},
        {"no unit mode", Sql("DELETE FROM Project WHERE Name = 'MetricMode'"),
         "cell MetricMode\\(1,1\\) is missing"},
        {"a subscript of 0", Sql("INSERT INTO Project VALUES ('SN', 0, 1, 1, NULL)"), badSubscript},
        {"a subscript beyond 16 bits", Sql("INSERT INTO Project VALUES ('SN', 1, 32768, 1, NULL)"),
         badSubscript},
        {"a subscript beyond 32 bits", Sql("INSERT INTO Project VALUES ('SN', 4294967297, 1, 1, NULL)"),
         badSubscript},
        {"a text for a subscript", Sql("INSERT INTO Project VALUES ('SN', 'one', 1, 1, NULL)"), badSubscript},
        {"a write-ahead log", Sql("PRAGMA journal_mode = WAL"),
         "the newest values of a file in WAL mode may stand in another"},
    };
}

std::vector<Rejected> RejectedFiles() {
    std::vector<Rejected> files = OtherFiles();
    for (const auto& more : {OtherDatabases(), SpoiltProjects()}) {
        files.insert(files.end(), more.begin(), more.end());
    }
    return files;
}

class ProjectRejectionTest : public ProjectTest {
  protected:
    ProjectRejectionTest() {
        Enter("SN", "4.5");
        Run().SaveAs(File("good.kvr"));
        good_ = ReadFile(File("good.kvr"));
    }

    /// Makes a file of the good project's content and lets `make` spoil it.
    std::string Make(const std::string& name, const Maker& make) {
        std::string path = File(name);
        std::filesystem::remove_all(path);
        WriteFile(path, good_);
        make(path);
        return path;
    }

    /// Checks that no project is open and that nothing done from here reaches the former file.
    void ExpectFormerFileOutOfReach(const std::string& rejected) {
        EXPECT_FALSE(program_.store().IsOpen());
        EXPECT_EQ(State().sProjectFile, File("good.kvr"));
        EXPECT_EQ(State().caption, "KVR - " + File("good.kvr"));
        EXPECT_EQ(RecentPaths(State()).front(), rejected);
        EXPECT_FALSE(Run().Save());
        EXPECT_FALSE(Run().SaveAs(File("new.kvr")));
        EXPECT_THAT(Messages(), ElementsAre("Error saving to " + File("good.kvr") + ": no project is open",
                                            "Error saving to " + File("new.kvr") + ": no project is open"));
        EXPECT_FALSE(std::filesystem::exists(File("new.kvr")));
        EXPECT_TRUE(Run().NewProject());
        EXPECT_EQ(State().sProjectFile, "");
        EXPECT_EQ(ReadFile(File("good.kvr")), good_);
        EXPECT_EQ(ReadFile(program_.home / "kvrwork.tmp"), ReadFile(program_.home / "kvrwork.tpl"));
    }

    std::string good_;
};

TEST_F(ProjectRejectionTest, WhatIsNoProjectIsRefusedAndTheFormerFileIsOutOfReach) {
    for (const Rejected& file : RejectedFiles()) {
        SCOPED_TRACE(file.what);
        ASSERT_TRUE(Run().OpenProject(File("good.kvr")));
        Enter("SN", "5.5");
        const std::string path = Make("bad.kvr", file.make);
        const std::string before = Checksum(folder_.path());
        EXPECT_FALSE(Run().OpenProject(path));
        if (file.reason == kNotAKvorFile) {
            EXPECT_THAT(Messages(), ElementsAre("File " + path + " is not a kvor file"));
        } else {
            EXPECT_THAT(Messages(),
                        ElementsAre(MatchesRegex("Error loading from " + path + ": " + file.reason)));
        }
        ExpectFormerFileOutOfReach(path);
        EXPECT_EQ(Checksum(folder_.path()), before);
    }
}

TEST_F(ProjectRejectionTest, AProgramThatEndsAfterARefusalLeavesTheFormerFileAndNoFileBesideItsWorkCopy) {
    for (const Rejected& file : RejectedFiles()) {
        SCOPED_TRACE(file.what);
        const std::string path = Make("bad.kvr", file.make);
        TestHome home;
        {
            TestHost host;
            Program program(host.host(), home.home());
            ASSERT_EQ(program.Start(File("good.kvr")), StartResult::Running);
            program.SetValue("SN", 1, 1, "5.5");
            EXPECT_FALSE(program.OpenProject(path));
        }
        EXPECT_EQ(ReadFile(File("good.kvr")), good_);
        std::vector<std::string> names = NamesIn(home.path());
        std::erase(names, "kvrwork.tmp");  // not there if the file could not even be read
        // What the opening dropped is kept aside.
        EXPECT_THAT(names,
                    ElementsAre("DataBase", "Kept", "Languages", "Reports", "kvor.ini", "kvrwork.tpl"));
    }
}

TEST_F(ProjectRejectionTest, AFileCutAtAnyLengthIsRefused) {
    std::vector<std::size_t> lengths = {1, 15, 16, 17, 18, 50, 99, 100, 101, 511, 512, 513, 1024, 2048};
    for (std::size_t length = kPageSize; length <= good_.size(); length += kPageSize) {
        lengths.insert(lengths.end(), {length - 1, length, length + 1});
    }
    // What stands behind the last page is not the file's.
    std::erase_if(lengths, [&](std::size_t length) { return length >= good_.size(); });
    ASSERT_GT(lengths.size(), 100U);
    for (const std::size_t length : lengths) {
        SCOPED_TRACE(length);
        const std::string path = Make("cut.kvr", Content(good_.substr(0, length)));
        EXPECT_FALSE(Run().OpenProject(path));
        EXPECT_FALSE(program_.store().IsOpen());
        EXPECT_THAT(Messages(), ElementsAre(AnyOf("File " + path + " is not a kvor file",
                                                  StartsWith("Error loading from " + path + ": "))));
    }
    ExpectFormerFileOutOfReach(File("cut.kvr"));
}

TEST_F(ProjectRejectionTest, APageOverwrittenWithNoiseIsRefused) {
    for (std::size_t page = 0; page < good_.size() / kPageSize; ++page) {
        SCOPED_TRACE(page);
        const std::string path = Make("bad.kvr", [&](const Path& file) {
            std::string content = good_;
            content.replace(page * kPageSize, kPageSize, kPageSize, '\xA5');
            WriteFile(file, content);
        });
        EXPECT_FALSE(Run().OpenProject(path));
        EXPECT_FALSE(program_.store().IsOpen());
        EXPECT_THAT(Messages(), ElementsAre(AnyOf("File " + path + " is not a kvor file",
                                                  StartsWith("Error loading from " + path + ": "))));
    }
}

TEST_F(ProjectRejectionTest, APageInThePlaceOfAnotherIsRefused) {
    for (std::size_t page = 1; page + 1 < good_.size() / kPageSize; ++page) {
        SCOPED_TRACE(page);
        const std::string path = Make("bad.kvr", [&](const Path& file) {
            const std::string first = good_.substr(page * kPageSize, kPageSize);
            const std::string second = good_.substr((page + 1) * kPageSize, kPageSize);
            std::string content = good_;
            WriteFile(file, content.replace(page * kPageSize, 2 * kPageSize, second + first));
        });
        EXPECT_FALSE(Run().OpenProject(path));
        EXPECT_FALSE(program_.store().IsOpen());
        EXPECT_THAT(Messages(), ElementsAre(StartsWith("Error loading from " + path + ": ")));
    }
}

TEST_F(ProjectRejectionTest, AnUnreadableFileIsRefused) {
    const std::string path = Make("secret.kvr", [](const Path&) {});
    OpenToEverybody(program_.home.path(), true);
    OpenToEverybody(folder_.path(), true);
    std::filesystem::permissions(path, std::filesystem::perms::none);
    const Path home = program_.home.path();
    const TemporaryFolder work;
    OpenToEverybody(work.path(), true);
    const ChildEnd end = RunInChild(
        [&]() -> std::string {
            TestHost host;
            Program program(host.host(), {home, work.path()});
            if (program.Start(File("good.kvr")) != StartResult::Running) return "not started";
            program.SetValue("SN", 1, 1, "5.5");
            const bool opened = program.OpenProject(path);
            program.Save();
            program.NewProject();
            std::string report = opened ? "opened" : "refused";
            for (const std::string& text : host.record.TakeTexts()) report += "\n" + text;
            return report;
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, "refused\nError loading from " + path + ": Permission denied\nError saving to " +
                              File("good.kvr") + ": no project is open");
    EXPECT_EQ(ReadFile(File("good.kvr")), good_);
}

TEST_F(ProjectRejectionTest, AWriteProtectedFileOpensAndIsNotReplaced) {
    OpenToEverybody(program_.home.path(), true);
    OpenToEverybody(folder_.path(), true);
    std::filesystem::permissions(File("good.kvr"), std::filesystem::perms::owner_read |
                                                       std::filesystem::perms::group_read |
                                                       std::filesystem::perms::others_read);
    const Path home = program_.home.path();
    const TemporaryFolder work;
    OpenToEverybody(work.path(), true);
    const ChildEnd end = RunInChild(
        [&]() -> std::string {
            TestHost host;
            Program program(host.host(), {home, work.path()});
            if (program.Start(File("good.kvr")) != StartResult::Running) return "not started";
            program.SetValue("SN", 1, 1, "5.5");
            program.Save();
            program.SaveAs(File("copy.kvr"));
            std::string report;
            for (const std::string& text : host.record.TakeTexts()) report += text + "\n";
            return report;
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, "Error saving to " + File("good.kvr") + ": Permission denied\n");
    EXPECT_EQ(ReadFile(File("good.kvr")), good_);
    EXPECT_EQ(NumberInFile(File("copy.kvr"), "SN"), 5.5);
}

TEST_F(ProjectRejectionTest, AFileInAFolderThatCannotBeEnteredIsRefused) {
    std::filesystem::create_directory(File("locked"));
    WriteFile(File("locked/plan.kvr"), good_);
    OpenToEverybody(program_.home.path(), true);
    OpenToEverybody(folder_.path(), true);
    std::filesystem::permissions(File("locked"), std::filesystem::perms::none);
    const Path home = program_.home.path();
    const TemporaryFolder work;
    OpenToEverybody(work.path(), true);
    const ChildEnd end = RunInChild(
        [&]() -> std::string {
            TestHost host;
            Program program(host.host(), {home, work.path()});
            if (program.Start("") != StartResult::Running) return "not started";
            program.OpenProject(File("locked/plan.kvr"));
            program.NewProject();
            program.SaveAs(File("locked/plan.kvr"));
            std::string report;
            for (const std::string& text : host.record.TakeTexts()) report += text + "\n";
            return report;
        },
        Rights::Unprivileged);
    std::filesystem::permissions(File("locked"), std::filesystem::perms::owner_all);
    EXPECT_EQ(end.report, "Error loading from " + File("locked/plan.kvr") + ": Permission denied\n" +
                              "Error saving to " + File("locked/plan.kvr") + ": Permission denied\n");
    EXPECT_EQ(ReadFile(File("locked/plan.kvr")), good_);
}

// --- Odd values ----------------------------------------------------------------------------------

TEST_F(ProjectRejectionTest, ANumberThatIsNoneReadsAsNull) {
    for (const char* value : {"'five'", "''", "x'4014000000000000'", "9e999", "-9e999", "NULL"}) {
        SCOPED_TRACE(value);
        const std::string path = Make(
            "odd.kvr",
            Sql(std::string("UPDATE Project SET SValue = 'text', RValue = ") + value + " WHERE Name = 'SN'"));
        ASSERT_TRUE(Run().OpenProject(path));
        EXPECT_EQ(*program_.store().FindCell("SN", 1, 1), (CellValue{std::nullopt, "text"}));
        EXPECT_EQ(Get("SN"), 0.0);
        EXPECT_THAT(program_.store().CompareWithWorkCopy(), IsEmpty());
        Enter("SN", "6.5");
        ASSERT_TRUE(Run().Save());
        EXPECT_EQ(NumberInFile(path, "SN"), 6.5);
    }
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProjectRejectionTest, NotANumberReadsAsNull) {
    // SQL cannot store a NaN: it is put in place of the bytes of another number.
    const std::string number("\x54\xB2\x49\xAD\x25\x94\xC3\x7D", 8);  // 1e100
    const std::string notANumber("\x7F\xF8\x00\x00\x00\x00\x00\x00", 8);
    const std::string path = Make("nan.kvr", Sql("UPDATE Project SET RValue = 1e100 WHERE Name = 'SN'"));
    std::string content = ReadFile(path);
    const std::size_t place = content.find(number);
    ASSERT_NE(place, std::string::npos);
    ASSERT_EQ(content.find(number, place + 1), std::string::npos);
    WriteFile(path, content.replace(place, number.size(), notANumber));
    ASSERT_TRUE(Run().OpenProject(path));
    EXPECT_EQ(program_.store().FindCell("SN", 1, 1)->number, std::nullopt);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProjectRejectionTest, ATextThatIsNoneReadsAsNullAndANumberInItsPlaceAsItsDigits) {
    const std::string blob =
        Make("odd.kvr", Sql("UPDATE Project SET SValue = x'414243' WHERE Name = 'Agency'"));
    ASSERT_TRUE(Run().OpenProject(blob));
    EXPECT_EQ(program_.store().FindCell("Agency", 1, 1)->text, std::nullopt);
    const std::string digits = Make("odd.kvr", Sql("UPDATE Project SET SValue = 17 WHERE Name = 'Agency'"));
    ASSERT_TRUE(Run().OpenProject(digits));
    EXPECT_EQ(program_.store().FindCell("Agency", 1, 1)->text, "17");
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ProjectRejectionTest, ARowThatTheTemplateDoesNotHaveIsKept) {
    const std::string path =
        Make("more.kvr", Sql("INSERT INTO Project VALUES ('OfLaterVersions', 1, 1, 2.5, NULL)"));
    ASSERT_TRUE(Run().OpenProject(path));
    EXPECT_EQ(Get("OfLaterVersions"), 2.5);
    Enter("SN", "6.5");
    ASSERT_TRUE(Run().Save());
    EXPECT_EQ(NumberInFile(path, "OfLaterVersions"), 2.5);
}

TEST_F(ProjectRejectionTest, AGoodProjectBehindALinkOpens) {
    std::filesystem::create_symlink("good.kvr", File("link.kvr"));
    EXPECT_TRUE(Run().OpenProject(File("link.kvr")));
    EXPECT_EQ(Get("SN"), 4.5);
    EXPECT_EQ(State().sProjectFile, File("link.kvr"));
}

TEST_F(ProjectRejectionTest, TheWorkCopyItselfIsNoProjectToOpen) {
    const std::string path = (program_.home / "kvrwork.tmp").string();
    EXPECT_FALSE(Run().OpenProject(path));
    EXPECT_THAT(Messages(),
                ElementsAre("Error loading from " + path + ": it is the program's own work copy"));
    EXPECT_FALSE(program_.store().IsOpen());
    EXPECT_EQ(ReadFile(path), good_) << "it is still there for the next command to replace";
}

}  // namespace
}  // namespace kelvor::test
