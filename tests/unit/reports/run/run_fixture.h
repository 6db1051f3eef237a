#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "reports/run/report_desk.h"
#include "shell/hub/hub.h"
#include "support/project_fixture.h"
#include "support/report_engine_double.h"

namespace kelvor::test {

/// A running program whose reports are filled by a double.
class ReportRunTest : public ProjectTest {
  protected:
    ReportRunTest() {
        auto engine = std::make_unique<ReportEngineDouble>();
        engine_ = engine.get();
        State().reports.SetEngine(std::move(engine));
        std::filesystem::create_directories(LayoutFolder());
        for (const char* name : {"DeF", "DeR", "OvBP", "OvUP", "OvUP_Part", "OvWT", "OvAFP", "OvAA", "OvAP",
                                 "OvAAP", "TrAx", "TrVe", "TrTr", "LCA1", "LCA2"}) {
            WriteFile(LayoutFolder() / ("Rep_" + std::string(name) + ".vsr"), "a layout");
        }
    }

    [[nodiscard]] Path LayoutFolder() const { return program_.home / "Reports"; }

    Form& Hub() { return *State().formRegistry.Find(kHubForm); }
    [[nodiscard]] std::string Current() { return State().formRegistry.CurrentForm->name(); }

    void EnterReportsTab() { Run().Raise({UserEvent::Kind::SwitchTab, {}, {}, 5}); }
    void Choose(const std::string& control) { Run().Raise({UserEvent::Kind::Choose, control, {}, 0}); }
    void Press(const std::string& control) { Run().Raise({UserEvent::Kind::Press, control, {}, 0}); }
    void OpenScreen(const std::string& name) { Run().Raise({UserEvent::Kind::OpenForm, name, {}, 0}); }
    void Print() { Run().Raise({UserEvent::Kind::Menu, "MenuFilePrint", {}, 0}); }

    /// Ticks boxes of one category, whatever the hub offers for this project.
    void Tick(const std::vector<std::string>& boxes) {
        EnterReportsTab();
        for (const auto& control : Hub().controls()) {
            if (control->kind == ControlKind::CheckBox) control->value = false;
        }
        for (const std::string& box : boxes) Hub().Get(box).value = true;
    }

    void Report(const std::vector<std::string>& boxes) {
        Tick(boxes);
        Press("Command10");
    }

    void Export(const std::vector<std::string>& boxes) {
        Tick(boxes);
        Press("cmdbExport");
    }

    /// The names of the previews, with blanks between them.
    std::string Previews() {
        std::string names;
        for (const Preview& preview : State().reports.previews()) {
            names += (names.empty() ? "" : " ") + preview.name;
        }
        return names;
    }

    std::vector<std::string> Captions() {
        std::vector<std::string> captions;
        for (const Preview& preview : State().reports.previews()) captions.push_back(preview.caption);
        return captions;
    }

    /// "title: text" of each message since the last call.
    std::vector<std::string> TitledMessages() {
        std::vector<std::string> all;
        for (const Message& message : program_.host.record.messages) {
            all.push_back(message.title + ": " + message.text);
        }
        (void)Messages();
        return all;
    }

    void Answer(const std::string& text) { program_.host.dialogs.QueueAnswer(text); }
    void Unbalance(BalanceFlag flag) { State().balance.Set(flag, false); }

    /// Saves the project under a name in a folder of the test's own.
    void SaveAs(const std::string& name) { Run().SaveAs(File(name)); }

    [[nodiscard]] std::vector<std::string> Exported() const {
        const Path folder = folder_ / "ExportDt";
        return std::filesystem::exists(folder) ? NamesIn(folder) : std::vector<std::string>{};
    }

    ReportEngineDouble* engine_ = nullptr;
};

using Lines = std::vector<std::string>;

}  // namespace kelvor::test
