#include "reports/run/report_sections.h"

#include <algorithm>

#include "drawing/section_scene.h"
#include "platform/translation.h"
#include "sections/section_sheet.h"

namespace kelvor {

namespace {

/// Between the margins of either paper, and below the numbers of a design.
constexpr DrawingSize kSize{480.0, 220.0};

bool IsHidden(const ChartRow& row) { return row.label.find_first_not_of(' ') == std::string::npos; }

/// True if there is more than the ground and what separates layers.
bool HoldsLayers(const ChartData& sheet) {
    for (std::size_t i = 0; i < sheet.rows.size(); ++i) {
        const Material material = sheet.series[i].material;
        const bool isFixed = material == Material::Subgrade || material == Material::Interlayer;
        if (!isFixed && !IsHidden(sheet.rows[i])) return true;
    }
    return false;
}

/// A text of several lines in one.
std::string InOneLine(const std::string& lines, const char* between) {
    std::string line;
    for (const char letter : lines) {
        if (letter != '\n') {
            line += letter;
            continue;
        }
        while (line.ends_with(' ')) line.pop_back();
        line += between;
    }
    return line;
}

/// The layers from the top to the ground, in words.
std::string WordsOf(const ChartData& sheet) {
    std::string words = InOneLine(sheet.title, ". ") + ". From the top: ";
    bool isFirst = true;
    for (auto row = sheet.rows.rbegin(); row != sheet.rows.rend(); ++row) {
        if (IsHidden(*row)) continue;
        words += (isFirst ? "" : "; ") + InOneLine(row->label, " ");
        isFirst = false;
    }
    return words + ".";
}

}  // namespace

ReportDrawings DrawingsOfReport(const ScreenContext& context, const std::string& screen) {
    const InEnglish english;
    ReportDrawing section;
    if (const SectionMember* member = FindSectionMember(screen)) {
        const ChartData sheet = MakeSectionSheet(context.units, *member);
        if (HoldsLayers(sheet)) section = {MakeSectionScene(sheet, kSize), WordsOf(sheet)};
    }
    return {{"Section", std::move(section)}};
}

}  // namespace kelvor
