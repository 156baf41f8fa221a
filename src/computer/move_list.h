#pragma once

#include <vector>

#include "board/position.h"
#include "toolkit/random.h"

enum MoveKind : std::int32_t { MoveKindStep = 1, MoveKindJump = 2 };

/// A step or a jump of a green piece. Of a chain it is the first jump.
struct MoveRecord {
  std::int16_t Piece = 0;  // 1 to 12
  Square FromSquare = 0;
  ::Direction Direction = NoDirection;
  MoveKind Kind = MoveKindStep;
  Square ToSquare = 0;  // where the step or jump lands

  bool operator==(const MoveRecord&) const = default;
};

/// A list of moves, indexed from 0. `Items` has exactly `Count` slots, but never less than one: an
/// empty list keeps one slot with a stale record.
struct MoveList {
  std::vector<MoveRecord> Items = std::vector<MoveRecord>(1);
  std::int16_t Count = 0;
};

MoveRecord MakeMoveRecord(int piece, Square fromSquare, Direction direction, MoveKind kind,
                          Square toSquare);

/// Appends a copy of the record.
void MoveListAdd(MoveList& list, const MoveRecord& record);

/// Removes the entry at the index, 0 to `Count` - 1. Later entries move down by one.
void MoveListRemoveAt(MoveList& list, int index);

/// Moves the entries to a new list in random order. `list` is empty afterwards. One draw per entry,
/// also for the last one.
MoveList ShuffleMoveList(Random& random, MoveList& list);

/// Exchanges the entries at two indices.
void SwapMoves(MoveList& list, int first, int second);

/// Every step and every first jump that green can make, ordered by piece, then by direction. Steps
/// are listed even if there is a jump. 0 to 48 entries.
MoveList ListGreenMoves(const Position& position);
