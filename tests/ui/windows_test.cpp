#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

std::string NameOf(const Control* control) {
  return control ? control->Name + ' ' + std::to_string(control->Index) : "nothing";
}

/// The control in front all over a cell, by its name. Rows and columns count from 0, rows from the
/// bottom.
std::string FrontOfCell(const Form& window, int row, int column) {
  const int side = window.Width / 8;
  const int left = column * side;
  const int top = (7 - row) * side;
  const std::string front = NameOf(ControlAt(window, {left, top}));
  for (const Point at : {Point{left + side - 1, top},
                         {left, top + side - 1},
                         {left + side - 1, top + side - 1},
                         {left + side / 2, top + side / 2}}) {
    if (NameOf(ControlAt(window, at)) != front) return "not one alone";
  }
  return front;
}

TEST(MainWindow, SquaresAreNumberedByRowsFromTheBottomAndPiecesCoverThem) {
  Desk desk(Board("...B g... .G.. b... .... ..b. .... g..G"));
  const Position& position = desk.form.position;
  int square = 0;
  for (int row = 0; row < 8; ++row) {
    for (int column = 0; column < 8; ++column) {
      std::string front = "lblBackround 0";
      if ((row + column) % 2 == 0) {  // the bottom left corner is a square
        front = "lblSquare " + std::to_string(++square);
        for (int piece = 1; piece <= Pieces; ++piece) {
          const std::string number = std::to_string(piece);
          if (position.BlueSquare[piece] == square) front = "imgBlueChecker " + number;
          if (position.GreenSquare[piece] == square) front = "imgGreenChecker " + number;
        }
      }
      ASSERT_EQ(FrontOfCell(desk.form.window, row, column), front)
          << "row " << row << ", column " << column;
    }
  }
}

TEST(MainWindow, BluePiecesCanBeDraggedAndGreenOnesCannot) {
  Desk desk(StartPosition());
  for (int square = 1; square <= Squares; ++square) {
    desk.Press(square);
    desk.DeliverInput();
    ASSERT_EQ(NameOf(desk.host.ShownDrag.Source),
              NameOf(square <= Pieces ? &desk.form.imgBlueChecker[square] : nullptr))
        << "pressed on square " << square;
    desk.CancelDrag();
    desk.DeliverInput();
  }
}

/// On this board blue and green piece of the same number never have the same rank.
TEST(MainWindow, DescribesColourAndRankOfThePieceOnEachSquare) {
  Desk desk(Board("...B g... .G.. b... .... ..b. .... ...G"));
  const std::string marks = Marks(desk.form.position);
  const Form& window = desk.form.window;
  std::map<char, std::string> words{{'b', "blue man on"},
                                    {'B', "blue king on"},
                                    {'g', "green man on"},
                                    {'G', "green king on"},
                                    {'.', "free"}};
  for (int square = 1; square <= Squares; ++square) {
    ASSERT_EQ(window.Describe(desk.form.lblSquare[square]),
              words[marks[std::size_t(square)]] + " square " + std::to_string(square));
  }
  EXPECT_EQ(window.Describe(desk.form.imgBlueChecker[1]), "") << "its square describes it";
  EXPECT_EQ(window.Describe(desk.form.lblBackround), "");
}

/// The commands of a menu, whose levels can be used by keys.
std::vector<const MenuItem*> CommandsIn(const std::vector<MenuItem>& items) {
  std::vector<const MenuItem*> commands;
  std::set<int> accessKeys;
  for (const MenuItem& item : items) {
    const std::size_t mark = item.Caption.find('&');
    if (mark != item.Caption.npos &&
        !accessKeys.insert(std::tolower(item.Caption[mark + 1])).second)
      ADD_FAILURE() << "two access keys alike: " << item.Caption;
    if (item.Click) commands.push_back(&item);
    std::ranges::copy(CommandsIn(item.Items), std::back_inserter(commands));
  }
  return commands;
}

/// How many lines each paragraph of a text has. Blank lines stand between paragraphs.
std::vector<int> LinesOfParagraphs(const std::string& text) {
  std::vector<int> lines{0};
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    line == "\r" ? lines.push_back(0) : void(++lines.back());
  }
  return lines;
}

