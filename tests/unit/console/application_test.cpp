#include "console/application.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>
#include <thread>
#include <utility>

#include "console/script/output.h"
#include "platform/translation.h"
#include "support/child_process.h"
#include "support/project_fixture.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

/// What a run of the console left.
struct ConsoleEnd {
    int status = -1;
    std::string output;
    std::string errors;
};

/// The words as a program takes them.
std::vector<char*> Pointers(std::vector<std::string>& words) {
    std::vector<char*> pointers(words.size());
    std::transform(words.begin(), words.end(), pointers.begin(),
                   [](std::string& word) { return word.data(); });
    return pointers;
}

/// The whole of kelvor-cli, in this process.
ConsoleEnd RunInProcess(std::vector<std::string> words, const std::string& input) {
    words.insert(words.begin(), "kelvor-cli");
    std::vector<char*> arguments = Pointers(words);
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream errors;
    const int status = RunConsole(static_cast<int>(arguments.size()), arguments.data(), in, out, errors);
    return {status, out.str(), errors.str()};
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::string Report(const ConsoleEnd& end) {
    return std::to_string(end.status) + "\n" + end.output + end.errors;
}

/// kelvor-cli as a process of its own, asked one command at a time.
class RunningCli {
  public:
    RunningCli(std::vector<std::string> words, const std::string& temporaryFolder) {
        int ends[2];
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
            throw std::runtime_error("no socket");
        words.insert(words.begin(), KELVOR_CLI);
        std::vector<char*> arguments = Pointers(words);
        arguments.push_back(nullptr);
        process_ = ::fork();
        if (process_ == 0) {
            ::dup2(ends[0], STDIN_FILENO);
            ::dup2(ends[0], STDOUT_FILENO);
            ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
            ::setenv("TMPDIR", temporaryFolder.c_str(), 1);
            ::execv(KELVOR_CLI, arguments.data());
            ::_exit(127);
        }
        ::close(ends[0]);
        socket_ = ends[1];
    }
    RunningCli(const RunningCli&) = delete;
    RunningCli& operator=(const RunningCli&) = delete;
    ~RunningCli() {
        if (socket_ >= 0) End();
    }

    /// Sends a command and gives the line that it prints.
    std::string Ask(const std::string& command) {
        const std::string line = command + "\n";
        if (::send(socket_, line.data(), line.size(), MSG_NOSIGNAL) < 0) return "";
        std::string answer;
        char c = 0;
        while (::read(socket_, &c, 1) == 1 && c != '\n') answer.push_back(c);
        return answer;
    }

    /// Ends the input and gives the exit status.
    int End() {
        ::shutdown(socket_, SHUT_WR);
        int status = 0;
        ::waitpid(process_, &status, 0);
        ::close(std::exchange(socket_, -1));
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

  private:
    pid_t process_ = -1;
    int socket_ = -1;
};

class ConsoleTest : public testing::Test {
  protected:
    /// Obeys a script in JSON on the test's home.
    ConsoleEnd Obey(const std::string& script, const std::vector<std::string>& more = {}) {
        std::vector<std::string> words = {"--home", home_.path().string(), "--json"};
        words.insert(words.end(), more.begin(), more.end());
        return RunInProcess(words, script);
    }

    /// Obeys a script and prints plain lines.
    ConsoleEnd ObeyPlainly(const std::string& script) {
        return RunInProcess({"--home", home_.path().string()}, script);
    }

    [[nodiscard]] std::string File(const std::string& name) const { return (folder_ / name).string(); }

    TestHome home_;
    TemporaryFolder folder_;
};

// --- Options -------------------------------------------------------------------------------------

TEST_F(ConsoleTest, HelpAndVersionAreAllThereIsToDo) {
    const ConsoleEnd help = RunInProcess({"--help"}, "frobnicate\n");
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.errors, "");
    for (const char* option :
         {"--home DIR", "--work DIR", "--script FILE", "--json", "--help", "--version", "PROJECT.kvr"}) {
        EXPECT_THAT(help.output, HasSubstr(option));
    }
    const ConsoleEnd version = RunInProcess({"--version"}, "frobnicate\n");
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(
        version.output,
        MatchesRegex("kelvor-cli [0-9]+\\.[0-9]+\\.[0-9]+\ncommit [0-9a-f]+\nwith SQLite [0-9.]+, .*\n"));
    EXPECT_EQ(version.errors, "");
}

TEST_F(ConsoleTest, AnOptionThatIsNotUnderstoodIsStatusTwoAndNothingRuns) {
    const std::string before = Checksum(home_.path());
    const std::string home = home_.path().string();
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"--frobnicate"},
             {"--home", home, "-x"},
             {"--home"},
             {"--home", home, "--work"},
             {"--home", home, "--script"},
             {"--home", home, "a.kvr", "b.kvr"},
             {"--home", home, "--home", home},
             {"--json=perhaps", "--home", home},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        const ConsoleEnd end = RunInProcess(words, "get SN\n");
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_NE(end.errors, "");
    }
    EXPECT_EQ(Checksum(home_.path()), before);
}

TEST_F(ConsoleTest, AScriptThatCannotBeReadIsStatusTwo) {
    for (const std::string& script : {File("nosuch.kvs"), folder_.path().string(), File("nosuch/x.kvs")}) {
        const ConsoleEnd end = Obey("get SN\n", {"--script", script});
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.errors, "the script " + script + " cannot be read\n");
    }
}

