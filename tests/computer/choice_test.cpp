#include <gtest/gtest.h>

#include <algorithm>

#include "board/random_direction.h"
#include "computer/ranking.h"
#include "support/board.h"

namespace {

Random Draws(std::vector<double> values) {
  Random random;
  random.Script = [values, next = std::size_t{0}]() mutable { return values.at(next++); };
  return random;
}

void ReportError() { ADD_FAILURE() << "no error to report"; }

std::string Names(const MoveList& list) {
  std::string names;
  for (int k = 0; k < list.Count; ++k) {
    const MoveRecord& move = list.Items[static_cast<std::size_t>(k)];
    names += std::to_string(move.FromSquare) + '-' + std::to_string(move.ToSquare) + ' ';
  }
  return names;
}

TEST(Moves, AtRandomTakeTheirDraws) {
  const struct {
    const char* Picture;
    bool IsBlue, IsJump;
    std::vector<double> Values;  // all are taken
    Direction Result;
  } cases[] = {
      // Rows from the top:
      // 29   25   21   17   13   9    5    1
      {".... .... .g.. .bb. .... .... .... ....", false, true, {0.25}, DownLeft},
      {".... .... .g.. .bb. .... .... .... ....", false, true, {0.5}, DownRight},
      {".... .... .g.. .b.. .... .... .... ....", false, true, {}, DownLeft},
      {".... .... .... .... .g.. .B.. .... ....", true, true, {0.1, 0.9, 0.3}, UpRight},
      {".... .g.. b... .... .... .... .... ....", false, false, {0.2, 0.7}, DownRight},
      {".... .... .... .... .... .... ...b ....", true, false, {0.9, 0.5, 0.4}, UpLeft},
      {".... .... .... .... .... .... ...B ....", true, false, {0.3, 0.8, 0.74}, DownLeft},
      {".... .... .... .... .... .... .... ...g", false, false, {}, NoDirection},
      {".... .... .... .... .... .... .... g...", false, true, {}, NoDirection},
      {".... .... .... .... .... .... .... b...", false, false, {}, NoDirection},  // captured
      {".... .... .... .... .... .... .... b...", false, true, {}, NoDirection},
  };
  for (const auto& [picture, isBlue, isJump, values, result] : cases) {
    const Position position = Board(picture);
    Random random = Draws(values);
    const DirectionSetCode set = DirectionSet(position, 1, isBlue);
    EXPECT_EQ(isJump ? RandomJumpDirection(random, position, 1, set, isBlue)
                     : RandomStepDirection(random, position, 1, isBlue),
              result)
        << picture;
    EXPECT_EQ(random.DrawCount, std::ssize(values)) << picture;
  }
}

TEST(Ranking, KeepsTheShuffledOrderOfEqualMoves) {
  Position position = Board(".... g... .... .bb. .bgg ...g ..Gb ...b");
  std::ranges::copy(std::vector<Square>{25, 12, 7, 16, 15}, position.GreenSquare.begin());
  std::swap(position.GreenKing[1], position.GreenKing[3]);
  const MoveList listed = ListGreenMoves(position);
  ASSERT_EQ(Names(listed), "25-21 7-11 7-3 15-11 ");
  const int scores[] = {-1, 2, 2, 1};
  for (std::size_t k = 0; k < 4; ++k) {
    const MoveMerits merits = JudgeMove(position, listed.Items[k], ReportError);
    EXPECT_EQ(merits.Score, scores[k]) << k;
    EXPECT_FALSE(merits.IsSafeCrowning) << "on 3 it is a king already";
  }
  MoveList shorter = listed;
  MoveListRemoveAt(shorter, 1);
  EXPECT_EQ(Names(shorter), "25-21 7-3 15-11 ");
  EXPECT_EQ(std::ssize(shorter.Items), 3);
  const auto sort = [&](std::vector<double> values, const char* shuffled, const char* sorted) {
    MoveList again = listed;
    Random random = Draws(values);
    MoveList moves = ShuffleMoveList(random, again);
    EXPECT_EQ(Names(moves), shuffled);
    EXPECT_TRUE(again.Count == 0 && again.Items.size() == 1) << "the emptied list keeps a slot";
    SortMoveList(position, moves, ReportError);
    EXPECT_EQ(Names(moves), sorted);
    EXPECT_EQ(random.DrawCount, 4);
  };
  sort({0.3, 0.9, 0.1, 0.6}, "7-11 15-11 25-21 7-3 ", "7-11 7-3 15-11 25-21 ");
  sort({0.6, 0.2, 0.7, 0.4}, "7-3 25-21 15-11 7-11 ", "7-3 7-11 15-11 25-21 ");
}

TEST(Ranking, ComparesEachPairOnceWhereBothAreBetter) {
  const Position position = Board("G... .... b... .... .... .... ...g ....");
  MoveList moves = ListGreenMoves(position);
  for (const char* sorted : {"29-25 8-4 29-26 ", "8-4 29-25 29-26 "}) {
    SortMoveList(position, moves, ReportError);
    EXPECT_EQ(Names(moves), sorted);
  }
}

TEST(Ranking, DecidesAtTheFirstReason) {
  constexpr auto Step = MoveKindStep;
  constexpr auto Jump = MoveKindJump;
  const struct {
    // Kind, depth on arrival, score, attacks, crowns safely, traps before and after
    MoveMerits First, Second;
    bool IsSecondBetter, IsFirstBetter;
  } cases[] = {
      {{Step, 0, 9, 1, 1, 0, 1}, {Jump, 2, -4, 0, 0, 0, 0}, true, false},
      {{Jump, 0, 0, 1, 1, 0, 1}, {Jump, 1, 1, 0, 0, 0, 0}, true, false},
      {{Step, 1, 0, 1, 0, 0, 0}, {Step, 0, 0, 1, 0, 0, 0}, true, false},
      {{Step, 0, 0, 1, 0, 0, 0}, {Step, 0, 0, 1, 0, 0, 0}, false, false},
      {{Step, 0, 0, 1, 0, 0, 0}, {Step, 0, 0, 0, 1, 0, 0}, true, true},
      {{Step, 0, 0, 1, 0, 0, 0}, {Step, 0, 0, 1, 1, 0, 0}, true, false},
      {{Step, 0, 0, 0, 1, 0, 0}, {Step, 0, 0, 0, 1, 0, 1}, true, false},
      {{Step, 0, 0, 0, 1, 1, 0}, {Step, 0, 0, 0, 0, 0, 1}, false, true},
      {{Step, 1, 0, 0, 0, 0, 0}, {Step, 0, 0, 0, 0, 0, 0}, false, false},
      {{Step, 1, 0, 0, 0, 0, 0}, {Step, 1, 0, 1, 0, 0, 1}, false, false},
      {{Step, 0, 0, 0, 0, 1, 0}, {Step, 1, 0, 0, 0, 0, 0}, false, false},
      {{Step, 0, 0, 0, 0, 1, 0}, {Step, 0, 0, 0, 0, 0, 1}, true, false},
      {{Step, 0, 0, 1, 0, 0, 0}, {Step, 0, 0, 0, 0, 0, 1}, true, true},
  };
  for (std::size_t k = 0; k < std::size(cases); ++k) {
    EXPECT_EQ(IsBetterMove(cases[k].First, cases[k].Second), cases[k].IsSecondBetter) << k;
    EXPECT_EQ(IsBetterMove(cases[k].Second, cases[k].First), cases[k].IsFirstBetter) << k;
  }
}

}  // namespace
