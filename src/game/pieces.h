#pragma once

#include "game/main_form.h"

// Changes of a piece, in the tables and on the screen together. `piece` is 1 to 12.

/// Moves a blue piece to a square, 1 to 32. Whether it is free is not checked.
void MoveBlueChecker(frmVelmoran& form, int piece, Square square);

/// Moves a green piece to a square, 1 to 32. Whether it is free is not checked.
void MoveGreenChecker(frmVelmoran& form, int piece, Square square);

/// Takes the piece of either colour off the square. Its king flag stays. Does nothing for a free
/// square or square 0.
void RemoveCheckerAt(frmVelmoran& form, Square square);

/// Makes the piece a king. It may be one already.
void CrownChecker(frmVelmoran& form, int piece, bool isBlue);

/// Empties the jump path.
void ClearJumpPath(frmVelmoran& form);
