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
  for (char& mark : picture) {
    if (generator() % 4 == 0) mark = '.';
  }
  return Board(picture);
}

/// The same board with the pieces of both sides numbered the other way round.
Position Renumbered(Position position) {
  std::ranges::reverse(position.BlueSquare);
  std::ranges::reverse(position.BlueKing);
  std::ranges::reverse(position.GreenSquare);
  std::ranges::reverse(position.GreenKing);
  return position;
}

TEST(Numbering, OfThePiecesChangesNoJudgement) {
  const auto reportError = [] { ADD_FAILURE() << "no error to report"; };
  std::mt19937 generator(1);
  for (int board = 0; board < 2000; ++board) {
    const Position position = RandomBoard(generator);
    const Position renumbered = Renumbered(position);
    const MoveList moves = ListGreenMoves(position);
    ASSERT_EQ(moves.Count, ListGreenMoves(renumbered).Count);
    for (int k = 0; k < moves.Count; ++k) {
      const MoveRecord move = moves.Items[static_cast<std::size_t>(k)];
      MoveRecord same = move;
      same.Piece = static_cast<std::int16_t>(13 - move.Piece);
      const MoveMerits one = JudgeMove(position, move, reportError);
      const MoveMerits other = JudgeMove(renumbered, same, reportError);
      ASSERT_EQ(
          std::tie(one.DepthAtTo, one.Score, one.Attacks, one.TrapsAtFrom, one.TrapsAtTo),
          std::tie(other.DepthAtTo, other.Score, other.Attacks, other.TrapsAtFrom, other.TrapsAtTo))
          << Draw(position) << ": " << move.FromSquare << " to " << move.ToSquare;
    }
  }
}

}  // namespace
