#pragma once

#include "board/position.h"

// What kind of move a drop of a blue piece is. Only geometry and the pieces count here. Whose turn
// it is, and whether a jump must be made instead, is decided in `human/drop`.

enum BlueMove : std::int32_t {
  BlueMoveNone,   // no move of this piece
  BlueMoveStep,   // one step; a jump may have to be made instead
  BlueMoveJump,   // one jump; the jump path is not used to carry it out
  BlueMoveChain,  // two or more jumps; the jump path holds all landing squares but the last
};

/// Judges a drop of the blue piece `piece` from `from` on `to`, 1 to 32. With `walkPath` the jump
/// path counts, and it may lose its last entry whatever the result is. `to` is not tested to be
/// free: a drop on an occupied square goes to the image there instead.
BlueMove ClassifyBlueMove(Position& position, Square from, Square to, bool walkPath, int piece);

/// Whether a hop from the last entry of the jump path to `to` crosses no square that an earlier hop
/// has crossed. Also true if no jump leads from that entry to `to`, and for an empty or full path.
/// `from` is the square of the dragged piece.
bool JumpPathIsValid(const Position& position, Square from, Square to);
