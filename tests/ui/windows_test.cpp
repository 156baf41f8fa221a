#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string_view>

#include "support/desk.h"
#include "toolkit/paragraphs.h"

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

TEST(MainWindow, EverySecondCellIsASquareNumberedByRowsFromTheBottom) {
  Desk desk(Board(".... .... .... .... .... .... .... ...."));
  int square = 0;
  for (int row = 0; row < 8; ++row) {
    for (int column = 0; column < 8; ++column) {
      const bool isSquare = (row + column) % 2 == 0;  // the bottom left corner is one
      if (isSquare) ++square;
      ASSERT_EQ(FrontOfCell(desk.form.window, row, column),
                isSquare ? "lblSquare " + std::to_string(square) : "lblBackround 0")
          << "row " << row << ", column " << column;
    }
  }
}

TEST(MainWindow, PiecesCoverTheirSquares) {
  Desk desk(Board("...B g... .G.. b... .... ..b. .... g..G"));
  const auto expectOn = [&](int square, const Control& image) {
    const int row = (square - 1) / 4;
    const int column = (square - 1) % 4 * 2 + row % 2;
    EXPECT_EQ(FrontOfCell(desk.form.window, row, column), NameOf(&image)) << square;
  };
  for (int piece = 1; piece <= 3; ++piece) {
    expectOn(desk.form.position.BlueSquare[piece], desk.form.imgBlueChecker[piece]);
    expectOn(desk.form.position.GreenSquare[piece], desk.form.imgGreenChecker[piece]);
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
TEST(MainWindow, TellsColourAndRankOfThePieceOnEachSquare) {
  Desk desk(Board("...B g... .G.. b... .... ..b. .... ...G"));
  const std::string marks = Marks(desk.form.position);
  const Form& window = desk.form.window;
  for (int square = 1; square <= Squares; ++square) {
    const char mark = marks[static_cast<std::size_t>(square)];
    const std::string piece = mark == 'b'   ? "blue man on"
                              : mark == 'B' ? "blue king on"
                              : mark == 'g' ? "green man on"
                              : mark == 'G' ? "green king on"
                                            : "free";
    ASSERT_EQ(window.Describe(desk.form.lblSquare[square]),
              piece + " square " + std::to_string(square));
  }
  EXPECT_EQ(window.Describe(desk.form.imgBlueChecker[1]), "") << "it is told by its square";
  EXPECT_EQ(window.Describe(desk.form.lblBackround), "");
}

/// Calls `visit` for each command of a menu, and checks that its levels can be used by keys.
void WalkMenu(const std::vector<MenuItem>& items,
              const std::function<void(const MenuItem&)>& visit) {
  std::set<int> accessKeys;
  for (const MenuItem& item : items) {
    if (const std::size_t mark = item.Caption.find('&'); mark != item.Caption.npos) {
      const int key = std::tolower(item.Caption.at(mark + 1));
      EXPECT_TRUE(accessKeys.insert(key).second) << "two access keys alike: " << item.Caption;
    }
    if (item.Caption == "-") continue;
    EXPECT_EQ(item.Items.empty(), bool(item.Click)) << item.Caption;
    item.Items.empty() ? visit(item) : WalkMenu(item.Items, visit);
  }
}

TEST(Menu, ReachesEveryCommandOnce) {
  std::multiset<std::string> commands;
  std::set<std::string> shortcuts;
  WalkMenu(Desk().form.window.Menu, [&](const MenuItem& item) {
    const bool isNew = item.Shortcut.empty() || shortcuts.insert(item.Shortcut).second;
    EXPECT_TRUE(isNew) << "two shortcuts alike: " << item.Shortcut;
    Desk desk(Board("G... .... .... .... .... .... .... ...B"));
    desk.Choose(item.Name);
    try {
      desk.RunUntilQuiet();
      const bool isBox = !desk.host.Boxes.empty();
      commands.insert(isBox ? desk.host.Boxes[0].Title : Draw(desk.form.position));
    } catch (const ProgramEnded&) {
      commands.insert("the end");
    }
  });
  EXPECT_EQ(commands, (std::multiset<std::string>{
                          "the end", Draw(StartPosition()), "Velmoran Game Controls",
                          "About Velmoran", "Rules of Velmoran (Part 1)",
                          "Rules of Velmoran (Part 2)", "Rules of Velmoran (Part 3)"}));
}

/// How many lines each paragraph of a text has. Blank lines stand between paragraphs.
std::vector<int> LinesOfParagraphs(const std::string& text) {
  std::vector<int> lines{0};
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    if (line == "\r") {
      lines.push_back(0);
    } else {
      ++lines.back();
    }
  }
  return lines;
}

TEST(Help, ShowsATextAndLeavesTheGameAlone) {
  const std::vector<std::pair<const char*, std::vector<int>>> texts{{"mnuControls", {3, 3, 2, 3}},
                                                                    {"mnuAbout", {3, 4}},
                                                                    {"mnuPart1", {1}},
                                                                    {"mnuPart2", {1}},
                                                                    {"mnuPart3", {1, 1}}};
  for (const auto& [command, paragraphs] : texts) {
    SCOPED_TRACE(command);
    Desk desk;
    desk.OpenBoard();
    const Position before = desk.form.position;
    const std::int64_t draws = desk.toolkit.random.DrawCount;
    desk.Choose(command);
    desk.RunUntilQuiet();
    ASSERT_EQ(desk.host.Boxes.size(), 1);
    const auto& box = desk.host.Boxes[0];
    EXPECT_EQ(box.Icon, MessageIcon::Information);
    EXPECT_EQ(LinesOfParagraphs(box.Text), paragraphs);
    EXPECT_FALSE(box.Text.ends_with('\n')) << "a line break at the end";
    const std::vector<int> joined(paragraphs.size(), 1);
    EXPECT_EQ(LinesOfParagraphs(JoinBrokenLines(box.Text)), joined) << "for a narrow screen";
    EXPECT_EQ(desk.form.position, before);
    EXPECT_EQ(desk.toolkit.random.DrawCount, draws) << "drawn from the game's sequence";
  }
}

/// With the jump over 14 in the path, a drag ends without a move in each way that there is.
TEST(MainWindow, ADragThatComesToNothingForgetsItsPath) {
  const Point redCell{0, 0};
  const std::vector<std::pair<const char*, std::function<void(Desk&)>>> ends{
      {"a drop on a red cell",
       [=](Desk& desk) { desk.Pointer(InputEvent::Kind::Release, redCell); }},
      {"a drop on a green piece", [](Desk& desk) { desk.Release(14); }},
      {"a drop on a friend", [](Desk& desk) { desk.Release(9); }},
      {"a drop outside",
       [](Desk& desk) {
         desk.Pointer(InputEvent::Kind::Release, {-1, 50});
       }},
      {"Escape", [](Desk& desk) { desk.CancelDrag(); }},
      {"a menu command", [](Desk& desk) { desk.Choose("mnuAbout"); }},
      {"a refused drop, once the pointer moves on",
       [](Desk& desk) {
         desk.Release(20);
         desk.Move(14);
       }},
      {"a refused drop, once the pointer is on a red cell",
       [=](Desk& desk) {
         desk.Release(29);
         desk.Pointer(InputEvent::Kind::Move, redCell);
       }},
  };
  for (const auto& [end, act] : ends) {
    Desk desk(Board(".... .... .... .... .g.. bb.. .... ...."));
    desk.Press(10);
    desk.Move(17);
    desk.DeliverInput();
    ASSERT_EQ(desk.form.position.JumpPath[1], 17);
    act(desk);
    desk.DeliverInput();
    EXPECT_EQ(desk.form.position.JumpPath[1], 0) << end;
    EXPECT_TRUE(desk.form.position.BlueToMove) << end;
  }
}

/// By the brightness that the eye sees of a colour.
int BrightnessOf(const Color& color) { return 2 * color.Red + 7 * color.Green + color.Blue; }

TEST(Pictures, TellSideAndRankWithoutColour) {
  Desk desk;
  const auto shapesOf = [](const Control& box) { return box.Picture->Shapes; };
  const auto discOf = [&](const Control& box) { return BrightnessOf(shapesOf(box)[1].Fill); };
  EXPECT_GT(discOf(desk.form.picGreenCheckerREF), 3 * discOf(desk.form.picBlueCheckerREF));
  EXPECT_GT(discOf(desk.form.picGreenKingREF), 3 * discOf(desk.form.picBlueKingREF));
  const auto hasStar = [&](const Control& box) {
    return shapesOf(box).back().Outline == PictureShape::Kind::Polygon;
  };
  EXPECT_TRUE(hasStar(desk.form.picBlueKingREF) && hasStar(desk.form.picGreenKingREF));
  EXPECT_FALSE(hasStar(desk.form.picBlueCheckerREF) || hasStar(desk.form.picGreenCheckerREF));
}

TEST(Pictures, FillTheirCellAndStayInIt) {
  Desk desk;
  for (const Control* box :
       {&desk.form.picBlueCheckerREF, &desk.form.picBlueKingREF, &desk.form.picGreenCheckerREF,
        &desk.form.picGreenKingREF, &desk.form.picGreenCheckerHighlightREF,
        &desk.form.picGreenKingHighlightREF}) {
    SCOPED_TRACE(box->Name);
    const int side = desk.form.lblSquare[1].Width / TwipsPerPixel;
    EXPECT_TRUE(box->Picture->Width == side && box->Picture->Height == side);
    const auto& ground = box->Picture->Shapes[0].Corners;
    EXPECT_EQ(ground, (decltype(ground){{0, 0}, {side, side}}));
    for (const PictureShape& shape : box->Picture->Shapes) {
      for (const auto& [x, y] : shape.Corners) {
        EXPECT_TRUE(0 <= x && x <= side && 0 <= y && y <= side) << x << ',' << y;
      }
    }
  }
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

TEST(Splash, ShowsItsLinesClearOfEachOther) {
  Desk desk;
  const frmSplash& splash = desk.splash;
  int bottom = 0;
  for (const Control* line : {&splash.lblTitle, &splash.lblAuthors1, &splash.lblAuthors2}) {
    EXPECT_GE(line->Top, bottom) << line->Name;
    bottom = line->Top + line->Height;
  }
  EXPECT_LE(bottom, splash.window.Height);
  const Control& left = splash.imgCheckerBoard1;
  EXPECT_LE(splash.lblTitle.CaptionWidth, splash.imgCheckerBoard2.Left - left.Left - left.Width);
  EXPECT_EQ(splash.window.Icon, desk.form.window.Icon) << "both windows have one icon";
}

}  // namespace
