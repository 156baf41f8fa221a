#pragma once

#include "game/main_form.h"

// The jump path records the landing squares that a drag passes. Only geometry counts here. Whether
// they make a chain of jumps is decided at the drop.

/// A drag of blue piece `source` passes over square `index`. The square is added to the jump path
/// if a jump from the end of the path could land there, and if that jump would not cross a square
/// for the second time. A full path stays as it is.
void lblSquare_DragOver(frmVelmoran& form, Square index, const Control& source);

/// A drag passes over blue piece `index`: the same as passing over its square. It also clears
/// `NewGameRequested`, because the human has begun to play the new game.
void imgBlueChecker_DragOver(frmVelmoran& form, int index, const Control& source);
