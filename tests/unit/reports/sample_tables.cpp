#include "sample_tables.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "platform/number_picture.h"

namespace kelvor::test {

namespace {

/// A staging table: its rows, its columns of numbers, and those of texts and unit labels.
struct TableSpec {
    const char* name;
    std::size_t rows;
    const char* numbers;
    const char* texts;
};

constexpr const char* kAxleLoads =
    "AW51 AW52 AW53 AW54 AW55 AW56 AW57 AW58 AW59 AW60 AW61 AW62 AW63 AW64 AW65 AW66 AW67 AW68 AW69 AW70 "
    "NA53 NA56 NA59 NA62 NA65 NA70 RIGE18 FLEXE18";
constexpr const char* kAxleTypes =
    "AT51 AT52 AT53 AT54 AT55 AT56 AT57 AT58 AT59 AT60 AT61 AT62 AT63 AT64 AT65 AT66 AT67 AT68 AT69 AT70";
constexpr const char* kCostColumns = "MaintQuantity MaintUnitCost MAintItemCost PWCostM Number";
constexpr const char* kCostTexts = "PavDesc MaintYear MaintItem";

const std::array kTables = {
    TableSpec{"GenInfo", 1, "", "Agency Company Contractor JobNumber Location1 Engineer"},
    TableSpec{"FlexPavementDesign", 1, "SN FLEXE18 FLEXREL FLEXDEV RM FLEXPO FLEXPT", "uRM"},
    TableSpec{"LayerThickness", 6, "LDLayerNumber LDLayerCoef LDDrainCoef LDLayerThick SN LDAdditThickness",
              "LDLayerMat"},
    TableSpec{"ModulusOfSubgrade", 1, "MRSG MRSB SBD SGD LS K", "uMRSG uMRSB uSBD uSGD uK"},
    TableSpec{"Rigid", 1, "DEPTH RIGE18 RIGREL RIGDEV MR EC J K C RIGPO RIGPT", "uDEPTH uMR uEC uK uC"},
    TableSpec{"OverlayAdjFactor", 1, "APDETJTS APDETCRKS APDETPNCH APDETEXP APDETTOT APBOLFJC",
              "DurabilityAdjFactor FatigueAdjFactor"},
    TableSpec{"OvAA", 1,
              "ACACFUTSN FLEXE18 ACACREL ACACDEV EXISTRM ACACPO ACACPT NDTEFFSN CONDEFFSN ACACOLLC ACEFFSN "
              "ACACTHICK",
              "uACACREL uEXISTRM uACACTHICK"},
    TableSpec{
        "OvAFP", 1,
        "ACCSFUTSN FLEXE18 ACCSREL ACCSDEV EXISTRM ACCSPO ACCSPT CSPCLT CSPCLC CSPCDC SUBLT SUBLC SUBDC "
        "ACCSEFFSN ACCSTHICK ACCSOLLC",
        "uACCSREL uEXISTRM uCSPCLT uSUBLT uACCSTHICK"},
    TableSpec{"OvAP", 1,
              "ACPCFUTD RIGE18 ACPCREL ACPCDEV EXISTMR EXISTEC EXISTJ EXISTK EXISTC ACPCPO ACPCPT EXISTDEPTH "
              "ACPCFJC ACPCFDUR ACPCFFAT ACPCEFFD ACPCOLT",
              "uACPCFUTD uRIGE18 uACPCREL uEXISTMR uEXISTEC uEXISTK uEXISTDEPTH uACPCEFFD uACPCOLT"},
    TableSpec{"OvAAP", 1,
              "ACACPCFUTD RIGE18 ACACPCREL ACACPCDEV EXISTMR EXISTEC EXISTJ EXISTK EXISTC ACACPCPO ACACPCPT "
              "EXISTDEPTH ACACPCFJC ACACPCFDUR ACPCFFAT ACACPCEFFD ACACPCOLT",
              "uACACPCFUTD uRIGE18 uACACPCREL uEXISTMR uEXISTEC uEXISTK uEXISTDEPTH uACACPCEFFD uACACPCOLT"},
    TableSpec{"OvBP", 1,
              "BOLFUTDEPTH RIGE18 OLRIGREL OLRIGDEV EXISTMR EXISTEC EXISTJ EXISTK EXISTC OLFUTPO OLFUTPT "
              "EXISTDEPTH BOLFJC BOLFDUR BOLFFAT BOLEFFDEPTH BOLDEPTH",
              "uBOLFUTDEPTH uRIGE18 uOLRIGREL uEXISTMR uEXISTEC uEXISTK uEXISTDEPTH UBOLEFFDEPTH UBOLDEPTH"},
    TableSpec{"OvUP", 1,
              "uBOLFUTDEPTH RIGE18 OLRIGREL OLRIGDEV OLMR OLEC OLJ EXISTK EXISTC OLFUTPO OLFUTPT EXISTDEPTH "
              "UBOLFJCU UBOLEFFD UBOLDEPT",
              "uUBOLFUTDEPTH uRIGE18 uOLRIGREL uOLMR uOLEC uEXISTK uEXISTDEPTH uUBOLEFFD uUBOLDEPT"},
    TableSpec{"OvWT", 1, "WTDEPTH RIGE18 OLRIGREL OLRIGDEV OLMR OLEC OLJ EXISTK EXISTC OLFUTPO OLFUTPT",
              "uWTDEPTH uRIGE18 uOLRIGREL uOLMR uOLEC uEXISTK"},
    TableSpec{"TrFa", 1, "TRAFFICDEPTH TRAFFICSN PT Life GrowthRate",
              "uTRAFFICDEPTH TrPer TRLANDIS TRDIRDIS trFacType"},
    TableSpec{"TrTr", 1, "TrInADTT TrInADT TrInPerTruck TrInRESAL TrInFESAL RIGE18 FLEXE18", ""},
    TableSpec{"TrVe", 1, kAxleLoads, kAxleTypes},
    TableSpec{"TrAx", 49, "AxleWeight NumOfAxles RE18 FE18 RIGE18 FLEXE18", "AxleType"},
    TableSpec{"CostAnalysis", 1, "InterestRate InflationRate DiscountRate AnalysisPeriodA AnalysisPeriodB",
              ""},
    TableSpec{"PavementA", 11, kCostColumns, kCostTexts},
    TableSpec{"PavementB", 11, kCostColumns, kCostTexts},
    TableSpec{"LCCAnalysis", 1,
              "InitialCostA InitialCostB RehabCostA RehabCostB TodaysCostA TodaysCostB InflatedCostA "
              "InflatedCostB DiscountCostA DiscountCostB EUACA EUACB",
              ""},
};

/// Columns whose value stands on every row, as staging repeats it.
const std::vector<std::string> kRepeated = {"RIGE18", "FLEXE18", "PavDesc"};

std::vector<std::string> Words(const std::string& text) {
    std::istringstream words(text);
    std::vector<std::string> all;
    for (std::string word; words >> word;) all.push_back(word);
    return all;
}

void Add(StagedTable& table, const std::string& name, bool isNumber, int& counter) {
    table.columns.push_back({name, isNumber ? "#,##0.0" : "", isNumber ? "unit" : ""});
    const bool repeats = std::find(kRepeated.begin(), kRepeated.end(), name) != kRepeated.end();
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        if (row == 0 || !repeats) ++counter;
        if (isNumber) {
            table.rows[row].emplace_back(1000.5 + counter);
        } else {
            table.rows[row].emplace_back("word" + std::to_string(counter) + "w");
        }
    }
}

SampleReport Overlay(const std::string& name, std::vector<std::string> without) {
    return {
        name,
        {{"GenInfo", {}}, {"ModulusOfSubgrade", {}}, {"OverlayAdjFactor", std::move(without)}, {name, {}}},
        true};
}

const std::vector<std::string> kBoth = {"APDETTOT", "DurabilityAdjFactor", "APBOLFJC", "FatigueAdjFactor"};

}  // namespace

