#include <random>

#include "web/page.h"
#include "web/program.h"

// What the tests ask of their page besides playing on it.
extern "C" {

/// Hands out the random values of the recorded game from here on, and counts them anew.
TO_PAGE(replay) void Replay(unsigned seed) {
  Random& random = TheProgram().toolkit.random;
  random.DrawCount = 0;
  random.Script = [engine = std::mt19937(seed)]() mutable {
    return static_cast<double>(engine()) * 0x1p-32;
  };
}

/// How many random values have been drawn.
TO_PAGE(drawCount) double DrawCount() {
  return static_cast<double>(TheProgram().toolkit.random.DrawCount);
}
}
