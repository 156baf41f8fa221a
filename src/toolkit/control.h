#pragma once

#include <functional>
#include <optional>
#include <string>

#include "toolkit/geometry.h"
#include "toolkit/picture.h"

struct Control;

/// What a control array answers to. An empty function ignores the event. `index` is the element's
/// own, `source` the image that is dragged.
struct ControlEvents {
  std::function<void(int index)> Click{};
  std::function<void(int index)> MouseMove{};
  std::function<void(int index, const Control& source)> DragOver{};
  std::function<void(int index, const Control& source)> DragDrop{};
};

struct CaptionFont {
  std::vector<std::string> Families;  // the first that is installed is taken
  int Points = 0;
};

enum class ControlKind {
  Label,       // a filled or transparent rectangle; its caption is centred across, at the top
  Image,       // shows a picture, stretched to its size
  PictureBox,  // keeps a picture for images to share, and is never drawn
  Border,      // a line along the edges of its rectangle, inside of it
};

/// One element of a window as plain data: whatever is written here is on the screen after the
/// event.
struct Control {
  ControlKind Kind = ControlKind::Label;
  std::string Name;
  int Index = 0;  // place in its control array, from 1; 0 for a control of its own
  int Left = 0;   // twips
  int Top = 0;    // twips
  int Width = 0;
  int Height = 0;
  bool Visible = true;
  int DragMode = 0;  // 1: a press of the left button on the image starts a drag

  const ::Picture* Picture = nullptr;  // Image, PictureBox: nothing is shown while empty
  std::optional<Color> BackColor;      // Label: transparent while empty
  Color ForeColor;                     // Label: its caption; Border: its line
  std::string Caption;                 // UTF-8
  CaptionFont Font;
  int CaptionWidth = 0;  // Label: twips that its caption may take; 0: the whole width
  int LineWidth = 0;     // Border: pixels

  const ControlEvents* Events = nullptr;  // shared by a control array
};

constexpr Rect RectOf(const Control& control) {
  return {control.Left, control.Top, control.Width, control.Height};
}

/// The twips that the caption may take. A caption that is wider is drawn smaller.
constexpr int CaptionRoom(const Control& control) {
  return control.CaptionWidth != 0 ? control.CaptionWidth : control.Width;
}

/// A visible control of this kind at this place, and nothing else set.
inline Control MakeControl(ControlKind kind, const char* name, const Rect& place) {
  Control control;
  control.Kind = kind;
  control.Name = name;
  control.Left = place.Left;
  control.Top = place.Top;
  control.Width = place.Width;
  control.Height = place.Height;
  return control;
}
