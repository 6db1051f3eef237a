#pragma once

#include "forms/layout.h"

namespace kelvor {

/// The buttons that most forms have at their foot: one closes the form, the other helps with the field in
/// hand.
inline constexpr const char* kOkButton = "cmdAction";
inline constexpr const char* kHelpButton = "SSHelp";
ButtonItem OkButton();
ButtonItem HelpButton();

/// The button of a help by which its user goes back to the field that it was opened for.
ButtonItem BackToFieldButton(const char* name);

/// The buttons that lead from page to page where a screen has several.
inline constexpr const char* kBackButton = "PrevPage";
inline constexpr const char* kNextButton = "NextPage";
ButtonItem BackButton();
ButtonItem NextButton();

}  // namespace kelvor
