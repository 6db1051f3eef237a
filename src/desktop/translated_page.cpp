#include "desktop/translated_page.h"

#include <QRegularExpression>
#include <QString>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

constexpr const char* kKeys = "Keys.html";

/// A title, heading, paragraph or cell that holds nothing but text.
const char* const kText = "<(title|h1|h2|p|th|td)>([^<]+)</\\1>";

}  // namespace

QByteArray TranslatedPage(const QUrl& name, const QByteArray& page) {
    if (name.fileName() != QLatin1String(kKeys)) return page;
    const QString english = QString::fromUtf8(page);
    const QRegularExpression text(QString::fromLatin1(kText));
    QString translated;
    qsizetype done = 0;
    for (auto hits = text.globalMatch(english); hits.hasNext();) {
        const QRegularExpressionMatch hit = hits.next();
        translated += QStringView(english).mid(done, hit.capturedStart(2) - done);
        translated += ToQt(Translated(FromQt(hit.captured(2).simplified())));
        done = hit.capturedEnd(2);
    }
    translated += QStringView(english).mid(done);
    return translated.toUtf8();
}

}  // namespace kelvor
