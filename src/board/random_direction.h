#pragma once

#include "board/position.h"
#include "toolkit/random.h"

// A random direction in which a piece can move. Both functions also answer whether it can move at
// all. The number of draws is part of the play: a draw that hits a closed direction is repeated.

/// A direction in which the piece can jump. `NoDirection`, without a draw, if it has no jump or is
/// captured. `set` is the piece's own `DirectionSet`. A man draws only if it has two jumps; a king
/// draws until a jump comes up.
Direction RandomJumpDirection(Random& random, const Position& position, int piece,
                              DirectionSetCode set, bool isBlue);

/// A direction in which the piece can step. `NoDirection`, without a draw, if it has no step or is
/// captured. Men and kings draw until a step comes up, even if there is only one.
Direction RandomStepDirection(Random& random, const Position& position, int piece, bool isBlue);
