// A grid that decides for each of its rows and cells, on the screen.

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"
#include "forms/layout.h"

namespace kelvor::test {
namespace {

std::string ReadWords(const ScreenContext& context, const Form& /*form*/, int row) {
    const CellValue* cell = context.calc.store.FindCell("LDLayerThick", row, 1);
    return cell->number ? "about " + std::to_string(static_cast<int>(*cell->number)) : "";
}

bool MayDelete(ScreenContext& /*context*/, Form& /*form*/, int row) { return row != 1; }

bool MayEdit(const ScreenContext& /*context*/, const Form& /*form*/, int row, const GridColumn& column) {
    return row != 1 || column.variable != "LDLayerCoef";
}

std::string NoteOf(const ScreenContext& /*context*/, const Form& /*form*/, int row,
                   const GridColumn& /*column*/) {
    return row == 2 ? "look at this" : "";
}

FormType RuledForm() {
    FormType type;
    type.name = "Ruled";
    type.tag = "LayDet";
    type.layout = Grid("Grid",
                       {{.variable = "LDLayerCoef"},
                        {.variable = "LDLayerThick", .routines = {.read = ReadWords}},
                        {.variable = "LDDrainCoef"}},
                       0, {.mayDelete = MayDelete, .mayEdit = MayEdit, .note = NoteOf});
    return type;
}

class RuledGridWindowTest : public KeyboardTest {
  protected:
    RuledGridWindowTest() {
        state().formRegistry.Declare({RuledForm()});
        for (int row = 1; row <= 3; ++row) state().dbWork.SetCell("LDLayerThick", row, 1, {row * 1.0, {}});
        window().door().Raise({UserEvent::Kind::OpenForm, "Ruled", {}, 0});
    }

    GridView& Table() { return dynamic_cast<GridView&>(*window().FindView("Ruled")->FindWidget("Grid")); }

    QVariant At(int row, int column, int role = Qt::DisplayRole) {
        return Table().model()->index(row - 1, column).data(role);
    }
};

TEST_F(RuledGridWindowTest, ACellThatIsReadOnlyInItsRowOpensNoLine) {
    Press(Qt::Key_F2);
    EXPECT_EQ(Table().editor(), nullptr);
    EXPECT_NE(At(1, 0, Qt::BackgroundRole), At(2, 0, Qt::BackgroundRole)) << "it looks otherwise";
    Press(Qt::Key_Down);
    Press(Qt::Key_F2);
    EXPECT_NE(Table().editor(), nullptr);
}

TEST_F(RuledGridWindowTest, AColumnShowsWhatItReads) { EXPECT_EQ(At(3, 1).toString(), "about 3"); }

TEST_F(RuledGridWindowTest, ANoteIsTheToolTipOfItsCell) {
    EXPECT_EQ(At(2, 1, Qt::ToolTipRole).toString(), "look at this");
    EXPECT_NE(At(1, 1, Qt::ToolTipRole).toString(), "look at this");
    WindowDriver driver(desktop, responder);
    const std::vector<GridCellReport> cells = driver.GridCells();
    ASSERT_EQ(cells.size(), 3U);
    EXPECT_EQ(cells[0].note, "");
    EXPECT_EQ(cells[1].note, "look at this");
}

TEST_F(RuledGridWindowTest, ARowThatMayNotGoStays) {
    Press(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_THAT(Messages(), testing::IsEmpty());
    EXPECT_EQ(At(1, 1).toString(), "about 1");
    Press(Qt::Key_Down);
    Press(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_EQ(At(2, 1).toString(), "about 3");
}

}  // namespace
}  // namespace kelvor::test
