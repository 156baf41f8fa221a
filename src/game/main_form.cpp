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

void ShowProgramError(Toolkit& toolkit, int number) {
  const std::string name = "Error #" + std::to_string(number);
  toolkit.MsgBox(name + ":  Please report this to Orsvin!", MessageIcon::Stop, "Program " + name);
}
