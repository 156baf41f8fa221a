#pragma once

#include <functional>

#include "board/position.h"

// The tactical questions of the ranking. They are asked before a move is made: the tables show the
// moving piece on its old square, and what a move would capture still stands. A `piece` is green.

/// Called when tables contradict themselves; consistent ones rule it out.
using ErrorReport = std::function<void()>;

/// Whether the piece, standing on `square`, would have a jump.
bool GreenCanJumpFrom(const Position& position, Square square, int piece);

/// Whether a blue piece could jump over `square`. The square of `piece` counts as free to land on,
/// as it has left it; asked with the piece on `square` itself, that makes no difference.
bool BlueCanCapture(const Position& position, Square square, int piece);

/// How many green pieces a capture over `square` takes: 0, 1, or 2 for two and more.
/// The square of `piece` counts as free to land on.
int BlueCaptureDepth(const Position& position, Square square, int piece);

/// How many green pieces blue can take because `piece` leaves `from` for `to`, at the neighbour
/// where it is worst: 0, 1, or 2 for two and more.
int ExposureDepth(const Position& position, Square from, Square to, int piece);

/// How many green pieces the arrival of `piece` on `to` saves from capture, over all neighbours:
/// 0 to 8. Reports an error if an attack went for no reason.
int DefenceDepth(const Position& position, Square to, int piece, const ErrorReport& reportError);

/// Whether, with `piece` on `to`, every step of some blue king runs into a capture, and this piece
/// is among the capturers. False for a king that has no step at all.
bool MoveTrapsBlueKing(const Position& position, int piece, Square to);

/// The score of a move from its four depths: what helps green counts for it, what harms against.
constexpr int DepthBalance(int depthAtFrom, int depthAtTo, int exposure, int defence) {
  return depthAtFrom - depthAtTo - exposure + defence;
}
