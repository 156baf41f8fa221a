#pragma once

#include "game/main_form.h"

// What any turn does to a piece, in the tables and on the screen at once.

/// Places a blue piece on a square.
void MoveBlueChecker(frmVelmoran& form, int piece, Square square);

/// Places a green piece on a square.
void MoveGreenChecker(frmVelmoran& form, int piece, Square square);

/// Takes the piece on the square, of either colour, off the board. It keeps its crown.
/// Square 0 changes nothing.
void RemoveCheckerAt(frmVelmoran& form, Square square);

/// Makes a piece a king, which it may be already.
void CrownChecker(frmVelmoran& form, int piece, bool isBlue);

/// Forgets the squares dragged over.
void ClearJumpPath(frmVelmoran& form);
