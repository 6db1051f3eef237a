#include <nlohmann/json.hpp>

#include "console/script/output.h"

namespace kelvor {

namespace {

using Json = nlohmann::ordered_json;

/// A text that is no UTF-8 shows replacement characters rather than ending the script.
void Print(std::ostream& stream, const Json& object) {
    stream << object.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

template <typename Value>
Json OrNull(const std::optional<Value>& value) {
    return value ? Json(*value) : Json(nullptr);
}

Json JsonOf(std::monostate /*nothing*/) { return nullptr; }
Json JsonOf(double number) { return number; }
Json JsonOf(const std::string& text) { return text; }

Json KeyObject(const CellKey& key) { return {{"name", key.name}, {"dim1", key.dim1}, {"dim2", key.dim2}}; }

}  // namespace

void JsonOutput::Cell(const CellReport& cell) {
    Json object = KeyObject(cell.key);
    if (cell.value) {
        object["rvalue"] = OrNull(cell.value->number);
        object["svalue"] = OrNull(cell.value->text);
    } else {
        object["missing"] = true;
    }
    Print(stream_, {{"cell", object}});
}

void JsonOutput::Display(const DisplayReport& display) {
    Json object = KeyObject(display.key);
    object["text"] = display.text;
    object["unit"] = display.unit;
    Print(stream_, {{"display", object}});
}

void JsonOutput::Step(const std::string& way, const std::optional<std::string>& act) {
    Print(stream_, {{way, OrNull(act)}});
}

void JsonOutput::Solve(const std::string& screen, int term, int result) {
    Print(stream_, {{"solve", {{"screen", screen}, {"term", term}, {"result", result}}}});
}

void JsonOutput::Property(const std::string& control, const std::string& property,
                          const PropertyValue& value) {
    const Json json = std::visit([](const auto& v) { return Json(v); }, value);
    Print(stream_, {{"control", {{"name", control}, {"property", property}, {"value", json}}}});
}

void JsonOutput::Controls(const std::vector<ControlReport>& controls) {
    Json list = Json::array();
    for (const ControlReport& control : controls) {
        list.push_back({{"name", control.name},
                        {"kind", control.kind},
                        {"tag", control.tag},
                        {"text", control.text},
                        {"enabled", control.enabled},
                        {"visible", control.visible}});
    }
    Print(stream_, {{"controls", list}});
}

void JsonOutput::Grid(const std::vector<GridCellReport>& cells) {
    Json list = Json::array();
    for (const GridCellReport& cell : cells) {
        Json object = {{"row", cell.row}, {"column", cell.column}, {"text", cell.text}};
        if (!cell.note.empty()) object["note"] = cell.note;
        list.push_back(std::move(object));
    }
    Print(stream_, {{"grid", list}});
}

void JsonOutput::Chart(const ChartData& chart) {
    Json series = Json::array();
    for (const ChartSeries& one : chart.series) series.push_back({{"name", one.name}, {"color", one.colour}});
    Json rows = Json::array();
    for (const ChartRow& row : chart.rows) {
        Json cells = Json::array();
        for (const std::optional<double>& cell : row.cells) cells.push_back(OrNull(cell));
        rows.push_back({{"label", row.label}, {"cells", cells}});
    }
    const Json ceiling = chart.ceiling > 0.0 ? Json(chart.ceiling) : Json(0);
    Print(stream_,
          {{"chart", {{"title", chart.title}, {"ceiling", ceiling}, {"series", series}, {"rows", rows}}}});
}

void JsonOutput::Previews(const std::vector<PreviewReport>& previews) {
    Json list = Json::array();
    for (const PreviewReport& preview : previews) {
        list.push_back({{"index", preview.index}, {"name", preview.name}, {"caption", preview.caption}});
    }
    Print(stream_, {{"previews", list}});
}

void JsonOutput::Table(const StagedTable& table) {
    Json rows = Json::array();
    for (const auto& cells : table.rows) {
        Json row = Json::object();
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            row[table.columns[i].name] = std::visit([](const auto& v) { return JsonOf(v); }, cells[i]);
        }
        rows.push_back(std::move(row));
    }
    Print(stream_, {{"table", {{"name", table.name}, {"rows", rows}}}});
}

void JsonOutput::Forms(const std::vector<std::string>& names) { Print(stream_, {{"forms", names}}); }

void JsonOutput::Overview(const std::vector<OverviewLine>& lines) {
    Json list = Json::array();
    for (const OverviewLine& line : lines) {
        Json results = Json::array();
        for (const OverviewResult& result : line.results)
            results.push_back({{"name", result.name}, {"text", result.text}, {"unit", result.unit}});
        list.push_back({{"name", line.name},
                        {"title", line.title},
                        {"results", results},
                        {"balanced", OrNull(line.balanced)}});
    }
    Print(stream_, {{"overview", list}});
}

void JsonOutput::Focus(const std::optional<std::string>& control) {
    Print(stream_, {{"focus", OrNull(control)}});
}

void JsonOutput::OnMessage(const Message& message, Answer answer) {
    Print(stream_, {{"message",
                     {{"title", message.title},
                      {"text", message.text},
                      {"style", NameOf(message.style)},
                      {"icon", NameOf(message.icon)},
                      {"answer", NameOf(answer)}}}});
}

void JsonOutput::OnInput(const InputRequest& request, const std::optional<std::string>& answer) {
    Print(stream_, {{"input", {{"text", request.text}, {"answer", OrNull(answer)}}}});
}

void JsonOutput::OnFile(const FileRequest& request, const std::optional<Path>& answer) {
    Print(stream_, {{"filedialog",
                     {{"kind", NameOf(request.kind)},
                      {"folder", request.folder.string()},
                      {"filter", request.filter},
                      {"answer", answer ? Json(answer->string()) : Json(nullptr)}}}});
}

}  // namespace kelvor
