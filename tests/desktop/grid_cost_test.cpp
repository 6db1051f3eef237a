// What painting a grid asks of the databases.

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <QApplication>
#include <QClipboard>
#include <QTableView>
#include <QTest>
#include <atomic>

#include "desktop/desktop_fixture.h"
#include "forms/form_type.h"

namespace kelvor::test {
namespace {

/// Statements that any database of this process has begun.
std::atomic<int> statements{0};

/// Transactions among them that were ended.
std::atomic<int> transactions{0};

int NoteStatement(unsigned /*kind*/, void* /*context*/, void* /*statement*/, void* text) {
    ++statements;
    if (std::string_view(static_cast<const char*>(text)).starts_with("COMMIT")) ++transactions;
    return 0;
}

int WatchDatabase(sqlite3* database, char** /*error*/, const void* /*routines*/) {
    return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, NoteStatement, nullptr);
}

/// Watches every database that is opened while it lives.
class StatementCounter {
  public:
    StatementCounter() { sqlite3_auto_extension(Entry()); }
    StatementCounter(const StatementCounter&) = delete;
    StatementCounter& operator=(const StatementCounter&) = delete;
    ~StatementCounter() { sqlite3_cancel_auto_extension(Entry()); }

  private:
    using EntryPoint = void (*)();
    static EntryPoint Entry() { return reinterpret_cast<EntryPoint>(WatchDatabase); }
};

const std::vector<std::string> kColumns = {"Msg", "DR",  "NDTLOADF", "D0F", "NDTLOAD",
                                           "D0",  "D12", "D24",      "D36", "NDTRM"};
constexpr int kRows = 50;

FormType WideForm() {
    std::vector<FieldItem> columns;
    for (const std::string& name : kColumns) columns.push_back({.variable = name});
    FormType type;
    type.name = "Wide";
    type.tag = "LayDet";
    type.layout = Grid("Grid", std::move(columns));
    return type;
}

class GridCostTest : private StatementCounter, public DesktopTest {
  protected:
    GridCostTest() {
        state().formRegistry.Declare({WideForm()});
        for (int row = 1; row <= kRows; ++row) {
            for (std::size_t i = 1; i < kColumns.size(); ++i) {
                state().dbWork.SetCell(kColumns[i], row, 1, {row * 1.5, std::nullopt});
            }
        }
        window().door().Raise({UserEvent::Kind::OpenForm, "Wide", {}, 0});
        QApplication::processEvents();
    }

    QTableView& Table() { return *window().FindView("Wide")->findChild<QTableView*>(); }

    std::string Cell(int row, const std::string& variable) {
        return state().units->GetDisplayValue(variable, row, 1);
    }

