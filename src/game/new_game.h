#pragma once

#include "game/main_form.h"

/// Sets up a game: the load event of the form, and the whole of a new game later on. It leaves
/// `NewGameRequested` and the timers alone, so that a turn it has interrupted still finds out.
void Form_Load(frmVelmoran& form);

/// New Game, at any moment, also from inside the wait of the computer's turn.
void mnuGame_Click(frmVelmoran& form);

/// Exit: the program ends at once, without a question.
void mnuExit_Click(frmVelmoran& form);

/// The window is closed: the program ends at once.
void Form_Unload(frmVelmoran& form);
