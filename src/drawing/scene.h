#pragma once

#include <string>
#include <variant>
#include <vector>

namespace kelvor {

/// A place on a drawing, in points (1/72 inch), from its upper left corner to the right and down.
struct Point {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Point&) const = default;
};

/// A line that is drawn. Colours are "#RRGGBB"; an empty one draws nothing.
struct Stroke {
    std::string colour = {};
    double width = 0.0;
    double dash = 0.0;  // the length of its dashes and of the gaps between them; 0: a whole line

    bool operator==(const Stroke&) const = default;
};

/// The shapes of a drawing. Whoever paints one has a routine for each of them.
namespace shape {

struct Rectangle {
    Point corner;  // upper left
    double width = 0.0;
    double height = 0.0;
    std::string fill = {};
    Stroke stroke = {};
    std::string name = {};  // what it shows, for a reader of the file; empty: a part of something

    bool operator==(const Rectangle&) const = default;
};

/// A closed line through its corners.
struct Polygon {
    std::vector<Point> corners;
    std::string fill = {};
    Stroke stroke = {};

    bool operator==(const Polygon&) const = default;
};

struct Ellipse {
    Point centre;
    double radiusX = 0.0;
    double radiusY = 0.0;
    std::string fill = {};
    Stroke stroke = {};

    bool operator==(const Ellipse&) const = default;
};

/// An open line.
struct Line {
    std::vector<Point> points;
    Stroke stroke = {};

    bool operator==(const Line&) const = default;
};

enum class Anchor { Start, Middle, End };

/// A text in one line. Its place is on its base line, at its start, middle or end.
struct Text {
    Point place;
    std::string text;
    double size = 9.0;  // of its letters, in points
    std::string colour = "#000000";
    Anchor anchor = Anchor::Start;
    bool bold = false;
    bool upright = false;  // turned a quarter to the left, as along an axis that goes up

    bool operator==(const Text&) const = default;
};

}  // namespace shape

using Shape = std::variant<shape::Rectangle, shape::Polygon, shape::Ellipse, shape::Line, shape::Text>;

/// A drawing: shapes in the order in which they are painted, over paper of one colour. It is made without
/// knowing who paints it: windows, files and printed pages show the same.
struct Scene {
    double width = 0.0;  // in points
    double height = 0.0;
    std::string paper = "#FFFFFF";
    std::string title = {};  // what it shows, in one line
    std::vector<Shape> shapes = {};

    bool operator==(const Scene&) const = default;
};

/// The colours of a drawing that depend on the paper.
struct Ink {
    std::string paper = "#FFFFFF";
    std::string ink = "#000000";    // texts and lines
    std::string faint = "#808080";  // lines that stand back
};

}  // namespace kelvor