TEST_F(ConsoleTest, AScriptWithoutReadPermissionIsStatusTwo) {
    WriteFile(File("secret.kvs"), "get SN\n");
    OpenToEverybody(folder_.path(), true);
    OpenToEverybody(home_.path(), true);
    std::filesystem::permissions(File("secret.kvs"), std::filesystem::perms::none);
    const ChildEnd end = RunInChild(
        [&] {
            return Report(Obey("", {"--script", File("secret.kvs")}));
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, "2\nthe script " + File("secret.kvs") + " cannot be read\n");
}

TEST_F(ConsoleTest, AScriptFileIsObeyedInsteadOfTheInput) {
    WriteFile(File("script.kvs"), "set SN 4.5\r\n\r\n# done\r\nget SN");
    const ConsoleEnd end = Obey("frobnicate\n", {"--script", File("script.kvs")});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.errors, "");
    EXPECT_EQ(end.output, R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":4.5,"svalue":"4.5"}})"
                          "\n");
}

TEST_F(ConsoleTest, AScriptThatIsALineWithoutEndIsStatusTwo) {
    EXPECT_EQ(Report(Obey("", {"--script", "/dev/zero"})), "2\nline 1: the line is too long\n");
    const std::string digits(10'000'000, '5');  // NOLINT(bugprone-string-constructor): too long on purpose
    WriteFile(File("long.kvs"), "get SN\nset SN " + digits + "\n");
    const ConsoleEnd end = ObeyPlainly(ReadFile(File("long.kvs")));
    EXPECT_EQ(end.status, 2);
    EXPECT_EQ(end.errors, "line 2: the line is too long\n");
}

TEST_F(ConsoleTest, AScriptMayComeThroughAPipe) {
    ASSERT_EQ(::mkfifo(File("pipe.kvs").c_str(), 0600), 0);
    std::thread writer([&] { WriteFile(File("pipe.kvs"), "set SN 4.5\nget SN"); });
    const ConsoleEnd end = Obey("", {"--script", File("pipe.kvs")});
    writer.join();
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":4.5,"svalue":"4.5"}})"
                          "\n");
}

TEST_F(ConsoleTest, AnEmptyScriptIsStatusZero) {
    for (const char* script : {"", "\n", "   \n\t\n# a comment\n", "#"}) {
        EXPECT_EQ(Report(Obey(script)), "0\n") << script;
    }
}

TEST_F(ConsoleTest, AByteOrderMarkBeforeTheFirstCommandIsSkippedAndNowhereElse) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::string answer = R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":4.5,"svalue":"4.5"}})";
    EXPECT_EQ(Report(Obey(mark + "set SN 4.5\nget SN\n")), "0\n" + answer + "\n");
    EXPECT_EQ(Report(Obey(mark + "# a comment\nset SN 4.5\nget SN\n")), "0\n" + answer + "\n");
    EXPECT_EQ(Report(Obey(mark)), "0\n");
    WriteFile(File("marked.kvs"), mark + "set SN 4.5\r\nget SN\r\n");
    EXPECT_EQ(Report(Obey("", {"--script", File("marked.kvs")})), "0\n" + answer + "\n");
    EXPECT_EQ(Report(Obey("set SN 4.5\n" + mark + "get SN\n")),
              "2\nline 2: " + mark + "get: unknown command\n");
    EXPECT_EQ(Report(Obey(mark + mark + "get SN\n")), "2\nline 1: " + mark + "get: unknown command\n");
}

// --- The start -----------------------------------------------------------------------------------

TEST_F(ConsoleTest, AStartThatFailsGivesItsMessageAndStatusOne) {
    std::filesystem::remove(home_ / "kvor.ini");
    const std::string before = Checksum(home_.path());
    const ConsoleEnd end = Obey("get SN\n");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output,
              R"({"message":{"title":"Init Error","text":"Error reading .INI values\n(unable to locate ini )"
              R"(file)\nPlease reinstall Kelvor","style":"ok","icon":"none","answer":"ok"}})"
              "\n");
    EXPECT_EQ(Checksum(home_.path()), before);
}

TEST_F(ConsoleTest, EveryPartOfTheHomeThatIsMissingOrBrokenIsToldAndNothingIsWritten) {
    for (const char* part : {"kvor.ini", "DataBase/Kelvor.mdb", "DataBase/custom.tpl", "kvrwork.tpl"}) {
        for (const bool broken : {false, true}) {
            SCOPED_TRACE(testing::Message() << part << (broken ? " broken" : " missing"));
            // Without lists that can be read the program goes on.
            const bool stops = !broken || std::string_view(part) != "DataBase/custom.tpl";
            const TestHome home;
            std::filesystem::remove(home / part);
            if (broken) WriteFile(home / part, "broken\n");
            const std::string before = Checksum(home.path());
            const ConsoleEnd end =
                RunInProcess({"--home", home.path().string(), "--json"}, "set SN 4.5\nget SN\n");
            EXPECT_EQ(end.status, stops ? 1 : 0);
            EXPECT_THAT(Lines(end.output), testing::SizeIs(stops ? 1 : 2));
            EXPECT_THAT(end.output, testing::StartsWith("{\"message\":"));
            EXPECT_EQ(end.errors, "");
            EXPECT_EQ(Checksum(home.path()), before);
        }
    }
}

