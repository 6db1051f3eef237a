#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/name_index.h"

namespace SQLite {
class Database;
}  // namespace SQLite

namespace kelvor {

/// A variable of the system: how it is shown, in which unit, within which limits.
struct Variable {
    std::string name;
    std::string format;  // number picture, one for both unit systems; empty or "@" for a text
    std::string units;   // English unit name, the key into the unit pairs
    std::string desc;
    int dim1 = 1;  // array bounds
    int dim2 = 1;
    std::optional<double> high;  // allowed range, English units
    std::optional<double> low;
    std::optional<double> highMetric;  // allowed range, metric units, set by hand
    std::optional<double> lowMetric;
    std::string helpHead;

    /// True if its cells hold texts, never numbers, also for a text such as "007".
    [[nodiscard]] bool IsText() const;
};

/// A bound element of a screen.
struct Field {
    std::string screen;
    std::string name;
    std::string id;
    std::optional<int> seq;  // order on the screen and term number in its equation
    std::string fieldClass;  // "G" the grid, "C" a grid column, else a scalar
    std::string type;        // "O" an output, else an input
    std::string equation;    // the key of the calculation that fills an output
    std::optional<double> solveFor;
    std::optional<int> dim2;
    std::optional<double> x;
    std::optional<double> y;
    std::string heading;

    [[nodiscard]] bool IsGrid() const { return EqualNoCase(fieldClass, "G"); }
    [[nodiscard]] bool IsColumn() const { return EqualNoCase(fieldClass, "C"); }
    [[nodiscard]] bool IsOutput() const { return EqualNoCase(type, "O"); }
};

/// A page button of a screen: where it stands in the coarse grid of a built screen, and where it leads.
struct PageButton {
    std::optional<double> x;  // missing: there is no such button
    std::optional<double> y;
    std::string screen;
};

/// A fixed text of a built screen.
struct ScreenLabel {
    std::string text;
    double x = 0.0;
    double y = 1.0;
};

struct Screen {
    std::string name;
    std::optional<int> dim2;
    std::optional<double> sf1Y;  // set: the screen has a Solve For indicator
    std::string layout;          // "H": two halves
    std::string title;
    std::string title1;
    std::string title2;
    PageButton left;
    PageButton right;
};

/// A pair of unit names; a metric value is the English one times the factor.
struct UnitPair {
    std::string english;
    std::string metric;
    double factor = 1.0;
};

/// A row of the list of recent projects. No file name: a free row.
struct RecentFile {
    std::optional<std::string> fileName;
    std::string openDate;
    int sortOrder = 0;
};

/// The catalogue: every variable, field, screen and unit pair, read once at start, and the list of
/// recent files, which lives in the same database. Names compare without regard to case.
class Catalogue {
  public:
    /// Opens and reads the database. Throws DatabaseError.
    explicit Catalogue(const Path& path);
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;
    ~Catalogue();

    [[nodiscard]] const std::vector<Variable>& variables() const { return variables_; }

    /// Null if there is no such variable.
    [[nodiscard]] const Variable* FindVariable(std::string_view name) const;

    /// The explanation of a variable for its help page; nothing if it has none.
    [[nodiscard]] std::optional<std::string> HelpText(std::string_view name) const;

    /// A screen's fields that have a variable, in Seq order.
    [[nodiscard]] std::vector<const Field*> FieldsOfScreen(std::string_view screen) const;

    /// A screen's outputs in the order of the catalogue, which is the order of calculation.
    [[nodiscard]] std::vector<const Field*> OutputsOfScreen(std::string_view screen) const;

    /// Every field, in the order of the catalogue.
    [[nodiscard]] const std::vector<Field>& fields() const { return fields_; }

    [[nodiscard]] const std::vector<Screen>& screens() const { return screens_; }
    [[nodiscard]] const Screen* FindScreen(std::string_view name) const;

    /// The fixed texts of a built screen, in the order of the catalogue.
    [[nodiscard]] std::vector<ScreenLabel> LabelsOfScreen(std::string_view screen) const;

    /// The unit pairs in the order of the catalogue; the first of a name counts.
    [[nodiscard]] const std::vector<UnitPair>& unitPairs() const { return unitPairs_; }
    [[nodiscard]] const UnitPair* FindPairByEnglish(std::string_view english) const;
    [[nodiscard]] const UnitPair* FindPairByMetric(std::string_view metric) const;

    /// Reads the recent files by their sort order, lets `edit` change them, and writes them back, with
    /// no other program in between. Rows are never added or removed. Throws DatabaseError.
    void EditRecentFiles(const std::function<void(std::vector<RecentFile>&)>& edit);

    /// The recent files by their sort order. Throws DatabaseError.
    [[nodiscard]] std::vector<RecentFile> RecentFiles();

  private:
    void ReadVariables();
    void ReadFields();
    void ReadScreens();
    void ReadUnitPairs();
    void GroupFields();
    [[nodiscard]] std::optional<std::uint32_t> FindFieldGroup(std::string_view screen) const;

    /// The places of a screen's fields, in the order of the catalogue.
    [[nodiscard]] const std::vector<std::size_t>& PlacesOnScreen(std::string_view screen) const;

    std::unique_ptr<SQLite::Database> database_;
    std::vector<Variable> variables_;
    NameIndex variableByName_;
    std::vector<Field> fields_;
    NameIndex screenOfFields_;
    std::vector<std::vector<std::size_t>> fieldsOfScreen_;  // in the order of that index: places in fields_
    std::vector<Screen> screens_;
    std::vector<UnitPair> unitPairs_;
};

}  // namespace kelvor
