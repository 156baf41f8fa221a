#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "computer/random_direction.h"
#include "computer/ranking.h"
#include "human/classification.h"
#include "support/board.h"

namespace {

Random Draws(std::vector<double> values) {
  Random random;
  random.Script = [values, next = std::size_t{0}]() mutable { return values.at(next++); };
  return random;
}

void ReportError() { ADD_FAILURE() << "no error to report"; }

/// The board turned by half a circle, the sides exchanged.
std::string Turned(std::string picture) {
  std::ranges::reverse(picture);
  constexpr std::string_view Marks = "bBgG. ";
  for (char& mark : picture) mark = "gGbB. "[Marks.find(mark)];
  return picture;
}

std::string Names(const MoveList& list) {
  std::string names;
  for (int k = 0; k < list.Count; ++k) {
    const MoveRecord& move = list.Items[static_cast<std::size_t>(k)];
    names += std::to_string(move.FromSquare) + '-' + std::to_string(move.ToSquare) + ' ';
  }
  return names;
}

std::int64_t CountGames(const Position& position, int depth);

/// Green jumps to the end, is crowned, and the board is turned: green then plays for blue.
std::int64_t CountGamesAfter(Position position, const MoveRecord& move, int depth) {
  const int piece = move.Piece;
  const Square over = Neighbour(move.FromSquare, move.Direction);
  if (move.Kind == MoveKindJump) std::ranges::replace(position.BlueSquare, over, Square{0});
  position.GreenSquare[piece] = move.ToSquare;
  std::int64_t count = 0;
  for (const Direction d : DirectionsOf(DirectionSet(position, piece, false))) {
    if (move.Kind == MoveKindStep || !CanJump(position, move.ToSquare, d, Blue)) continue;
    const Square landing = LandingSquare(move.ToSquare, d);
    const MoveRecord next = MakeMoveRecord(piece, move.ToSquare, d, MoveKindJump, landing);
    count += CountGamesAfter(position, next, depth);
  }
  if (count != 0) return count;
  if (IsGreenCrownSquare(move.ToSquare)) position.GreenKing[piece] = true;
  return CountGames(Board(Turned(Draw(position))), depth - 1);
}

std::int64_t CountGames(const Position& position, int depth) {
  if (depth == 0) return 1;
  const MoveList moves = ListGreenMoves(position);
  const auto isJump = [](const MoveRecord& move) { return move.Kind == MoveKindJump; };
  const bool mustJump = moves.Count > 0 && std::ranges::any_of(moves.Items, isJump);
  std::int64_t count = 0;
  for (int k = 0; k < moves.Count; ++k) {
    const MoveRecord& move = moves.Items[static_cast<std::size_t>(k)];
    if (isJump(move) || !mustJump) count += CountGamesAfter(position, move, depth);
  }
  return count;
}

TEST(MoveListTest, CountsTheOpeningsOfTheGame) {
  const std::int64_t counts[] = {1, 7, 49, 302, 1469, 7361, 36768};
  for (int depth = 1; depth <= 6; ++depth) {
    EXPECT_EQ(CountGames(StartPosition(), depth), counts[depth]) << depth;
  }
}

TEST(MoveListTest, GivesGreenTheMovesOfBlueOnTheTurnedBoard) {
  Random random;
  for (int round = 0; round < 300; ++round) {
    std::string picture;
    for (int square = 0; square < 32; ++square) {
      picture += ".....bbbBBgggGG"[random.Draw(15)];
    }
    if (std::ranges::count_if(picture, [](char c) { return c == 'b' || c == 'B'; }) > 12) continue;
    if (std::ranges::count_if(picture, [](char c) { return c == 'g' || c == 'G'; }) > 12) continue;
    Position position = Board(picture);
    const MoveList green = ListGreenMoves(Board(Turned(picture)));
    int count = 0;
    for (int piece = 1; piece <= Pieces && position.BlueSquare[piece] != 0; ++piece) {
      const Square from = position.BlueSquare[piece];
      bool canMove[] = {false, false, false};
      for (Square to = 1; to <= 32; ++to) {
        const BlueMove verdict = ClassifyBlueMove(position, from, to, false, piece);
        if (verdict == BlueMoveNone || SquareOwner(position, to) != Nobody) continue;
        ++count;
        canMove[verdict] = true;
        EXPECT_TRUE(std::ranges::any_of(green.Items,
                                        [&](const MoveRecord& move) {
                                          return move.FromSquare == 33 - from &&
                                                 move.ToSquare == 33 - to &&
                                                 int{move.Kind} == int{verdict};
                                        }))
            << Draw(position) << from << " to " << to;
      }
      const DirectionSetCode set = DirectionSet(position, piece, true);
      EXPECT_EQ(RandomStepDirection(random, position, piece, true) != 0, canMove[BlueMoveStep]);
      EXPECT_EQ(RandomJumpDirection(random, position, piece, set, true) != 0,
                canMove[BlueMoveJump]);
    }
    EXPECT_EQ(green.Count, count) << Draw(position);
  }
}

TEST(MoveListTest, IsShuffledByOneDrawForEachEntry) {
  const auto listOf = [](int count) {
    MoveList list;
    for (Square k = 1; k <= count; ++k) MoveListAdd(list, MakeMoveRecord(1, k, UpLeft, {}, k));
    return list;
  };
  MoveList three = listOf(3);
  Random random = Draws({0.9, 0.1, 0.5});
  EXPECT_EQ(Names(ShuffleMoveList(random, three)), "3-3 1-1 2-2 ");
  EXPECT_EQ(random.DrawCount, 3);
  EXPECT_EQ(three.Count, 0);
  EXPECT_EQ(ShuffleMoveList(random, three).Count, 0) << "and no draw";
  MoveList most = listOf(48);
  random = Draws(std::vector<double>(48, std::nextafter(1.0, 0.0)));
  const MoveList turned = ShuffleMoveList(random, most);
  EXPECT_EQ(turned.Items.front().ToSquare, 48);
  EXPECT_EQ(turned.Items.back().ToSquare, 1);
}

TEST(RandomDirection, TakesItsDraws) {
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
      {".... .... .G.. .b.. .... .... .... ....", false, true, {0.3, 0.5}, DownLeft},
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
  MoveList listed = ListGreenMoves(position);
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
    EXPECT_EQ(random.DrawCount, 4);
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
  const struct {
    const char* Picture;
    Square From1, To1, From2, To2;
  } cases[] = {
      {".... .... ...G .... .g.. .... .... B.B.", 14, 10, 14, 11},
      {".... ...B g... .... .... .... .... BG..", 2, 6, 21, 17},
  };
  for (const auto& [picture, from1, to1, from2, to2] : cases) {
    const Position position = Board(picture);
    const auto judge = [&](Square from, Square to) {
      const int piece = GreenOn(position, from);
      return JudgeMove(position, MakeMoveRecord(piece, from, {}, MoveKindStep, to), ReportError);
    };
    EXPECT_TRUE(IsBetterMove(judge(from1, to1), judge(from2, to2))) << picture;
    EXPECT_FALSE(IsBetterMove(judge(from2, to2), judge(from1, to1))) << picture;
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
      {{Step, 0, 0, 1, 1, 0, 1}, {Step, 1, 1, 0, 0, 0, 0}, true, false},
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
      {{Step, 0, 0, 0, 0, 1, 0}, {Step, 0, 0, 0, 0, 1, 1}, true, false},
      {{Step, 0, 0, 1, 0, 0, 0}, {Step, 0, 0, 0, 0, 0, 1}, true, true},
  };
  for (std::size_t k = 0; k < std::size(cases); ++k) {
    EXPECT_EQ(IsBetterMove(cases[k].First, cases[k].Second), cases[k].IsSecondBetter) << k;
    EXPECT_EQ(IsBetterMove(cases[k].Second, cases[k].First), cases[k].IsFirstBetter) << k;
  }
}

}  // namespace
