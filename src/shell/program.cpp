#include "shell/program.h"

#include <algorithm>

#include "design/calc/equation_screens.h"
#include "design/calc/solve_for.h"
#include "design/screens/design_forms.h"
#include "screens/forms/field_help.h"
#include "screens/forms/form_events.h"
#include "screens/forms/grid_entry.h"
#include "screens/forms/screen_builder.h"
#include "shell/project_files.h"

namespace kelvor {

namespace {

/// Makes the writes between its making and its end one transaction, and keeps further events out.
class EventScope {
  public:
    EventScope(ProcessState& state, bool& running) : state_(state), running_(running) {
        running_ = true;
        state_.dbWork.BeginEvent();
    }
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;
    ~EventScope() {
        state_.dbWork.EndEvent();
        state_.formRegistry.DestroyRemoved();
        running_ = false;
    }

  private:
    ProcessState& state_;
    bool& running_;
};

}  // namespace

Program::Program(Host host, Home home) : state_(host, std::move(home)) {
    state_.formRegistry.Declare({HubForm()});
    state_.formRegistry.Declare(HelpForms());
    state_.formRegistry.Declare({BlankForm()});
    state_.formRegistry.Declare(DesignForms());
}

template <typename Action>
bool Program::InEvent(Action action) {
    if (running_) return true;
    const EventScope event(state_, running_);
    return action();
}

StartResult Program::Start(const std::string& commandLine) {
    const StartResult result = Main(state_, commandLine);
    if (result != StartResult::Running) return result;  // an absent file leaves an empty main window
    InEvent([&] {
        ShowHub();
        return true;
    });
    return result;
}

std::vector<MenuEntry> Program::Menus() const { return MenuEntries(state_.units && state_.units->bMetric()); }

std::string Program::CellText(const Form& form, int row, const GridColumn& column) {
    return GridReadCell(state_.MakeScreenContext(), form, row, column);
}

// --- Events of the windows -------------------------------------------------------------------------

bool Program::Raise(const UserEvent& event) {
    return InEvent([&] { return Perform(event); });
}

bool Program::Perform(const UserEvent& event) {
    if (IsOutsideModalForm(event)) return true;
    switch (event.kind) {
        case UserEvent::Kind::OpenForm: {
            if (const auto tab = HubTabNamed(event.name)) return SwitchTab(static_cast<int>(*tab));
            ScreenContext context = state_.MakeScreenContext();
            return FormEvents(context).Open(event.name);
        }
        case UserEvent::Kind::ActivateForm:
        case UserEvent::Kind::CloseForm:
            return OnOpenForm(event);
        case UserEvent::Kind::SwitchTab:
            return SwitchTab(event.number);
        case UserEvent::Kind::Menu:
            return ChooseMenu(event.name);
        default:
            return PerformOnCurrentForm(event);
    }
}

/// True for what a modal form in front keeps the user from: everything but itself.
bool Program::IsOutsideModalForm(const UserEvent& event) const {
    const Form* form = state_.formRegistry.CurrentForm;
    if (form == nullptr || !form->modal) return false;
    switch (event.kind) {
        case UserEvent::Kind::OpenForm:
        case UserEvent::Kind::SwitchTab:
        case UserEvent::Kind::Menu:
            return true;
        case UserEvent::Kind::ActivateForm:
        case UserEvent::Kind::CloseForm:
            return !EqualNoCase(event.name, form->name());
        default:
            return false;
    }
}

bool Program::OnOpenForm(const UserEvent& event) {
    ScreenContext context = state_.MakeScreenContext();
    Form* form = context.forms.Find(event.name);
    if (form == nullptr) return false;
    FormEvents events(context);
    if (event.kind == UserEvent::Kind::ActivateForm) {
        events.Activate(*form);
    } else {
        events.Close(*form);
    }
    return true;
}

bool Program::PerformOnCurrentForm(const UserEvent& event) {
    ScreenContext context = state_.MakeScreenContext();
    Form* form = context.forms.CurrentForm;
    if (form == nullptr) return false;
    // A screen that was kept open over a failed open has no project to work on.
    if (!state_.dbWork.IsOpen() && !form->type().isHub) return true;
    FormEvents events(context);
    if (event.kind == UserEvent::Kind::Type) {
        events.Type(event.text);
        return true;
    }
    if (event.kind == UserEvent::Kind::Key) return events.Key(event.name);
    if (event.kind == UserEvent::Kind::EditCell) {
        return events.EditCell(*form, event.number, event.name, event.text);
    }
    if (event.kind == UserEvent::Kind::MoveToCell) return events.MoveToCell(*form, event.number, event.name);
    if (event.kind == UserEvent::Kind::PasteCells) return events.PasteCells(*form, event.text);
    if (event.kind == UserEvent::Kind::DeleteRow) return events.DeleteRow(*form, event.number);
    Control* control = form->Find(event.name);
    if (control == nullptr) return false;
    if (event.kind == UserEvent::Kind::Choose) return events.Choose(*form, *control, event.text);
    if (event.kind == UserEvent::Kind::Focus) {
        events.MoveFocus(*form, *control);
    } else {
        events.Press(*form, *control);
    }
    return true;
}

bool Program::SwitchTab(int tab) {
    if (tab < 0 || tab >= kHubTabs) return false;
    ScreenContext context = state_.MakeScreenContext();
    FormEvents events(context);
    Form& hub = Hub();
    events.Activate(hub);
    if (context.forms.CurrentForm != &hub || !events.Commit()) return true;
    hub.page = tab;
    hub.focus = hub.NextInTabOrder(nullptr, true);
    return true;
}

bool Program::ChooseMenu(const std::string& name) {
    const std::vector<MenuEntry> entries = Menus();
    const auto entry =
        std::find_if(entries.begin(), entries.end(), [&](const MenuEntry& e) { return e.name == name; });
    if (entry == entries.end() || name.empty()) return false;
    if (entry->comesLater) return true;
    if (entry->hidden) {
        ScreenContext context = state_.MakeScreenContext();
        OpenBuiltScreen(context, entry->caption);
    }
    if (name == "MenuUnitsEnglish" || name == "MenuUnitsMetric") SwitchUnits(name == "MenuUnitsMetric");
    if (name == "MenuFileExit") return Exit(), true;
    ProjectFiles files(state_);
    if (name == "MenuFileSave" || name == "MenuFileSaveAs") {
        ScreenContext context = state_.MakeScreenContext();
        FormEvents(context).CommitAndReturn();
        if (name == "MenuFileSave") {
            files.Save();
        } else {
            files.SaveProjectAs();
        }
    }
    if ((name == "NewProj" || name == "MenuFileOpen") && LeaveProject()) {
        if (name == "NewProj") {
            files.NewProject();
        } else {
            files.OpenProjectDialog();
        }
        ShowHub();
    }
    return true;
}

// --- Units --------------------------------------------------------------------------------------------

void Program::ChooseUnits(bool metric) {
    InEvent([&] {
        SwitchUnits(metric);
        return true;
    });
}

void Program::SwitchUnits(bool metric) {
    if (state_.units->bMetric() == metric) return;
    ScreenContext context = state_.MakeScreenContext();
    FormEvents events(context);
    if (!events.Commit()) return;
    state_.host.dialogs.SetWaitCursor(true);
    state_.units->SetMetric(metric);
    events.AfterUnitSwitch();
    state_.host.dialogs.SetWaitCursor(false);
}

// --- Projects -----------------------------------------------------------------------------------------

/// Closes the screens of the project that is being left. False if a value being typed was refused.
bool Program::LeaveProject() {
    ScreenContext context = state_.MakeScreenContext();
    FormEvents events(context);
    if (!events.Commit()) return false;
    events.UnloadAll();
    return true;
}

/// The hub, which is made when it is first asked for and never closed.
Form& Program::Hub() {
    if (Form* hub = state_.formRegistry.Find(kHubForm)) return *hub;
    return state_.formRegistry.Add(*state_.formRegistry.FindType(kHubForm), *state_.dbCatalogue);
}

void Program::ShowHub() {
    ScreenContext context = state_.MakeScreenContext();
    Form& hub = Hub();
    FormEvents(context).Activate(hub);
    hub.page = static_cast<int>(HubTab::Start);
    hub.focus = nullptr;
}

bool Program::NewProject() {
    return InEvent([&] {
        if (!LeaveProject()) return true;
        const bool made = ProjectFiles(state_).NewProject();
        ShowHub();
        return made;
    });
}

bool Program::OpenProject(const std::string& path) {
    return InEvent([&] {
        if (!LeaveProject()) return false;
        const bool opened = ProjectFiles(state_).OpenProject(path);
        ShowHub();
        return opened;
    });
}

bool Program::Save() {
    return InEvent([&] {
        ScreenContext context = state_.MakeScreenContext();
        FormEvents(context).CommitAndReturn();
        return ProjectFiles(state_).Save();
    });
}

bool Program::SaveAs(const std::string& name) {
    return InEvent([&] {
        ScreenContext context = state_.MakeScreenContext();
        FormEvents(context).CommitAndReturn();
        return ProjectFiles(state_).SaveProjectAs(name);
    });
}

bool Program::Exit() {
    ScreenContext context = state_.MakeScreenContext();
    if (!FormEvents(context).Commit() || !ConfirmClose()) return false;
    ended_ = true;
    return true;
}

/// Offers to save what was changed. False if the user stays, or if Yes saved nothing.
bool Program::ConfirmClose() {
    if (!state_.bProjectChanged) return true;
    const std::string project = state_.sProjectFile.empty() ? "<unnamed project>" : state_.sProjectFile;
    const Answer answer = state_.host.dialogs.ShowMessage(
        {.text = "The contents of " + project + " has changed. Do you want to save your changes?",
         .style = MessageStyle::YesNoCancel,
         .icon = MessageIcon::Warning});
    if (answer == Answer::Cancel) {
        ShowHub();
        return false;
    }
    return answer == Answer::No || ProjectFiles(state_).Save();
}

// --- Commands of a script -------------------------------------------------------------------------------

void Program::SetValue(std::string_view name, int dim1, int dim2, std::string_view value) {
    InEvent([&] {
        if (state_.dbWork.FindCell(name, dim1, dim2) == nullptr) return true;
        state_.units->SetDisplayValue(name, dim1, dim2, value);
        state_.bProjectChanged = true;
        return true;
    });
}

void Program::CalcField(std::string_view target, std::string_view key) {
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        state_.calculations.CalcField(context, target, key);
        return true;
    });
}

void Program::CalcCell(std::string_view target, int dim1, int dim2, std::string_view key) {
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        state_.calculations.CalcCell(context, target, dim1, dim2, key);
        return true;
    });
}

int Program::Solve(std::string_view screen, int term) {
    int result = 0;
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        result = SolveForVariable(context, screen, term);
        if (result == 0 && LastTerm(screen) > 0) state_.bProjectChanged = true;
        return true;
    });
    return result;
}

}  // namespace kelvor
