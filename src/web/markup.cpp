#include "web/markup.h"

#include <cmath>

#include "web/menu_markup.h"

namespace {

std::string Attribute(const char* name, const std::string& value) {
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

std::string RectPath(const Rect& rect) {
  const std::string width = std::to_string(rect.Width);
  return std::string("M") + std::to_string(rect.Left) + " " + std::to_string(rect.Top) + "h" +
         width + "v" + std::to_string(rect.Height) + "h-" + width + "z";
}

/// A line of this width along the edges of the rectangle, inside of it.
std::string FrameMarkup(const Rect& rect, int width, Color color) {
  const Rect hole{rect.Left + width, rect.Top + width, rect.Width - 2 * width,
                  rect.Height - 2 * width};
  return R"(<path fill-rule="evenodd")" + Attribute("fill", color) +
         Attribute("d", RectPath(rect) + RectPath(hole)) + "/>";
}

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
      return "<rect" + PlaceAttributes({left, top, width, height}) + fill;
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

std::string PictureMarkup(const Picture& picture, const std::string& attributes) {
  std::string shapes;
  for (const PictureShape& shape : picture.Shapes) shapes += ShapeMarkup(shape);
  return R"(<svg preserveAspectRatio="none")" + attributes +
         ViewBox(100 * picture.Width, 100 * picture.Height) + ">" + shapes + "</svg>";
}

/// In the middle of the control, at its upper edge.
std::string CaptionMarkup(const Control& control) {
  constexpr int TwipsPerPoint = 20;
  std::string families;
  for (const std::string& family : control.Font.Families) families += "'" + family + "',";
  return "<text" + Attribute("x", control.Left + control.Width / 2) + Attribute("y", control.Top) +
         Attribute("fill", control.ForeColor) + Attribute("font-family", families + "sans-serif") +
         Attribute("font-size", control.Font.Points * TwipsPerPoint) +
         Attribute("data-room", control.CaptionWidth != 0 ? control.CaptionWidth : control.Width) +
         ">" + Escaped(control.Caption) + "</text>";
}

std::string LabelMarkup(const Control& control) {
  std::string text;
  if (control.BackColor) {
    text =
        "<rect" + PlaceAttributes(RectOf(control)) + Attribute("fill", *control.BackColor) + "/>";
  }
  return control.Caption.empty() ? text : text + CaptionMarkup(control);
}

}  // namespace

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '&') {
      escaped += "&amp;";
    } else if (c == '<') {
      escaped += "&lt;";
    } else if (c == '"') {
      escaped += "&quot;";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string ControlMarkup(const Control& control) {
  if (!control.Visible) return "";
  switch (control.Kind) {
    case ControlKind::Label:
      return LabelMarkup(control);
    case ControlKind::Image:
      if (!control.Picture) return "";
      return PictureMarkup(*control.Picture, PlaceAttributes(RectOf(control)));
    case ControlKind::Border:
      return FrameMarkup(RectOf(control), control.LineWidth * TwipsPerPixel, control.ForeColor);
    case ControlKind::PictureBox:
      break;
  }
  return "";
}

std::string OutlineMarkup(const Rect& place) {
  constexpr int Line = TwipsPerPixel;
  const Rect inner{place.Left + Line, place.Top + Line, place.Width - 2 * Line,
                   place.Height - 2 * Line};
  return FrameMarkup(place, Line, {255, 255, 255}) + FrameMarkup(inner, Line, {0, 0, 0});
}

std::string IconMarkup(const Picture& picture) {
  return PictureMarkup(picture, R"( xmlns="http://www.w3.org/2000/svg")");
}

std::string FormMarkup(const Form& form) {
  // The groups stand from back to front, as they are drawn, but are read out in the form's order.
  std::string groups;
  std::string order;
  for (std::size_t place = 0; place <= form.Controls.size(); ++place) {
    const std::string id = "control" + std::to_string(place);
    if (place < form.Controls.size()) {
      order += id + " ";
      groups.insert(0, "<g id=\"" + id + "\"></g>");
    } else {
      groups += "<g id=\"" + id + "\"></g>";
    }
  }
  return MenuMarkup(form.Menu) + R"(<svg id="view" tabindex="-1" role="group")" +
         Attribute("aria-label", form.Caption) + Attribute("aria-owns", order) +
         Attribute("width", form.Width / TwipsPerPixel) +
         Attribute("height", form.Height / TwipsPerPixel) + ViewBox(form.Width, form.Height) +
         R"(><rect width="100%" height="100%")" + Attribute("fill", form.BackColor) + "/>" +
         groups + "</svg>";
}
