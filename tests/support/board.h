#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "board/position.h"

/// The position in a picture, as the player sees it: 8 rows of 4 squares, the top row first. b is a
/// blue man, B a blue king, g and G are green, '.' is nobody; blanks do not count. The pieces of a
/// side are numbered by their squares. Blue is to move. Throws if it is no such picture.
Position Board(std::string_view picture);

/// Where every game begins.
Position StartPosition();

/// The picture of a position on one line: `Board` reads it.
std::string Draw(const Position& position);

/// The green piece on a square; 0 if there is none.
int GreenOn(const Position& position, Square square);

/// How a failed test shows a position.
void PrintTo(const Position& position, std::ostream* out);
