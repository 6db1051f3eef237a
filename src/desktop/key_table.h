#pragma once

#include <QKeyEvent>
#include <QKeySequence>
#include <QList>
#include <optional>
#include <vector>

namespace kelvor {

/// What a key of the windows does, beside the keys of the menus and those that the model handles.
enum class KeyAct {
    NextTab,
    PreviousTab,
    NumberedTab,  // the first of its keys is that of the first tab
    OpenList,
    InsertRow,
    MoveRowUp,
    MoveRowDown,
    FillDown,
    DeleteRow,
    CopyValue,
    CopyScreen,
    ShowOverview,
    ContextMenu,
    PageBack,
    PageOn,
    FirstPage,
    LastPage,
    ZoomOut,
    ZoomIn,
    FitWidth,
    FullSize,
    FindWords,
    FindBack,
    FindOn,
    PageSetup,
    SaveReport,
};

/// A row of the table from which keys are bound, and which the help page of keys shows.
struct KeyRow {
    KeyAct act;
    const char* keys;    // parted by "; "
    const char* shown;   // the same as the help writes them
    const char* effect;  // in words
};

const std::vector<KeyRow>& WindowKeys();

/// Those of the tools above the pages of a report.
const std::vector<KeyRow>& PreviewKeys();

/// The keys of an act.
QList<QKeySequence> KeysOf(KeyAct act);

/// Which of an act's keys was pressed, from 0; nothing if none was.
std::optional<int> PressedKeyOf(KeyAct act, const QKeyEvent& key);

bool IsKeyOf(KeyAct act, const QKeyEvent& key);

/// The first key of an act as a menu shows it.
QString ShownKeyOf(KeyAct act);

}  // namespace kelvor
