// How long green takes to choose a move, and how many games per second the virtual host plays.

#include <benchmark/benchmark.h>

#include "computer/ranking.h"
#include "support/board.h"
#include "support/desk.h"

namespace {

struct Case {
  int Candidates;
  const char* Picture;
};

/// No position of twelve pieces has 48 moves, so the longest list repeats its first records.
constexpr Case Cases[] = {
    {4, "..../Gb../b.../.G../BB../G.../G..b/bb.b"},
    {8, ".GG./..../b.../..../..bB/G.B./..../bGb."},
    {10, "..../gggg/.g../..../.b../..b./bbbb/...."},
    {16, "GG.b/...B/...G/..../..G./G.b./..GG/..GG"},
    {32, "G.../..GG/G.../..G./..../.bGG/GG../...."},
    {48, "...b/.GGG/..../...G/G.../..GG/GG../..GG"},
};

std::string WithoutSlashes(std::string picture) {
  std::erase(picture, '/');
  return picture;
}

void ListShuffleAndSort(benchmark::State& state, const Case& testCase) {
  const Position position = Board(WithoutSlashes(testCase.Picture));
  const ErrorReport reportError = [&state] { state.SkipWithError("a threat test went wrong"); };
  Random random;
  for (auto _ : state) {
    MoveList listed = ListGreenMoves(position);
    for (int copied = 0; listed.Count < testCase.Candidates; ++copied) {
      MoveListAdd(listed, MoveRecord(listed.Items[static_cast<std::size_t>(copied)]));
    }
    if (listed.Count != testCase.Candidates) state.SkipWithError("another number of candidates");
    MoveList moves = ShuffleMoveList(random, listed);
    SortMoveList(position, moves, reportError);
    benchmark::DoNotOptimize(moves.Items.front());
  }
}

void PlayWholeGame(benchmark::State& state) {
  int second = 0;
  for (auto _ : state) {
    Desk desk;
    benchmark::DoNotOptimize(desk.PlayGame(++second));
  }
  state.counters["games"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

BENCHMARK(PlayWholeGame)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  for (const Case& testCase : Cases) {
    const std::string name = "ListShuffleAndSort/" + std::to_string(testCase.Candidates);
    benchmark::RegisterBenchmark(name.c_str(), [&testCase](benchmark::State& state) {
      ListShuffleAndSort(state, testCase);
    });
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
