#pragma once

#include <vector>

#include "toolkit/host.h"

/// Turns the states of the pointer's buttons, as a host sees them, into input events.
class ButtonWatch {
 public:
  /// The events to queue, in order. `buttons` is the bit mask of the buttons that are down: 1 is
  /// the left one, 0 means none. `isMove`: a movement reported them, not a press or a release.
  std::vector<InputEvent::Kind> See(unsigned buttons, bool isMove) {
    using enum InputEvent::Kind;
    if (!isMove && buttons == held) held = 0;  // the release before this press was lost
    const unsigned down = buttons & ~held;
    const bool isLeftUp = held & ~buttons & 1;
    held = buttons;
    // The release is also lost if the window was minimised or lost the pointer during a drag.
    const bool isLost = isLeftUp && isMove && !held;
    std::vector<InputEvent::Kind> input;
    if (isLost || down > 1) input.push_back(CancelDrag);
    if (isMove) input.push_back(Move);
    if (down & 1) input.push_back(Press);
    if (isLeftUp && !isLost) input.push_back(Release);
    return input;
  }

 private:
  unsigned held = 0;  // the buttons that were down last
};
