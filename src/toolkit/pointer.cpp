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

/// How far outside the client area the point lies, in twips; 0 or less: inside.
std::int64_t DistanceOutside(const Form& form, Point point) {
  const std::int64_t x = point.X;
  const std::int64_t y = point.Y;
  return std::max({-x, x - form.Width + 1, -y, y - form.Height + 1});
}

}  // namespace

const Control* ControlAt(const Form& form, Point point) {
  const auto hit = std::ranges::find_if(form.Controls, [&](const Control* control) {
    return control->Visible && Contains(RectOf(*control), point);
  });
  return hit == form.Controls.end() ? nullptr : *hit;
}

std::vector<const Control*> ControlsAlong(const Form& form, Point from, Point to) {
  // An int would overflow where the pointer is far off the screen.
  const std::int64_t across = std::int64_t{to.X} - from.X;
  const std::int64_t down = std::int64_t{to.Y} - from.Y;
  const std::int64_t way = std::max(std::abs(across), std::abs(down));
  const std::int64_t steps = std::max<std::int64_t>(1, (way + TwipsPerPixel - 1) / TwipsPerPixel);
  std::vector<const Control*> seen;
  for (std::int64_t step = 0; step <= steps;) {
    const Point at{static_cast<int>(from.X + across * step / steps),
                   static_cast<int>(from.Y + down * step / steps)};
    const std::int64_t outside = DistanceOutside(form, at);
    // A step goes no further than a pixel, so nothing is missed by a leap to the edge.
    step += std::max<std::int64_t>(1, outside / TwipsPerPixel);
    if (outside > 0) continue;
    const Control* front = ControlAt(form, at);
    if (std::ranges::find(seen, front) == seen.end()) seen.push_back(front);
  }
  return seen;
}

void Pointer::Handle(const InputEvent& event) {
  if (drag.Source && !drag.Source->Visible) CancelDrag();
  // No movement may have been reported on the way to a button event. The way counts all the same.
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

/// The control that the pointer leaves gets the event too: the line starts on its last pixel.
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
