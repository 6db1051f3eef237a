#pragma once

#include <QMap>
#include <QRect>
#include <QWidget>
#include <string>
#include <vector>

namespace kelvor::test {

/// What is wrong with how a form looks; each complaint names the widget.
using Complaints = std::vector<std::string>;

/// The widgets of a form that show something and hold no other: labels, boxes, buttons, options.
std::vector<QWidget*> VisibleLeaves(const QWidget& form);

/// No widget is smaller than its content asks.
Complaints FindCutWidgets(const QWidget& form);

/// Headings of tables that have no room for their words or for their lines.
Complaints FindCutHeadings(const QWidget& form);

/// No two widgets lie over each other, and none reaches out of the form.
Complaints FindOverlaps(const QWidget& form);

/// The order of Tab, given as the widgets it goes through, never goes back up and left.
Complaints FindTabOrderBreaks(const QWidget& form, const std::vector<QWidget*>& order);

/// No access key stands twice on a form, or on a form and in the menu bar.
Complaints FindDoubleAccessKeys(const QWidget& form, const QWidget& menuBar);

/// Everything that takes the focus says its name to those who hear the screen.
Complaints FindUnnamed(const QWidget& form);

/// Text stands out from its ground by at least 4.5 to 1.
Complaints FindWeakContrast(const QWidget& form);

/// The ratio of the luminance of two colours, 1 to 21 (WCAG 2.1, contrast ratio).
double ContrastRatio(const QColor& first, const QColor& second);

/// Where each widget lies, by its name.
QMap<QString, QRect> Places(const QWidget& form);

}  // namespace kelvor::test
