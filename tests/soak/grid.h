#pragma once

#include <array>
#include <vector>

#include "board/position.h"

// The board a second time, as rows and columns of marks: what the game works out from square
// numbers and piece tables is held against this. Nothing of the game's own rules is used here.

/// A place on the board, counted from 0 at the bottom left.
struct Cell {
  int Row = 0;
  int Column = 0;

  bool operator==(const Cell&) const = default;
};

/// By row and column: 'b' a blue man, 'B' a blue king, 'g' and 'G' green ones, '.' nobody.
struct Grid {
  std::array<std::array<char, 8>, 8> Marks;

  char& operator[](Cell cell) {
    return Marks[static_cast<std::size_t>(cell.Row)][static_cast<std::size_t>(cell.Column)];
  }
  char operator[](Cell cell) const {
    return Marks[static_cast<std::size_t>(cell.Row)][static_cast<std::size_t>(cell.Column)];
  }
  bool operator==(const Grid&) const = default;
};

/// One move of a piece: where it starts, and each cell on which it comes down.
struct GridMove {
  std::array<Cell, 10> Stops;  // nine jumps at most: each crosses another inner cell
  int Count = 0;               // of the stops in use, the start included

  Cell From() const { return Stops[0]; }
  Cell To() const { return Stops[static_cast<std::size_t>(Count - 1)]; }
  bool IsJump() const;
};

Grid GridOf(const Position& position);

/// The place of a square, 1 to 32.
Cell CellOf(Square square);

/// Whether the side has a piece left.
bool HasBlue(const Grid& grid);
bool HasGreen(const Grid& grid);

/// All that the human may do: if there is a jump only jumps, each chain also stopped short.
std::vector<GridMove> HumanMoves(const Grid& grid);

/// All that green may start with: every step and every single jump.
std::vector<GridMove> GreenHops(const Grid& grid);

/// The single jumps of the piece on this cell.
std::vector<GridMove> JumpsOf(const Grid& grid, Cell cell);

/// The board after a move, the jumped pieces gone. Nobody is crowned by it.
Grid After(const Grid& grid, const GridMove& move);

/// The board with the men of a side ("b" or "g") on its far row made kings.
Grid Crowned(const Grid& grid, char man);
