#include "human/classification.h"

namespace {

/// Judges a single step or jump, in each direction in which the piece may move.
BlueMove ClassifyHop(const Position& position, Square from, Square to, DirectionSetCode set) {
  for (Direction direction : DirectionsOf(set)) {
    const Square next = Neighbour(from, direction);
    if (to == next) return BlueMoveStep;
    if (to == LandingSquare(from, direction) && SquareOwner(position, next) == Green) {
      return BlueMoveJump;
    }
  }
  return BlueMoveNone;
}

/// A friend on the landing square blocks a jump. The moving piece itself does not: it has left its
/// square.
bool IsFriendOn(const Position& position, Square square, int piece) {
  return SquareOwner(position, square) == Blue && position.BlueSquare[piece] != square;
}

/// Whether the jump path and the drop make a chain. Removes the drop square from the end of the
/// path.
bool WalkJumpPath(Position& position, Square from, Square to, int piece) {
  Square current = from;
  for (int i = 1; i <= 10; ++i) {
    if (i > 1 && position.JumpPath[i - 1] == 0) break;
    const bool isPastEnd = position.JumpPath[i] == 0;
    const Square next = i == 10 || isPastEnd ? to : position.JumpPath[i];
    if (ClassifyBlueMove(position, current, next, false, piece) == BlueMoveJump &&
        !IsFriendOn(position, next, piece)) {
      current = next;
      continue;
    }
    // A path that ends on the drop square is complete: the last hop, onto itself, is no jump.
    if (!isPastEnd || position.JumpPath[i - 1] != to) return false;
    position.JumpPath[i - 1] = 0;
    const bool isSingleJump = i - 1 == 1;
    return !isSingleJump && JumpPathIsValid(position, from, to);
  }
  return JumpPathIsValid(position, from, to);
}

}  // namespace

BlueMove ClassifyBlueMove(Position& position, Square from, Square to, bool walkPath, int piece) {
  if (walkPath && position.JumpPath[1] != 0 && WalkJumpPath(position, from, to, piece)) {
    return BlueMoveChain;
  }
  return ClassifyHop(position, from, to, DirectionSet(position, piece, true));
}

bool JumpPathIsValid(const Position& position, Square from, Square to) {
  const auto& path = position.JumpPath;
  Table<Square, 10> crossed;
  int last = 0;  // the number of entries
  for (; last < 10 && path[last + 1] != 0; ++last) {
    const Square base = last == 0 ? from : path[last];
    crossed[last + 1] = Neighbour(base, JumpDirection(base, path[last + 1]));
  }
  if (last == 0 || last == 10) return true;
  const Square over = Neighbour(path[last], JumpDirection(path[last], to));
  for (int hop = 1; hop <= last; ++hop) {
    if (over != 0 && crossed[hop] == over) return false;
  }
  return true;
}
