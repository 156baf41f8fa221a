#pragma once

#include "board/position.h"
#include "toolkit/random.h"

// A direction at random in which a piece can move; both also serve as the plain question whether it
// can. How many random values each takes is part of the play: a draw that names a direction without
// a move is thrown away and repeated.

/// A direction in which the piece has a jump, none if it has none or is captured. `set` is the
/// piece's own. A man draws only to choose between two jumps, a king until it names a jump.
Direction RandomJumpDirection(Random& random, const Position& position, int piece,
                              DirectionSetCode set, bool isBlue);

/// A direction in which the piece has a step, none if it has none or is captured. Man and king both
/// draw until they name a step, even where there is only one.
Direction RandomStepDirection(Random& random, const Position& position, int piece, bool isBlue);
