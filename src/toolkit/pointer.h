#pragma once

#include <vector>

#include "toolkit/form.h"
#include "toolkit/host.h"

/// The frontmost visible control that contains the point. Null if none does.
const Control* ControlAt(const Form& form, Point point);

/// The controls in front along a straight line, both ends included, each once and in order. The
/// line is walked in as few equal steps of at most a pixel as possible. Each point is rounded
/// towards the start. Null stands for the form itself. What is outside the client area is left out.
/// The ends may be anywhere.
std::vector<const Control*> ControlsAlong(const Form& form, Point from, Point to);

/// Turns presses, movements and releases into the events of the controls, and keeps the drag.
class Pointer {
 public:
  /// Delivers one press, movement or release.
  void Handle(const InputEvent& event);

  /// Ends the present drag without a drop. Does nothing if there is none.
  void CancelDrag();

  const Drag& CurrentDrag() const { return drag; }

 private:
  void Follow(Form& window, Point to);
  void Press(Form& window, Point at);
  void Release(Form& window, Point at);

  Form* window = nullptr;  // of the last event; null before the first
  Point last;
  const Control* pressed = nullptr;  // for the click: nothing while a drag runs or ran
  bool isPressed = false;
  Drag drag;
};
