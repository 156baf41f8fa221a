#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "computer/move_list.h"
#include "grid.h"
#include "human/classification.h"
#include "support/board.h"

// Counts the ways to play n half-moves, blue first, and holds the counts against a table: once with
// the rules of the game on piece tables, once by rows and columns. Blue counts with every drop that
// is accepted, a chain also where it stops short. Green counts with every move that is listed,
// steps beside jumps as well, and a jump once for each way in which its chain can go on to its end.

namespace {

using Count = std::uint64_t;
constexpr Count Disagreement = Count{1} << 50;  // above every count

Count CountBlue(const Position& position, int depth);
Count CountGreen(const Position& position, int depth);
Count CountBlue(const Grid& grid, int depth);
Count CountGreen(const Grid& grid, int depth);

void Take(Position& position, Square square) {
  for (Square& held : position.BlueSquare) held = held == square ? Square{0} : held;
  for (Square& held : position.GreenSquare) held = held == square ? Square{0} : held;
}

/// The position once blue's turn is over.
Position EndBlue(Position position, int piece, Square to) {
  position.BlueSquare[piece] = to;
  position.BlueKing[piece] = position.BlueKing[piece] || IsBlueCrownSquare(to);
  position.JumpPath = {};
  return position;
}

/// Lengthens a drag by each landing square that the pointer can reach, and drops the piece there.
/// `last` is where the drag has got to, `entries` how many squares it has passed, and `taken` is
/// the position without the pieces jumped so far.
Count CountJumps(const Position& dragged, const Position& taken, int piece, Square last,
                 int entries, int depth) {
  const Square from = dragged.BlueSquare[piece];
  Count count = 0;
  for (Direction direction : AllDirections) {
    const Square next = LandingSquare(last, direction);
    if (next == 0 || (next != from && SquareOwner(dragged, next) != Nobody)) continue;
    if (!JumpPathIsValid(dragged, from, next)) continue;
    Position longer = dragged;
    longer.JumpPath[entries + 1] = next;
    Position judged = longer;
    const BlueMove move = ClassifyBlueMove(judged, from, next, true, piece);
    // The verdict is the same for a drop whose square the pointer has not been seen to pass.
    Position unpassed = dragged;
    if (ClassifyBlueMove(unpassed, from, next, true, piece) != move) return Disagreement;
    if (move != (entries == 0 ? BlueMoveJump : BlueMoveChain)) continue;
    Position after = taken;
    Take(after, Neighbour(last, direction));
    count += CountGreen(EndBlue(after, piece, next), depth - 1);
    count += CountJumps(longer, after, piece, next, entries + 1, depth);
  }
  return count;
}

Count CountSteps(const Position& position, int piece, int depth) {
  const Square from = position.BlueSquare[piece];
  Count count = 0;
  for (int square = 1; square <= Squares; ++square) {
    const auto to = static_cast<Square>(square);
    if (SquareOwner(position, to) != Nobody) continue;
    Position judged = position;
    if (ClassifyBlueMove(judged, from, to, true, piece) != BlueMoveStep) continue;
    count += CountGreen(EndBlue(position, piece, to), depth - 1);
  }
  return count;
}

Count CountBlue(const Position& position, int depth) {
  if (depth == 0) return 1;
  Count jumps = 0;
  bool hasJump = false;
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Square from = position.BlueSquare[piece];
    for (Direction direction : DirectionsOf(DirectionSet(position, piece, true))) {
      hasJump |= CanJump(position, from, direction, Green);
    }
    if (from != 0) jumps += CountJumps(position, position, piece, from, 0, depth);
  }
  if (hasJump) return jumps;
  Count steps = 0;
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (position.BlueSquare[piece] != 0) steps += CountSteps(position, piece, depth);
  }
  return steps;
}

/// Plays a jump and every chain behind it.
Count CountChain(Position position, int piece, Direction direction, int depth) {
  const Square from = position.GreenSquare[piece];
  Take(position, Neighbour(from, direction));
  const Square to = LandingSquare(from, direction);
  position.GreenSquare[piece] = to;
  Count count = 0;
  bool isEnd = true;
  for (Direction onward : DirectionsOf(DirectionSet(position, piece, false))) {
    if (!CanJump(position, to, onward, Blue)) continue;
    isEnd = false;
    count += CountChain(position, piece, onward, depth);
  }
  if (!isEnd) return count;
  position.GreenKing[piece] = position.GreenKing[piece] || IsGreenCrownSquare(to);
  return CountBlue(position, depth - 1);
}

Count CountGreen(const Position& position, int depth) {
  if (depth == 0) return 1;
  Count count = 0;
  MoveList moves = ListGreenMoves(position);
  moves.Items.resize(static_cast<std::size_t>(moves.Count));
  for (const MoveRecord& move : moves.Items) {
    if (move.Kind == MoveKindJump) {
      count += CountChain(position, move.Piece, move.Direction, depth);
      continue;
    }
    Position after = position;
    after.GreenSquare[move.Piece] = move.ToSquare;
    after.GreenKing[move.Piece] = after.GreenKing[move.Piece] || IsGreenCrownSquare(move.ToSquare);
    count += CountBlue(after, depth - 1);
  }
  return count;
}

Count CountBlue(const Grid& grid, int depth) {
  if (depth == 0) return 1;
  Count count = 0;
  for (const GridMove& move : HumanMoves(grid)) {
    count += CountGreen(Crowned(After(grid, move), 'b'), depth - 1);
  }
  return count;
}

Count CountChain(const Grid& grid, const GridMove& jump, int depth) {
  const Grid after = After(grid, jump);
  const std::vector<GridMove> onward = JumpsOf(after, jump.To());
  if (onward.empty()) return CountBlue(Crowned(after, 'g'), depth - 1);
  Count count = 0;
  for (const GridMove& next : onward) count += CountChain(after, next, depth);
  return count;
}

Count CountGreen(const Grid& grid, int depth) {
  if (depth == 0) return 1;
  Count count = 0;
  for (const GridMove& hop : GreenHops(grid)) {
    count += hop.IsJump() ? CountChain(grid, hop, depth)
                          : CountBlue(Crowned(After(grid, hop), 'g'), depth - 1);
  }
  return count;
}

/// Counts one line of the table: a position, then its counts from the first half-move on.
bool Check(const std::string& line) {
  const std::size_t bar = line.find('|');
  const Position position = Board(line.substr(0, bar));
  std::istringstream counts(line.substr(bar + 1));
  bool isRight = true;
  Count wanted = 0;
  std::printf("%s|", line.substr(0, bar).c_str());
  for (int depth = 1; counts >> wanted; ++depth) {
    const Count byTables = CountBlue(position, depth);
    const Count byGrid = CountBlue(GridOf(position), depth);
    std::printf(" %llu", static_cast<unsigned long long>(byTables));
    if (byTables == wanted && byGrid == wanted) continue;
    isRight = false;
    std::printf(" (by rows and columns %llu, in the table %llu)",
                static_cast<unsigned long long>(byGrid), static_cast<unsigned long long>(wanted));
  }
  std::printf("\n");
  return isRight;
}

}  // namespace

int main(int count, char** arguments) {
  std::ifstream table(count == 2 ? arguments[1] : "");
  if (!table) {
    std::fputs("usage: count TABLE\n", stderr);
    return 2;
  }
  bool isRight = true;
  int lines = 0;
  for (std::string line; std::getline(table, line);) {
    if (line.empty() || line.front() == '#') continue;
    ++lines;
    isRight &= Check(line);
  }
  return isRight && lines > 0 ? 0 : 1;
}
