#pragma once

#include <QWidget>

#include "forms/control.h"

namespace kelvor {

/// The name of the widget property that holds where CaptionOf put in the mark of an access key.
/// So many lines a label has room for, however few it shows.
inline constexpr const char* kLeastLinesProperty = "kelvorLeastLines";

inline constexpr const char* kAddedMarkProperty = "kelvorAddedMark";

/// Makes the widget of a control, which shows nothing yet.
QWidget* MakeWidget(const Control& control, QWidget* parent);

/// Shows in a widget what its control holds. What is the same is not touched, so that the cursor of a box
/// stays where it is. True if the text of a box was rewritten.
bool MirrorControl(const Control& control, QWidget& widget);

/// Names the widget of a field for those who hear the screen: by its label and its unit.
void NameField(QWidget& field, const Control& label, const Control* unit);

}  // namespace kelvor
