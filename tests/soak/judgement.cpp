#include "judgement.h"

#include <algorithm>

namespace {

/// A row and a column step.
struct Way {
  int Rows = 0;
  int Columns = 0;

  bool operator==(const Way&) const = default;
};

constexpr std::array<Way, 4> Ways{{{1, -1}, {1, 1}, {-1, -1}, {-1, 1}}};

Way Back(Way way) { return {-way.Rows, -way.Columns}; }

Cell Go(Cell cell, Way way) { return {cell.Row + way.Rows, cell.Column + way.Columns}; }

/// The mark on a cell; a blank off the board, which is neither a piece nor a free cell.
char At(const Grid& grid, Cell cell) {
  const bool isOnBoard = 0 <= cell.Row && cell.Row < 8 && 0 <= cell.Column && cell.Column < 8;
  return isOnBoard ? grid[cell] : ' ';
}

bool IsBlue(char mark) { return mark == 'b' || mark == 'B'; }
bool IsGreen(char mark) { return mark == 'g' || mark == 'G'; }

bool MayGo(char mark, Way way) {
  return mark == 'B' || mark == 'G' || (mark == 'b' ? way.Rows > 0 : way.Rows < 0);
}

template <typename Visit>
void ForEachCell(const Grid& grid, bool (*is)(char), Visit visit) {
  for (int row = 0; row < 8; ++row) {
    for (int column = 0; column < 8; ++column) {
      if (is(grid[{row, column}])) visit(Cell{row, column});
    }
  }
}

/// How many pieces blue can take by a capture over `prey`, up to 2; `left` counts as free.
int CaptureDepth(const Grid& grid, Cell prey, Cell left) {
  const auto isFree = [&](Cell cell) { return At(grid, cell) == '.' || cell == left; };
  int best = 0;
  ForEachCell(grid, IsBlue, [&](Cell blue) {
    for (const Way way : Ways) {
      const Cell landing = Go(Go(blue, way), way);
      if (!MayGo(grid[blue], way) || Go(blue, way) != prey || !isFree(landing)) continue;
      best = std::max(best, 1);
      for (const Way onward : Ways) {
        if (onward == Back(way) || !MayGo(grid[blue], onward)) continue;
        const Cell next = Go(landing, onward);
        if (IsGreen(At(grid, next)) && isFree(Go(next, onward))) best = 2;
      }
    }
  });
  return best;
}

int Exposure(const Grid& grid, Cell from, Cell to) {
  int best = 0;
  for (const Way way : Ways) {
    const Cell prey = Go(from, way);
    if (!IsGreen(At(grid, prey))) continue;
    if (CaptureDepth(grid, prey, prey) > 0 || CaptureDepth(grid, prey, from) == 0) continue;
    const char attacker = At(grid, Go(prey, way));
    best = std::max(best, 1);
    for (const Way onward : Ways) {
      const Cell next = Go(from, onward);
      if (onward == way || !MayGo(attacker, onward)) continue;
      if ((next == to || IsGreen(At(grid, next))) && At(grid, Go(next, onward)) == '.') best = 2;
    }
  }
  return best;
}

int Defence(const Grid& grid, Cell from, Cell to) {
  Grid moved = grid;
  moved[from] = '.';
  moved[to] = grid[from];
  int total = 0;
  for (const Way way : Ways) {
    const Cell prey = Go(to, way);
    if (!IsGreen(At(grid, prey)) || prey == from) continue;
    if (CaptureDepth(moved, prey, prey) == 0) total += CaptureDepth(grid, prey, prey);
  }
  return total;
}

/// Whether some green piece could jump over `escape`, and whether the one that has moved could.
struct Cover {
  bool IsCovered = false;
  bool IsByMoved = false;
};

Cover CoverOf(const Grid& grid, Cell escape, Cell from, Cell to) {
  Cover cover;
  ForEachCell(grid, IsGreen, [&](Cell green) {
    const Cell stand = green == from ? to : green;
    for (const Way way : Ways) {
      const bool mayGo = MayGo(grid[green], way) || stand.Row == 0;
      if (!mayGo || Go(stand, way) != escape || At(grid, Go(escape, way)) != '.') continue;
      cover.IsCovered = true;
      if (green == from) cover.IsByMoved = true;
    }
  });
  return cover;
}

bool TrapsKing(const Grid& grid, Cell from, Cell to) {
  bool traps = false;
  ForEachCell(
      grid, [](char mark) { return mark == 'B'; },
      [&](Cell king) {
        bool isCovered = true;
        bool isByMoved = false;
        for (const Way way : Ways) {
          const Cell escape = Go(king, way);
          const bool isLeft = escape == from && escape != to;
          if (At(grid, escape) != '.' && !isLeft) continue;
          const Cover cover = CoverOf(grid, escape, from, to);
          isCovered &= cover.IsCovered;
          isByMoved |= cover.IsByMoved;
        }
        traps |= isCovered && isByMoved;
      });
  return traps;
}

}  // namespace

Judgement Judge(const Grid& grid, Cell from, Cell to) {
  Judgement judgement;
  judgement.DepthAtTo = CaptureDepth(grid, to, from);
  judgement.Score = CaptureDepth(grid, from, from) - judgement.DepthAtTo -
                    Exposure(grid, from, to) + Defence(grid, from, to);
  judgement.Attacks = std::ranges::any_of(Ways, [&](Way way) {
    return MayGo(grid[from], way) && IsBlue(At(grid, Go(to, way))) &&
           At(grid, Go(Go(to, way), way)) == '.';
  });
  judgement.IsSafeCrowning = grid[from] == 'g' && judgement.DepthAtTo == 0 && to.Row == 0;
  judgement.TrapsAtFrom = TrapsKing(grid, from, from);
  judgement.TrapsAtTo = TrapsKing(grid, from, to);
  return judgement;
}
