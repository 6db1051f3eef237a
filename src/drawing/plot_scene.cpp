#include "drawing/plot_scene.h"

#include <algorithm>

#include "drawing/plot_axis.h"
#include "drawing/section_layers.h"
#include "drawing/text_width.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

using shape::Anchor;

// All in points.
constexpr double kMargin = 8.0;
constexpr double kTitleSize = 11.0;
constexpr double kTextSize = 9.0;
constexpr double kLinePitch = 13.0;
constexpr double kGap = 5.0;
constexpr double kThinLine = 0.5;
constexpr double kThickLine = 1.5;
constexpr double kPoint = 3.0;
constexpr double kDash = 6.0;
constexpr double kSwatch = 9.0;
constexpr double kGroupWidth = 0.8;  // of the room that a group of bars has
constexpr double kStackWidth = 0.6;

class PlotPainter {
  public:
    PlotPainter(const ChartData& sheet, const DrawingSize& size, const Ink& ink)
        : sheet_(sheet), ink_(ink), up_(AxisUp(sheet)), across_(AxisAcross(sheet)) {
        scene_.width = size.width;
        scene_.height = size.height;
        scene_.paper = ink.paper;
    }

    Scene Paint() {
        AddTitle();
        PlaceArea();
        PlaceLegend();
        AddAxisUp();
        AddAxisAcross();
        AddData();
        AddLegend();
        return std::move(scene_);
    }

  private:
    [[nodiscard]] bool IsBars() const {
        return sheet_.kind == ChartKind::GroupedBars || sheet_.kind == ChartKind::StackedBars;
    }
    [[nodiscard]] bool HasLegend() const {
        return sheet_.series.size() > 1 && sheet_.kind != ChartKind::StackedBars;
    }

    // --- Where things stand -----------------------------------------------------------------------

    void PlaceArea() {
        double widest = 0.0;
        for (const double number : up_.numbers) {
            widest = std::max(widest, TextWidth(up_.TextOf(number), kTextSize));
        }
        left_ = kMargin + (sheet_.up.title.empty() ? 0.0 : kLinePitch) + widest + kGap;
        right_ = scene_.width - 2.0 * kMargin;
        bottom_ = scene_.height - kMargin - kLinePitch - (sheet_.across.title.empty() ? 0.0 : kLinePitch);
    }

    /// At the foot, in as many lines as its names need; the data end above it.
    void PlaceLegend() {
        if (!HasLegend()) return;
        Point at{left_, scene_.height - kMargin};
        for (const ChartSeries& series : sheet_.series) {
            const double width = kSwatch + kGap + TextWidth(series.name, kTextSize);
            if (at.x > left_ && at.x + width > scene_.width - kMargin) at = {left_, at.y + kLinePitch};
            legend_.push_back(at);
            at.x += width + 2.0 * kGap;
        }
        const double lines = at.y - (scene_.height - kMargin);
        for (Point& place : legend_) place.y -= lines;
        bottom_ -= lines + kLinePitch;
    }

    [[nodiscard]] double HeightOf(double value) const {
        return bottom_ - up_.PartOf(value) * (bottom_ - top_);
    }
    [[nodiscard]] double PlaceAcross(double value) const {
        return left_ + across_.PartOf(value) * (right_ - left_);
    }

    // --- What is drawn ------------------------------------------------------------------------------

    void AddText(Point place, const std::string& text, Anchor anchor, double size = kTextSize,
                 bool bold = false, bool upright = false) {
        scene_.shapes.emplace_back(shape::Text{place, text, size, ink_.ink, anchor, bold, upright});
    }

    void AddLine(std::vector<Point> points, double width, const std::string& colour, double dash = 0.0) {
        scene_.shapes.emplace_back(shape::Line{std::move(points), {colour, width, dash}});
    }

    void AddTitle() {
        double y = kMargin + kTitleSize;
        for (const std::string& line : LinesOf(sheet_.title)) {
            const bool first = scene_.title.empty();
            scene_.title += (first ? "" : ", ") + line;
            AddText({scene_.width / 2.0, y}, line, Anchor::Middle, first ? kTitleSize : kTextSize, first);
            y += kLinePitch;
        }
        top_ = y;
    }

    void AddAxisUp() {
        for (const double number : up_.numbers) {
            const double y = HeightOf(number);
            AddLine({{left_, y}, {right_, y}}, kThinLine, ink_.faint);
            AddText({left_ - kGap, y + kTextSize / 3.0}, up_.TextOf(number), Anchor::End);
        }
        AddLine({{left_, top_}, {left_, bottom_}}, kThinLine, ink_.ink);
        if (sheet_.up.title.empty()) return;
        AddText({kMargin + kTextSize, (top_ + bottom_) / 2.0}, sheet_.up.title, Anchor::Middle, kTextSize,
                false, true);
    }

