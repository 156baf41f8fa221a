#include "support/player.h"

#include "human/classification.h"

namespace {

using Hops = std::vector<int>;

/// Adds every drag that goes on from this one by jumps, as long as each could be the last.
void AddJumps(const Position& position, int piece, Hops& drag, std::vector<Hops>& drags) {
  const auto from = static_cast<Square>(drag.front());
  const auto current = static_cast<Square>(drag.back());
  for (const Direction direction : AllDirections) {
    const Square over = Neighbour(current, direction);
    if (over == 0 || SquareOwner(position, over) != Green) continue;
    const Square next = Neighbour(over, direction);
    if (next == 0 || (next != from && SquareOwner(position, next) != Nobody)) continue;
    drag.push_back(next);
    Position dragged = position;
    std::copy(drag.begin() + 1, drag.end(), dragged.JumpPath.begin());
    const BlueMove move = ClassifyBlueMove(dragged, from, next, true, piece);
    if (move == (drag.size() == 2 ? BlueMoveJump : BlueMoveChain)) {
      drags.push_back(drag);
      AddJumps(position, piece, drag, drags);
    }
    drag.pop_back();
  }
}

void AddSteps(const Position& position, int piece, std::vector<Hops>& drags) {
  const Square from = position.BlueSquare[piece];
  for (const Direction direction : DirectionsOf(DirectionSet(position, piece, true))) {
    const Square next = VacantOrZero(position, Neighbour(from, direction));
    if (next != 0) drags.push_back({from, next});
  }
}

}  // namespace

std::vector<int> RandomDrag(const Position& position, Random& random) {
  std::vector<Hops> drags;
  Hops drag;
  for (int piece = 1; piece <= Pieces; ++piece) {
    drag.assign(1, position.BlueSquare[piece]);
    AddJumps(position, piece, drag, drags);
  }
  if (drags.empty()) {
    for (int piece = 1; piece <= Pieces; ++piece) AddSteps(position, piece, drags);
  }
  if (drags.empty()) return {};
  return drags[static_cast<std::size_t>(random.Draw(static_cast<int>(drags.size())))];
}

void PlayTurn(Desk& desk, const std::vector<int>& squares) {
  desk.Drag(squares);
  desk.RunUntilQuiet();
}
