#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

TEST(NewGame, StartsTheSequenceOverFromTheTimeOfDay) {
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
