#include "support/player.h"

#include "support/legal_drags.h"

std::vector<int> RandomDrag(const Position& position, Random& random) {
  const std::vector<DragPath> drags = LegalDrags(position);
  if (drags.empty()) return {};
  const int count = static_cast<int>(drags.size());
  const DragPath& drag = drags[static_cast<std::size_t>(random.Draw(count))];
  return {drag.begin(), drag.end()};
}

void PlayTurn(Desk& desk, const std::vector<int>& squares) {
  desk.Drag(squares);
  desk.RunUntilQuiet();
}
