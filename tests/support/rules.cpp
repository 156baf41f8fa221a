#include "support/rules.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <utility>

#include "support/board.h"

namespace {

/// One diagonal step.
struct Way {
  int Rows, Columns;
};

constexpr std::array<Way, 4> Ways{{{1, -1}, {1, 1}, {-1, -1}, {-1, 1}}};

int RowOf(int square) { return (square - 1) / 4; }

/// The square one step away; 0 off the board, and from 0.
int Go(int square, Way way) {
  const int row = RowOf(square) + way.Rows;
  const int column = (square - 1) % 4 * 2 + RowOf(square) % 2 + way.Columns;
  const bool isOnBoard = 0 <= row && row < 8 && 0 <= column && column < 8;
  return square != 0 && isOnBoard ? row * 4 + column / 2 + 1 : 0;
}

bool MayGo(char piece, Way way) {
  return (piece != 'b' || way.Rows > 0) && (piece != 'g' || way.Rows < 0);
}

char On(const std::string& marks, int square) { return marks[static_cast<std::size_t>(square)]; }

void AddSteps(const std::string& marks, int from, std::vector<Move>& moves) {
  for (const Way way : Ways) {
    const int to = Go(from, way);
    if (MayGo(On(marks, from), way) && On(marks, to) == '.') moves.push_back({from, to});
  }
}

/// Adds the move with each possible jump more; for blue also with all jumps after that. The piece
/// itself is not among the marks.
void AddJumps(const std::string& marks, char piece, const Move& move, std::vector<Move>& moves) {
  const bool isBlue = piece == 'b' || piece == 'B';
  const std::string prey = isBlue ? "gG" : "bB";
  for (const Way way : Ways) {
    const int over = Go(move.back(), way);
    const int to = Go(over, way);
    if (!MayGo(piece, way) || On(marks, to) != '.' || prey.find(On(marks, over)) == prey.npos)
      continue;
    Move longer = move;
    longer.push_back(to);
    moves.push_back(longer);
    if (!isBlue) continue;
    std::string onward = marks;
    onward[static_cast<std::size_t>(over)] = 'x';  // it still blocks, but cannot be jumped again
    AddJumps(onward, piece, longer, moves);
  }
}

void AddJumpsOf(std::string marks, int from, std::vector<Move>& moves) {
  const char piece = std::exchange(marks[static_cast<std::size_t>(from)], '.');
  AddJumps(marks, piece, {from}, moves);
}

}  // namespace

int Between(int from, int to) {
  for (const Way way : Ways) {
    if (to != 0 && Go(Go(from, way), way) == to) return Go(from, way);
  }
  return 0;
}

bool IsJump(const Move& move) { return std::abs(RowOf(move[1]) - RowOf(move[0])) != 1; }

std::vector<Move> BlueMoves(const Position& position) {
  const std::string marks = Marks(position);
  std::vector<Move> moves;
  for (const int from : position.BlueSquare) {
    if (from != 0) AddJumpsOf(marks, from, moves);
  }
  if (!moves.empty()) return moves;
  for (const int from : position.BlueSquare) {
    if (from != 0) AddSteps(marks, from, moves);
  }
  return moves;
}

std::vector<Move> GreenHops(const Position& position) {
  const std::string marks = Marks(position);
  std::vector<Move> moves;
  for (const int from : position.GreenSquare) {
    if (from == 0) continue;
    AddSteps(marks, from, moves);
    AddJumpsOf(marks, from, moves);
  }
  return moves;
}

Position After(Position position, const Move& move) {
  const auto replace = [&](int old, int now) {
    std::ranges::replace(position.BlueSquare, Square(old), Square(now));
    std::ranges::replace(position.GreenSquare, Square(old), Square(now));
  };
  for (std::size_t k = 1; IsJump(move) && k < move.size(); ++k) {
    replace(Between(move[k - 1], move[k]), 0);
  }
  replace(move.front(), move.back());
  return position;
}

Position Crowned(Position position) {
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (position.BlueSquare[piece] > 28) position.BlueKing[piece] = true;
    const int green = position.GreenSquare[piece];
    if (0 < green && green < 5) position.GreenKing[piece] = true;
  }
  return position;
}

bool HasSameBoard(const Position& a, const Position& b) {
  return a.BlueSquare == b.BlueSquare && a.GreenSquare == b.GreenSquare &&
         a.BlueKing == b.BlueKing && a.GreenKing == b.GreenKing;
}
