#include "ui/description.h"

namespace {

bool IsKingOn(const Position& position, Square square) {
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (position.BlueSquare[piece] == square) return position.BlueKing[piece];
    if (position.GreenSquare[piece] == square) return position.GreenKing[piece];
  }
  return false;
}

}  // namespace

std::string DescribeSquare(const Position& position, Square square) {
  const std::string place = "square " + std::to_string(square);
  const Side owner = SquareOwner(position, square);
  if (owner == Nobody) return "free " + place;
  const char* side = owner == Blue ? "blue " : "green ";
  const char* rank = IsKingOn(position, square) ? "king on " : "man on ";
  return side + (rank + place);
}
