#include "sections/section_charts.h"

#include "forms/form.h"
#include "forms/form_events.h"
#include "forms/section_button.h"
#include "forms/side_screen.h"
#include "platform/translation.h"
#include "sections/closing_button.h"
#include "sections/section_sheet.h"

namespace kelvor {

namespace {

constexpr const char* kBothDesigns = "DeS";
constexpr const char* kDiagramButton = "cmdbDiagram";
constexpr double kChartLetters = 100.0;
constexpr double kPairLetters = 68.0;  // of each of two charts side by side

void DrawSection(ScreenEvent& event) {
    const SectionMember* member = FindSectionMember(ScreenDrawnBy(event.form.name()));
    event.form.Get("Chart1").chart = MakeSectionSheet(event.context.units, *member);
}

void DrawPair(ScreenEvent& event) {
    SectionPair pair = MakeSectionPair(event.context.units);
    event.form.Get("Chart1").chart = std::move(pair.flexible);
    event.form.Get("Chart2").chart = std::move(pair.rigid);
}

/// The label drawing of the same screen: `CSec2` for a table of layers, else `CSec`.
void OpenDiagram(ScreenEvent& event) {
    const std::string screen = ScreenDrawnBy(event.form.name());
    const bool hasTable = screen == "DeF" || screen == kBothDesigns || screen == "OvAA";
    FormEvents(event.context).Open({.form = hasTable ? "CSec2" : "CSec"});
}

std::string ChartName(std::string_view screen) { return std::string(screen) + kSectionSuffix; }

FormType SectionChartForm(std::string_view screen, std::string caption, LayoutElement layout,
                          void (*draw)(ScreenEvent&)) {
    FormType type;
    type.name = ChartName(screen);
    type.caption = std::move(caption);
    type.layout = std::move(layout);
    type.foot = {{kDiagramButton, "&Diagram", Translated("Show the layers as a stack of boxes")},
                 ClosingButton()};
    type.helpPage = kSectionHelpPage;
    for (const FormEvent event : {FormEvent::Load, FormEvent::Activate, FormEvent::UnitsSwitched}) {
        type.handlers.push_back({event, "", HandlerOrder::After, draw});
    }
    type.handlers.push_back({FormEvent::Click, kDiagramButton, HandlerOrder::Instead, OpenDiagram});
    type.handlers.push_back(ClosingByButton());
    return type;
}

ChartData EmptySection() {
    ChartData sheet;
    sheet.kind = ChartKind::Section;
    return sheet;
}

FormType MemberChartForm(const SectionMember& member) {
    return SectionChartForm(member.screen, member.title, Chart("Chart1", EmptySection(), kChartLetters),
                            DrawSection);
}

FormType PairChartForm() {
    return SectionChartForm(kBothDesigns, Translated("Flexible and Rigid Design Cross Sections"),
                            Columns({Chart("Chart1", EmptySection(), kPairLetters),
                                     Chart("Chart2", EmptySection(), kPairLetters)}),
                            DrawPair);
}

}  // namespace

std::string ScreenDrawnBy(const std::string& form) {
    const std::string_view suffix = kSectionSuffix;
    if (!form.ends_with(suffix)) return {};
    std::string screen = form.substr(0, form.size() - suffix.size());
    return screen == kBothDesigns || FindSectionMember(screen) != nullptr ? screen : std::string();
}

std::vector<FormDeclaration> SectionChartForms() {
    std::vector<FormDeclaration> forms;
    for (const SectionMember& member : SectionMembers()) {
        forms.push_back({ChartName(member.screen), [&member] { return MemberChartForm(member); }});
    }
    forms.push_back({ChartName(kBothDesigns), PairChartForm});
    return forms;
}

}  // namespace kelvor
