#pragma once

#include <vector>

#include "board/position.h"

// The rules of movement a second time, by rows and columns, for all that plays and watches. Of the
// game itself they use the tables alone, so that the game can be held against them.

/// The squares of a move from first to last: two for a step, one more for each jump.
using Move = std::vector<int>;

/// The square that a jump from one to the other crosses; 0 if there is no such jump.
int Between(int from, int to);

bool IsJump(const Move& move);

/// All that blue may do: if there is a jump only jumps, each chain also stopped short. By piece,
/// then by direction; recorded games tell their moves by the place in this list.
std::vector<Move> BlueMoves(const Position& position);

/// All that green may begin with, steps beside first jumps.
std::vector<Move> GreenHops(const Position& position);

/// The board after a move of either side, the jumped pieces gone. Nobody is crowned by it.
Position After(Position position, const Move& move);

/// The board with every man on its far row made a king.
Position Crowned(Position position);

/// Whether the same pieces stand on the same squares; whose turn it is does not matter.
bool HasSameBoard(const Position& a, const Position& b);
