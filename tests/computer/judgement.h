#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "computer/ranking.h"

/// How a move is judged, by the words of tests/data/rules.txt.
using Judgement = std::map<std::string, int>;

inline void ReportError() { ADD_FAILURE() << "the game reports an error of its own"; }

inline Judgement Judge(const Position& position, const MoveRecord& move) {
  const auto& [piece, from, direction, kind, to] = move;
  const MoveMerits merits = JudgeMove(position, move, ReportError);
  return {{"stands", BlueCaptureDepth(position, from, piece)},
          {"arrives", merits.DepthAtTo},
          {"exposes", ExposureDepth(position, from, to, piece)},
          {"defends", DefenceDepth(position, to, piece, ReportError)},
          {"scores", merits.Score},
          {"attacks", merits.Attacks},
          {"crowns", merits.IsSafeCrowning},
          {"holds", merits.TrapsAtFrom},
          {"traps", merits.TrapsAtTo}};
}
