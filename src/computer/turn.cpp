#include "computer/turn.h"

#include "board/random_direction.h"
#include "computer/ranking.h"
#include "game/blink.h"
#include "game/pieces.h"
#include "game/turn_end.h"

namespace {

/// A part of a move: one blink, then one step or one jump.
struct Stage {
  Square TargetSquare = 0;
  Square JumpedSquare = 0;  // 0: a step
};

Stage FirstStage(const MoveRecord& move) {
  const bool isJump = move.Kind == MoveKindJump;
  return {move.ToSquare, isJump ? Neighbour(move.FromSquare, move.Direction) : Square{0}};
}

/// The next jump of a chain, chosen at random. Nothing if the piece cannot jump again.
std::optional<Stage> NextStage(frmVelmoran& form, int piece) {
  const Position& position = form.position;
  const Square square = position.GreenSquare[piece];
  const Direction direction = RandomJumpDirection(form.toolkit.random, position, piece,
                                                  DirectionSet(position, piece, false), false);
  if (direction == NoDirection) return std::nullopt;
  return Stage{LandingSquare(square, direction), Neighbour(square, direction)};
}

/// Waits until the blink of a stage has ended. If New Game comes meanwhile, it stops the timer and
/// clears `BlinkStarted`. `StartBlink` then does nothing, so the wait ends.
void WaitForBlink(frmVelmoran& form, int piece) {
  for (;;) {
    if (!form.BlinkStarted) {
      form.BlinkStarted = true;
      StartBlink(form, piece);
    }
    if (!form.tmrBlink.Enabled) break;
    form.toolkit.DoEvents();
  }
  form.BlinkStarted = false;
}

void PlayStage(frmVelmoran& form, int piece, const Stage& stage) {
  // The jumped piece goes first: otherwise the next jump could capture it again.
  if (stage.JumpedSquare != 0) RemoveCheckerAt(form, stage.JumpedSquare);
  MoveGreenChecker(form, piece, stage.TargetSquare);
}

}  // namespace

void tmrPause_Timer(frmVelmoran& form) {
  if (!form.position.BlueToMove) ComputerTurn(form);
  form.toolkit.SetEnabled(form.tmrPause, false);
}

void ComputerTurn(frmVelmoran& form) {
  const auto reportError = [&form] { ShowProgramError(form.toolkit, 4); };
  const std::optional<MoveRecord> move =
      ChooseMove(form.toolkit.random, form.position, reportError);
  if (!move) {
    AnnounceGameEnd(form, "Green cannot move!  YOU WIN!!!");
    SetBlueDragMode(form, 0);
    return;
  }
  const int piece = move->Piece;
  std::optional<Stage> stage = FirstStage(*move);
  while (stage) {
    WaitForBlink(form, piece);
    if (form.position.NewGameRequested) return;  // the board already shows the new game
    PlayStage(form, piece, *stage);
    stage = stage->JumpedSquare != 0 ? NextStage(form, piece) : std::nullopt;
  }
  StartBlink(form, piece);
  form.position.BlueToMove = true;
}