TEST_F(ConsoleTest, AProjectOnTheCommandLineIsOpen) {
    ASSERT_EQ(Obey("set SN 4.5\nsave \"" + File("plan.kvr") + "\"\n").status, 0);
    EXPECT_EQ(Report(Obey("get SN\n", {File("plan.kvr")})),
              "0\n"
              R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":4.5,"svalue":"4.5"}})"
              "\n");
}

TEST_F(ConsoleTest, AnAbsentProjectIsStatusOneAndNothingRuns) {
    EXPECT_EQ(Report(Obey("get SN\n", {File("nosuch.kvr")})),
              "1\n{\"message\":{\"title\":\"Opening file\",\"text\":\"" + File("nosuch.kvr") +
                  " file does not exist!\",\"style\":\"ok\",\"icon\":\"none\",\"answer\":\"ok\"}}\n");
}

TEST_F(ConsoleTest, ARefusedProjectIsToldAndTheScriptGoesOnWithoutOne) {
    WriteFile(File("text.kvr"), "no project");
    EXPECT_EQ(Report(Obey("get SN\nset SN 5\nget SN\n", {File("text.kvr")})),
              "0\n{\"message\":{\"title\":\"Kelvor\",\"text\":\"File " + File("text.kvr") +
                  " is not a kvor file\",\"style\":\"ok\",\"icon\":\"none\",\"answer\":\"ok\"}}\n"
                  "{\"cell\":{\"name\":\"SN\",\"dim1\":1,\"dim2\":1,\"missing\":true}}\n"
                  "{\"cell\":{\"name\":\"SN\",\"dim1\":1,\"dim2\":1,\"missing\":true}}\n");
}

TEST_F(ConsoleTest, AProjectWithoutANameIsRefusedWithOneMessage) {
    EXPECT_EQ(Report(ObeyPlainly("open \"\"\nget SN\n")),
              "0\nmessage [Kelvor]: Error loading from : Invalid argument -> ok\nSN(1,1) = missing\n");
}

TEST_F(ConsoleTest, AHomeThatCannotBeWrittenServesWithAPrivateWorkCopy) {
    OpenToEverybody(folder_.path(), true);
    const WriteProtection readOnly(home_.path());
    const std::string before = Checksum(home_.path());
    const ChildEnd end =
        RunInChild([&] { return Report(Obey("set SN 4.5\nget SN\nsave \"" + File("plan.kvr") + "\"\n")); },
                   Rights::Unprivileged);
    EXPECT_EQ(end.report,
              "0\n"
              R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":4.5,"svalue":"4.5"}})"
              "\n");
    EXPECT_EQ(Checksum(home_.path()), before);
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 4.5);
}

TEST_F(ConsoleTest, AWorkFolderThatCannotBeWrittenIsStatusOne) {
    const std::string home = home_.path().string();
    const WriteProtection readOnly(home_.path());
    const std::string before = Checksum(home_.path());
    const ChildEnd end = RunInChild(
        [&] {
            return Report(Obey("get SN\n", {"--work", home}));
        },
        Rights::Unprivileged);
    EXPECT_EQ(end.report, "1\n{\"message\":{\"title\":\"Kelvor\",\"text\":\"Error loading from " + home +
                              "/kvrwork.tmp: Permission denied\",\"style\":\"ok\",\"icon\":\"none\","
                              "\"answer\":\"ok\"}}\n");
    EXPECT_EQ(Checksum(home_.path()), before);
    EXPECT_EQ(Obey("get SN\n", {"--work", File("nosuch")}).status, 1);
    EXPECT_FALSE(std::filesystem::exists(File("nosuch")));
}

/// What is Kelvor's own is told in the language; what every version says, and every number, as ever.
TEST_F(ConsoleTest, AnotherLanguageIsSpokenOnlyWhereItIsNamed) {
    const std::string script = R"(set FLEXDEV 0.125
set FLEXE18 5,000,000
show FLEXE18
get FLEXDEV
solve DeF SN
form open DeF
read CHECK
)";
    ::setenv("LANGUAGE", "es", 1);
    const ConsoleEnd english = Obey(script);
    const ConsoleEnd spanish = Obey(script, {"--language", "es"});
    const ConsoleEnd none = Obey(script, {"--language", "xx"});
    ::unsetenv("LANGUAGE");
    Speak({});
    EXPECT_EQ(english.status, 0);
    EXPECT_THAT(english.output, HasSubstr("Missing: "));
    EXPECT_THAT(spanish.output, HasSubstr("Falta: "));
    std::string asInEnglish = spanish.output;
    for (const auto& [own, translated] :
         {std::pair<std::string, const char*>("Falta: ", "Missing: "), {" y 2 m\u00e1s", " and 2 more"}}) {
        ASSERT_THAT(asInEnglish, HasSubstr(own));
        asInEnglish.replace(asInEnglish.find(own), own.size(), translated);
    }
    EXPECT_EQ(asInEnglish, english.output);
    EXPECT_EQ(none.status, 2);
    EXPECT_THAT(none.errors, HasSubstr("no language xx"));
}

