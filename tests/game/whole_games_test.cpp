#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

#include "support/desk.h"

// Every host replays the six recorded games of tests/data/games.txt. No other test checks the whole
// sequence of random draws. A game has the number of the second of the day that seeds it. A line is
// a turn: the drag, the board after green's answer, and the number of random values drawn so far.

namespace {

constexpr const char* File = VELMORAN_DATA "/games.txt";
constexpr int Seconds[] = {3, 12, 23, 35, 95, 96};

/// Each of these must occur in some game. If one does not, record games of other seconds.
constexpr const char* Cases[] = {"Blue has been captured",
                                 "Green has been captured",
                                 "Blue cannot move",
                                 "Green cannot move",
                                 "[.bg]B",                    // a blue king
                                 "[.bg]G",                    // a green king
                                 "\\n\\d+ \\d+ \\d+ \\d+ "};  // three jumps of blue

/// Shows the first turn that differs.
TEST(WholeGames, AreReplayedAsRecorded) {
  std::string played;
  for (const int second : Seconds) {
    played += "game " + std::to_string(second) + '\n' + Desk().PlayGame(second);
  }
  if (std::getenv("VELMORAN_RECORD")) std::ofstream(File) << played;
  std::ifstream recorded(File);
  std::istringstream in(played);
  std::string game;
  int turn = 0;
  for (std::string seen, expected; std::getline(in, seen); ++turn) {
    std::getline(recorded, expected);
    if (seen.starts_with("game ")) {
      game = seen;
      turn = 0;
    }
    ASSERT_EQ(seen, expected) << game << ", turn " << turn
                              << "\nIf play was meant to change, record the games again. "
                                 "CONTRIBUTING.md says how.";
  }
  EXPECT_EQ(recorded.get(), EOF) << File << " has more games";
  for (const char* shown : Cases) {
    EXPECT_TRUE(std::regex_search(played, std::regex(shown))) << "occurs in no game: " << shown;
  }
}

}  // namespace
