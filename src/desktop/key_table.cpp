#include "desktop/key_table.h"

#include <algorithm>

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
    };
    return table;
}

QList<QKeySequence> KeysOf(KeyAct act) {
    const std::vector<KeyRow>& table = WindowKeys();
    const auto row = std::find_if(table.begin(), table.end(), [&](const KeyRow& r) { return r.act == act; });
    return QKeySequence::listFromString(QString::fromLatin1(row->keys));
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
