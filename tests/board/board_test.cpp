#include "support/board.h"

#include <gtest/gtest.h>

namespace {

/// Rows and columns from 0, bottom left; 0 off the board and on the squares not in play.
Square SquareAt(int row, int column) {
  if (row < 0 || row > 7 || column < 0 || column > 7 || (row + column) % 2 != 0) return 0;
  return static_cast<Square>(row * 4 + column / 2 + 1);
}

TEST(Geometry, AgreesWithRowsAndColumns) {
  for (int cell = 0; cell < 64; ++cell) {
    const int row = cell / 8;
    const int column = cell % 8;
    const Square from = SquareAt(row, column);
    if (from == 0) continue;
    for (const Direction direction : AllDirections) {
      const int up = direction == UpLeft || direction == UpRight ? 1 : -1;
      const int right = direction == UpRight || direction == DownRight ? 1 : -1;
      const Square landing = SquareAt(row + 2 * up, column + 2 * right);
      EXPECT_EQ(Neighbour(from, direction), SquareAt(row + up, column + right)) << from;
      EXPECT_EQ(LandingSquare(from, direction), landing) << from;
      EXPECT_TRUE(landing == 0 || JumpDirection(from, landing) == direction) << from;
    }
    EXPECT_EQ(Neighbour(from, Direction(5)) + LandingSquare(from, NoDirection), 0);
    EXPECT_EQ(JumpDirection(from, from), NoDirection);
  }
  EXPECT_EQ(JumpDirection(10, 11), NoDirection);
  EXPECT_EQ(JumpDirection(1, 0), DownRight) << "the last that leads off the board";
  EXPECT_EQ(Neighbour(0, UpRight), 0);
}

TEST(Tables, AreFoundOutWhenBroken) {
  void (*const spoilers[])(Position&) = {
      [](Position& p) { p.BlueSquare[2] = p.BlueSquare[1]; },
      [](Position& p) { p.GreenSquare[12] = p.BlueSquare[12]; },
      [](Position& p) { p.GreenSquare[1] = 33; },
      [](Position& p) { p.BlueSquare[1] = -1; },
      [](Position& p) { p.JumpPath[2] = 17; },
      [](Position& p) { p.JumpPath[1] = -1; },
      [](Position& p) { p.JumpPath[1] = 33; },
  };
  for (const auto spoil : spoilers) {
    Position position = StartPosition();
    ASSERT_TRUE(IsConsistent(position));
    spoil(position);
    EXPECT_FALSE(IsConsistent(position)) << testing::PrintToString(position);
  }
}

}  // namespace
