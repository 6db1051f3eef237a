#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form_type.h"
#include "forms/side_screen.h"

namespace kelvor {

// The four pages of cost data, `LcA1` to `LcA1_4`. Each serves both pavements: its hidden box Dim2 tells
// which one it shows, 1 for A and 2 for B. The catalogue names the pages of pavement B `LcA2` to `LcA2_4`.

/// A page with its buttons to the ones before and after, which close the page that is left, and with the
/// handlers that it has of its own.
FormType CostPage(const std::string& name, const std::vector<Handler>& own);

/// What opens the page of pavement B that the catalogue calls by a name, `LcA2`, say; nothing for any other.
std::optional<OpenRequest> PageOfPavementB(std::string_view name);

/// The pavement that a page shows, 1 or 2.
int PavementOf(const Form& page);

/// The line in which a page of costs says, once, what a switch of the unit system leaves as it is. It goes
/// with the next entry, and when the page comes in front.
LayoutElement UnitNote();
void ShowUnitNote(Form& page, const std::string& text);

/// Says so in its place.
void ShowUnitCostsStay(Form& page);

/// True if the project has the cell: a page's grid goes on below the last layer that has a width.
bool HasCell(const ScreenContext& context, const Form& page, int row, const GridColumn& column);

}  // namespace kelvor
