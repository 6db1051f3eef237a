#include "desktop/hub_company.h"

#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <filesystem>

#include "shell/hub/hub.h"
#include "shell/overview.h"

namespace kelvor {

namespace {

constexpr const char* kDrawing = "Image1";  // of the start tab
constexpr const char* kProjectEnding = ".kvr";

}  // namespace

void HubCompany::Join(FormView& hub) {
    hub_ = &hub;
    overview_ = new OverviewPanel(
        [this](const std::string& screen) {
            door_.Raise({UserEvent::Kind::OpenForm, screen});
        },
        &hub);
    start_ = new StartPage(Hooks(), &hub);
    start_->ShowSamples(Samples());
    hub.PutBesideControl(kDrawing, *start_);
    hub.PutBesideTabs(*overview_);
    for (QWidget* stop : start_->Stops()) hub.AddStop(*stop);
    hub.AddStop(*hub.tabs()->tabBar());
    hub.AddStop(overview_->table());
    shown_ = {};
    overview_->hide();
}

StartPageHooks HubCompany::Hooks() {
    return {.newProject = [this] { BeginProject(); },
            .open = [this] { Trigger("MenuFileOpen", 0); },
            .openRecent = [this](int position) { Trigger(kRecentEntry, position); },
            .openSample = [this](const std::string& path) { OpenSample(path); },
            .showHelp =
                [this](const std::string& page) {
                    const ProcessState& state = door_.program().state();
                    state.host.dialogs.ShowHelp({state.home.HelpFile(), page});
                }};
}

void HubCompany::BeginProject() {
    const auto before = door_.program().state().projects;
    Trigger("NewProj", 0);
    if (door_.program().state().projects == before) return;
    door_.Raise({.kind = UserEvent::Kind::SwitchTab, .number = static_cast<int>(HubTab::ProjectId)});
}

void HubCompany::Trigger(const char* entry, int index) {
    if (QAction* action = menus_.FindAction(entry, index)) action->trigger();
}

void HubCompany::OpenSample(const std::string& path) { door_.Raise({UserEvent::Kind::OpenFile, {}, path}); }

std::vector<std::string> HubCompany::Samples() const {
    std::vector<std::string> samples;
    std::error_code error;
    const Path folder = door_.program().state().home.SamplesFolder();
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.path().extension() == kProjectEnding) samples.push_back(entry.path().string());
    }
    std::sort(samples.begin(), samples.end());
    return samples;
}

std::vector<RecentProject> HubCompany::RecentProjects() const {
    const ProcessState& state = door_.program().state();
    std::vector<RecentProject> projects;
    for (const RecentMenuItem& item : state.recentMenu) {
        const bool missing = state.host.files.Kind(item.path) == FileKind::Missing;
        projects.push_back({item.position, item.path, item.date, missing});
    }
    return projects;
}

HubCompany::Stamp HubCompany::StampNow() const {
    const ProcessState& state = door_.program().state();
    return {state.projects, state.changingEvents(), state.dbWork.IsOpen(),
            state.units && state.units->bMetric()};
}

void HubCompany::Sync() {
    if (hub_ == nullptr) return;
    if (hub_->tabs()->currentWidget()->isAncestorOf(start_)) start_->ShowRecent(RecentProjects());
    SyncOverview();
}

void HubCompany::SyncOverview() {
    ProcessState& state = door_.program().state();
    if (overview_->isHidden() || StampNow() == shown_ || !state.dbCatalogue) return;
    shown_ = StampNow();
    overview_->Show(RowsOf(MakeOverview(state)));
}

bool HubCompany::HasRoom() const {
    const int tabs = hub_->tabs()->minimumSizeHint().width();
    const int margins = 3 * hub_->fontMetrics().lineSpacing();
    return room_.width() >= tabs + overview_->LeastWidth() + margins;
}

void HubCompany::Arrange(QSize room) {
    room_ = room;
    if (hub_ == nullptr) return;
    overview_->setVisible(wanted_ && HasRoom());
    SyncOverview();
}

void HubCompany::ShowOverview(bool wanted) {
    wanted_ = wanted;
    Arrange(room_);
    if (hub_ != nullptr && !HasRoom() && whenNoRoom) whenNoRoom();
}

}  // namespace kelvor
