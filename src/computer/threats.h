#pragma once

#include <functional>

#include "board/position.h"

// The tactical tests of the ranking. They run before the move: the tables still have the moving
// piece on its old square, and a piece that the move would capture is still there. `piece` is the
// index of a green piece on the board; squares are 1 to 32.

/// Called on an internal error, which cannot happen while the tables are consistent.
using ErrorReport = std::function<void()>;

/// Whether the piece could jump if it stood on `square`.
bool GreenCanJumpFrom(const Position& position, Square square, int piece);

/// Whether a blue piece could jump over `square`. Blue may land on the present square of `piece`,
/// which counts as left.
bool BlueCanCapture(const Position& position, Square square, int piece);

/// How many green pieces a capture over `square` costs: 0, 1, or 2 for two or more. Blue may land
/// on the present square of `piece`.
int BlueCaptureDepth(const Position& position, Square square, int piece);

/// How many green pieces blue can capture because `piece` moves from `from` to `to`: 0, 1, or 2 for
/// two or more. Of several neighbours that lose their cover the worst counts.
int ExposureDepth(const Position& position, Square from, Square to, int piece);

/// How many green pieces `piece` saves from capture by arriving on `to`: the sum over all
/// neighbours, 0 to 8. Calls `reportError` if an attack has gone for no reason.
int DefenceDepth(const Position& position, Square to, int piece, const ErrorReport& reportError);

/// Whether `piece` on `to` helps to trap a blue king: each step of that king could be answered by a
/// capture, at least one of them by `piece`. A king without any step is not trapped.
bool MoveTrapsBlueKing(const Position& position, int piece, Square to);

/// The score of a move. `depthAtFrom` and `defence` count for it, `depthAtTo` and `exposure`
/// against it.
constexpr int DepthBalance(int depthAtFrom, int depthAtTo, int exposure, int defence) {
  return depthAtFrom - depthAtTo - exposure + defence;
}
