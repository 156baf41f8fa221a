#include "toolkit/pointer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

/// Pixel by pixel, each coordinate rounded towards the start.
std::vector<const Control*> Walk(const Form& form, Point from, Point to) {
  const int way = std::max(std::abs(to.X - from.X), std::abs(to.Y - from.Y));
  const int steps = std::max(1, (way + TwipsPerPixel - 1) / TwipsPerPixel);
  std::vector<const Control*> seen;
  for (int step = 0; step <= steps; ++step) {
    const Point at{from.X + (to.X - from.X) * step / steps,
                   from.Y + (to.Y - from.Y) * step / steps};
    const Control* control = ControlAt(form, at);
    if (!Contains({0, 0, form.Width, form.Height}, at)) continue;
    if (std::ranges::find(seen, control) == seen.end()) seen.push_back(control);
  }
  return seen;
}

TEST(Pointer, CrossesWhatLiesOnItsLine) {
  std::mt19937 generator(1);
  const auto between = [&](int low, int high) {
    return std::uniform_int_distribution(low, high)(generator);
  };
  for (int round = 0; round < 3000; ++round) {
    Form form;
    form.Width = form.Height = 900;
    std::vector<Control> controls(8);
    for (Control& control : controls) {
      const Rect place{between(-300, 900), between(-300, 900), between(0, 600), between(0, 600)};
      control = MakeControl(ControlKind::Label, "", place);
      control.Visible = between(0, 3) != 0;
      form.Controls.push_back(&control);
    }
    const Point from{between(-600, 1500), between(-600, 1500)};
    const Point ends[] = {from,
                          {from.X, between(-600, 1500)},
                          {between(-600, 1500), from.Y},
                          {between(-600, 1500), between(-600, 1500)}};
    for (const Point to : ends) ASSERT_EQ(ControlsAlong(form, from, to), Walk(form, from, to));
  }
}

}  // namespace
