#pragma once

#include "grid.h"

// The tactical questions of the computer a second time, by rows and columns and word by word: from
// each piece that could do harm, where the game looks from the square that would suffer it.

/// What there is to say for and against a step or jump of a green piece.
struct Judgement {
  int DepthAtTo = 0;
  int Score = 0;
  bool Attacks = false;
  bool IsSafeCrowning = false;
  bool TrapsAtFrom = false;
  bool TrapsAtTo = false;

  bool operator==(const Judgement&) const = default;
};

/// Judges the move of the green piece on `from` to `to`, on the board before the move.
Judgement Judge(const Grid& grid, Cell from, Cell to);
