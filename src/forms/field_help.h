#pragma once

#include <string>
#include <vector>

#include "forms/form_type.h"
#include "forms/screen_context.h"

namespace kelvor {

/// Opens the help of the field, or of the grid's cell, that had the focus last: the field's own help screen
/// if the form names one, else the general one. A message tells why none opens.
void OpenFieldHelp(ScreenContext& context, Form& form);

/// On the load of a help screen that is opened without a field: it takes the one that help was asked for
/// last, as the project keeps it, if that is one of `served`. An empty list stands for every field.
void RecallField(const ScreenContext& context, Form& form, const std::vector<std::string>& served = {});

/// Shows, on the load of a help screen, the field that it was opened for: its head in the caption, behind
/// `captionStart`, its explanation, and its value in a box like the field's own. The form has TextBox or
/// Text1; it may have HelpHead, HelpText, Label, Units, and ComboBox, which serves a field that is chosen
/// from a list. An empty start leaves the caption as it is.
void ShowCalledField(ScreenContext& context, Form& form, const std::string& captionStart = {});

/// Before such a box is left: a number that was typed is stored without the commas that group its digits.
void DropCommas(ScreenEvent& event);

/// The close of such a help screen: the caller is told whether the field has a new value.
void CloseValueHelp(ScreenEvent& event);

/// The general helps: `HelpForm` for a field, `HelpGrid` for a cell of a grid, and `Helpfrm`, which tells
/// what the catalogue holds about a variable.
std::vector<FormDeclaration> HelpForms();

}  // namespace kelvor
