#include "drawing/svg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kelvor::test {
namespace {

using testing::HasSubstr;
using testing::Not;

Scene Drawing() {
    Scene scene;
    scene.width = 100.0;
    scene.height = 50.5;
    scene.title = "Base & <subgrade>";
    return scene;
}

TEST(SvgTest, ADrawingIsAsLargeAsItSaysAndOfItsPaper) {
    const std::string svg = ToSvg(Drawing());
    EXPECT_THAT(svg, testing::StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
    EXPECT_THAT(svg, HasSubstr("width=\"100pt\" height=\"50.5pt\" viewBox=\"0 0 100 50.5\""));
    EXPECT_THAT(svg, HasSubstr("<rect x=\"0\" y=\"0\" width=\"100\" height=\"50.5\" fill=\"#FFFFFF\"/>"));
    EXPECT_THAT(svg, HasSubstr("<title>Base &amp; &lt;subgrade&gt;</title>"));
    EXPECT_THAT(svg, testing::EndsWith("</svg>\n"));
}

TEST(SvgTest, EachShapeIsWritten) {
    Scene scene = Drawing();
    scene.shapes = {
        shape::Rectangle{{1.0, 2.25}, 3.0, 4.0, "#112233", {"#000000", 0.5}, "Base \"A\""},
        shape::Polygon{{{0.0, 0.0}, {1.0, 1.0}, {2.0, 0.0}}, "#445566"},
        shape::Ellipse{{5.0, 6.0}, 2.0, 1.0, {}, {"#00FF00", 1.0}},
        shape::Line{{{0.0, -0.001}, {1.0 / 3.0, 10.0}}, {"#FF0000", 0.6}},
        shape::Text{{7.0, 8.0}, "4.0 in", 9.0, "#000000", shape::Anchor::End, true, true},
    };
    const std::string svg = ToSvg(scene);
    EXPECT_THAT(svg, HasSubstr("<rect x=\"1\" y=\"2.25\" width=\"3\" height=\"4\" fill=\"#112233\" "
                               "stroke=\"#000000\" stroke-width=\"0.5\"><title>Base &quot;A&quot;</title>"));
    EXPECT_THAT(svg, HasSubstr("<polygon points=\"0,0 1,1 2,0\" fill=\"#445566\"/>"));
    EXPECT_THAT(svg, HasSubstr("<ellipse cx=\"5\" cy=\"6\" rx=\"2\" ry=\"1\" fill=\"none\" "
                               "stroke=\"#00FF00\" stroke-width=\"1\"/>"));
    EXPECT_THAT(svg, HasSubstr("<polyline points=\"0,0 0.33,10\" fill=\"none\""));
    EXPECT_THAT(svg, HasSubstr("text-anchor=\"end\" font-weight=\"bold\" transform=\"rotate(-90 7 8)\">4.0 "
                               "in</text>"));
}

TEST(SvgTest, ATextCannotBreakTheFile) {
    Scene scene = Drawing();
    scene.shapes = {shape::Text{{0.0, 0.0}, "</text><script>\x01 \xC3\xA9"}};
    const std::string svg = ToInlineSvg(scene);
    EXPECT_THAT(svg, HasSubstr(">&lt;/text&gt;&lt;script&gt;  \xC3\xA9</text>"));
    EXPECT_THAT(svg, Not(HasSubstr("<?xml")));
}

}  // namespace
}  // namespace kelvor::test
