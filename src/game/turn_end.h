#pragma once

#include "game/main_form.h"

// The end of every move and of every blink: crowns, counts, and announces the end of a game.

/// Crowns and counts the pieces, asks whether blue can still move, and announces the end of the
/// game with a message. True if the game has ended because a side has no piece left; false also
/// when blue is told that it cannot move. Takes random values even when nobody needs the answer.
bool FinishTurn(frmVelmoran& form);

/// Announces the end of a game. The game is over once the user has closed the message.
void AnnounceGameEnd(frmVelmoran& form, const char* text);
