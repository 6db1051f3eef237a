#include "catalogue/catalogue.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "catalogue/schema.h"
#include "platform/number_picture.h"
#include "platform/sqlite.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// Room made at once for the rows of the large tables; a catalogue that has more grows.
constexpr std::size_t kUsualVariables = 512;
constexpr std::size_t kUsualFields = 512;

SQLite::Database OpenCatalogue(const Path& path) {
    SQLite::Database database = OpenDatabase(path, DatabaseAccess::ReadWrite);
    std::vector<TableShape> shapes;
    for (const TableDefinition& table : CatalogueTables()) shapes.push_back(table.Shape());
    CheckShape(database, shapes, false);
    CheckRowCounts(database, CatalogueTables());
    return database;
}

std::string Text(const RowView& row, std::size_t column) { return std::string(row.Letters(column)); }

std::optional<int> Whole(const RowView& row, std::size_t column) {
    const std::optional<std::int64_t> value = row.Whole(column);
    if (!value) return std::nullopt;
    if (*value < 0 || *value > std::numeric_limits<std::int16_t>::max()) {
        throw DatabaseError(Translated("a whole number is out of range"), false);
    }
    return static_cast<int>(*value);
}

template <typename Row>
const Row* FindNamed(const std::vector<Row>& rows, std::string Row::*member, std::string_view name) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const Row& row) { return EqualNoCase(row.*member, name); });
    return found == rows.end() ? nullptr : &*found;
}

}  // namespace

bool Variable::IsText() const {
    const bool hasLimit = high || low || highMetric || lowMetric;
    return IsTextPicture(format) && !hasLimit;
}

