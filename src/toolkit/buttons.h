#pragma once

#include <vector>

#include "toolkit/host.h"

/// Makes input of the buttons of the pointer, as a host sees them go down and up.
class ButtonWatch {
 public:
  /// What to queue, in order, now that these buttons are down: the sum of 1 for the left one and of
  /// other powers of 2 for others. `isMove`: it was a movement that told of them, not a button.
  std::vector<InputEvent::Kind> See(unsigned buttons, bool isMove) {
    using enum InputEvent::Kind;
    if (!isMove && buttons == held) held = 0;  // the release before this press was lost
    const unsigned down = buttons & ~held;
    const bool isLeftUp = held & ~buttons & 1;
    held = buttons;
    // The release is lost too where the window was minimised or lost the pointer in mid-drag.
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
