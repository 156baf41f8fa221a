#include <random>

#include "recorded.h"
#include "support/desk.h"
#include "support/rules.h"

namespace {

/// The turns of a game with a random sequence of its own: the drag, the board and the number of
/// draws so far.
std::string TellGame(unsigned seed) {
  Desk desk;
  desk.OpenBoard();
  const Position& position = desk.form.position;
  Random& random = desk.toolkit.random;
  random.DrawCount = 0;
  random.Script = [engine = std::mt19937(seed)]() mutable {
    return static_cast<double>(engine()) * 0x1p-32;
  };
  Random hand;
  hand.Randomize(seed);
  std::ostringstream told;
  told << "game " << seed << '\n';
  while (!position.GameOver) {
    const std::vector<Move> moves = BlueMoves(position);
    const Move& drag = moves[static_cast<std::size_t>(hand.Draw(static_cast<int>(moves.size())))];
    desk.PlayTurn(drag);
    for (const int square : drag) told << square << ' ';
    told << "| " << Draw(position) << " | " << random.DrawCount << '\n';
  }
  told << desk.host.Boxes[0].Text << '\n';
  return told.str();
}

TEST(WholeGames, ArePlayedAsRecorded) {
  std::string games;
  for (unsigned seed = 1; seed <= 20; ++seed) games += TellGame(seed);
  ExpectRecorded("games.txt", games);
}

}  // namespace
