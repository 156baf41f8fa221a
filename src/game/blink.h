#pragma once

#include "game/main_form.h"

// Before each stage of its move, and once at the end, the green piece blinks: five ticks of 200
// milliseconds. The fifth ends the stage, and the last blink of a turn opens the human's.

/// Starts a blink of the green piece and returns at once. While a new game is requested it does
/// nothing.
void StartBlink(frmVelmoran& form, int piece);

/// The tick of a blink.
void tmrBlink_Timer(frmVelmoran& form);