    void AddAxisAcross() {
        AddLine({{left_, bottom_}, {right_, bottom_}}, kThinLine, ink_.ink);
        const double y = bottom_ + kLinePitch;
        if (!IsBars()) {
            for (const double number : across_.numbers) {
                AddText({PlaceAcross(number), y}, across_.TextOf(number), Anchor::Middle);
            }
        } else if (sheet_.kind == ChartKind::GroupedBars) {
            AddGroupLabels(y);
        }
        if (sheet_.across.title.empty()) return;
        AddText({(left_ + right_) / 2.0, y + kLinePitch}, sheet_.across.title, Anchor::Middle);
    }

    /// Where the labels do not all have room, every second, third ... one is left out.
    void AddGroupLabels(double y) {
        double widest = kGap;
        for (const ChartRow& row : sheet_.rows) widest = std::max(widest, TextWidth(row.label, kTextSize));
        const double room = RoomOfGroup();
        const auto step = static_cast<std::size_t>(widest / room) + 1;
        for (std::size_t i = 0; i < sheet_.rows.size(); i += step) {
            AddText({left_ + (static_cast<double>(i) + 0.5) * room, y}, sheet_.rows[i].label, Anchor::Middle);
        }
    }

    [[nodiscard]] double RoomOfGroup() const {
        return (right_ - left_) / static_cast<double>(std::max<std::size_t>(sheet_.rows.size(), 1));
    }

    void AddData() {
        if (sheet_.kind == ChartKind::StackedBars) return AddStackedBars();
        for (const bool hollow : {false, true}) {  // hollow points would be lost below lines
            for (std::size_t i = 0; i < sheet_.series.size(); ++i) {
                if (sheet_.series[i].hollowPoints == hollow) AddSeries(i);
            }
        }
        if (sheet_.showsValues) AddValues();
    }

    void AddSeries(std::size_t series) {
        if (sheet_.kind == ChartKind::GroupedBars) return AddBars(series);
        AddPoints(series);
    }

    void AddPoints(std::size_t series) {
        std::vector<Point> points;
        for (const ChartRow& row : sheet_.rows) {
            if (series >= row.cells.size() || !row.cells[series]) continue;
            points.push_back({PlaceAcross(ParseNumber(row.label)), HeightOf(*row.cells[series])});
            if (sheet_.showsValues) {
                AddText({points.back().x, points.back().y - kGap}, up_.TextOf(*row.cells[series]),
                        Anchor::Middle);
            }
        }
        const ChartSeries& drawn = sheet_.series[series];
        const bool hasLength = points.size() > 1;  // a line through one point alone would not be seen
        if (IsLine(drawn) && hasLength)
            return AddLine(std::move(points), kThickLine, drawn.colour, DashOf(drawn));
        for (const Point& point : points) AddPoint(point, drawn);
    }

    [[nodiscard]] bool IsLine(const ChartSeries& series) const {
        return sheet_.kind == ChartKind::Line && !series.hollowPoints;
    }

    /// The first line is whole and the others are dashed: colours cannot be told apart on every printer.
    [[nodiscard]] double DashOf(const ChartSeries& series) const {
        return &series == &sheet_.series.front() ? 0.0 : kDash;
    }

    void AddPoint(Point centre, const ChartSeries& series) {
        shape::Ellipse point{centre, kPoint, kPoint, series.colour};
        if (series.hollowPoints) {
            point.fill = ink_.paper;
            point.stroke = {series.colour, kThickLine};
        }
        scene_.shapes.emplace_back(std::move(point));
    }

    /// A value stands above its bar, the greatest first, unless it would run into another one or into another
    /// bar. 0 has no bar to stand above where bars are narrow.
    void AddValues() {
        std::stable_sort(bars_.begin(), bars_.end(), [](const ValuedBar& one, const ValuedBar& other) {
            return one.value > other.value;
        });
        std::vector<Box> taken;
        for (const ValuedBar& bar : bars_) {
            const std::string text = up_.TextOf(bar.value);
            const double width = TextWidth(text, kTextSize);
            if (bar.value == 0.0 && width > bar.box.right - bar.box.left) continue;
            const double middle = (bar.box.left + bar.box.right) / 2.0;
            const double left = std::clamp(middle - width / 2.0, left_, std::max(left_, right_ - width));
            const double y = bar.box.top - kGap / 2.0;
            const Box box{left, left + width, y - kTextSize, y};
            const bool meetsBar = std::any_of(bars_.begin(), bars_.end(),
                                              [&](const ValuedBar& other) { return box.Meets(other.box); });
            const bool meetsValue =
                std::any_of(taken.begin(), taken.end(), [&](const Box& other) { return box.Meets(other); });
            if (meetsBar || meetsValue) continue;
            taken.push_back(box);
            AddText({left + width / 2.0, y}, text, Anchor::Middle);
        }
    }

