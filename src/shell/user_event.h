#pragma once

#include <string>

#include "forms/cell_block.h"

namespace kelvor {

/// One act of the user on the windows. A front end tells the program nothing else.
struct UserEvent {
    enum class Kind {
        OpenForm,      // name: the form; number: the slice that it shows, 0: as it has it
        ActivateForm,  // name: an open form
        CloseForm,     // name: an open form; its close box
        Focus,         // name: a control of the current form
        Type,          // text: what the control in focus now holds
        Key,           // name: of the key
        Press,         // name: a button of the current form
        EditCell,      // of the current form's grid; number: row; name: variable of the column; text
        MoveToCell,    // number: row; name: variable of the column, empty: the cursor stays in its column
        DeleteRow,     // number: row
        InsertRow,     // number: row, which becomes empty
        MoveRowUp,     // number: row, which changes places with the one above
        MoveRowDown,   // number: row, which changes places with the one below
        PasteCells,    // text: tab-separated lines, for the cells from the cursor on
        EmptyCells,    // cells: the block to be emptied
        Choose,        // name: an option, a check box or a list; text: the item of a list
        SwitchTab,     // number: of the hub's tab, from 0
        Menu,          // name: of the entry; number: of one that shares its name
        OpenFile,      // text: the path of a project, dropped on the window
    };

    Kind kind;
    std::string name = {};
    std::string text = {};
    int number = 0;
    CellRange cells = {};
};

}  // namespace kelvor
