#pragma once

#include <QByteArray>
#include <QUrl>

namespace kelvor {

/// A page of the help as it is shown: that of the keys in the language that the process speaks, as its texts
/// stand in the catalogue of texts, any other as it is.
QByteArray TranslatedPage(const QUrl& name, const QByteArray& page);

}  // namespace kelvor
