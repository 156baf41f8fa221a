#pragma once

#include <string>

#include "board/position.h"

/// The text of a square, 1 to 32, for assistive technology: "blue king on square 14", or
/// "free square 14".
std::string DescribeSquare(const Position& position, Square square);
