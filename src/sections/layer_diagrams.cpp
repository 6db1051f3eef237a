#include "sections/layer_diagrams.h"

#include "forms/form.h"
#include "forms/screen_context.h"
#include "sections/closing_button.h"
#include "sections/diagram_layers.h"
#include "sections/section_charts.h"
#include "sections/shown_thickness.h"

namespace kelvor {

namespace {

constexpr const char* kScreenBox = "CSType";
constexpr const char* kVariableBox = "CSVarName";
constexpr const char* kTotalBox = "TotalThickness";
constexpr const char* kTopBox = "CSLayer1";
constexpr const char* kTopLabel = "LabCSLayer1";
constexpr const char* kTopLabelCopy = "LabCSLayer11";
constexpr double kTotalLetters = 34.0;

const char* UnitOf(const Units& units) { return units.bMetric() ? "mm" : "in"; }

/// The drawn screen is the one in front, or the one whose drawing is in front.
void NoteScreen(ScreenEvent& event) {
    const Form* front = event.context.forms.CurrentForm;
    if (front == nullptr) return;
    std::string screen = front->TextOf(kScreenBox);
    if (screen.empty()) screen = ScreenDrawnBy(front->name());
    event.form.SetText(kScreenBox, screen.empty() ? front->name() : screen);
}

void DrawLayeredSection(ScreenEvent& event) {
    const Units& units = event.context.units;
    const std::string screen = event.form.TextOf(kScreenBox);
    const DiagramStyle style{units.bMetric() ? 0.15 : 3.0, UnitOf(units)};
    const Real total = StackDiagram(event.form, LayersOfScreen(units, screen), style);
    event.form.SetText("LabSubgrade", GroundOfScreen(screen));
    event.form.SetText(kTotalBox, "Total Thickness  - " + DiagramTotal(total, style.unit));
}

DiagramStyle ListStyle(const Units& units, const std::string& screen) {
    const bool isDesign = screen == "DeF" || screen == "DeS";
    if (units.bMetric()) return {isDesign ? 0.1 : 0.15, UnitOf(units)};
    return {isDesign ? 2.0 : 4.0, UnitOf(units)};
}

/// The box of the top layer alone: where the list has the top layer among its rows, it is that one's copy,
/// and hidden.
void FillTopLayer(Form& form, const LayerList& list) {
    form.SetText(kTopLabelCopy, list.top);
    form.SetText(kTopLabel, list.top);
    if (!list.layers.empty() && list.layers.front().box == kTopBox) return;
    Control& copy = form.Get(kTopBox);
    copy.visible = false;
    form.Get(kTopLabel).visible = false;
    for (const DiagramLayer& layer : list.layers) {
        if (layer.thickness <= 0.0) continue;
        const Control& top = form.Get(layer.box);
        copy.text = top.text;
        copy.stacked = top.stacked;
        return;
    }
    copy.text.clear();
    copy.stacked = StackPlace{};
}

void DrawLayerList(ScreenEvent& event) {
    const Units& units = event.context.units;
    const std::string screen = event.form.TextOf(kScreenBox);
    const DiagramStyle style = ListStyle(units, screen);
    const LayerList list = ListOfScreen(units, screen);
    const Real total = StackDiagram(event.form, list.layers, style);
    FillTopLayer(event.form, list);
    event.form.SetText(kVariableBox, list.variable);
    event.form.SetText(kTotalBox, "Total Thickness - " + DiagramTotal(total, style.unit));
}

LayoutElement TotalLine() {
    return Fields({{.label = "Total Thickness", .locked = true, .box = kTotalBox, .letters = kTotalLetters}});
}

FormType DiagramForm(const char* name, LayoutElement stack, std::vector<std::string> hidden,
                     void (*draw)(ScreenEvent&)) {
    FormType type;
    type.name = name;
    type.caption = "Cross Section";
    type.layout = Rows({std::move(stack), TotalLine(), Hidden(std::move(hidden))});
    type.foot = {ClosingButton()};
    type.helpPage = kSectionHelpPage;
    type.beginsAnew = true;
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, NoteScreen},
                     {FormEvent::Activate, "", HandlerOrder::After, draw},
                     {FormEvent::UnitsSwitched, "", HandlerOrder::After, draw},
                     ClosingByButton()};
    return type;
}

}  // namespace

FormType LayerDiagramForm() {
    return DiagramForm("CSec",
                       Stack({{"CSLayer1", "LabCSLayer1", {}},
                              {"CSLayer2", "LabCSLayer2", {}},
                              {"CSLayer3", "LabCSLayer3", {}},
                              {"ExtraLayer", "LabExtraLayer", "Extra Layer"}},
                             "LabSubgrade", "Subgrade"),
                       {kScreenBox}, DrawLayeredSection);
}

FormType LayerListForm() {
    std::vector<layout::StackedBox> boxes = {{kTopBox, kTopLabel, {}}};
    for (int layer = 1; layer <= kDrawnLayers; ++layer) {
        const std::string member = "(" + std::to_string(layer) + ")";
        boxes.push_back({"CSLayer" + member, "LabCSLayer" + member, {}});
    }
    return DiagramForm("CSec2", Stack(std::move(boxes), "LabSubgrade", "Subgrade"),
                       {kScreenBox, kVariableBox, kTopLabelCopy}, DrawLayerList);
}

}  // namespace kelvor
