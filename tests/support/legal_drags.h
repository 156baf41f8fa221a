#pragma once

#include <vector>

#include "board/position.h"

/// A human move as the hand makes it: the square of the piece, the squares dragged over, and last
/// the one where it is let go.
using DragPath = std::vector<Square>;

/// Every drag that the rules accept in this position, by piece, steps before jumps. Empty if blue
/// cannot move.
std::vector<DragPath> LegalDrags(const Position& position);
