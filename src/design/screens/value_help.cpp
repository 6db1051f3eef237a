#include "design/screens/value_help.h"

#include "forms/field_help.h"
#include "forms/form.h"
#include "forms/form_builder.h"

namespace kelvor {

namespace {

void Load(ScreenEvent& event) {
    RecallField(event.context, event.form);
    ShowCalledField(event.context, event.form, "Help Screen for ");
    Control& unit = event.form.Get("Units");
    unit.visible = !IsNoUnit(unit.text);
}

FormType PlainValueHelp(const char* name) {
    FormType type;
    type.name = name;
    type.caption = "Help Screen";
    type.modal = true;
    type.isHelp = true;
    type.layout = Rows({
        Verdict("HelpHead"),
        Text("HelpText", ""),
        Fields({{.label = "Value", .box = "TextBox", .labelName = "Label", .unitName = "Units"}}),
        Hidden({"Dim1"}),
    });
    type.foot = {BackToFieldButton(kOkButton)};
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, Load},
                     {FormEvent::LostFocus, "", HandlerOrder::Before, DropCommas},
                     {FormEvent::Unload, "", HandlerOrder::Before, CloseValueHelp}};
    return type;
}

}  // namespace

FormType StructuralNumberHelp() { return PlainValueHelp("H_SN"); }
FormType SoilModulusHelp() { return PlainValueHelp("H_SRMII"); }

}  // namespace kelvor
