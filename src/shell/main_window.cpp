#include "shell/main_window.h"

#include <utility>

#include "platform/text.h"
#include "screens/forms/form_events.h"

namespace kelvor {

namespace {

/// Which option of the Design tab opens which screen, in the order in which they are looked at.
constexpr std::pair<const char*, const char*> kDesignScreens[] = {
    {"oDeR", "DeR"}, {"oDeF", "DeF"}, {"oDeS", "DeS"}};

/// Where screens that have no designed form are tried: each builds the screen that its caption names.
constexpr std::pair<const char*, const char*> kBuiltScreens[] = {
    {"Sub1", "DeF"}, {"Sub2", "DeR"}, {"Sub3", "DeS"}, {"Sub4", "LayDet"}, {"Sub5", "H_SRM"}};

void OpenDesignScreen(ScreenContext& context, Form& form, Control* /*button*/) {
    for (const auto& [option, screen] : kDesignScreens) {
        const Control* choice = form.Find(option);
        if (choice == nullptr || !choice->value) continue;
        FormEvents(context).Open(screen);
        return;
    }
}

LayoutNode EmptyPage(const std::string& title, const std::string& label) {
    return Page(title, {Text(label, "This part of Kelvor comes later.")});
}

}  // namespace

std::vector<MenuTitle> MenuTitles() {
    return {{"MenuFile", "&File"}, {"MenuUnits", "&Units"}, {"MenuWindow", "&Window"}, {"MenuHelp", "&Help"}};
}

std::vector<MenuEntry> MenuEntries(bool metric) {
    // New and Open have no key of their own: they drop an unnamed project without a question.
    std::vector<MenuEntry> entries = {
        {"MenuFile", "NewProj", "&New Project"},
        {"MenuFile", "MenuFileOpen", "&Open Project..."},
        {"MenuFile", "MenuFilePrint", "&Print", true, "Ctrl+P"},
        {"MenuFile", "MenuFileSave", "&Save Project...", false, "Ctrl+S"},
        {"MenuFile", "MenuFileSaveAs", "Save Project &As...", false, "Ctrl+Shift+S"},
        {"MenuFile", "", ""},
        {"MenuFile", "MenuFileExit", "E&xit", false, "Ctrl+Q"},
        {"MenuUnits", "MenuUnitsEnglish", "&English", false, "", true, !metric},
        {"MenuUnits", "MenuUnitsMetric", "&Metric", false, "", true, metric},
        {"MenuHelp", "MenuAbout", "A&bout Kelvor", true},
        {"MenuHelp", "MenuTopics", "Help &Topics", true},
    };
    for (const auto& [name, screen] : kBuiltScreens) {
        entries.push_back({.menu = "Menu", .name = name, .caption = screen, .hidden = true});
    }
    return entries;
}

std::optional<HubTab> HubTabNamed(std::string_view screen) {
    if (EqualNoCase(screen, "InfForm")) return HubTab::ProjectId;
    if (EqualNoCase(screen, "EcFa")) return HubTab::LifeCycleCosting;
    return std::nullopt;
}

FormType HubForm() {
    FormType type;
    type.name = kHubForm;
    type.tag = "InfForm";
    type.caption = "Kelvor";
    type.isHub = true;
    type.layout = Pages(
        "VSIndexTab",
        {
            EmptyPage("Project ID", "LabLater0"),
            EmptyPage("Traffic", "LabLater1"),
            Page("Design / Evaluation", {Options({{"oDeF", "Asphalt Pavement Design / Evaluation", false},
                                                  {"oDeR", "Rigid Pavement Design / Evaluation"},
                                                  {"oDeS", "Both Rigid and Asphalt Design / Evaluation"}}),
                                         Buttons({{"Command4", "&Design", false}})}),
            EmptyPage("Overlays", "LabLater3"),
            EmptyPage("Life Cycle Costing", "LabLater4"),
            EmptyPage("Reports", "LabLater5"),
            EmptyPage("Lists", "LabLater6"),
            Page("KVR", {Heading("ProductLabel", "Kelvor"), Text("VersionLabel", "Version " KELVOR_VERSION)}),
        });
    type.handlers = {
        {FormEvent::Load, "", HandlerOrder::Instead, [](ScreenContext&, Form&, Control*) {}},
        {FormEvent::Click, "Command4", HandlerOrder::Instead, OpenDesignScreen},
    };
    return type;
}

}  // namespace kelvor
