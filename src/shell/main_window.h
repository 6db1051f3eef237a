#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/process_state.h"

namespace kelvor {

/// An entry of a menu of the main window.
struct MenuEntry {
    std::string menu;  // the menu it stands in
    std::string name;
    std::string caption;        // `&` before the letter of its access key; empty: a separator
    std::string shortcut = {};  // the keys, parted by ";", that choose it without the menu
    bool checkable = false;
    bool checked = false;
    int index = 0;  // of entries that share a name
    bool visible = true;
    std::string toolTip = {};
    bool enabled = true;
    bool opensMenu = false;  // it opens a menu of its own, which goes by its name

    [[nodiscard]] bool IsSeparator() const { return caption.empty(); }
};

/// The menus of the main window, in their order: name and caption.
struct MenuTitle {
    std::string name;
    std::string caption;
};

std::vector<MenuTitle> MenuTitles();

/// What Undo and Redo would do next; null: nothing.
struct UndoNames {
    const std::string* undo = nullptr;
    const std::string* redo = nullptr;
};

/// The entry of a project that is kept aside, counted from 0 in the order of ProcessState::keptWork; they
/// stand in a menu of the menu File.
inline constexpr const char* kRecoverEntry = "MenuFileRecover";

/// The entries of the files that were open last, by the place in their list.
inline constexpr const char* kRecentEntry = "mnuRecentFile";

/// The entries of all menus, with the unit system that is active checked and the recent projects by their
/// position; always the same entries in the same order, of which some are not visible.
std::vector<MenuEntry> MenuEntries(const ProcessState& state, const UndoNames& names);

/// The caption of an entry of the hidden menu, Sub1 to Sub5: the name of the screen that it builds. Nothing
/// for any other name.
std::optional<std::string> BuiltScreenNamed(std::string_view entry);

}  // namespace kelvor
