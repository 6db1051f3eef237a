#include "lcc/screens/cost_forms.h"

#include "lcc/screens/cost_chart_screen.h"
#include "lcc/screens/cost_summary_screen.h"
#include "lcc/screens/graphs_screen.h"
#include "lcc/screens/histogram_screen.h"
#include "lcc/screens/initial_costs_page.h"
#include "lcc/screens/maintenance_page.h"
#include "lcc/screens/pavement_page.h"
#include "lcc/screens/rehabilitation_page.h"

namespace kelvor {

std::vector<FormDeclaration> CostForms() {
    return {{"LcA1", PavementPage},         {"LcA1_2", InitialCostsPage}, {"LcA1_3", MaintenancePage},
            {"LcA1_4", RehabilitationPage}, {"LcS", CostSummaryForm},     {"CostChart", CostChartForm},
            {"Histogr", HistogramForm},     {"Graphs", GraphsForm}};
}

}  // namespace kelvor
