#include "board/position.h"

#include <algorithm>

Side SquareOwner(const Position& position, Square square) {
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (position.BlueSquare[piece] == square) return Blue;
    if (position.GreenSquare[piece] == square) return Green;
  }
  return Nobody;
}

Square VacantOrZero(const Position& position, Square square) {
  return SquareOwner(position, square) == Nobody ? square : Square{0};
}

DirectionSetCode DirectionSet(const Position& position, int piece, bool isBlue) {
  if (isBlue) return position.BlueKing[piece] ? KingSet : BlueManSet;
  return position.GreenKing[piece] ? KingSet : GreenManSet;
}

std::span<const Direction> DirectionsOf(DirectionSetCode set) {
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

bool CanJump(const Position& position, Square square, Direction direction, Side enemy) {
  const Square over = Neighbour(square, direction);
  if (over == 0 || SquareOwner(position, over) != enemy) return false;
  const Square landing = Neighbour(over, direction);
  return landing != 0 && SquareOwner(position, landing) == Nobody;
}

bool IsConsistent(const Position& position) {
  Table<int, Squares> held;
  for (const auto& table : {position.BlueSquare, position.GreenSquare}) {
    for (Square square : table) {
      if (square < 0 || square > Squares) return false;
      if (square != 0 && ++held[square] > 1) return false;
    }
  }
  const auto& path = position.JumpPath;
  const auto firstFree = std::ranges::find(path, Square{0});
  return std::all_of(firstFree, path.end(), [](Square square) { return square == 0; }) &&
         std::all_of(path.begin(), firstFree, [](Square s) { return s >= 1 && s <= Squares; });
}
