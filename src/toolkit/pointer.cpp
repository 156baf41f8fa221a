#include "toolkit/pointer.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

bool IsInside(const Form& form, Point point) {
  return Contains({0, 0, form.Width, form.Height}, point);
}

const ControlEvents* EventsOf(const Form& form, const Control* control) {
  return control ? control->Events : &form.Events;
}

int IndexOf(const Control* control) { return control ? control->Index : 0; }

/// The visible controls that touch the box around the line, from front to back: no other can lie
/// on it, and a short line touches few.
std::vector<const Control*> ControlsNear(const Form& form, Point from, Point to) {
  const auto [left, right] = std::minmax(from.X, to.X);
  const auto [top, bottom] = std::minmax(from.Y, to.Y);
  std::vector<const Control*> near;
  for (const Control* control : form.Controls) {
    if (control->Visible && control->Left <= right && control->Left + control->Width > left &&
        control->Top <= bottom && control->Top + control->Height > top) {
      near.push_back(control);
    }
  }
  return near;
}

const Control* Frontmost(const std::vector<const Control*>& controls, Point point) {
  const auto hit = std::ranges::find_if(
      controls, [&](const Control* control) { return Contains(RectOf(*control), point); });
  return hit == controls.end() ? nullptr : *hit;
}

/// A straight way, pixel by pixel.
struct Line {
  Point From;
  Point To;
  int Steps = 0;  // At(Steps) is its end

  Point At(int step) const { return {Between(From.X, To.X, step), Between(From.Y, To.Y, step)}; }

 private:
  /// A pointer far off the screen would overflow an int on the way.
  int Between(int from, int to, int step) const {
    return Steps == 0 ? from : from + static_cast<int>(std::int64_t{to - from} * step / Steps);
  }
};

Line MakeLine(Point from, Point to) {
  const int way = std::max(std::abs(to.X - from.X), std::abs(to.Y - from.Y));
  return {from, to, (way + TwipsPerPixel - 1) / TwipsPerPixel};
}

/// Whether no control in front of this one reaches into it. False for the bare form.
bool IsUncovered(const std::vector<const Control*>& controls, const Control* control) {
  for (const Control* front : controls) {
    if (front == control) return true;
    if (control && Overlap(RectOf(*front), RectOf(*control))) return false;
  }
  return false;
}

/// The first step behind this one, which lies on the control, that has left it.
int FirstStepOff(const Control& control, const Line& line, int step) {
  int outside = line.Steps + 1;
  while (outside - step > 1) {
    const int middle = (step + outside) / 2;
    (Contains(RectOf(control), line.At(middle)) ? step : outside) = middle;
  }
  return outside;
}

}  // namespace

const Control* ControlAt(const Form& form, Point point) {
  return Frontmost(ControlsNear(form, point, point), point);
}

std::vector<const Control*> ControlsAlong(const Form& form, Point from, Point to) {
  const std::vector<const Control*> near = ControlsNear(form, from, to);
  const Line line = MakeLine(from, to);
  std::vector<const Control*> crossed;
  for (int step = 0; step <= line.Steps;) {
    const Point point = line.At(step);
    const bool isInside = IsInside(form, point);
    const Control* control = isInside ? Frontmost(near, point) : nullptr;
    if (isInside && std::ranges::find(crossed, control) == crossed.end()) {
      crossed.push_back(control);
    }
    step = IsUncovered(near, control) ? FirstStepOff(*control, line, step) : step + 1;
  }
  return crossed;
}

void Pointer::Handle(const InputEvent& event) {
  if (drag.Source && !drag.Source->Visible) CancelDrag();
  // A button event may come from a place that no movement has led to: the way there counts.
  Follow(*event.Window, event.At);
  if (event.What == InputEvent::Kind::Press) Press(*event.Window, event.At);
  if (event.What == InputEvent::Kind::Release) Release(*event.Window, event.At);
}

void Pointer::CancelDrag() {
  if (!drag.Source) return;
  const Form& dragWindow = *drag.Window;
  drag = {};
  if (dragWindow.DragCancelled) dragWindow.DragCancelled();
}

/// The control that the pointer leaves hears of the movement too: it may start on its last pixel.
void Pointer::Follow(Form& eventWindow, Point to) {
  const Point from = window == &eventWindow ? last : to;
  window = &eventWindow;
  last = to;
  if (drag.Source) drag.Pointer = to;
  for (const Control* control : ControlsAlong(eventWindow, from, to)) {
    const ControlEvents* events = EventsOf(eventWindow, control);
    if (!events) continue;
    if (drag.Source) {
      if (events->DragOver) events->DragOver(IndexOf(control), *drag.Source);
    } else if (events->MouseMove) {
      events->MouseMove(IndexOf(control));
    }
  }
}

void Pointer::Press(Form& eventWindow, Point at) {
  CancelDrag();  // its release never came
  const Control* hit = ControlAt(eventWindow, at);
  isPressed = IsInside(eventWindow, at);
  pressed = hit;
  if (!hit || hit->Kind != ControlKind::Image || hit->DragMode != 1) return;
  isPressed = false;
  drag = {&eventWindow, hit, at, at};
  if (hit->Events && hit->Events->DragOver) hit->Events->DragOver(hit->Index, *hit);
}

void Pointer::Release(Form& eventWindow, Point at) {
  const bool isInside = IsInside(eventWindow, at);
  const Control* hit = ControlAt(eventWindow, at);
  const ControlEvents* events = EventsOf(eventWindow, hit);
  const bool isClick = isPressed && isInside && hit == pressed;
  isPressed = false;
  if (drag.Source && !isInside) {
    CancelDrag();
  } else if (drag.Source) {
    const Control& source = *drag.Source;
    drag = {};  // first, so that a handler that waits finds no drag
    if (events && events->DragDrop) events->DragDrop(IndexOf(hit), source);
  } else if (isClick && events && events->Click) {
    events->Click(IndexOf(hit));
  }
}
