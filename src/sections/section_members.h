#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "forms/chart.h"

namespace kelvor {

/// A layer of a section, or a table of layers.
struct SectionPart {
    const char* label = "";               // of a table: none, its layers have names of their own
    const char* thickness = nullptr;      // the variable; none: a band of a fixed depth that does not count
    Material material = Material::Other;  // of a table: as the names tell
    const char* names = nullptr;          // the variable with the names of the layers of a table
    double fixedInches = 0.0;
};

/// The section of a design or overlay screen.
struct SectionMember {
    std::string_view screen;
    const char* title;
    const char* total;               // the words before the total thickness
    std::vector<SectionPart> parts;  // the lowest first
};

/// The sections of the screens that have one of their own.
std::span<const SectionMember> SectionMembers();

/// The section of a screen; null if it has none. `DeS` has two, those of `DeF` and `DeR`.
const SectionMember* FindSectionMember(std::string_view screen);

}  // namespace kelvor
