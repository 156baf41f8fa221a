#pragma once

#include "game/main_form.h"

/// The form's load event: sets up the start position and reseeds the random sequence. It does not
/// clear `NewGameRequested`, so that an interrupted computer turn still sees the request.
void Form_Load(frmVelmoran& form);

/// New Game. It may come at any moment, also while the computer's turn waits.
void mnuGame_Click(frmVelmoran& form);

/// Exit: ends the program at once, without a question.
void mnuExit_Click(frmVelmoran& form);

/// The user closes the window: ends the program at once.
void Form_Unload(frmVelmoran& form);
