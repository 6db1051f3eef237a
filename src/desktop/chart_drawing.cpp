#include "desktop/chart_drawing.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QLegendMarker>
#include <QLineSeries>
#include <QLocale>
#include <QScatterSeries>
#include <QStackedBarSeries>
#include <QTextDocumentFragment>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "desktop/qt_text.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr qreal kLineWidth = 2.0;
constexpr qreal kPointSize = 9.0;
constexpr qreal kGroupWidth = 0.8;  // of the room that a group of bars has
constexpr qreal kStackWidth = 0.6;
constexpr std::size_t kMostLabels = 12;  // below bars, and of their values
constexpr int kDigitsOfLabel = 9;
constexpr double kHalf = 0.5;  // of the room of a bar
constexpr double kStepsOfCeiling = 5.0;
constexpr QChar kInvisible(0x200B);

bool IsBars(const ChartData& data) {
    return data.kind == ChartKind::GroupedBars || data.kind == ChartKind::StackedBars;
}

/// The toolkit takes titles for rich text.
QString RichText(const std::string& text) {
    QString rich = ToQt(text).toHtmlEscaped();
    rich.replace("  ", QString(u' ') + QChar(QChar::Nbsp));
    return rich.replace("\r\n", "<br>").replace("\n", "<br>");
}

std::string PlainText(const QString& rich) {
    return FromQt(QTextDocumentFragment::fromHtml(rich).toPlainText());
}

double CellAt(const ChartRow& row, std::size_t place) {
    return place < row.cells.size() ? row.cells[place].value_or(0.0) : 0.0;
}

// --- Axes ---------------------------------------------------------------------------------------------

struct Reach {
    double least = 0.0;
    double greatest = 0.0;

    void Take(double value) {
        least = std::min(least, value);
        greatest = std::max(greatest, value);
    }
};

/// How far up the data reach; from 0 on.
Reach ReachUp(const ChartData& data) {
    Reach reach;
    std::vector<double> bars;
    for (const ChartRow& row : data.rows) {
        bars.resize(std::max(bars.size(), row.cells.size()));
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            bars[i] += CellAt(row, i);
            if (data.kind != ChartKind::StackedBars) reach.Take(CellAt(row, i));
        }
    }
    if (data.kind == ChartKind::StackedBars) {
        for (const double bar : bars) reach.Take(bar);
    }
    return reach;
}

Reach ReachAcross(const ChartData& data) {
    Reach reach;
    for (const ChartRow& row : data.rows) reach.Take(ParseNumber(row.label));
    return reach;
}

void SetTitle(const std::string& title, QAbstractAxis& axis) {
    axis.setTitleText(ToQt(title).replace(u' ', QChar::Nbsp));  // which a rich text keeps
    QFont font = axis.titleFont();
    font.setBold(false);
    axis.setTitleFont(font);
}

/// The next lower of 1, 2 and 5 times a power of ten.
double RoundStep(double step) {
    const double power = std::pow(10.0, std::floor(std::log10(step)));
    for (const double digit : {5.0, 2.0}) {
        if (step >= digit * power) return digit * power;
    }
    return power;
}

/// Under a ceiling that is given, which is rarely a round number, the steps are round.
void SetSteps(const ChartAxis& axis, bool found, double ceiling, QValueAxis& made) {
    if (axis.step > 0.0 || ceiling > 0.0) {
        made.setTickType(QValueAxis::TicksDynamic);
        made.setTickAnchor(axis.least);
        made.setTickInterval(axis.step > 0.0 ? axis.step : RoundStep(ceiling / kStepsOfCeiling));
    } else if (found) {
        made.applyNiceNumbers();
    }
}

QValueAxis* MakeValueAxis(const ChartAxis& axis, const Reach& reach, double ceiling) {
    auto* made = new QValueAxis;
    SetTitle(axis.title, *made);
    const bool found = axis.greatest <= axis.least;
    const double greatest = std::max(found ? reach.greatest : axis.greatest, found ? axis.least : 0.0);
    const double least = found ? std::min(axis.least, reach.least) : axis.least;
    made->setRange(least, ceiling > 0.0 ? ceiling : greatest > least ? greatest : least + 1.0);
    SetSteps(axis, found, ceiling, *made);
    const std::size_t point = axis.picture.find('.');
    const std::size_t places = point == std::string::npos ? 0 : axis.picture.size() - point - 1;
    if (!axis.picture.empty()) made->setLabelFormat(QStringLiteral("%.%1f").arg(places));
    return made;
}

