#include "board/random_direction.h"

#include <algorithm>
#include <array>

namespace {

Square SquareOf(const Position& position, int piece, bool isBlue) {
  return isBlue ? position.BlueSquare[piece] : position.GreenSquare[piece];
}

/// Whether the piece can move in each direction of its set, in the order of the set.
using Openings = std::array<bool, 4>;

/// Draws until an open direction comes up. Draws nothing if none is open.
Direction DrawOpening(Random& random, std::span<const Direction> directions,
                      const Openings& openings) {
  if (std::ranges::none_of(openings, [](bool isOpen) { return isOpen; })) return NoDirection;
  for (;;) {
    const auto entry = static_cast<std::size_t>(random.Draw(static_cast<int>(directions.size())));
    if (openings[entry]) return directions[entry];
  }
}

}  // namespace

Direction RandomJumpDirection(Random& random, const Position& position, int piece,
                              DirectionSetCode set, bool isBlue) {
  const Square square = SquareOf(position, piece, isBlue);
  if (square == 0) return NoDirection;
  const std::span<const Direction> directions = DirectionsOf(set);
  Openings openings{};
  for (std::size_t entry = 0; entry < directions.size(); ++entry) {
    openings[entry] = CanJump(position, square, directions[entry], isBlue ? Green : Blue);
  }
  // A man with only one jump takes no draw. A king always draws.
  if (set != KingSet && openings[0] != openings[1]) return directions[openings[0] ? 0 : 1];
  return DrawOpening(random, directions, openings);
}

Direction RandomStepDirection(Random& random, const Position& position, int piece, bool isBlue) {
  const Square square = SquareOf(position, piece, isBlue);
  if (square == 0) return NoDirection;
  const std::span<const Direction> directions = DirectionsOf(DirectionSet(position, piece, isBlue));
  Openings openings{};
  for (std::size_t entry = 0; entry < directions.size(); ++entry) {
    openings[entry] = VacantOrZero(position, Neighbour(square, directions[entry])) != 0;
  }
  return DrawOpening(random, directions, openings);
}
