#include "ndt/calc/pavement_thickness.h"

#include "platform/number_picture.h"
#include "platform/number_text.h"

namespace kelvor {

void StorePavementThickness(CalcContext& context) {
    const Real inches = context.store.SQLSum("EXISTLT").value_or(0.0);
    context.Put("NDTEFFD", ParseNumber(FormatNumber(inches.value(), "#,##0")));
}

}  // namespace kelvor
