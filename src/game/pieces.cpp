#include "game/pieces.h"

namespace {

void RemoveIfOn(Square square, Square& pieceSquare, Control& image) {
  if (pieceSquare != square) return;
  image.Visible = false;
  pieceSquare = 0;
}

}  // namespace

void MoveBlueChecker(frmVelmoran& form, int piece, Square square) {
  PlaceImage(form, form.imgBlueChecker[piece], square);
  form.position.BlueSquare[piece] = square;
}

void MoveGreenChecker(frmVelmoran& form, int piece, Square square) {
  PlaceImage(form, form.imgGreenChecker[piece], square);
  form.position.GreenSquare[piece] = square;
}

void RemoveCheckerAt(frmVelmoran& form, Square square) {
  for (int piece = 1; piece <= Pieces; ++piece) {
    RemoveIfOn(square, form.position.GreenSquare[piece], form.imgGreenChecker[piece]);
    RemoveIfOn(square, form.position.BlueSquare[piece], form.imgBlueChecker[piece]);
  }
}

void CrownChecker(frmVelmoran& form, int piece, bool isBlue) {
  if (isBlue) {
    form.position.BlueKing[piece] = true;
    form.imgBlueChecker[piece].Picture = form.picBlueKingREF.Picture;
  } else {
    form.position.GreenKing[piece] = true;
    form.imgGreenChecker[piece].Picture = form.picGreenKingREF.Picture;
  }
}

void ClearJumpPath(frmVelmoran& form) { form.position.JumpPath = {}; }
