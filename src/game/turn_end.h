#pragma once

#include "game/main_form.h"

// What happens at the end of every human move and of every blink.

/// Crowns and counts the pieces, finds out whether blue can move, and announces the end of the game
/// if there is one. True if a side has no piece left. False otherwise, also when blue cannot move.
/// Draws random values even if the answer is not used.
bool FinishTurn(frmVelmoran& form);

/// Shows a "Game Over" message. `GameOver` is set once the user has closed it.
void AnnounceGameEnd(frmVelmoran& form, const char* text);
