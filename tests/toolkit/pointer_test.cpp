#include "toolkit/pointer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "toolkit/shown_form.h"

namespace {

/// A form with controls anywhere, some of them hidden.
class AnyForm : public testing::Test {
 protected:
  AnyForm() {
    form.Width = form.Height = 900;
    for (Control& control : controls) form.Controls.push_back(&control);
  }

  int Between(int low, int high) { return std::uniform_int_distribution(low, high)(generator); }
  Point AnyPoint() { return {Between(-600, 1500), Between(-600, 1500)}; }

  void Scatter() {
    for (Control& control : controls) {
      const Rect place{Between(-300, 900), Between(-300, 900), Between(0, 600), Between(0, 600)};
      control = MakeControl(ControlKind::Image, "", place);
      control.Visible = Between(0, 3) != 0;
    }
  }

  std::mt19937 generator{1};
  std::array<Control, 8> controls;
  Form form;
};

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

TEST_F(AnyForm, TellsWhatLiesOnALine) {
  for (int round = 0; round < 3000; ++round) {
    Scatter();
    const Point from = AnyPoint();
    for (const Point to : {from, {from.X, AnyPoint().Y}, {AnyPoint().X, from.Y}, AnyPoint()}) {
      ASSERT_EQ(ControlsAlong(form, from, to), Walk(form, from, to));
    }
  }
}

/// Whoever follows the changes shows what the form says, and hears of nothing else.
TEST_F(AnyForm, IsShownByItsChanges) {
  form.Describe = [](const Control& control) { return control.Visible ? control.Caption : ""; };
  ShownForm shown(form);
  std::array<Look, 8> looks;
  std::array<std::string, 8> words;
  std::optional<Rect> outline;
  for (int round = 0; round < 300; ++round) {
    if (round % 3 == 0) Scatter();
    if (round % 3 == 1) controls[std::size_t(round) % 8].Caption = std::to_string(round / 9);
    const Drag drag{round % 5 == 0 ? &form : nullptr,
                    round % 7 == 0 ? nullptr : &controls[2],
                    {1, Between(2, 3)},
                    {Between(4, 5), 6}};
    const ShownForm::Changes changes = shown.Update(drag);
    EXPECT_EQ(changes.OutlineBefore, outline);
    EXPECT_EQ(changes.HasOutlineChanged, OutlineOf(form, drag) != outline);
    EXPECT_EQ(outline = shown.Outline(), OutlineOf(form, drag));
    for (const auto& [at, before, now] : changes.Looks) {
      EXPECT_TRUE(before != now && std::exchange(looks[at], now) == before);
    }
    for (const auto& [at, before, now] : changes.Words) {
      EXPECT_TRUE(before != now && std::exchange(words[at], now) == before);
    }
    for (std::size_t at = 0; at < 8; ++at) {
      EXPECT_TRUE(looks[at] == LookOf(controls[at]) && words[at] == form.Describe(controls[at]));
    }
  }
  const Drag drag{&form, &controls[2], {1, 2}, {5, 7}};
  const Rect from = RectOf(controls[2]);
  EXPECT_EQ(OutlineOf(form, drag), (Rect{from.Left + 4, from.Top + 5, from.Width, from.Height}));
}

}  // namespace
