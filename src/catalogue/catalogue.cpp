#include "catalogue/catalogue.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "catalogue/schema.h"

namespace kelvor {

namespace {

SQLite::Database OpenCatalogue(const Path& path) {
    SQLite::Database database = OpenDatabase(path, DatabaseAccess::ReadWrite);
    std::vector<TableShape> shapes;
    for (const TableDefinition& table : CatalogueTables()) shapes.push_back(table.Shape());
    CheckShape(database, shapes, false);
    return database;
}

std::string Text(const SQLite::Column& column) {
    return column.isNull() ? std::string() : column.getString();
}

std::optional<double> Number(const SQLite::Column& column) {
    return column.isFloat() || column.isInteger() ? std::optional(column.getDouble()) : std::nullopt;
}

std::optional<int> Whole(const SQLite::Column& column) {
    if (!column.isInteger()) return std::nullopt;
    const std::int64_t value = column.getInt64();
    if (value < 0 || value > std::numeric_limits<std::int16_t>::max()) {
        throw DatabaseError("a whole number is out of range", false);
    }
    return static_cast<int>(value);
}

/// Runs a query and hands every row to `read`.
template <typename Reader>
void ForEachRow(SQLite::Database& database, const char* query, Reader read) {
    try {
        SQLite::Statement rows(database, query);
        while (rows.executeStep()) read(rows);
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
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
    return (format.empty() || format == "@") && !hasLimit;
}

Catalogue::Catalogue(const Path& path) : database_(OpenCatalogue(path)) {
    ReadVariables();
    ReadFields();
    ReadScreens();
    ReadUnitPairs();
}

void Catalogue::ReadVariables() {
    ForEachRow(database_,
               "SELECT Name, Format, Units, \"Desc\", Dim1, Dim2, High, Low, HighMetric, LowMetric, HelpHead "
               "FROM Variable ORDER BY rowid",
               [this](SQLite::Statement& row) {
                   Variable variable;
                   variable.name = Text(row.getColumn(0));
                   variable.format = Text(row.getColumn(1));
                   variable.units = Text(row.getColumn(2));
                   variable.desc = Text(row.getColumn(3));
                   variable.dim1 = Whole(row.getColumn(4)).value_or(1);
                   variable.dim2 = Whole(row.getColumn(5)).value_or(1);
                   variable.high = Number(row.getColumn(6));
                   variable.low = Number(row.getColumn(7));
                   variable.highMetric = Number(row.getColumn(8));
                   variable.lowMetric = Number(row.getColumn(9));
                   variable.helpHead = Text(row.getColumn(10));
                   variableByName_.emplace(variable.name, variables_.size());
                   variables_.push_back(std::move(variable));
               });
}

void Catalogue::ReadFields() {
    ForEachRow(database_,
               "SELECT Screen, Name, Id, Seq, Class, Type, Equation, SolveFor, Dim2, x, y, Heading "
               "FROM Field ORDER BY rowid",
               [this](SQLite::Statement& row) {
                   Field field;
                   field.screen = Text(row.getColumn(0));
                   field.name = Text(row.getColumn(1));
                   field.id = Text(row.getColumn(2));
                   field.seq = Whole(row.getColumn(3));
                   field.fieldClass = Text(row.getColumn(4));
                   field.type = Text(row.getColumn(5));
                   field.equation = Text(row.getColumn(6));
                   field.solveFor = Number(row.getColumn(7));
                   field.dim2 = Whole(row.getColumn(8));
                   field.x = Number(row.getColumn(9));
                   field.y = Number(row.getColumn(10));
                   field.heading = Text(row.getColumn(11));
                   fields_.push_back(std::move(field));
               });
}

void Catalogue::ReadScreens() {
    ForEachRow(database_, "SELECT Name, Dim2, Sf1Y, Layout, Title, Title1, Title2 FROM Screen ORDER BY rowid",
               [this](SQLite::Statement& row) {
                   Screen screen;
                   screen.name = Text(row.getColumn(0));
                   screen.dim2 = Whole(row.getColumn(1));
                   screen.sf1Y = Number(row.getColumn(2));
                   screen.layout = Text(row.getColumn(3));
                   screen.title = Text(row.getColumn(4));
                   screen.title1 = Text(row.getColumn(5));
                   screen.title2 = Text(row.getColumn(6));
                   screens_.push_back(std::move(screen));
               });
}

void Catalogue::ReadUnitPairs() {
    ForEachRow(database_, "SELECT English, Metric, Factor FROM \"Convert\" ORDER BY rowid",
               [this](SQLite::Statement& row) {
                   const auto factor = Number(row.getColumn(2));
                   if (!factor || *factor <= 0.0) throw DatabaseError("a unit factor is not above 0", false);
                   unitPairs_.push_back({Text(row.getColumn(0)), Text(row.getColumn(1)), *factor});
               });
}

const Variable* Catalogue::FindVariable(std::string_view name) const {
    const auto found = variableByName_.find(name);
    return found == variableByName_.end() ? nullptr : &variables_[found->second];
}

std::optional<std::string> Catalogue::HelpText(std::string_view name) {
    try {
        SQLite::Statement row(database_, "SELECT HelpText FROM Variable WHERE Name = ?");
        row.bind(1, std::string(name));
        if (!row.executeStep() || row.getColumn(0).isNull()) return std::nullopt;
        return row.getColumn(0).getString();
    } catch (const SQLite::Exception& failure) {
        throw ToDatabaseError(failure);
    }
}

std::vector<const Field*> Catalogue::FieldsOfScreen(std::string_view screen) const {
    std::vector<const Field*> found;
    for (const Field& field : fields_) {
        if (EqualNoCase(field.screen, screen) && FindVariable(field.name) != nullptr) found.push_back(&field);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Field* a, const Field* b) { return a->seq < b->seq; });
    return found;
}

std::vector<const Field*> Catalogue::OutputsOfScreen(std::string_view screen) const {
    std::vector<const Field*> found;
    for (const Field& field : fields_) {
        if (EqualNoCase(field.screen, screen) && field.IsOutput()) found.push_back(&field);
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
    ForEachRow(database_, "SELECT FileName, OpenDate, SortOrder FROM RecentFiles ORDER BY SortOrder, rowid",
               [&](SQLite::Statement& row) {
                   const auto name = row.getColumn(0);
                   rows.push_back({name.isNull() ? std::nullopt : std::optional(name.getString()),
                                   Text(row.getColumn(1)), Whole(row.getColumn(2)).value_or(0)});
               });
    return rows;
}

void Catalogue::EditRecentFiles(const std::function<void(std::vector<RecentFile>&)>& edit) {
    try {
        SQLite::Transaction transaction(database_, SQLite::TransactionBehavior::IMMEDIATE);
        std::vector<RecentFile> rows = RecentFiles();
        std::vector<std::int64_t> places;
        ForEachRow(database_, "SELECT rowid FROM RecentFiles ORDER BY rowid",
                   [&](SQLite::Statement& row) { places.push_back(row.getColumn(0).getInt64()); });
        edit(rows);
        SQLite::Statement update(
            database_, "UPDATE RecentFiles SET FileName = ?, OpenDate = ?, SortOrder = ? WHERE rowid = ?");
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
