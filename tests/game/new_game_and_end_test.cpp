#include <gtest/gtest.h>

#include "support/desk.h"

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
      desk.PlayTurn({20, 24});
      if (!isDragQueuedToo) {
        Position expected = StartPosition();
        expected.NewGameRequested = true;  // until the next drag
        ASSERT_EQ(position, expected) << when.count();
        EXPECT_FALSE(desk.form.tmrPause.Enabled || desk.form.tmrBlink.Enabled);
        desk.PlayTurn({9, 13});
      }
      EXPECT_EQ(position.BlueSquare[9], 13) << when.count();
      EXPECT_NE(position.GreenSquare, StartPosition().GreenSquare) << when.count();
      EXPECT_TRUE(position.BlueToMove) << when.count();
      EXPECT_EQ(desk.form.imgBlueChecker[1].DragMode, 1) << when.count();
    }
  }
}

TEST(NewGame, StartsTheSequenceOverFromTheTimeOfDay) {
  Desk desk;
  desk.host.Midnight = 86399.25;
  Random expected;
  const auto expectStart = [&](double seed) {
    expected.Randomize(seed);
    for (int k = 0; k < 3; ++k) EXPECT_EQ(desk.toolkit.random.Rnd(), expected.Rnd()) << seed;
  };
  desk.OpenBoard();
  expectStart(86399.25);
  desk.Choose("mnuGame");
  desk.RunUntilQuiet();
  expectStart(86399.75);  // the first pause has passed
}

TEST(GameEnd, IsAnnouncedAndLeftByNewGame) {
  const struct {
    const char* Picture;
    std::vector<int> Drag;
    Instant At;  // after the drop
    const char* Text;
  } cases[] = {{".... .... .... .... .g.. .b.. .... ....",
                {10, 19},
                0ms,
                "Green has been captured!  YOU WIN!!!"},
               {".... .... .... bb.b g... bb.. .b.. ....",
                {20, 24},
                500ms,
                "Green cannot move!  YOU WIN!!!"},
               {".... .... .... .g.. .... .b.. .... ....",
                {10, 14},
                2500ms,
                "Blue has been captured!  YOU LOSE!!!"},
               {".... .... ..g. ...g .... g..b b... ....",
                {12, 16},
                2500ms,
                "Blue cannot move!  YOU LOSE!!!"}};
  for (const auto& [picture, drag, at, text] : cases) {
    Desk desk(Board(picture));
    const Position& position = desk.form.position;
    desk.host.BoxTime = 3s;
    desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)); };
    const Instant start = desk.host.Now();
    desk.PlayTurn(drag);
    ASSERT_EQ(desk.host.Boxes.size(), 1) << text;
    const VirtualHost::ShownBox& box = desk.host.Boxes[0];
    EXPECT_EQ(box.Text, text);
    EXPECT_EQ(box.Title, "Game Over");
    EXPECT_EQ(box.Icon, MessageIcon::Stop);
    EXPECT_EQ(box.At - start, at) << text;
    EXPECT_EQ(position.BlueToMove, at == 2500ms) << text;
    EXPECT_TRUE(position.GameOver);
    const std::string board = Draw(position);
    for (int square = 1; square <= Squares; ++square) desk.PlayTurn({square, 17, 18, 19, 20});
    EXPECT_EQ(Draw(position), board) << text << " nothing reacts any more";
    desk.Choose("mnuGame");
    desk.PlayTurn({9, 13});
    EXPECT_EQ(position.BlueSquare[9], 13) << text;
    EXPECT_NE(position.GreenSquare, StartPosition().GreenSquare) << text;
    EXPECT_EQ(desk.host.Boxes.size(), 1) << text;
  }
}

TEST(Exit, EndsTheProgramInTheMiddleOfABlink) {
  for (const bool isMenu : {true, false}) {
    Desk desk(Board(Chain));
    desk.In(800ms, [&] {
      if (isMenu) return desk.Choose("mnuExit");
      desk.Pointer(InputEvent::Kind::Close, {});
    });
    EXPECT_THROW(desk.PlayTurn({20, 24}), ProgramEnded);
  }
}

}  // namespace
