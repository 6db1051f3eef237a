#include "ndt/calc/column_average.h"

namespace kelvor {

void AverageColumn(CalcContext& context, std::string_view target, std::string_view column) {
    const int tests = context.store.SQLCount(column);
    const Real sum = context.store.SQLSum(column).value_or(0.0);
    context.Put(target, tests == 0 ? Real(0.0) : sum / tests);
}

}  // namespace kelvor
