#include "reports/layout/placeholders.h"

#include <algorithm>
#include <optional>
#include <variant>

#include "platform/number_picture.h"
#include "platform/text.h"
#include "platform/translation.h"
#include "reports/document/characters.h"

namespace kelvor {

namespace {

constexpr std::string_view kUnitOf = "unit of ";
constexpr std::string_view kAs = " as ";
constexpr std::string_view kBlanks = " \t\r\n";

/// A placeholder taken apart.
struct Placeholder {
    std::string_view name;  // `Column` or `Table.Column`
    std::string_view picture;
    bool isUnit = false;
};

/// A column that was found, with the table and the row to read it from.
struct FoundColumn {
    const StagedTable& table;
    std::size_t column;
    std::size_t row;
};

Placeholder TakeApart(std::string_view inBraces) {
    Placeholder placeholder;
    placeholder.name = TrimBlanks(inBraces);
    if (placeholder.name.starts_with(kUnitOf)) {
        placeholder.isUnit = true;
        placeholder.name = TrimBlanks(placeholder.name.substr(kUnitOf.size()));
    }
    const std::size_t as = placeholder.name.find(kAs);
    if (as != std::string_view::npos) {
        placeholder.picture = TrimBlanks(placeholder.name.substr(as + kAs.size()));
        placeholder.name = TrimBlanks(placeholder.name.substr(0, as));
    }
    return placeholder;
}

std::string Quoted(std::string_view text) { return "\"" + CleanText(text) + "\""; }

FoundColumn FindIn(const StagedTable& table, std::string_view column, std::size_t row) {
    const auto found = table.Find(column);
    if (!found) {
        throw std::runtime_error(
            Filled(Translated("the table %1 has no column %2"), {Quoted(table.name), Quoted(column)}));
    }
    return {table, *found, row};
}

/// The column that a name means; nothing if it is the name of a text. Throws std::runtime_error for a name
/// that means nothing.
std::optional<FoundColumn> FindColumn(std::string_view name, const LayoutScope& scope) {
    const std::size_t point = name.find('.');
    if (point != std::string_view::npos) {
        const StagedTable* table = scope.tables.Find(name.substr(0, point));
        if (table == nullptr)
            throw std::runtime_error(
                Filled(Translated("there is no table %1"), {Quoted(name.substr(0, point))}));
        return FindIn(*table, name.substr(point + 1), table == scope.table ? scope.row : 0);
    }
    const bool isColumn = scope.table != nullptr && scope.table->Find(name);
    if (!isColumn && scope.texts.contains(name)) return std::nullopt;
    if (scope.table == nullptr)
        throw std::runtime_error(Filled(Translated("there is no text %1"), {Quoted(name)}));
    return FindIn(*scope.table, name, scope.row);
}

std::string ShowValue(const StagedValue& value, std::string_view picture) {
    if (const auto* number = std::get_if<double>(&value)) return FormatNumber(*number, picture);
    if (const auto* text = std::get_if<std::string>(&value)) return CleanText(*text);
    return {};
}

std::string Show(std::string_view inBraces, const LayoutScope& scope) {
    const Placeholder placeholder = TakeApart(inBraces);
    if (!IsNumberPicture(placeholder.picture)) {
        throw std::runtime_error(
            Filled(Translated("%1 is no number picture"), {Quoted(placeholder.picture)}));
    }
    const auto found = FindColumn(placeholder.name, scope);
    if (!found) return CleanText(scope.texts.find(placeholder.name)->second);
    const StagedColumn& column = found->table.columns[found->column];
    if (placeholder.isUnit) return CleanText(column.unit);
    if (found->row >= found->table.rows.size()) return {};
    return ShowValue(found->table.rows[found->row].at(found->column),
                     placeholder.picture.empty() ? std::string_view(column.picture) : placeholder.picture);
}

/// Appends a text of the layout itself, runs of blanks as one.
void AppendOwn(std::string& filled, std::string_view own) {
    while (!own.empty()) {
        const std::size_t blanks = std::min(own.find_first_not_of(kBlanks), own.size());
        if (blanks > 0) filled += ' ';
        own.remove_prefix(blanks);
        const std::size_t letters = std::min(own.find_first_of(kBlanks), own.size());
        filled += CleanText(own.substr(0, letters));
        own.remove_prefix(letters);
    }
}

std::size_t LinesIn(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// Where the placeholder that begins with the brace at `open` has its other brace.
std::size_t ClosingBrace(std::string_view text, std::size_t open) {
    const std::size_t close = text.find_first_of("{}", open + 1);
    if (close == std::string_view::npos || text[close] != '}') {
        throw std::runtime_error(Translated("a brace is not closed; a brace itself is written {{ or }}"));
    }
    return close;
}

/// Appends what the brace at `place` begins; the place behind it.
std::size_t AppendBrace(std::string& filled, std::string_view text, std::size_t place,
                        const LayoutScope& scope) {
    if (place + 1 < text.size() && text[place + 1] == text[place]) {
        filled += text[place];
        return place + 2;
    }
    if (text[place] == '}') {
        throw std::runtime_error(
            Translated("a brace is closed that was not opened; a brace itself is written {{ or }}"));
    }
    const std::size_t close = ClosingBrace(text, place);
    filled += Show(text.substr(place + 1, close - place - 1), scope);
    return close + 1;
}

}  // namespace

std::string FillPlaceholders(std::string_view text, const LayoutScope& scope) {
    std::string filled;
    std::size_t place = 0;
    try {
        while (place < text.size()) {
            const std::size_t brace = std::min(text.find_first_of("{}", place), text.size());
            AppendOwn(filled, text.substr(place, brace - place));
            place = brace;
            if (place < text.size()) place = AppendBrace(filled, text, place, scope);
        }
    } catch (const std::runtime_error& failure) {
        throw PlaceholderError(failure.what(), LinesIn(text.substr(0, place)));
    }
    return filled;
}

}  // namespace kelvor
