#include "human/jump_path.h"

#include <algorithm>

#include "human/classification.h"

void lblSquare_DragOver(frmVelmoran& form, Square index, const Control& source) {
  Position& position = form.position;
  if (!position.BlueToMove) return;
  const Square from = position.BlueSquare[source.Index];
  if (!JumpPathIsValid(position, from, index)) return;
  const auto freeSlot = std::ranges::find(position.JumpPath, Square{0});
  const bool isEmptyOrFull =
      freeSlot == position.JumpPath.begin() || freeSlot == position.JumpPath.end();
  const Square base = isEmptyOrFull ? from : *(freeSlot - 1);
  if (JumpDirection(base, index) == NoDirection || freeSlot == position.JumpPath.end()) return;
  *freeSlot = index;
}

void imgBlueChecker_DragOver(frmVelmoran& form, int index, const Control& source) {
  form.position.NewGameRequested = false;
  lblSquare_DragOver(form, form.position.BlueSquare[index], source);
}
