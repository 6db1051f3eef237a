#pragma once

#include <string>
#include <vector>

namespace kelvor {

class Form;
struct GridColumn;
struct ScreenContext;

/// How a column reads and writes its cells, if not as the project's cells of its variable. Null: as usual.
/// What is written has passed the tests of every cell, and may be empty. Rows count from 1.
struct ColumnRoutines {
    std::string (*read)(const ScreenContext& context, const Form& form, int row) = nullptr;
    void (*write)(ScreenContext& context, Form& form, int row, const std::string& text) = nullptr;
};

/// Where the rows of a grid have gone: of each row, from 1 on, the row in which its cells stand now, and 0 if
/// it was empty or has been deleted.
using RowMoves = std::vector<int>;

/// What a grid decides for each of its rows and cells. Null: every row may go, every cell of a column that is
/// not computed can be edited, and no cell has a note; and nothing but cells goes with a row.
struct GridRoutines {
    /// May this row be deleted? Asked before the user is; a refusal may tell why with a message of its own.
    bool (*mayDelete)(ScreenContext& context, Form& form, int row) = nullptr;

    /// Can this cell be edited? Asked while painting too: it reads and does nothing else.
    bool (*mayEdit)(const ScreenContext& context, const Form& form, int row,
                    const GridColumn& column) = nullptr;

    /// What a cell has to say beside its text; empty: nothing. Asked while painting too.
    std::string (*note)(const ScreenContext& context, const Form& form, int row,
                        const GridColumn& column) = nullptr;

    /// Takes along what the screen keeps of a row beside the project's cells. Called once the cells of rows
    /// have changed places, before anything is worked out anew.
    void (*rowsMoved)(Form& form, const RowMoves& moves) = nullptr;
};

}  // namespace kelvor
