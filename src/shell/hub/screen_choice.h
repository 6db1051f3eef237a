#pragma once

#include <string>

#include "forms/form.h"
#include "forms/screen_context.h"
#include "shell/hub/hub_table.h"

namespace kelvor {

/// The options of a group, below each other.
LayoutElement HubOptions(HubGroup group);

/// In words, what a button does that opens what is selected in its group.
std::string OpensChosenScreen();

/// What the button of a group does when it is clicked; see OpenChosenScreen.
Handler OpeningChosenScreen(HubGroup group);

/// A click on one of the hub's buttons that open screens: the option that is selected says which one. With
/// none selected it does nothing.
void OpenChosenScreen(ScreenEvent& event);

/// Why a screen is of no use yet; empty if all is there that it needs.
std::string WhatIsMissing(const ScreenContext& context, const HubNeeds& needs);

/// Those options of a group that need something are offered once it is there.
void OfferByNeeds(const ScreenContext& context, Form& hub, HubGroup group);

}  // namespace kelvor
