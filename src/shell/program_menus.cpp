// What the menus do, and how projects come and go.

#include <algorithm>
#include <functional>
#include <utility>

#include "forms/form_events.h"
#include "forms/screen_builder.h"
#include "forms/side_screen.h"
#include "platform/database_error.h"
#include "platform/translation.h"
#include "shell/about_form.h"
#include "shell/hub/hub.h"
#include "shell/program.h"
#include "shell/project_files.h"
#include "shell/recent_files.h"
#include "shell/recovery.h"

namespace kelvor {

bool Program::ChooseMenu(const std::string& name, int index) {
    if (const auto screen = BuiltScreenNamed(name)) {
        ScreenContext context = state_.MakeScreenContext();
        OpenBuiltScreen(context, *screen);
        return true;
    }
    const std::vector<MenuEntry> entries = Menus();
    const bool isOneOfSeveral = EqualNoCase(name, kRecentEntry) || EqualNoCase(name, kRecoverEntry);
    const auto entry = std::find_if(entries.begin(), entries.end(), [&](const MenuEntry& e) {
        return EqualNoCase(e.name, name) && e.visible && !e.IsSeparator() &&
               (e.index == index || !isOneOfSeveral);
    });
    if (entry == entries.end()) return false;
    if (!entry->enabled) return true;
    const std::pair<const char*, std::function<void()>> actions[] = {
        {"NewProj", [&] { MakeNewProject(); }},
        {"MenuFileOpen", [&] { OpenProjectByDialog(); }},
        {"MenuFilePrint", [&] { PrintReport(); }},
        {"MenuFileSave", [&] { SaveByMenu(false); }},
        {"MenuFileSaveAs", [&] { SaveByMenu(true); }},
        {kRecoverEntry, [&] { OpenKeptWork(index); }},
        {kRecentEntry, [&] { OpenRecentFile(index); }},
        {kExit, [&] { Exit(); }},
        {"MenuEditUndo", [&] { UndoLast(); }},
        {"MenuEditRedo", [&] { RedoLast(); }},
        {"MenuUnitsEnglish", [&] { SwitchUnits(false); }},
        {"MenuUnitsMetric", [&] { SwitchUnits(true); }},
        {"MenuAbout", [&] { ShowAbout(); }},
        {"MenuTopics", [&] { ShowHelp({}); }},
    };
    for (const auto& [action, act] : actions) {
        if (entry->name == action) act();
    }
    return true;
}

void Program::ShowAbout() {
    ScreenContext context = state_.MakeScreenContext();
    FormEvents(context).Open({.form = kAboutForm});
}

/// The value being typed is committed first; a refused one stops it.
void Program::PrintReport() {
    ScreenContext context = state_.MakeScreenContext();
    if (FormEvents(context).Commit()) state_.reports.Print(context);
}

// --- Help ---------------------------------------------------------------------------------------------

/// True if F1 asks for the help of a field: of the one in focus, or on a button of the one before it.
bool Program::HasFieldHelp(const Form& form) {
    const Control* help = form.Find(kHelpButton);
    return help != nullptr && help->enabled && help->visible;
}

/// The page of the help file that tells of a form: each tab of the hub has its own.
std::string Program::HelpPageOf(const Form& form) {
    if (!form.type().helpPage.empty()) return form.type().helpPage;
    return form.type().isHub ? form.name() + std::to_string(form.page()) : form.name();
}

void Program::ShowHelp(const std::string& page) {
    state_.host.dialogs.ShowHelp({state_.home.HelpFile(), page});
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

/// The hub in front, which is made when it is first asked for and never closed, with its start tab.
void Program::ShowStartTab() {
    ScreenContext context = state_.MakeScreenContext();
    FormEvents(context).Open({.form = kHubForm});
    if (Form* hub = state_.formRegistry.Find(kHubForm)) EnterHubTab(context, *hub, HubTab::Start);
}

/// The hub of another project than before. A screen that the user has kept open shows that project's values.
void Program::ShowHub() {
    ScreenContext context = state_.MakeScreenContext();
    for (Form* form : context.forms.InOpeningOrder()) FormEvents(context).ShowProject(*form);
    ShowStartTab();
    if (Form* hub = state_.formRegistry.Find(kHubForm)) OfferProject(context, *hub);
}

bool Program::NewProject() {
    return InEvent([&] { return MakeNewProject(); }) || state_.dbWork.IsOpen();
}

bool Program::MakeNewProject() {
    if (!LeaveProject()) return true;
    const bool made = ProjectFiles(state_).NewProject();
    ShowHub();
    return made;
}

bool Program::OpenProject(const std::string& path) {
    return InEvent([&] { return OpenFile(path); });
}

/// A project that is named or dropped: without a dialog, and else as by it.
bool Program::OpenFile(const std::string& path) {
    if (!LeaveProject()) return false;
    const bool opened = ProjectFiles(state_).OpenProject(path);
    ShowHub();
    return opened;
}

/// A project of the menu. One that is gone leaves the menu, and what is open stays.
void Program::OpenRecentFile(int position) {
    ScreenContext context = state_.MakeScreenContext();
    if (!FormEvents(context).Commit()) return;
    std::string path;
    try {
        path = RecentFileAt(state_, position);
    } catch (const DatabaseError&) {  // NOLINT(bugprone-empty-catch): a list that cannot be read names none
    }
    const FileKind kind = path.empty() ? FileKind::Missing : state_.host.files.Kind(path);
    if (kind == FileKind::Missing || kind == FileKind::Directory) {
        state_.host.dialogs.ShowMessage({.text = "Selected file was not found.", .title = "File is missing"});
        DropRecentFile(state_, position);
        ShowStartTab();
    } else {
        OpenFile(path);
    }
}

bool Program::Recover(int place) {
    return InEvent([&] { return OpenKeptWork(place); });
}

bool Program::OpenKeptWork(int place) {
    if (!LeaveProject()) return false;
    const bool opened = ProjectFiles(state_).RecoverProject(place);
    ShowHub();
    return opened;
}

/// Says that the program before this one crashed. Its work is opened if the user wants it, unless the start
/// was to open another project.
void Program::OfferCrashedWork(bool toOpen) {
    const std::string said = Filled(
        Translated("Kelvor did not end properly the last time. What was not saved has been kept:\n\n%1"),
        {Describe(state_.keptWork.front())});
    if (!toOpen) {
        state_.host.dialogs.ShowMessage({.text = said + "\n\n" + Translated("File > Recover opens it.")});
        return;
    }
    const Answer answer = state_.host.dialogs.ShowMessage(
        {.text = said + "\n\n" + Translated("Do you want to open it now? File > Recover opens it later."),
         .style = MessageStyle::YesNo,
         .icon = MessageIcon::Question});
    if (answer == Answer::Yes) OpenKeptWork(0);
}

bool Program::Save() {
    return InEvent([&] {
        ScreenContext context = state_.MakeScreenContext();
        FormEvents(context).Commit();
        return ProjectFiles(state_).Save();
    });
}

void Program::SaveByMenu(bool underNewName) {
    ScreenContext context = state_.MakeScreenContext();
    FormEvents(context).Commit();
    ProjectFiles files(state_);
    if (underNewName) {
        files.SaveProjectAs();
    } else {
        files.Save();
    }
}

void Program::OpenProjectByDialog() {
    if (!LeaveProject()) return;
    ProjectFiles(state_).OpenProjectDialog();
    ShowHub();
}

bool Program::SaveAs(const std::string& name) {
    return InEvent([&] {
        ScreenContext context = state_.MakeScreenContext();
        FormEvents(context).Commit();
        return ProjectFiles(state_).SaveProjectAs(name);
    });
}

bool Program::Exit() {
    ScreenContext context = state_.MakeScreenContext();
    FormEvents events(context);
    // What stands in a help goes to its field first.
    for (Form* front = context.forms.CurrentForm; front != nullptr && front->modal;
         front = context.forms.CurrentForm) {
        if (!events.Close(*front)) return false;
    }
    if (!events.Commit() || !ConfirmClose()) return false;
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
        ShowStartTab();
        return false;
    }
    return answer == Answer::No || ProjectFiles(state_).Save();
}

}  // namespace kelvor
