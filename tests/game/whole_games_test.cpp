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

/// A new game starts the sequence over from the time of day.
TEST(WholeGames, AreSeededByTheTimeOfDay) {
  Desk desk;
  desk.host.Midnight = 86399.25;
  Random expected;
  const auto expectStart = [&](double seed) {
    expected.Randomize(seed);
    for (int k = 0; k < 3; ++k) EXPECT_EQ(desk.toolkit.random.Rnd(), expected.Rnd()) << seed;
  };
  desk.OpenBoard();
  expectStart(86399.25);
  desk.Choose("mnuGame");
  desk.RunUntilQuiet();
  expectStart(86399.75);  // the first pause has passed
}

}  // namespace
