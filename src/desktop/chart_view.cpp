#include "desktop/chart_view.h"

#include <QFontInfo>
#include <QPainter>

#include "desktop/qt_text.h"
#include "desktop/scene_painting.h"
#include "drawing/chart_scene.h"
#include "drawing/section_layers.h"

namespace kelvor {

namespace {

constexpr double kChartLetters = 90.0;
constexpr double kLinesOfLetter = 22.0 / kChartLetters;
constexpr double kSectionLetters = 84.0;
constexpr int kSectionLines = 28;
constexpr double kLetterPoints = 9.0;  // the letters of a drawing

bool IsSection(const ChartData& sheet) { return sheet.kind == ChartKind::Section; }

/// What a screen reader tells of a section: the layers from the top down.
QString InWords(const ChartData& sheet) {
    QStringList layers;
    for (const SectionLayer& layer : LayersOf(sheet)) {
        QStringList lines;
        for (const std::string& line : layer.label) lines << ToQt(line);
        layers.prepend(lines.join(u' '));
    }
    return layers.join(", ");
}

/// What it tells of any other chart: what is drawn there.
QString SeriesNames(const ChartData& sheet) {
    QStringList names;
    for (const ChartSeries& series : sheet.series) names << ToQt(series.name);
    return names.join(", ");
}

QSize LeastSize(const ChartData& sheet, double letters, const QFontMetrics& metrics) {
    const double usual = IsSection(sheet) ? kSectionLetters : kChartLetters;
    const double wide = letters > 0.0 ? letters : usual;
    const double lines = IsSection(sheet) ? kSectionLines : wide * kLinesOfLetter;
    return {qRound(metrics.averageCharWidth() * wide), qRound(metrics.lineSpacing() * lines)};
}

}  // namespace

ChartView::ChartView(const ChartData& sheet, double letters, QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
    setMinimumSize(LeastSize(sheet, letters, fontMetrics()));
    Show(sheet);
}

void ChartView::Show(const ChartData& sheet) {
    shown_ = sheet;
    setAccessibleName(ToQt(sheet.title).replace(u'\n', ", "));
    setAccessibleDescription(IsSection(sheet) ? InWords(sheet) : SeriesNames(sheet));
    update();
}

/// The letters of the drawing are as large as those of the window.
double ChartView::PixelsOfPoint() const {
    return QFontInfo(font()).pointSizeF() / kLetterPoints * logicalDpiX() / kPointsOfInch;
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
    const double scale = PixelsOfPoint();
    QPainter painter(this);
    painter.scale(scale, scale);
    PaintScene(painter, MakeChartScene(shown_, {width() / scale, height() / scale}, InkOf(palette())));
}

QWidget* MakeChart(const Control& control, QWidget* parent) {
    return new ChartView(*control.chart, control.letters, parent);
}

void MirrorChart(const Control& control, QWidget& widget) {
    auto& view = dynamic_cast<ChartView&>(widget);
    if (view.shown() != *control.chart) view.Show(*control.chart);
}

}  // namespace kelvor
