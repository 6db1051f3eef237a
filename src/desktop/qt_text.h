#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace kelvor {

QString ToQt(std::string_view utf8);
std::string FromQt(const QString& text);

/// The caption of a control as a widget shows it: lines end as the toolkit ends them, and the letter of the
/// access key is marked.
struct WidgetCaption {
    QString text;

    /// Where the mark was put in; -1 if the control's own caption has one, or if it has no key.
    qsizetype addedMark = -1;
};

WidgetCaption CaptionOf(const Control& control);

/// The text of a label that has no access key: a doubled ampersand stands for one.
QString PlainLabelText(std::string_view caption);

}  // namespace kelvor