StagedTables SampleTables() {
    StagedTables all;
    int counter = 0;
    for (const TableSpec& spec : kTables) {
        StagedTable table{spec.name, {}, std::vector<std::vector<StagedValue>>(spec.rows)};
        for (const std::string& name : Words(spec.numbers)) Add(table, name, true, counter);
        for (const std::string& name : Words(spec.texts)) Add(table, name, false, counter);
        all.tables.push_back(std::move(table));
    }
    return all;
}

const std::vector<SampleReport>& SampleReports() {
    static const std::vector<SampleReport> reports = {
        {"DeF", {{"GenInfo", {}}, {"FlexPavementDesign", {}}, {"LayerThickness", {}}}, true},
        {"DeR", {{"GenInfo", {}}, {"ModulusOfSubgrade", {"uSGD"}}, {"Rigid", {}}}, true},
        Overlay("OvBP", kBoth),
        Overlay("OvUP", kBoth),
        {"OvUP_Part", {{"GenInfo", {}}, {"OvUP", {}}}, true},
        Overlay("OvWT", kBoth),
        Overlay("OvAFP", kBoth),
        Overlay("OvAA", kBoth),
        Overlay("OvAP", {"APDETTOT", "DurabilityAdjFactor"}),
        Overlay("OvAAP", {"APBOLFJC", "FatigueAdjFactor"}),
        {"TrAx", {{"GenInfo", {}}, {"TrFa", {}}, {"TrAx", {}}}},
        {"TrVe", {{"GenInfo", {}}, {"TrFa", {}}, {"TrVe", {}}}},
        {"TrTr", {{"GenInfo", {}}, {"TrFa", {}}, {"TrTr", {}}}},
        {"LCA1", {{"GenInfo", {}}, {"CostAnalysis", {}}, {"PavementA", {}}, {"LCCAnalysis", {}}}},
        {"LCA2", {{"GenInfo", {}}, {"CostAnalysis", {}}, {"PavementB", {}}, {"LCCAnalysis", {}}}},
    };
    return reports;
}

