#pragma once

#include <random>
#include <string>
#include <string_view>

#include "board/position.h"

/// Reads a picture of the board as the player sees it: 8 rows of 4 squares, the top row first. b is
/// a blue man, B a blue king, g and G are green, '.' is a free square; blanks are ignored. The
/// pieces of a side are numbered by their squares. Blue is to move. Throws if the picture is not
/// like this.
Position Board(std::string_view picture);

/// The position at the start of every game.
Position StartPosition();

/// A board of men and kings. `crowded`: how many of 100 squares hold a piece, about.
Position RandomBoard(std::mt19937& random, int crowded);

/// The letter of each square, 1 to 32, as in a picture. Index 0 is a blank.
std::string Marks(const Position& position);

/// The picture of a position on one line, which `Board` can read.
std::string Draw(const Position& position);

/// The picture of a position on 8 lines, for failure messages.
std::string DrawRows(const Position& position);
