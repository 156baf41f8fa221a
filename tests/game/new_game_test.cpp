#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

/// There is no draw. Blue goes to and fro in its corner, where no green king can take it. The time
/// of day seeds the new game.
TEST(NewGame, AloneEndsAGameThatNobodyWins) {
  Desk desk(Board("G... .... .... .... .... .... .... ...B"));
  for (int turn = 0; turn < 200; ++turn) {
    desk.Drag(turn % 2 == 0 ? std::vector{4, 8} : std::vector{8, 4});
    desk.RunUntilQuiet();
    ASSERT_TRUE(desk.host.Boxes.empty() && desk.form.position.BlueToMove) << "turn " << turn;
  }
  desk.host.Midnight = 0.25;
  desk.Choose("mnuGame");
  desk.DeliverInput();
  EXPECT_EQ(Draw(desk.form.position), Draw(StartPosition()));
  Random expected;
  expected.Randomize(desk.host.SecondsSinceMidnight());
  EXPECT_EQ(desk.toolkit.random.Rnd(), expected.Rnd());
}

}  // namespace
