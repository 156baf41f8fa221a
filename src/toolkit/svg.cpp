#include "toolkit/svg.h"

#include <cmath>

namespace {

/// A coordinate of a picture in hundredths of its pixels.
int Hundredths(double pixels) { return static_cast<int>(std::lround(pixels * 100)); }

std::string ShapeMarkup(const PictureShape& shape) {
  const std::string fill = Attribute("fill", shape.Fill) + "/>";
  const int left = Hundredths(shape.Corners[0].first);
  const int top = Hundredths(shape.Corners[0].second);
  const int width = Hundredths(shape.Corners[1].first) - left;
  const int height = Hundredths(shape.Corners[1].second) - top;
  switch (shape.Outline) {
    case PictureShape::Kind::Rectangle:
      // Without antialiasing, which shows the background along the seams at most sizes.
      return "<rect" + PlaceAttributes({left, top, width, height}) +
             Attribute("shape-rendering", "crispEdges") + fill;
    case PictureShape::Kind::Ellipse:
      return "<ellipse" + Attribute("cx", left + width / 2) + Attribute("cy", top + height / 2) +
             Attribute("rx", width / 2) + Attribute("ry", height / 2) + fill;
    case PictureShape::Kind::Polygon:
      break;
  }
  std::string points;
  for (const auto& [x, y] : shape.Corners) {
    points += std::to_string(Hundredths(x)) + "," + std::to_string(Hundredths(y)) + " ";
  }
  return "<polygon" + Attribute("points", points) + fill;
}

}  // namespace

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    escaped += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '"' ? "&quot;" : std::string(1, c);
  }
  return escaped;
}

std::string Attribute(const char* name, std::string_view value) {
  return std::string(" ") + name + "=\"" + Escaped(value) + "\"";
}

std::string Attribute(const char* name, int value) {
  return Attribute(name, std::to_string(value));
}

std::string Attribute(const char* name, Color color) {
  constexpr const char* Digits = "0123456789abcdef";
  std::string hex = "#";
  for (const int part : {color.Red, color.Green, color.Blue}) {
    hex += Digits[part / 16];
    hex += Digits[part % 16];
  }
  return Attribute(name, hex);
}

std::string PlaceAttributes(const Rect& place) {
  return Attribute("x", place.Left) + Attribute("y", place.Top) + Attribute("width", place.Width) +
         Attribute("height", place.Height);
}

std::string ViewBox(int width, int height) {
  return Attribute("viewBox",
                   std::string("0 0 ") + std::to_string(width) + " " + std::to_string(height));
}

std::string PictureMarkup(const Picture& picture, const std::string& attributes) {
  std::string shapes;
  for (const PictureShape& shape : picture.Shapes) shapes += ShapeMarkup(shape);
  return R"(<svg preserveAspectRatio="none")" + attributes +
         ViewBox(100 * picture.Width, 100 * picture.Height) + ">" + shapes + "</svg>";
}

std::string IconMarkup(const Picture& picture) {
  return PictureMarkup(picture, Attribute("xmlns", "http://www.w3.org/2000/svg") +
                                    Attribute("width", picture.Width) +
                                    Attribute("height", picture.Height));
}
