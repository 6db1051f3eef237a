// Every script is obeyed in a language of this test's own, in which each text of the catalogue of texts
// stands in brackets. What then shows without a bracket must be the same in every language: the words of the
// catalogue of variables, of the lists and of the project, and the texts of `alike_texts.txt`. So a text of
// Kelvor's own that is not marked for translation fails here as soon as a script shows it.

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <sstream>

#include "console/model_driver.h"
#include "console/script/command_line.h"
#include "console/script/output.h"
#include "console/script/runner.h"
#include "forms/form.h"
#include "forms/grid_entry.h"
#include "platform/text.h"
#include "platform/translation.h"
#include "support/bracketed_language.h"
#include "support/script_files.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

/// The texts that a program shows, each with the place where it was seen first.
class ShownTexts {
  public:
    void Take(Program& program, QuestionRecord& record, const std::string& script) {
        for (const Message& message : std::exchange(record.messages, {})) {
            Add(message.text, script + ", message");
            Add(message.title, script + ", title of a message");
        }
        for (const InputRequest& request : std::exchange(record.inputs, {})) Add(request.text, script);
        for (const MenuEntry& entry : program.Menus()) {
            if (entry.menu == "MenuFile" && entry.name == "mnuRecentFile") continue;
            Add(entry.caption, script + ", menu");
            Add(entry.toolTip, script + ", menu");
        }
        const ScreenContext context = program.state().MakeScreenContext();
        for (Form* form : program.state().formRegistry.InOpeningOrder()) {
            Add(form->caption, form->name());
            for (const auto& control : form->controls()) TakeControl(context, *form, *control);
        }
    }

    [[nodiscard]] const std::map<std::string, std::string>& places() const { return places_; }

  private:
    void Add(const std::string& text, const std::string& place) {
        if (!text.empty()) places_.emplace(text, place);
    }

    void TakeControl(const ScreenContext& context, const Form& form, const Control& control) {
        const std::string place = form.name() + "." + control.name;
        const bool showsPicture = control.kind == ControlKind::Image;
        if (!control.IsBox() && !showsPicture && control.visible) Add(control.text, place);
        Add(control.toolTip, place + ", tip");
        for (const std::string& wording : control.wordings) Add(wording, place);
        if (control.kind == ControlKind::TabStrip) {
            for (const std::string& tab : control.items) Add(tab, place);
        }
        if (control.grid) TakeGrid(context, form, *control.grid, place);
        if (control.chart) TakeChart(*control.chart, place);
    }

    void TakeGrid(const ScreenContext& context, const Form& form, const GridData& grid,
                  const std::string& place) {
        for (const GridColumn& column : grid.columns) {
            Add(column.caption, place);
            Add(column.hint, place + ", hint");
            for (int row = 1; grid.routines.note != nullptr && row <= grid.rows; ++row) {
                Add(GridCellNote(context, form, row, column), place + ", note");
            }
        }
    }

    void TakeChart(const ChartData& chart, const std::string& place) {
        Add(chart.title, place);
        Add(chart.across.title, place);
        Add(chart.up.title, place);
        for (const ChartSeries& series : chart.series) Add(series.name, place);
    }

    std::map<std::string, std::string> places_;
};

/// A number with its unit.
bool IsQuantity(const std::string& text) {
    return !text.empty() && std::isdigit(static_cast<unsigned char>(text.front())) != 0 &&
           std::count(text.begin(), text.end(), ' ') <= 2;
}

/// The words that are no texts of Kelvor's own: they are not translated.
class Facts {
  public:
    explicit Facts(ProcessState& state) {
        TakeCatalogue(*state.dbCatalogue);
        const ScreenContext context = state.MakeScreenContext();
        for (const std::string& list : context.lists.Descriptions()) {
            for (const ListRow& row : context.lists.Rows(list)) words_.insert(row.value);
        }
    }

    /// True of a text that is the same in every language, whole or line by line.
    [[nodiscard]] bool Contain(const std::string& text) const {
        if (words_.contains(text)) return true;
        std::istringstream lines(ReplaceAll(text, "\r", ""));
        for (std::string whole; std::getline(lines, whole);) {
            const std::string line(TrimBlanks(whole));
            if (HasWord(line) && !IsQuantity(line) && !words_.contains(line) && !IsAlikeInEveryLanguage(line))
                return false;
        }
        return true;
    }

  private:
    void TakeCatalogue(const Catalogue& catalogue) {
        for (const Variable& variable : catalogue.variables()) {
            words_.insert(variable.desc);
            words_.insert(variable.helpHead);
            words_.insert(catalogue.HelpText(variable.name).value_or(""));
        }
        for (const Field& field : catalogue.fields()) words_.insert(field.heading);
        for (const Screen& screen : catalogue.screens()) {
            for (const std::string& title : {screen.title, screen.title1, screen.title2})
                words_.insert(title);
            for (const ScreenLabel& label : catalogue.LabelsOfScreen(screen.name)) words_.insert(label.text);
        }
        for (const UnitPair& pair : catalogue.unitPairs()) {
            words_.insert(pair.english);
            words_.insert(pair.metric);
        }
    }

    std::set<std::string> words_;
};

/// Obeys a script up to its end, or to the line that it is to fail at.
void Obey(const std::string& name, ShownTexts& texts) {
    TestProgram program;
    program.host.record.messages.clear();
    std::ostringstream output;
    JsonOutput printer(output);
    ModelDriver driver(program.program,
                       [&](const std::string& answer) { program.host.dialogs.QueueAnswer(answer); });
    std::filesystem::current_path(program.home.path());
    std::istringstream lines(
        ReplaceAll(ReadFile(ScriptFolder() / (name + ".kvs")), "{HOME}", program.home.path().string()));
    for (std::string line; !driver.HasEnded() && std::getline(lines, line);) {
        try {
            RunLine(line, driver, printer);
        } catch (const ScriptError&) {
            break;
        } catch (const ProgramStop&) {
            break;
        }
        texts.Take(program.program, program.host.record, name);
    }
}

TEST(OwnTextsTest, WhatIsKelvorsOwnIsTranslated) {
    const Path folder = std::filesystem::current_path();
    Speak(Translation::ReadPo(BracketedLanguage()));
    ShownTexts texts;
    for (const std::string& name : ScriptNames()) Obey(name, texts);
    TestProgram program;
    const Facts facts(program.program.state());
    Speak({});
    std::filesystem::current_path(folder);
    int own = 0;
    for (const auto& [text, place] : texts.places()) {
        const bool translated = HasBracket(text);
        if (translated) ++own;
        EXPECT_TRUE(translated || !HasWord(text) || facts.Contain(text))
            << place << ": \"" << ReplaceAll(text, "\n", "\\n") << "\"";
    }
    EXPECT_GT(own, 200);
}

}  // namespace
}  // namespace kelvor::test
