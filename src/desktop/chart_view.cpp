#include "desktop/chart_view.h"

#include <QAbstractBarSeries>
#include <QChart>
#include <QChartView>
#include <QGraphicsLayout>
#include <QPainter>

#include "desktop/chart_drawing.h"
#include "desktop/qt_text.h"
#include "desktop/section_view.h"

namespace kelvor {

namespace {

constexpr double kChartLetters = 90.0;  // its width, unless its control has one
constexpr double kLinesOfLetter = 22.0 / kChartLetters;
constexpr qreal kDarkest = 0.5;  // of a layer whose label is black

/// A chart in the colours of the window, also after they have changed.
class ChartView : public QChartView {
  public:
    ChartView(const ChartData& sheet, QWidget* parent) : QChartView(new QChart, parent) {
        chart()->layout()->setContentsMargins(0, 0, 0, 0);
        chart()->setBackgroundRoundness(0);
        const int room = fontMetrics().averageCharWidth();
        chart()->setMargins({room, room, room, room});
        Show(sheet);
    }

    void Show(const ChartData& sheet) {
        shown_ = sheet;
        DrawChart(sheet, *chart());
        ApplyPalette();
        setAccessibleName(ToQt(sheet.title));
    }

    [[nodiscard]] const ChartData& shown() const { return shown_; }

  protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) ApplyPalette();
        QChartView::changeEvent(event);
    }

    void drawForeground(QPainter* painter, const QRectF& rect) override {
        QChartView::drawForeground(painter, rect);
        if (shown_.kind == ChartKind::StackedBars) DrawLayerLabels(*painter);
    }

  private:
    void ApplyPalette() {
        const QColor text = palette().color(QPalette::WindowText);
        QColor lines = text;
        lines.setAlphaF(0.25F);
        chart()->setBackgroundBrush(palette().color(QPalette::Base));
        chart()->setTitleBrush(text);
        chart()->legend()->setLabelColor(text);
        for (QAbstractAxis* axis : chart()->axes()) {
            axis->setLabelsBrush(text);
            axis->setTitleBrush(text);
            axis->setLinePenColor(text);
            axis->setGridLineColor(lines);
        }
    }

    /// A label stands in the middle of its layer, or beside one that is too thin for it.
    void DrawLayerLabels(QPainter& painter) {
        std::vector<double> tops;
        for (std::size_t layer = 0; layer < shown_.rows.size(); ++layer) {
            const ChartRow& row = shown_.rows[layer];
            tops.resize(std::max(tops.size(), row.cells.size()));
            for (std::size_t bar = 0; bar < row.cells.size(); ++bar) {
                const double base = tops[bar];
                tops[bar] += row.cells[bar].value_or(0.0);
                if (tops[bar] > base) DrawLabel(painter, layer, PlaceOf(bar, base, tops[bar]));
            }
        }
    }

    [[nodiscard]] QRectF PlaceOf(std::size_t bar, double base, double top) const {
        auto* bars = qobject_cast<QAbstractBarSeries*>(chart()->series().value(0));
        if (bars == nullptr) return {};
        const double middle = static_cast<double>(bar);
        const double half = bars->barWidth() / 2.0;
        const QPointF upper = chart()->mapToPosition({middle - half, top}, bars);
        const QPointF lower = chart()->mapToPosition({middle + half, base}, bars);
        return chart()->mapRectToScene(QRectF(upper, lower));
    }

    void DrawLabel(QPainter& painter, std::size_t layer, const QRectF& place) const {
        const QString label = ToQt(shown_.rows[layer].label);
        const QRectF size = painter.boundingRect(QRectF(), Qt::AlignCenter, label);
        if (size.height() <= place.height()) {
            const QColor colour =
                layer < shown_.series.size() ? QColor(ToQt(shown_.series[layer].colour)) : QColor(Qt::white);
            painter.setPen(colour.lightnessF() > kDarkest ? Qt::black : Qt::white);
            painter.drawText(place, Qt::AlignCenter, label);
        } else {
            painter.setPen(palette().color(QPalette::WindowText));
            const QPointF start(place.right() + fontMetrics().averageCharWidth(),
                                place.center().y() - size.height() / 2.0);
            painter.drawText(QRectF(start, size.size()), Qt::AlignLeft, label);
        }
    }

    ChartData shown_;
};

}  // namespace

QWidget* MakeChart(const Control& control, QWidget* parent) {
    if (control.chart->kind == ChartKind::Section) {
        return new SectionView(*control.chart, control.letters, parent);
    }
    auto* view = new ChartView(*control.chart, parent);
    view->setRenderHint(QPainter::Antialiasing);
    view->setFocusPolicy(Qt::NoFocus);
    const double letters = control.letters > 0.0 ? control.letters : kChartLetters;
    view->setMinimumSize(qRound(view->fontMetrics().averageCharWidth() * letters),
                         qRound(view->fontMetrics().lineSpacing() * letters * kLinesOfLetter));
    return view;
}

void MirrorChart(const Control& control, QWidget& widget) {
    if (auto* section = dynamic_cast<SectionView*>(&widget)) {
        if (section->shown() != *control.chart) section->Show(*control.chart);
        return;
    }
    auto& view = dynamic_cast<ChartView&>(widget);
    if (view.shown() != *control.chart) view.Show(*control.chart);
}

ChartData DrawnChart(const QWidget& widget) {
    if (const auto* section = dynamic_cast<const SectionView*>(&widget)) return section->shown();
    const auto& view = dynamic_cast<const ChartView&>(widget);
    return ReadChart(view.shown(), *view.chart());
}

const ChartData& ShownChart(const QWidget& widget) {
    if (const auto* section = dynamic_cast<const SectionView*>(&widget)) return section->shown();
    return dynamic_cast<const ChartView&>(widget).shown();
}

}  // namespace kelvor
