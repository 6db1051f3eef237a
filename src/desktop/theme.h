#pragma once

#include <QPalette>
#include <QWidget>

#include "forms/control.h"

namespace kelvor {

/// True for a palette of light text on dark ground.
bool IsDark(const QPalette& palette);

/// How a colour of the model looks in a palette: the meaning stays (computed, warning, at rest), the shade is
/// one that text can be read on, in light and in dark.
QColor ScreenColour(Colour colour, const QPalette& palette);

/// The same for letters on the ground of the palette itself.
QColor ScreenTextColour(Colour colour, const QPalette& palette);

/// Gives a widget its ground and its text colour; the names of palette colours leave it as the palette has
/// it.
void ApplyColours(QWidget& widget, const Control& control, QPalette::ColorRole ground,
                  QPalette::ColorRole text);

}  // namespace kelvor
