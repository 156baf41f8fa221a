#include <cstdlib>
#include <span>

#include "watched_game.h"

// The fuzzer's bytes as a hand: every few of them are one thing that a user can do. A referee
// watches the game, and a fault is a crash.

namespace {

using namespace std::chrono_literals;
using Kind = InputEvent::Kind;

struct OutOfBytes {};

class FuzzHand : public Hand {
 public:
  explicit FuzzHand(std::span<const std::uint8_t> input) : bytes(input) {}

  void Act(WatchedGame& game, std::optional<Instant> until) override;
  Instant BoxTime() override { return bytes.empty() ? 0ms : Take() * 20ms; }
  int Take();

 private:
  void DragByTheRules(WatchedGame& game, int number);
  Point TakePoint();

  std::span<const std::uint8_t> bytes;
};

int FuzzHand::Take() {
  if (bytes.empty()) throw OutOfBytes{};
  const int byte = bytes.front();
  bytes = bytes.subspan(1);
  return byte;
}

/// On the window and for 40 pixels around it.
Point FuzzHand::TakePoint() {
  const int x = Take();
  const int y = Take();
  return {x * 35 - 600, y * 35 - 600};
}

void FuzzHand::Act(WatchedGame& game, std::optional<Instant> until) {
  const int byte = Take();
  switch (byte % 16) {
    case 0:
      return game.Press(TakePoint());
    case 1:
    case 2:
      return game.Move(TakePoint());
    case 3:
      return game.Release(TakePoint());
    case 4:
      return game.Send(Kind::CancelDrag);
    case 5:
      if (!game.form.window.Visible) return;
      return game.Choose(static_cast<std::size_t>(byte / 16) % game.CommandCount());
    case 6:
      // Ends the run, so it takes a second byte to mean it.
      if (Take() == 0) game.Send(Kind::Close);
      return;
    case 7:
      if (until) game.host.Pass(std::min(*until, game.host.Now() + byte * 2ms));
      return Act(game, until);
    default:
      if (until && byte < 128) return;  // let the tick come
      if (game.form.window.Visible && game.referee.IsHumansTurn()) DragByTheRules(game, byte % 128);
  }
}

/// A whole legal drag, so that the fuzzer need not find each of its points.
void FuzzHand::DragByTheRules(WatchedGame& game, int number) {
  const std::vector<GridMove>& moves = game.referee.MovesOfHuman();
  const GridMove& move = moves[static_cast<std::size_t>(number) % moves.size()];
  const auto middle = [&](int stop) {
    const Cell cell = move.Stops[static_cast<std::size_t>(stop)];
    return Point{cell.Column * 975 + 487, (7 - cell.Row) * 975 + 487};
  };
  game.referee.ExpectMove(Crowned(After(game.referee.Board(), move), 'b'));
  game.Press(middle(0));
  for (int stop = 1; stop < move.Count; ++stop) game.Move(middle(stop));
  game.Release(middle(move.Count - 1));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHand hand({data, size});
  WatchedGame game(hand);
  try {
    game.host.Midnight = hand.Take();  // seeds the computer's chance
    game.Run();
  } catch (const OutOfBytes&) {
  } catch (const Fault& fault) {
    std::fprintf(stderr, "fault at event %d: %s\n", game.host.EventCount, fault.what());
    std::abort();
  }
  return 0;
}
