#include <algorithm>
#include <cctype>

#include "recorded.h"
#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

bool IsLit(const frmVelmoran& form) {
  return std::ranges::any_of(form.imgGreenChecker, [&](const Control& image) {
    return image.Picture == form.picGreenCheckerHighlightREF.Picture ||
           image.Picture == form.picGreenKingHighlightREF.Picture;
  });
}

/// Every 100 ms from the human's drop on: a letter for each board, a capital while a piece is lit,
/// and a mark for each change of what the human may do.
TEST(Turn, TakesItsTime) {
  ExpectAnswers("turns.txt", [](const std::string& which) {
    Desk desk(Board(which.substr(0, 39)));
    desk.Draws({});
    desk.host.BoxTime = 1s;
    const std::int64_t draws = desk.toolkit.random.DrawCount;
    desk.Drag({std::stoi(which.substr(40)), std::stoi(which.substr(43))});
    desk.DeliverInput();
    std::string course;
    std::string board;
    char letter = 'a' - 1;
    int dragMode = 0;
    for (int k = 0; k < 70; ++k) {
      desk.In(100ms * k + 50ms, [&] {
        if (board != Draw(desk.form.position)) ++letter;
        board = Draw(desk.form.position);
        if (dragMode != desk.form.imgBlueChecker[1].DragMode) course += '|';
        dragMode = desk.form.imgBlueChecker[1].DragMode;
        course += IsLit(desk.form) ? char(std::toupper(letter)) : letter;
      });
    }
    desk.RunUntilQuiet();
    course.erase(course.find_last_not_of(course.back()) + 2);
    for (const auto& box : desk.host.Boxes) course += ", " + box.Text;
    return course + ", " + board + ", draws " +
           std::to_string(desk.toolkit.random.DrawCount - draws);
  });
}

}  // namespace
