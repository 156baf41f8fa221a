#include "grid.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr char Crossed = 'x';  // jumped in this chain: it still blocks, but is no prey again

bool IsOnBoard(Cell cell) {
  return 0 <= cell.Row && cell.Row < 8 && 0 <= cell.Column && cell.Column < 8;
}

bool IsBlue(char mark) { return mark == 'b' || mark == 'B'; }

bool IsGreen(char mark) { return mark == 'g' || mark == 'G'; }

/// Calls `visit` with the cell of each mark that `is` names.
template <typename Is, typename Visit>
void ForEachPiece(const Grid& grid, Is is, Visit visit) {
  for (int row = 0; row < 8; ++row) {
    for (int column = row % 2; column < 8; column += 2) {
      if (is(grid[{row, column}])) visit(Cell{row, column});
    }
  }
}

Cell Between(Cell from, Cell to) {
  return {(from.Row + to.Row) / 2, (from.Column + to.Column) / 2};
}

/// Calls `visit` with each row and column step that a piece of this mark may take.
template <typename Visit>
void ForEachWay(char mark, Visit visit) {
  for (const int rows : {1, -1}) {
    if ((mark == 'b' && rows < 0) || (mark == 'g' && rows > 0)) continue;
    for (const int columns : {-1, 1}) visit(rows, columns);
  }
}

/// Calls `visit` with each cell where a jump from `from` by a piece of this mark would end.
template <typename Visit>
void ForEachJump(const Grid& grid, Cell from, char mark, Visit visit) {
  const auto isPrey = IsBlue(mark) ? IsGreen : IsBlue;
  ForEachWay(mark, [&](int rows, int columns) {
    const Cell over{from.Row + rows, from.Column + columns};
    const Cell to{over.Row + rows, over.Column + columns};
    if (IsOnBoard(to) && isPrey(grid[over]) && grid[to] == '.') visit(to);
  });
}

GridMove Hop(Cell from, Cell to) { return {{from, to}, 2}; }

/// Adds the jumps that lengthen `move`, and those that lengthen them.
void AddChains(Grid& grid, char mark, GridMove& move, std::vector<GridMove>& moves) {
  const Cell from = move.To();
  ForEachJump(grid, from, mark, [&](Cell to) {
    char& prey = grid[Between(from, to)];
    const char jumped = std::exchange(prey, Crossed);
    move.Stops[static_cast<std::size_t>(move.Count++)] = to;
    moves.push_back(move);
    AddChains(grid, mark, move, moves);
    --move.Count;
    prey = jumped;
  });
}

void AddSteps(const Grid& grid, Cell from, std::vector<GridMove>& moves) {
  ForEachWay(grid[from], [&](int rows, int columns) {
    const Cell to{from.Row + rows, from.Column + columns};
    if (IsOnBoard(to) && grid[to] == '.') moves.push_back(Hop(from, to));
  });
}

}  // namespace

bool GridMove::IsJump() const { return std::abs(Stops[1].Row - Stops[0].Row) == 2; }

Cell CellOf(Square square) {
  const int row = (square - 1) / 4;
  return {row, 2 * ((square - 1) % 4) + row % 2};
}

Grid GridOf(const Position& position) {
  Grid grid;
  for (auto& row : grid.Marks) row.fill('.');
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Square blue = position.BlueSquare[piece];
    const Square green = position.GreenSquare[piece];
    if (blue != 0) grid[CellOf(blue)] = position.BlueKing[piece] ? 'B' : 'b';
    if (green != 0) grid[CellOf(green)] = position.GreenKing[piece] ? 'G' : 'g';
  }
  return grid;
}

bool HasBlue(const Grid& grid) {
  bool has = false;
  ForEachPiece(grid, IsBlue, [&](Cell) { has = true; });
  return has;
}

bool HasGreen(const Grid& grid) {
  bool has = false;
  ForEachPiece(grid, IsGreen, [&](Cell) { has = true; });
  return has;
}

std::vector<GridMove> HumanMoves(const Grid& grid) {
  std::vector<GridMove> moves;
  Grid lifted = grid;
  ForEachPiece(grid, IsBlue, [&](Cell cell) {
    // The piece is in the hand: a circle of jumps may end where it began.
    const char mark = std::exchange(lifted[cell], '.');
    GridMove move{{cell}, 1};
    AddChains(lifted, mark, move, moves);
    lifted[cell] = mark;
  });
  if (!moves.empty()) return moves;
  ForEachPiece(grid, IsBlue, [&](Cell cell) { AddSteps(grid, cell, moves); });
  return moves;
}

std::vector<GridMove> GreenHops(const Grid& grid) {
  std::vector<GridMove> moves;
  ForEachPiece(grid, IsGreen, [&](Cell cell) {
    AddSteps(grid, cell, moves);
    ForEachJump(grid, cell, grid[cell], [&](Cell to) { moves.push_back(Hop(cell, to)); });
  });
  return moves;
}

std::vector<GridMove> JumpsOf(const Grid& grid, Cell cell) {
  std::vector<GridMove> moves;
  ForEachJump(grid, cell, grid[cell], [&](Cell to) { moves.push_back(Hop(cell, to)); });
  return moves;
}

Grid After(const Grid& grid, const GridMove& move) {
  Grid after = grid;
  const char mark = std::exchange(after[move.From()], '.');
  for (int k = 1; move.IsJump() && k < move.Count; ++k) {
    const auto stop = static_cast<std::size_t>(k);
    after[Between(move.Stops[stop - 1], move.Stops[stop])] = '.';
  }
  after[move.To()] = mark;
  return after;
}

Grid Crowned(const Grid& grid, char man) {
  Grid crowned = grid;
  for (char& mark : crowned.Marks[man == 'b' ? 7 : 0]) {
    if (mark == man) mark = man == 'b' ? 'B' : 'G';
  }
  return crowned;
}