/// A help command shows one box and leaves the game and its random sequence alone.
void CheckHelp(Desk& desk, const Position& before) {
  EXPECT_EQ(desk.host.Boxes.size(), 1);
  const auto& box = desk.host.Boxes.at(0);
  EXPECT_EQ(box.Icon, MessageIcon::Information);
  EXPECT_FALSE(box.Text.ends_with('\n')) << "the text ends with a line break";
  EXPECT_EQ(desk.form.position, before);
  EXPECT_EQ(desk.toolkit.random.DrawCount, 0) << "it draws from the game's sequence";
}

TEST(Menu, ReachesEachCommandOnce) {
  std::multimap<std::string, std::vector<int>> done;  // help: by title, the lines of its paragraphs
  std::set<std::string> shortcuts;
  Desk any;
  for (const MenuItem* item : CommandsIn(any.form.window.Menu)) {
    SCOPED_TRACE(item->Caption);
    EXPECT_TRUE(item->Shortcut.empty() || shortcuts.insert(item->Shortcut).second)
        << "two shortcuts alike: " << item->Shortcut;
    const Position before = Board("G... .... .... .... .... .... .... ...B");
    Desk desk(before);
    desk.toolkit.random.DrawCount = 0;
    desk.Choose(item->Name);
    try {
      desk.RunUntilQuiet();
      if (desk.form.position.NewGameRequested) {
        done.insert({Draw(desk.form.position), {}});
      } else {
        CheckHelp(desk, before);
        done.insert({desk.host.Boxes[0].Title, LinesOfParagraphs(desk.host.Boxes[0].Text)});
      }
    } catch (const ProgramEnded&) {
      done.insert({"the end", {}});
    }
  }
  EXPECT_EQ(done, (decltype(done){{"the end", {}},
                                  {Draw(StartPosition()), {}},
                                  {"Velmoran Game Controls", {3, 3, 2, 3}},
                                  {"About Velmoran", {3, 4}},
                                  {"Rules of Velmoran (Part 1)", {1}},
                                  {"Rules of Velmoran (Part 2)", {1}},
                                  {"Rules of Velmoran (Part 3)", {1, 1}}}));
}

/// With the jump over 13 in the path, the piece is let go in each place that makes no move.
TEST(MainWindow, ADragThatComesToNothingForgetsItsPath) {
  const Desk any;
  const std::pair<const char*, Point> places[] = {{"on a red cell", {0, 0}},
                                                  {"on a green piece", any.Middle(13)},
                                                  {"on a friend", any.Middle(9)},
                                                  {"on a king where it lands", any.Middle(17)},
                                                  {"outside", {-1, 50}}};
  for (const auto& [where, place] : places) {
    Desk desk(Board(".... .... .... B... g... bb.. .... ...."));
    desk.Press(10);
    desk.Move(17);
    desk.DeliverInput();
    ASSERT_EQ(desk.form.position.JumpPath[1], 17);
    desk.Pointer(InputEvent::Kind::Release, place);
    desk.DeliverInput();
    EXPECT_EQ(desk.form.position.JumpPath[1], 0) << "let go " << where;
    EXPECT_TRUE(desk.form.position.BlueToMove) << "let go " << where;
  }
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
}

TEST(Splash, ShowsTheIconOfBothWindowsTwice) {
  const Desk desk;
  const Picture* icon = desk.form.window.Icon;
  ASSERT_TRUE(icon);
  EXPECT_EQ(desk.splash.window.Icon, icon);
  EXPECT_EQ(desk.splash.imgCheckerBoard1.Picture, icon);
  EXPECT_EQ(desk.splash.imgCheckerBoard2.Picture, icon);
}

TEST(Splash, GivesWayToTheBoardAndTheHelp) {
  Desk desk;
  desk.host.BoxTime = 4s;
  desk.toolkit.Show(desk.splash.window);
  desk.At(2499ms, [&] { EXPECT_EQ(desk.host.Forms, std::vector{&desk.splash.window}); });
  desk.At(6499ms, [&] {
    EXPECT_EQ(desk.host.Forms, std::vector{&desk.form.window});
    EXPECT_TRUE(desk.host.IsBoxOpen && desk.form.tmrPause.Enabled);
  });
  desk.RunUntilQuiet();
  EXPECT_EQ(desk.host.Now(), 6500ms);
  EXPECT_FALSE(desk.form.tmrPause.Enabled);
}

}  // namespace
