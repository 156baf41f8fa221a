#pragma once

#include <span>

#include "board/geometry.h"
#include "board/table.h"

constexpr int Pieces = 12;  // per side; a piece keeps its index, 1 to 12, for the whole game

/// Who stands on a square.
enum Side : std::int32_t { Nobody, Blue, Green };

/// The directions in which a piece may move.
enum DirectionSetCode : std::int32_t { BlueManSet = 1, GreenManSet = 2, KingSet = 3 };

/// The whole state of a game.
struct Position {
  Table<Square, Pieces> BlueSquare;   // by piece; 0: captured
  Table<Square, Pieces> GreenSquare;  // by piece; 0: captured
  Table<bool, Pieces> BlueKing;       // a captured piece keeps its crown
  Table<bool, Pieces> GreenKing;
  Table<Square, 10> JumpPath;  // squares of the present drag, in order from slot 1; 0: free slot
  bool BlueToMove = false;
  bool GameOver = false;
  bool NewGameRequested = false;  // stays set after the new game has begun, until the next drag

  bool operator==(const Position&) const = default;
};

/// Who stands on the square. Test for square 0 first: captured pieces are on it, so its owner may
/// be a side.
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

/// The directions in which the piece may move. A captured piece gets an answer, too.
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

/// Whether a piece on `square` can jump in this direction: the next square holds an enemy, and the
/// square behind it exists and is empty. False for square 0.
constexpr bool CanJump(const Position& position, Square square, Direction direction, Side enemy) {
  const Square over = Neighbour(square, direction);
  if (over == 0 || SquareOwner(position, over) != enemy) return false;
  const Square landing = Neighbour(over, direction);
  return landing != 0 && SquareOwner(position, landing) == Nobody;
}
