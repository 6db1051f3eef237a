// Every plain column of the staging tables of a whole project, in both unit systems. The expected numbers are
// worked out here from the stored English ones, with factors from the definitions of the units.

#include <cmath>
#include <map>
#include <sstream>

#include "staging_fixture.h"

namespace kelvor::test {
namespace {

/// A table, the routine that fills it, and its columns in their order but for those of special rules:
/// COLUMN[=VARIABLE]:UNIT:DECIMALS holds a number, COLUMN@UNIT a unit label. An underscore is a blank.
struct GoldenTable {
    const char* routine;
    const char* table;
    const char* columns;
};

const GoldenTable kTables[] = {
    GoldenTable{"Flexible", "FlexPavementDesign",
                "SN:ESN:2 FLEXE18:18_kip_ESAL's:0 FLEXREL:percent:2 FLEXDEV:-:3 RM:psi:0 FLEXPO:-:2 "
                "FLEXPT:-:2 uRM@psi"},
    GoldenTable{"Rigid", "ModulusOfSubgrade",
                "MRSG:psi:1 MRSB:psi:1 SBD:in:2 SGD:ft:2 LS:-:0 K:psi/in:1 uMRSG@psi uMRSB@psi "
                "uSBD@in uK@psi/in"},
    GoldenTable{"Rigid", "Rigid",
                "DEPTH:in:1 RIGE18:18_kip_ESAL's:0 RIGREL:percent:2 RIGDEV:-:3 MR:psi:1 EC:psi:0 "
                "J:-:2 K:psi/in:1 C:-:2 RIGPO:-:2 RIGPT:-:2 uDEPTH@in uMR@psi uEC@psi uK@psi/in "
                "uC@No_Units"},
    GoldenTable{"OvAA", "OvAA",
                "ACACFUTSN:ESN:2 FLEXE18:18_kip_ESAL's:0 ACACREL:percent:2 uACACREL@percent "
                "ACACDEV:-:3 EXISTRM:psi:0 uEXISTRM@psi ACACPO:-:2 ACACPT:-:2 NDTEFFSN:ESN:2 "
                "CONDEFFSN:ESN:2 ACACOLLC:-:3 ACEFFSN=ACACEFFSN:ESN:2 ACACTHICK:in:1 uACACTHICK@in"},
    GoldenTable{"OvAFP", "OvAFP",
                "ACCSFUTSN:ESN:2 FLEXE18:18_kip_ESAL's:0 ACCSREL:percent:2 uACCSREL@percent "
                "ACCSDEV:-:3 EXISTRM=EXISTRM2:psi:0 uEXISTRM@psi ACCSPO:-:2 ACCSPT:-:2 CSPCLT:in:1 "
                "uCSPCLT@in CSPCLC:-:3 CSPCDC:-:2 SUBLT:in:1 uSUBLT@in SUBLC:-:3 SUBDC:-:2 "
                "ACCSEFFSN:ESN:2 ACCSTHICK:in:1 ACCSOLLC:-:3 uACCSTHICK@in"},
    GoldenTable{"OvAP", "OvAP",
                "ACPCFUTD:in:1 uACPCFUTD@in RIGE18:18_kip_ESAL's:0 uRIGE18@18_kip_ESAL's "
                "ACPCREL:percent:2 uACPCREL@percent ACPCDEV:-:3 EXISTMR:psi:1 uEXISTMR@psi "
                "EXISTEC:psi:0 uEXISTEC@psi EXISTJ:-:2 EXISTK:psi/in:1 uEXISTK@psi/in EXISTC:-:2 "
                "ACPCPO:-:2 ACPCPT:-:2 EXISTDEPTH:in:1 uEXISTDEPTH@in ACPCFJC:-:2 ACPCFDUR:-:3 "
                "ACPCFFAT:-:3 ACPCEFFD:in:1 uACPCEFFD@in ACPCOLT:in:1 uACPCOLT@in"},
    GoldenTable{"OvAAP", "OvAAP",
                "ACACPCFUTD:in:1 uACACPCFUTD@in RIGE18:18_kip_ESAL's:0 uRIGE18@18_kip_ESAL's "
                "ACACPCREL:percent:2 uACACPCREL@percent ACACPCDEV:-:3 EXISTMR:psi:1 uEXISTMR@psi "
                "EXISTEC:psi:0 uEXISTEC@psi EXISTJ:-:2 EXISTK:psi/in:1 uEXISTK@psi/in EXISTC:-:2 "
                "ACACPCPO:-:2 ACACPCPT:-:2 EXISTDEPTH:in:1 uEXISTDEPTH@in ACACPCFJC:-:2 "
                "ACACPCFDUR:-:3 ACPCFFAT:-:3 ACACPCEFFD:in:1 uACACPCEFFD@in ACACPCOLT:in:1 "
                "uACACPCOLT@in"},
    GoldenTable{"OvBP", "OvBP",
                "BOLFUTDEPTH:in:1 uBOLFUTDEPTH@in RIGE18:18_kip_ESAL's:0 uRIGE18@18_kip_ESAL's "
                "OLRIGREL:percent:2 uOLRIGREL@percent OLRIGDEV:-:3 EXISTMR:psi:1 uEXISTMR@psi "
                "EXISTEC:psi:0 uEXISTEC@psi EXISTJ:-:2 EXISTK:psi/in:1 uEXISTK@psi/in EXISTC:-:2 "
                "OLFUTPO:-:2 OLFUTPT:-:2 EXISTDEPTH:in:1 uEXISTDEPTH@in BOLFJC:-:2 BOLFDUR:-:3 "
                "BOLFFAT:-:3 BOLEFFDEPTH:in:1 UBOLEFFDEPTH@in BOLDEPTH:in:1 UBOLDEPTH@in"},
    GoldenTable{"OvUP", "OvUP",
                "uBOLFUTDEPTH=UBOLFUTDEPTH:in:1 uUBOLFUTDEPTH@in RIGE18:18_kip_ESAL's:0 "
                "uRIGE18@18_kip_ESAL's OLRIGREL:percent:2 uOLRIGREL@percent OLRIGDEV:-:3 OLMR:psi:1 "
                "uOLMR@psi OLEC:psi:0 uOLEC@psi OLJ:-:2 EXISTK:psi/in:1 uEXISTK@psi/in EXISTC:-:2 "
                "OLFUTPO:-:2 OLFUTPT:-:2 EXISTDEPTH:in:1 uEXISTDEPTH@in UBOLFJCU:-:2 "
                "UBOLEFFD=UBOLEFFDEPTH:in:1 uUBOLEFFD@in UBOLDEPT=UBOLDEPTH:in:1 uUBOLDEPT@in"},
    GoldenTable{"OvWT", "OvWT",
                "WTDEPTH:in:1 uWTDEPTH@in RIGE18:18_kip_ESAL's:0 uRIGE18@18_kip_ESAL's "
                "OLRIGREL:percent:2 uOLRIGREL@percent OLRIGDEV:-:3 OLMR:psi:1 uOLMR@psi OLEC:psi:0 "
                "uOLEC@psi OLJ:-:2 EXISTK:psi/in:1 uEXISTK@psi/in EXISTC:-:2 OLFUTPO:-:2 OLFUTPT:-:2"},
    GoldenTable{"OvAA", "ModulusOfSubgrade",
                "MRSG:psi:1 uMRSG@psi MRSB:psi:1 uMRSB@psi SBD:in:2 uSBD@in SGD:ft:2 uSGD@ft LS:-:0 "
                "K:psi/in:1 uK@psi/in"},
    GoldenTable{"OvAA", "OverlayAdjFactor",
                "APDETJTS:-:0 APDETCRKS:-:0 APDETPNCH:-:0 APDETEXP:-:0 APDETTOT=ACACPCFDUR:-:3 "
                "APBOLFJC=ACPCFFAT:-:3"},
    GoldenTable{"Factors", "TrTr",
                "TrInADTT:-:0 TrInADT:-:0 TrInPerTruck:percent:1 TrInRESAL:-:3 TrInFESAL:-:3 "
                "RIGE18:18_kip_ESAL's:0 FLEXE18:18_kip_ESAL's:0"},
    GoldenTable{"Factors", "TrFa",
                "TRAFFICDEPTH=TrafficDEPTH:in:1 uTRAFFICDEPTH@in TRAFFICSN=TrafficSN:ESN:2 PT:-:2 "
                "Life:years:0 GrowthRate:percent:2"},
    GoldenTable{"Vehicles", "TrVe",
                "AW51:kips:1 AW52:kips:1 AW53:kips:1 AW54:kips:1 AW55:kips:1 AW56:kips:1 AW57:kips:1 "
                "AW58:kips:1 AW59:kips:1 AW60:kips:1 AW61:kips:1 AW62:kips:1 AW63:kips:1 AW64:kips:1 "
                "AW65:kips:1 AW66:kips:1 AW67:kips:1 AW68:kips:1 AW69:kips:1 AW70:kips:1 NA53:-:1 "
                "NA56:-:1 NA59:-:1 NA62:-:1 NA65:-:1 NA70:-:1 RIGE18:18_kip_ESAL's:0 "
                "FLEXE18:18_kip_ESAL's:0"},
    GoldenTable{"Costs", "CostAnalysis",
                "InterestRate:percent:2 InflationRate:percent:2 DiscountRate:percent:2 "
                "AnalysisPeriodA:years:0 AnalysisPeriodB:years:0"},
};

struct MetricUnit {
    const char* name;
    double factor;
};

/// The metric partners of the English units.
const std::map<std::string, MetricUnit>& MetricUnits() {
    constexpr double kPascalsPerPsi = 6894.757;
    constexpr double kMetresPerInch = 0.0254;
    constexpr double kMega = 1e6;
    static const std::map<std::string, MetricUnit> units = {
        {"in", {"mm", 25.4}},
        {"ft", {"m", 0.3048}},
        {"psi", {"MPa", kPascalsPerPsi / kMega}},
        {"psi/in", {"MPa/m", kPascalsPerPsi / kMetresPerInch / kMega}},
        {"kips", {"kN", 4.4482216}},
        {"ESN", {"MSN", 25.4}},
        {"18 kip ESAL's", {"80kN ESAL's", 1.0}},
    };
    return units;
}

struct Column {
    std::string name;
    std::string variable;  // empty for a unit label
    std::string unit;
    int decimals = 0;
};

std::string Blanks(std::string text) {
    for (char& c : text) c = c == '_' ? ' ' : c;
    return text == "-" ? "" : text;
}

Column ParseColumn(const std::string& word) {
    if (const std::size_t at = word.find('@'); at != std::string::npos) {
        return {word.substr(0, at), "", Blanks(word.substr(at + 1)), 0};
    }
    const std::size_t first = word.find(':');
    const std::size_t second = word.find(':', first + 1);
    const std::string both = word.substr(0, first);
    const std::size_t equals = both.find('=');
    return {both.substr(0, equals), equals == std::string::npos ? both : both.substr(equals + 1),
            Blanks(word.substr(first + 1, second - first - 1)), std::stoi(word.substr(second + 1))};
}

std::vector<Column> ColumnsOf(const GoldenTable& table) {
    std::istringstream words(table.columns);
    std::vector<Column> columns;
    for (std::string word; words >> word;) columns.push_back(ParseColumn(word));
    return columns;
}

double Rounded(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

class GoldenRowsTest : public StagingTest {
  protected:
    /// A number of its own in each variable, with more digits than any screen shows.
    void FillProject() {
        double number = 1.2345678;
        for (const GoldenTable& table : kTables) {
            for (const Column& column : ColumnsOf(table)) {
                if (column.variable.empty() || stored_.contains(column.variable)) continue;
                number += 17.1731957;
                stored_[column.variable] = number;
                Set(column.variable, number);
            }
        }
    }

    static void StageBy(Stager& stager, const std::string& routine) {
        if (routine == "Flexible") {
            StageFlexibleDesign(stager);
        } else if (routine == "Rigid") {
            StageRigidDesign(stager);
        } else if (routine == "Factors") {
            StageTrafficFactors(stager);
        } else if (routine == "Vehicles") {
            StageVehicleTraffic(stager);
        } else if (routine == "Costs") {
            StageCostAnalysis(stager);
        } else {
            StageOverlayCommon(stager, routine);
        }
    }

    [[nodiscard]] std::string UnitName(const std::string& english) const {
        const auto unit = MetricUnits().find(english);
        return metric_ && unit != MetricUnits().end() ? unit->second.name : english;
    }

    [[nodiscard]] double Expected(const Column& column) const {
        const auto unit = MetricUnits().find(column.unit);
        const double factor = metric_ && unit != MetricUnits().end() ? unit->second.factor : 1.0;
        return Rounded(stored_.at(column.variable) * factor, column.decimals);
    }

    void Check(const GoldenTable& table) {
        SCOPED_TRACE(table.table);
        const StagedTables tables = Stage([&](Stager& stager) { StageBy(stager, table.routine); });
        std::size_t place = 0;
        for (const Column& column : ColumnsOf(table)) {
            SCOPED_TRACE(column.name);
            const auto found = tables.Find(table.table)->Find(column.name);
            ASSERT_TRUE(found);
            // The rigid report has the columns of its k-value in an order of its own.
            if (std::string(table.routine) != "Rigid") {
                EXPECT_GE(*found, place) << "out of order";
            }
            place = *found;
            if (column.variable.empty()) {
                EXPECT_EQ(Text(tables, table.table, column.name), UnitName(column.unit));
            } else {
                EXPECT_DOUBLE_EQ(Number(tables, table.table, column.name), Expected(column));
            }
        }
    }

    void CheckAll(bool metric) {
        metric_ = metric;
        Run().ChooseUnits(metric);
        for (const GoldenTable& table : kTables) Check(table);
        EXPECT_EQ(Messages(), std::vector<std::string>{});
    }

  private:
    std::map<std::string, double> stored_;
    bool metric_ = false;
};

TEST_F(GoldenRowsTest, InEnglishUnits) {
    FillProject();
    CheckAll(false);
}

TEST_F(GoldenRowsTest, InMetricUnits) {
    FillProject();
    CheckAll(true);
}

}  // namespace
}  // namespace kelvor::test