std::vector<std::string> ShownCells(const StagedTables& tables, const SampleReport& report) {
    std::vector<std::string> cells;
    for (const ShownTable& shown : report.tables) {
        const StagedTable& table = *tables.Find(shown.name);
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            const std::string& name = table.columns[column].name;
            if (std::find(shown.without.begin(), shown.without.end(), name) != shown.without.end()) continue;
            for (const auto& row : table.rows) {
                const auto* number = std::get_if<double>(&row[column]);
                cells.push_back(number == nullptr ? std::get<std::string>(row[column])
                                                  : FormatNumber(*number, table.columns[column].picture));
            }
        }
    }
    return cells;
}

ReportDrawing SampleDrawing() {
    ReportDrawing drawing;
    drawing.scene = {.width = 480.0, .height = 260.0, .title = "A slab"};
    drawing.scene.shapes = {shape::Rectangle{{20.0, 60.0}, 200.0, 90.0, "#C8CCD0", {"#000000", 0.5}},
                            shape::Text{.place = {230.0, 105.0}, .text = "PCC Thickness 9.5 in"}};
    drawing.words = "A slab. From the top: PCC Thickness 9.5 in; Subgrade.";
    return drawing;
}

ReportRequest RequestFor(const std::string& name, StagedTables tables) {
    ReportRequest request;
    request.layout = Path(KELVOR_SOURCE_FOLDER) / "data/reports" / ("Rep_" + name + ".vsr");
    request.name = name;
    request.title = "Report " + name;
    request.tables = std::move(tables);
    request.texts = {{"Check", "In balance: checked."},
                     {"Governs", "The slab governs."},
                     {"Project", "route 7.kvr"},
                     {"DateTime", "2 May 2026, 10:15"}};
    request.drawings = {{"Section", SampleDrawing()}};
    return request;
}

int CountOf(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

std::string Squeezed(const std::string& text) {
    std::string squeezed;
    std::copy_if(text.begin(), text.end(), std::back_inserter(squeezed), [](char letter) {
        return letter != ' ' && letter != '\n' && letter != '\r' && letter != '\f';
    });
    return squeezed;
}

}  // namespace kelvor::test
