#pragma once

#include "game/main_form.h"

// The human's move. Nothing on the board changes before the button is released.

/// A piece is dropped on the label of square `index`. An illegal drop changes nothing on the board;
/// a legal one is carried out, and the computer's turn begins after the pause.
void lblSquare_DragDrop(frmVelmoran& form, Square index, const Control& source);

/// A piece is dropped on blue piece `index`. Only one such drop is a move: a king that jumps in a
/// circle may end on its own square.
void imgBlueChecker_DragDrop(frmVelmoran& form, int index, const Control& source);
