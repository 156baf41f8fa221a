#include "board/position.h"

#include <algorithm>

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
