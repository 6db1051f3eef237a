// What a grid shows while a cell is worked on, and where the focus can be seen.

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/grid_view.h"

namespace kelvor::test {
namespace {

class GridSightTest : public KeyboardTest {
  protected:
    void Open(const char* form) { window().door().Raise({UserEvent::Kind::OpenForm, form, {}, 0}); }

    GridView& Grid(const char* form, const char* name = "Grid") {
        return dynamic_cast<GridView&>(*window().FindView(form)->FindWidget(name));
    }

    static std::string Shown(const GridView& grid, int row, int column) {
        return grid.model()->index(row - 1, column).data().toString().toStdString();
    }
};

TEST_F(GridSightTest, AnItemThatIsPickedShowsBeforeItIsStored) {
    Open("LayDet");
    GridView& grid = Grid("LayDet");
    Press(Qt::Key_F2);
    auto* list = qobject_cast<QComboBox*>(grid.editor());
    ASSERT_NE(list, nullptr);
    Press(Qt::Key_Down);
    const QString first = list->currentText();
    EXPECT_FALSE(first.isEmpty());
    EXPECT_EQ(list->currentText().toStdString(), Shown(grid, 1, 0));
    Press(Qt::Key_Down);
    EXPECT_NE(list->currentText(), first) << "the next one, not the first again";
    const std::string picked = list->currentText().toStdString();
    Press(Qt::Key_Tab);
    EXPECT_EQ(Shown(grid, 1, 0), picked);
    EXPECT_EQ(state().dbWork.FindCell("LDLayerMat", 1, 1)->text, picked);
}

TEST_F(GridSightTest, WhatIsBeingTypedStaysInSightWhileAMenuIsOpen) {
    Open("LayDet");
    GridView& grid = Grid("LayDet");
    Press(Qt::Key_Tab);
    Type("0.4");
    ASSERT_NE(grid.editor(), nullptr);
    QFocusEvent leave(QEvent::FocusOut, Qt::MenuBarFocusReason);
    QApplication::sendEvent(grid.editor(), &leave);
    ASSERT_NE(grid.editor(), nullptr) << "a menu only borrows the focus";
    Type("4");
    EXPECT_EQ(qobject_cast<QLineEdit*>(grid.editor())->text(), "0.44");
    QFocusEvent other(QEvent::FocusOut, Qt::MouseFocusReason);
    QApplication::sendEvent(grid.editor(), &other);
    QApplication::processEvents();
    EXPECT_EQ(Shown(grid, 1, 1), "0.44") << "also when its line is closed";
    EXPECT_FALSE(state().dbWork.FindCell("LDLayerCoef", 1, 1)->IsFilled());
    grid.setFocus();
    Press(Qt::Key_Tab);
    EXPECT_EQ(state().dbWork.GetVarDim("LDLayerCoef", 1, 1), 0.44);
}

TEST_F(GridSightTest, DeleteEmptiesEveryMarkedCell) {
    for (int row = 1; row <= 3; ++row) {
        desktop.program().SetValue("AxleWeight", row, 1, "18");
        desktop.program().SetValue("NumOfAxles", row, 1, "10");
    }
    Open("TrAx");
    GridView& grid = Grid("TrAx");
    grid.setFocus();
    grid.selectionModel()->select(QItemSelection(grid.model()->index(0, 1), grid.model()->index(1, 3)),
                                  QItemSelectionModel::ClearAndSelect);
    Press(Qt::Key_Delete);
    for (const char* column : {"AxleWeight", "NumOfAxles"}) {
        EXPECT_FALSE(state().dbWork.FindCell(column, 1, 1)->IsFilled()) << column;
        EXPECT_FALSE(state().dbWork.FindCell(column, 2, 1)->IsFilled()) << column;
        EXPECT_TRUE(state().dbWork.FindCell(column, 3, 1)->IsFilled()) << column;
    }
}

TEST_F(GridSightTest, AnAddedRowIsInSight) {
    window().door().Raise({UserEvent::Kind::SwitchTab, {}, {}, 6});
    window().door().Raise({UserEvent::Kind::Choose, "CustCombo", "Layer Materials", 0});
    window().door().Raise({UserEvent::Kind::Press, "cmdbAddMaint", {}, 0});
    QApplication::processEvents();
    GridView& grid = Grid("TabForm", "DBGrid1");
    const QRect row = grid.visualRect(grid.currentIndex());
    EXPECT_EQ(grid.currentIndex().row(), grid.model()->rowCount() - 1);
    EXPECT_TRUE(grid.viewport()->rect().contains(row)) << row.top() << " of " << grid.viewport()->height();
}

TEST_F(GridSightTest, TheFocusOfAButtonCanBeSeen) {
    Open("DeF");
    FormView& view = *window().FindView("DeF");
    auto& button = dynamic_cast<QPushButton&>(*view.FindWidget("cmdAction"));
    const QImage without = button.grab().toImage();
    window().door().Raise({UserEvent::Kind::Focus, "cmdAction", {}, 0});
    ComeToFront();
    ASSERT_TRUE(button.hasFocus());
    EXPECT_NE(button.grab().toImage(), without);
}

TEST_F(GridSightTest, AFieldOutsideASmallWindowIsScrolledIntoSight) {
    Open("DeS");
    window().resize(500, 360);
    QApplication::processEvents();
    FormView& view = *window().FindView("DeS");
    for (const char* field : {"FLEXPT", "DEPTH", "SN"}) {
        window().door().Raise({UserEvent::Kind::Focus, field, {}, 0});
        QApplication::processEvents();
        const QWidget& box = *view.FindWidget(field);
        const auto* area = window().findChild<QMdiArea*>();
        const QRect place(box.mapTo(area, QPoint(0, 0)), box.size());
        EXPECT_TRUE(area->rect().contains(place)) << field << " at " << place.left() << ", " << place.top();
    }
}

TEST_F(GridSightTest, TheWindowClosesOverAHelpWhoseValueGoesToItsFieldFirst) {
    Open("DeF");
    Press(Qt::Key_F1);
    Type("5000");
    responder.QueueAnswer("cancel");
    window().close();
    EXPECT_EQ(Messages().size(), 1U);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(state().dbWork.GetVar("FLEXE18"), 5000.0);
}

TEST_F(GridSightTest, WithoutAProjectTheStatusLineSaysSo) {
    const std::string broken = home / "broken.kvr";
    WriteFile(broken, "a text");
    window().door().Raise({UserEvent::Kind::OpenFile, {}, broken, 0});
    QStringList hints;
    for (const QLabel* label : window().statusBar()->findChildren<QLabel*>()) hints << label->text();
    EXPECT_TRUE(hints.join(' ').contains("No project is open")) << hints.join(' ').toStdString();
}

}  // namespace
}  // namespace kelvor::test
