#include "console/script/runner.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
#include <string_view>
#include <vector>

#include "console/script/command_line.h"
#include "platform/number_text.h"
#include "store/project_store.h"

namespace kelvor {

namespace {

/// The words behind a command's name.
class Arguments {
  public:
    explicit Arguments(std::vector<std::string> words) : words_(std::move(words)) {}

    [[nodiscard]] std::size_t count() const { return words_.size(); }
    [[nodiscard]] const std::string& operator[](std::size_t i) const { return words_[i]; }

    /// A subscript, 1 where the word is left out.
    [[nodiscard]] int Subscript(std::size_t i) const {
        if (i >= words_.size()) return 1;
        const auto subscript = ParseSubscript(words_[i]);
        if (!subscript) throw ScriptError("\"" + words_[i] + "\" is no subscript");
        return *subscript;
    }

    /// NAME [D1 [D2]]
    [[nodiscard]] CellKey Cell() const { return {words_[0], Subscript(1), Subscript(2)}; }

  private:
    std::vector<std::string> words_;
};

struct Context {
    const Arguments& arguments;
    Driver& driver;
    Output& output;
};

void Save(const Context& c) {
    if (c.arguments.count() == 0) {
        c.driver.Save();
    } else {
        c.driver.SaveAs(c.arguments[0]);
    }
}

void ChooseUnits(const Context& c) {
    const std::string& system = c.arguments[0];
    if (system != "english" && system != "metric") throw ScriptError("units are english or metric");
    c.driver.ChooseUnits(system == "metric");
}

void Set(const Context& c) {
    const Arguments& words = c.arguments;
    if (words.count() == 3)
        throw ScriptError("set takes a name and a value, with both subscripts or none between them");
    if (words.count() == 2) {
        c.driver.Set({words[0], 1, 1}, words[1]);
    } else {
        c.driver.Set(words.Cell(), words[3]);
    }
}

void Dump(const Context& c) {
    const std::string pattern = c.arguments.count() == 0 ? "*" : c.arguments[0];
    for (const CellReport& cell : c.driver.Dump(pattern)) c.output.Cell(cell);
}

void Calc(const Context& c) {
    const std::string& key = c.arguments[0];
    c.driver.Calc(key, c.arguments.count() > 1 ? c.arguments[1] : key);
}

void CalcOneCell(const Context& c) {
    const std::string& key = c.arguments[0];
    const std::string& target = c.arguments.count() > 3 ? c.arguments[3] : key;
    c.driver.CalcCell(key, c.arguments.Subscript(1), c.arguments.Subscript(2), target);
}

void Solve(const Context& c) {
    const std::string& screen = c.arguments[0];
    const int term = c.driver.FindTerm(screen, c.arguments[1]);
    const int result = c.driver.Solve(screen, term);
    c.output.Solve(screen, term, result);
}

void FormCommand(const Context& c) {
    const Arguments& words = c.arguments;
    const std::string& what = words[0];
    if (what == "close" && words.count() <= 2) {
        c.driver.CloseForm(words.count() == 2 ? std::optional(words[1]) : std::nullopt);
    } else if (what == "activate" && words.count() == 2) {
        c.driver.ActivateForm(words[1]);
    } else if (what == "open" && words.count() >= 2) {
        c.driver.OpenForm(words[1], words.count() == 3 ? words.Subscript(2) : 0);
    } else {
        throw ScriptError("it is form open NAME [DIM2], form activate NAME or form close [NAME]");
    }
}

/// Does something that may move the focus, and tells where it is then.
void ThenFocus(const Context& c, void (Driver::*act)(const std::string&)) {
    (c.driver.*act)(c.arguments[0]);
    c.output.Focus(c.driver.FocusName());
}

void Choose(const Context& c) {
    c.driver.Choose(c.arguments[0], c.arguments.count() > 1 ? c.arguments[1] : "");
}

void ChooseMenu(const Context& c) {
    c.driver.ChooseMenu(c.arguments[0], c.arguments.count() > 1 ? c.arguments.Subscript(1) : 0);
}

void Read(const Context& c) {
    const std::string property = c.arguments.count() > 1 ? c.arguments[1] : "text";
    c.output.Property(c.arguments[0], property, c.driver.Read(c.arguments[0], property));
}

struct Command {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    void (*run)(const Context&);
};

constexpr std::array kCommands = {
    Command{"new", 0, 0, [](const Context& c) { c.driver.New(); }},
    Command{"open", 1, 1, [](const Context& c) { c.driver.Open(c.arguments[0]); }},
    Command{"save", 0, 1, Save},
    Command{"units", 1, 1, ChooseUnits},
    Command{"undo", 0, 0, [](const Context& c) { c.output.Step("undo", c.driver.Undo()); }},
    Command{"redo", 0, 0, [](const Context& c) { c.output.Step("redo", c.driver.Redo()); }},
    Command{"get", 1, 3, [](const Context& c) { c.output.Cell(c.driver.Get(c.arguments.Cell())); }},
    Command{"set", 2, 4, Set},
    Command{"show", 1, 3, [](const Context& c) { c.output.Display(c.driver.Show(c.arguments.Cell())); }},
    Command{"dump", 0, 1, Dump},
    Command{"calc", 1, 2, Calc},
    Command{"calccell", 3, 4, CalcOneCell},
    Command{"solve", 2, 2, Solve},
    Command{"form", 1, 3, FormCommand},
    Command{"forms", 0, 0, [](const Context& c) { c.output.Forms(c.driver.Forms()); }},
    Command{"overview", 0, 0, [](const Context& c) { c.output.Overview(c.driver.Overview()); }},
    Command{"focus", 1, 1, [](const Context& c) { ThenFocus(c, &Driver::Focus); }},
    Command{"type", 1, 1, [](const Context& c) { c.driver.Type(c.arguments[0]); }},
    Command{"key", 1, 1, [](const Context& c) { ThenFocus(c, &Driver::Key); }},
    Command{"press", 1, 1, [](const Context& c) { ThenFocus(c, &Driver::Press); }},
    Command{"choose", 1, 2, Choose},
    Command{"tab", 1, 1, [](const Context& c) { c.driver.SwitchTab(c.arguments.Subscript(0)); }},
    Command{"menu", 1, 2, ChooseMenu},
    Command{"cell", 3, 3,
            [](const Context& c) {
                c.driver.EditCell(c.arguments.Subscript(0), c.arguments[1], c.arguments[2]);
            }},
    Command{"row", 1, 1, [](const Context& c) { c.driver.MoveToRow(c.arguments.Subscript(0)); }},
    Command{"delete-row", 1, 1, [](const Context& c) { c.driver.DeleteRow(c.arguments.Subscript(0)); }},
    Command{"grid", 0, 0, [](const Context& c) { c.output.Grid(c.driver.GridCells()); }},
    Command{"read", 1, 2, Read},
    Command{"chart", 1, 1, [](const Context& c) { c.output.Chart(c.driver.Chart(c.arguments[0])); }},
    Command{"picture", 2, 2, [](const Context& c) { c.driver.SavePicture(c.arguments[0], c.arguments[1]); }},
    Command{"controls", 0, 0, [](const Context& c) { c.output.Controls(c.driver.Controls()); }},
    Command{"report", 0, 0, [](const Context& c) { c.driver.MakeReports(); }},
    Command{"export", 0, 0, [](const Context& c) { c.driver.ExportReports(); }},
    Command{"print", 0, 0, [](const Context& c) { c.driver.PrintReport(); }},
    Command{"previews", 0, 0, [](const Context& c) { c.output.Previews(c.driver.Previews()); }},
    Command{"preview", 2, 2,
            [](const Context& c) { c.driver.WritePreview(c.arguments.Subscript(0), c.arguments[1]); }},
    Command{"table", 1, 1, [](const Context& c) { c.output.Table(c.driver.Table(c.arguments[0])); }},
    Command{"answer", 1, 1, [](const Context& c) { c.driver.QueueAnswer(c.arguments[0]); }},
};

/// Some editors begin a UTF-8 text with it. It is no part of the first command.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The longest line that a script may have: far above any use, and an end for a file that has none.
constexpr std::size_t kLongestLine = 4'000'000;

/// The next line; false at the end of the script. Throws ScriptError if the line is too long.
bool ReadLine(std::istream& script, std::string& line) {
    using Letters = std::istream::traits_type;
    line.clear();
    // What was printed goes out first, as a caller may wait for it.
    const std::istream::sentry ready(script, true);
    if (!ready) return false;
    for (auto letter = script.rdbuf()->sbumpc(); letter != Letters::eof();
         letter = script.rdbuf()->sbumpc()) {
        if (Letters::to_char_type(letter) == '\n') return true;
        if (line.size() == kLongestLine) throw ScriptError("the line is too long");
        line += Letters::to_char_type(letter);
    }
    return !line.empty();
}

const Command& FindCommand(const std::string& name) {
    const auto command =
        std::find_if(kCommands.begin(), kCommands.end(), [&](const Command& c) { return c.name == name; });
    if (command != kCommands.end()) return *command;
    throw ScriptError("unknown command");
}

}  // namespace

void RunLine(const std::string& line, Driver& driver, Output& output) {
    std::vector<std::string> words = SplitWords(line);
    if (words.empty()) return;
    const std::string name = words.front();
    words.erase(words.begin());
    try {
        const Command& command = FindCommand(name);
        const Arguments arguments(std::move(words));
        if (arguments.count() < command.fewest) throw ScriptError("too few words");
        if (arguments.count() > command.most) throw ScriptError("too many words");
        command.run({arguments, driver, output});
    } catch (const ScriptError& error) {
        throw ScriptError(name + ": " + error.what());
    }
}

ScriptEnd RunScript(std::istream& script, Driver& driver, Output& output, std::ostream& errors) {
    std::string line;
    for (int number = 1; !driver.HasEnded(); ++number) {
        try {
            if (!ReadLine(script, line)) break;
            if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
            RunLine(line, driver, output);
        } catch (const ScriptError& error) {
            errors << "line " << number << ": " << error.what() << '\n';
            return ScriptEnd::NotUnderstood;
        } catch (const ProgramStop& stop) {
            errors << "line " << number << ": the program stopped: " << stop.what() << '\n';
            return ScriptEnd::ProgramStopped;
        }
    }
    return ScriptEnd::Done;
}

}  // namespace kelvor
