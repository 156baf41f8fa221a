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

/// The place after so many of the steps that lead from one place to another. A pointer far off the
/// screen would overflow an int.
int Between(int from, int to, int step, int steps) {
  return from + static_cast<int>(std::int64_t{to - from} * step / steps);
}

}  // namespace

const Control* ControlAt(const Form& form, Point point) {
  return Frontmost(ControlsNear(form, point, point), point);
}

std::vector<const Control*> ControlsAlong(const Form& form, Point from, Point to) {
  const std::vector<const Control*> near = ControlsNear(form, from, to);
  const int way = std::max(std::abs(to.X - from.X), std::abs(to.Y - from.Y));
  const int steps = std::max((way + TwipsPerPixel - 1) / TwipsPerPixel, 1);
  std::vector<const Control*> crossed;
  for (int step = 0; step <= steps; ++step) {
    const Point point{Between(from.X, to.X, step, steps), Between(from.Y, to.Y, step, steps)};
    if (!IsInside(form, point)) continue;
    const Control* control = Frontmost(near, point);
    if (std::ranges::find(crossed, control) == crossed.end()) crossed.push_back(control);
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
