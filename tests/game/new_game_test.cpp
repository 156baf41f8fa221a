#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

// Green answers 20-24 by three jumps: five boards, each for a second.
constexpr auto Chain = "g... .g.. .b.. ...b .b.. .... .bb. ....";

void ExpectAnswer(const Desk& desk, Instant when) {
  const Position& position = desk.form.position;
  EXPECT_EQ(position.BlueSquare[9], 13) << when.count();
  EXPECT_NE(position.GreenSquare, StartPosition().GreenSquare) << when.count();
  EXPECT_TRUE(position.BlueToMove) << when.count();
  EXPECT_EQ(desk.form.imgBlueChecker[1].DragMode, 1) << when.count();
}

TEST(NewGame, ComesAtAnyMomentOfATurn) {
  for (Instant when = 0ms; when <= 5s; when += 50ms) {
    Desk desk(Board(Chain));
    desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)) << when.count(); };
    desk.Drag({20, 24});
    desk.In(when, [&] { desk.Choose("mnuGame"); });
    desk.RunUntilQuiet();
    EXPECT_TRUE(desk.form.position.NewGameRequested) << "until the next drag";
    Position expected = StartPosition();
    expected.NewGameRequested = true;
    ASSERT_EQ(desk.form.position, expected) << when.count();
    EXPECT_FALSE(desk.form.tmrPause.Enabled || desk.form.tmrBlink.Enabled);
    desk.Drag({9, 13});
    desk.RunUntilQuiet();
    ExpectAnswer(desk, when);
  }
}

TEST(NewGame, IsFollowedAtOnceByADrag) {
  for (Instant when = 0ms; when <= 5s; when += 50ms) {
    Desk desk(Board(Chain));
    desk.Drag({20, 24});
    desk.In(when, [&] {
      desk.Choose("mnuGame");
      desk.Choose("mnuGame");
      desk.Drag({9, 13});
    });
    desk.RunUntilQuiet();
    ExpectAnswer(desk, when);
  }
}

TEST(NewGame, SeedsTheGameByTheTimeOfDay) {
  const auto secondTurn = [](double midnight) {
    Desk desk;
    desk.host.Midnight = midnight;
    desk.OpenBoard();
    return desk.toolkit.random.Rnd();
  };
  EXPECT_EQ(secondTurn(1), secondTurn(1));
  EXPECT_NE(secondTurn(1), secondTurn(2));
}

TEST(NewGame, ExitEndsTheProgramInTheMiddleOfABlink) {
  for (const bool byMenu : {true, false}) {
    Desk desk(Board(Chain));
    desk.Drag({20, 24});
    desk.In(800ms, [&] {
      if (byMenu) return desk.Choose("mnuExit");
      desk.Pointer(InputEvent::Kind::Close, {});
    });
    EXPECT_THROW(desk.RunUntilQuiet(), ProgramEnded);
    EXPECT_TRUE(desk.host.Boxes.empty());
  }
}

}  // namespace
