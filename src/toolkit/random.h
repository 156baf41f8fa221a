#pragma once

#include <cstdint>
#include <functional>
#include <random>

/// The largest whole number not above `value`.
int Int(double value);

/// The random sequence of a program. There is only one.
class Random {
 public:
  /// The next value: at least 0, below 1, in steps of 2^-53.
  double Rnd();

  /// Draws a value and turns it into a whole number from 0 to `count` - 1. `count` is above 0.
  int Draw(int count) { return Int(Rnd() * count); }

  /// Starts the sequence over: equal seeds give equal values from here on.
  void Randomize(double seed);

  /// If this is set, its values replace the generator's, whatever the seed.
  std::function<double()> Script;

  /// How many values have been drawn so far.
  std::int64_t DrawCount = 0;

 private:
  std::mt19937_64 generator;
};
