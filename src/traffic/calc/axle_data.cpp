#include "traffic/calc/axle_data.h"

#include "traffic/calc/axle_esal.h"

namespace kelvor {

namespace {

struct RowEsal {
    Real rigid;
    Real flexible;
};

/// Both ESALs of a row: a fault of either keeps both cells as they were.
RowEsal EsalOfRow(const ProjectStore& store, int row) {
    RowEsal esal;
    const std::int16_t period = WholeCode(store.GetVar("TrPer"));
    const std::int16_t axleType = AxleTypeCode(store, WholeCode(row));
    const Real load = store.GetVarDim("AxleWeight", row, 1);
    const Real count = store.GetVarDim("NumOfAxles", row, 1);
    AxleEsal(store, axleType, load, count, period, esal.rigid, esal.flexible);
    return esal;
}

}  // namespace

void CalcRowEsalRigid(CalcContext& context, std::string_view target, int row, int /*dim2*/) {
    context.Put(target, row, 1, EsalOfRow(context.store, row).rigid);
}

void CalcRowEsalFlexible(CalcContext& context, std::string_view target, int row, int /*dim2*/) {
    context.Put(target, row, 1, EsalOfRow(context.store, row).flexible);
}

void SumRigid(CalcContext& context, std::string_view target) {
    context.Put(target, context.store.SQLSum("RE18").value_or(0.0));
}

void SumFlexible(CalcContext& context, std::string_view target) {
    context.Put(target, context.store.SQLSum("FE18").value_or(0.0));
}

}  // namespace kelvor
