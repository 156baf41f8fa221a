#pragma once

#include "board/position.h"

// What a drop of a blue piece is, by geometry and by who stands where. Whose turn it is, and that a
// jump must be taken, is judged where the drop is handled.

enum BlueMove : std::int32_t {
  BlueMoveNone,   // no move of this piece
  BlueMoveStep,   // one step; whether a jump has to be taken instead is still open
  BlueMoveJump,   // one jump; the jump path plays no part in carrying it out
  BlueMoveChain,  // two jumps or more: the landing squares before the last stand in the jump path
};

/// Judges a drop of blue piece `piece` from `from` on `to`, 1 to 32. With `walkPath` the jump path
/// is taken into account and, whatever the verdict, may lose its last entry.
/// Nothing here tests that `to` is free: no drop on a held square gets this far.
BlueMove ClassifyBlueMove(Position& position, Square from, Square to, bool walkPath, int piece);

/// Whether a hop from the last entry of the jump path to `to` leaves alone every square that an
/// earlier hop has crossed. True as well if `to` is no landing square of that entry, and for an
/// empty or full path. `from` is the square of the dragged piece.
bool JumpPathIsValid(const Position& position, Square from, Square to);
