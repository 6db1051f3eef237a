#include "ndt/screens/composite_deflections.h"

#include "forms/form.h"
#include "ndt/screens/left_out_tests.h"
#include "ndt/screens/test_notes.h"
#include "ndt/screens/test_rows.h"
#include "ndt/screens/test_summary.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr int kTestsShown = 7;
constexpr double kLetters = 8.2;
constexpr double kUsualPoisson = 0.15;
constexpr double kUnbonded = 0.0;

std::vector<ResultColumn> Results() {
    return {{"BACKLC", "AVGBACKLC", "l", nullptr},
            {"STATKC", "AVGSTATKC", ToTranslate("Static k"), "ChartK"},
            {"NDTEC", "AVGNDTEC", "Slab Ec", "ChartEc"}};
}

void Activated(ScreenEvent& event) {
    SetIfBlank(event.context, event.form, "Poisson", kUsualPoisson);
    SetIfBlank(event.context, event.form, "BOND", kUnbonded);
    RecalcTests(event);
}

void Show(ScreenEvent& event) {
    event.form.SetText(kSoundnessLine, AreaSummary(event.context, event.form, "AREAC"));
    ShowResults(event.context, event.form, Results());
}

LayoutElement Tests() {
    return Grid("Grid",
                {{.variable = "NDTLOADC", .letters = kLetters},
                 {.variable = "D0C", .letters = kLetters},
                 {.variable = "D12C", .letters = kLetters},
                 {.variable = "D24C", .letters = kLetters},
                 {.variable = "D36C", .letters = kLetters},
                 {.variable = "AREAC", .letters = kLetters},
                 {.variable = "BACKLC", .letters = kLetters},
                 {.variable = "DYNKC", .letters = kLetters},
                 {.variable = "STATKC", .letters = kLetters},
                 {.variable = "NDTEC", .letters = kLetters}},
                kTestsShown, {.note = AreaNote, .rowsMoved = MoveMarks});
}

}  // namespace

FormType CompositeDeflectionsForm() {
    FormType type;
    type.name = "ReDfC";
    type.caption = "Composite Pavement Deflection Information";
    type.rowName = {ToTranslate("test"), ToTranslate("tests")};
    type.layout = Rows({
        Columns({InputsOfAllTests({{"NDTEAC"}, {"ACACPCACT"}, {"BOND"}}),
                 InputsOfAllTests({{"Radius"}, {"Poisson"}, {"EXISTDEPTH"}})}),
        Tests(),
        Columns({LeaveOutBox(), Statement(kSoundnessLine, 1, kSoundnessLetters),
                 Statement(kOutdatedLine, 2, kOutdatedLetters)}),
        SpreadAndCharts(Results()),
        Hidden({kOutdatedInputs}),
        LeaveOutState(),
    });
    // No input of all tests works them out anew when it is left: it counts from the next activation on, or
    // the next edit of a row.
    type.handlers = TellWhenOutdated({"NDTEAC", "ACACPCACT", "BOND", "Radius", "Poisson", "EXISTDEPTH"});
    type.handlers.push_back({FormEvent::Activate, "", HandlerOrder::After, Activated});
    type.handlers.push_back({FormEvent::RowDeleted, "", HandlerOrder::Instead, RecalcTests});
    Append(type.handlers, LeaveOutHandlers());
    Append(type.handlers, AfterResults(Show));
    return type;
}

}  // namespace kelvor
