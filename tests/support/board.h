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

/// What stands on each square, 1 to 32, in the letters of a picture; at place 0 a blank.
std::string Marks(const Position& position);

/// The picture of a position on one line: `Board` reads it.
std::string Draw(const Position& position);

/// The picture of a position on 8 lines, for people.
std::string DrawRows(const Position& position);

/// The picture, the flags that are set and the jump path, as failed tests and logs show them.
void PrintTo(const Position& position, std::ostream* out);
