#include "game/turn_end.h"

#include <gtest/gtest.h>

#include "support/desk.h"
#include "support/rules.h"

namespace {

/// On 16 the man of blue is shut in by 20 and 23. Whichever of these green moves, it frees him.
TEST(TurnEnd, BlueWithoutAMoveAfterItsOwnIsToldNothing) {
  Desk desk(Board(".... .... ..g. ...g .... ...b .... ...."));
  desk.Drag({12, 16});
  desk.DeliverInput();
  EXPECT_TRUE(BlueMoves(desk.form.position).empty());
  desk.RunUntilQuiet();
  EXPECT_TRUE(desk.host.Boxes.empty());
  EXPECT_TRUE(desk.form.position.BlueToMove && !desk.form.position.GameOver);
}

/// Blue goes to and fro in its corner, where no green king can take it.
TEST(TurnEnd, ThereIsNoDraw) {
  Desk desk(Board("G... .... .... .... .... .... .... ...B"));
  desk.Draws({});
  for (int turn = 0; turn < 200; ++turn) {
    desk.PlayTurn(turn % 2 == 0 ? std::vector{4, 8} : std::vector{8, 4});
    ASSERT_TRUE(desk.host.Boxes.empty() && desk.form.position.BlueToMove) << "turn " << turn;
  }
}

/// The men on 10, 11 and 12 take one random value each. The one on 9 can only go up to the right:
/// it takes two, since the first one names the other way.
TEST(TurnEnd, AsksAllTwelvePiecesForAMove) {
  Desk desk(StartPosition());
  desk.Draws({0.1, 0.9, 0.1, 0.1, 0.1});
  desk.toolkit.random.DrawCount = 0;
  FinishTurn(desk.form);
  EXPECT_EQ(desk.toolkit.random.DrawCount, 5);
}

}  // namespace
