#include "game/new_game.h"

#include "game/pieces.h"
#include "game/turn_end.h"

namespace {

constexpr Square FirstGreenSquare = 21;

void PlacePieces(frmVelmoran& form) {
  Position& position = form.position;
  for (int piece = 1; piece <= Pieces; ++piece) {
    const auto blueSquare = static_cast<Square>(piece);
    const auto greenSquare = static_cast<Square>(piece - 1 + FirstGreenSquare);
    position.GreenSquare[piece] = greenSquare;
    position.BlueSquare[piece] = blueSquare;
    position.GreenKing[piece] = false;
    position.BlueKing[piece] = false;

    Control& green = form.imgGreenChecker[piece];
    green.Picture = form.picGreenCheckerREF.Picture;
    PlaceImage(form, green, greenSquare);
    green.Visible = true;

    Control& blue = form.imgBlueChecker[piece];
    blue.Picture = form.picBlueCheckerREF.Picture;
    PlaceImage(form, blue, blueSquare);
    blue.Visible = true;
  }
}

}  // namespace

void Form_Load(frmVelmoran& form) {
  SetBlueDragMode(form, 1);
  PlacePieces(form);
  form.position.BlueToMove = true;
  ClearJumpPath(form);
  FinishTurn(form);
  // Only now: the draws of `FinishTurn` above still belong to the previous game's sequence.
  form.toolkit.random.Randomize(form.toolkit.Timer());
  form.position.GameOver = false;
  form.BlinkStarted = false;
}

void mnuGame_Click(frmVelmoran& form) {
  // This comes first, so that an interrupted turn sees it.
  form.position.NewGameRequested = true;
  form.toolkit.SetEnabled(form.tmrBlink, false);
  form.toolkit.SetEnabled(form.tmrPause, false);
  Form_Load(form);
}

void mnuExit_Click(frmVelmoran& form) { form.toolkit.End(); }

void Form_Unload(frmVelmoran& form) { form.toolkit.End(); }
