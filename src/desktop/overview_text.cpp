#include "desktop/overview_text.h"

#include <QStringList>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"

namespace kelvor {

namespace {

QStringList Head() {
    return {TranslatedText("Screen"), TranslatedText("Results"), TranslatedText("Equation")};
}

QString ResultText(const OverviewResult& result) {
    const QString value = result.text.empty() ? TranslatedText("none yet") : ToQt(result.text);
    const QString unit = result.text.empty() || result.unit.empty() ? QString() : " " + ToQt(result.unit);
    return ToQt(result.title) + ": " + value + unit;
}

QString StateText(const OverviewLine& line) {
    if (!line.balanced) return {};
    return *line.balanced ? TranslatedText("Balanced") : TranslatedText("Not balanced");
}

QStringList PartsOf(const OverviewRow& row) {
    return {row.title, QString(row.results).replace(u'\n', QStringLiteral("; ")), row.state};
}

QString HtmlRow(const QStringList& parts, const QString& tag) {
    QString html = QStringLiteral("<tr>");
    for (const QString& part : parts) html += "<" + tag + ">" + part.toHtmlEscaped() + "</" + tag + ">";
    return html + QStringLiteral("</tr>");
}

}  // namespace

std::vector<OverviewRow> RowsOf(const std::vector<OverviewLine>& lines) {
    std::vector<OverviewRow> rows;
    for (const OverviewLine& line : lines) {
        QStringList results;
        for (const OverviewResult& result : line.results) results << ResultText(result);
        rows.push_back({line.name, ToQt(line.title), results.join(u'\n'), StateText(line)});
    }
    return rows;
}

QString TextOf(const std::vector<OverviewRow>& rows) {
    QString text = Head().join(u'\t') + u'\n';
    for (const OverviewRow& row : rows) text += PartsOf(row).join(u'\t') + u'\n';
    return text;
}

QString HtmlOf(const std::vector<OverviewRow>& rows) {
    QString html = QStringLiteral("<table>") + HtmlRow(Head(), QStringLiteral("th"));
    for (const OverviewRow& row : rows) html += HtmlRow(PartsOf(row), QStringLiteral("td"));
    return html + QStringLiteral("</table>");
}

}  // namespace kelvor
