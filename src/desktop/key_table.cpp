#include "desktop/key_table.h"

namespace kelvor {

const std::vector<KeyRow>& WindowKeys() {
    static const std::vector<KeyRow> table = {
        {KeyAct::NextTab, "Ctrl+Tab; Ctrl+PgDown", "Ctrl+Tab, Ctrl+Page Down", "The next tab"},
        {KeyAct::PreviousTab, "Ctrl+Shift+Tab; Ctrl+Shift+Backtab; Ctrl+PgUp", "Ctrl+Shift+Tab, Ctrl+Page Up",
         "The tab before"},
        {KeyAct::NumberedTab, "Ctrl+1; Ctrl+2; Ctrl+3; Ctrl+4; Ctrl+5; Ctrl+6; Ctrl+7; Ctrl+8",
         "Ctrl+1 to Ctrl+8", "The tab of that number"},
        {KeyAct::OpenList, "Alt+Down", "Alt+Down", "Opens the list of a field or a cell"},
        {KeyAct::InsertRow, "Ctrl+I", "Ctrl+I", "In a table: inserts an empty row"},
        {KeyAct::MoveRowUp, "Ctrl+Shift+Up", "Ctrl+Shift+Up", "In a table: moves the row up"},
        {KeyAct::MoveRowDown, "Ctrl+Shift+Down", "Ctrl+Shift+Down", "In a table: moves the row down"},
        {KeyAct::FillDown, "Ctrl+D", "Ctrl+D", "In a table: fills a marked block with its first row"},
        {KeyAct::DeleteRow, "Ctrl+Del", "Ctrl+Delete", "In a table: deletes the row"},
        {KeyAct::CopyValue, "Ctrl+Shift+C", "Ctrl+Shift+C", "Copies the value of the field with its unit"},
        {KeyAct::CopyScreen, "Ctrl+Shift+T", "Ctrl+Shift+T", "Copies the whole screen as a table"},
        {KeyAct::ShowOverview, "F9", "F9", "Shows or hides the overview of the project"},
        {KeyAct::ContextMenu, "Shift+F10", "Shift+F10",
         "Like the Menu key: the menu of a field or a table, or of the drawings of a window"},
    };
    return table;
}

const std::vector<KeyRow>& PreviewKeys() {
    static const std::vector<KeyRow> table = {
        {KeyAct::PageOn, "Ctrl+PgDown", "Ctrl+Page Down", "On a report: the next page"},
        {KeyAct::PageBack, "Ctrl+PgUp", "Ctrl+Page Up", "On a report: the page before"},
        {KeyAct::FirstPage, "Ctrl+Home", "Ctrl+Home", "On a report: the first page"},
        {KeyAct::LastPage, "Ctrl+End", "Ctrl+End", "On a report: the last page"},
        {KeyAct::ZoomIn, "Ctrl++; Ctrl+=", "Ctrl++", "On a report: larger"},
        {KeyAct::ZoomOut, "Ctrl+-", "Ctrl+-", "On a report: smaller"},
        {KeyAct::FitWidth, "Ctrl+0", "Ctrl+0", "On a report: as wide as the window"},
        {KeyAct::FullSize, "Ctrl+1", "Ctrl+1", "On a report: in its full size"},
        {KeyAct::FindWords, "Ctrl+F", "Ctrl+F", "On a report: finds words"},
        {KeyAct::FindOn, "F3", "F3", "On a report: where the words stand next"},
        {KeyAct::FindBack, "Shift+F3", "Shift+F3", "On a report: where the words stand before"},
        {KeyAct::PageSetup, "Ctrl+Shift+P", "Ctrl+Shift+P", "On a report: paper and margins"},
        {KeyAct::SaveReport, "Ctrl+E", "Ctrl+E", "On a report: saves it as PDF, RTF, HTML or text"},
    };
    return table;
}

QList<QKeySequence> KeysOf(KeyAct act) {
    for (const auto* table : {&WindowKeys(), &PreviewKeys()}) {
        for (const KeyRow& row : *table) {
            if (row.act == act) return QKeySequence::listFromString(QString::fromLatin1(row.keys));
        }
    }
    return {};
}

std::optional<int> PressedKeyOf(KeyAct act, const QKeyEvent& key) {
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const QKeySequence pressed(QKeyCombination(modifiers, static_cast<Qt::Key>(key.key())));
    const qsizetype at = KeysOf(act).indexOf(pressed);
    return at < 0 ? std::nullopt : std::optional(static_cast<int>(at));
}

bool IsKeyOf(KeyAct act, const QKeyEvent& key) { return PressedKeyOf(act, key).has_value(); }

QString ShownKeyOf(KeyAct act) { return KeysOf(act).constFirst().toString(QKeySequence::NativeText); }

}  // namespace kelvor
