#include "calc/calc_context.h"

namespace kelvor {

std::optional<Real> CalcContext::Find(std::string_view name, int dim1, int dim2) const {
    return store.FindNumber(name, dim1, dim2);
}

}  // namespace kelvor
