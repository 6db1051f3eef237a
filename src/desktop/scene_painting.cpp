#include "desktop/scene_painting.h"

#include <cmath>

#include "desktop/qt_text.h"

namespace kelvor {

namespace {

QColor ColourOf(const std::string& colour) { return QColor(ToQt(colour)); }

std::string NameOf(const QColor& colour) { return FromQt(colour.name().toUpper()); }

/// Halfway between two colours.
QColor Between(const QColor& one, const QColor& other) {
    return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                  (one.blue() + other.blue()) / 2);
}

class ScenePainting {
  public:
    explicit ScenePainting(QPainter& painter) : painter_(painter) {}

    void Paint(const shape::Rectangle& rectangle) {
        Take(rectangle.fill, rectangle.stroke);
        painter_.drawRect(QRectF(rectangle.corner.x, rectangle.corner.y, rectangle.width, rectangle.height));
    }

    void Paint(const shape::Polygon& polygon) {
        Take(polygon.fill, polygon.stroke);
        painter_.drawPolygon(PolygonOf(polygon.corners));
    }

    void Paint(const shape::Ellipse& ellipse) {
        Take(ellipse.fill, ellipse.stroke);
        painter_.drawEllipse(QPointF(ellipse.centre.x, ellipse.centre.y), ellipse.radiusX, ellipse.radiusY);
    }

    void Paint(const shape::Line& line) {
        Take({}, line.stroke);
        painter_.drawPolyline(PolygonOf(line.points));
    }

    void Paint(const shape::Text& text) {
        QFont font = painter_.font();
        font.setPixelSize(qRound(text.size));
        font.setBold(text.bold);
        painter_.save();
        painter_.setFont(font);
        painter_.setPen(ColourOf(text.colour));
        painter_.translate(text.place.x, text.place.y);
        if (text.upright) painter_.rotate(-90.0);
        const double width = QFontMetricsF(font).horizontalAdvance(ToQt(text.text));
        const double part = text.anchor == shape::Anchor::Start ? 0.0
                            : text.anchor == shape::Anchor::End ? 1.0
                                                                : 0.5;
        painter_.drawText(QPointF(-width * part, 0.0), ToQt(text.text));
        painter_.restore();
    }

  private:
    static QPolygonF PolygonOf(const std::vector<Point>& points) {
        QPolygonF polygon;
        for (const Point& point : points) polygon << QPointF(point.x, point.y);
        return polygon;
    }

    void Take(const std::string& fill, const Stroke& stroke) {
        painter_.setBrush(fill.empty() ? QBrush(Qt::NoBrush) : QBrush(ColourOf(fill)));
        if (stroke.colour.empty()) return painter_.setPen(Qt::NoPen);
        QPen pen(ColourOf(stroke.colour), stroke.width);
        pen.setJoinStyle(Qt::MiterJoin);
        pen.setCapStyle(Qt::FlatCap);
        if (stroke.dash > 0.0) pen.setDashPattern({stroke.dash / stroke.width, stroke.dash / stroke.width});
        painter_.setPen(pen);
    }

    QPainter& painter_;
};

}  // namespace

void PaintScene(QPainter& painter, const Scene& scene) {
    painter.setRenderHint(QPainter::Antialiasing);
    ScenePainting painting(painter);
    painting.Paint(shape::Rectangle{{0.0, 0.0}, scene.width, scene.height, scene.paper});
    for (const Shape& shape : scene.shapes) {
        std::visit([&](const auto& kind) { painting.Paint(kind); }, shape);
    }
}

QImage PictureOf(const Scene& scene, double dotsOfInch) {
    const double scale = dotsOfInch / kPointsOfInch;
    QImage picture(static_cast<int>(std::ceil(scene.width * scale)),
                   static_cast<int>(std::ceil(scene.height * scale)), QImage::Format_RGB32);
    picture.fill(ColourOf(scene.paper));
    QPainter painter(&picture);
    painter.scale(scale, scale);
    PaintScene(painter, scene);
    return picture;
}

Ink InkOf(const QPalette& palette) {
    const QColor paper = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    return {NameOf(paper), NameOf(ink), NameOf(Between(paper, ink))};
}

}  // namespace kelvor
