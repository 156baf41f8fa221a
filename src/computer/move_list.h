#pragma once

#include <vector>

#include "board/position.h"
#include "toolkit/random.h"

enum MoveKind : std::int32_t { MoveKindStep = 1, MoveKindJump = 2 };

/// One move of one green piece. A jump stands for the first jump of a chain.
struct MoveRecord {
  std::int16_t Piece = 0;  // 1 to 12
  Square FromSquare = 0;
  ::Direction Direction = NoDirection;
  MoveKind Kind = MoveKindStep;
  Square ToSquare = 0;  // the next square for a step, the landing square for a jump

  bool operator==(const MoveRecord&) const = default;
};

/// Moves in order, counted from 0. There is always at least one slot: an emptied list keeps it,
/// with whatever stood in it. Otherwise there are exactly `Count` slots.
struct MoveList {
  std::vector<MoveRecord> Items = std::vector<MoveRecord>(1);
  std::int16_t Count = 0;
};

MoveRecord MakeMoveRecord(int piece, Square fromSquare, Direction direction, MoveKind kind,
                          Square toSquare);

/// Appends a copy of the record.
void MoveListAdd(MoveList& list, const MoveRecord& record);

/// Removes the entry at the index, 0 to `Count` - 1; those behind it move down by one.
void MoveListRemoveAt(MoveList& list, int index);

/// Gives the entries in random order and leaves the list empty. Draws one value for each entry, the
/// last one included.
MoveList ShuffleMoveList(Random& random, MoveList& list);

/// Exchanges two entries.
void SwapMoves(MoveList& list, int first, int second);

/// Every step and every first jump that green can make, by piece and direction in rising order;
/// steps stand in it even when there is a jump. At most 48 entries.
MoveList ListGreenMoves(const Position& position);
