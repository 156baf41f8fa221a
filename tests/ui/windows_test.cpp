#include <gtest/gtest.h>

#include <algorithm>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

TEST(MainWindow, StandsReadyBeforeAnyCodeRuns) {
  const Desk desk;
  const frmVelmoran& form = desk.form;
  int number = 0;
  for (int cell = 0; cell < 64; ++cell) {  // from the bottom left
    const int row = 7 - cell / 8;
    const int column = cell % 8;
    const bool isPlayed = (row + column) % 2 == 1;
    if (isPlayed) ++number;
    const Control* expected = !isPlayed      ? &form.lblBackround
                              : number <= 12 ? &form.imgBlueChecker[number]
                              : number >= 21 ? &form.imgGreenChecker[number - 20]
                                             : &form.lblSquare[number];
    const Rect place{975 * column, 975 * row, 975, 975};
    EXPECT_EQ(ControlAt(form.window, {place.Left, place.Top}), expected) << cell;
    EXPECT_EQ(ControlAt(form.window, {place.Left + 974, place.Top + 974}), expected) << cell;
    EXPECT_TRUE(!isPlayed || RectOf(form.lblSquare[number]) == place) << number;
  }
  EXPECT_EQ(form.window.Controls.size(), 57);
  EXPECT_TRUE(form.imgBlueChecker[12].DragMode == 1 && form.imgGreenChecker[12].DragMode == 0);
  EXPECT_TRUE(form.tmrPause.Enabled && !form.tmrBlink.Enabled);
}

std::string Tell(const std::vector<MenuItem>& items) {
  std::string told;
  for (const MenuItem& item : items) {
    told += item.Name + '|' + item.Caption + '|' + item.Shortcut + (item.Click ? "! " : " ");
    if (!item.Items.empty()) told += "( " + Tell(item.Items) + ") ";
  }
  return told;
}

TEST(MainWindow, HasItsMenu) {
  EXPECT_EQ(Tell(Desk().form.window.Menu),
            "mnuFile|File| ( mnuGame|&New Game|Ctrl+N! mnuSeparator1|-| mnuExit|E&xit|Ctrl+X! ) "
            "mnuHelp|Help| ( mnuControls|Game &Controls|Ctrl+C! "
            "mnuAbout|&About This Program|Ctrl+A! mnuSeparator2|-| "
            "mnuRules|Official &Rules of Velmoran| ( "
            "mnuPart1|Part &1|! mnuPart2|Part &2|! mnuPart3|Part &3|! ) ) ");
}

TEST(Messages, HaveTheirTitlesAndLengths) {
  const struct {
    const char *Name, *Title;
    int Lines;
    std::size_t Length;  // 0: free
  } cases[] = {
      {"mnuControls", "Velmoran Game Controls", 14, 594},
      {"mnuPart1", "Rules of Velmoran (Part 1)", 1, 567},
      {"mnuPart2", "Rules of Velmoran (Part 2)", 1, 569},
      {"mnuPart3", "Rules of Velmoran (Part 3)", 3, 709},
      {"mnuAbout", "About Velmoran", 8, 0},
  };
  Desk desk(StartPosition());
  for (const auto& [name, title, lines, length] : cases) {
    desk.Choose(name);
    desk.RunUntilQuiet();
    const MessageBox& box = desk.host.Boxes.back();
    EXPECT_EQ(box.Title, title);
    EXPECT_EQ(box.Icon, MessageIcon::Information);
    EXPECT_EQ(std::ranges::count(box.Text, '\n') + 1, lines) << title;
    EXPECT_EQ(std::ranges::count(box.Text, '\r') + 1, lines) << title;
    EXPECT_TRUE(length == 0 || box.Text.size() == length) << title;
    EXPECT_EQ(box.Text.back(), '.') << title;
  }
  EXPECT_EQ(desk.form.position, StartPosition());
}

TEST(Splash, GivesWayToTheBoardAndTheHelp) {
  Desk desk;
  desk.host.BoxTime = 4s;
  desk.toolkit.Show(desk.splash.window);
  desk.At(2499ms, [&] { EXPECT_EQ(desk.host.Forms, std::vector{&desk.splash.window}); });
  desk.At(6499ms, [&] {
    EXPECT_EQ(desk.host.Forms, std::vector{&desk.form.window});
    EXPECT_TRUE(desk.form.tmrPause.Enabled) << "held by the box";
    EXPECT_EQ(desk.form.position, StartPosition());
  });
  desk.RunUntilQuiet();
  ASSERT_EQ(desk.host.Boxes.size(), 1);
  EXPECT_EQ(desk.host.Boxes[0].Title, "Velmoran Game Controls");
  EXPECT_EQ(desk.host.Boxes[0].At, 2500ms);
  EXPECT_EQ(desk.host.Now(), 6500ms);
  EXPECT_FALSE(desk.form.tmrPause.Enabled);
}

}  // namespace
