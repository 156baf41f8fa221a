#pragma once

#include <vector>

#include "toolkit/form.h"
#include "toolkit/host.h"

/// The frontmost visible control that contains the point; empty where none does.
const Control* ControlAt(const Form& form, Point point);

/// The controls that lie in front along the straight line, both ends included, each once and in
/// order. The line is walked in equal steps of at most a pixel, as few as that takes, and each
/// point is rounded towards the start. An empty entry stands for the bare form; what lies outside
/// the client area is left out. The points may lie anywhere.
std::vector<const Control*> ControlsAlong(const Form& form, Point from, Point to);

/// Turns presses, movements and releases into the events of the controls, and keeps the drag.
class Pointer {
 public:
  /// Delivers one press, movement or release.
  void Handle(const InputEvent& event);

  /// Ends the drag under way, if there is one, without a drop.
  void CancelDrag();

  const Drag& CurrentDrag() const { return drag; }

 private:
  void Follow(Form& window, Point to);
  void Press(Form& window, Point at);
  void Release(Form& window, Point at);

  Form* window = nullptr;  // of the last event; empty before the first
  Point last;
  const Control* pressed = nullptr;  // for the click: nothing while a drag runs or ran
  bool isPressed = false;
  Drag drag;
};
