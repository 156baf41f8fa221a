#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "random_hand.h"

// Plays whole games with random hands, each watched from event to event. A game is its seed: the
// one that fails is played again and told, event by event.

namespace {

struct Options {
  std::uint64_t Games = 10'000;
  std::uint64_t Seed = 1;
  bool IsVerbose = false;
};

struct Totals {
  std::uint64_t Moves = 0;
  std::uint64_t Events = 0;
};

volatile std::uint64_t seedUnderWay = 0;

/// An assert of the game leaves no exception to catch: at least say where it was.
void TellSeed(int signal) {
  std::fprintf(stderr, "soak: seed %llu ends with signal %d\n",
               static_cast<unsigned long long>(seedUnderWay), signal);
  std::_Exit(1);
}

void Play(std::uint64_t seed, std::FILE* log, Totals& totals) {
  seedUnderWay = seed;
  RandomHand hand(seed);
  WatchedGame game(hand);
  game.host.Log = log;
  game.host.Midnight = static_cast<double>(seed % 80'000) + 0.5;
  try {
    game.Run();
  } catch (const std::exception& error) {
    std::printf("seed %llu fails at event %d: %s\n", static_cast<unsigned long long>(seed),
                game.host.EventCount, error.what());
    throw;
  }
  totals.Moves += static_cast<std::uint64_t>(game.referee.HumanMoveCount());
  totals.Events += static_cast<std::uint64_t>(game.host.EventCount);
}

bool PlayAll(const Options& options) {
  const auto start = std::chrono::steady_clock::now();
  Totals totals;
  std::uint64_t seed = options.Seed;
  try {
    for (; seed < options.Seed + options.Games; ++seed) {
      Play(seed, options.IsVerbose ? stdout : nullptr, totals);
    }
  } catch (const std::exception&) {
    try {
      if (!options.IsVerbose) Play(seed, stdout, totals);
    } catch (const std::exception&) {
    }
    return false;
  }
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  const auto games = static_cast<double>(options.Games);
  std::printf("%.0f games, %.0f human moves, %.0f events, no fault, %.1f s, %.0f games/s\n", games,
              static_cast<double>(totals.Moves), static_cast<double>(totals.Events), time.count(),
              games / time.count());
  return true;
}

bool Parse(int count, char** arguments, Options& options) {
  for (int k = 1; k < count; ++k) {
    if (std::strcmp(arguments[k], "--verbose") == 0) {
      options.IsVerbose = true;
      continue;
    }
    const bool isGames = std::strcmp(arguments[k], "--games") == 0;
    if ((!isGames && std::strcmp(arguments[k], "--seed") != 0) || k + 1 == count) return false;
    (isGames ? options.Games : options.Seed) = std::strtoull(arguments[++k], nullptr, 10);
  }
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  Options options;
  if (!Parse(count, arguments, options)) {
    std::fputs("usage: soak [--games N] [--seed S] [--verbose]\n", stderr);
    return 2;
  }
  std::signal(SIGABRT, TellSeed);
  std::signal(SIGSEGV, TellSeed);
  return PlayAll(options) ? 0 : 1;
}
