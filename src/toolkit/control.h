#pragma once

#include <functional>
#include <optional>
#include <string>

#include "toolkit/geometry.h"
#include "toolkit/picture.h"

struct Control;

/// The event handlers of a control array. An empty function ignores the event. `index` is the
/// index of the element, `source` the dragged image.
struct ControlEvents {
  std::function<void(int index)> Click{};
  std::function<void(int index)> MouseMove{};
  std::function<void(int index, const Control& source)> DragOver{};
  std::function<void(int index, const Control& source)> DragDrop{};
};

struct CaptionFont {
  std::vector<std::string> Families;  // the first installed one is used
  int Points = 0;
};

enum class ControlKind {
  Label,       // a filled or transparent rectangle; its caption is centred across, at the top
  Image,       // shows a picture, stretched to its size
  PictureBox,  // keeps a picture for images to share, and is never drawn
  Border,      // a line along the edges of its rectangle, inside of it
};

/// One element of a window as plain data. The screen shows a change after the current event.
/// Pictures and events must outlive the control.
struct Control {
  ControlKind Kind = ControlKind::Label;
  std::string Name;
  int Index = 0;   // in its control array, from 1; 0: not in an array
  int Left = 0;    // twips
  int Top = 0;     // twips
  int Width = 0;   // twips
  int Height = 0;  // twips
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

/// A visible control of this kind at this place. All other members keep their defaults.
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
