#include "console/script/output.h"
#include "platform/number_text.h"
#include "store/project_store.h"

namespace kelvor {

namespace {

std::string KeyText(const CellKey& key) { return CellText(key.name, key.dim1, key.dim2); }

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted.push_back('\\');
        quoted += c == '\n' ? "\\n" : c == '\r' ? "\\r" : c == '\t' ? "\\t" : std::string(1, c);
    }
    return quoted + "\"";
}

std::string PropertyText(bool truth) { return truth ? "true" : "false"; }
std::string PropertyText(int number) { return std::to_string(number); }
std::string PropertyText(double number) { return ExactNumberText(number); }
std::string PropertyText(const std::string& text) { return Quoted(text); }

std::string StagedText(std::monostate /*nothing*/) { return "empty"; }
std::string StagedText(double number) { return ExactNumberText(number); }
std::string StagedText(const std::string& text) { return Quoted(text); }

/// The number, the text where there is only a text, or both where the text says the number otherwise.
std::string ValueText(const CellValue& value) {
    if (!value.number) return value.text ? Quoted(*value.text) : "empty";
    const std::string number = ExactNumberText(*value.number);
    return value.text && *value.text != number ? number + " " + Quoted(*value.text) : number;
}

}  // namespace

void PlainOutput::Cell(const CellReport& cell) {
    stream_ << KeyText(cell.key) << " = " << (cell.value ? ValueText(*cell.value) : "missing") << '\n';
}

void PlainOutput::Display(const DisplayReport& display) {
    stream_ << KeyText(display.key) << ": " << display.text;
    if (!display.unit.empty()) stream_ << " [" << display.unit << "]";
    stream_ << '\n';
}

void PlainOutput::Step(const std::string& way, const std::optional<std::string>& act) {
    stream_ << way << ": " << act.value_or("nothing") << '\n';
}

void PlainOutput::Solve(const std::string& screen, int term, int result) {
    stream_ << "solve " << screen << " " << term << ": " << (result == 0 ? "done" : "not solved") << " ("
            << result << ")\n";
}

void PlainOutput::Property(const std::string& control, const std::string& property,
                           const PropertyValue& value) {
    const std::string text = std::visit([](const auto& v) { return PropertyText(v); }, value);
    stream_ << control << "." << property << " = " << text << '\n';
}

void PlainOutput::Controls(const std::vector<ControlReport>& controls) {
    for (const ControlReport& control : controls) {
        stream_ << control.kind << " " << control.name << " [" << control.tag << "] " << Quoted(control.text)
                << (control.enabled ? "" : " disabled") << (control.visible ? "" : " hidden") << '\n';
    }
}

void PlainOutput::Grid(const std::vector<GridCellReport>& cells) {
    for (const GridCellReport& cell : cells) {
        stream_ << cell.column << "(" << cell.row << "): " << cell.text;
        if (!cell.note.empty()) stream_ << " (" << cell.note << ")";
        stream_ << '\n';
    }
}

void PlainOutput::Chart(const ChartData& chart) {
    stream_ << "chart " << Quoted(chart.title);
    if (chart.ceiling > 0.0) stream_ << " up to " << ExactNumberText(chart.ceiling);
    stream_ << ":";
    for (const ChartSeries& series : chart.series) {
        stream_ << " " << Quoted(series.name) << " " << series.colour;
    }
    stream_ << '\n';
    for (const ChartRow& row : chart.rows) {
        stream_ << "  " << row.label << ":";
        for (const std::optional<double>& cell : row.cells) {
            stream_ << " " << (cell ? ExactNumberText(*cell) : "empty");
        }
        stream_ << '\n';
    }
}

void PlainOutput::Previews(const std::vector<PreviewReport>& previews) {
    if (previews.empty()) stream_ << "no previews\n";
    for (const PreviewReport& preview : previews) {
        stream_ << "preview " << preview.index << ": " << preview.name << " " << Quoted(preview.caption)
                << '\n';
    }
}

void PlainOutput::Table(const StagedTable& table) {
    stream_ << "table " << table.name << ":\n";
    for (const auto& row : table.rows) {
        const char* blank = "  ";
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            stream_ << blank << table.columns[i].name << " = "
                    << std::visit([](const auto& v) { return StagedText(v); }, row[i]);
            blank = ", ";
        }
        stream_ << '\n';
    }
}

void PlainOutput::Overview(const std::vector<OverviewLine>& lines) {
    for (const OverviewLine& line : lines) {
        stream_ << line.name << " " << Quoted(line.title) << ":";
        for (const OverviewResult& result : line.results) {
            stream_ << " " << result.name << " " << (result.text.empty() ? "empty" : result.text);
            if (!result.unit.empty()) stream_ << " [" << result.unit << "]";
        }
        if (line.balanced) stream_ << (*line.balanced ? ", in balance" : ", not in balance");
        stream_ << '\n';
    }
}

void PlainOutput::Forms(const std::vector<std::string>& names) {
    stream_ << "forms:";
    for (const std::string& name : names) stream_ << " " << name;
    stream_ << '\n';
}

void PlainOutput::Focus(const std::optional<std::string>& control) {
    stream_ << "focus: " << control.value_or("none") << '\n';
}

void PlainOutput::OnMessage(const Message& message, Answer answer) {
    stream_ << "message [" << message.title << "]: " << message.text << " -> " << NameOf(answer) << '\n';
}

void PlainOutput::OnInput(const InputRequest& request, const std::optional<std::string>& answer) {
    stream_ << "input: " << request.text << " -> " << answer.value_or("cancel") << '\n';
}

void PlainOutput::OnFile(const FileRequest& request, const std::optional<Path>& answer) {
    stream_ << "file dialog (" << NameOf(request.kind) << ") in " << request.folder.string() << " -> "
            << (answer ? answer->string() : "cancel") << '\n';
}

}  // namespace kelvor
