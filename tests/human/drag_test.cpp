#include <gtest/gtest.h>

#include <algorithm>

#include "support/desk.h"

namespace {

using Kind = InputEvent::Kind;

std::vector<int> PathOf(const Desk& desk) {
  std::vector<int> path;
  for (const Square square : desk.form.position.JumpPath) {
    if (square != 0) path.push_back(square);
  }
  return path;
}

// Rows from the top:    29   25   21   17   13   9    5    1
constexpr auto Man = "   ...g .... .... .... .... bb.. .... ....";
constexpr auto Two = "   ...g .... ..g. .... .g.. .b.. .... ....";
constexpr auto Circle = "...g .... gg.. .... gg.. .B.. .... ....";

TEST(JumpPath, KeepsTheLandingSquaresPassed) {
  const struct {
    const char* Picture;
    std::vector<int> Squares, Path;
  } cases[] = {
      {Man, {10, 13, 14}, {}},
      {Man, {10, 19, 19, 28, 19}, {19, 28}},
      {Man, {10, 19, 20, 28}, {19, 28}},
      {Man, {10, 17, 19, 28}, {17}},
      {Circle, {10, 19, 26, 17, 10}, {19, 26, 17, 10}},
      {Circle, {10, 19, 10}, {19}},
      {"...g .... .... ..g. .g.. .b.. .... ....", {10, 19, 28}, {}},
  };
  for (const auto& [picture, squares, path] : cases) {
    Desk desk(Board(picture));
    desk.Press(squares[0]);
    for (const int square : squares) desk.Move(square);
    desk.DeliverInput();
    EXPECT_EQ(PathOf(desk), path) << picture;
    EXPECT_EQ(Draw(desk.form.position), Draw(Board(picture))) << "a drag moves nothing";
  }
}

TEST(Drop, IsCarriedOutOrRefused) {
  enum Outcome { Played, Refused, CaptureRequired };
  const struct {
    const char* Picture;
    std::vector<int> Drag;
    Outcome Result;
    std::vector<Square> Taken{};
  } cases[] = {
      {"...g .... .... .... .g.. .b.. .... ..b.", {3, 7}, CaptureRequired},
      {"...g .... .... .... .g.. .b.. .... ..b.", {10, 19}, Played, {14}},
      {"...g .... .... ..b. .g.. .b.. .... ..b.", {3, 7}, Played},
      {"...g .... .... .... .b.. .g.. .... ..b.", {3, 7}, Played},
      {"...g .... .... .... .B.. .g.. .... ..b.", {3, 7}, CaptureRequired},
      {"...g .... .... .... .B.. .g.. .... ..b.", {14, 5}, Played, {10}},
      {"...g .g.. .... .g.. .b.. .... .... ....", {14, 21, 30}, Played, {18, 26}},
      {"...g ..gg .b.. .... .... .... .... ....", {22, 31, 24}, Refused},
      {"...g .... ..g. ..b. .g.. .b.. .... ....", {10, 19, 28}, Refused},
      {Two, {10, 19, 28}, Played, {14, 23}},
      {Two, {10, 19}, Played, {14}},
      {Two, {10, 19, 10}, Refused},
      {Two, {10, 14}, Refused},
      {Circle, {10, 19, 26, 17, 10}, Played, {13, 14, 21, 22}},
      {Circle, {10}, Refused},
      {Man, {10, 9}, Refused},
      {Man, {10, 5}, Refused},
      {Man, {10, 11}, Refused},
      {Man, {10, 19}, Refused},
  };
  for (const auto& [picture, drag, result, taken] : cases) {
    Desk desk(Board(picture));
    const Position& position = desk.form.position;
    Position expected = position;
    desk.Drag(drag);
    desk.DeliverInput();
    if (result == Played) {
      std::ranges::replace(expected.BlueSquare, Square(drag.front()), Square(drag.back()));
      for (const Square square : taken) std::ranges::replace(expected.GreenSquare, square, 0);
      EXPECT_EQ(PathOf(desk), std::vector<int>{});
    }
    EXPECT_EQ(position.BlueSquare, expected.BlueSquare) << picture;
    EXPECT_EQ(position.GreenSquare, expected.GreenSquare) << picture;
    EXPECT_TRUE(position.BlueKing[1] || drag.back() != 30);
    EXPECT_TRUE(IsConsistent(desk.form)) << picture;
    EXPECT_NE(position.BlueToMove, result == Played) << picture;
    EXPECT_EQ(desk.form.tmrPause.Enabled, result == Played) << picture;
    EXPECT_EQ(desk.form.imgBlueChecker[12].DragMode, result == Played ? 0 : 1) << picture;
    ASSERT_EQ(desk.host.Boxes.size(), result == CaptureRequired ? 1 : 0) << picture;
    if (result != CaptureRequired) continue;
    EXPECT_EQ(desk.host.Boxes[0].Title, "Capture Required");
    EXPECT_EQ(desk.host.Boxes[0].Icon, MessageIcon::Warning);
    EXPECT_EQ(desk.host.Boxes[0].Text,
              "You must make the available jump.\r\n\r\nThe official rules of checkers state that "
              "if a\r\njump is available, a capture MUST be made.");
  }
}

TEST(Drop, IsTheSameHoweverFastTheHand) {
  for (const int movements : {0, 1, 2, 3, 7, 260}) {
    Desk desk(Board(Two));
    const Point from = desk.Middle(10);
    const Point to = desk.Middle(28);
    desk.Press(10);
    for (int k = 1; k <= movements; ++k) {
      desk.Pointer(Kind::Move, {from.X + (to.X - from.X) * k / movements,
                                from.Y + (to.Y - from.Y) * k / movements});
    }
    desk.Release(28);
    desk.DeliverInput();
    EXPECT_EQ(Draw(desk.form.position), "...g ...b .... .... .... .... .... ....") << movements;
  }
}

TEST(Drop, RefusedLeavesNoPathToALeapOntoAPiece) {
  Desk desk(Board(Man));
  desk.Drag({10, 19});
  desk.DeliverInput();
  ASSERT_EQ(PathOf(desk), std::vector<int>{19});
  desk.Press(9);
  desk.DeliverInput();
  EXPECT_EQ(PathOf(desk), std::vector<int>{});
  EXPECT_EQ(desk.host.ShownDrag.Source, &desk.form.imgBlueChecker[1]);
}

TEST(Drop, NeverComesAfterACancelledDrag) {
  constexpr Point Outside{-300, 5300};  // from here the first control is the piece on 9
  const std::function<void(Desk&)> ways[] = {
      [&](Desk& desk) { desk.Pointer(Kind::Release, Outside); },
      [](Desk& desk) { desk.CancelDrag(); },
      [](Desk& desk) { desk.Choose("mnuAbout"); },
      [](Desk& desk) { desk.Choose("mnuGame"); },
      [](Desk& desk) { desk.Press(20); },
  };
  for (const auto& cancel : ways) {
    Desk desk(Board(Man));
    desk.Press(10);
    desk.Move(19);
    cancel(desk);
    desk.DeliverInput();
    EXPECT_EQ(desk.host.ShownDrag.Source, nullptr);
    EXPECT_EQ(PathOf(desk), std::vector<int>{});
    const std::string before = Draw(desk.form.position);
    desk.Release(14);
    desk.Pointer(Kind::Move, Outside);
    desk.Press(9);
    desk.DeliverInput();
    EXPECT_EQ(Draw(desk.form.position), before) << "the late release dropped nothing";
    EXPECT_EQ(PathOf(desk), std::vector<int>{});
    desk.Release(13);
    desk.DeliverInput();
    EXPECT_EQ(SquareOwner(desk.form.position, 13), Blue);
    EXPECT_TRUE(desk.form.tmrPause.Enabled);
  }
}

}  // namespace