Catalogue::Catalogue(const Path& path) : database_(std::make_unique<SQLite::Database>(OpenCatalogue(path))) {
    try {
        SQLite::Transaction reading(*database_);  // one, so that the file is not locked for each table
        ReadVariables();
        ReadFields();
        ReadScreens();
        ReadUnitPairs();
        reading.commit();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

Catalogue::~Catalogue() = default;

void Catalogue::ReadVariables() {
    variables_.reserve(kUsualVariables);
    variableByName_.Reserve(kUsualVariables);
    VisitRows(*database_, "Variable",
              "Name, Format, Units, \"Desc\", Dim1, Dim2, High, Low, HighMetric, LowMetric, HelpHead",
              "rowid", [this](const RowView& row) {
                  Variable variable;
                  variable.name = Text(row, 0);
                  variable.format = Text(row, 1);
                  variable.units = Text(row, 2);
                  variable.desc = Text(row, 3);
                  variable.dim1 = Whole(row, 4).value_or(1);
                  variable.dim2 = Whole(row, 5).value_or(1);
                  variable.high = row.Number(6);
                  variable.low = row.Number(7);
                  variable.highMetric = row.Number(8);
                  variable.lowMetric = row.Number(9);
                  variable.helpHead = Text(row, 10);
                  variableByName_.Add(variable.name);
                  variables_.push_back(std::move(variable));
              });
}

void Catalogue::ReadFields() {
    fields_.reserve(kUsualFields);
    VisitRows(*database_, "Field",
              "Screen, Name, Id, Seq, Class, Type, Equation, SolveFor, Dim2, x, y, Heading", "rowid",
              [this](const RowView& row) {
                  Field field;
                  field.screen = Text(row, 0);
                  field.name = Text(row, 1);
                  field.id = Text(row, 2);
                  field.seq = Whole(row, 3);
                  field.fieldClass = Text(row, 4);
                  field.type = Text(row, 5);
                  field.equation = Text(row, 6);
                  field.solveFor = row.Number(7);
                  field.dim2 = Whole(row, 8);
                  field.x = row.Number(9);
                  field.y = row.Number(10);
                  field.heading = Text(row, 11);
                  fields_.push_back(std::move(field));
              });
    GroupFields();
}

std::optional<std::uint32_t> Catalogue::FindFieldGroup(std::string_view screen) const {
    return screenOfFields_.Find(screen, [this](std::uint32_t group) -> const std::string& {
        return fields_[fieldsOfScreen_[group].front()].screen;
    });
}

void Catalogue::GroupFields() {
    for (std::size_t place = 0; place < fields_.size(); ++place) {
        const std::string& screen = fields_[place].screen;
        const auto known = FindFieldGroup(screen);
        if (known) {
            fieldsOfScreen_[*known].push_back(place);
        } else {
            screenOfFields_.Add(screen);
            fieldsOfScreen_.push_back({place});
        }
    }
}

const std::vector<std::size_t>& Catalogue::PlacesOnScreen(std::string_view screen) const {
    static const std::vector<std::size_t> kNone;
    const auto found = FindFieldGroup(screen);
    return found ? fieldsOfScreen_[*found] : kNone;
}

void Catalogue::ReadScreens() {
    VisitRows(*database_, "Screen",
              "Name, Dim2, Sf1Y, Layout, Title, Title1, Title2, LeftX, LeftY, ScreenLeft, RightX, RightY, "
              "ScreenRight",
              "rowid", [this](const RowView& row) {
                  Screen screen;
                  screen.name = Text(row, 0);
                  screen.dim2 = Whole(row, 1);
                  screen.sf1Y = row.Number(2);
                  screen.layout = Text(row, 3);
                  screen.title = Text(row, 4);
                  screen.title1 = Text(row, 5);
                  screen.title2 = Text(row, 6);
                  screen.left = {row.Number(7), row.Number(8), Text(row, 9)};
                  screen.right = {row.Number(10), row.Number(11), Text(row, 12)};
                  screens_.push_back(std::move(screen));
              });
}

void Catalogue::ReadUnitPairs() {
    VisitRows(*database_, "Convert", "English, Metric, Factor", "rowid", [this](const RowView& row) {
        const auto factor = row.Number(2);
        if (!factor || *factor <= 0.0) throw DatabaseError(Translated("a unit factor is not above 0"), false);
        unitPairs_.push_back({Text(row, 0), Text(row, 1), *factor});
    });
}

std::vector<ScreenLabel> Catalogue::LabelsOfScreen(std::string_view screen) const {
    std::vector<ScreenLabel> labels;
    VisitRows(*database_, "Label", "Screen, Label, x, y", "rowid", [&](const RowView& row) {
        if (!EqualNoCase(Text(row, 0), screen)) return;
        labels.push_back({Text(row, 1), row.Number(2).value_or(0.0), row.Number(3).value_or(1.0)});
    });
    return labels;
}

const Variable* Catalogue::FindVariable(std::string_view name) const {
    const auto found = variableByName_.Find(
        name, [this](std::uint32_t place) -> const std::string& { return variables_[place].name; });
    return found ? &variables_[*found] : nullptr;
}

std::optional<std::string> Catalogue::HelpText(std::string_view name) const {
    try {
        SQLite::Statement row(*database_, "SELECT HelpText FROM Variable WHERE Name = ?");
        row.bind(1, std::string(name));
        if (!row.executeStep() || row.getColumn(0).isNull()) return std::nullopt;
        return row.getColumn(0).getString();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

std::vector<const Field*> Catalogue::FieldsOfScreen(std::string_view screen) const {
    std::vector<const Field*> found;
    for (const std::size_t place : PlacesOnScreen(screen)) {
        if (FindVariable(fields_[place].name) != nullptr) found.push_back(&fields_[place]);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Field* a, const Field* b) { return a->seq < b->seq; });
    return found;
}

std::vector<const Field*> Catalogue::OutputsOfScreen(std::string_view screen) const {
    std::vector<const Field*> found;
    for (const std::size_t place : PlacesOnScreen(screen)) {
        if (fields_[place].IsOutput()) found.push_back(&fields_[place]);
    }
    return found;
}

const Screen* Catalogue::FindScreen(std::string_view name) const {
    return FindNamed(screens_, &Screen::name, name);
}

const UnitPair* Catalogue::FindPairByEnglish(std::string_view english) const {
    return FindNamed(unitPairs_, &UnitPair::english, english);
}

const UnitPair* Catalogue::FindPairByMetric(std::string_view metric) const {
    return FindNamed(unitPairs_, &UnitPair::metric, metric);
}

std::vector<RecentFile> Catalogue::RecentFiles() {
    std::vector<RecentFile> rows;
    VisitRows(*database_, "RecentFiles", "FileName, OpenDate, SortOrder", "rowid", [&](const RowView& row) {
        rows.push_back({row.IsText(0) ? std::optional(Text(row, 0)) : std::nullopt, Text(row, 1),
                        Whole(row, 2).value_or(0)});
    });
    std::stable_sort(rows.begin(), rows.end(),
                     [](const RecentFile& a, const RecentFile& b) { return a.sortOrder < b.sortOrder; });
    return rows;
}

void Catalogue::EditRecentFiles(const std::function<void(std::vector<RecentFile>&)>& edit) {
    try {
        SQLite::Transaction transaction(*database_, SQLite::TransactionBehavior::IMMEDIATE);
        std::vector<RecentFile> rows = RecentFiles();
        std::vector<std::int64_t> places;
        VisitRows(*database_, "RecentFiles", "rowid", "rowid",
                  [&](const RowView& row) { places.push_back(row.Whole(0).value_or(0)); });
        edit(rows);
        SQLite::Statement update(
            *database_, "UPDATE RecentFiles SET FileName = ?, OpenDate = ?, SortOrder = ? WHERE rowid = ?");
        for (std::size_t i = 0; i < std::min(rows.size(), places.size()); ++i) {
            update.reset();
            update.clearBindings();
            if (rows[i].fileName) update.bind(1, *rows[i].fileName);
            update.bind(2, rows[i].openDate);
            update.bind(3, rows[i].sortOrder);
            update.bind(4, places[i]);
            update.exec();
        }
        transaction.commit();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

}  // namespace kelvor
