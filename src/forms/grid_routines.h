#pragma once

#include <string>

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

/// What a grid decides for each of its rows and cells. Null: every row may go, every cell of a column that is
/// not computed can be edited, and no cell has a note.
struct GridRoutines {
    /// May this row be deleted? Asked before the user is; a refusal may tell why with a message of its own.
    bool (*mayDelete)(ScreenContext& context, Form& form, int row) = nullptr;

    /// Can this cell be edited? Asked while painting too: it reads and does nothing else.
    bool (*mayEdit)(const ScreenContext& context, const Form& form, int row,
                    const GridColumn& column) = nullptr;

    /// What a cell has to say beside its text; empty: nothing. Asked while painting too.
    std::string (*note)(const ScreenContext& context, const Form& form, int row,
                        const GridColumn& column) = nullptr;
};

}  // namespace kelvor
