#pragma once

#include "game/main_form.h"

// The memory of a drag: the landing squares that the pointer has passed, by geometry alone. Whether
// they make a chain of jumps is judged at the drop.

/// A drag of a blue piece passes over the square, which may enter the jump path.
void lblSquare_DragOver(frmVelmoran& form, Square index, const Control& source);

/// A drag passes over a blue piece: it counts as passing over its square, and the first one after a
/// new game readies the computer for its turn.
void imgBlueChecker_DragOver(frmVelmoran& form, int index, const Control& source);
