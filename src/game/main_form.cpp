#include "game/main_form.h"

void PlaceImage(const frmVelmoran& form, Control& image, Square square) {
  image.Top = form.lblSquare[square].Top;
  image.Left = form.lblSquare[square].Left;
}

void SetBlueDragMode(frmVelmoran& form, int dragMode) {
  for (Control& image : form.imgBlueChecker) image.DragMode = dragMode;
}

const Picture* PlainGreenPicture(const frmVelmoran& form, int piece) {
  return form.position.GreenKing[piece] ? form.picGreenKingREF.Picture
                                        : form.picGreenCheckerREF.Picture;
}

namespace {

bool IsShownOn(const frmVelmoran& form, const Control& image, Square square) {
  if (square == 0) return !image.Visible;
  const Control& label = form.lblSquare[square];
  return image.Visible && image.Left == label.Left && image.Top == label.Top;
}

bool IsHighlight(const frmVelmoran& form, int piece, const Picture* picture) {
  const Control& box = form.position.GreenKing[piece] ? form.picGreenKingHighlightREF
                                                      : form.picGreenCheckerHighlightREF;
  return picture == box.Picture && piece == form.BlinkChecker && form.tmrBlink.Enabled;
}

}  // namespace

bool IsConsistent(const frmVelmoran& form) {
  const Position& position = form.position;
  if (!IsConsistent(position)) return false;
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Control& blue = form.imgBlueChecker[piece];
    const Control& green = form.imgGreenChecker[piece];
    const Control& blueBox =
        position.BlueKing[piece] ? form.picBlueKingREF : form.picBlueCheckerREF;
    if (!IsShownOn(form, blue, position.BlueSquare[piece]) ||
        !IsShownOn(form, green, position.GreenSquare[piece]) || blue.Picture != blueBox.Picture) {
      return false;
    }
    if (green.Picture != PlainGreenPicture(form, piece) &&
        !IsHighlight(form, piece, green.Picture)) {
      return false;
    }
  }
  return true;
}

void ShowProgramError(Toolkit& toolkit, int number) {
  const std::string name = "Error #" + std::to_string(number);
  toolkit.MsgBox(name + ":  Please report this to Orsvin!", MessageIcon::Stop, "Program " + name);
}