    void AddBars(std::size_t series) {
        const double width = RoomOfGroup() * kGroupWidth / static_cast<double>(sheet_.series.size());
        const double gap = RoomOfGroup() * (1.0 - kGroupWidth) / 2.0;
        for (std::size_t i = 0; i < sheet_.rows.size(); ++i) {
            const ChartRow& row = sheet_.rows[i];
            if (series >= row.cells.size() || !row.cells[series]) continue;
            const double value = *row.cells[series];
            const double x =
                left_ + static_cast<double>(i) * RoomOfGroup() + gap + static_cast<double>(series) * width;
            AddBar({x, HeightOf(std::max(value, 0.0))}, width, HeightOf(std::min(value, 0.0)),
                   sheet_.series[series].colour, sheet_.series[series].name + " " + row.label);
            bars_.push_back(
                {{x, x + width, HeightOf(std::max(value, 0.0)), HeightOf(std::min(value, 0.0))}, value});
        }
    }

    void AddStackedBars() {
        std::vector<double> tops;
        for (std::size_t layer = 0; layer < sheet_.rows.size(); ++layer) {
            const ChartRow& row = sheet_.rows[layer];
            tops.resize(std::max(tops.size(), row.cells.size()));
            for (std::size_t bar = 0; bar < row.cells.size(); ++bar) {
                const double base = tops[bar];
                tops[bar] += row.cells[bar].value_or(0.0);
                if (tops[bar] > base) AddStackedPart(layer, bar, base, tops[bar]);
            }
        }
    }

    void AddStackedPart(std::size_t layer, std::size_t bar, double base, double top) {
        const double room = (right_ - left_) / static_cast<double>(sheet_.rows[layer].cells.size());
        const double x = left_ + (static_cast<double>(bar) + 0.5 - kStackWidth / 2.0) * room;
        const std::string colour = layer < sheet_.series.size() ? sheet_.series[layer].colour : ink_.paper;
        const std::vector<std::string> lines = LinesOf(sheet_.rows[layer].label);
        AddBar({x, HeightOf(top)}, room * kStackWidth, HeightOf(base), colour,
               lines.empty() ? std::string() : lines.front());
        double y = (HeightOf(base) + HeightOf(top)) / 2.0 + kTextSize / 3.0;
        for (const std::string& line : lines) {
            AddText({x + room * kStackWidth + kGap, y}, line, Anchor::Start);
            y += kLinePitch;
        }
    }

    void AddBar(Point corner, double width, double bottom, const std::string& colour, std::string name) {
        scene_.shapes.emplace_back(shape::Rectangle{
            corner, width, bottom - corner.y, colour, {ink_.ink, kThinLine}, std::move(name)});
    }

    void AddLegend() {
        for (std::size_t i = 0; i < legend_.size(); ++i) {
            AddSwatch(legend_[i], sheet_.series[i]);
            AddText({legend_[i].x + kSwatch + kGap, legend_[i].y}, sheet_.series[i].name, Anchor::Start);
        }
    }

    /// Above and to the right of a place, as the series is drawn: a hollow point, a line or an area.
    void AddSwatch(Point at, const ChartSeries& series) {
        const double middle = at.y - kSwatch / 2.0;
        if (series.hollowPoints) return AddPoint({at.x + kSwatch / 2.0, middle}, series);
        if (IsLine(series)) {
            return AddLine({{at.x, middle}, {at.x + kSwatch, middle}}, 2.0 * kThickLine, series.colour,
                           DashOf(series) / 2.0);
        }
        scene_.shapes.emplace_back(shape::Rectangle{{at.x, at.y - kSwatch}, kSwatch, kSwatch, series.colour});
    }

    struct Box {
        double left = 0.0;
        double right = 0.0;
        double top = 0.0;
        double bottom = 0.0;

        [[nodiscard]] bool Meets(const Box& other) const {
            return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
        }
    };
    struct ValuedBar {
        Box box;
        double value = 0.0;
    };

    const ChartData& sheet_;
    const Ink& ink_;
    std::vector<Point> legend_;  // the place of each series' entry
    std::vector<ValuedBar> bars_;
    PlotAxis up_;
    PlotAxis across_;
    Scene scene_;
    double left_ = 0.0;  // of the data
    double right_ = 0.0;
    double top_ = 0.0;
    double bottom_ = 0.0;
};

}  // namespace

Scene MakePlotScene(const ChartData& sheet, const DrawingSize& size, const Ink& ink) {
    return PlotPainter(sheet, size, ink).Paint();
}

}  // namespace kelvor
