#pragma once

#include <QWidget>
#include <string>

#include "console/script/driver.h"
#include "forms/control.h"

namespace kelvor::test {

// What a user sees in a widget, in the words of the model.

ControlKind KindOf(const QWidget& widget);
std::string TextOf(const QWidget& widget);

/// What is chosen: whether an option is, which tab shows, or a text.
PropertyValue ValueOf(const QWidget& widget);

/// False if the widget itself is off, whatever holds it.
bool IsEnabled(const QWidget& widget);

std::string BackColour(const QWidget& widget);
std::string ForeColour(const QWidget& widget);

}  // namespace kelvor::test
