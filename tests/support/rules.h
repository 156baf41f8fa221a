#pragma once

#include <vector>

#include "board/position.h"

// The rules of movement a second time, by rows and columns. They use nothing of the game but its
// piece tables, so that tests can compare the game with them.

/// The squares of a move from first to last: two for a step or a jump, one more for each jump on.
using Move = std::vector<int>;

/// The square between two that a jump connects; 0 if none does.
int Between(int from, int to);

bool IsJump(const Move& move);

/// All legal moves of blue, by piece, then by direction. If there is a jump, only jumps; each chain
/// also in its shorter forms. The order is that in which `Desk::PlayGame` chooses at random.
std::vector<Move> BlueMoves(const Position& position);

/// All steps and first jumps of green.
std::vector<Move> GreenHops(const Position& position);

/// The position after a move of either side, without the jumped pieces. Crowns no piece.
Position After(Position position, const Move& move);

/// The position with every man on its far row crowned.
Position Crowned(Position position);

/// Whether the same pieces stand on the same squares, with the same ranks.
bool HasSameBoard(const Position& a, const Position& b);
