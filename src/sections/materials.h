#pragma once

#include <string>
#include <string_view>

#include "forms/chart.h"

namespace kelvor {

/// What a layer is made of, by the words of its name: "Cement Treated Base" is a treated base. A name without
/// a word that tells is Other.
Material MaterialNamed(std::string_view name);

/// The colour in which layers of a material are drawn.
std::string ColourOf(Material material);

}  // namespace kelvor
