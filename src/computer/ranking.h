#pragma once

#include <optional>

#include "computer/move_list.h"
#include "computer/threats.h"

// How green chooses among its moves. Each is judged on the position before the move; there is no
// search.

/// What the ranking knows of a move. A jump is judged like a step, by its first and last square.
struct MoveMerits {
  MoveKind Kind = MoveKindStep;
  int DepthAtTo = 0;            // pieces that blue can take by jumping the piece on arrival
  int Score = 0;                // pieces saved less pieces risked: -4 to 10
  bool Attacks = false;         // from its destination the piece would have a jump
  bool IsSafeCrowning = false;  // makes a king that cannot be taken on arrival
  bool TrapsAtFrom = false;     // helps to hold a blue king where it stands
  bool TrapsAtTo = false;       // would help to hold one on its destination
};

MoveMerits JudgeMove(const Position& position, const MoveRecord& move,
                     const ErrorReport& reportError);

/// Whether `second`, right behind `first` in the list, is to stand in front of it. This is no
/// strict order: of some pairs each is better than the other, and whichever stands behind comes
/// forward.
bool IsBetterMove(const MoveMerits& first, const MoveMerits& second);

/// Carries the better moves towards index 0. Moves that nothing separates keep their order.
void SortMoveList(const Position& position, MoveList& list, const ErrorReport& reportError);

/// The move that green plays; none if it has no move. Draws one random value for each move listed.
std::optional<MoveRecord> ChooseMove(Random& random, const Position& position,
                                     const ErrorReport& reportError);
