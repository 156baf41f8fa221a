#include <random>

#include "recorded.h"
#include "support/desk.h"

namespace {

TEST(WholeGames, ArePlayedAsRecorded) {
  std::string games;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    Desk desk;
    desk.OpenBoard();
    Random& random = desk.toolkit.random;
    random.DrawCount = 0;
    random.Script = [engine = std::mt19937(seed)]() mutable {
      return static_cast<double>(engine()) * 0x1p-32;
    };
    games += "game " + std::to_string(seed) + '\n' + desk.PlayGame(seed);
  }
  ExpectRecorded("games.txt", games);
}

TEST(WholeGames, AreSeededByTheTimeOfDay) {
  Desk desk;
  Random expected;
  desk.host.Midnight = 86399.25;
  desk.OpenBoard();
  expected.Randomize(86399.25);
  EXPECT_EQ(desk.toolkit.random.Rnd(), expected.Rnd());
  desk.Choose("mnuGame");
  desk.RunUntilQuiet();
  expected.Randomize(86399.75);  // the first pause has passed
  EXPECT_EQ(desk.toolkit.random.Rnd(), expected.Rnd());
}

}  // namespace