TEST_F(ConsoleTest, WithoutAFolderForTemporaryFilesItEndsWithStatusOne) {
    const ChildEnd end = RunInChild([&] {
        ::setenv("TMPDIR", File("nosuch").c_str(), 1);
        const ConsoleEnd console = Obey("get SN\n");
        return std::to_string(console.status) + (console.errors.empty() ? " silent" : " told");
    });
    EXPECT_EQ(end.report, "1 told");
}

TEST_F(ConsoleTest, AWorkFolderThatIsNamedKeepsItsWorkCopyButNoLock) {
    std::filesystem::create_directory(File("work"));
    EXPECT_EQ(Obey("set SN 4.5\n", {"--work", File("work")}).status, 0);
    EXPECT_THAT(NamesIn(File("work")), ElementsAre("kvrwork.tmp"));
    EXPECT_EQ(NumberInFile(File("work/kvrwork.tmp"), "SN"), 4.5);
    EXPECT_THAT(NamesIn(home_.path()),
                ElementsAre("DataBase", "Languages", "Reports", "kvor.ini", "kvrwork.tpl"));
}

TEST_F(ConsoleTest, FoldersGivenByARelativePathAreFound) {
    std::filesystem::create_directory(File("work"));
    const ChildEnd end = RunInChild([&] {
        std::filesystem::current_path(folder_.path());
        const Path home = home_.path().lexically_relative(folder_.path());
        return Report(
            RunInProcess({"--home", home.string(), "--work", "work"}, "set SN 4.5\nget SN\nsave plan\n"));
    });
    EXPECT_EQ(end.report, "0\nSN(1,1) = 4.5\n");
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 4.5);
    EXPECT_THAT(NamesIn(File("work")), ElementsAre("kvrwork.tmp"));
}

TEST_F(ConsoleTest, OutputThatCannotBeWrittenIsStatusOne) {
    std::string program = "kelvor-cli";
    std::string option = "--home";
    std::string home = home_.path().string();
    char* arguments[] = {program.data(), option.data(), home.data()};
    std::istringstream in("get SN\n");
    std::ostringstream out;
    out.setstate(std::ios::badbit);  // as on a full disk
    std::ostringstream errors;
    EXPECT_EQ(RunConsole(3, arguments, in, out, errors), 1);
    EXPECT_EQ(errors.str(), "kelvor-cli: the output cannot be written\n");
}

// --- As a process --------------------------------------------------------------------------------

TEST_F(ConsoleTest, ThePrivateWorkFolderIsRemovedAtTheEnd) {
    const std::string home = home_.path().string();
    for (const auto& [last, status] : std::vector<std::pair<std::string, int>>{
             {"get SN", 0}, {"frobnicate", 2}, {"solve DeF NOSUCH", 2}}) {
        SCOPED_TRACE(last);
        RunningCli cli({"--home", home}, folder_.path().string());
        EXPECT_EQ(cli.Ask("get SN"), "SN(1,1) = empty");
        const std::vector<std::string> during = NamesIn(folder_.path());
        ASSERT_THAT(during, ElementsAre(testing::StartsWith("kelvor-")));
        EXPECT_THAT(NamesIn(folder_ / during[0]), ElementsAre("kvrwork.lck", "kvrwork.tmp"));
        const auto mode = std::filesystem::status(folder_ / during[0]).permissions();
        EXPECT_EQ(mode, std::filesystem::perms::owner_all) << "it is private";
        cli.Ask(last);
        EXPECT_EQ(cli.End(), status);
        EXPECT_THAT(NamesIn(folder_.path()), IsEmpty());
    }
}

TEST_F(ConsoleTest, OfTwoOnOneWorkFolderTheSecondSaysSoAndEnds) {
    const std::string home = home_.path().string();
    RunningCli first({"--home", home, "--work", home, "--json"}, folder_.path().string());
    const std::string empty = R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":null,"svalue":null}})";
    EXPECT_EQ(first.Ask("get SN"), empty);
    EXPECT_EQ(Report(Obey("set SN 9\n", {"--work", home})),
              "1\n{\"message\":{\"title\":\"Kelvor\",\"text\":\"Kelvor is already running on " + home +
                  ".\\n\\nPlease use the program that is open.\",\"style\":\"ok\",\"icon\":\"none\","
                  "\"answer\":\"ok\"}}\n");
    EXPECT_EQ(Obey("get SN\n").status, 0) << "one with a work folder of its own runs beside it";
    EXPECT_EQ(first.Ask("get SN"), empty);
    EXPECT_EQ(first.End(), 0);
    EXPECT_EQ(Obey("get SN\n", {"--work", home}).status, 0);
}

/// However it is spelt, it is the home's own work folder: what is dropped there is kept.
TEST_F(ConsoleTest, AHomeByAnotherNameIsTheSameHome) {
    std::filesystem::create_directory_symlink(home_.path(), File("link"));
    const std::string home = home_.path().string();
    for (const std::string& work : {home + "/", home + "/.", File("link")}) {
        const ConsoleEnd end = Obey("set SN 77\nnew\nmenu MenuFileRecover 0\nget SN\n", {"--work", work});
        EXPECT_EQ(end.status, 0) << work;
        EXPECT_THAT(end.output, testing::HasSubstr(R"("rvalue":77)")) << work;
    }
}

