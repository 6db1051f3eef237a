#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `Graphs`: what a graph of costs is to show.
FormType GraphsForm();

}  // namespace kelvor
