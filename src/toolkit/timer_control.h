#pragma once

#include <chrono>
#include <functional>

/// A point in time, counted from an origin that the host chooses; it never runs backwards.
using Instant = std::chrono::microseconds;

/// A timer that ticks every `Interval` from the moment it is switched on.
/// `Enabled` is for reading; `Toolkit::SetEnabled` writes it.
struct TimerControl {
  std::chrono::milliseconds Interval{0};  // above 0 before its form is shown or it is switched on
  bool Enabled = false;
  std::function<void()> Tick;

  Instant NextDue{0};      // while Enabled
  bool InHandler = false;  // its own tick is being handled: a further one waits
};
