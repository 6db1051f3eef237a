#include "drawing/section_scene.h"

#include <algorithm>
#include <set>
#include <utility>

#include "drawing/hatches.h"
#include "drawing/label_column.h"
#include "drawing/section_layers.h"
#include "drawing/text_width.h"

namespace kelvor {

namespace {

using shape::Anchor;

// All in points.
constexpr double kMargin = 8.0;
constexpr double kTitleSize = 11.0;
constexpr double kTitlePitch = 15.0;
constexpr double kTextSize = 9.0;
constexpr double kLinePitch = 11.5;
constexpr double kAscent = 0.74 * kTextSize;  // of the letters over their base line, with their line's gap
constexpr double kGap = 5.0;
constexpr double kTick = 2.5;
constexpr double kLeader = 14.0;
constexpr double kThinLine = 0.6;
constexpr double kOutline = 0.9;
constexpr double kSwatchWidth = 16.0;
constexpr double kSwatchHeight = 9.0;
constexpr double kMostOfLabels = 0.5;  // of the width
constexpr double kLeastStack = 40.0;
constexpr const char* kSeparator = "#FFFFFF";  // seen between black layers, on whatever paper
// The same in every drawing, so that two of one size have one scale.
constexpr double kTitleLines = 2.0;
constexpr double kLegendLines = 2.0;

class SectionPainter {
  public:
    SectionPainter(const ChartData& sheet, const DrawingSize& size, const Ink& ink)
        : sheet_(sheet), ink_(ink), layers_(LayersOf(sheet)) {
        scene_.width = size.width;
        scene_.height = size.height;
        scene_.paper = ink.paper;
    }

    Scene Paint() {
        AddTitle();
        PlaceColumns();
        PlaceBands();
        AddBands();
        AddLayerDimensions();
        AddTotalDimension();
        AddLabels();
        AddLegend();
        return std::move(scene_);
    }

  private:
    /// A layer's place from the top down.
    struct Band {
        double top = 0.0;
        double bottom = 0.0;

        [[nodiscard]] double middle() const { return (top + bottom) / 2.0; }
        [[nodiscard]] double height() const { return bottom - top; }
    };

    // --- Where things stand -----------------------------------------------------------------------

    [[nodiscard]] double StackTop() const { return kMargin + kTitleLines * kTitlePitch + kGap; }
    [[nodiscard]] double StackBottom() const {
        return scene_.height - kMargin - kLegendLines * (kSwatchHeight + kGap);
    }

    void PlaceColumns() {
        double widest = 0.0;
        for (const SectionLayer& layer : layers_) {
            if (layer.counts) widest = std::max(widest, TextWidth(LayerText(layer), kTextSize));
        }
        const double total = TotalThickness(layers_);
        const double totalWidth = total > 0.0 ? TextWidth(ThicknessText(sheet_, total), kTextSize) : 0.0;
        totalLine_ = kMargin + totalWidth + kGap;
        layerLine_ = totalLine_ + kGap + widest + kGap;
        left_ = layerLine_ + 2.0 * kGap;
        right_ = scene_.width - kMargin - LabelWidth() - kLeader - kGap;
        right_ = std::max(right_, left_ + kLeastStack);
    }

    [[nodiscard]] double LabelWidth() const {
        double widest = 0.0;
        for (const SectionLayer& layer : layers_) {
            for (const std::string& line : layer.label) {
                widest = std::max(widest, TextWidth(line, kTextSize));
            }
        }
        return std::min(widest + kThinLine, scene_.width * kMostOfLabels);
    }

    void PlaceBands() {
        const double scale = (StackBottom() - StackTop()) / ReachOf(sheet_, layers_);
        double bottom = StackBottom();
        for (const SectionLayer& layer : layers_) {
            const double top = bottom - layer.thickness * scale;
            bands_.push_back({top, bottom});
            bottom = top;
        }
    }

    // --- What is drawn ------------------------------------------------------------------------------

    void AddText(Point place, const std::string& text, Anchor anchor, double size = kTextSize,
                 bool bold = false) {
        scene_.shapes.emplace_back(shape::Text{place, text, size, ink_.ink, anchor, bold});
    }

    void AddLine(std::vector<Point> points, double width, const std::string& colour) {
        scene_.shapes.emplace_back(shape::Line{std::move(points), {colour, width}});
    }

    void AddTitle() {
        const std::vector<std::string> lines = LinesOf(sheet_.title);
        double y = kMargin + kTitleSize;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            scene_.title += (i == 0 ? "" : ", ") + lines[i];
            AddText({scene_.width / 2.0, y}, lines[i], Anchor::Middle, i == 0 ? kTitleSize : kTextSize,
                    i == 0);
            y += kTitlePitch;
        }
    }

