// From a fresh project every screen is reached by tabs, options, fields and buttons alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "shell/hub/hub.h"
#include "support/test_host.h"

namespace kelvor::test {
namespace {

using Acts = std::vector<UserEvent>;

/// The form in which a user works after some acts on a fresh program; empty if an act was not possible.
class Walker {
  public:
    const std::set<std::string>& Walk() {
        waiting_.emplace_back();
        for (const MenuEntry& entry : program_.program.Menus()) {
            if (entry.menu == "MenuHelp") Try({{UserEvent::Kind::Menu, entry.name, {}, 0}});
        }
        for (int tab = 0; tab < kHubTabs; ++tab) Try({{UserEvent::Kind::SwitchTab, {}, {}, tab}});
        Try(TrafficInputs());
        Try(ExistingPavement());
        Try(Printed());
        while (!waiting_.empty()) {
            const Acts acts = waiting_.front();
            waiting_.pop_front();
            GoOn(acts);
        }
        return reached_;
    }

  private:
    /// Remembers where some acts lead, unless that was known.
    void Try(const Acts& acts) {
        Redo(acts);
        const Form* form = program_.program.state().formRegistry.CurrentForm;
        const std::string place = form->name() + (form->type().isHub ? WhatHubOffers(*form) : "");
        if (places_.insert(place).second) waiting_.push_back(acts);
        reached_.insert(form->name());
    }

    /// The inputs without which there are no routes to the ESALs.
    static Acts TrafficInputs() {
        Acts acts = {{UserEvent::Kind::SwitchTab, {}, {}, static_cast<int>(HubTab::Traffic)},
                     {UserEvent::Kind::Choose, "PavementTrafficFactors", {}, 0},
                     {UserEvent::Kind::Press, "Command1", {}, 0}};
        for (const char* text : {"9", "5", "2.5", "20", "4"}) {
            acts.push_back({UserEvent::Kind::Type, {}, text, 0});
            acts.push_back({UserEvent::Kind::Key, "Enter", {}, 0});
        }
        acts.push_back({UserEvent::Kind::Press, "cmdAction", {}, 0});
        return acts;
    }

    /// What the overlays need to know of a pavement: its slab, and its soil.
    static Acts ExistingPavement() {
        Acts acts = Entered("oExR", {{"EXISTDEPTH", "9"},
                                     {"EXISTMR", "650"},
                                     {"EXISTEC", "4,000,000"},
                                     {"EXISTJ", "3.2"},
                                     {"EXISTK", "200"}});
        for (const UserEvent& act : Entered("oExF", {{"EXISTRM", "5,000"}})) acts.push_back(act);
        return acts;
    }

    /// The menu's report of the flexible design.
    static Acts Printed() {
        return {{UserEvent::Kind::OpenForm, "DeF", {}, 0}, {UserEvent::Kind::Menu, "MenuFilePrint", {}, 0}};
    }

    /// Fields of a screen of the tab Overlays typed into.
    static Acts Entered(const std::string& option,
                        const std::vector<std::pair<std::string, std::string>>& values) {
        Acts acts = {{UserEvent::Kind::SwitchTab, {}, {}, static_cast<int>(HubTab::Overlays)},
                     {UserEvent::Kind::Choose, option, {}, 0},
                     {UserEvent::Kind::Press, "Command7", {}, 0}};
        for (const auto& [field, value] : values) {
            acts.push_back({UserEvent::Kind::Focus, field, {}, 0});
            acts.push_back({UserEvent::Kind::Type, {}, value, 0});
        }
        acts.push_back({UserEvent::Kind::Press, "cmdAction", {}, 0});
        return acts;
    }

    /// The tab of the hub, and how many of its controls can be used.
    static std::string WhatHubOffers(const Form& hub) {
        const auto offered = std::count_if(hub.controls().begin(), hub.controls().end(),
                                           [&](const auto& control) { return hub.CanFocus(*control); });
        return std::to_string(hub.page()) + " with " + std::to_string(offered);
    }

    /// Choosing an option, or going to a field or to a cell of each column.
    static Acts WaysInto(const Control& control) {
        if (control.IsChoice()) return {{UserEvent::Kind::Choose, control.name, {}, 0}};
        if (!control.grid) return {{UserEvent::Kind::Focus, control.name, {}, 0}};
        Acts cells;
        for (const GridColumn& column : control.grid->columns) {
            cells.push_back({UserEvent::Kind::MoveToCell, column.variable, {}, 1});
        }
        return cells;
    }

    /// Each field, cell or option, followed by each button.
    void GoOn(const Acts& acts) {
        Redo(acts);
        const auto [ways, buttons] = WhatOffers(*program_.program.state().formRegistry.CurrentForm);
        for (const UserEvent& button : buttons) {
            Acts plain = acts;
            plain.push_back(button);
            Try(plain);
            for (const UserEvent& way : ways) {
                Acts longer = acts;
                longer.push_back(way);
                longer.push_back(button);
                Try(longer);
            }
        }
    }

    /// The ways into a form's fields, and its buttons but the one that closes it.
    static std::pair<Acts, Acts> WhatOffers(const Form& form) {
        std::pair<Acts, Acts> offered;
        for (const auto& control : form.controls()) {
            if (!form.CanFocus(*control) || control->name == "cmdAction") continue;
            if (control->IsButton()) {
                offered.second.push_back({UserEvent::Kind::Press, control->name, {}, 0});
            } else {
                for (const UserEvent& way : WaysInto(*control)) offered.first.push_back(way);
            }
        }
        return offered;
    }

    /// Does the acts on a fresh project, the hub on its first tab without the choices that it keeps over New.
    void Redo(const Acts& acts) {
        program_.program.NewProject();
        Form& hub = *program_.program.state().formRegistry.CurrentForm;
        for (const auto& control : hub.controls()) {
            if (control->kind == ControlKind::OptionButton) control->value = false;
        }
        program_.program.Raise({UserEvent::Kind::SwitchTab, {}, {}, 0});
        for (const UserEvent& act : acts) program_.program.Raise(act);
    }

    TestProgram program_;
    std::deque<Acts> waiting_;
    std::set<std::string> places_;
    std::set<std::string> reached_;
};

/// Screens to which nothing leads: the hidden menu's, helps of fields whose screens do not exist yet, and the
/// choice of graphs, which the tab of the costs offers itself.
const std::set<std::string> kUnreached = {"Blank", "Graphs", "H_SRMII"};

TEST(ReachTest, EveryScreenThatIsDeclaredIsReached) {
    TestProgram program;
    std::set<std::string> expected;
    for (const std::string& name : program.program.state().formRegistry.TypeNames()) {
        if (kUnreached.count(name) == 0) expected.insert(name);
    }
    Walker walker;
    EXPECT_EQ(walker.Walk(), expected);
}

}  // namespace
}  // namespace kelvor::test
