#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

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

/// What is written as 10-19-28x14x23: the squares of a drag and those behind each x.
struct Note {
  std::vector<int> Drag, Marked;
  char Last = ' ';  // of the note
};

std::vector<Note> Read(const std::string& text) {
  std::vector<Note> notes;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    Note& note = notes.emplace_back();
    note.Last = word.back();
    std::istringstream in(word);
    char before = '-';
    for (int square; in >> square; in >> before) {
      (before == 'x' ? note.Marked : note.Drag).push_back(square);
    }
  }
  return notes;
}

TEST(Drag, IsCarriedOutOrRefused) {
  const struct {
    const char *Picture, *Notes;
  } cases[] = {
      // Rows from the top:
      // 29   25   21   17   13   9    5    1
      // x: taken, ?: refused, !: refused because a capture is required
      {"...g .... .... .... .... bb.. .... ....", "10-14 10-9? 10-5? 10-11? 10-19? 10-17-14"},
      {"...g .... ..g. .... .g.. .b.. .... ....",
       "10-19x14 10-28x14x23 10-14-19-23-28x14x23 10-19-28-19x14"},
      {"...g .... ..g. .... .g.. .b.. .... ....",
       "10-14? 10-19-10? 10-12-28? 10-17-19x14 10-17-19-28?"},
      {"...g .... ..g. .... .g.. .b.. .... ....", "10-19-20-28x14x23"},
      {"...g .... ..g. .... .g.. .B.. .... ....", "10-19-28-19x14 10-5! 10-3?"},
      {"...g .... .g.. .... .g.. .... .g.. .b..", "2-11-18-27x6x14x22 2-11-18-27-18?"},
      {"...g ..gg .b.. .... .... .... .... ....", "22-31x27 22-31-24?"},
      {"...g ..gg .B.. .... .... .... .... ....", "22-31-24x27x28"},
      {"...g .g.. .... .g.. .b.. .... .... ....", "14-21-30x18x26"},
      {"...g .... gg.. .... gg.. .B.. .... ....", "10-19-26-17-10x14x22x21x13 10?"},
      {"...g .... gg.. .... gg.. .B.. .g.. ....", "10-19-26-17-10-3x14x22x21x13x6"},
      {"...g .... ..g. ..b. .g.. .b.. .... ....", "10-19-28?"},
      {"...g .... .... .... .B.. .b.. .... ....", "10-19-14?"},
      {"...g .... .... .... .g.. .b.. .... ..b.", "3-7! 10-19x14"},
      {"...g .... .... ..b. .g.. .b.. .... ..b.", "3-7"},
      {"...g .... .... .... .b.. .g.. .... ..b.", "3-7 14-5?"},
      {"...g .... .... .... .B.. .g.. .... ..b.", "3-7! 14-5x10"},
  };
  for (const auto& [picture, notes] : cases) {
    for (const auto& [drag, taken, last] : Read(notes)) {
      Desk desk(Board(picture));
      const Position& position = desk.form.position;
      Position expected = position;
      desk.Drag(drag);
      desk.DeliverInput();
      const bool isPlayed = last != '?' && last != '!';
      if (isPlayed) {
        std::ranges::replace(expected.BlueSquare, Square(drag.front()), Square(drag.back()));
        for (const int square : taken) {
          std::ranges::replace(expected.GreenSquare, Square(square), Square{0});
        }
        EXPECT_EQ(PathOf(desk), std::vector<int>{});
      }
      const auto show = testing::PrintToString(position) + " from " + picture;
      EXPECT_EQ(position.BlueSquare, expected.BlueSquare) << show;
      EXPECT_EQ(position.GreenSquare, expected.GreenSquare) << show;
      EXPECT_TRUE(position.BlueKing[1] || drag.back() != 30) << show;
      EXPECT_TRUE(IsConsistent(desk.form)) << show;
      EXPECT_NE(position.BlueToMove, isPlayed) << show;
      EXPECT_EQ(desk.form.tmrPause.Enabled, isPlayed) << show;
      EXPECT_EQ(desk.form.imgBlueChecker[12].DragMode, isPlayed ? 0 : 1) << show;
      ASSERT_EQ(desk.host.Boxes.size(), last == '!' ? 1 : 0) << show;
      if (last != '!') continue;
      const MessageBox& box = desk.host.Boxes[0];
      EXPECT_EQ(box.Title, "Capture Required");
      EXPECT_EQ(box.Icon, MessageIcon::Warning);
      EXPECT_EQ(box.Text,
                "You must make the available jump.\r\n\r\nThe official rules of checkers state "
                "that if a\r\njump is available, a capture MUST be made.");
    }
  }
}

TEST(Drag, LeavesNothingBehindWithoutADrop) {
  constexpr Point Outside{-300, 5300};  // from here the first control is the piece on 9
  const std::function<void(Desk&)> ways[] = {
      [](Desk& desk) { desk.Release(19); },  // refused; the pointer then leaps onto the piece
      [&](Desk& desk) { desk.Pointer(Kind::Release, Outside); },
      [](Desk& desk) { desk.CancelDrag(), desk.Release(14); },
      [](Desk& desk) { desk.Choose("mnuAbout"), desk.Release(14); },
      [](Desk& desk) { desk.Choose("mnuGame"), desk.Release(14); },
      [](Desk& desk) { desk.Press(20), desk.Release(14); },
      [](Desk& desk) { desk.toolkit.MsgBox("", MessageIcon::Stop, ""), desk.Release(14); }};
  for (const auto& end : ways) {
    Desk desk(Board("...g .... .... .... .... bb.. .... ...."));
    desk.Press(10);
    desk.Move(19);
    desk.DeliverInput();
    ASSERT_EQ(PathOf(desk), std::vector<int>{19});
    end(desk);
    desk.DeliverInput();
    EXPECT_TRUE(desk.form.position.BlueToMove) << "the late release dropped nothing";
    desk.Press(9);
    desk.DeliverInput();
    EXPECT_EQ(PathOf(desk), std::vector<int>{});
    EXPECT_EQ(desk.host.ShownDrag.Source->Name, "imgBlueChecker");
    desk.Release(13);
    desk.DeliverInput();
    EXPECT_EQ(SquareOwner(desk.form.position, 13), Blue);
    EXPECT_TRUE(desk.form.tmrPause.Enabled);
  }
}

}  // namespace
