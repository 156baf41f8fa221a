#pragma once

#include <cstdint>
#include <utility>
#include <vector>

struct Color {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;

  bool operator==(const Color&) const = default;
};

constexpr Color Black{0, 0, 0};
constexpr Color White{255, 255, 255};
constexpr Color Red{255, 0, 0};

/// One filled outline of a picture, in pixels of the picture's own grid.
struct PictureShape {
  enum class Kind {
    Rectangle,  // Corners: top left, bottom right
    Ellipse,    // Corners: top left, bottom right of its box
    Polygon,    // Corners: its points in order
  };

  Kind Outline = Kind::Rectangle;
  Color Fill;
  std::vector<std::pair<double, double>> Corners;
};

/// A drawing made of shapes, painted in order, so that a host can draw it sharp at any scale.
/// Controls refer to pictures by address: two controls show the same picture if they share it.
struct Picture {
  int Width = 0;   // pixels
  int Height = 0;  // pixels
  std::vector<PictureShape> Shapes;
};
