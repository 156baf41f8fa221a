#include "computer/turn.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

// Rows from the top:     29   25   21   17   13   9    5    1
constexpr auto Chain = " g... .g.. .b.. ...b .b.. .... .bb. ....";
constexpr auto ByKing = ".... .... .... ...b g... .G.. .bb. ....";
constexpr auto Plain = " ..g. .... .... .... .... .b.. .... ....";

bool IsLit(const frmVelmoran& form) {
  return std::ranges::any_of(form.imgGreenChecker, [&](const Control& image) {
    return image.Picture == form.picGreenCheckerHighlightREF.Picture ||
           image.Picture == form.picGreenKingHighlightREF.Picture;
  });
}

TEST(ComputerTurn, ShowsEachStageWithABlink) {
  const struct {
    const char* Picture;
    std::vector<int> Drag;
    std::string Course;  // every 100 ms: a letter for each board, a capital while a piece is lit
    const char* After;
  } cases[] = {
      // A king could jump on from 3, over 7; a man is crowned at the end of the last blink.
      {Chain,
       {20, 24},
       "aaaaaaaAAaaAAaabbBBbbBBbbccCCccCCccddDDddDDddee",
       "g... .... ...b .... .... .... ..b. ..G."},
      {ByKing,
       {20, 24},
       "aaaaaaaAAaaAAaabbBBbbBBbbccCCccCCcccc",
       ".... .... ...b .... g... ...G .... ...."},
      {Plain, {10, 14}, "aaaaaaaAAaaAAaabbBBbbBBbbbb", ".... ...g .... .... .b.. .... .... ...."},
  };
  for (const auto& [picture, drag, course, after] : cases) {
    Desk desk(Board(picture));
    desk.Draws({});
    desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)); };
    desk.Drag(drag);
    desk.DeliverInput();
    std::string seen;
    std::string board = Draw(desk.form.position);
    char letter = 'a';
    for (std::size_t k = 0; k < course.size(); ++k) {
      desk.In(100ms * k + 50ms, [&, k] {
        if (board != Draw(desk.form.position)) ++letter;
        board = Draw(desk.form.position);
        seen += static_cast<char>(IsLit(desk.form) ? letter - 'a' + 'A' : letter);
        EXPECT_EQ(desk.form.imgBlueChecker[1].DragMode, k + 2 < course.size() ? 0 : 1) << k;
      });
    }
    desk.RunUntilQuiet();
    EXPECT_EQ(seen, course) << picture;
    EXPECT_EQ(board, after);
    EXPECT_TRUE(desk.form.position.BlueToMove);
  }
}

TEST(ComputerTurn, DrawsForTheShuffleAndAtTheEndOfEachBlink) {
  Desk desk(Board(Plain));
  const std::int64_t before = desk.toolkit.random.DrawCount;
  desk.Drag({10, 14});
  desk.RunUntilQuiet();
  // Blue has both its steps open: one draw at the drop, one at each blink. Green has two moves.
  EXPECT_EQ(desk.toolkit.random.DrawCount - before, 1 + 2 + 2);
}

TEST(ComputerTurn, IsHeldByAMessageBox) {
  Desk desk(Board(Plain));
  const Instant start = desk.host.Now();
  Instant moved{0};
  desk.AfterEvent = [&] {
    if (moved == 0ms && GreenOn(desk.form.position, 31) == 0) moved = desk.host.Now() - start;
  };
  desk.host.BoxTime = 5s;
  desk.Drag({10, 14});
  desk.In(750ms, [&] { desk.Choose("mnuPart1"); });
  desk.RunUntilQuiet();
  // The tick due meanwhile comes at 5750, the other three at their old beat.
  EXPECT_EQ(moved, 6300ms);
}

}  // namespace
