#include "toolkit/random.h"

#include <bit>
#include <cmath>

int Int(double value) { return static_cast<int>(std::floor(value)); }

double Random::Rnd() {
  ++DrawCount;
  if (Script) return Script();
  // 53 bits fill the fraction of a double exactly, so nothing can round up to 1.
  return static_cast<double>(generator() >> 11) * 0x1p-53;
}

void Random::Randomize(double seed) { generator.seed(std::bit_cast<std::uint64_t>(seed)); }
