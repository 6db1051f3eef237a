#pragma once

#include "forms/form_type.h"

namespace kelvor {

inline constexpr const char* kPreviewForm = "ReportsPreview";

/// The control of the form that shows the pages of a report.
inline constexpr const char* kPreviewPages = "vsReport1";

/// `ReportsPreview`: a report of the last run, with buttons that lead to the others.
FormType ReportsPreviewForm();

}  // namespace kelvor
