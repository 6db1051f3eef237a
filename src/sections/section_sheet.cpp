#include "sections/section_sheet.h"

#include <stdexcept>
#include <utility>

#include "platform/number_picture.h"
#include "platform/real.h"
#include "sections/materials.h"
#include "sections/shown_thickness.h"

namespace kelvor {

namespace {

constexpr const char* kHiddenLabel = "      ";
constexpr const char* kHiddenColour = "#FFFFFF";

/// How a unit system writes the thicknesses of a section.
struct ThicknessStyle {
    const char* unit;
    const char* picture;
    double unitsOfInch;
};

ThicknessStyle StyleOf(const Units& units) {
    if (units.bMetric()) return {"mm", "#,##0", 25.4};
    return {"in", "#,##0.0", 1.0};
}

class SheetMaker {
  public:
    SheetMaker(const Units& units, const SectionMember& member)
        : units_(units), style_(StyleOf(units)), member_(member) {
        sheet_.kind = ChartKind::Section;
        sheet_.title = member.title;
        sheet_.up = {.title = style_.unit, .picture = style_.picture};
        for (const SectionPart& part : member.parts) AddPart(part);
    }

    [[nodiscard]] double total() const { return total_.value(); }

    void ShowTotal() { sheet_.title += std::string("\n") + member_.total + ThicknessText(total()); }

    ChartData Take() { return std::move(sheet_); }

  private:
    void AddPart(const SectionPart& part) {
        if (part.thickness == nullptr) {
            AddRow(part.label, part.label, part.fixedInches * style_.unitsOfInch, part.material);
        } else if (part.names == nullptr) {
            AddLayer(part.label, ShownThickness(units_, part.thickness), part.material);
        } else {
            AddTable(part);
        }
    }

    /// Row 1 of a table is the top layer.
    void AddTable(const SectionPart& table) {
        for (int row = kDrawnLayers; row >= 1; --row) {
            const std::string name = units_.GetDisplayValue(table.names, row, 1);
            AddLayer(name, ShownThickness(units_, table.thickness, row), MaterialNamed(name));
        }
    }

    void AddLayer(const std::string& name, double thickness, Material material) {
        if (thickness == 0.0) {
            sheet_.series.push_back({kHiddenLabel, kHiddenColour, Material::Other});
            sheet_.rows.push_back({kHiddenLabel, {0.0}});
            return;
        }
        total_ += thickness;
        AddRow(name, name + "\n" + ThicknessText(thickness), thickness, material);
    }

    void AddRow(const std::string& name, const std::string& label, double depth, Material material) {
        sheet_.series.push_back({name, ColourOf(material), material});
        sheet_.rows.push_back({label, {depth}});
    }

    [[nodiscard]] std::string ThicknessText(double thickness) const {
        return FormatNumber(thickness, style_.picture) + " " + style_.unit;
    }

    const Units& units_;
    ThicknessStyle style_;
    const SectionMember& member_;
    ChartData sheet_;
    Real total_ = 0.0;
};

const SectionMember& Member(std::string_view screen) {
    const SectionMember* member = FindSectionMember(screen);
    if (member == nullptr) throw std::logic_error("a screen has no section");
    return *member;
}

}  // namespace

ChartData MakeSectionSheet(const Units& units, const SectionMember& member) {
    SheetMaker maker(units, member);
    maker.ShowTotal();
    return maker.Take();
}

SectionPair MakeSectionPair(const Units& units) {
    SheetMaker flexible(units, Member("DeF"));
    SheetMaker rigid(units, Member("DeR"));
    const bool flexibleIsThinner = flexible.total() < rigid.total();
    SectionPair pair{flexible.Take(), rigid.Take()};
    (flexibleIsThinner ? pair.flexible : pair.rigid).ceiling =
        flexibleIsThinner ? rigid.total() : flexible.total();
    return pair;
}

}  // namespace kelvor
