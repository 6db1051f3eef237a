#pragma once

#include <QTabWidget>
#include <QWidget>
#include <functional>
#include <string>

#include "forms/form.h"

namespace kelvor {

/// Finds the widget of a control by its name; null if there is none.
using WidgetFinder = std::function<QWidget*(const std::string& name)>;

/// Lays the widgets of a form out as its declaration says. One set of rules serves every form: labels, boxes
/// and units in aligned columns, groups framed, the form's own buttons in a row at its foot.
/// Returns the tab strip; null if the form has none.
QTabWidget* LayOutForm(const Form& model, QWidget& form, const WidgetFinder& find);

}  // namespace kelvor