/// The toolkit takes no category twice, so what can be read twice differs by what cannot be
/// seen.
QBarCategoryAxis* MakeCategoryAxis(const ChartData& data) {
    auto* made = new QBarCategoryAxis;
    SetTitle(data.across.title, *made);
    const bool stacked = data.kind == ChartKind::StackedBars;
    std::size_t count = data.rows.size();
    if (stacked) count = data.rows.empty() ? 0 : data.rows.front().cells.size();
    for (std::size_t i = 0; i < count; ++i) {
        QString label = stacked ? QString() : ToQt(data.rows[i].label);
        while (label.isEmpty() || made->categories().contains(label)) label += kInvisible;
        made->append(label);
    }
    made->setLabelsVisible(!stacked && count <= kMostLabels);
    made->setGridLineVisible(false);
    return made;
}

/// The numbers below more bars than there is room for: every so many, from the first on.
QValueAxis* MakeNumbersOfBars(const ChartData& data) {
    auto* made = new QValueAxis;
    SetTitle(data.across.title, *made);
    const double first = ParseNumber(data.rows.front().label);
    const double count = static_cast<double>(data.rows.size());
    made->setRange(first - kHalf, first + count - kHalf);
    made->setTickType(QValueAxis::TicksDynamic);
    made->setTickAnchor(first);
    made->setTickInterval(std::max(1.0, RoundStep(count / kStepsOfCeiling)));
    made->setLabelFormat(QStringLiteral("%.0f"));
    made->setGridLineVisible(false);
    return made;
}

void AddAxes(const ChartData& data, QChart& chart) {
    if (IsBars(data)) {
        QBarCategoryAxis* categories = MakeCategoryAxis(data);
        chart.addAxis(categories, Qt::AlignBottom);
        if (data.kind == ChartKind::GroupedBars && data.rows.size() > kMostLabels) {
            categories->setVisible(false);
            chart.addAxis(MakeNumbersOfBars(data), Qt::AlignBottom);
        }
    } else {
        chart.addAxis(MakeValueAxis(data.across, ReachAcross(data), 0.0), Qt::AlignBottom);
    }
    chart.addAxis(MakeValueAxis(data.up, ReachUp(data), data.ceiling), Qt::AlignLeft);
}

// --- Series -------------------------------------------------------------------------------------------

void AddSeries(QAbstractSeries* series, QChart& chart) {
    chart.addSeries(series);
    const bool bars = qobject_cast<QAbstractBarSeries*>(series) != nullptr;
    for (QAbstractAxis* axis : chart.axes()) {
        const bool numbersOfBars =
            bars && axis->orientation() == Qt::Horizontal && qobject_cast<QBarCategoryAxis*>(axis) == nullptr;
        if (!numbersOfBars) series->attachAxis(axis);
    }
}

QXYSeries* MakeXYSeries(ChartKind kind, const ChartSeries& declared) {
    const QColor colour(ToQt(declared.colour));
    if (kind == ChartKind::Line && !declared.hollowPoints) {
        auto* line = new QLineSeries;
        line->setPen(QPen(colour, kLineWidth));
        return line;
    }
    auto* points = new QScatterSeries;
    points->setMarkerSize(kPointSize);
    points->setPen(QPen(colour, kLineWidth));
    QColor fill = colour;
    if (declared.hollowPoints) fill.setAlpha(0);
    points->setColor(fill);
    return points;
}

/// In the legend the series has the sign of its points.
void ShowHollowInLegend(QXYSeries& series, QChart& chart) {
    for (QLegendMarker* marker : chart.legend()->markers(&series)) {
        marker->setShape(QLegend::MarkerShapeCircle);
        marker->setPen(series.pen());
    }
}

void AddXYSeries(const ChartData& data, QChart& chart) {
    for (std::size_t i = 0; i < data.series.size(); ++i) {
        QXYSeries* series = MakeXYSeries(data.kind, data.series[i]);
        series->setName(ToQt(data.series[i].name));
        for (const ChartRow& row : data.rows) {
            if (i < row.cells.size() && row.cells[i]) series->append(ParseNumber(row.label), *row.cells[i]);
        }
        series->setPointLabelsVisible(data.showsValues);
        series->setPointLabelsFormat(QStringLiteral("@yPoint"));
        AddSeries(series, chart);
        if (data.series[i].hollowPoints) ShowHollowInLegend(*series, chart);
    }
}

QBarSet* MakeBarSet(const ChartSeries& series) {
    auto* set = new QBarSet(ToQt(series.name));
    set->setColor(QColor(ToQt(series.colour)));
    return set;
}

