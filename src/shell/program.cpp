#include "shell/program.h"

#include <utility>

#include "design/screens/design_forms.h"
#include "forms/act_name.h"
#include "forms/declaration_check.h"
#include "forms/equation_lines.h"
#include "forms/field_help.h"
#include "forms/form_events.h"
#include "forms/grid_entry.h"
#include "forms/screen_builder.h"
#include "forms/side_screen.h"
#include "forms/take_over.h"
#include "lcc/screens/cost_forms.h"
#include "lcc/screens/cost_page.h"
#include "ndt/screens/ndt_forms.h"
#include "platform/translation.h"
#include "rehab/screens/existing_forms.h"
#include "rehab/screens/overlay_screens.h"
#include "reports/run/preview_form.h"
#include "sections/section_forms.h"
#include "shell/about_form.h"
#include "shell/event_scope.h"
#include "shell/hub/hub.h"
#include "shell/hub/hub_table.h"
#include "shell/project_files.h"
#include "shell/recent_files.h"
#include "shell/recovery.h"
#include "traffic/screens/traffic_forms.h"

namespace kelvor {

namespace {

constexpr int kNotSolved = -1;  // as SolveForVariable tells it

constexpr const char* kTyping = ToTranslate("typing");  // what Undo drops before it takes a step back

}  // namespace

Program::Program(Host host, Home home) : state_(std::move(host), std::move(home)) {
    FormRegistry& forms = state_.formRegistry;
    forms.Declare({{kHubForm, HubForm}, {kAboutForm, [this] { return AboutForm(state_.host.libraries); }}});
    forms.Declare(HelpForms());
    forms.Declare({{kBlankForm, BlankForm}, {kPreviewForm, ReportsPreviewForm}});
    forms.Declare(DesignForms(), LetTellHub);
    forms.Declare(TrafficForms(), LetTellHub);
    forms.Declare(ExistingPavementForms(), LetTellHub);
    forms.Declare(OverlayForms(), LetTellHub);
    forms.Declare(DeflectionForms(), LetTellHub);
    forms.Declare(CostForms());
    forms.Declare(SectionForms());
}

Program::~Program() {
    if (!stopped_) Recovery(state_).DropNote();
}

StartResult Program::Start(const std::string& commandLine) {
    const StartResult result = Main(state_, commandLine);
    RebuildRecentMenu(state_);
    if (result != StartResult::Running) return result;  // an absent file leaves an empty main window
#ifndef NDEBUG
    // A name that is none ends every start of a build for work; what ships has passed its tests.
    CheckDeclarations(state_.formRegistry, *state_.dbCatalogue);
    CheckHubTable(state_.formRegistry, *state_.dbCatalogue);
#endif
    InEvent([&] {
        ShowHub();
        if (state_.crashedBefore) OfferCrashedWork(commandLine.empty());
        return true;
    });
    return result;
}

std::vector<MenuEntry> Program::Menus() const {
    const std::string typingAct = Translated(kTyping);
    const Form* form = state_.formRegistry.CurrentForm;
    const bool typing = form != nullptr && form->IsTyping();
    return MenuEntries(state_, {typing ? &typingAct : history_.NextUndo(), history_.NextRedo()});
}

std::string Program::CellText(const Form& form, int row, const GridColumn& column) {
    return GridReadCell(state_.MakeScreenContext(), form, row, column);
}

std::string Program::CellNote(const Form& form, int row, const GridColumn& column) {
    return GridCellNote(state_.MakeScreenContext(), form, row, column);
}

bool Program::TakesEdit(const Form& form, int row, const GridColumn& column) {
    return GridTakesEdit(state_.MakeScreenContext(), form, row, column);
}

std::string Program::EntryPreview() {
    const Form* form = state_.formRegistry.CurrentForm;
    if (form == nullptr || !state_.dbWork.IsOpen()) return {};
    return kelvor::EntryPreview(state_.MakeScreenContext(), *form);
}

// --- Events -------------------------------------------------------------------------------------------

bool Program::InEvent(const std::function<bool()>& action) {
    if (running_) return true;
    EventScope event(state_, running_);
    try {
        const bool made = action();
        EndOfEvent();
        const std::vector<CellChange> changes = state_.dbWork.EventChanges();
        if (!changes.empty()) state_.NoteChanges(changes, travelled_ || !state_.act.empty());
        Recovery(state_).NoteUnsavedWork();
        if (!std::exchange(travelled_, false)) history_.Record(state_, event, changes);
        return made;
    } catch (const ProgramStop&) {
        stopped_ = true;
        throw;
    } catch (const std::exception& fault) {
        event.Undo();
        travelled_ = false;
        ShowFault(fault.what());
        return false;
    }
}

void Program::ShowFault(const std::string& reason) {
    state_.host.dialogs.SetWaitCursor(false);
    state_.host.dialogs.ShowMessage(
        {.text = Filled(Translated("The last step could not be carried out: %1"), {reason}),
         .title = "Error"});
}

void Program::EndOfEvent() {
    if (!state_.dbCatalogue || !state_.dbCustom) return;
    ScreenContext context = state_.MakeScreenContext();
    FormEvents(context).Settle();
    for (Form* form : context.forms.InOpeningOrder()) {
        ShowEquationLines(context, *form);
        ShowTakeOvers(context, *form);
    }
}

bool Program::Raise(const UserEvent& event) {
    bool makesSense = true;  // also an event that is dropped or fails
    InEvent([&] { return makesSense = Perform(event); });
    return makesSense;
}

bool Program::Perform(const UserEvent& event) {
    if (IsOutsideModalForm(event)) return true;
    switch (event.kind) {
        case UserEvent::Kind::OpenForm: {
            if (const auto tab = HubTabNamed(event.name)) return SwitchTab(static_cast<int>(*tab));
            return OpenScreen(event);
        }
        case UserEvent::Kind::ActivateForm:
        case UserEvent::Kind::CloseForm:
            return OnOpenForm(event);
        case UserEvent::Kind::SwitchTab:
            return SwitchTab(event.number);
        case UserEvent::Kind::Menu:
            return ChooseMenu(event.name, event.number);
        case UserEvent::Kind::OpenFile:
            OpenFile(event.text);
            return true;
        default:
            return PerformOnCurrentForm(event);
    }
}

/// True for what a modal form in front keeps the user from: everything but itself and the way out.
bool Program::IsOutsideModalForm(const UserEvent& event) const {
    const Form* form = state_.formRegistry.CurrentForm;
    if (form == nullptr || !form->modal) return false;
    if (event.kind == UserEvent::Kind::Menu && event.name == kExit) return false;
    switch (event.kind) {
        case UserEvent::Kind::OpenForm:
        case UserEvent::Kind::SwitchTab:
        case UserEvent::Kind::Menu:
        case UserEvent::Kind::OpenFile:
            return true;
        case UserEvent::Kind::ActivateForm:
        case UserEvent::Kind::CloseForm:
            return !EqualNoCase(event.name, form->name());
        default:
            return false;
    }
}

/// The number of the event is the slice that the form shows; 0 for as it has it. A page of pavement B goes by
/// the name that the catalogue has for it.
bool Program::OpenScreen(const UserEvent& event) {
    const auto dim2 = event.number > 0 ? std::optional(event.number) : std::nullopt;
    const OpenRequest request = PageOfPavementB(event.name).value_or(OpenRequest{event.name, dim2, {}});
    if (state_.formRegistry.FindType(request.form) == nullptr) return false;
    ScreenContext context = state_.MakeScreenContext();
    FormEvents(context).Open(request);
    return true;
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
    FormEvents events(context);
    if (!state_.dbWork.IsOpen() && form->type().needsProject) {
        if (event.kind == UserEvent::Kind::Press && EqualNoCase(event.name, kOkButton)) events.Close(*form);
        return true;
    }
    if (event.kind == UserEvent::Kind::Key && event.name == "F1" && !HasFieldHelp(*form)) {
        return ShowHelp(HelpPageOf(*form)), true;
    }
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
    if (event.kind == UserEvent::Kind::EmptyCells) return events.EmptyCells(*form, event.cells);
    if (event.kind == UserEvent::Kind::DeleteRow) return events.DeleteRow(*form, event.number);
    if (event.kind == UserEvent::Kind::InsertRow) return events.InsertRow(*form, event.number);
    if (event.kind == UserEvent::Kind::MoveRowUp) return events.MoveRow(*form, event.number, -1);
    if (event.kind == UserEvent::Kind::MoveRowDown) return events.MoveRow(*form, event.number, 1);
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
    Form* hub = state_.formRegistry.Find(kHubForm);
    if (tab < 0 || tab >= kHubTabs || hub == nullptr) return false;
    if (NeedsProject(static_cast<HubTab>(tab)) && !state_.dbWork.IsOpen()) return true;
    ScreenContext context = state_.MakeScreenContext();
    FormEvents events(context);
    events.Activate(*hub);
    if (context.forms.CurrentForm == hub && events.Commit()) {
        EnterHubTab(context, *hub, static_cast<HubTab>(tab));
    }
    return true;
}

void Program::BringToDisk() {
    if (running_) return;
    Recovery recovery(state_);
    recovery.RenewNote();
    state_.dbWork.BeginEvent();
    state_.dbWork.EndEvent();
    recovery.TakeSnapshot();
}

// --- Undo -----------------------------------------------------------------------------------------------

std::optional<std::string> Program::Undo() {
    std::optional<std::string> act;
    InEvent([&] {
        act = UndoLast();
        return true;
    });
    return act;
}

std::optional<std::string> Program::Redo() {
    std::optional<std::string> act;
    InEvent([&] {
        act = RedoLast();
        return true;
    });
    return act;
}

/// False while a form in front keeps the user from all others.
bool Program::MayTravel() const {
    const Form* form = state_.formRegistry.CurrentForm;
    return state_.dbWork.IsOpen() && (form == nullptr || !form->modal);
}

std::optional<std::string> Program::UndoLast() {
    if (!MayTravel()) return std::nullopt;
    ScreenContext context = state_.MakeScreenContext();
    if (FormEvents(context).DropTyping()) return Translated(kTyping);
    travelled_ = true;
    return history_.Undo(state_);
}

std::optional<std::string> Program::RedoLast() {
    if (!MayTravel()) return std::nullopt;
    ScreenContext context = state_.MakeScreenContext();
    FormEvents(context).DropTyping();
    travelled_ = true;
    return history_.Redo(state_);
}

// --- Units --------------------------------------------------------------------------------------------

void Program::ChooseUnits(bool metric) {
    InEvent([&] {
        const Form* front = state_.formRegistry.CurrentForm;
        if (front == nullptr || !front->modal) SwitchUnits(metric);
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
    state_.act = Translated("switch of units");
    events.AfterUnitSwitch();
    events.LeaveAndEnter();
    state_.host.dialogs.SetWaitCursor(false);
}

// --- Commands of a script -------------------------------------------------------------------------------

void Program::SetValue(std::string_view name, int dim1, int dim2, std::string_view value) {
    InEvent([&] {
        if (state_.dbWork.FindCell(name, dim1, dim2) == nullptr) return true;
        state_.units->SetDisplayValue(name, dim1, dim2, value);
        state_.act = ChangeOf(state_.MakeScreenContext(), name);
        state_.bProjectChanged = true;
        return true;
    });
}

void Program::CalcField(std::string_view target, std::string_view key) {
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        state_.calculations.CalcField(context, target, key);
        state_.act = Filled(Translated("calculation of %1"), {target});
        return true;
    });
}

void Program::CalcCell(std::string_view target, int dim1, int dim2, std::string_view key) {
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        state_.calculations.CalcCell(context, target, dim1, dim2, key);
        state_.act = Filled(Translated("calculation of %1"), {target});
        return true;
    });
}

int Program::Solve(std::string_view screen, int term) {
    int result = running_ ? 0 : kNotSolved;
    InEvent([&] {
        CalcContext context = state_.MakeCalcContext();
        result = state_.calculations.SolveForVariable(context, screen, term);
        state_.act = "Solve For";
        if (result == 0 && state_.calculations.LastTerm(screen) > 0) state_.bProjectChanged = true;
        return true;
    });
    return result;
}

}  // namespace kelvor
