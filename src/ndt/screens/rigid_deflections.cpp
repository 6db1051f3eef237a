#include "ndt/screens/rigid_deflections.h"

#include "forms/form.h"
#include "ndt/screens/left_out_tests.h"
#include "ndt/screens/test_notes.h"
#include "ndt/screens/test_rows.h"
#include "ndt/screens/test_summary.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr int kTestsShown = 8;
constexpr double kLetters = 8.2;
constexpr double kUsualPoisson = 0.15;

std::vector<ResultColumn> Results() {
    return {{"BACKL", "AVGBACKL", "l", nullptr},
            {"STATK", "AVGSTATK", ToTranslate("Static k"), "ChartK"},
            {"NDTE", "AVGNDTE", "Slab Ec", "ChartEc"}};
}

void Activated(ScreenEvent& event) {
    SetIfBlank(event.context, event.form, "Poisson", kUsualPoisson);
    RecalcTests(event);
}

void Show(ScreenEvent& event) {
    event.form.SetText(kSoundnessLine, AreaSummary(event.context, event.form, "AREA"));
    ShowResults(event.context, event.form, Results());
}

LayoutElement Tests() {
    return Grid("Grid",
                {{.variable = "NDTLOAD", .letters = kLetters},
                 {.variable = "D0", .letters = kLetters},
                 {.variable = "D12", .letters = kLetters},
                 {.variable = "D24", .letters = kLetters},
                 {.variable = "D36", .letters = kLetters},
                 {.variable = "AREA", .letters = kLetters},
                 {.variable = "BACKL", .letters = kLetters},
                 {.variable = "DYNK", .letters = kLetters},
                 {.variable = "STATK", .letters = kLetters},
                 {.variable = "NDTE", .letters = kLetters}},
                kTestsShown, {.note = AreaNote, .rowsMoved = MoveMarks});
}

}  // namespace

FormType RigidDeflectionsForm() {
    FormType type;
    type.name = "ReDfR";
    type.caption = "Rigid Pavement Deflection Information";
    type.rowName = {ToTranslate("test"), ToTranslate("tests")};
    type.layout = Rows({
        Columns({InputsOfAllTests({{"Radius"}, {"Poisson"}}), Rows({InputsOfAllTests({{"EXISTDEPTH"}})})}),
        Tests(),
        Columns({LeaveOutBox(), Statement(kSoundnessLine, 1, kSoundnessLetters),
                 Statement(kOutdatedLine, 2, kOutdatedLetters)}),
        SpreadAndCharts(Results()),
        Hidden({kOutdatedInputs}),
        LeaveOutState(),
    });
    // The slab thickness works no test out anew: it counts from the next activation on, or the next edit of a
    // row.
    type.handlers = RecalcWhenLeft({"Radius", "Poisson"});
    Append(type.handlers, TellWhenOutdated({"EXISTDEPTH"}, {"Radius", "Poisson"}));
    type.handlers.push_back({FormEvent::Activate, "", HandlerOrder::After, Activated});
    type.handlers.push_back({FormEvent::RowDeleted, "", HandlerOrder::Instead, RecalcTests});
    Append(type.handlers, LeaveOutHandlers());
    Append(type.handlers, AfterResults(Show));
    return type;
}

}  // namespace kelvor