TEST_F(ConsoleTest, ATemplateThatIsGoneStopsACancelledOpenToo) {
    const std::string work = File("work");
    std::filesystem::create_directory(work);
    for (const char* act : {"menu MenuFileOpen", "menu NewProj", "new"}) {
        RunningCli cli({"--home", home_.path().string(), "--work", work}, folder_.path().string());
        EXPECT_EQ(cli.Ask("get SN"), "SN(1,1) = empty");
        const std::string content = ReadFile(home_ / "kvrwork.tpl");
        std::filesystem::remove(home_ / "kvrwork.tpl");
        cli.Ask(act);
        EXPECT_EQ(cli.End(), 1) << act;
        WriteFile((home_ / "kvrwork.tpl").string(), content);
    }
}

TEST_F(ConsoleTest, ATemplateThatIsGoneStopsNew) {
    RunningCli cli({"--home", home_.path().string()}, folder_.path().string());
    EXPECT_EQ(cli.Ask("get SN"), "SN(1,1) = empty");
    std::filesystem::remove(home_ / "kvrwork.tpl");
    EXPECT_EQ(cli.Ask("new"), "message [Kelvor]: One file is missing (kvrwork.tpl).");
    EXPECT_EQ(cli.End(), 1);
}

TEST_F(ConsoleTest, WithoutAHomeItsOwnFolderServes) {
    RunningCli cli({"--json"}, folder_.path().string());
    EXPECT_EQ(cli.Ask("get SN"), R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":null,"svalue":null}})");
    EXPECT_EQ(cli.End(), 0);
}

// --- Commands that are not understood ------------------------------------------------------------

struct BadCommand {
    const char* command;
    const char* error;
};

constexpr BadCommand kBadCommands[] = {
    {"frobnicate", "frobnicate: unknown command"},
    {"GET SN", "GET: unknown command"},
    {"\"\"", ": unknown command"},
    {"new now", "new: too many words"},
    {"open", "open: too few words"},
    {"open a.kvr b.kvr", "open: too many words"},
    {"save a.kvr b.kvr", "save: too many words"},
    {"units", "units: too few words"},
    {"units imperial", "units: units are english or metric"},
    {"units Metric", "units: units are english or metric"},
    {"get", "get: too few words"},
    {"get SN 1 1 1", "get: too many words"},
    {"get SN one", "get: \"one\" is no subscript"},
    {"get SN 1 one", "get: \"one\" is no subscript"},
    {"get SN 1.5", "get: \"1.5\" is no subscript"},
    {"get SN \"\"", "get: \"\" is no subscript"},
    {"get SN 1x", "get: \"1x\" is no subscript"},
    {"get SN 32768", "get: \"32768\" is no subscript"},
    {"get SN 1 65537", "get: \"65537\" is no subscript"},
    {"get SN 4294967297", "get: \"4294967297\" is no subscript"},
    {"get SN 99999999999999999999999", "get: \"99999999999999999999999\" is no subscript"},
    {"set", "set: too few words"},
    {"set SN", "set: too few words"},
    {"set SN 1 5", "set: set takes a name and a value, with both subscripts or none between them"},
    {"set SN 1 1 5 5", "set: too many words"},
    {"set SN 1 two 5", "set: \"two\" is no subscript"},
    {"set SN -32769 1 5", "set: \"-32769\" is no subscript"},
    {"set SN \"5", "a quote is not closed"},
    {"set SN \"5\\", "a quote is not closed"},
    {"set SN \"5\"5", "a blank must follow a closing quote"},
    {"set SN 5\"5\"", "a quote stands inside a word"},
    {R"(set SN "\q")", "unknown escape \\q"},
    {"show", "show: too few words"},
    {"show SN x", "show: \"x\" is no subscript"},
    {"dump SN RM", "dump: too many words"},
    {"calc", "calc: too few words"},
    {"calc SSN SSN SSN", "calc: too many words"},
    {"calccell LDLayerStructNo 1", "calccell: too few words"},
    {"calccell LDLayerStructNo 1 x", "calccell: \"x\" is no subscript"},
    {"calccell LDLayerStructNo 1 1 T X", "calccell: too many words"},
    {"solve DeF", "solve: too few words"},
    {"solve DeF 1 2", "solve: too many words"},
    {"solve DeF 0", "solve: DeF has terms 1 to 7"},
    {"solve DeF 8", "solve: DeF has terms 1 to 7"},
    {"solve DeF -1", "solve: DeF has terms 1 to 7"},
    {"solve DeR 12", "solve: DeR has terms 1 to 11"},
    {"solve DeS 19", "solve: DeS has terms 1 to 18"},
    {"solve DeF NOSUCH", "solve: DeF has no term NOSUCH"},
    {"solve DeF DEPTH", "solve: DeF has no term DEPTH"},
    {"solve DeF 99999999999", "solve: DeF has no term 99999999999"},
    {"solve Nowhere SN", "solve: Nowhere has no term SN"},
    {"menu NoSuchEntry", "menu: there is no menu entry NoSuchEntry"},
    {"report now", "report: too many words"},
    {"print DeF", "print: too many words"},
    {"export x", "export: too many words"},
    {"previews 1", "previews: too many words"},
    {"preview", "preview: too few words"},
    {"preview 1", "preview: too few words"},
    {"preview 1 out.pdf x", "preview: too many words"},
    {"preview one out.pdf", "preview: \"one\" is no subscript"},
    {"preview 1 out.doc", "preview: a preview is written as .pdf, .rtf, .html or .txt"},
    {"preview 1 out", "preview: a preview is written as .pdf, .rtf, .html or .txt"},
    {"preview 1 out.pdf", "preview: there is no preview 1"},
    {"preview 0 out.pdf", "preview: there is no preview 0"},
    {"preview -1 out.pdf", "preview: there is no preview -1"},
    {"table", "table: too few words"},
    {"table Rigid x", "table: too many words"},
    {"table NoSuchTable", "table: there is no staging table NoSuchTable"},
    {"table Variable", "table: there is no staging table Variable"},
    {"answer", "answer: too few words"},
    {"answer a b", "answer: too many words"},
};

