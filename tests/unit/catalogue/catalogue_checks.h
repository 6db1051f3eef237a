#pragma once

#include <string>
#include <vector>

#include "calc/dispatch.h"
#include "catalogue/catalogue.h"

namespace kelvor::test {

/// Everything that is wrong with a catalogue, one line a fault, each beginning with the name of the rule
/// it breaks. Empty for the catalogue that ships.
std::vector<std::string> CheckCatalogue(Catalogue& catalogue, const Dispatch& calculations);

}  // namespace kelvor::test
