#pragma once

#include <QString>

#include "platform/translation.h"

namespace kelvor {

/// A text of the program's own in the language that the process speaks.
inline QString TranslatedText(const char* english) { return QString::fromStdString(Translated(english)); }

}  // namespace kelvor