TEST_F(ConsoleTest, ABadCommandIsToldWithItsLineAndNothingFurtherRuns) {
    for (const BadCommand& row : kBadCommands) {
        SCOPED_TRACE(row.command);
        const ConsoleEnd end = Obey(std::string("# the bad one\n\nset SN 1\n") + row.command + "\nget SN\n");
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.errors, std::string("line 4: ") + row.error + "\n");
    }
}

TEST_F(ConsoleTest, WhatRanBeforeABadCommandStands) {
    const ConsoleEnd end =
        Obey("set SN 4.5\nget SN\nsave \"" + File("plan.kvr") + "\"\nfrobnicate\nset SN 9\nsave\n");
    EXPECT_EQ(end.status, 2);
    EXPECT_EQ(end.output, R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":4.5,"svalue":"4.5"}})"
                          "\n");
    EXPECT_EQ(end.errors, "line 4: frobnicate: unknown command\n");
    EXPECT_EQ(NumberInFile(File("plan.kvr"), "SN"), 4.5);
}

// --- Odd but understood --------------------------------------------------------------------------

TEST_F(ConsoleTest, UnknownNamesAndSubscriptsAreMissingCells) {
    EXPECT_EQ(Report(Obey("get NOSUCH\nget SN 2\nget SN 0\nget SN -1 -1\nget SN 32767 32767\nget \"\"\n"
                          "set NOSUCH 5\nset SN 2 1 5\nset SN 0 0 5\nget \"O'Brien; DROP TABLE Project\"\n")),
              "0\n"
              R"({"cell":{"name":"NOSUCH","dim1":1,"dim2":1,"missing":true}})"
              "\n"
              R"({"cell":{"name":"SN","dim1":2,"dim2":1,"missing":true}})"
              "\n"
              R"({"cell":{"name":"SN","dim1":0,"dim2":1,"missing":true}})"
              "\n"
              R"({"cell":{"name":"SN","dim1":-1,"dim2":-1,"missing":true}})"
              "\n"
              R"({"cell":{"name":"SN","dim1":32767,"dim2":32767,"missing":true}})"
              "\n"
              R"({"cell":{"name":"","dim1":1,"dim2":1,"missing":true}})"
              "\n"
              R"({"cell":{"name":"O'Brien; DROP TABLE Project","dim1":1,"dim2":1,"missing":true}})"
              "\n");
}

TEST_F(ConsoleTest, ATextThatIsNoNumberIsKeptAsAText) {
    const std::string digits(400, '9');
    for (const std::string& value :
         {std::string("1e999"), std::string("-1e999"), std::string("abc"), std::string("$5"),
          std::string("0x10"), std::string("1,,5"), std::string("nan"), std::string("inf"), digits}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(Report(Obey("set SN 5\nset SN " + value + "\nget SN\n")),
                  "0\n{\"cell\":{\"name\":\"SN\",\"dim1\":1,\"dim2\":1,\"rvalue\":null,\"svalue\":\"" +
                      value + "\"}}\n");
    }
}

TEST_F(ConsoleTest, ANumberIsStoredWithItsTextAndAnEmptyOneEmptiesTheCell) {
    EXPECT_EQ(Report(Obey("set RM \" 5,250 \"\nget RM\nset RM \"\"\nget RM\nset RM 1d3\nget RM\n")),
              "0\n"
              R"({"cell":{"name":"RM","dim1":1,"dim2":1,"rvalue":5250.0,"svalue":" 5,250 "}})"
              "\n"
              R"({"cell":{"name":"RM","dim1":1,"dim2":1,"rvalue":null,"svalue":null}})"
              "\n"
              R"({"cell":{"name":"RM","dim1":1,"dim2":1,"rvalue":1000.0,"svalue":"1d3"}})"
              "\n");
}

TEST_F(ConsoleTest, AnUnknownScreenSolvesToZeroAndTouchesNothing) {
    EXPECT_EQ(Report(Obey("solve Nowhere 1\nsolve Nowhere 99\nsolve \"\" 1\nget SN\nget DEPTH\n")),
              "0\n"
              R"({"solve":{"screen":"Nowhere","term":1,"result":0}})"
              "\n"
              R"({"solve":{"screen":"Nowhere","term":99,"result":0}})"
              "\n"
              R"({"solve":{"screen":"","term":1,"result":0}})"
              "\n"
              R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":null,"svalue":null}})"
              "\n"
              R"({"cell":{"name":"DEPTH","dim1":1,"dim2":1,"rvalue":null,"svalue":null}})"
              "\n");
}

