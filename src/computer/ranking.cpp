#include "computer/ranking.h"

#include <utility>
#include <vector>

MoveMerits JudgeMove(const Position& position, const MoveRecord& move,
                     const ErrorReport& reportError) {
  const auto& [piece, from, direction, kind, to] = move;
  const int depthAtFrom = BlueCaptureDepth(position, from, piece);
  const int depthAtTo = BlueCaptureDepth(position, to, piece);
  const int exposure = ExposureDepth(position, from, to, piece);
  const int defence = DefenceDepth(position, to, piece, reportError);
  return {
      .Kind = kind,
      .DepthAtTo = depthAtTo,
      .Score = DepthBalance(depthAtFrom, depthAtTo, exposure, defence),
      .Attacks = GreenCanJumpFrom(position, to, piece),
      .IsSafeCrowning = !position.GreenKing[piece] && depthAtTo == 0 && IsGreenCrownSquare(to),
      .TrapsAtFrom = MoveTrapsBlueKing(position, piece, from),
      .TrapsAtTo = MoveTrapsBlueKing(position, piece, to),
  };
}

bool IsBetterMove(const MoveMerits& first, const MoveMerits& second) {
  if (first.Kind != second.Kind) return second.Kind == MoveKindJump;
  if (first.Score != second.Score) return first.Score < second.Score;
  const bool isSecondSafe = second.DepthAtTo == 0;
  // If only the first attacks, nothing is decided yet: the second may still win below.
  const bool isFirstSafeAttack = first.DepthAtTo == 0 && first.Attacks;
  if (isSecondSafe && second.Attacks && !isFirstSafeAttack) return true;
  if (first.IsSafeCrowning != second.IsSafeCrowning) return second.IsSafeCrowning;
  if (!isSecondSafe) return false;
  if (first.TrapsAtFrom != second.TrapsAtFrom) return first.TrapsAtFrom;
  return !first.TrapsAtTo && second.TrapsAtTo;
}

/// A bubble sort without an early exit. `IsBetterMove` is no strict order, so any other sort would
/// choose other moves.
void SortMoveList(const Position& position, MoveList& list, const ErrorReport& reportError) {
  const int count = list.Count;
  std::vector<MoveMerits> merits;
  merits.reserve(list.Items.size());
  for (int k = 0; k < count; ++k) {
    merits.push_back(JudgeMove(position, list.Items[static_cast<std::size_t>(k)], reportError));
  }
  for (int i = 0; i <= count - 2; ++i) {
    for (int j = count - 2; j >= i; --j) {
      const auto slot = static_cast<std::size_t>(j);
      if (!IsBetterMove(merits[slot], merits[slot + 1])) continue;
      SwapMoves(list, j, j + 1);
      std::swap(merits[slot], merits[slot + 1]);
    }
  }
}

std::optional<MoveRecord> ChooseMove(Random& random, const Position& position,
                                     const ErrorReport& reportError) {
  MoveList listed = ListGreenMoves(position);
  MoveList moves = ShuffleMoveList(random, listed);
  if (moves.Count == 0) return std::nullopt;
  SortMoveList(position, moves, reportError);
  return moves.Items.front();
}
