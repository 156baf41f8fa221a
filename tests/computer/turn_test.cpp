#include "computer/turn.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

// From the top:   29   25   21   17   13   9    5    1
const auto Chain = "g... .g.. .b.. ...b .b.. .... .bb. ....";
const auto King = " .... .... .... ...b g... .G.. .bb. ....";
const auto Plain = "..g. .... .... ...b .... .... .... ....";

bool IsLit(const frmVelmoran& form) {
  return std::ranges::any_of(form.imgGreenChecker, [&](const Control& image) {
    return image.Picture == form.picGreenCheckerHighlightREF.Picture ||
           image.Picture == form.picGreenKingHighlightREF.Picture;
  });
}

TEST(ComputerTurn, ShowsEachStageWithABlink) {
  const struct {
    const char* Picture;
    std::string Course;  // every 100 ms: a letter for each board, a capital while a piece is lit
    const char* After;
  } cases[] = {
      // A king could jump on from 3, over 7; a man is crowned at the end of the last blink.
      {Chain, "aaaaaaaAAaaAAaabbBBbbBBbbccCCccCCccddDDddDDddee",
       "g... .... ...b .... .... .... ..b. ..G."},
      {King, "aaaaaaaAAaaAAaabbBBbbBBbbccCCccCCcccc", ".... .... ...b .... g... ...G .... ...."},
      {Plain, "aaaaaaaAAaaAAaabbBBbbBBbbbb", ".... ..g. ...b .... .... .... .... ...."},
  };
  for (const auto& [picture, course, after] : cases) {
    Desk desk(Board(picture));
    desk.Draws({});
    desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)); };
    desk.Drag({20, 24});
    desk.DeliverInput();
    std::string seen;
    std::string board = Draw(desk.form.position);
    char letter = 'a';
    for (std::size_t k = 0; k < course.size(); ++k) {
      desk.In(100ms * k + 50ms, [&, dragMode = k + 2 < course.size() ? 0 : 1] {
        if (board != Draw(desk.form.position)) ++letter;
        board = Draw(desk.form.position);
        seen += static_cast<char>(IsLit(desk.form) ? letter - 'a' + 'A' : letter);
        EXPECT_EQ(desk.form.imgBlueChecker[1].DragMode, dragMode);
      });
    }
    desk.RunUntilQuiet();
    EXPECT_EQ(seen, course) << picture;
    EXPECT_EQ(board, after);
  }
}

TEST(ComputerTurn, DrawsForTheShuffleAndAtTheEndOfEachBlink) {
  Desk desk(Board("..g. .... .... .... .... .b.. .... ...."));
  const std::int64_t before = desk.toolkit.random.DrawCount;
  desk.PlayTurn({10, 14});
  // Blue has both its steps open: one draw at the drop, one at each blink. Green has two moves.
  EXPECT_EQ(desk.toolkit.random.DrawCount - before, 1 + 2 + 2);
}

}  // namespace
