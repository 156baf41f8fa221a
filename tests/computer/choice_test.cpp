#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "computer/random_direction.h"
#include "computer/ranking.h"
#include "human/classification.h"
#include "support/board.h"
#include "support/legal_drags.h"

namespace {

Random Draws(std::vector<double> values) {
  Random random;
  random.Script = [values, next = std::size_t{0}]() mutable { return values.at(next++); };
  return random;
}

void ReportError() { ADD_FAILURE() << "no error to report"; }

/// The board turned by half a circle, the sides exchanged.
Position Turned(const Position& position) {
  std::string picture = Draw(position);
  std::ranges::reverse(picture);
  constexpr std::string_view Marks = "bBgG. ";
  for (char& mark : picture) mark = "gGbB. "[Marks.find(mark)];
  return Board(picture);
}

std::string Names(const MoveList& list) {
  std::string names;
  for (int k = 0; k < list.Count; ++k) {
    const MoveRecord& move = list.Items[static_cast<std::size_t>(k)];
    names += std::to_string(move.FromSquare) + '-' + std::to_string(move.ToSquare) + ' ';
  }
  return names;
}

/// The number of ways in which the next moves can go: blue moves, and the board is turned.
int CountWays(const Position& position, int depth) {
  if (depth == 0) return 1;
  int count = 0;
  for (const DragPath& drag : LegalDrags(position)) {
    Position next = position;
    for (std::size_t k = 1; k < drag.size(); ++k) {
      const Square over = Neighbour(drag[k - 1], JumpDirection(drag[k - 1], drag[k]));
      if (over != 0) std::ranges::replace(next.GreenSquare, over, Square{0});
    }
    std::ranges::replace(next.BlueSquare, drag.front(), drag.back());
    count += CountWays(Turned(next), depth - 1);
  }
  return count;
}

TEST(Moves, AreAsManyAsTheOpeningHas) {
  const int counts[] = {1, 7, 49, 302, 1469, 7361};
  for (int depth = 1; depth <= 5; ++depth) {
    EXPECT_EQ(CountWays(StartPosition(), depth), counts[depth]) << depth;
  }
}

TEST(Moves, AreTheSameForGreenOnTheTurnedBoard) {
  Random random;
  for (int round = 0; round < 300; ++round) {
    std::string picture(32, '.');
    for (int k = 0; k < 20; ++k) {
      picture[static_cast<std::size_t>(random.Draw(32))] = "bBgG"[k < 10 ? k % 2 : 2 + k % 2];
    }
    Position position = Board(picture);
    const MoveList green = ListGreenMoves(Turned(position));
    int count = 0;
    for (int piece = 1; piece <= Pieces && position.BlueSquare[piece] != 0; ++piece) {
      const Square from = position.BlueSquare[piece];
      for (Square to = 1; to <= Squares; ++to) {
        const BlueMove verdict = ClassifyBlueMove(position, from, to, false, piece);
        if (verdict == BlueMoveNone || SquareOwner(position, to) != Nobody) continue;
        ++count;
        EXPECT_TRUE(std::ranges::any_of(green.Items,
                                        [&](const MoveRecord& move) {
                                          return move.FromSquare == 33 - from &&
                                                 move.ToSquare == 33 - to &&
                                                 int{move.Kind} == int{verdict};
                                        }))
            << testing::PrintToString(position) << from << " to " << to;
      }
    }
    EXPECT_EQ(green.Count, count) << testing::PrintToString(position);
  }
}

TEST(Moves, AreShuffledByOneDrawForEach) {
  const auto listOf = [](int count) {
    MoveList list;
    for (Square k = 1; k <= count; ++k) MoveListAdd(list, MakeMoveRecord(1, k, UpLeft, {}, k));
    return list;
  };
  MoveList three = listOf(3);
  Random random = Draws({0.9, 0.1, 0.5});
  EXPECT_EQ(Names(ShuffleMoveList(random, three)), "3-3 1-1 2-2 ");
  EXPECT_EQ(ShuffleMoveList(random, three).Count, 0) << "and no draw";
  EXPECT_EQ(random.DrawCount, 3);
  MoveList most = listOf(48);
  random = Draws(std::vector<double>(48, std::nextafter(1.0, 0.0)));
  EXPECT_EQ(ShuffleMoveList(random, most).Items.front().ToSquare, 48);
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
    EXPECT_EQ(JudgeMove(position, listed.Items[k], ReportError).Score, scores[k]) << k;
  }
  EXPECT_FALSE(JudgeMove(position, listed.Items[2], ReportError).IsSafeCrowning) << "a king";
  const struct {
    std::vector<double> Values;
    const char *Shuffled, *Sorted;
  } cases[] = {
      {{0.3, 0.9, 0.1, 0.6}, "7-11 15-11 25-21 7-3 ", "7-11 7-3 15-11 25-21 "},
      {{0.6, 0.2, 0.7, 0.4}, "7-3 25-21 15-11 7-11 ", "7-3 7-11 15-11 25-21 "},
  };
  for (const auto& [values, shuffled, sorted] : cases) {
    MoveList again = listed;
    Random random = Draws(values);
    MoveList moves = ShuffleMoveList(random, again);
    EXPECT_EQ(Names(moves), shuffled);
    SortMoveList(position, moves, ReportError);
    EXPECT_EQ(Names(moves), sorted);
    random = Draws(values);
    EXPECT_EQ(ChooseMove(random, position, ReportError), moves.Items[0]);
  }
}

TEST(Ranking, ComparesEachPairOnceWhereBothAreBetter) {
  const Position position = Board("G... .... b... .... .... .... ...g ....");
  MoveList moves = ListGreenMoves(position);
  ASSERT_EQ(Names(moves), "8-4 29-25 29-26 ");
  SortMoveList(position, moves, ReportError);
  EXPECT_EQ(Names(moves), "29-25 8-4 29-26 ");
  SortMoveList(position, moves, ReportError);
  EXPECT_EQ(Names(moves), "8-4 29-25 29-26 ");
}

TEST(Ranking, SetsTrapsForKingsAndKeepsThem) {
  const auto isBetter = [](const char* picture, const MoveRecord& first, const MoveRecord& second) {
    const Position position = Board(picture);
    return IsBetterMove(JudgeMove(position, first, ReportError),
                        JudgeMove(position, second, ReportError));
  };
  constexpr auto Set = ".... .... ...G .... .g.. .... .... B.B.";
  constexpr auto Kept = ".... ...B g... .... .... .... .... BG..";
  const MoveRecord moves[] = {MakeMoveRecord(1, 14, DownLeft, MoveKindStep, 10),
                              MakeMoveRecord(1, 14, DownRight, MoveKindStep, 11),
                              MakeMoveRecord(1, 2, UpRight, MoveKindStep, 6),
                              MakeMoveRecord(2, 21, DownLeft, MoveKindStep, 17)};
  EXPECT_TRUE(isBetter(Set, moves[0], moves[1]) && !isBetter(Set, moves[1], moves[0]));
  EXPECT_TRUE(isBetter(Kept, moves[2], moves[3]) && !isBetter(Kept, moves[3], moves[2]));
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
