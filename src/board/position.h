#pragma once

#include <span>

#include "board/geometry.h"
#include "board/table.h"

constexpr int Pieces = 12;  // a side; a piece keeps its index, 1 to 12, for the whole game

/// Who stands on a square.
enum Side : std::int32_t { Nobody, Blue, Green };

/// In which directions a piece moves.
enum DirectionSetCode : std::int32_t { BlueManSet = 1, GreenManSet = 2, KingSet = 3 };

/// The whole state of a game.
struct Position {
  Table<Square, Pieces> BlueSquare;   // by piece; 0 once it is captured
  Table<Square, Pieces> GreenSquare;  // by piece; 0 once it is captured
  Table<bool, Pieces> BlueKing;       // a captured piece keeps its crown
  Table<bool, Pieces> GreenKing;
  Table<Square, 10> JumpPath;  // the squares dragged over, from slot 1; 0: a free slot
  bool BlueToMove = false;
  bool GameOver = false;
  bool NewGameRequested = false;  // outlives the set-up of the new game, until the next drag

  bool operator==(const Position&) const = default;
};

/// Who stands on the square. Captured pieces hold square 0, so once there is one, 0 names a side:
/// test for 0 first.
constexpr Side SquareOwner(const Position& position, Square square) {
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (position.BlueSquare[piece] == square) return Blue;
    if (position.GreenSquare[piece] == square) return Green;
  }
  return Nobody;
}

/// The square itself if nobody stands on it, else 0. Square 0 gives 0.
constexpr Square VacantOrZero(const Position& position, Square square) {
  return square != 0 && SquareOwner(position, square) == Nobody ? square : Square{0};
}

/// The directions that the piece may use, captured or not.
constexpr DirectionSetCode DirectionSet(const Position& position, int piece, bool isBlue) {
  if (isBlue) return position.BlueKing[piece] ? KingSet : BlueManSet;
  return position.GreenKing[piece] ? KingSet : GreenManSet;
}

/// The directions of a set, in rising order.
constexpr std::span<const Direction> DirectionsOf(DirectionSetCode set) {
  const std::span<const Direction> all(AllDirections);
  switch (set) {
    case BlueManSet:
      return all.first(2);
    case GreenManSet:
      return all.last(2);
    case KingSet:
      break;
  }
  return all;
}

/// Whether a piece on `square` could jump in this direction: an enemy on the next square, and the
/// one behind it on the board and empty. False for square 0.
constexpr bool CanJump(const Position& position, Square square, Direction direction, Side enemy) {
  const Square over = Neighbour(square, direction);
  if (over == 0 || SquareOwner(position, over) != enemy) return false;
  const Square landing = Neighbour(over, direction);
  return landing != 0 && SquareOwner(position, landing) == Nobody;
}

/// Whether the tables agree with themselves: real squares or 0, and no two pieces on one square;
/// the jump path without gaps.
bool IsConsistent(const Position& position);
