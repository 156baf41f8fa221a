#include <gtest/gtest.h>

#include "support/player.h"

namespace {

using namespace std::chrono_literals;

// Green answers 20-24 by three jumps: five boards, each for a second.
constexpr auto Chain = "g... .g.. .b.. ...b .b.. .... .bb. ....";

TEST(NewGame, ComesAtAnyMomentOfATurn) {
  for (const bool isDragQueuedToo : {false, true}) {
    for (Instant when = 0ms; when <= 5s; when += 50ms) {
      Desk desk(Board(Chain));
      const Position& position = desk.form.position;
      desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)) << when.count(); };
      desk.In(when, [&] {
        desk.Choose("mnuGame");
        desk.Choose("mnuGame");
        if (isDragQueuedToo) desk.Drag({9, 13});
      });
      PlayTurn(desk, {20, 24});
      if (!isDragQueuedToo) {
        Position expected = StartPosition();
        expected.NewGameRequested = true;  // until the next drag
        ASSERT_EQ(position, expected) << when.count();
        EXPECT_FALSE(desk.form.tmrPause.Enabled || desk.form.tmrBlink.Enabled);
        PlayTurn(desk, {9, 13});
      }
      EXPECT_EQ(position.BlueSquare[9], 13) << when.count();
      EXPECT_NE(position.GreenSquare, StartPosition().GreenSquare) << when.count();
      EXPECT_TRUE(position.BlueToMove) << when.count();
      EXPECT_EQ(desk.form.imgBlueChecker[1].DragMode, 1) << when.count();
    }
  }
}

TEST(NewGame, IsSeededByTheTimeOfDay) {
  const auto firstDraw = [](double midnight) {
    Desk desk;
    desk.host.Midnight = midnight;
    desk.OpenBoard();
    return desk.toolkit.random.Rnd();
  };
  EXPECT_EQ(firstDraw(1), firstDraw(1));
  EXPECT_NE(firstDraw(1), firstDraw(2));
}

TEST(Exit, EndsTheProgramInTheMiddleOfABlink) {
  for (const bool isMenu : {true, false}) {
    Desk desk(Board(Chain));
    desk.In(800ms, [&] {
      if (isMenu) return desk.Choose("mnuExit");
      desk.Pointer(InputEvent::Kind::Close, {});
    });
    EXPECT_THROW(PlayTurn(desk, {20, 24}), ProgramEnded);
  }
}

}  // namespace
