#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

TEST(GameEnd, IsAnnouncedAndLeftByNewGame) {
  const struct {
    const char* Picture;
    std::vector<int> Drag;
    const char* Text;
    Instant At;  // after the drop
    bool BlueToMove;
  } cases[] = {
      {".... .... .... .... .g.. .b.. .... ....",
       {10, 19},
       "Green has been captured!  YOU WIN!!!",
       0ms,
       false},
      {".... .... .... bb.b g... bb.. .b.. ....",
       {20, 24},
       "Green cannot move!  YOU WIN!!!",
       500ms,
       false},
      {".... .... .... .g.. .... .b.. .... ....",
       {10, 14},
       "Blue has been captured!  YOU LOSE!!!",
       2500ms,
       true},
      {".... .... ..g. ...g .... g..b b... ....",
       {12, 16},
       "Blue cannot move!  YOU LOSE!!!",
       2500ms,
       true},
  };
  for (const auto& [picture, drag, text, at, blueToMove] : cases) {
    Desk desk(Board(picture));
    desk.host.BoxTime = 3s;
    desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)) << picture; };
    const Instant start = desk.host.Now();
    desk.Drag(drag);
    desk.RunUntilQuiet();
    ASSERT_EQ(desk.host.Boxes.size(), 1) << text;
    const VirtualHost::ShownBox& box = desk.host.Boxes[0];
    EXPECT_EQ(box.Text, text);
    EXPECT_EQ(box.Title, "Game Over");
    EXPECT_EQ(box.Icon, MessageIcon::Stop);
    EXPECT_EQ(box.At - start, at) << text;
    EXPECT_EQ(desk.form.position.BlueToMove, blueToMove) << text;
    EXPECT_TRUE(desk.form.position.GameOver);
    const std::string board = Draw(desk.form.position);
    for (int square = 1; square <= Squares; ++square) desk.Drag({square, 17, 18, 19, 20});
    desk.RunUntilQuiet();
    EXPECT_EQ(Draw(desk.form.position), board) << text << " nothing reacts any more";
    desk.Choose("mnuGame");
    desk.Drag({9, 13});
    desk.RunUntilQuiet();
    EXPECT_EQ(desk.form.position.BlueSquare[9], 13) << text;
    EXPECT_NE(desk.form.position.GreenSquare, StartPosition().GreenSquare) << text;
    EXPECT_EQ(desk.host.Boxes.size(), 1) << text;
  }
}

}  // namespace
