#pragma once

#include "forms/form_type.h"

namespace kelvor {

/// `Histogr`: the expenditures of both pavements year by year.
FormType HistogramForm();

}  // namespace kelvor
