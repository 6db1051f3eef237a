#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "forms/form_type.h"
#include "forms/screen_context.h"

namespace kelvor {

/// The tabs of the hub.
enum class HubTab { ProjectId, Traffic, Design, Overlays, LifeCycleCosting, Reports, Lists, Start };

inline constexpr int kHubTabs = 8;
inline constexpr const char* kHubForm = "TabForm";

/// The tab of the hub that goes by the name of a screen; nothing for any other name.
std::optional<HubTab> HubTabNamed(std::string_view screen);

/// True if a tab shows values of the project.
bool NeedsProject(HubTab tab);

/// `TabForm`: the hub with its strip of eight tabs, from which all work is reached.
FormType HubForm();

/// What the hub offers follows the project that is open: after the start, New and Open.
void OfferProject(const ScreenContext& context, Form& hub);

/// A screen whose values decide what the hub offers tells it when it is closed; any other stays as it is.
void LetTellHub(FormType& screen);

/// Brings a tab of the hub in front: its values are read again, what it offers follows the project, and the
/// focus goes to its first control.
void EnterHubTab(ScreenContext& context, Form& hub, HubTab tab);

}  // namespace kelvor