void AddBars(const ChartData& data, QChart& chart) {
    const bool stacked = data.kind == ChartKind::StackedBars;
    auto* bars = stacked ? static_cast<QAbstractBarSeries*>(new QStackedBarSeries)
                         : static_cast<QAbstractBarSeries*>(new QBarSeries);
    for (std::size_t i = 0; i < data.series.size(); ++i) {
        QBarSet* set = MakeBarSet(data.series[i]);
        if (stacked && i < data.rows.size()) {
            for (std::size_t bar = 0; bar < data.rows[i].cells.size(); ++bar)
                *set << CellAt(data.rows[i], bar);
        } else {
            for (const ChartRow& row : data.rows) *set << CellAt(row, i);
        }
        bars->append(set);
    }
    bars->setBarWidth(stacked ? kStackWidth : kGroupWidth);
    bars->setLabelsVisible(data.showsValues && (stacked || data.rows.size() <= kMostLabels));
    bars->setLabelsPrecision(kDigitsOfLabel);
    bars->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
    AddSeries(bars, chart);
}

// --- What is drawn --------------------------------------------------------------------------------------

std::optional<double> DrawnPoint(const QXYSeries& series, double across) {
    for (const QPointF& point : series.points()) {
        if (point.x() == across) return point.y();
    }
    return std::nullopt;
}

void ReadXYSeries(const QXYSeries& series, ChartData& data) {
    data.series.push_back({.name = FromQt(series.name()),
                           .colour = FromQt(series.color().name().toUpper()),
                           .hollowPoints = series.color().alpha() == 0});
    for (ChartRow& row : data.rows) row.cells.push_back(DrawnPoint(series, ParseNumber(row.label)));
}

/// The cell of what was to be drawn decides whether a bar without height is an empty cell.
std::optional<double> DrawnBar(const ChartRow& shown, std::size_t cell, const QBarSet& set, std::size_t bar) {
    if (cell < shown.cells.size() && !shown.cells[cell]) return std::nullopt;
    return set.at(static_cast<int>(bar));
}

void ReadBarSet(const ChartData& shown, QBarSet& set, ChartData& data) {
    const std::size_t place = data.series.size();
    data.series.push_back({FromQt(set.label()), FromQt(set.color().name().toUpper())});
    if (shown.kind == ChartKind::GroupedBars) {
        for (std::size_t i = 0; i < data.rows.size(); ++i) {
            data.rows[i].cells.push_back(DrawnBar(shown.rows[i], place, set, i));
        }
    } else if (place < data.rows.size()) {
        for (std::size_t i = 0; i < shown.rows[place].cells.size(); ++i) {
            data.rows[place].cells.push_back(DrawnBar(shown.rows[place], i, set, i));
        }
    }
}

void ReadCategories(QBarCategoryAxis& axis, ChartData& data) {
    const QStringList categories = axis.categories();
    for (std::size_t i = 0; i < data.rows.size(); ++i) {
        data.rows[i].label = FromQt(categories.value(static_cast<qsizetype>(i)).remove(kInvisible));
    }
}

}  // namespace

void DrawChart(const ChartData& data, QChart& chart) {
    chart.removeAllSeries();
    for (QAbstractAxis* axis : chart.axes()) {
        chart.removeAxis(axis);
        delete axis;
    }
    chart.setTitle(RichText(data.title));
    chart.setLocale(
        QLocale(QLocale::English, QLocale::UnitedStates));  // commas between thousands, as on the screens
    chart.setLocalizeNumbers(true);
    chart.legend()->setVisible(data.series.size() > 1 && data.kind != ChartKind::StackedBars);
    AddAxes(data, chart);
    if (IsBars(data)) {
        AddBars(data, chart);
    } else {
        AddXYSeries(data, chart);
    }
}

ChartData ReadChart(const ChartData& shown, const QChart& chart) {
    ChartData data;
    data.kind = shown.kind;
    data.title = PlainText(chart.title());
    for (const ChartRow& row : shown.rows) data.rows.push_back({row.label, {}});
    for (const QAbstractSeries* series : chart.series()) {
        if (const auto* line = qobject_cast<const QXYSeries*>(series)) ReadXYSeries(*line, data);
        const auto* bars = qobject_cast<const QAbstractBarSeries*>(series);
        if (bars == nullptr) continue;
        for (QBarSet* set : bars->barSets()) ReadBarSet(shown, *set, data);
    }
    for (QAbstractAxis* axis : chart.axes()) {
        const auto* up = qobject_cast<const QValueAxis*>(axis);
        if (up != nullptr && axis->orientation() == Qt::Vertical && shown.ceiling > 0.0)
            data.ceiling = up->max();
        auto* groups = qobject_cast<QBarCategoryAxis*>(axis);
        if (groups != nullptr && shown.kind == ChartKind::GroupedBars) ReadCategories(*groups, data);
    }
    return data;
}

}  // namespace kelvor
