#pragma once

#include "game/main_form.h"

// The human's move: all of it happens when the button is released.

/// A piece is let go on the label of a square: judges the drop, refuses it without a change or
/// carries it out, ends the turn and readies the computer's.
void lblSquare_DragDrop(frmVelmoran& form, Square index, const Control& source);

/// A piece is let go on a blue piece: only a king that ends a circle of jumps on its own square
/// moves by that.
void imgBlueChecker_DragDrop(frmVelmoran& form, int index, const Control& source);
