#include <gtest/gtest.h>

#include <algorithm>

#include "support/desk.h"
#include "support/rules.h"

namespace {

using namespace std::chrono_literals;

/// New Game at every moment of a turn in which green jumps twice, and after a game that blue has
/// won. A drag comes right behind it. Nothing of the old turn may go on, and green answers once.
TEST(NewGame, BreaksOffWhateverIsUnderWay) {
  const std::pair<const char*, std::vector<int>> turns[] = {
      {"g... .g.. .b.. ...b .b.. .... .bb. ....", {20, 24}},
      {".... .... .... .... .g.. .b.. .... ....", {10, 19}}};
  for (const auto& [board, drag] : turns) {
    for (Instant when = 0ms; when < 5s; when += 100ms) {
      SCOPED_TRACE(std::string(board) + ", " + std::to_string(when / 1ms) + " ms after the drop");
      Desk desk(Board(board));
      const Position afterBlue = After(StartPosition(), {9, 13});
      desk.Drag(drag);
      desk.DeliverInput();
      desk.In(when, [&] {
        desk.host.Boxes.clear();
        desk.Choose("mnuGame");
        desk.Drag({9, 13});
      });
      desk.RunUntilQuiet();
      const Position& now = desk.form.position;
      const std::vector<Move> answers = GreenHops(afterBlue);
      ASSERT_TRUE(std::ranges::any_of(
          answers, [&](const Move& answer) { return HasSameBoard(now, After(afterBlue, answer)); }))
          << "after a drag from 9 to 13 the board is " << Draw(now);
      ASSERT_TRUE(now.BlueToMove && desk.host.Boxes.empty());
    }
  }
}

/// Green begins 500 ms after the human's drop, also if New Game came in the pause before that.
TEST(NewGame, StopsThePause) {
  Desk desk;
  desk.OpenBoard();
  desk.Drag({9, 13});
  desk.In(300ms, [&] {
    desk.Choose("mnuGame");
    desk.Drag({9, 13});
  });
  desk.In(799ms, [&] { EXPECT_FALSE(desk.form.tmrBlink.Enabled) << "the old pause goes on"; });
  desk.In(801ms, [&] { EXPECT_TRUE(desk.form.tmrBlink.Enabled) << "green does not begin"; });
  desk.RunUntilQuiet();
}

/// There is no draw. Blue goes to and fro in its corner, where no green king can take it.
TEST(NewGame, AloneEndsAGameThatNobodyWins) {
  Desk desk(Board("G... .... .... .... .... .... .... ...B"));
  desk.Draws({});
  for (int turn = 0; turn < 200; ++turn) {
    desk.PlayTurn(turn % 2 == 0 ? std::vector{4, 8} : std::vector{8, 4});
    ASSERT_TRUE(desk.host.Boxes.empty() && desk.form.position.BlueToMove) << "turn " << turn;
  }
  desk.Choose("mnuGame");
  desk.DeliverInput();
  EXPECT_EQ(Draw(desk.form.position), Draw(StartPosition()));
}

TEST(NewGame, IsSeededByItsTimeOfDay) {
  Desk desk;
  desk.host.Midnight = 86399.25;
  desk.OpenBoard();
  desk.Choose("mnuGame");
  desk.RunUntilQuiet();
  Random expected;
  expected.Randomize(86399.75);  // the first pause has passed
  EXPECT_EQ(desk.toolkit.random.Rnd(), expected.Rnd());
}

}  // namespace
