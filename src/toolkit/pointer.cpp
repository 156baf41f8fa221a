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

/// Steps of a line, from `First` to the one before `End`; there may be none.
struct StepRange {
  int First = 0;
  int End = 0;
};

/// A straight way in steps of a pixel. Each step is rounded towards `From`, in both coordinates.
struct Line {
  Point From;
  Point To;
  int Steps = 0;  // the last one is `To`

  /// The steps that lie in the rectangle.
  StepRange Inside(const Rect& rect) const {
    const StepRange across = Between(From.X, To.X, rect.Left, rect.Left + rect.Width);
    const StepRange down = Between(From.Y, To.Y, rect.Top, rect.Top + rect.Height);
    return {std::max(across.First, down.First), std::min(across.End, down.End)};
  }

 private:
  /// The steps at which a coordinate lies in `low` to `high` - 1.
  StepRange Between(int from, int to, int low, int high) const {
    const int way = std::abs(to - from);
    if (from <= to) return {StepReaching(low - from, way), StepReaching(high - from, way)};
    return {StepReaching(from - high + 1, way), StepReaching(from - low + 1, way)};
  }

  /// The first step at which a coordinate has gone so far of its whole way.
  int StepReaching(int distance, int way) const {
    if (distance <= 0) return 0;
    if (distance > way) return Steps + 1;
    // A pointer far off the screen would overflow an int.
    return static_cast<int>((std::int64_t{distance} * Steps + way - 1) / way);
  }
};

Line MakeLine(Point from, Point to) {
  const int way = std::max(std::abs(to.X - from.X), std::abs(to.Y - from.Y));
  return {from, to, (way + TwipsPerPixel - 1) / TwipsPerPixel};
}

/// A control that a line enters, whether it is in front there or not.
struct Crossing {
  const Control* Entered = nullptr;
  StepRange Steps;
};

/// From front to back.
std::vector<Crossing> CrossingsOf(const Form& form, const Line& line) {
  const auto [left, right] = std::minmax(line.From.X, line.To.X);
  const auto [top, bottom] = std::minmax(line.From.Y, line.To.Y);
  const Rect box{left, top, right - left + 1, bottom - top + 1};
  std::vector<Crossing> crossings;
  crossings.reserve(form.Controls.size());
  for (const Control* control : form.Controls) {
    if (!control->Visible || !Overlap(RectOf(*control), box)) continue;
    const StepRange steps = line.Inside(RectOf(*control));
    if (steps.First < steps.End) crossings.push_back({control, steps});
  }
  return crossings;
}

}  // namespace

const Control* ControlAt(const Form& form, Point point) {
  const auto hit = std::ranges::find_if(form.Controls, [&](const Control* control) {
    return control->Visible && Contains(RectOf(*control), point);
  });
  return hit == form.Controls.end() ? nullptr : *hit;
}

std::vector<const Control*> ControlsAlong(const Form& form, Point from, Point to) {
  // A button mostly goes down or up where the pointer has been already.
  if (from == to && IsInside(form, to)) return {ControlAt(form, to)};
  const Line line = MakeLine(from, to);
  const std::vector<Crossing> crossings = CrossingsOf(form, line);
  const StepRange inside = line.Inside({0, 0, form.Width, form.Height});
  std::vector<const Control*> seen;
  seen.reserve(crossings.size() + 1);
  for (int step = inside.First; step < inside.End;) {
    const Control* front = nullptr;
    int change = inside.End;  // the next step at which another control may be in front
    for (const auto& [control, steps] : crossings) {
      if (step >= steps.End) continue;
      change = std::min(change, step < steps.First ? steps.First : steps.End);
      if (step < steps.First) continue;
      front = control;
      break;
    }
    if (std::ranges::find(seen, front) == seen.end()) seen.push_back(front);
    step = change;
  }
  return seen;
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
