#include "web/markup.h"

#include "toolkit/shown_form.h"
#include "toolkit/svg.h"

namespace {

std::string RectPath(const Rect& rect) {
  const std::string width = std::to_string(rect.Width);
  return std::string("M") + std::to_string(rect.Left) + " " + std::to_string(rect.Top) + "h" +
         width + "v" + std::to_string(rect.Height) + "h-" + width + "z";
}

/// The rectangle without a line of this width along its edges.
Rect Inside(const Rect& rect, int width) {
  return {rect.Left + width, rect.Top + width, rect.Width - 2 * width, rect.Height - 2 * width};
}

std::string FrameMarkup(const Rect& rect, int width, Color color) {
  return R"(<path fill-rule="evenodd")" + Attribute("fill", color) +
         Attribute("d", RectPath(rect) + RectPath(Inside(rect, width))) + "/>";
}

/// The caption, centred at the top edge of the control.
std::string CaptionMarkup(const Control& control) {
  constexpr int TwipsPerPoint = 20;
  std::string families;
  for (const std::string& family : control.Font.Families) families += "'" + family + "',";
  return "<text" + Attribute("x", control.Left + control.Width / 2) + Attribute("y", control.Top) +
         Attribute("fill", control.ForeColor) + Attribute("font-family", families + "sans-serif") +
         Attribute("font-size", control.Font.Points * TwipsPerPoint) +
         Attribute("data-room", CaptionRoom(control)) + ">" + Escaped(control.Caption) + "</text>";
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
  std::string markup;
  Rect rect = place;
  for (const Color color : OutlineColors) {
    markup += FrameMarkup(rect, TwipsPerPixel, color);
    rect = Inside(rect, TwipsPerPixel);
  }
  return markup;
}

std::string FormMarkup(const Form& form) {
  // SVG draws from back to front; the form lists the frontmost control first. Screen readers follow
  // the order of the form.
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
  return R"(<svg id="view" tabindex="-1" role="group")" + Attribute("aria-owns", order) +
         Attribute("width", form.Width / TwipsPerPixel) +
         Attribute("height", form.Height / TwipsPerPixel) + ViewBox(form.Width, form.Height) +
         R"(><rect width="100%" height="100%")" + Attribute("fill", form.BackColor) + "/>" +
         groups + "</svg>";
}
