#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

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
