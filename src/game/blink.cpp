#include "game/blink.h"

#include "game/turn_end.h"

namespace {

constexpr int TicksOfBlink = 5;

const Picture* HighlightedPicture(const frmVelmoran& form, int piece) {
  return form.position.GreenKing[piece] ? form.picGreenKingHighlightREF.Picture
                                        : form.picGreenCheckerHighlightREF.Picture;
}

}  // namespace

void StartBlink(frmVelmoran& form, int piece) {
  if (form.position.NewGameRequested) return;
  // A new game may have stopped the previous blink halfway.
  if (form.BlinkCount != 0) {
    form.imgGreenChecker[form.BlinkChecker].Picture = PlainGreenPicture(form, form.BlinkChecker);
  }
  form.BlinkCount = 0;
  form.BlinkChecker = piece;
  form.toolkit.SetEnabled(form.tmrBlink, true);
}

void tmrBlink_Timer(frmVelmoran& form) {
  const int piece = form.BlinkChecker;
  ++form.BlinkCount;
  const bool isEnd = form.BlinkCount == TicksOfBlink;
  const bool isHighlighted = form.BlinkCount % 2 == 1 && !isEnd;
  form.imgGreenChecker[piece].Picture =
      isHighlighted ? HighlightedPicture(form, piece) : PlainGreenPicture(form, piece);
  if (!isEnd) return;
  form.toolkit.SetEnabled(form.tmrBlink, false);
  if (form.position.BlueToMove && !form.position.GameOver) SetBlueDragMode(form, 1);
  FinishTurn(form);
}
