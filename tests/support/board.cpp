#include "support/board.h"

#include <array>
#include <stdexcept>

namespace {

/// The index of a square in a picture without blanks.
std::size_t PlaceOf(int square) {
  return static_cast<std::size_t>((7 - (square - 1) / 4) * 4 + (square - 1) % 4);
}

}  // namespace

Position Board(std::string_view picture) {
  std::string marks(picture);
  std::erase(marks, ' ');
  if (marks.size() != Squares || marks.find_first_not_of(".bBgG") != marks.npos) {
    throw std::invalid_argument("a board is 8 rows of 4 squares, each . b B g or G; this is not: " +
                                std::string(picture));
  }
  Position position;
  position.BlueToMove = true;
  int blue = 0;
  int green = 0;
  for (int square = 1; square <= Squares; ++square) {
    const char mark = marks[PlaceOf(square)];
    if (mark == '.') continue;
    const bool isBlue = mark == 'b' || mark == 'B';
    int& piece = isBlue ? blue : green;
    if (++piece > Pieces) throw std::invalid_argument("a side has more than 12 pieces");
    (isBlue ? position.BlueSquare : position.GreenSquare)[piece] = static_cast<Square>(square);
    (isBlue ? position.BlueKing : position.GreenKing)[piece] = mark == 'B' || mark == 'G';
  }
  return position;
}

Position StartPosition() { return Board("gggg gggg gggg .... .... bbbb bbbb bbbb"); }

Position RandomBoard(std::mt19937& random, int crowded) {
  const auto chance = [&](int percent) { return static_cast<int>(random() % 100) < percent; };
  const int greenShare = 10 + static_cast<int>(random() % 80);
  std::array left{Pieces, Pieces};
  std::string picture(Squares, '.');
  for (std::size_t place = 0; place < Squares; ++place) {
    const bool isGreen = chance(greenShare);
    const bool isKing = chance(40) || place < 4 || place >= 28;
    if (chance(crowded) && left[isGreen]-- > 0) picture[place] = "bBgG"[isGreen * 2 + isKing];
  }
  return Board(picture);
}

std::string Marks(const Position& position) {
  std::string marks = ' ' + std::string(Squares, '.');
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Square blue = position.BlueSquare[piece];
    const Square green = position.GreenSquare[piece];
    if (blue != 0) marks[std::size_t(blue)] = position.BlueKing[piece] ? 'B' : 'b';
    if (green != 0) marks[std::size_t(green)] = position.GreenKing[piece] ? 'G' : 'g';
  }
  return marks;
}

std::string Draw(const Position& position) {
  const std::string marks = Marks(position);
  std::string rows;
  for (std::size_t first = 29; first > 1; first -= 4) rows += marks.substr(first, 4) + ' ';
  return rows + marks.substr(1, 4);
}

std::string DrawRows(const Position& position) {
  const std::string marks = Marks(position);
  std::string picture;
  for (int first = 29; first > 0; first -= 4) {
    picture += RowShift(Square(first)) == 1 ? "     " : "   ";
    for (int square = first; square < first + 4; ++square) {
      picture += marks.substr(std::size_t(square), 1) + (square < first + 3 ? "   " : "\n");
    }
  }
  return picture;
}
