#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <deque>

#include "soak/hand.h"

// Plays whole games with random hands, each watched from event to event. A game is its seed: the
// one that fails is played again, and its last events are printed.

namespace {

using Seed = unsigned long long;

volatile Seed seedUnderWay = 0;

/// An assert of the game leaves no exception to catch: at least say where it was.
void TellSeed(int signal) {
  std::fprintf(stderr, "soak: seed %llu ends with signal %d\n", seedUnderWay, signal);
  std::_Exit(1);
}

/// Whether the game of this seed goes well; adds what there was of it to the totals.
bool Play(Seed seed, const decltype(Watcher::Log)& log, long long& moves, long long& events) {
  seedUnderWay = seed;
  Desk desk;
  Watcher watcher(desk);
  watcher.Log = log;
  try {
    PlayGame(watcher, seed);
  } catch (const std::exception& error) {
    if (log) std::printf("seed %llu fails at event %d: %s\n", seed, watcher.Events, error.what());
    return false;
  }
  moves += watcher.Moves;
  events += watcher.Events;
  return true;
}

/// Plays a game that fails once more, and prints what came last.
void PrintFailure(Seed seed) {
  std::deque<std::string> lines;
  const auto keep = [&](const std::string& line) {
    lines.push_back(line);
    if (lines.size() > 12) lines.pop_front();
  };
  long long ignored = 0;
  Play(seed, keep, ignored, ignored);
  for (const std::string& line : lines) std::puts(line.c_str());
  std::printf("The whole game is printed by: soak 1 %llu\n", seed);
}

}  // namespace

/// How many games, and the seed of the first; a single game is printed event by event.
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
  decltype(Watcher::Log) print;
  for (Seed seed = first; seed < first + games; ++seed) {
    if (games == 1) print = [](const std::string& line) { std::puts(line.c_str()); };
    if (Play(seed, print, moves, events)) continue;
    if (games > 1) PrintFailure(seed);
    return 1;
  }
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  std::printf("%llu games, %lld human moves, %lld events, no fault, %.1f s\n", games, moves, events,
              time.count());
}
