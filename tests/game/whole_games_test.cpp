#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/player.h"

namespace {

TEST(WholeGames, StayConsistentToTheirEnd) {
  int ended = 0;
  Random hand;
  for (int seed = 1; seed <= 200; ++seed) {
    Desk desk;
    const Position& position = desk.form.position;
    desk.host.Midnight = seed;
    desk.AfterEvent = [&] { ASSERT_TRUE(IsConsistent(desk.form)) << seed; };
    desk.OpenBoard();
    for (int turn = 0; turn < 300 && !position.GameOver; ++turn) {
      const std::vector<int> drag = RandomDrag(position, hand);
      ASSERT_FALSE(drag.empty()) << seed << testing::PrintToString(position);
      PlayTurn(desk, drag);
      ASSERT_EQ(desk.host.Boxes.size(), position.GameOver ? 1 : 0) << seed;
      ASSERT_TRUE(position.GameOver || desk.form.imgBlueChecker[1].DragMode == 1) << seed;
    }
    if (!position.GameOver) continue;
    ++ended;
    EXPECT_EQ(desk.host.Boxes[0].Title, "Game Over");
  }
  EXPECT_GT(ended, 190);
}

/// Plays one turn and tells it: the drag, the board and the number of draws so far.
std::string TellTurn(Desk& desk, const std::vector<int>& drag) {
  PlayTurn(desk, drag);
  std::ostringstream told;
  for (const int square : drag) told << square << ' ';
  told << "| " << Draw(desk.form.position) << " | " << desk.toolkit.random.DrawCount;
  return told.str();
}

void OpenScripted(Desk& desk, const std::string& seed) {
  desk.OpenBoard();
  desk.toolkit.random.DrawCount = 0;
  const auto number = static_cast<std::uint32_t>(std::stoul(seed));
  desk.toolkit.random.Script = [engine = std::mt19937(number)]() mutable {
    return static_cast<double>(engine()) * 0x1p-32;
  };
}

/// VELMORAN_RECORD="1 2" writes the file anew, with games of these seeds.
TEST(WholeGames, ArePlayedAsRecorded) {
  if (const char* seeds = std::getenv("VELMORAN_RECORD")) {
    std::ofstream file(VELMORAN_GAMES);
    std::istringstream words(seeds);
    for (std::string seed; words >> seed;) {
      Desk desk;
      Random hand;
      OpenScripted(desk, seed);
      file << "game " << seed << '\n';
      while (!desk.form.position.GameOver) {
        file << TellTurn(desk, RandomDrag(desk.form.position, hand)) << '\n';
      }
    }
  }
  std::ifstream file(VELMORAN_GAMES);
  std::optional<Desk> desk;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("game ")) {
      OpenScripted(desk.emplace(), line.substr(5));
      continue;
    }
    std::istringstream words(line);
    std::vector<int> drag;
    for (int square; words >> square;) drag.push_back(square);
    ASSERT_EQ(TellTurn(*desk, drag), line);
  }
  EXPECT_TRUE(desk && desk->form.position.GameOver);
}

}  // namespace
