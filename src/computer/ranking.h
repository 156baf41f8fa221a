#pragma once

#include <optional>

#include "computer/move_list.h"
#include "computer/threats.h"

// How green chooses its move. All moves are judged on the present position; there is no look-ahead.

/// What the ranking compares. A jump is judged like a step: only its first and last square count.
struct MoveMerits {
  MoveKind Kind = MoveKindStep;
  int DepthAtTo = 0;            // `BlueCaptureDepth` at the destination: 0 to 2
  int Score = 0;                // `DepthBalance`: -4 to 10, higher is better
  bool Attacks = false;         // the piece could jump from its destination
  bool IsSafeCrowning = false;  // a man reaches its crown row and cannot be captured there
  bool TrapsAtFrom = false;     // helps to trap a blue king where it stands now
  bool TrapsAtTo = false;       // would help to trap one from its destination
};

/// Works out the merits of a move. `position` is the one before the move.
MoveMerits JudgeMove(const Position& position, const MoveRecord& move,
                     const ErrorReport& reportError);

/// Whether `second`, which follows `first` in the list, should come before it. This is no strict
/// order: two moves can each be better than the other. Then the later one moves forward.
bool IsBetterMove(const MoveMerits& first, const MoveMerits& second);

/// Sorts the better moves towards index 0. Equal moves keep their order.
void SortMoveList(const Position& position, MoveList& list, const ErrorReport& reportError);

/// The move that green plays, or nothing if it has no move. One draw per move listed.
std::optional<MoveRecord> ChooseMove(Random& random, const Position& position,
                                     const ErrorReport& reportError);
