#include "computer/judgement.h"

#include <algorithm>
#include <random>

#include "support/board.h"
#include "support/rules.h"

namespace {

// Green's judgement a second time, from the moves that the rules allow before and after a move. If
// you change a rule of movement in src/ and in support/rules, this shows whether green still judges
// rightly.

/// How many pieces blue can take by jumping the one on the square first: 2 means two or more.
int Taken(const Position& position, int square) {
  std::size_t most = 0;
  for (const Move& move : BlueMoves(position)) {
    if (Between(move[0], move[1]) == square) most = std::max(most, move.size() - 1);
  }
  return static_cast<int>(std::min<std::size_t>(most, 2));
}

/// Whether there is a blue king that green can take on each square that it can step to, and the
/// piece, standing on `to`, can take it on one of them. King and piece still block the squares that
/// they leave. Of each side piece 12 must be captured: it serves to block.
bool Traps(const Position& now, int piece, Square to) {
  const Square from = now.GreenSquare[piece];
  const auto isTrapped = [&](Square king) {
    bool hasPart = false;
    for (const Direction direction : AllDirections) {
      const Square escape = Neighbour(king, direction);
      const bool isLeft = escape == from && from != to;
      if (escape == 0 || (SquareOwner(now, escape) != Nobody && !isLeft)) continue;
      Position position = now;
      const auto isTaken = [&](bool byPiece) {
        return std::ranges::any_of(GreenHops(Crowned(position)), [&](const Move& hop) {
          return Between(hop[0], hop[1]) == escape &&
                 byPiece == (hop[0] == position.GreenSquare[piece]);
        });
      };
      position.BlueSquare[Pieces] = escape;
      if (isLeft) position.GreenSquare[piece] = 0;
      const bool byOthers = isTaken(false);
      if (from != to && !isLeft) position.GreenSquare[Pieces] = from;
      position.GreenSquare[piece] = to;
      const bool byPiece = to != escape && isTaken(true);
      if (!byOthers && !byPiece) return false;
      hasPart |= byPiece;
    }
    return hasPart;
  };
  for (int blue = 1; blue <= Pieces; ++blue) {
    if (now.BlueKing[blue] && isTrapped(now.BlueSquare[blue])) return true;
  }
  return false;
}

Judgement Expected(const Position& now, const MoveRecord& move) {
  const auto& [piece, from, direction, kind, to] = move;
  Position then = now;  // with the piece that a jump takes still on the board
  then.GreenSquare[piece] = to;
  const int stands = Taken(now, from);
  const int arrives = Taken(then, to);
  int exposed = 0;
  int saved = 0;
  for (const Square other : now.GreenSquare) {
    if (other == 0 || other == from) continue;
    const int before = Taken(now, other);
    const int after = Taken(then, other);
    if (before == 0) exposed = std::max(exposed, after);
    if (after == 0) saved += before;
  }
  const bool attacks =
      std::ranges::any_of(GreenHops(then), [&, from = from, to = to](const Move& hop) {
        return hop[0] == to && IsJump(hop) && hop[1] != from;
      });
  return {{"stands", stands},
          {"arrives", arrives},
          {"exposes", exposed},
          {"defends", saved},
          {"scores", stands - arrives - exposed + saved},
          {"attacks", attacks},
          {"crowns", !now.GreenKing[piece] && to <= 4 && arrives == 0},
          {"holds", Traps(now, piece, from)},
          {"traps", Traps(now, piece, to)}};
}

/// Shows the first board on which the two differ. Small boards come first.
TEST(Judgement, FollowsFromTheLegalMovesBeforeAndAfter) {
  std::mt19937 random;
  for (int board = 0; board < 4000; ++board) {
    const Position position = RandomBoard(random, 5 + board / 100);
    if (position.BlueSquare[Pieces] != 0 || position.GreenSquare[Pieces] != 0) continue;
    const MoveList moves = ListGreenMoves(position);
    ASSERT_EQ(moves.Count, std::ssize(GreenHops(position))) << DrawRows(position);
    for (int k = 0; k < moves.Count; ++k) {
      const MoveRecord& move = moves.Items[static_cast<std::size_t>(k)];
      const Judgement judged = Judge(position, move);
      for (const auto& [word, expected] : Expected(position, move)) {
        ASSERT_EQ(judged.at(word), expected)
            << word << ' ' << move.FromSquare << '-' << move.ToSquare << '\n'
            << DrawRows(position);
      }
    }
  }
}

struct Order {
  const char* Rule;
  MoveMerits First, Second;
  bool IsSecondBetter;
  bool IsFirstBetter;  // asked the other way round
};

constexpr MoveMerits CrowningTrap{.IsSafeCrowning = true, .TrapsAtTo = true};
constexpr MoveMerits OtherTrap{.TrapsAtFrom = true, .TrapsAtTo = true};

const std::array Orders = std::to_array<Order>({
    {"a jump goes before any step", {.Score = 9}, {.Kind = MoveKindJump}, true, false},
    {"then the higher score", {.Score = 1, .Attacks = true}, {.Score = 2}, true, false},
    {"then a safe attack", {}, {.Attacks = true}, true, false},
    {"before unsafe ones", {.DepthAtTo = 1, .Attacks = true}, {.Attacks = true}, true, false},
    {"an unsafe attack does not count", {}, {.DepthAtTo = 1, .Attacks = true}, false, false},
    {"then a safe crowning", {}, {.IsSafeCrowning = true}, true, false},
    {"even before a trap", {.TrapsAtTo = true}, {.IsSafeCrowning = true}, true, false},
    {"attack, crowning: each is better", {.Attacks = true}, {.IsSafeCrowning = true}, true, true},
    {"attack, trap: each is better", {.Attacks = true}, {.TrapsAtTo = true}, true, true},
    {"then a trap", {}, {.TrapsAtTo = true}, true, false},
    {"with a crowning too", {.IsSafeCrowning = true}, CrowningTrap, true, false},
    {"a move that gives up a trap goes last", OtherTrap, {}, true, false},
    {"unless both do", {.TrapsAtFrom = true}, OtherTrap, true, false},
    {"an unsafe trap does not count", {}, {.DepthAtTo = 1, .TrapsAtTo = true}, false, false},
    {"safety itself counts only in the score", {.DepthAtTo = 1}, {}, false, false},
    {"two attacks keep their order", {.Attacks = true}, {.Attacks = true}, false, false},
    {"two traps keep their order", {.TrapsAtTo = true}, {.TrapsAtTo = true}, false, false},
});

TEST(Ranking, ComparesTwoMoves) {
  for (const auto& [rule, first, second, isSecondBetter, isFirstBetter] : Orders) {
    EXPECT_EQ(IsBetterMove(first, second), isSecondBetter) << rule;
    EXPECT_EQ(IsBetterMove(second, first), isFirstBetter) << rule;
  }
}

}  // namespace
