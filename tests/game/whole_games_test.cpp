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
constexpr std::ptrdiff_t Games = 6;

/// Each of these must occur in some game.
constexpr const char* Cases[] = {"Blue has been captured",
                                 "Green has been captured",
                                 "Blue cannot move",
                                 "Green cannot move",
                                 "[.bg]B",                    // a blue king
                                 "[.bg]G",                    // a green king
                                 "\\n\\d+ \\d+ \\d+ \\d+ "};  // three jumps of blue

/// How many of the cases occur.
std::ptrdiff_t CasesIn(const std::string& games) {
  return std::ranges::count_if(
      Cases, [&](const char* shown) { return std::regex_search(games, std::regex(shown)); });
}

std::string Play(int second) {
  return "game " + std::to_string(second) + '\n' + Desk().PlayGame(second);
}

/// Tries one second after the other. Keeps a game that ends and shows a case more, or any that ends
/// once all cases occur.
void Record() {
  std::string kept;
  std::ptrdiff_t cases = 0, games = 0;
  for (int second = 0; games < Games && second < 10'000; ++second) {
    const std::string game = Play(second);
    const std::ptrdiff_t now = CasesIn(kept + game);
    if (game.ends_with("no end\n") || (now == cases && cases < std::ssize(Cases))) continue;
    kept += game;
    cases = now;
    ++games;
  }
  std::ofstream(File) << kept;
}

/// Shows the first turn that differs.
TEST(WholeGames, AreReplayedAsRecorded) {
  if (std::getenv("VELMORAN_RECORD")) Record();
  std::ifstream recorded(File);
  std::istringstream played;
  std::string all, game;
  std::ptrdiff_t games = 0, turn = 0;
  for (std::string expected, seen; std::getline(recorded, expected); ++turn) {
    all += expected + '\n';
    if (expected.starts_with("game ")) {
      ASSERT_FALSE(std::getline(played, seen)) << game << " is cut short";
      game = expected;
      ++games;
      turn = 0;
      played = std::istringstream(Play(std::stoi(expected.substr(5))));
    }
    std::getline(played, seen);
    ASSERT_EQ(seen, expected) << game << ", turn " << turn
                              << "\nIf play was meant to change, record the games again. "
                                 "CONTRIBUTING.md says how.";
  }
  EXPECT_FALSE(std::getline(played, game)) << "the last game is cut short";
  EXPECT_EQ(games, Games) << File;
  EXPECT_EQ(CasesIn(all), std::ssize(Cases)) << "a way to end, a king or a chain is in no game";
}

}  // namespace
