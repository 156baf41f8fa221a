#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>

#include "support/desk.h"
#include "support/rules.h"

// Six whole games in tests/data/games.txt, recorded, which every host replays. They alone hold the
// sequence of draws. A game is named after the second of the day that seeds it; a line is a turn:
// the drag, the board after green's answer, and how many random values have been drawn up to then.

namespace {

constexpr const char* File = VELMORAN_DATA "/games.txt";
constexpr int Games = 6;

/// What the games must show between them.
const std::set<std::string> AllCases{"Blue has been captured!  YOU LOSE!!!",
                                     "Green has been captured!  YOU WIN!!!",
                                     "Blue cannot move!  YOU LOSE!!!",
                                     "Green cannot move!  YOU WIN!!!",
                                     "a blue man is crowned",
                                     "a green man is crowned",
                                     "a blue piece jumps three times",
                                     "a green piece jumps twice"};

/// Its turns, and then its end.
using Game = std::vector<std::string>;

std::map<int, Game> ParseGames(std::istream& in) {
  std::map<int, Game> games;
  int second = 0;
  for (std::string line; std::getline(in, line);) {
    if (std::sscanf(line.c_str(), "game %d", &second) == 0) games[second].push_back(line);
  }
  return games;
}

std::vector<int> DragOf(const std::string& turn) {
  std::istringstream in(turn);
  return {std::istream_iterator<int>(in), {}};
}

/// Which of all cases the game shows.
std::set<std::string> CasesOf(const Game& game) {
  std::set<std::string> cases{game.back()};
  std::ptrdiff_t blueBefore = Pieces;
  for (auto turn = game.begin(); turn + 1 != game.end(); ++turn) {
    const auto count = [&](char mark) { return std::ranges::count(*turn, mark); };
    const std::ptrdiff_t blue = count('b') + count('B');
    if (count('B') > 0) cases.insert("a blue man is crowned");
    if (count('G') > 0) cases.insert("a green man is crowned");
    if (DragOf(*turn).size() > 3) cases.insert("a blue piece jumps three times");
    if (blueBefore - blue > 1) cases.insert("a green piece jumps twice");
    blueBefore = blue;
  }
  return cases;
}

bool AreAllShown(const std::set<std::string>& cases) {
  return std::ranges::includes(cases, AllCases);
}

/// Records the first short games that each show another case; once none is missing, any.
void Record() {
  std::ofstream out(File);
  std::set<std::string> shown;
  for (int second = 1, games = 0; games < Games && second < 10'000; ++second) {
    const std::string lines = Desk().PlayGame(second);
    std::istringstream in(lines);
    const Game game = ParseGames(in)[0];
    if (game.size() > 26 || !AllCases.contains(game.back())) continue;
    const std::size_t before = shown.size();
    shown.merge(CasesOf(game));
    if (shown.size() == before && !AreAllShown(shown)) continue;
    out << "game " << second << '\n' << lines;
    ++games;
  }
}

/// Fails at the first turn that differs.
void Replay(int second, const Game& game) {
  Desk desk;
  desk.host.Midnight = second;
  desk.OpenBoard();
  for (std::size_t turn = 0; turn + 1 < game.size(); ++turn) {
    SCOPED_TRACE("game " + std::to_string(second) + ", turn " + std::to_string(turn + 1));
    const std::vector<int> drag = DragOf(game[turn]);
    ASSERT_FALSE(desk.form.position.GameOver) << "the game has ended before";
    ASSERT_TRUE(std::ranges::count(BlueMoves(desk.form.position), drag))
        << "this is no legal drag: " << game[turn];
    ASSERT_EQ(desk.PlayLegalTurn(drag), game[turn]);
  }
  ASSERT_TRUE(desk.form.position.GameOver) << "game " << second << " does not end";
  EXPECT_EQ(desk.host.Boxes.back().Text, game.back()) << "game " << second;
}

TEST(WholeGames, AreReplayedAsRecorded) {
  if (std::getenv("VELMORAN_RECORD")) Record();
  std::ifstream in(File);
  const std::map<int, Game> games = ParseGames(in);
  ASSERT_EQ(games.size(), Games) << File;
  std::set<std::string> shown;
  for (const auto& [second, game] : games) {
    shown.merge(CasesOf(game));
    Replay(second, game);
    if (HasFailure()) return;
  }
  EXPECT_TRUE(AreAllShown(shown)) << "only this is shown: " << testing::PrintToString(shown);
}

}  // namespace
