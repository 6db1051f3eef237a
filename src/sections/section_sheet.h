#pragma once

#include "forms/chart.h"
#include "sections/section_members.h"
#include "units/units.h"

namespace kelvor {

/// Fills the data sheet of a section from the project, in the active unit system. A layer without thickness
/// keeps its row, with a label of blanks and the colour white, so that it vanishes.
///
/// In the drawing of a screen of its own the title carries the total thickness.
ChartData MakeSectionSheet(const Units& units, const SectionMember& member);

/// The sections of a flexible and a rigid pavement side by side.
struct SectionPair {
    ChartData flexible;
    ChartData rigid;
};

/// The sections of `DeF` and `DeR` to one scale: the thinner one has the total thickness of the other as its
/// ceiling.
SectionPair MakeSectionPair(const Units& units);

}  // namespace kelvor
