#include "board/geometry.h"

#include <gtest/gtest.h>

#include "support/rules.h"

namespace {

TEST(Geometry, FollowsRowsAndColumns) {
  for (Square square = 1; square <= Squares; ++square) {
    Position position;
    position.BlueSquare[1] = square;
    position.BlueKing[1] = true;
    std::vector<Move> steps;
    for (const Direction direction : AllDirections) {
      const Square next = Neighbour(square, direction);
      if (next != 0) steps.push_back({square, next});
      const Square landing = Neighbour(next, direction);
      EXPECT_EQ(LandingSquare(square, direction), landing);
      EXPECT_TRUE(landing == 0 || JumpDirection(square, landing) == direction);
      EXPECT_EQ(Between(square, landing), landing == 0 ? 0 : next);
    }
    EXPECT_EQ(steps, BlueMoves(position)) << square;
    EXPECT_EQ(Neighbour(square, NoDirection), 0);
    EXPECT_EQ(Neighbour(square, Opposite(NoDirection)), 0);
    EXPECT_EQ(JumpDirection(square, square), NoDirection);
  }
}

}  // namespace
