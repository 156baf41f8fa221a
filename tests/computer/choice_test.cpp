#include <algorithm>

#include "computer/ranking.h"
#include "recorded.h"
#include "support/board.h"

namespace {

void ReportError() { ADD_FAILURE() << "no error to report"; }

std::string Name(const MoveRecord& move) {
  return std::to_string(move.FromSquare) + (move.Kind == MoveKindJump ? 'x' : '-') +
         std::to_string(move.ToSquare);
}

/// Depth on arrival, score, and a letter for each thing that is so.
std::string Tell(const MoveMerits& merits) {
  return ':' + std::to_string(merits.DepthAtTo) + ',' + std::to_string(merits.Score) +
         (merits.Attacks ? "a" : "") + (merits.IsSafeCrowning ? "c" : "") +
         (merits.TrapsAtFrom ? "f" : "") + (merits.TrapsAtTo ? "t" : "");
}

TEST(Choice, IsAsRecorded) {
  ExpectAnswers("choices.txt", [](const std::string& picture) {
    const Position position = Board(picture);
    MoveList moves = ListGreenMoves(position);
    EXPECT_EQ(std::ssize(moves.Items), std::max<int>(moves.Count, 1));
    moves.Items.resize(static_cast<std::size_t>(moves.Count));
    std::string told;
    for (const MoveRecord& move : moves.Items) {
      told += Name(move) + Tell(JudgeMove(position, move, ReportError)) + ' ';
    }
    // The order is no strict one: it depends on where the moves stood before.
    for (int round = 0; round < 2; ++round) {
      SortMoveList(position, moves, ReportError);
      told += '>';
      for (const MoveRecord& move : moves.Items) told += ' ' + Name(move);
      std::ranges::reverse(moves.Items);
    }
    for (; moves.Count > 0; MoveListRemoveAt(moves, 0)) {
      EXPECT_EQ(std::ssize(moves.Items), moves.Count) << "an emptied list alone keeps a slot";
    }
    return told;
  });
}

}  // namespace
