#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <regex>

#include "support/desk.h"
#include "support/rules.h"

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

void Record() {
  std::ofstream out(File);
  for (const int second : Seconds) out << "game " << second << '\n' << Desk().PlayGame(second);
}

void ReplayTurn(Desk& desk, const std::string& turn) {
  std::istringstream in(turn);
  const std::vector<int> drag{std::istream_iterator<int>(in), {}};
  ASSERT_FALSE(desk.form.position.GameOver) << "the game has ended before";
  ASSERT_TRUE(std::ranges::count(BlueMoves(desk.form.position), drag))
      << "not a legal drag: " << turn;
  ASSERT_EQ(desk.PlayLegalTurn(drag), turn);
}

/// Stops at the first turn that differs.
TEST(WholeGames, AreReplayedAsRecorded) {
  if (std::getenv("VELMORAN_RECORD")) Record();
  std::ifstream in(File);
  std::string all, game;
  std::size_t games = 0, ends = 0, turn = 0;
  auto desk = std::make_unique<Desk>();
  for (std::string line; std::getline(in, line) && !HasFailure();) {
    all += line + '\n';
    if (line.starts_with("game ")) {
      ++games;
      turn = 0;
      game = line;
      desk = std::make_unique<Desk>();
      desk->host.Midnight = std::stoi(line.substr(5));
      desk->OpenBoard();
    } else if (line.find('|') != line.npos) {
      SCOPED_TRACE(game + ", turn " + std::to_string(++turn));
      ReplayTurn(*desk, line);
    } else {
      ++ends;
      ASSERT_TRUE(desk->form.position.GameOver) << game << " goes on";
      EXPECT_EQ(desk->host.Boxes.back().Text, line) << game;
    }
  }
  if (HasFailure()) return;
  ASSERT_TRUE(games == std::size(Seconds) && ends == games)
      << games << " games and " << ends << " ends are in " << File;
  for (const char* shown : Cases) {
    EXPECT_TRUE(std::regex_search(all, std::regex(shown))) << "occurs in no game: " << shown;
  }
}

}  // namespace
