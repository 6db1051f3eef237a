#include "shell/main_window.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/translation.h"
#include "shell/recovery.h"

namespace kelvor {

namespace {

constexpr int kRecentEntries = 4;

/// The captions of the hidden menu: each names the screen that its entry builds from the catalogue.
constexpr std::pair<const char*, const char*> kBuiltScreens[] = {
    {"Sub1", "DeF"}, {"Sub2", "DeR"}, {"Sub3", "DeS"}, {"Sub4", "LayDet"}, {"Sub5", "H_SRM"}};

MenuEntry Separator(const char* name, bool visible) {
    MenuEntry entry{"MenuFile", name, ""};
    entry.visible = visible;
    return entry;
}

/// A path on a menu: a single ampersand would mark an access key.
std::string AsCaption(const std::string& path) {
    std::string caption;
    for (const char c : path) caption += c == '&' ? "&&" : std::string(1, c);
    return caption;
}

MenuEntry RecentEntry(const ProcessState& state, int position) {
    const auto item = std::find_if(state.recentMenu.begin(), state.recentMenu.end(),
                                   [&](const RecentMenuItem& i) { return i.position == position; });
    MenuEntry entry{"MenuFile", kRecentEntry, "-"};
    entry.index = position;
    entry.visible = item != state.recentMenu.end();
    if (!entry.visible) return entry;
    entry.caption = "&" + std::to_string(position + 1) + " " + AsCaption(item->path);
    entry.toolTip = item->path;
    return entry;
}

constexpr const char* kRecoverMenu = "MenuRecover";

MenuEntry RecoverMenu(const ProcessState& state) {
    MenuEntry entry{"MenuFile", kRecoverMenu, Translated("&Recover")};
    entry.opensMenu = true;
    entry.enabled = !state.keptWork.empty();
    entry.toolTip = Translated("Work that was not saved");
    return entry;
}

MenuEntry RecoverEntry(const ProcessState& state, std::size_t place) {
    MenuEntry entry{kRecoverMenu, kRecoverEntry, "-"};
    entry.index = static_cast<int>(place);
    entry.visible = place < state.keptWork.size();
    if (!entry.visible) return entry;
    const KeptProject& kept = state.keptWork[place];
    entry.caption = (place < 9 ? "&" : "") + std::to_string(place + 1) + " " + AsCaption(Describe(kept));
    entry.toolTip = kept.formerPath;
    return entry;
}

/// Undo, or Redo, with the name of what it would take back or do again.
MenuEntry EditEntry(const char* name, const std::string& caption, const char* shortcut,
                    const std::string* act) {
    MenuEntry entry{"MenuEdit", name, act == nullptr ? caption : caption + " " + AsCaption(*act)};
    entry.shortcut = shortcut;
    entry.enabled = act != nullptr;
    return entry;
}

}  // namespace

std::vector<MenuTitle> MenuTitles() {
    return {{"MenuFile", Translated("&File")},
            {"MenuEdit", Translated("Ed&it")},
            {"MenuUnits", "&Units"},
            {"MenuWindow", "&Window"},
            {"MenuHelp", Translated("&Help")}};
}

std::vector<MenuEntry> MenuEntries(const ProcessState& state, const UndoNames& names) {
    const bool metric = state.units && state.units->bMetric();
    // New and Open have no key of their own: they drop an unnamed project without a question.
    std::vector<MenuEntry> entries = {
        {"MenuFile", "NewProj", "&New Project"},
        {"MenuFile", "MenuFileOpen", "&Open Project..."},
        {"MenuFile", "MenuFilePrint", "&Print", "Ctrl+P"},
        {"MenuFile", "MenuFileSave", "&Save Project...", "Ctrl+S"},
        {"MenuFile", "MenuFileSaveAs", "Save Project &As...", "Ctrl+Shift+S"},
        RecoverMenu(state),
        Separator("BreakLine1", !state.recentMenu.empty()),
    };
    for (int i = 0; i < kRecentEntries; ++i) entries.push_back(RecentEntry(state, i));
    for (std::size_t i = 0; i < KeptWork::kMost; ++i) entries.push_back(RecoverEntry(state, i));
    const std::vector<MenuEntry> others = {
        Separator("BreakLine2", true),
        {"MenuFile", "MenuFileExit", "E&xit", "Ctrl+Q"},
        EditEntry("MenuEditUndo", Translated("&Undo"), "Ctrl+Z", names.undo),
        EditEntry("MenuEditRedo", Translated("&Redo"), "Ctrl+Shift+Z; Ctrl+Y", names.redo),
        {"MenuUnits", "MenuUnitsEnglish", "&English", "", true, !metric},
        {"MenuUnits", "MenuUnitsMetric", "&Metric", "", true, metric},
        {"MenuHelp", "MenuAbout", "A&bout Kelvor"},
        {"MenuHelp", "MenuTopics", "Help &Topics"},
    };
    entries.insert(entries.end(), others.begin(), others.end());
    return entries;
}

std::optional<std::string> BuiltScreenNamed(std::string_view entry) {
    for (const auto& [name, caption] : kBuiltScreens) {
        if (entry == name) return caption;
    }
    return std::nullopt;
}

}  // namespace kelvor
