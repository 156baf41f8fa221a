#include "game/turn_end.h"

#include "board/random_direction.h"
#include "game/pieces.h"

namespace {

struct PieceCounts {
  int Blue = 0;
  int Green = 0;
};

PieceCounts CrownAndCount(frmVelmoran& form) {
  const Position& position = form.position;
  PieceCounts counts;
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (IsGreenCrownSquare(position.GreenSquare[piece])) CrownChecker(form, piece, false);
    if (IsBlueCrownSquare(position.BlueSquare[piece])) CrownChecker(form, piece, true);
    if (position.GreenSquare[piece] != 0) ++counts.Green;
    if (position.BlueSquare[piece] != 0) ++counts.Blue;
  }
  return counts;
}

/// Asks all twelve pieces for a step and a jump. It must not stop at the first piece that can move:
/// the draws of all twelve are part of the play.
bool CanBlueMove(frmVelmoran& form) {
  const Position& position = form.position;
  Random& random = form.toolkit.random;
  bool canMove = false;
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (RandomStepDirection(random, position, piece, true) != NoDirection) canMove = true;
    const DirectionSetCode set = DirectionSet(position, piece, true);
    if (RandomJumpDirection(random, position, piece, set, true) != NoDirection) canMove = true;
  }
  return canMove;
}

}  // namespace

bool FinishTurn(frmVelmoran& form) {
  ClearJumpPath(form);
  const PieceCounts counts = CrownAndCount(form);
  if (counts.Blue == 0) {
    AnnounceGameEnd(form, "Blue has been captured!  YOU LOSE!!!");
    return true;
  }
  if (counts.Green == 0) {
    AnnounceGameEnd(form, "Green has been captured!  YOU WIN!!!");
    SetBlueDragMode(form, 0);
    return true;
  }
  // `BlueToMove` is only true after the computer's move. After blue's own move green goes first.
  if (!CanBlueMove(form) && form.position.BlueToMove) {
    form.toolkit.SetEnabled(form.tmrPause, false);
    AnnounceGameEnd(form, "Blue cannot move!  YOU LOSE!!!");
    SetBlueDragMode(form, 0);
  }
  return false;
}

void AnnounceGameEnd(frmVelmoran& form, const char* text) {
  form.toolkit.MsgBox(text, MessageIcon::Stop, "Game Over");
  form.position.GameOver = true;
}