TEST_F(ConsoleTest, AWriteToACellWithoutARowStopsTheProgram) {
    const ConsoleEnd end = Obey("get SN\ncalccell LDLayerStructNo 32767 32767\nget SN\n");
    EXPECT_EQ(end.status, 1);
    EXPECT_THAT(Lines(end.output), testing::SizeIs(1));
    EXPECT_THAT(end.errors, testing::StartsWith("line 2: the program stopped: no cell "));
}

TEST_F(ConsoleTest, AValueLongerThanACellCanHoldIsNotUnderstood) {
    const std::string path = File("plan.kvr");
    const std::string longest(1024UL * 1024UL, 'x');
    EXPECT_EQ(Report(Obey("set Agency " + longest + "\nsave \"" + path + "\"\nset Agency " + longest +
                          "x\nsave\n")),
              "2\nline 3: set: the value is longer than a cell can hold\n");
    EXPECT_EQ(Report(Obey("get Agency\n", {path})),
              "0\n{\"cell\":{\"name\":\"Agency\",\"dim1\":1,\"dim2\":1,\"rvalue\":null,\"svalue\":\"" +
                  longest + "\"}}\n");
}

TEST_F(ConsoleTest, BytesThatAreNoTextArePrintedAsReplacements) {
    const ConsoleEnd end = Obey("set Agency \"a\xFF\xC3(b\"\nget Agency\nget \"\xFE\"\n");
    EXPECT_EQ(end.status, 0);
    const std::vector<std::string> lines = Lines(end.output);
    ASSERT_EQ(lines.size(), 2U);
    for (const std::string& line : lines) EXPECT_TRUE(nlohmann::json::accept(line)) << line;
    EXPECT_THAT(lines[0], HasSubstr("\"svalue\":\"a\xEF\xBF\xBD\xEF\xBF\xBD(b\""));
}

// --- Dialogs -------------------------------------------------------------------------------------

TEST_F(ConsoleTest, AFileDialogTakesTheAnswerQueuedAndIsCancelledWithoutOne) {
    const std::string folder = (home_ / "Projects").string();
    EXPECT_EQ(Report(Obey("save\nanswer cancel\nsave\nanswer \"\"\nsave\nanswer \"" + File("plan") +
                          "\"\nsave\nsave\n")),
              "0\n{\"filedialog\":{\"kind\":\"save\",\"folder\":\"" + folder +
                  "\",\"filter\":\"KVR projects (*.kvr)|*.kvr\",\"answer\":null}}\n"
                  "{\"filedialog\":{\"kind\":\"save\",\"folder\":\"" +
                  folder +
                  "\",\"filter\":\"KVR projects (*.kvr)|*.kvr\",\"answer\":null}}\n"
                  "{\"filedialog\":{\"kind\":\"save\",\"folder\":\"" +
                  folder +
                  "\",\"filter\":\"KVR projects (*.kvr)|*.kvr\",\"answer\":null}}\n"
                  "{\"filedialog\":{\"kind\":\"save\",\"folder\":\"" +
                  folder + "\",\"filter\":\"KVR projects (*.kvr)|*.kvr\",\"answer\":\"" + File("plan") +
                  "\"}}\n");
    EXPECT_TRUE(std::filesystem::exists(File("plan.kvr")));
}

TEST_F(ConsoleTest, AMessageTakesTheNextAnswerEvenIfItHasNoSuchButton) {
    const ConsoleEnd end =
        Obey("answer \"" + File("plan") + "\"\nopen \"" + File("nosuch.kvr") + "\"\nnew\nsave\n");
    EXPECT_EQ(end.status, 0);
    const std::vector<std::string> lines = Lines(end.output);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0],
              "{\"message\":{\"title\":\"Kelvor\",\"text\":\"Error loading from " + File("nosuch.kvr") +
                  ": No such file or directory\",\"style\":\"ok\",\"icon\":\"none\",\"answer\":\"ok\"}}");
    EXPECT_THAT(lines[1], HasSubstr("\"answer\":null"));
}

// --- What is printed -----------------------------------------------------------------------------

TEST_F(ConsoleTest, NumbersReadBackAsTheSameDouble) {
    const std::vector<std::string> values = {
        "0.1",  "1e-300", "123456789.123456789",     "5e-324", "0.3",  "1.7976931348623157e308",
        "1e21", "-0.07",  "2.2250738585072011e-308", "100",    "1e22", "0.30000000000000004"};
    for (const std::string& value : values) {
        for (const char* units : {"english", "metric"}) {
            SCOPED_TRACE(value + " " + units);
            const ConsoleEnd end = Obey(std::string("units ") + units + "\nset DEPTH " + value +
                                        "\nget DEPTH\nsave \"" + File("plan.kvr") + "\"\n");
            ASSERT_EQ(end.status, 0);
            const nlohmann::json cell = nlohmann::json::parse(end.output).at("cell");
            const auto stored = NumberInFile(File("plan.kvr"), "DEPTH");
            ASSERT_TRUE(stored.has_value());
            EXPECT_EQ(cell.at("rvalue").get<double>(), *stored);
            EXPECT_EQ(cell.at("svalue"), value);
        }
    }
}

