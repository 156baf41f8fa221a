#include "toolkit/svg.h"

#include <gtest/gtest.h>

namespace {

TEST(Svg, MeasuresInHundredthsOfAPixel) {
  using enum PictureShape::Kind;
  const Picture picture{.Width = 4,
                        .Height = 2,
                        .Shapes = {{Rectangle, {0x10, 0xab, 0xff}, {{1, 0.5}, {4, 2}}},
                                   {Ellipse, {}, {{0, 0.5}, {3, 1.5}}},
                                   {Polygon, {}, {{0, 2}, {3.14159, 0}}}}};
  EXPECT_EQ(
      IconMarkup(picture),
      R"(<svg preserveAspectRatio="none" xmlns="http://www.w3.org/2000/svg" width="4" height="2")"
      R"( viewBox="0 0 400 200">)"
      R"(<rect x="100" y="50" width="300" height="150" shape-rendering="crispEdges")"
      R"( fill="#10abff"/>)"
      R"(<ellipse cx="150" cy="100" rx="150" ry="50" fill="#000000"/>)"
      R"(<polygon points="0,200 314,0 " fill="#000000"/></svg>)");
  EXPECT_EQ(Escaped("a&b<c\"d"), "a&amp;b&lt;c&quot;d");
}

}  // namespace
