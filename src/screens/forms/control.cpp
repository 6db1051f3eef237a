#include "screens/forms/control.h"

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
    }
    return "";
}

bool Control::IsField() const {
    return (kind == ControlKind::TextBox || kind == ControlKind::ComboBox) && !tag.empty();
}

bool Control::TakesFocus() const {
    const bool focusable =
        kind == ControlKind::TextBox || kind == ControlKind::ComboBox || IsButton() || IsChoice();
    return focusable && enabled && visible && tabStop;
}

}  // namespace kelvor
