#include "support/legal_drags.h"

#include "human/classification.h"

namespace {

bool HasJump(const Position& position, int piece) {
  for (Direction direction : DirectionsOf(DirectionSet(position, piece, true))) {
    if (CanJump(position, position.BlueSquare[piece], direction, Green)) return true;
  }
  return false;
}

/// Follows the jumps of a piece on from the end of a path, as long as each could be the last.
void AddJumps(const Position& position, int piece, DragPath& path, std::vector<DragPath>& drags) {
  for (Direction direction : AllDirections) {
    const Square next = LandingSquare(path.back(), direction);
    const bool isOwn = next == path.front();
    if (next == 0 || (!isOwn && SquareOwner(position, next) != Nobody)) continue;
    Position dragged = position;
    path.push_back(next);
    for (std::size_t i = 1; i < path.size(); ++i) dragged.JumpPath[static_cast<int>(i)] = path[i];
    const BlueMove move = ClassifyBlueMove(dragged, path.front(), next, true, piece);
    if (path.size() == 2 ? move == BlueMoveJump : move == BlueMoveChain) {
      drags.push_back(path);
      AddJumps(position, piece, path, drags);
    }
    path.pop_back();
  }
}

}  // namespace

std::vector<DragPath> LegalDrags(const Position& position) {
  std::vector<DragPath> steps;
  std::vector<DragPath> jumps;
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Square from = position.BlueSquare[piece];
    if (from == 0) continue;
    for (Direction direction : DirectionsOf(DirectionSet(position, piece, true))) {
      const Square next = Neighbour(from, direction);
      if (VacantOrZero(position, next) != 0) steps.push_back({from, next});
    }
    if (!HasJump(position, piece)) continue;
    DragPath path{from};
    AddJumps(position, piece, path, jumps);
  }
  return jumps.empty() ? steps : jumps;
}
