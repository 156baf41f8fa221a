#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "soak/hand.h"

// Plays whole games with random hands, each watched from event to event. A game is its seed: the
// one that fails is played again and told, event by event.

namespace {

volatile std::uint64_t seedUnderWay = 0;

/// An assert of the game leaves no exception to catch: at least say where it was.
void TellSeed(int signal) {
  std::fprintf(stderr, "soak: seed %ju ends with signal %d\n", std::uintmax_t{seedUnderWay},
               signal);
  std::_Exit(1);
}

/// Chance of its own, quick to seed, so that the hand takes nothing from the game's sequence.
int Roll(std::uint64_t& state, int sides) {
  // The mixing of SplitMix64: every seed, small ones included, gives a sequence of its own.
  std::uint64_t mixed = state += 0x9e3779b97f4a7c15;
  mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
  mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
  mixed ^= mixed >> 31;
  return static_cast<int>((mixed >> 32) * static_cast<std::uint64_t>(sides) >> 32);
}

struct Totals {
  long long Moves = 0, Events = 0;
};

/// Whether the game of this seed goes well.
bool Play(std::uint64_t seed, std::FILE* log, Totals& totals) {
  seedUnderWay = seed;
  Desk desk;
  Watcher watcher(desk);
  watcher.Log = log;
  Hand hand(watcher, [state = seed](int sides) mutable { return Roll(state, sides); });
  try {
    hand.PlayGame();
  } catch (const std::exception& error) {
    std::printf("seed %ju fails at event %d: %s\n", std::uintmax_t{seed}, watcher.Events,
                error.what());
    return false;
  }
  totals.Moves += watcher.Moves;
  totals.Events += watcher.Events;
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  std::uint64_t games = 10'000;
  std::uint64_t first = 1;
  std::FILE* log = nullptr;
  for (int k = 1; k < count; ++k) {
    const bool isGames = std::strcmp(arguments[k], "--games") == 0;
    if (std::strcmp(arguments[k], "--verbose") == 0) {
      log = stdout;
    } else if ((isGames || std::strcmp(arguments[k], "--seed") == 0) && k + 1 < count) {
      (isGames ? games : first) = std::strtoull(arguments[++k], nullptr, 10);
    } else {
      std::fputs("usage: soak [--games N] [--seed S] [--verbose]\n", stderr);
      return 2;
    }
  }
  std::signal(SIGABRT, TellSeed);
  std::signal(SIGSEGV, TellSeed);
  const auto start = std::chrono::steady_clock::now();
  Totals totals;
  for (std::uint64_t seed = first; seed < first + games; ++seed) {
    if (Play(seed, log, totals)) continue;
    if (!log) Play(seed, stdout, totals);
    return 1;
  }
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  std::printf("%ju games, %lld human moves, %lld events, no fault, %.1f s\n", std::uintmax_t{games},
              totals.Moves, totals.Events, time.count());
}
