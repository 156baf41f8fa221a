#include <gtest/gtest.h>

#include <map>
#include <set>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

std::string NameOf(const Control* control) {
  return control->Name + ' ' + std::to_string(control->Index);
}

/// Squares are numbered by rows from the bottom left, and each piece covers its square. On this
/// board blue and green piece of the same number never have the same rank.
TEST(MainWindow, ShowsAndDescribesEachSquare) {
  Desk desk(Board("...B g... .G.. b... .... ..b. .... ...G"));
  const frmVelmoran& form = desk.form;
  const Form& window = form.window;
  const std::string marks = Marks(form.position);
  std::map<char, std::string> words{{'b', "blue man on"},
                                    {'B', "blue king on"},
                                    {'g', "green man on"},
                                    {'G', "green king on"},
                                    {'.', "free"}};
  const int side = window.Width / 8;
  int square = 0;
  for (int cell = 0; cell < 64; ++cell) {
    const int row = cell / 8, column = cell % 8;
    const Control* front = &form.lblBackround;
    std::string description;
    if ((row + column) % 2 == 0) {  // the bottom left corner is a square
      front = &form.lblSquare[++square];
      description = words[marks[std::size_t(square)]] + " square " + std::to_string(square);
      ASSERT_EQ(window.Describe(*front), description);
      for (int piece = 1; piece <= Pieces; ++piece) {
        if (form.position.BlueSquare[piece] == square) front = &form.imgBlueChecker[piece];
        if (form.position.GreenSquare[piece] == square) front = &form.imgGreenChecker[piece];
      }
    }
    for (const int x : {column * side, column * side + side - 1}) {
      for (const int y : {(7 - row) * side, (7 - row) * side + side - 1}) {
        ASSERT_EQ(NameOf(ControlAt(window, {x, y})), NameOf(front)) << "at " << x << ',' << y;
      }
    }
  }
  EXPECT_EQ(window.Describe(form.imgBlueChecker[1]), "") << "its square describes it";
}

/// Lists the commands of a menu. Each of its levels must have different access keys.
void ListCommands(const std::vector<MenuItem>& items, std::vector<const MenuItem*>& commands) {
  std::set<int> accessKeys;
  for (const MenuItem& item : items) {
    const std::size_t mark = item.Caption.find('&');
    EXPECT_TRUE(mark == item.Caption.npos ||
                accessKeys.insert(std::tolower(item.Caption[mark + 1])).second)
        << "two access keys alike: " << item.Caption;
    if (item.Click) commands.push_back(&item);
    ListCommands(item.Items, commands);
  }
}

TEST(Menu, ReachesEachCommandOnce) {
  std::multiset<std::string> reached;  // of a help command the title of its box
  std::set<std::string> shortcuts;
  std::vector<const MenuItem*> commands;
  Desk any;
  ListCommands(any.form.window.Menu, commands);
  for (const MenuItem* item : commands) {
    EXPECT_TRUE(item->Shortcut.empty() || shortcuts.insert(item->Shortcut).second)
        << "two shortcuts alike: " << item->Shortcut;
    const Position before = Board("G... .... .... .... .... .... .... ...B");
    Desk desk(before);
    desk.toolkit.random.DrawCount = 0;
    desk.Choose(item->Name);
    try {
      desk.RunUntilQuiet();
      if (desk.form.position == before) {
        EXPECT_EQ(desk.toolkit.random.DrawCount, 0) << "help draws from the game's sequence";
      } else {
        reached.insert(Draw(desk.form.position));
      }
      for (const MessageBox& box : desk.host.Boxes) reached.insert(box.Title);
    } catch (const ProgramEnded&) {
      reached.insert("the end");
    }
  }
  EXPECT_EQ(reached, (std::multiset<std::string>{
                         "the end", Draw(StartPosition()), "Velmoran Game Controls",
                         "About Velmoran", "Rules of Velmoran (Part 1)",
                         "Rules of Velmoran (Part 2)", "Rules of Velmoran (Part 3)"}));
}

TEST(Pictures, ShowSideAndRankWithoutColour) {
  Desk desk;
  const auto brightness = [](const Control& box) {  // of the disc, as the eye sees it
    const Color& color = box.Picture->Shapes[1].Fill;
    return 2 * color.Red + 7 * color.Green + color.Blue;
  };
  EXPECT_GT(brightness(desk.form.picGreenCheckerREF), 3 * brightness(desk.form.picBlueCheckerREF));
  EXPECT_GT(brightness(desk.form.picGreenKingREF), 3 * brightness(desk.form.picBlueKingREF));
  const auto hasStar = [](const Control& box) {
    return box.Picture->Shapes.back().Outline == PictureShape::Kind::Polygon;
  };
  EXPECT_TRUE(hasStar(desk.form.picBlueKingREF) && hasStar(desk.form.picGreenKingREF));
  EXPECT_FALSE(hasStar(desk.form.picBlueCheckerREF) || hasStar(desk.form.picGreenCheckerREF));
  EXPECT_NE(desk.form.picGreenKingHighlightREF.Picture, desk.form.picGreenKingREF.Picture);
}

TEST(Splash, ShowsTheIconAndGivesWayToTheBoardAndTheHelp) {
  Desk desk;
  const Picture* icon = desk.form.window.Icon;
  EXPECT_TRUE(icon && desk.splash.window.Icon == icon);
  EXPECT_TRUE(desk.splash.imgCheckerBoard1.Picture == icon &&
              desk.splash.imgCheckerBoard2.Picture == icon);
  desk.host.BoxTime = 4s;
  desk.toolkit.Show(desk.splash.window);
  desk.host.At(2499ms, [&] { EXPECT_EQ(desk.host.Forms, std::vector{&desk.splash.window}); });
  desk.host.At(6499ms, [&] {
    EXPECT_EQ(desk.host.Forms, std::vector{&desk.form.window});
    EXPECT_TRUE(desk.host.IsBoxOpen && desk.form.tmrPause.Enabled);
  });
  desk.RunUntilQuiet();
  EXPECT_EQ(desk.host.Now(), 6500ms);
  EXPECT_FALSE(desk.form.tmrPause.Enabled);
}

}  // namespace
