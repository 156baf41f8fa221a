#include "human/drop.h"

#include "board/random_direction.h"
#include "game/pieces.h"
#include "game/turn_end.h"
#include "human/classification.h"

namespace {

bool IsBluePiece(const Control& source) { return source.Name == "imgBlueChecker"; }

/// The square that a jump from `from` to `to` crosses. 0 if no jump leads there.
Square SquareBetween(Square from, Square to) { return Neighbour(from, JumpDirection(from, to)); }

/// Asks all twelve pieces: the draws of each are part of the play.
bool BlueHasJump(frmVelmoran& form) {
  const Position& position = form.position;
  bool hasJump = false;
  for (int piece = 1; piece <= Pieces; ++piece) {
    const DirectionSetCode set = DirectionSet(position, piece, true);
    if (RandomJumpDirection(form.toolkit.random, position, piece, set, true) != NoDirection) {
      hasJump = true;
    }
  }
  return hasJump;
}

/// False if a jump must be made instead. The message has been shown then.
bool PlayStep(frmVelmoran& form, int piece, Square to) {
  if (BlueHasJump(form)) {
    form.toolkit.MsgBox(
        "You must make the available jump.\r\n\r\n"
        "The official rules of checkers state that if a\r\n"
        "jump is available, a capture MUST be made.",
        MessageIcon::Warning, "Capture Required");
    return false;
  }
  MoveBlueChecker(form, piece, to);
  return true;
}

void RemoveJumped(frmVelmoran& form, Square from, Square to, int errorNumber) {
  const Square between = SquareBetween(from, to);
  if (between == 0) ShowProgramError(form.toolkit, errorNumber);
  RemoveCheckerAt(form, between);
}

/// Carries out the jumps of the path and the last jump to `to`. False if the path does not start
/// with a jump: then no piece moves, and the path is emptied.
bool PlayChain(frmVelmoran& form, int piece, Square to) {
  const Position& position = form.position;
  const auto& path = position.JumpPath;
  const Square first = SquareBetween(position.BlueSquare[piece], path[1]);
  if (first == 0) {
    ClearJumpPath(form);
    return false;
  }
  RemoveCheckerAt(form, first);
  int last = 1;
  for (; last <= 9 && path[last + 1] != 0; ++last) {
    RemoveJumped(form, path[last], path[last + 1], 1);
  }
  RemoveJumped(form, path[last], to, 2);
  MoveBlueChecker(form, piece, to);
  return true;
}

/// Carries out a move. False if no piece has moved.
bool PlayMove(frmVelmoran& form, BlueMove move, int piece, Square to) {
  switch (move) {
    case BlueMoveStep:
      return PlayStep(form, piece, to);
    case BlueMoveJump:
      RemoveCheckerAt(form, SquareBetween(form.position.BlueSquare[piece], to));
      MoveBlueChecker(form, piece, to);
      return true;
    case BlueMoveChain:
      return PlayChain(form, piece, to);
    case BlueMoveNone:
      break;
  }
  return false;
}

void EndMove(frmVelmoran& form) {
  form.position.BlueToMove = false;
  if (FinishTurn(form)) return;
  ClearJumpPath(form);
  SetBlueDragMode(form, 0);
  form.toolkit.SetEnabled(form.tmrPause, true);
}

}  // namespace

void lblSquare_DragDrop(frmVelmoran& form, Square index, const Control& source) {
  if (!IsBluePiece(source) || !form.position.BlueToMove) return;
  const int piece = source.Index;
  const Square from = form.position.BlueSquare[piece];
  const BlueMove move = ClassifyBlueMove(form.position, from, index, true, piece);
  if (PlayMove(form, move, piece, index)) EndMove(form);
}

void imgBlueChecker_DragDrop(frmVelmoran& form, int index, const Control& source) {
  const Position& position = form.position;
  if (position.GameOver) return;
  if (IsBluePiece(source) && source.Index == index && position.BlueKing[index] &&
      position.JumpPath[1] != 0) {
    lblSquare_DragDrop(form, position.BlueSquare[index], source);
  }
  ClearJumpPath(form);
}
