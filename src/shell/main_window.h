#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/forms/form_type.h"

namespace kelvor {

/// An entry of a menu of the main window.
struct MenuEntry {
    std::string menu;     // the menu it stands in
    std::string name;     // empty: a separator
    std::string caption;  // `&` before the letter of its access key
    bool comesLater = false;
    std::string shortcut = {};  // a key that chooses it without the menu
    bool checkable = false;
    bool checked = false;
    bool hidden = false;  // stands in no menu; a script may choose it
};

/// The menus of the main window, in their order: name and caption.
struct MenuTitle {
    std::string name;
    std::string caption;
};

std::vector<MenuTitle> MenuTitles();

/// The entries of all menus, with the unit system that is active checked.
std::vector<MenuEntry> MenuEntries(bool metric);

/// The tabs of the hub.
enum class HubTab { ProjectId, Traffic, Design, Overlays, LifeCycleCosting, Reports, Lists, Start };

inline constexpr int kHubTabs = 8;
inline constexpr const char* kHubForm = "TabForm";

/// The tab of the hub that goes by the name of a screen; nothing for any other name.
std::optional<HubTab> HubTabNamed(std::string_view screen);

/// `TabForm`: the hub with its strip of eight tabs.
FormType HubForm();

}  // namespace kelvor
