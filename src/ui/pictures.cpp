#include "ui/pictures.h"

#include <cmath>
#include <numbers>
#include <optional>

namespace {

constexpr int CellSize = 65;
constexpr double Centre = CellSize / 2.0;
constexpr double DiscMargin = 3;   // leaves a disc of 59 pixels
constexpr double StarRadius = 23;  // from the centre to a point: 44 pixels across
constexpr double RimWidth = 2.5;   // between the points of a star and those of its rim

constexpr Color BlueDisc{36, 1, 254};
constexpr Color GreenDisc{36, 255, 2};
constexpr Color Cyan{1, 255, 255};
constexpr Color DarkGreen{1, 127, 1};
constexpr Color LighterGreen{96, 191, 96};

PictureShape Box(double left, double top, double right, double bottom, Color fill) {
  return {PictureShape::Kind::Rectangle, fill, {{left, top}, {right, bottom}}};
}

PictureShape Disc(Color fill) {
  constexpr double End = CellSize - DiscMargin;
  return {PictureShape::Kind::Ellipse, fill, {{DiscMargin, DiscMargin}, {End, End}}};
}

/// A five-pointed star in the middle of the cell, one point upward.
PictureShape Star(double radius, Color fill) {
  // The inner corners of a star whose sides run straight from point to point.
  const double innerRadius = radius * (3 - std::sqrt(5.0)) / 2;
  PictureShape star{PictureShape::Kind::Polygon, fill, {}};
  for (int corner = 0; corner < 10; ++corner) {
    const double angle = corner * std::numbers::pi / 5;
    const double distance = corner % 2 == 0 ? radius : innerRadius;
    star.Corners.emplace_back(Centre + distance * std::sin(angle),
                              Centre - distance * std::cos(angle));
  }
  return star;
}

Picture Man(Color ground, Color disc) {
  return {CellSize, CellSize, {Box(0, 0, CellSize, CellSize, ground), Disc(disc)}};
}

Picture King(Color ground, Color disc, Color star, std::optional<Color> rim = std::nullopt) {
  Picture picture = Man(ground, disc);
  if (rim) picture.Shapes.push_back(Star(StarRadius, *rim));
  picture.Shapes.push_back(Star(rim ? StarRadius - RimWidth : StarRadius, star));
  return picture;
}

Picture CheckerBoard() {
  constexpr int Cell = 8;
  Picture board{8 * Cell, 8 * Cell, {Box(0, 0, 8 * Cell, 8 * Cell, Red)}};
  for (int row = 0; row < 8; ++row) {
    for (int column = 1 - row % 2; column < 8; column += 2) {
      board.Shapes.push_back(
          Box(column * Cell, row * Cell, (column + 1) * Cell, (row + 1) * Cell, Black));
    }
  }
  return board;
}

}  // namespace

const Picture BlueCheckerPicture = Man(Black, BlueDisc);
const Picture GreenCheckerPicture = Man(Black, GreenDisc);
const Picture BlueKingPicture = King(Black, BlueDisc, Cyan);
const Picture GreenKingPicture = King(Black, GreenDisc, DarkGreen, LighterGreen);
const Picture GreenCheckerHighlightPicture = Man(GreenDisc, Black);
const Picture GreenKingHighlightPicture = King(GreenDisc, Black, DarkGreen, LighterGreen);
const Picture CheckerBoardPicture = CheckerBoard();
