#pragma once

#include <string>

#include "board/position.h"

/// What a player who does not see the board is told of a square: "blue king on square 14", or
/// "free square 14".
std::string DescribeSquare(const Position& position, Square square);
