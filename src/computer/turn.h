#pragma once

#include "game/main_form.h"

/// The tick of `tmrPause`, 500 milliseconds after the human's move. The whole computer turn runs
/// inside it.
void tmrPause_Timer(frmVelmoran& form);

/// Green's turn. Chooses a move and plays it stage by stage, each after a blink, with every further
/// jump that the piece can make. Then it is blue's turn. Events are handled during the blinks: if
/// New Game comes, it returns and leaves the board alone. If green cannot move, the game ends.
void ComputerTurn(frmVelmoran& form);
