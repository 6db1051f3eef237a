#include "forms/side_screen.h"

#include "forms/act_name.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr double kTrue = -1.0;

}  // namespace

SideScreenCall MakeCall(const Form& caller, const std::string& field, int row) {
    return {caller.name(), field, row, caller.TextOf("Dim2")};
}

void NoteCall(Form& sideScreen, const SideScreenCall& call) {
    sideScreen.SetText("FormName", call.caller);
    sideScreen.SetText("FieldName", call.field);
    sideScreen.SetText("Dim1", call.row == 0 ? "" : std::to_string(call.row));
    sideScreen.SetText("Column", call.row == 0 ? "" : call.field);
    sideScreen.SetText("Dim2", call.dim2);
}

CellValue CalledField(const ScreenContext& context, const Form& sideScreen) {
    const CellValue* cell = context.calc.store.FindCell(
        sideScreen.TextOf("FieldName"), sideScreen.dim1().value_or(1), sideScreen.dim2().value_or(1));
    return cell == nullptr ? CellValue{} : *cell;
}

std::string ContentOf(const ProjectStore& store, std::span<const char* const> variables) {
    std::string content;
    for (const char* variable : variables) {
        const CellValue* cell = store.FindCell(variable, 1, 1);
        if (cell != nullptr && cell->number) {
            content += NumberToText(*cell->number);
        } else if (cell != nullptr && cell->text) {
            content += "\"" + *cell->text;
        }
        content += "\n";
    }
    return content;
}

bool IsSameValue(const CellValue& one, const CellValue& other) {
    return one.number || other.number ? one.number == other.number : one == other;
}

void ReturnFromSideScreen(ScreenContext& context, const Form& sideScreen, bool valueTaken) {
    context.calc.store.SetVar("FieldChanged", valueTaken ? kTrue : 0.0);
    if (valueTaken) {
        context.bProjectChanged = true;
        context.act = ChangeOf(context, sideScreen.TextOf("FieldName"), sideScreen.dim1().value_or(0));
    }
    Form* caller = context.forms.Find(sideScreen.TextOf("FormName"));
    if (caller == nullptr) return;
    caller->returned =
        SideScreenReturn{sideScreen.TextOf("FieldName"), sideScreen.dim1().value_or(0), valueTaken};
    if (context.forms.CurrentForm == &sideScreen) context.forms.BringToFront(*caller);
}

}  // namespace kelvor
