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

struct Game {
  int Second = 0;
  std::vector<std::string> Turns;
  std::string End;
};

std::vector<Game> ParseGames(std::istream& in) {
  std::vector<Game> games;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("game ")) {
      games.push_back({std::atoi(line.c_str() + 5), {}, ""});
    } else if (!games.empty() && line.find('|') != line.npos) {
      games.back().Turns.push_back(line);
    } else if (!games.empty()) {
      games.back().End = line;
    }
  }
  return games;
}

std::vector<int> DragOf(const std::string& turn) {
  std::vector<int> squares;
  std::istringstream in(turn);
  for (int square; in >> square;) squares.push_back(square);
  return squares;
}

/// Which of all cases the game shows.
std::set<std::string> CasesOf(const Game& game) {
  std::set<std::string> cases{game.End};
  std::ptrdiff_t blueBefore = Pieces;
  for (const std::string& turn : game.Turns) {
    const auto count = [&](char mark) { return std::ranges::count(turn, mark); };
    const std::ptrdiff_t blue = count('b') + count('B');
    if (count('B') > 0) cases.insert("a blue man is crowned");
    if (count('G') > 0) cases.insert("a green man is crowned");
    if (DragOf(turn).size() > 3) cases.insert("a blue piece jumps three times");
    if (blueBefore - blue > 1) cases.insert("a green piece jumps twice");
    blueBefore = blue;
  }
  return cases;
}

std::string CaseThatIsMissing(const std::set<std::string>& shown) {
  const auto missing = std::ranges::find_if(
      AllCases, [&](const std::string& name) { return !shown.contains(name); });
  return missing == AllCases.end() ? "" : *missing;
}

/// Records the first games that each add a case; once none is missing, any short one.
void Record() {
  std::ofstream out(File);
  std::set<std::string> shown;
  for (int second = 1, games = 0; games < Games && second < 10'000; ++second) {
    Desk desk;
    const std::string lines = desk.PlayGame(second);
    std::istringstream in("game 0\n" + lines);
    const Game game = ParseGames(in).front();
    if (game.Turns.size() > 25 || !AllCases.contains(game.End)) continue;
    const std::size_t before = shown.size();
    shown.merge(CasesOf(game));
    if (shown.size() == before && !CaseThatIsMissing(shown).empty()) continue;
    out << "game " << second << '\n' << lines;
    ++games;
  }
}

/// Fails at the first turn that differs.
void Replay(const Game& game) {
  Desk desk;
  desk.host.Midnight = game.Second;
  desk.OpenBoard();
  for (std::size_t turn = 0; turn < game.Turns.size(); ++turn) {
    SCOPED_TRACE("turn " + std::to_string(turn + 1));
    const std::vector<int> drag = DragOf(game.Turns[turn]);
    ASSERT_FALSE(desk.form.position.GameOver) << "the game has ended before";
    ASSERT_TRUE(std::ranges::count(BlueMoves(desk.form.position), drag))
        << "this is no legal drag: " << game.Turns[turn];
    ASSERT_EQ(desk.PlayLegalTurn(drag), game.Turns[turn]);
  }
  ASSERT_TRUE(desk.form.position.GameOver) << "the game does not end";
  EXPECT_EQ(desk.host.Boxes.back().Text, game.End);
}

TEST(WholeGames, AreReplayedAsRecorded) {
  if (std::getenv("VELMORAN_RECORD")) Record();
  std::ifstream in(File);
  const std::vector<Game> games = ParseGames(in);
  ASSERT_EQ(games.size(), Games) << File;
  std::set<std::string> shown;
  for (const Game& game : games) {
    shown.merge(CasesOf(game));
    SCOPED_TRACE("game " + std::to_string(game.Second));
    Replay(game);
    if (HasFailure()) return;
  }
  EXPECT_EQ(CaseThatIsMissing(shown), "") << "no game shows this any more";
}

}  // namespace
