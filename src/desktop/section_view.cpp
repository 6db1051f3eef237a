#include "desktop/section_view.h"

#include <QPainter>

#include "desktop/qt_text.h"
#include "desktop/scene_painting.h"
#include "drawing/section_layers.h"
#include "drawing/section_scene.h"

namespace kelvor {

namespace {

constexpr int kLinesHigh = 28;
constexpr double kUsualLetters = 84.0;

/// What a screen reader tells: the layers from the top down.
QString InWords(const ChartData& sheet) {
    QStringList layers;
    for (const SectionLayer& layer : LayersOf(sheet)) {
        QStringList lines;
        for (const std::string& line : layer.label) lines << ToQt(line);
        layers.prepend(lines.join(u' '));
    }
    return layers.join(", ");
}

}  // namespace

SectionView::SectionView(const ChartData& sheet, double letters, QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
    setMinimumSize(qRound(fontMetrics().averageCharWidth() * (letters > 0.0 ? letters : kUsualLetters)),
                   fontMetrics().lineSpacing() * kLinesHigh);
    Show(sheet);
}

void SectionView::Show(const ChartData& sheet) {
    shown_ = sheet;
    setAccessibleName(ToQt(sheet.title).replace(u'\n', ", "));
    setAccessibleDescription(InWords(sheet));
    update();
}

void SectionView::paintEvent(QPaintEvent* /*event*/) {
    const double scale = logicalDpiX() / kPointsOfInch;
    const DrawingSize size{width() / scale, height() / scale};
    QPainter painter(this);
    painter.scale(scale, scale);
    PaintScene(painter, MakeSectionScene(shown_, size, InkOf(palette())));
}

}  // namespace kelvor
