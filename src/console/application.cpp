#include "console/application.h"

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>
#include <vector>

#include "console/model_driver.h"
#include "console/script/runner.h"
#include "platform/clock.h"
#include "platform/component_probe.h"
#include "platform/executable_folder.h"
#include "platform/file_system.h"
#include "platform/version.h"
#include "shell/home_choice.h"
#include "shell/language_choice.h"
#include "shell/program.h"

namespace kelvor {

namespace {

constexpr int kStatusDone = 0;
constexpr int kStatusStopped = 1;
constexpr int kStatusNotUnderstood = 2;

struct ConsoleOptions {
    std::string home;
    std::string work;
    std::string script;
    std::string project;
    std::string language;  // of messages and menus; empty: English
    bool json = false;
};

/// A private folder that goes when the program ends.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kelvor-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw FileError("no temporary folder can be made");
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const Path& path() const { return path_; }

  private:
    Path path_;
};

/// Reads the command line. Gives the exit status if that is all there is to do.
std::optional<int> ReadOptions(int argc, char** argv, ConsoleOptions& options, std::ostream& output,
                               std::ostream& errors) {
    CLI::App app("Designs pavements by script: starts as Kelvor does, opens a project, and obeys commands.",
                 "kelvor-cli");
    app.add_option("--home", options.home, "The program folder: where kvor.ini, DataBase, kvrwork.tpl lie")
        ->option_text("DIR");
    app.add_option("--work", options.work, "Where the work copy lies (default: a private temporary folder)")
        ->option_text("DIR");
    app.add_option("--script", options.script, "Read commands from FILE (default: standard input)")
        ->option_text("FILE");
    app.add_option("--language", options.language, "Say what is Kelvor's own in a language, such as es")
        ->option_text("CODE");
    app.add_flag("--json", options.json, "Print one JSON object a line");
    app.add_option("project", options.project, "The project file to open")->option_text("PROJECT.kvr");
    app.set_version_flag("--version", VersionText("kelvor-cli"));
    try {
        app.parse(argc, argv);
        return std::nullopt;
    } catch (const CLI::ParseError& end) {
        const bool asked = end.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success);
        app.exit(end, output, errors);
        return asked ? kStatusDone : kStatusNotUnderstood;
    }
}

/// The home that the options name, or else the one that the program finds; `scratch` is there if they do not
/// name all.
Home FindHome(const ConsoleOptions& options, const std::optional<TemporaryFolder>& scratch) {
    NativeFileSystem files;
    Home home;
    if (options.home.empty()) {
        HomeChoice choice(files, ExecutableFolder(), FindUserFolders(files, OwnEnvironment()));
        home = choice.ForScript(scratch->path());
    } else {
        home.folder = std::filesystem::absolute(options.home);
    }
    home.work = options.work.empty() ? scratch->path() : std::filesystem::absolute(options.work);
    // The same folder by another name is the same.
    if (files.Resolve(home.work) == files.Resolve(home.folder)) home.work = home.folder;
    return home;
}

/// English unless another language is named, whatever the environment says: scripts print the same
/// everywhere. False for a language that is not there.
bool SpeakAsAsked(const std::string& language, const FileSystem& files, const Home& home) {
    const bool named = !language.empty() && language != "en";
    const std::vector<std::string> spoken = named ? SpokenLanguages(files, home) : std::vector<std::string>();
    if (named && std::find(spoken.begin(), spoken.end(), language) == spoken.end()) return false;
    SpeakFirstOf(named ? std::vector{language} : std::vector<std::string>(), files, home);
    return true;
}

int RunProgram(const ConsoleOptions& options, const Home& home, std::istream& input, std::ostream& output,
               std::ostream& errors) {
    std::unique_ptr<Output> printer;
    if (options.json) {
        printer = std::make_unique<JsonOutput>(output);
    } else {
        printer = std::make_unique<PlainOutput>(output);
    }
    NativeFileSystem files;
    SystemClock clock;
    LinkedComponents components;
    if (!SpeakAsAsked(options.language, files, home)) {
        errors << "kelvor-cli: no language " << options.language << " is there\n";
        return kStatusNotUnderstood;
    }
    ScriptedDialogs dialogs(printer.get());
    Program program({files, clock, dialogs, components}, home);
    try {
        if (program.Start(options.project) != StartResult::Running) return kStatusStopped;
    } catch (const ProgramStop& stop) {
        errors << "the program stopped: " << stop.what() << '\n';
        return kStatusStopped;
    }
    ModelDriver driver(program, [&](const std::string& answer) { dialogs.QueueAnswer(answer); });
    const ScriptEnd end = RunScript(input, driver, *printer, errors);
    if (!output.flush()) {
        errors << "kelvor-cli: the output cannot be written\n";
        return kStatusStopped;
    }
    return static_cast<int>(end);
}

}  // namespace

int RunConsole(int argc, char** argv, std::istream& input, std::ostream& output, std::ostream& errors) {
    ConsoleOptions options;
    if (const auto status = ReadOptions(argc, argv, options, output, errors)) return *status;
    std::ifstream script;
    if (!options.script.empty()) {
        script.open(options.script);
        if (!script || std::filesystem::is_directory(options.script)) {
            errors << "the script " << options.script << " cannot be read\n";
            return kStatusNotUnderstood;
        }
    }
    std::istream& commands = options.script.empty() ? input : script;
    try {
        std::optional<TemporaryFolder> scratch;
        if (options.home.empty() || options.work.empty()) scratch.emplace();
        return RunProgram(options, FindHome(options, scratch), commands, output, errors);
    } catch (const std::exception& failure) {
        errors << "kelvor-cli: " << failure.what() << '\n';
        return kStatusStopped;
    }
}

}  // namespace kelvor
