#include "support/board.h"

#include <gtest/gtest.h>

namespace {

/// Rows and columns from 0, bottom left; 0 off the board and on the squares not in play.
Square SquareAt(int row, int column) {
  if (row < 0 || row > 7 || column < 0 || column > 7 || (row + column) % 2 != 0) return 0;
  return static_cast<Square>(row * 4 + column / 2 + 1);
}

TEST(Geometry, AgreesWithRowsAndColumns) {
  for (int row = 0; row < 8; ++row) {
    for (int column = row % 2; column < 8; column += 2) {
      const Square from = SquareAt(row, column);
      for (const Direction direction : AllDirections) {
        const int up = direction == UpLeft || direction == UpRight ? 1 : -1;
        const int right = direction == UpRight || direction == DownRight ? 1 : -1;
        const Square landing = SquareAt(row + 2 * up, column + 2 * right);
        EXPECT_EQ(Neighbour(from, direction), SquareAt(row + up, column + right)) << from;
        EXPECT_EQ(LandingSquare(from, direction), landing) << from;
        if (landing == 0) continue;
        EXPECT_EQ(JumpDirection(from, landing), direction) << from;
      }
      EXPECT_EQ(Neighbour(from, NoDirection), 0);
      EXPECT_EQ(LandingSquare(from, Direction(5)), 0);
      EXPECT_EQ(JumpDirection(from, from), NoDirection);
    }
  }
  EXPECT_EQ(JumpDirection(10, 11), NoDirection);
  EXPECT_EQ(JumpDirection(1, 0), DownRight) << "the last that leads off the board";
  EXPECT_EQ(Neighbour(0, UpRight), 0);
  EXPECT_EQ(ClampSquare(33) + ClampSquare(-3), 0);
}

TEST(PositionTest, CapturedPiecesHoldSquareZero) {
  Position position = StartPosition();
  EXPECT_EQ(SquareOwner(position, 0), Nobody);
  position.GreenSquare[1] = 0;
  EXPECT_EQ(SquareOwner(position, 0), Green);
  position.BlueSquare[1] = 0;
  EXPECT_EQ(SquareOwner(position, 0), Blue) << "blue is looked at first";
  EXPECT_EQ(VacantOrZero(position, 0), 0);
  EXPECT_FALSE(CanJump(position, 0, UpLeft, Green));
}

TEST(PositionTest, IsConsistentFindsBrokenTables) {
  EXPECT_TRUE(IsConsistent(Board(".... ...G .... .... .... .... .... b...")));
  void (*const spoilers[])(Position&) = {
      [](Position& p) { p.BlueSquare[2] = p.BlueSquare[1]; },
      [](Position& p) { p.GreenSquare[12] = p.BlueSquare[12]; },
      [](Position& p) { p.GreenSquare[1] = 33; },
      [](Position& p) { p.BlueSquare[1] = -1; },
      [](Position& p) { p.JumpPath[2] = 17; },
  };
  for (const auto spoil : spoilers) {
    Position position = StartPosition();
    ASSERT_TRUE(IsConsistent(position));
    spoil(position);
    EXPECT_FALSE(IsConsistent(position)) << testing::PrintToString(position);
  }
}

TEST(BoardTest, ReadsPicturesAndRefusesOthers) {
  const char* const picture = "...G .... g... .... .b.. .... .... B...";
  const Position position = Board(picture);
  EXPECT_EQ(position.BlueSquare[2], 14);
  EXPECT_TRUE(position.BlueKing[1] && position.GreenKing[2]);
  EXPECT_EQ(Draw(position), picture);
  for (const char* refused :
       {"", "gggg", ".... .... .... .... .... .... .... .... .",
        ".... .... .... .... .... .... .... ...x", "bbbb bbbb bbbb b... .... .... .... ...."}) {
    EXPECT_THROW(Board(refused), std::invalid_argument) << refused;
  }
}

}  // namespace
