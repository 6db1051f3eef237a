#pragma once

#include <string>

#include "reports/staging/stager.h"

namespace kelvor {

// Each routine fills the staging tables of its reports from the open project. Failures are shown, column by
// column; none is thrown but a stop of the program.

/// What stands in the heading of every report.
void StageGeneralInfo(Stager& stager);

/// The flexible design and its six layers.
void StageFlexibleDesign(Stager& stager);

/// What lies under the slab, then the rigid design.
void StageRigidDesign(Stager& stager);

/// An overlay by the name of its screen, with what lies under the slab and the adjustment factors. True if
/// anything is known of the existing pavement: any of its k-value inputs, the number of its expansion joints
/// or one of the two factors.
bool StageOverlayCommon(Stager& stager, const std::string& screen);

/// What all routes to the design traffic share.
void StageTrafficCommon(Stager& stager);

void StageTrafficFactors(Stager& stager);
void StageVehicleTraffic(Stager& stager);

/// The axles up to the first row without a load or a type, at most 49.
void StageAxleTraffic(Stager& stager);

/// The rates and periods, and of both pavements the initial cost and the first ten rows of maintenance and
/// rehabilitation.
void StageCostAnalysis(Stager& stager);

/// The cost summary, as ComputePavementCosts works it out, not rounded. A step without a value is shown as a
/// failure, and the others go on.
void StageLifeCycleCost(Stager& stager);

}  // namespace kelvor
