#include "judgement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "computer/ranking.h"
#include "support/board.h"

namespace {

/// A board with men and kings anywhere, all twelve of each side where there is room.
Position RandomBoard(std::mt19937& generator) {
  std::string picture = "bbbbbbbbBBBBggggggggGGGG........";
  std::ranges::shuffle(picture, generator);
  const auto thinning = generator() % 5;
  for (char& mark : picture) {
    if (generator() % 5 < thinning) mark = '.';
  }
  return Board(picture);
}

TEST(Judgement, IsTheSameByRowsAndColumns) {
  const auto reportError = [] { ADD_FAILURE() << "no error to report"; };
  std::mt19937 generator(1);
  for (int board = 0; board < 5000; ++board) {
    const Position position = RandomBoard(generator);
    const Grid grid = GridOf(position);
    const std::vector<GridMove> hops = GreenHops(grid);
    const MoveList moves = ListGreenMoves(position);
    ASSERT_EQ(moves.Count, std::ssize(hops)) << Draw(position);
    for (int k = 0; k < moves.Count; ++k) {
      const MoveRecord move = moves.Items[static_cast<std::size_t>(k)];
      const MoveMerits merits = JudgeMove(position, move, reportError);
      const Judgement judgement{merits.DepthAtTo,      merits.Score,       merits.Attacks,
                                merits.IsSafeCrowning, merits.TrapsAtFrom, merits.TrapsAtTo};
      const Cell from = CellOf(move.FromSquare);
      const Cell to = CellOf(move.ToSquare);
      const bool isHop = std::ranges::any_of(hops, [&](const GridMove& hop) {
        const bool isJump = move.Kind == MoveKindJump;
        return hop.From() == from && hop.To() == to && hop.IsJump() == isJump;
      });
      ASSERT_TRUE(isHop && judgement == Judge(grid, from, to))
          << Draw(position) << ": " << move.FromSquare << " to " << move.ToSquare;
    }
  }
}

}  // namespace