TEST_F(ConsoleTest, ADumpIsSortedByNameWithoutRegardToCaseThenSubscripts) {
    const ConsoleEnd end =
        Obey("set SN 1\nset agency X\nset LDLayerThick 2 1 5\nset LDLayerThick 1 1 6\nset RM 3\ndump\n");
    ASSERT_EQ(end.status, 0);
    std::vector<std::string> keys;
    for (const std::string& line : Lines(end.output)) {
        const nlohmann::json cell = nlohmann::json::parse(line).at("cell");
        std::string name = cell.at("name");
        for (char& c : name) c = FoldLetter(c);
        char key[100];
        std::snprintf(key, sizeof key, "%s %05d %05d", name.c_str(), cell.at("dim1").get<int>(),
                      cell.at("dim2").get<int>());
        keys.emplace_back(key);
    }
    EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
    for (const char* key : {"agency 00001 00001", "ldlayerthick 00002 00001", "metricmode 00001 00001"}) {
        EXPECT_THAT(keys, testing::Contains(key));
    }
    EXPECT_EQ(Report(Obey("set SN 1\nset RM 3\ndump s?\ndump NOSUCH*\n")),
              "0\n"
              R"({"cell":{"name":"SN","dim1":1,"dim2":1,"rvalue":1.0,"svalue":"1"}})"
              "\n");
}

TEST_F(ConsoleTest, AValueIsShownInTheActiveUnitsWithItsUnit) {
    EXPECT_EQ(Report(Obey("set rm 5000\nshow rm\nunits metric\nshow RM\nget RM\nunits english\nshow RM\n")),
              "0\n"
              R"({"display":{"name":"RM","dim1":1,"dim2":1,"text":"5,000","unit":"psi"}})"
              "\n"
              R"({"display":{"name":"RM","dim1":1,"dim2":1,"text":"34","unit":"MPa"}})"
              "\n"
              R"({"cell":{"name":"RM","dim1":1,"dim2":1,"rvalue":5000.0,"svalue":"5000"}})"
              "\n"
              R"({"display":{"name":"RM","dim1":1,"dim2":1,"text":"5,000","unit":"psi"}})"
              "\n");
}

TEST_F(ConsoleTest, WithoutJsonTheSameFactsComeAsLines) {
    EXPECT_EQ(
        Report(ObeyPlainly("set SN 4.98\nget SN\nset RM 5,000\nget RM\nshow RM\nget NOSUCH\nget DEPTH\n"
                           "set Agency \"A \\\"B\\\"\"\nget Agency\nsolve Nowhere 1\nsolve DeF 1\nsave\n"
                           "open \"" +
                           File("nosuch.kvr") + "\"\n")),
        "0\n"
        "SN(1,1) = 4.98\n"
        "RM(1,1) = 5000 \"5,000\"\n"
        "RM(1,1): 5,000 [psi]\n"
        "NOSUCH(1,1) = missing\n"
        "DEPTH(1,1) = empty\n"
        "Agency(1,1) = \"A \\\"B\\\"\"\n"
        "solve Nowhere 1: done (0)\n"
        "message [Kelvor]: ALL Other Variables Must Be Entered! -> ok\n"
        "solve DeF 1: not solved (-1)\n"
        "file dialog (save) in " +
            (home_ / "Projects").string() +
            " -> cancel\n"
            "message [Kelvor]: Error loading from " +
            File("nosuch.kvr") + ": No such file or directory -> ok\n");
}

TEST(JsonOutputTest, EachQuestionIsOneObject) {
    std::ostringstream stream;
    JsonOutput output(stream);
    output.OnMessage({.text = "Go \"on\"?\n",
                      .title = "Values",
                      .style = MessageStyle::YesNoCancel,
                      .icon = MessageIcon::Warning},
                     Answer::No);
    output.OnMessage({.text = "", .style = MessageStyle::OkCancel, .icon = MessageIcon::Question},
                     Answer::Cancel);
    output.OnMessage({.text = "a", .style = MessageStyle::YesNo, .icon = MessageIcon::Information},
                     Answer::Yes);
    output.OnInput({.text = "Factor?"}, "1.5");
    output.OnInput({.text = "Factor?"}, std::nullopt);
    output.OnFile({FileRequest::Kind::Open, "/a b", "All Files (*.*)|*.*"}, Path("/x.kvr"));
    EXPECT_EQ(
        stream.str(),
        R"({"message":{"title":"Values","text":"Go \"on\"?\n","style":"yesnocancel","icon":"warning","answer":"no"}})"
        "\n"
        R"({"message":{"title":"Kelvor","text":"","style":"okcancel","icon":"question","answer":"cancel"}})"
        "\n"
        R"({"message":{"title":"Kelvor","text":"a","style":"yesno","icon":"information","answer":"yes"}})"
        "\n"
        R"({"input":{"text":"Factor?","answer":"1.5"}})"
        "\n"
        R"({"input":{"text":"Factor?","answer":null}})"
        "\n"
        R"({"filedialog":{"kind":"open","folder":"/a b","filter":"All Files (*.*)|*.*","answer":"/x.kvr"}})"
        "\n");
}

}  // namespace
}  // namespace kelvor::test
