#include "drawing/svg.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "platform/markup.h"

namespace kelvor {

namespace {

constexpr int kPlaces = 2;  // of a coordinate: a hundredth of a point

/// A coordinate without needless zeros, whatever the locale.
std::string Number(double value) {
    std::array<char, 64> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, kPlaces);
    std::string text(digits.data(), end.ptr);
    while (text.ends_with('0')) text.pop_back();
    if (text.ends_with('.')) text.pop_back();
    return text == "-0" ? "0" : text;
}

/// A text as XML has it. What no XML may hold becomes a blank.
std::string Escaped(std::string_view text) {
    std::string plain(text);
    std::replace_if(
        plain.begin(), plain.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return EscapedMarkup(plain);
}

class SvgWriter {
  public:
    std::string Write(const Scene& scene) {
        const std::string width = Number(scene.width);
        const std::string height = Number(scene.height);
        text_ = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "pt\" height=\"" + height +
                "pt\" viewBox=\"0 0 " + width + " " + height +
                "\" font-family=\"sans-serif\" role=\"img\">\n";
        if (!scene.title.empty()) text_ += "<title>" + Escaped(scene.title) + "</title>\n";
        Add(shape::Rectangle{{0.0, 0.0}, scene.width, scene.height, scene.paper});
        for (const Shape& shape : scene.shapes) {
            std::visit([this](const auto& kind) { Add(kind); }, shape);
        }
        return text_ + "</svg>\n";
    }

  private:
    void Begin(const char* element) { text_ += std::string("<") + element; }
    void Attribute(const char* name, const std::string& value) {
        text_ += std::string(" ") + name + "=\"" + value + "\"";
    }
    void Attribute(const char* name, double value) { Attribute(name, Number(value)); }
    void End() { text_ += "/>\n"; }

    void AddStroke(const Stroke& stroke) {
        if (stroke.colour.empty()) return;
        Attribute("stroke", stroke.colour);
        Attribute("stroke-width", stroke.width);
        if (stroke.dash > 0.0) Attribute("stroke-dasharray", stroke.dash);
    }

    void AddPaint(const std::string& fill, const Stroke& stroke) {
        Attribute("fill", fill.empty() ? "none" : fill);
        AddStroke(stroke);
    }

    void AddPoints(const std::vector<Point>& points) {
        std::string text;
        for (const Point& point : points) {
            text += (text.empty() ? "" : " ") + Number(point.x) + "," + Number(point.y);
        }
        Attribute("points", text);
    }

    void Add(const shape::Rectangle& rectangle) {
        Begin("rect");
        Attribute("x", rectangle.corner.x);
        Attribute("y", rectangle.corner.y);
        Attribute("width", rectangle.width);
        Attribute("height", rectangle.height);
        AddPaint(rectangle.fill, rectangle.stroke);
        if (rectangle.name.empty()) return End();
        text_ += "><title>" + Escaped(rectangle.name) + "</title></rect>\n";
    }

    void Add(const shape::Polygon& polygon) {
        Begin("polygon");
        AddPoints(polygon.corners);
        AddPaint(polygon.fill, polygon.stroke);
        End();
    }

    void Add(const shape::Ellipse& ellipse) {
        Begin("ellipse");
        Attribute("cx", ellipse.centre.x);
        Attribute("cy", ellipse.centre.y);
        Attribute("rx", ellipse.radiusX);
        Attribute("ry", ellipse.radiusY);
        AddPaint(ellipse.fill, ellipse.stroke);
        End();
    }

    void Add(const shape::Line& line) {
        Begin("polyline");
        AddPoints(line.points);
        AddPaint({}, line.stroke);
        End();
    }

    void Add(const shape::Text& text) {
        Begin("text");
        Attribute("x", text.place.x);
        Attribute("y", text.place.y);
        Attribute("font-size", text.size);
        Attribute("fill", text.colour);
        if (text.anchor != shape::Anchor::Start) {
            Attribute("text-anchor", text.anchor == shape::Anchor::End ? "end" : "middle");
        }
        if (text.bold) Attribute("font-weight", "bold");
        if (text.upright) {
            Attribute("transform", "rotate(-90 " + Number(text.place.x) + " " + Number(text.place.y) + ")");
        }
        text_ += ">" + Escaped(text.text) + "</text>\n";
    }

    std::string text_;
};

}  // namespace

std::string ToInlineSvg(const Scene& scene) { return SvgWriter().Write(scene); }

std::string ToSvg(const Scene& scene) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + ToInlineSvg(scene);
}

}  // namespace kelvor
