#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvor {

enum class ControlKind { Label, TextBox, ComboBox, CommandButton, OptionButton, CheckBox, Frame, Image };

const char* NameOf(ControlKind kind);

/// A colour as "#RRGGBB", or as the name of a colour of the user's palette.
using Colour = std::string_view;

namespace colours {
inline constexpr Colour kWindow = "window";
inline constexpr Colour kButtonFace = "buttonface";
inline constexpr Colour kWindowText = "windowtext";
inline constexpr Colour kLightCyan = "#00FFFF";    // a computed value
inline constexpr Colour kLightRed = "#FF0000";     // a warning
inline constexpr Colour kBrightWhite = "#FFFFFF";  // the text of a warning
inline constexpr Colour kResting = "#C0C0C0";      // an indicator at rest
inline constexpr Colour kBlack = "#000000";
}  // namespace colours

/// One element of a form, as the model holds it. A front end mirrors it and decides nothing.
struct Control {
    ControlKind kind = ControlKind::Label;
    std::string name;
    std::string tag;      // the variable of a field, "u" and the variable of a unit label; else empty
    std::string text;     // of a box; the caption of a label, button or frame
    std::string picture;  // the number picture of a field; sizes its box
    std::string toolTip;
    std::vector<std::string> items;  // of a list
    bool enabled = true;
    bool visible = true;
    bool locked = false;  // shows a value and takes none
    bool tabStop = true;
    bool value = false;  // of an option button or a check box
    bool bold = false;
    Colour backColor = colours::kButtonFace;
    Colour foreColor = colours::kWindowText;
    char accessKey = '\0';  // pressed with Alt: moves the focus here, and clicks a button
    std::string labelOf;    // of a caption: the control it describes
    int page = -1;          // of the tab strip; -1: on every page
    int group = 0;          // of option buttons: one of a group is selected; the innermost frame or page

    /// A box whose Tag is a variable.
    [[nodiscard]] bool IsField() const;

    [[nodiscard]] bool IsButton() const { return kind == ControlKind::CommandButton; }
    [[nodiscard]] bool IsChoice() const {
        return kind == ControlKind::OptionButton || kind == ControlKind::CheckBox;
    }

    /// True if the user can put the focus here.
    [[nodiscard]] bool TakesFocus() const;
};

}  // namespace kelvor
