#include "computer/move_list.h"

#include <utility>

namespace {

constexpr int MostMoves = 4 * Pieces;

std::size_t Slot(int index) { return static_cast<std::size_t>(index); }

}  // namespace

MoveRecord MakeMoveRecord(int piece, Square fromSquare, Direction direction, MoveKind kind,
                          Square toSquare) {
  return {static_cast<std::int16_t>(piece), fromSquare, direction, kind, toSquare};
}

void MoveListAdd(MoveList& list, const MoveRecord& record) {
  ++list.Count;
  list.Items.resize(Slot(list.Count));
  list.Items.back() = record;
}

void MoveListRemoveAt(MoveList& list, int index) {
  for (int k = index + 1; k < list.Count; ++k) list.Items[Slot(k - 1)] = list.Items[Slot(k)];
  --list.Count;
  if (list.Count >= 1) list.Items.resize(Slot(list.Count));
}

MoveList ShuffleMoveList(Random& random, MoveList& list) {
  MoveList shuffled;
  shuffled.Items.reserve(list.Items.size());
  while (list.Count > 0) {
    const int index = random.Draw(list.Count);
    MoveListAdd(shuffled, list.Items[Slot(index)]);
    MoveListRemoveAt(list, index);
  }
  return shuffled;
}

void SwapMoves(MoveList& list, int first, int second) {
  std::swap(list.Items[Slot(first)], list.Items[Slot(second)]);
}

MoveList ListGreenMoves(const Position& position) {
  MoveList moves;
  moves.Items.reserve(Slot(MostMoves));
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Square from = position.GreenSquare[piece];
    if (from == 0) continue;
    for (Direction direction : DirectionsOf(DirectionSet(position, piece, false))) {
      const Square next = Neighbour(from, direction);
      if (VacantOrZero(position, next) != 0) {
        MoveListAdd(moves, MakeMoveRecord(piece, from, direction, MoveKindStep, next));
      } else if (CanJump(position, from, direction, Blue)) {
        const Square landing = LandingSquare(from, direction);
        MoveListAdd(moves, MakeMoveRecord(piece, from, direction, MoveKindJump, landing));
      }
    }
  }
  return moves;
}
