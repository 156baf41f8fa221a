#include <chrono>
#include <csignal>
#include <cstdlib>

#include "soak/hand.h"

// Plays whole games with random hands, each watched from event to event. A game is its seed: the
// one that fails is played again and told, event by event.

namespace {

using Seed = unsigned long long;

volatile Seed seedUnderWay = 0;

/// An assert of the game leaves no exception to catch: at least say where it was.
void TellSeed(int signal) {
  std::fprintf(stderr, "soak: seed %llu ends with signal %d\n", seedUnderWay, signal);
  std::_Exit(1);
}

/// Chance of its own, quick to seed, so that the hand takes nothing from the game's sequence.
int Roll(Seed& state, int sides) {
  // The mixing of SplitMix64: every seed, small ones included, gives a sequence of its own.
  Seed mixed = state += 0x9e3779b97f4a7c15;
  mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
  mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
  mixed ^= mixed >> 31;
  return static_cast<int>((mixed >> 32) * static_cast<Seed>(sides) >> 32);
}

/// Whether the game of this seed goes well; adds what there was of it to the totals.
bool Play(Seed seed, std::FILE* log, long long& moves, long long& events) {
  seedUnderWay = seed;
  Desk desk;
  Watcher watcher(desk);
  watcher.Log = log;
  try {
    PlayGame(watcher, [state = seed](int sides) mutable { return Roll(state, sides); });
  } catch (const std::exception& error) {
    std::printf("seed %llu fails at event %d: %s\n", seed, watcher.Events, error.what());
    return false;
  }
  moves += watcher.Moves;
  events += watcher.Events;
  return true;
}

}  // namespace

/// How many games, and the seed of the first; a single game is told event by event.
int main(int count, char** arguments) {
  const Seed games = count > 1 ? std::strtoull(arguments[1], nullptr, 10) : 0;
  const Seed first = count > 2 ? std::strtoull(arguments[2], nullptr, 10) : 1;
  if (games == 0) {
    std::fputs("usage: soak GAMES [SEED]\n", stderr);
    return 2;
  }
  std::signal(SIGABRT, TellSeed);
  std::signal(SIGSEGV, TellSeed);
  const auto start = std::chrono::steady_clock::now();
  long long moves = 0;
  long long events = 0;
  for (Seed seed = first; seed < first + games; ++seed) {
    if (Play(seed, games == 1 ? stdout : nullptr, moves, events)) continue;
    if (games > 1) Play(seed, stdout, moves, events);
    return 1;
  }
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  std::printf("%llu games, %lld human moves, %lld events, no fault, %.1f s\n", games, moves, events,
              time.count());
}
