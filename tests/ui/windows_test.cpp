#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

TEST(MainWindow, StandsReadyBeforeAnyCodeRuns) {
  const Desk desk;
  const frmVelmoran& form = desk.form;
  int number = 0;
  for (int row = 7; row >= 0; --row) {
    for (int column = 0; column < 8; ++column) {
      const Point at{975 * column + 480, 975 * row + 480};
      const bool isPlayed = (row + column) % 2 == 1;
      if (isPlayed) ++number;
      const Control* expected = !isPlayed      ? &form.lblBackround
                                : number <= 12 ? &form.imgBlueChecker[number]
                                : number >= 21 ? &form.imgGreenChecker[number - 20]
                                               : &form.lblSquare[number];
      EXPECT_EQ(ControlAt(form.window, at), expected) << row << ' ' << column;
      if (!isPlayed) continue;
      EXPECT_EQ(RectOf(form.lblSquare[number]), (Rect{975 * column, 975 * row, 975, 975}));
    }
  }
  EXPECT_EQ(form.window.Controls.size(), 57);
  EXPECT_EQ(form.window.Width, 7800);
  EXPECT_EQ(form.window.Height, 7800);
  EXPECT_TRUE(form.imgBlueChecker[12].DragMode == 1 && form.imgGreenChecker[12].DragMode == 0);
  EXPECT_TRUE(form.tmrPause.Enabled && !form.tmrBlink.Enabled);
}

void Tell(std::ostream& out, const std::vector<MenuItem>& items) {
  for (const MenuItem& item : items) {
    out << item.Name << '|' << item.Caption << '|' << item.Shortcut << (item.Click ? "!" : "")
        << '\n';
    Tell(out, item.Items);
  }
}

TEST(MainWindow, HasItsMenu) {
  const Desk desk;
  std::ostringstream menu;
  Tell(menu, desk.form.window.Menu);
  EXPECT_EQ(menu.str(), R"(mnuFile|File|
mnuGame|&New Game|Ctrl+N!
mnuSeparator1|-|
mnuExit|E&xit|Ctrl+X!
mnuHelp|Help|
mnuControls|Game &Controls|Ctrl+C!
mnuAbout|&About This Program|Ctrl+A!
mnuSeparator2|-|
mnuRules|Official &Rules of Velmoran|
mnuPart1|Part &1|!
mnuPart2|Part &2|!
mnuPart3|Part &3|!
)");
}

TEST(Messages, HaveTheirTitlesAndLengths) {
  const struct {
    const char *Name, *Title;
    std::size_t Lines, Length;
    const char* Last;
  } cases[] = {
      {"mnuControls", "Velmoran Game Controls", 14, 594, "you have won or lost."},
      {"mnuPart1", "Rules of Velmoran (Part 1)", 1, 567, "his/her own pieces."},
      {"mnuPart2", "Rules of Velmoran (Part 2)", 1, 569, "removed from the board."},
      {"mnuPart3", "Rules of Velmoran (Part 3)", 3, 709, "can win the game."},
      {"mnuAbout", "About Velmoran", 8, 0, "."},
  };
  Desk desk(StartPosition());
  for (const auto& [name, title, lines, length, last] : cases) {
    desk.Choose(name);
    desk.RunUntilQuiet();
    const MessageBox& box = desk.host.Boxes.back();
    EXPECT_EQ(box.Title, title);
    EXPECT_EQ(box.Icon, MessageIcon::Information);
    EXPECT_EQ(std::ranges::count(box.Text, '\n') + 1, lines) << title;
    EXPECT_EQ(std::ranges::count(box.Text, '\r') + 1, lines) << title;
    EXPECT_TRUE(length == 0 || box.Text.size() == length) << title << box.Text.size();
    EXPECT_TRUE(box.Text.ends_with(last)) << title;
  }
  EXPECT_EQ(desk.form.position, StartPosition());
}

TEST(Splash, GivesWayToTheBoardAndTheHelp) {
  Desk desk;
  frmVelmoran& form = desk.form;
  desk.host.BoxTime = 4s;
  desk.toolkit.Show(desk.splash.window);
  desk.At(2499ms, [&] { EXPECT_EQ(desk.host.Forms, std::vector{&desk.splash.window}); });
  desk.At(6499ms, [&] {
    EXPECT_TRUE(desk.host.IsBoxOpen);
    EXPECT_EQ(desk.host.Forms, std::vector{&form.window});
    EXPECT_TRUE(form.tmrPause.Enabled) << "held by the box";
    EXPECT_EQ(form.position, StartPosition());
  });
  desk.RunUntilQuiet();
  ASSERT_EQ(desk.host.Boxes.size(), 1);
  EXPECT_EQ(desk.host.Boxes[0].Title, "Velmoran Game Controls");
  EXPECT_EQ(desk.host.Boxes[0].At, 2500ms);
  EXPECT_FALSE(form.tmrPause.Enabled);
  EXPECT_EQ(form.position, StartPosition());
}

}  // namespace
