#pragma once

#include "reports/document/document.h"

namespace kelvor {

/// A document whose drawings have become pictures, for formats that know no shapes. A drawing becomes its
/// words where the module that paints is missing.
Document WithPictures(Document document);

}  // namespace kelvor
