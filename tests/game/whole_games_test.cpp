#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/player.h"

namespace {

TEST(WholeGames, StayConsistentToTheirEnd) {
  int ended = 0;
  for (int seed = 1; seed <= 200; ++seed) {
    Desk desk;
    desk.host.Midnight = seed;
    desk.OpenBoard();
    desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)) << seed; };
    Random hand;
    hand.Randomize(seed);
    const Position& position = desk.form.position;
    for (int turn = 0; turn < 300 && !position.GameOver; ++turn) {
      const std::vector<int> drag = RandomDrag(position, hand);
      ASSERT_FALSE(drag.empty()) << seed << testing::PrintToString(position);
      desk.Drag(drag);
      desk.RunUntilQuiet();
      const bool isOver = position.GameOver;
      ASSERT_EQ(desk.host.Boxes.size(), isOver ? 1 : 0) << seed << desk.host.Boxes[0].Text;
      ASSERT_TRUE(isOver || (position.BlueToMove && desk.form.imgBlueChecker[1].DragMode == 1));
    }
    if (!position.GameOver) continue;
    ++ended;
    EXPECT_EQ(desk.host.Boxes[0].Title, "Game Over");
  }
  EXPECT_GT(ended, 190);
}

/// Plays one turn and tells it: the drag, the board and the number of draws so far.
std::string TellTurn(Desk& desk, const std::string& squares) {
  std::istringstream words(squares);
  std::vector<int> drag;
  for (std::string word; std::getline(words, word, '-');) drag.push_back(std::stoi(word));
  desk.Drag(drag);
  desk.RunUntilQuiet();
  return squares + " | " + Draw(desk.form.position) + " | " +
         std::to_string(desk.toolkit.random.DrawCount);
}

/// A desk with a sequence of random values of its own.
void Script(Desk& desk, unsigned seed) {
  desk.OpenBoard();
  desk.toolkit.random.DrawCount = 0;
  desk.toolkit.random.Script = [engine = std::mt19937(seed)]() mutable {
    return static_cast<double>(engine()) * 0x1p-32;
  };
}

/// The games of this file were written by this program; VELMORAN_RECORD=1 writes them anew.
TEST(WholeGames, ArePlayedAsRecorded) {
  if (std::getenv("VELMORAN_RECORD")) {
    std::ofstream file(VELMORAN_GAMES);
    for (const unsigned seed : {1u, 2u}) {
      Desk desk;
      Script(desk, seed);
      Random hand;
      hand.Randomize(seed);
      file << "game " << seed << '\n';
      while (!desk.form.position.GameOver) {
        std::string squares;
        for (const int square : RandomDrag(desk.form.position, hand)) {
          squares += (squares.empty() ? "" : "-") + std::to_string(square);
        }
        file << TellTurn(desk, squares) << '\n';
      }
    }
  }
  std::ifstream file(VELMORAN_GAMES);
  std::optional<Desk> desk;
  int turns = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("game ")) {
      Script(desk.emplace(), static_cast<unsigned>(std::stoi(line.substr(5))));
    } else {
      ASSERT_EQ(TellTurn(*desk, line.substr(0, line.find(' '))), line) << "turn " << ++turns;
    }
  }
  EXPECT_TRUE(desk && desk->form.position.GameOver);
}

}  // namespace
