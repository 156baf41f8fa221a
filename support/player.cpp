#include "support/player.h"

#include "human/classification.h"

namespace {

using Hops = std::vector<int>;

/// Adds every drag that goes on from this one by jumps, as long as each could be the last.
void AddJumps(const Position& position, int piece, const Hops& drag, std::vector<Hops>& drags) {
  const auto from = static_cast<Square>(drag.front());
  for (const Direction direction : AllDirections) {
    const Square next = LandingSquare(static_cast<Square>(drag.back()), direction);
    if (next == 0 || (next != from && SquareOwner(position, next) != Nobody)) continue;
    Hops longer = drag;
    longer.push_back(next);
    Position dragged = position;
    std::copy(longer.begin() + 1, longer.end(), dragged.JumpPath.begin());
    const BlueMove move = ClassifyBlueMove(dragged, from, next, true, piece);
    if (move != (drag.size() == 1 ? BlueMoveJump : BlueMoveChain)) continue;
    drags.push_back(longer);
    AddJumps(position, piece, longer, drags);
  }
}

}  // namespace

std::vector<int> RandomDrag(const Position& position, Random& random) {
  std::vector<Hops> steps, jumps;
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Square from = position.BlueSquare[piece];
    if (from == 0) continue;
    AddJumps(position, piece, {from}, jumps);
    for (const Direction direction : DirectionsOf(DirectionSet(position, piece, true))) {
      const Square next = VacantOrZero(position, Neighbour(from, direction));
      if (next != 0) steps.push_back({from, next});
    }
  }
  const std::vector<Hops>& drags = jumps.empty() ? steps : jumps;
  if (drags.empty()) return {};
  return drags[static_cast<std::size_t>(random.Draw(static_cast<int>(drags.size())))];
}

void PlayTurn(Desk& desk, const std::vector<int>& squares) {
  desk.Drag(squares);
  desk.RunUntilQuiet();
}
