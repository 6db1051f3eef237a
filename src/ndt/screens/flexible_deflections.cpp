#include "ndt/screens/flexible_deflections.h"

#include "forms/form.h"
#include "forms/screen_context.h"
#include "ndt/calc/pavement_thickness.h"
#include "ndt/screens/left_out_tests.h"
#include "ndt/screens/test_notes.h"
#include "ndt/screens/test_rows.h"
#include "ndt/screens/test_summary.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr int kTestsShown = 8;
constexpr double kMeasuredLetters = 9.9;
constexpr double kRemarkLetters = 9.8;
constexpr double kResultLetters = 20.2;

std::vector<ResultColumn> Results() {
    return {{"NDTRM", "AVGNDTRM", "Subgrade Mr", "ChartMr"},
            {"NDTEFFEP", "AVGNDTEFFEP", ToTranslate("Pavement EP"), "ChartEp"}};
}

/// The layers may have changed meanwhile, and with them every effective modulus.
void Activated(ScreenEvent& event) {
    StorePavementThickness(event.context.calc);
    RecalcTests(event);
}

void Show(ScreenEvent& event) {
    event.form.SetText(kSoundnessLine, SearchSummary(event.context, event.form));
    ShowResults(event.context, event.form, Results());
}

LayoutElement Tests() {
    return Grid("Grid",
                {{.variable = "NDTLOADF", .letters = kMeasuredLetters},
                 {.variable = "D0F", .letters = kMeasuredLetters},
                 {.variable = "DR", .letters = kMeasuredLetters},
                 {.variable = "Msg", .letters = kRemarkLetters},
                 {.variable = "NDTRM", .letters = kResultLetters},
                 {.variable = "NDTEFFEP", .letters = kResultLetters}},
                kTestsShown, {.note = SearchNote, .rowsMoved = MoveMarks});
}

}  // namespace

FormType FlexibleDeflectionsForm() {
    FormType type;
    type.name = "ReDfF";
    type.caption = "Flexible Pavement Deflection Information and Backcalculation";
    type.rowName = {ToTranslate("test"), ToTranslate("tests")};
    type.layout = Rows({
        Columns({InputsOfAllTests({{"NDTR"}, {"NDTRMC"}}),
                 InputsOfAllTests({{"Radius"}, {.variable = "NDTEFFD", .computed = true}})}),
        Tests(),
        Columns({LeaveOutBox(), Statement(kSoundnessLine, 2, kOutdatedLetters)}),
        SpreadAndCharts(Results()),
        LeaveOutState(),
    });
    type.handlers = RecalcWhenLeft({"NDTR", "NDTRMC", "Radius"});
    type.handlers.push_back({FormEvent::Activate, "", HandlerOrder::After, Activated});
    type.handlers.push_back({FormEvent::RowDeleted, "", HandlerOrder::Instead, RecalcTests});
    Append(type.handlers, LeaveOutHandlers());
    Append(type.handlers, AfterResults(Show));
    return type;
}

}  // namespace kelvor
