#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `ExR`: an existing slab, its concrete and what it lies on.
FormType ExistingSlabForm();

/// `ExC`: the same under a layer of asphalt.
FormType ExistingCompositeForm();

}  // namespace kelvor
