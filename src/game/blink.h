#pragma once

#include "game/main_form.h"

// The green piece blinks before each stage of its move and once after the last: five ticks of 200
// milliseconds. The fifth tick ends the blink. After the last blink of a turn the human may move.

/// Starts a blink of the green piece and returns at once. Does nothing while `NewGameRequested`.
void StartBlink(frmVelmoran& form, int piece);

/// The tick of `tmrBlink`: changes the picture, and finishes the blink at the fifth tick.
void tmrBlink_Timer(frmVelmoran& form);
