#include "desktop/chart_view.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QValueAxis>

#include "desktop/qt_text.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr int kChartLetters = 90;
constexpr int kChartLines = 22;
constexpr qreal kLineWidth = 2.0;

QValueAxis* MakeAxis(const ChartAxis& axis) {
    auto* made = new QValueAxis;
    made->setTitleText(ToQt(axis.title).replace(u' ', QChar::Nbsp));  // which a rich text keeps
    QFont font = made->titleFont();
    font.setBold(false);
    made->setTitleFont(font);
    made->setRange(axis.least, axis.greatest);
    made->setTickType(QValueAxis::TicksDynamic);
    made->setTickAnchor(axis.least);
    made->setTickInterval(axis.step);
    const std::size_t point = axis.picture.find('.');
    const std::size_t places = point == std::string::npos ? 0 : axis.picture.size() - point - 1;
    made->setLabelFormat(QStringLiteral("%.%1f").arg(places));
    return made;
}

QLineSeries* MakeLine(const ChartData& data, std::size_t place) {
    auto* line = new QLineSeries;
    line->setName(ToQt(data.series[place].name));
    line->setPen(QPen(QColor(ToQt(data.series[place].colour)), kLineWidth));
    for (const ChartRow& row : data.rows) {
        if (row.cells[place]) line->append(ParseNumber(row.label), *row.cells[place]);
    }
    return line;
}

/// The colours of the window, also after they have changed.
class ThemedChartView : public QChartView {
  public:
    ThemedChartView(QChart* chart, QWidget* parent) : QChartView(chart, parent) { ApplyPalette(); }

  protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) ApplyPalette();
        QChartView::changeEvent(event);
    }

  private:
    void ApplyPalette() {
        const QColor text = palette().color(QPalette::WindowText);
        QColor lines = text;
        lines.setAlphaF(0.25F);
        chart()->setBackgroundBrush(palette().color(QPalette::Base));
        chart()->setTitleBrush(text);
        for (QAbstractAxis* axis : chart()->axes()) {
            axis->setLabelsBrush(text);
            axis->setTitleBrush(text);
            axis->setLinePenColor(text);
            axis->setGridLineColor(lines);
        }
    }
};

}  // namespace

QWidget* MakeChart(const Control& control, QWidget* parent) {
    const ChartData& data = *control.chart;
    auto* chart = new QChart;
    chart->setTitle(ToQt(data.title));
    chart->legend()->setVisible(data.series.size() > 1);
    chart->addAxis(MakeAxis(data.across), Qt::AlignBottom);
    chart->addAxis(MakeAxis(data.up), Qt::AlignLeft);
    for (std::size_t i = 0; i < data.series.size(); ++i) {
        QLineSeries* line = MakeLine(data, i);
        chart->addSeries(line);
        for (QAbstractAxis* axis : chart->axes()) line->attachAxis(axis);
    }
    auto* view = new ThemedChartView(chart, parent);
    view->setRenderHint(QPainter::Antialiasing);
    view->setFocusPolicy(Qt::NoFocus);
    view->setAccessibleName(ToQt(data.title));
    view->setMinimumSize(view->fontMetrics().averageCharWidth() * kChartLetters,
                         view->fontMetrics().lineSpacing() * kChartLines);
    return view;
}

ChartData DrawnChart(const QWidget& chart) {
    ChartData data;
    const QChart& drawn = *dynamic_cast<const QChartView&>(chart).chart();
    data.title = FromQt(drawn.title());
    for (const QAbstractSeries* series : drawn.series()) {
        const auto& line = dynamic_cast<const QLineSeries&>(*series);
        data.series.push_back({FromQt(line.name()), FromQt(line.pen().color().name().toUpper())});
        data.rows.resize(static_cast<std::size_t>(line.count()));
        for (int i = 0; i < line.count(); ++i) {
            ChartRow& row = data.rows[static_cast<std::size_t>(i)];
            row.label = NumberToText(line.at(i).x());
            row.cells.emplace_back(line.at(i).y());
        }
    }
    return data;
}

}  // namespace kelvor
