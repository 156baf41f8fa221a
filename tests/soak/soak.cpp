#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "soak/watcher.h"

// Plays whole games with a random hand and checks them after each event. A game depends only on its
// seed: one that fails is played again, and its last events are printed.

namespace {

using namespace std::chrono_literals;
using Kind = InputEvent::Kind;
using Seed = unsigned long long;

constexpr int MostRounds = 80;  // kings can chase each other for ever

/// Plays one game until the program ends. The hand mostly makes legal moves, and sometimes does
/// anything else that a user can do.
class Hand {
 public:
  Hand(Watcher& watchedGame, Seed seed) : watcher(watchedGame), state(seed) {}

  void PlayGame() {
    desk.host.Midnight = Roll(256);  // it seeds the computer's random values
    desk.toolkit.Show(Roll(10) == 0 ? desk.splash.window : desk.form.window);
    for (int round = 0; round < MostRounds; ++round) {
      if (round == 1 && Roll(3) != 0) Deal();
      PlayRound();
    }
    Leave();
  }

 private:
  /// Does something, waits until the desk is quiet, and sometimes disturbs it in between.
  void PlayRound() {
    desk.host.BoxTime = Any(std::vector<Instant>{0ms, 1ms, 150ms, 200ms, 500ms, 3s, 1h});
    for (int more = Roll(12); more > 9; --more) {
      const Instant exactly = 100ms * Roll(50);  // a tick may come at the same instant
      const Instant delay = exactly + Roll(2) * 1ms * Roll(100);
      desk.host.At(desk.host.Now() + delay, [this] { Disturb(); });
    }
    if (desk.form.position.GameOver) {
      Roll(3) == 0 ? DragAnyhow() : Roll(4) == 0 ? Choose("mnuGame") : Leave();
    } else if (desk.form.window.Visible) {
      PlayTurn(Any(BlueMoves(desk.form.position)));
    }
    desk.RunUntilQuiet();
    watcher.CheckRest();
    const Control* front = ControlAt(desk.form.window, pointer);
    Demand(desk.form.position.JumpPath[1] == 0 || desk.host.ShownDrag.Source ||
               (front && front->Name == "lblSquare"),
           "a drag that comes to nothing leaves its path");
  }

  void PlayTurn(const Move& move) {
    const int what = Roll(100);
    if (what < 1) return Choose("mnuGame");
    if (what < 2) return OpenHelp();
    if (what < 6) return DragCutOff(move);
    what < 14 ? DragAnyhow() : DragByTheRules(move);
  }

  /// Replaces the position by one with kings: most games end before there are many.
  void Deal() {
    std::mt19937 random(static_cast<unsigned>(Roll(65536)));
    const Position position = RandomBoard(random, 10 + Roll(70));
    const bool hasGreen = position.GreenSquare[1] != 0;
    if (hasGreen && !BlueMoves(position).empty()) watcher.Deal(position);
  }

  void DragByTheRules(const Move& move) {
    const Position& position = desk.form.position;
    const Position expected = Crowned(After(position, move));
    Follow(move);
    Send(Kind::Release, PointOn(move.back()));
    desk.DeliverInput();
    Demand(HasSameBoard(position, expected), "a legal drag is refused, or makes another move");
    Demand(position.GameOver || desk.form.tmrPause.Enabled, "green's turn does not begin");
  }

  /// A legal drag that ends without a drop. Its release comes afterwards.
  void DragCutOff(const Move& move) {
    Follow(move);
    const int what = Roll(4);
    if (what == 0) Send(Kind::Release, {Roll(2) == 0 ? -1 : 8 * CellSide, Roll(8 * CellSide)});
    if (what == 1) Send(Kind::CancelDrag);
    if (what == 2) OpenHelp();
    if (what == 3) Choose("mnuGame");
    desk.DeliverInput();
    Demand(!desk.host.ShownDrag.Source, "the drag is not cancelled");
    const Position before = desk.form.position;
    Send(Kind::Release, PointOn(move.back()));
    desk.DeliverInput();
    Demand(HasSameBoard(desk.form.position, before),
           "a release after the end of a drag drops a piece");
  }

  /// Drags from a piece by hops of one or two squares, or from anywhere to anywhere.
  void DragAnyhow() {
    const int square = desk.form.position.BlueSquare[1 + Roll(Pieces)];
    Point at = square != 0 && Roll(4) != 0 ? PointOn(square) : PointAnywhere();
    Send(Kind::Press, at);
    for (int hops = Roll(5); hops > 0; --hops) {
      const int away = CellSide * (1 + Roll(2));
      const Point near{at.X + (Roll(2) == 0 ? away : -away), at.Y + (Roll(2) == 0 ? away : -away)};
      Send(Kind::Move, at = Roll(5) == 0 ? PointAnywhere() : near);
    }
    if (Roll(8) != 0) Send(Kind::Release, square != 0 && Roll(6) == 0 ? PointOn(square) : at);
  }