    void AddBands() {
        for (std::size_t i = 0; i < layers_.size(); ++i) {
            std::string name;
            for (const std::string& line : layers_[i].label) name += (name.empty() ? "" : " ") + line;
            shape::Rectangle band;
            band.corner = {left_, bands_[i].top};
            band.width = right_ - left_;
            band.height = bands_[i].height();
            band.fill = layers_[i].colour;
            band.name = std::move(name);
            DrawHatched(scene_, band, layers_[i].material);
        }
        if (bands_.empty()) return;
        // Two layers of the same kind stay apart, also black ones.
        for (std::size_t i = 1; i < bands_.size(); ++i) {
            AddLine({{left_, bands_[i].bottom}, {right_, bands_[i].bottom}}, kOutline, kSeparator);
        }
        // The earth goes on below.
        AddLine({{left_, bands_.front().bottom},
                 {left_, bands_.back().top},
                 {right_, bands_.back().top},
                 {right_, bands_.front().bottom}},
                kOutline, ink_.ink);
    }

    /// The end of a dimension: a stroke across the line.
    void AddTick(double x, double y) {
        AddLine({{x - kTick, y + kTick}, {x + kTick, y - kTick}}, kOutline, ink_.ink);
    }

    void AddDimension(double x, const Band& band) {
        AddLine({{x, band.top}, {x, band.bottom}}, kThinLine, ink_.ink);
        AddTick(x, band.top);
        AddTick(x, band.bottom);
    }

    [[nodiscard]] std::string LayerText(const SectionLayer& layer) const {
        return ThicknessText(sheet_, layer.thickness);
    }

    /// What is too thin for a number beside it has its thickness in its label alone.
    void AddLayerDimensions() {
        for (std::size_t i = 0; i < layers_.size(); ++i) {
            if (!layers_[i].counts) continue;
            AddDimension(layerLine_, bands_[i]);
            if (bands_[i].height() < kTextSize) continue;
            AddText({layerLine_ - kGap, bands_[i].middle() + kAscent / 2.0}, LayerText(layers_[i]),
                    Anchor::End);
        }
    }

    /// The total's line is broken where a layer does not count.
    void AddTotalDimension() {
        const double total = TotalThickness(layers_);
        if (total <= 0.0) return;
        std::vector<Band> runs;
        for (std::size_t i = 0; i < layers_.size(); ++i) {
            if (!layers_[i].counts) continue;
            if (!runs.empty() && runs.back().top == bands_[i].bottom) {
                runs.back().top = bands_[i].top;
            } else {
                runs.push_back(bands_[i]);
            }
        }
        for (const Band& run : runs) AddDimension(totalLine_, run);
        const double middle = (runs.front().bottom + runs.back().top) / 2.0;
        AddText({totalLine_ - kGap, middle + kAscent / 2.0}, ThicknessText(sheet_, total), Anchor::End);
    }

    /// The labels beside the stack, each led to its layer.
    void AddLabels() {
        std::vector<ColumnLabel> labels;
        for (std::size_t i = layers_.size(); i-- > 0;) {
            labels.push_back({.lines = layers_[i].label, .wanted = bands_[i].middle()});
        }
        PlaceLabels(labels, kLinePitch, StackTop() - kGap, StackBottom() + kGap);
        const double text = right_ + kLeader + kGap;
        const double room = scene_.width - kMargin - text;
        for (const ColumnLabel& label : labels) {
            const double middle = label.top + label.height / 2.0;
            AddLine({{right_, label.wanted}, {right_ + kLeader, middle}}, kThinLine, ink_.ink);
            double base = label.top + (kLinePitch + kAscent) / 2.0;
            for (const std::string& line : label.lines) {
                AddText({text, base}, FitText(line, kTextSize, room), Anchor::Start);
                base += kLinePitch;
            }
        }
    }

    void AddLegend() {
        std::set<Material> shown;
        Point at{kMargin, StackBottom() + 2.0 * kGap};
        for (auto layer = layers_.rbegin(); layer != layers_.rend(); ++layer) {
            if (!shown.insert(layer->material).second) continue;
            const std::string name = NameOf(layer->material);
            const double width = kSwatchWidth + kGap + TextWidth(name, kTextSize) + 2.0 * kGap;
            if (at.x > kMargin && at.x + width > scene_.width) {
                at = {kMargin, at.y + kSwatchHeight + kGap};
            }
            DrawHatched(scene_, {at, kSwatchWidth, kSwatchHeight, layer->colour, {ink_.ink, kThinLine}, {}},
                        layer->material);
            AddText({at.x + kSwatchWidth + kGap, at.y + (kSwatchHeight + kAscent) / 2.0}, name,
                    Anchor::Start);
            at.x += width;
        }
    }

    const ChartData& sheet_;
    const Ink& ink_;
    std::vector<SectionLayer> layers_;
    std::vector<Band> bands_;
    Scene scene_;
    double totalLine_ = 0.0;  // where the dimension lines stand
    double layerLine_ = 0.0;
    double left_ = 0.0;  // of the stack
    double right_ = 0.0;
};

}  // namespace

Scene MakeSectionScene(const ChartData& sheet, const DrawingSize& size, const Ink& ink) {
    return SectionPainter(sheet, size, ink).Paint();
}

}  // namespace kelvor