    void Paste(const QString& block) {
        Table().setFocus();
        window().door().Raise({UserEvent::Kind::MoveToCell, "DR", {}, 1});
        QApplication::clipboard()->setText(block);
        QTest::keyClick(&Table(), Qt::Key_V, Qt::ControlModifier);
        QApplication::processEvents();
    }
};

TEST_F(GridCostTest, RepaintingFiftyRowsByTenColumnsRunsNoStatement) {
    Table().setMinimumSize(1600, 30 * (kRows + 4));
    Table().resize(1600, 30 * (kRows + 4));
    ASSERT_GE(Table().rowAt(Table().viewport()->height() - 1), kRows - 1) << "all fifty rows are in sight";
    statements = 0;
    const QPixmap picture = Table().grab();
    EXPECT_EQ(statements, 0);
    EXPECT_FALSE(picture.isNull());
    window().door().Raise({UserEvent::Kind::EditCell, "DR", "2", 1});
    EXPECT_GT(statements, 0) << "the counter counts: an edit is written through";
}

TEST_F(GridCostTest, ABlockOfFiftyRowsByFiveColumnsIsPasted) {
    QString block;
    for (int row = 1; row <= kRows; ++row) block += QStringLiteral("%1\t1,000\t\"3\"\t4.5\t5e0\r\n").arg(row);
    Paste(block);
    EXPECT_THAT(Messages(), testing::IsEmpty());
    for (const int row : {1, 25, kRows}) {
        EXPECT_EQ(state().dbWork.GetVarDim("DR", row, 1), row);
        EXPECT_EQ(state().dbWork.GetVarDim("NDTLOADF", row, 1), 1000.0);
        EXPECT_EQ(state().dbWork.GetVarDim("D0F", row, 1), 3.0);
        EXPECT_EQ(state().dbWork.GetVarDim("NDTLOAD", row, 1), 4.5);
        EXPECT_EQ(state().dbWork.GetVarDim("D0", row, 1), 5.0);
    }
    EXPECT_EQ(state().dbWork.GetVarDim("DR", kRows + 1, 1), 0.0);
}

TEST_F(GridCostTest, ARaggedBlockLeavesTheCellsThatItDoesNotName) {
    Paste(QStringLiteral("7\t8\n9\n10\t11\t12\n"));
    EXPECT_EQ(state().dbWork.GetVarDim("NDTLOADF", 1, 1), 8.0);
    EXPECT_EQ(state().dbWork.GetVarDim("DR", 2, 1), 9.0);
    EXPECT_EQ(state().dbWork.GetVarDim("NDTLOADF", 2, 1), 3.0) << "as it was";
    EXPECT_EQ(state().dbWork.GetVarDim("D0F", 3, 1), 12.0);
}

TEST_F(GridCostTest, ARowWithABadCellIsLeftOut) {
    Paste(QStringLiteral("7\t8\n9\tmany\n10\t11\n"));
    EXPECT_THAT(Messages(),
                testing::ElementsAre("1 row was left out: row 2, Load: Please enter valid numeric value."));
    EXPECT_EQ(state().dbWork.GetVarDim("DR", 2, 1), 3.0) << "as it was";
    EXPECT_EQ(state().dbWork.GetVarDim("NDTLOADF", 2, 1), 3.0) << "as it was";
    EXPECT_EQ(state().dbWork.GetVarDim("DR", 3, 1), 10.0);
}

TEST_F(GridCostTest, ABlockIsOneTransaction) {
    QString block;
    for (int row = 1; row <= 300; ++row) block += QStringLiteral("%1\t5\n").arg(row);
    transactions = 0;
    Paste(block);
    EXPECT_EQ(transactions, 1);
    Table().setFocus();
    Table().selectionModel()->select(
        QItemSelection(Table().model()->index(0, 1), Table().model()->index(299, 2)),
        QItemSelectionModel::ClearAndSelect);
    transactions = 0;
    QTest::keyClick(&Table(), Qt::Key_Delete);
    EXPECT_EQ(transactions, 1);
    EXPECT_EQ(Cell(1, "DR"), "");
    EXPECT_EQ(Cell(300, "NDTLOADF"), "");
    EXPECT_EQ(Table().currentIndex(), Table().model()->index(0, 1)) << "the cursor stands where it stood";
}

TEST_F(GridCostTest, ADecimalCommaIsReadAsAGroupOfDigits) {
    Paste(QStringLiteral("4,5\n"));
    EXPECT_EQ(state().dbWork.GetVarDim("DR", 1, 1), 45.0);
}

TEST_F(GridCostTest, ABlockBeyondTheLastRowIsCut) {
    QString block;
    for (int row = 1; row <= 320; ++row) block += "3\n";
    Paste(block);
    EXPECT_THAT(Messages(),
                testing::ElementsAre("20 rows were left out. The first is row 301, Deflection dr: "
                                     "The table has no such row."));
    EXPECT_EQ(state().dbWork.GetVarDim("DR", 300, 1), 3.0);
    EXPECT_EQ(Table().model()->rowCount(), 300);
}

}  // namespace
}  // namespace kelvor::test
