#include "forms/control.h"

#include "platform/text.h"

namespace kelvor {

const char* NameOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
            return "Label";
        case ControlKind::TextBox:
            return "TextBox";
        case ControlKind::ComboBox:
            return "ComboBox";
        case ControlKind::CommandButton:
            return "CommandButton";
        case ControlKind::OptionButton:
            return "OptionButton";
        case ControlKind::CheckBox:
            return "CheckBox";
        case ControlKind::Frame:
            return "Frame";
        case ControlKind::Image:
            return "Image";
        case ControlKind::Grid:
            return "Grid";
        case ControlKind::Chart:
            return "Chart";
        case ControlKind::ReportPages:
            return "ReportPages";
        case ControlKind::TabStrip:
            return "TabStrip";
    }
    return "";
}

std::optional<std::size_t> GridData::Find(std::string_view variable) const {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (EqualNoCase(columns[i].variable, variable)) return i;
    }
    return std::nullopt;
}

void Control::Lock() {
    locked = true;
    tabStop = false;
}

void Control::LockAsComputed() {
    Lock();
    computed = true;
    backColor = colours::kLightCyan;
}

bool Control::IsField() const {
    return (kind == ControlKind::TextBox || kind == ControlKind::ComboBox) && !tag.empty();
}

bool Control::TakesFocus() const {
    const bool focusable = kind == ControlKind::TextBox || kind == ControlKind::ComboBox ||
                           kind == ControlKind::Grid || IsButton() || IsChoice();
    return focusable && enabled && visible && tabStop;
}

}  // namespace kelvor
