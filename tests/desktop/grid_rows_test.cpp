// Whole rows of a grid, and blocks of its cells, at the windows.

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace kelvor::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The layers of a flexible pavement, of which three are filled.
class GridRowsTest : public KeyboardTest {
  protected:
    GridRowsTest() {
        window().door().Raise({UserEvent::Kind::OpenForm, "LayDet", {}, 0});
        window().door().Raise({UserEvent::Kind::MoveToCell, "LDLayerCoef", {}, 1});
        window().door().Raise({UserEvent::Kind::PasteCells, {}, "0.44\t1\t4\n0.14\t1\t6\n0.11\t1\t8"});
        QApplication::processEvents();
    }

    GridView& Grid() { return dynamic_cast<GridView&>(*window().FindView("LayDet")->FindWidget("Grid")); }

    std::vector<double> Thicknesses() {
        std::vector<double> all;
        for (int row = 1; row <= 4; ++row)
            all.push_back(state().dbWork.GetVarDim("LDLayerThick", row, 1).value());
        return all;
    }

    std::string Total() {
        return window().FindView("LayDet")->findChild<QLineEdit*>("SSN")->text().toStdString();
    }

    void MoveTo(int row) { window().door().Raise({UserEvent::Kind::MoveToCell, "LDLayerThick", {}, row}); }

    void Mark(int firstRow, int lastRow, int column) {
        const QModelIndex first = Grid().model()->index(firstRow - 1, column);
        const QModelIndex last = Grid().model()->index(lastRow - 1, column);
        Grid().selectionModel()->select(QItemSelection(first, last), QItemSelectionModel::ClearAndSelect);
    }
};

TEST_F(GridRowsTest, ARowIsInsertedAndItsNeighboursKeepTheirValues) {
    const std::string total = Total();
    MoveTo(2);
    Press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_THAT(Thicknesses(), ElementsAre(4.0, 0.0, 6.0, 8.0));
    EXPECT_EQ(Total(), total) << "an empty layer adds nothing";
    window().FindAction("MenuEditUndo")->trigger();
    EXPECT_THAT(Thicknesses(), ElementsAre(4.0, 6.0, 8.0, 0.0)) << "it is one step";
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(GridRowsTest, NoRowIsInsertedIntoAFullTable) {
    MoveTo(1);
    for (int i = 0; i < 3; ++i) Press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_THAT(Thicknesses(), ElementsAre(0.0, 0.0, 0.0, 4.0));
    Press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_THAT(Messages(), ElementsAre("The last row of the table is filled. Delete a row first."));
    EXPECT_THAT(Thicknesses(), ElementsAre(0.0, 0.0, 0.0, 4.0));
}

TEST_F(GridRowsTest, ARowMovesUpAndDownWithTheCursor) {
    MoveTo(3);
    Press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(Thicknesses(), ElementsAre(4.0, 8.0, 6.0, 0.0));
    EXPECT_EQ(Grid().currentIndex().row(), 1);
    EXPECT_EQ(state().dbWork.GetVarDim("LDLayerCoef", 2, 1), 0.11) << "the whole row has moved";
    Press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    Press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(Thicknesses(), ElementsAre(8.0, 4.0, 6.0, 0.0)) << "the first row stays";
    Press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(Thicknesses(), ElementsAre(4.0, 8.0, 6.0, 0.0));
}

TEST_F(GridRowsTest, ABlockIsFilledWithItsFirstRow) {
    MoveTo(1);
    Mark(1, 4, 3);
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_THAT(Thicknesses(), ElementsAre(4.0, 4.0, 4.0, 4.0));
}

TEST_F(GridRowsTest, TheFootShowsSumAndMeanOfTheMarkedCells) {
    MoveTo(1);
    Mark(1, 4, 3);
    auto* figures = window().findChild<QLabel*>("Figures");
    EXPECT_EQ(figures->text(), "Sum 18, mean 6 of 3 cells");  // 4, 6 and 8; the fourth is empty
    Mark(1, 1, 3);
    EXPECT_EQ(figures->text(), "");
}

TEST_F(GridRowsTest, TheFootShowsALargeSumToItsLastDigit) {
    window().door().Raise({UserEvent::Kind::OpenForm, "LcA1_3", {}, 0});
    window().door().Raise({UserEvent::Kind::MoveToCell, "MaintUnitCost", {}, 1});
    window().door().Raise({UserEvent::Kind::PasteCells, {}, "1066438.50\n0.25", 0});
    auto& grid = dynamic_cast<GridView&>(*window().FindView("LcA1_3")->FindWidget("Grid"));
    const int column = grid.currentIndex().column();
    grid.selectionModel()->select(
        QItemSelection(grid.model()->index(0, column), grid.model()->index(1, column)),
        QItemSelectionModel::ClearAndSelect);
    EXPECT_EQ(window().findChild<QLabel*>("Figures")->text(), "Sum 1066438.75, mean 533219.375 of 2 cells");
}

TEST_F(GridRowsTest, TheWholeNameOfAnItemIsTypedIntoAListCell) {
    // A material with a blank in its name.
    const GridData& grid = *state().formRegistry.Find("LayDet")->FindGrid()->grid;
    const std::vector<std::string>& items = grid.columns.front().items;
    const auto named = std::find_if(items.begin(), items.end(), [](const std::string& item) {
        return item.find(' ') != std::string::npos && item.find("  ") == std::string::npos;
    });
    ASSERT_NE(named, items.end());
    window().door().Raise({UserEvent::Kind::MoveToCell, grid.columns.front().variable, {}, 4});
    Type(named->c_str());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a blank inside a name opens no list";
    Press(Qt::Key_Return);
    EXPECT_EQ(state().dbWork.FindCell(grid.columns.front().variable, 4, 1)->text, *named);
}

}  // namespace
}  // namespace kelvor::test
