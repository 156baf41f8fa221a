#include "recorded.h"
#include "support/desk.h"

namespace {

std::vector<int> SquaresOf(const std::string& drag) {
  std::vector<int> squares;
  std::istringstream in(drag);
  for (int square; in >> square; in.ignore()) squares.push_back(square);
  return squares;
}

TEST(Drag, IsCarriedOutOrRefused) {
  ExpectAnswers("drags.txt", [](const std::string& which) {
    Desk desk(Board(which.substr(0, 39)));
    const Position& position = desk.form.position;
    desk.Drag(SquaresOf(which.substr(40)));
    desk.DeliverInput();
    std::string told = position.BlueToMove ? "refused" : Draw(position);
    for (const auto& box : desk.host.Boxes) told += ", " + box.Title;
    for (const Square square : position.JumpPath) {
      if (square != 0) told += ' ' + std::to_string(square);
    }
    return told;
  });
}

}  // namespace
