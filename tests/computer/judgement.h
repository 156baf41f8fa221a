#pragma once

#include <gtest/gtest.h>

#include <array>

#include "computer/ranking.h"

/// What green judges a move by, in the words of tests/data/rules.txt.
constexpr std::array Merits{"stands",  "arrives", "exposes", "defends", "scores",
                            "attacks", "crowns",  "holds",   "traps"};
using Judgement = std::array<int, Merits.size()>;

inline void ReportError() { ADD_FAILURE() << "the game reports an error of its own"; }

/// How the game judges a move; a value for each of the merits.
inline Judgement Judge(const Position& position, const MoveRecord& move) {
  const auto& [piece, from, direction, kind, to] = move;
  const MoveMerits merits = JudgeMove(position, move, ReportError);
  const int stands = BlueCaptureDepth(position, from, piece);
  const int exposes = ExposureDepth(position, from, to, piece);
  const int defends = DefenceDepth(position, to, piece, ReportError);
  return {stands,
          merits.DepthAtTo,
          exposes,
          defends,
          merits.Score,
          merits.Attacks,
          merits.IsSafeCrowning,
          merits.TrapsAtFrom,
          merits.TrapsAtTo};
}