  /// Anything a user may do while the computer moves, or while the splash is shown.
  void Disturb() {
    const int what = Roll(100);
    if (what < 2) return Send(Kind::Close);
    if (what < 50 || !desk.form.window.Visible) return DragAnyhow();
    if (what < 70) return OpenHelp();
    for (int times = 1 + Roll(2); times > 0; --times) Choose("mnuGame");
    // Queued together, the drag must find the interrupted turn gone.
    if (Roll(2) == 0) desk.Drag({9, 13});
  }

  void Leave() {
    Roll(2) == 0 ? Choose("mnuExit") : Send(Kind::Close);
    desk.DeliverInput();
    throw Fault("the program goes on after its end");
  }

  /// Presses on the piece and moves to each stop. Sometimes leaves the last one to the release.
  void Follow(const Move& move) {
    Send(Kind::Press, PointOn(move.front()));
    const std::size_t stops = move.size() - (Roll(3) == 0 ? 1 : 0);
    for (std::size_t k = 1; k < stops; ++k) Send(Kind::Move, PointOn(move[k]));
  }

  void Send(Kind what, Point at = {}) {
    constexpr std::array Names{"press", "move", "release", "cancel the drag", "menu", "close"};
    watcher.Log("  " + std::string(Names[std::size_t(what)]) + " at " + std::to_string(at.X) + ',' +
                std::to_string(at.Y));
    if (!desk.host.IsBoxOpen) pointer = at;  // an open box drops all input
    Form* window = desk.form.window.Visible ? &desk.form.window : &desk.splash.window;
    desk.host.Put({.What = what, .Window = window, .At = at});
  }

  void Choose(const char* command) {
    watcher.Log(std::string("  ") + command);
    desk.Choose(command);
  }

  void OpenHelp() {
    Choose(Any(std::vector{"mnuControls", "mnuAbout", "mnuPart1", "mnuPart2", "mnuPart3"}));
  }

  Point PointOn(int square) {
    const Control& label = desk.form.lblSquare[square];
    return {label.Left + Roll(label.Width), label.Top + Roll(label.Height)};
  }

  /// A point on the window, or up to a cell outside it.
  Point PointAnywhere() { return {Roll(10 * CellSide) - CellSide, Roll(10 * CellSide) - CellSide}; }

  template <typename T>
  T Any(const std::vector<T>& choices) {
    return choices[static_cast<std::size_t>(Roll(static_cast<int>(choices.size())))];
  }

  /// A whole number from 0 to `sides` - 1, by SplitMix64: it is quick to seed, and the game's own
  /// random sequence stays untouched.
  int Roll(int sides) {
    Seed mixed = state += 0x9e3779b97f4a7c15;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
    mixed ^= mixed >> 31;
    return static_cast<int>((mixed >> 32) * static_cast<Seed>(sides) >> 32);
  }

  Watcher& watcher;
  Desk& desk = watcher.desk;
  const int CellSide = desk.form.lblSquare[1].Width;
  Seed state;
  Point pointer;
};

volatile Seed seedUnderWay = 0;

/// A failed assert of the game throws no exception. Print at least the seed.
void PrintSeed(int signal) {
  std::fprintf(stderr, "soak: seed %llu ends with signal %d\n", seedUnderWay, signal);
  std::_Exit(1);
}

/// Plays the game of this seed and returns the number of the human's moves. If the game fails,
/// prints the last lines of its log and ends the program.
int Play(Seed seed, bool isLoud) {
  seedUnderWay = seed;
  Desk desk;
  Watcher watcher(desk, isLoud);
  try {
    Hand(watcher, seed).PlayGame();
  } catch (const ProgramEnded&) {
    return watcher.Moves;
  } catch (const std::exception& error) {
    watcher.Log("seed " + std::to_string(seed) + " fails: " + error.what());
  }
  watcher.PrintLog();
  std::printf("The whole game is printed by: soak 1 %llu\n", seed);
  std::exit(1);
}

}  // namespace

/// Takes the number of games and the seed of the first. A single game is printed event by event.
int main(int count, char** arguments) {
  const Seed games = count > 1 ? std::strtoull(arguments[1], nullptr, 10) : 0;
  const Seed first = count > 2 ? std::strtoull(arguments[2], nullptr, 10) : 1;
  if (games == 0) {
    std::fputs("usage: soak GAMES [SEED]\n", stderr);
    return 2;
  }
  std::signal(SIGABRT, PrintSeed);
  std::signal(SIGSEGV, PrintSeed);
  long long moves = 0;
  for (Seed seed = first; seed < first + games; ++seed) moves += Play(seed, games == 1);
  std::printf("%llu games, %lld human moves, no fault\n", games, moves);
}
