#include "drawing/section_layers.h"

#include <algorithm>

#include "platform/number_picture.h"
#include "platform/text.h"

namespace kelvor {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string_view line = std::string_view(text).substr(at, end - at);
        if (line.ends_with('\r')) line.remove_suffix(1);
        line = TrimBlanks(line);
        if (!line.empty()) lines.emplace_back(line);
        at = end + 1;
    }
    return lines;
}

std::vector<SectionLayer> LayersOf(const ChartData& sheet) {
    std::vector<SectionLayer> layers;
    for (std::size_t i = 0; i < sheet.rows.size(); ++i) {
        const ChartRow& row = sheet.rows[i];
        const double thickness = row.cells.empty() ? 0.0 : row.cells.front().value_or(0.0);
        if (thickness <= 0.0) continue;
        SectionLayer layer{LinesOf(row.label), thickness};
        if (i < sheet.series.size()) {
            layer.material = sheet.series[i].material;
            layer.colour = sheet.series[i].colour;
        }
        layer.counts = layer.material != Material::Subgrade && layer.material != Material::Interlayer;
        layers.push_back(std::move(layer));
    }
    return layers;
}

double TotalThickness(const std::vector<SectionLayer>& layers) {
    double total = 0.0;
    for (const SectionLayer& layer : layers) total += layer.counts ? layer.thickness : 0.0;
    return total;
}

double ReachOf(const ChartData& sheet, const std::vector<SectionLayer>& layers) {
    double subgrade = 0.0;
    double above = 0.0;
    for (const SectionLayer& layer : layers) {
        (layer.material == Material::Subgrade ? subgrade : above) += layer.thickness;
    }
    const double reach = subgrade + std::max({above, sheet.ceiling, subgrade});
    return reach > 0.0 ? reach : 1.0;
}

std::string ThicknessText(const ChartData& sheet, double thickness) {
    return FormatNumber(thickness, sheet.up.picture) + " " + sheet.up.title;
}

}  // namespace kelvor
