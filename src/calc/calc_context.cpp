#include "calc/calc_context.h"

namespace kelvor {

std::optional<Real> CalcContext::Find(std::string_view name, int dim1, int dim2) const {
    const CellHandle cell = store.Resolve(name, dim1, dim2);
    return store.IsNull(cell) ? std::nullopt : std::optional(store.Number(cell));
}

}  // namespace kelvor
