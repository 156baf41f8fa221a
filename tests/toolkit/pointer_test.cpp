#include "toolkit/pointer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "toolkit/shown_form.h"

namespace {

/// A form with controls anywhere, some hidden, and numbers of the same chance.
class AnyForm : public testing::Test {
 protected:
  AnyForm() {
    form.Width = form.Height = 900;
    for (Control& control : controls) form.Controls.push_back(&control);
  }

  int Between(int low, int high) { return std::uniform_int_distribution(low, high)(generator); }
  Point AnyPoint() { return {Between(-600, 1500), Between(-600, 1500)}; }

  void Shuffle() {
    for (Control& control : controls) {
      control = MakeControl(ControlKind::Image, "", {});
      control.Left = Between(-300, 900);
      control.Top = Between(-300, 900);
      control.Width = Between(0, 600);
      control.Height = Between(0, 600);
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
    Shuffle();
    const Point from = AnyPoint();
    for (const Point to : {from, {from.X, AnyPoint().Y}, {AnyPoint().X, from.Y}, AnyPoint()}) {
      ASSERT_EQ(ControlsAlong(form, from, to), Walk(form, from, to));
    }
  }
}

TEST_F(AnyForm, IsShownWhereItHasChanged) {
  Shuffle();
  form.Describe = [](const Control& control) { return control.Visible ? control.Caption : ""; };
  const Picture picture;
  ShownForm shown(form);
  std::array<Look, 8> looks;
  std::array<std::string, 8> words;
  std::optional<Rect> outline;
  for (int round = 0; round < 3000; ++round) {
    Control& control = controls[std::size_t(Between(0, 7))];
    const int what = Between(0, 6);
    if (what == 0) control.Visible = !control.Visible;
    if (what == 1) control.Left = Between(0, 5);
    if (what == 2) control.Picture = control.Picture ? nullptr : &picture;
    if (what == 3) control.BackColor = Color{0, 0, std::uint8_t(Between(0, 1))};
    if (what == 4) control.Caption = std::to_string(Between(0, 1));
    const Drag drag{Between(0, 1) == 0 ? &form : nullptr,
                    what > 2 ? &control : nullptr,
                    {Between(0, 2), 5},
                    {7, Between(0, 2)}};
    const ShownForm::Changes changes = shown.Update(drag);
    EXPECT_EQ(changes.OutlineBefore, outline);
    EXPECT_EQ(changes.HasOutlineChanged, shown.Outline() != outline);
    outline = shown.Outline();
    EXPECT_EQ(outline.has_value(), drag.Source && drag.Window);
    const Rect place{control.Left + 7 - drag.Start.X, control.Top + drag.Pointer.Y - 5,
                     control.Width, control.Height};
    EXPECT_EQ(outline.value_or(place), place);
    for (const auto& [at, before, now] : changes.Looks) {
      EXPECT_TRUE(before != now && std::exchange(looks[at], now) == before);
    }
    for (const auto& [at, before, now] : changes.Words) {
      EXPECT_TRUE(before != now && std::exchange(words[at], now) == before);
    }
    for (std::size_t at = 0; at < 8; ++at) {
      const Control& told = controls[at];
      EXPECT_EQ(looks[at],
                (Look{told.Visible, RectOf(told), told.Picture, told.BackColor, told.Caption}));
      EXPECT_EQ(words[at], form.Describe(told));
    }
  }
}

}  // namespace
