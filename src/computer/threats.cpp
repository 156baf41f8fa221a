#include "computer/threats.h"

#include <algorithm>

namespace {

/// The index of the piece on the square. 0 if there is none, or for square 0.
int PieceOn(const Table<Square, Pieces>& squares, Square square) {
  if (square == 0) return 0;
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (squares[piece] == square) return piece;
  }
  return 0;
}

bool MayMove(DirectionSetCode set, Direction direction) {
  return std::ranges::count(DirectionsOf(set), direction) != 0;
}

bool BlueMayMove(const Position& position, int blue, Direction direction) {
  return MayMove(DirectionSet(position, blue, true), direction);
}

/// Whether the square is free, or is the one that the piece is leaving.
bool IsFreeWithout(const Position& position, Square square, int piece) {
  return SquareOwner(position, square) == Nobody || square == position.GreenSquare[piece];
}

/// The blue piece that could jump over `square` in this direction. 0 if there is none.
int BlueAttacker(const Position& position, Square square, Direction direction, int piece) {
  const Square landing = Neighbour(square, direction);
  if (landing == 0) return 0;
  const int blue = PieceOn(position.BlueSquare, Neighbour(square, Opposite(direction)));
  if (blue == 0 || !BlueMayMove(position, blue, direction)) return 0;
  return IsFreeWithout(position, landing, piece) ? blue : 0;
}

/// Whether the blue piece could jump again after it has landed on `square` in this direction. The
/// square that the moved piece has left counts as free. A man that lands on its crown row still
/// counts as a man.
bool BlueCanJumpOn(const Position& position, Square square, Direction direction, int blue,
                   int piece) {
  for (Direction onward : DirectionsOf(DirectionSet(position, blue, true))) {
    if (onward == Opposite(direction)) continue;
    const Square over = Neighbour(square, onward);
    if (over == 0 || SquareOwner(position, over) != Green) continue;
    const Square landing = Neighbour(over, onward);
    if (landing != 0 && IsFreeWithout(position, landing, piece)) return true;
  }
  return false;
}

/// Whether the blue piece could jump again after it has captured a friend and landed on `from`. It
/// may also capture the moved piece on `to`. `back` leads to the friend just captured.
bool ExposesSecond(const Position& position, Square from, Square to, Direction back, int blue) {
  for (Direction onward : DirectionsOf(DirectionSet(position, blue, true))) {
    if (onward == back) continue;
    const Square over = Neighbour(from, onward);
    if (over == 0 || (over != to && SquareOwner(position, over) != Green)) continue;
    if (VacantOrZero(position, Neighbour(over, onward)) != 0) return true;
  }
  return false;
}

/// Whether green could capture a blue king that steps to a square.
struct Cover {
  bool IsCovered = false;
  bool ByMovedPiece = false;
};

Cover CoverOf(const Position& position, Square escape, int piece, Square to) {
  Cover cover;
  for (Direction direction : AllDirections) {
    const Square from = Neighbour(escape, Opposite(direction));
    if (VacantOrZero(position, Neighbour(escape, direction)) == 0 || from == 0) continue;
    const bool isMovedPiece = from == to;
    const int green = isMovedPiece ? piece : PieceOn(position.GreenSquare, from);
    if (green == 0 || (green == piece && !isMovedPiece)) continue;
    // A man on a crown square counts as a king: it is about to be crowned.
    if (!MayMove(DirectionSet(position, green, false), direction) && !IsGreenCrownSquare(from)) {
      continue;
    }
    cover.IsCovered = true;
    cover.ByMovedPiece |= isMovedPiece;
  }
  return cover;
}

bool IsKingTrapped(const Position& position, Square king, int piece, Square to) {
  bool isHeldByMovedPiece = false;
  for (Direction direction : AllDirections) {
    const Square escape = Neighbour(king, direction);
    const bool isVacated = escape == position.GreenSquare[piece] && escape != to;
    if (escape == 0 || (SquareOwner(position, escape) != Nobody && !isVacated)) continue;
    const Cover cover = CoverOf(position, escape, piece, to);
    if (!cover.IsCovered) return false;
    isHeldByMovedPiece |= cover.ByMovedPiece;
  }
  return isHeldByMovedPiece;
}

}  // namespace

bool GreenCanJumpFrom(const Position& position, Square square, int piece) {
  return std::ranges::any_of(
      DirectionsOf(DirectionSet(position, piece, false)),
      [&](Direction direction) { return CanJump(position, square, direction, Blue); });
}

bool BlueCanCapture(const Position& position, Square square, int piece) {
  return std::ranges::any_of(AllDirections, [&](Direction direction) {
    return BlueAttacker(position, square, direction, piece) != 0;
  });
}

int BlueCaptureDepth(const Position& position, Square square, int piece) {
  int best = 0;
  for (Direction direction : AllDirections) {
    const int blue = BlueAttacker(position, square, direction, piece);
    if (blue == 0) continue;
    const Square landing = Neighbour(square, direction);
    best = std::max(best, BlueCanJumpOn(position, landing, direction, blue, piece) ? 2 : 1);
  }
  return best;
}

int ExposureDepth(const Position& position, Square from, Square to, int piece) {
  int best = 0;
  for (Direction direction : AllDirections) {
    const Square next = Neighbour(from, direction);
    const int friendly = PieceOn(position.GreenSquare, next);
    // Only a capture that lands on the square just left is new.
    const int blue = PieceOn(position.BlueSquare, LandingSquare(from, direction));
    if (friendly == 0 || blue == 0 || BlueCanCapture(position, next, friendly) ||
        !BlueCanCapture(position, next, piece)) {
      continue;
    }
    best = std::max(best, ExposesSecond(position, from, to, direction, blue) ? 2 : 1);
  }
  return best;
}

int DefenceDepth(const Position& position, Square to, int piece, const ErrorReport& reportError) {
  int total = 0;
  for (Direction direction : AllDirections) {
    const Square next = Neighbour(to, direction);
    const int friendly = PieceOn(position.GreenSquare, next);
    if (friendly == 0 || friendly == piece) continue;
    const int depth = BlueCaptureDepth(position, next, friendly);
    if (depth == 0) continue;
    Position moved = position;
    moved.GreenSquare[piece] = to;
    if (BlueCanCapture(moved, next, friendly)) continue;
    total += depth;
    if (!BlueCanCapture(moved, next, piece)) reportError();
  }
  return total;
}

bool MoveTrapsBlueKing(const Position& position, int piece, Square to) {
  for (int blue = 1; blue <= Pieces; ++blue) {
    if (position.BlueSquare[blue] != 0 && position.BlueKing[blue] &&
        IsKingTrapped(position, position.BlueSquare[blue], piece, to)) {
      return true;
    }
  }
  return false;
}
