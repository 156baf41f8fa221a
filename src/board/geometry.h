#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>

// Movement on the board as arithmetic on square numbers. Nothing here knows the pieces.
//
//   row 8     29    30    31    32      rows 2, 4, 6, 8 begin in column 2
//   row 7  25    26    27    28         rows 1, 3, 5, 7 begin in column 1
//   ...
//   row 2      5     6     7     8
//   row 1   1     2     3     4

/// A dark square: 1 to 32, row by row from the bottom left to the top right. 0: no square.
using Square = std::int16_t;

constexpr int Squares = 32;

/// Diagonal directions as seen on the screen. A direction and its opposite add up to 5.
enum Direction : std::int32_t { NoDirection, UpLeft, UpRight, DownLeft, DownRight };

constexpr std::array<Direction, 4> AllDirections{UpLeft, UpRight, DownLeft, DownRight};

/// The way back along the same diagonal. Of `NoDirection` it is 5, which `Neighbour` accepts.
constexpr Direction Opposite(Direction direction) { return Direction(5 - direction); }

/// The shift of the row that the square lies in: 0 in rows 1, 3, 5 and 7, 1 in rows 2, 4, 6 and 8.
constexpr Square RowShift(Square square) {
  const int place = square % 8;
  return place >= 1 && place <= 4 ? 0 : 1;
}

/// Whether the square touches the left edge of the board: 1, 9, 17, 25.
constexpr bool IsWestEdge(Square square) { return square % 8 == 1; }

/// Whether the square touches the right edge of the board: 8, 16, 24, 32.
constexpr bool IsEastEdge(Square square) { return square % 8 == 0; }

/// The value itself if it is 1 to 32, else 0.
constexpr Square ClampSquare(int value) {
  return value >= 1 && value <= Squares ? static_cast<Square>(value) : Square{0};
}

/// Computes what `Neighbour` answers.
constexpr Square NeighbourByArithmetic(Square square, Direction direction) {
  if (square == 0) return 0;
  const int base = square + RowShift(square);
  switch (direction) {
    case UpLeft:
      return IsWestEdge(square) ? Square{0} : ClampSquare(base + 3);
    case UpRight:
      return IsEastEdge(square) ? Square{0} : ClampSquare(base + 4);
    case DownLeft:
      return IsWestEdge(square) ? Square{0} : ClampSquare(base - 5);
    case DownRight:
      return IsEastEdge(square) ? Square{0} : ClampSquare(base - 4);
    default:
      return 0;
  }
}

/// `Neighbour` by square, 0 to 32, and direction, 0 to 5. Precomputed: this is the hottest look-up
/// of the game, and the branches mispredict.
constexpr auto Neighbours = [] {
  std::array<std::array<Square, 6>, Squares + 1> table{};
  for (int square = 0; square <= Squares; ++square) {
    for (int direction = 0; direction <= 5; ++direction) {
      table[std::size_t(square)][std::size_t(direction)] =
          NeighbourByArithmetic(Square(square), Direction(direction));
    }
  }
  return table;
}();

/// The square one diagonal step away. 0 if there is none: off the board, from square 0, for
/// `NoDirection` or for its opposite, 5.
constexpr Square Neighbour(Square square, Direction direction) {
  assert(0 <= square && square <= Squares && 0 <= direction && direction <= 5);
  return Neighbours[std::size_t(square)][std::size_t(direction)];
}

/// The square two steps away in a straight line, where a jump lands. 0 if there is none.
constexpr Square LandingSquare(Square square, Direction direction) {
  return Neighbour(Neighbour(square, direction), direction);
}

/// The direction of a jump from `from` to `to`; `NoDirection` if no jump leads there. Call it with
/// a real square: for `to` 0 it gives the last direction in which there is no landing square.
constexpr Direction JumpDirection(Square from, Square to) {
  Direction found = NoDirection;
  for (Direction direction : AllDirections) {
    if (LandingSquare(from, direction) == to) found = direction;
  }
  return found;
}

/// Whether green men are crowned on the square: the bottom row, 1 to 4.
constexpr bool IsGreenCrownSquare(Square square) { return square >= 1 && square <= 4; }

/// Whether blue men are crowned on the square: the top row, 29 to 32.
constexpr bool IsBlueCrownSquare(Square square) { return square >= 29 && square <= 32; }
