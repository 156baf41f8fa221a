#pragma once

// Places on a form, in twips counted from the top left of its client area.

constexpr int TwipsPerPixel = 15;

struct Point {
  int X = 0;
  int Y = 0;

  bool operator==(const Point&) const = default;
};

struct Rect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  bool operator==(const Rect&) const = default;
};

/// Whether the point is in the rectangle. Its right and bottom edges are outside.
constexpr bool Contains(const Rect& rect, Point point) {
  return point.X >= rect.Left && point.X < rect.Left + rect.Width && point.Y >= rect.Top &&
         point.Y < rect.Top + rect.Height;
}
