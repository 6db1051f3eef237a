#include "desktop/theme.h"

#include "desktop/qt_text.h"

namespace kelvor {

namespace {

constexpr int kMiddleLightness = 128;

const QColor kComputedLight(0xD6, 0xF3, 0xF7);
const QColor kComputedDark(0x12, 0x49, 0x52);
const QColor kWarning(0xC6, 0x1A, 0x1A);
const QColor kRestingLight(0xDD, 0xE1, 0xE6);
const QColor kRestingDark(0x3C, 0x42, 0x4A);
const QColor kRedLettersLight(0xB0, 0x1A, 0x1A);
const QColor kRedLettersDark(0xFF, 0x8A, 0x80);
const QColor kBlueLettersLight(0x0B, 0x4F, 0xA8);
const QColor kBlueLettersDark(0x82, 0xB1, 0xFF);

bool IsPaletteColour(Colour colour) { return !colour.starts_with('#'); }

/// A box that shows a value without computing it lies flat on the form.
bool IsReadOnlyCopy(const Control& control) {
    return control.kind == ControlKind::TextBox && control.locked && control.backColor == colours::kWindow;
}

/// A box that takes nothing now has the colour of the form.
bool IsOffBox(const Control& control) {
    return control.kind == ControlKind::TextBox && control.visible &&
           control.backColor == colours::kButtonFace;
}

}  // namespace

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < kMiddleLightness;
}

QColor ScreenColour(Colour colour, const QPalette& palette) {
    const bool dark = IsDark(palette);
    if (colour == colours::kWindow) return palette.color(QPalette::Base);
    if (colour == colours::kButtonFace) return palette.color(QPalette::Window);
    if (colour == colours::kLightCyan) return dark ? kComputedDark : kComputedLight;
    if (colour == colours::kLightRed) return kWarning;
    if (colour == colours::kResting) return dark ? kRestingDark : kRestingLight;
    if (colour == colours::kBlack || IsPaletteColour(colour)) return palette.color(QPalette::WindowText);
    return QColor(ToQt(colour));
}

QColor ScreenTextColour(Colour colour, const QPalette& palette) {
    const bool dark = IsDark(palette);
    if (colour == colours::kRed) return dark ? kRedLettersDark : kRedLettersLight;
    if (colour == colours::kBlue) return dark ? kBlueLettersDark : kBlueLettersLight;
    return ScreenColour(colour, palette);
}

void ApplyColours(QWidget& widget, const Control& control, QPalette::ColorRole ground,
                  QPalette::ColorRole text) {
    QPalette palette;
    if (!IsPaletteColour(control.backColor)) {
        palette.setColor(ground, ScreenColour(control.backColor, palette));
    } else if (IsReadOnlyCopy(control) || IsOffBox(control)) {
        palette.setColor(ground, ScreenColour(colours::kButtonFace, palette));
    }
    if (!IsPaletteColour(control.foreColor))
        palette.setColor(text, ScreenTextColour(control.foreColor, palette));
    if (widget.palette() != palette) widget.setPalette(palette);
}

}  // namespace kelvor
