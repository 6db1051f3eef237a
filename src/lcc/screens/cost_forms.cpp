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

std::vector<FormType> CostForms() {
    return {PavementPage(),    InitialCostsPage(), MaintenancePage(), RehabilitationPage(),
            CostSummaryForm(), CostChartForm(),    HistogramForm(),   GraphsForm()};
}

}  // namespace kelvor
