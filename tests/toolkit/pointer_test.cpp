#include "toolkit/pointer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <random>

#include "toolkit/buttons.h"
#include "toolkit/shown_form.h"

namespace {

constexpr int Pixel = TwipsPerPixel;

/// A form with controls on any pixels, some of them hidden.
class AnyForm : public testing::Test {
 protected:
  AnyForm() {
    form.Width = form.Height = 20 * Pixel;
    for (Control& control : controls) form.Controls.push_back(&control);
  }

  int Between(int low, int high) { return std::uniform_int_distribution(low, high)(generator); }

  void Scatter() {
    const auto pixels = [this](int low, int high) { return Between(low, high) * Pixel; };
    for (Control& control : controls) {
      const Rect place{pixels(-7, 20), pixels(-7, 20), pixels(0, 14), pixels(0, 14)};
      control = MakeControl(ControlKind::Image, "", place);
      control.Visible = Between(0, 3) != 0;
    }
  }

  std::mt19937 generator{1};
  std::array<Control, 8> controls;
  Form form;
};

/// A form with a control on each pixel, named by its place.
struct PixelForm : Form {
  explicit PixelForm(int size) : pixels(std::size_t(size * size)) {
    Width = Height = size * Pixel;
    for (int place = 0; Control & control : pixels) {
      const int x = place % size, y = place++ / size;
      control = MakeControl(ControlKind::Label, "", {x * Pixel, y * Pixel, Pixel, Pixel});
      control.Name = std::to_string(x) + ',' + std::to_string(y) + ' ';
      Controls.push_back(&control);
    }
  }
  PixelForm(const PixelForm&) = delete;

  std::vector<Control> pixels;
};

TEST(Way, RoundsToPixels) {
  const PixelForm form(4);
  const auto way = [&](Point from, Point to) {
    std::string names;
    for (const Control* pixel : ControlsAlong(form, from, to)) names += pixel->Name;
    return names;
  };
  EXPECT_EQ(way({0, 14}, {45, 16}), "0,0 1,0 2,1 3,1 ") << "14.7 is rounded to 14";
  EXPECT_EQ(way({14, 0}, {16, 45}), "0,0 0,1 1,2 1,3 ") << "14.7 is rounded to 14";
  EXPECT_EQ(way({45, 16}, {0, 14}), "3,1 2,1 1,1 0,0 ") << "15.3 is rounded to 16";
  EXPECT_EQ(way({30, 30}, {30, 30}), "2,2 ");
  EXPECT_EQ(way({74, 30}, {14, 30}), "3,2 2,2 1,2 0,2 ") << "starts one pixel outside";
  constexpr int Low = std::numeric_limits<int>::min(), High = std::numeric_limits<int>::max();
  EXPECT_EQ(way({Low, Low}, {High, High}), "0,0 1,1 2,2 3,3 ");
}

TEST_F(AnyForm, GetsEventsFromEachPixelOnTheWay) {
  const PixelForm pixels(40);
  const auto onForm = [](Point point) { return Point{point.X - 10 * Pixel, point.Y - 10 * Pixel}; };
  const auto areNeighbours = [](const Control* a, const Control* b) {
    return std::max(std::abs(a->Left - b->Left), std::abs(a->Top - b->Top)) == Pixel;
  };
  for (int round = 0; round < 1000; ++round) {
    Scatter();
    const auto any = [&] { return Between(0, pixels.Width - 1); };
    const Point from{any(), any()};
    const Point to{round % 4 == 0 ? from.X : any(), round % 4 == 1 ? from.Y : any()};
    const auto way = ControlsAlong(pixels, from, to);
    ASSERT_EQ(way.front(), ControlAt(pixels, from));
    ASSERT_EQ(way.back(), ControlAt(pixels, to));
    ASSERT_EQ(std::ranges::adjacent_find(way, std::not_fn(areNeighbours)), way.end());
    std::vector<const Control*> inFront;
    for (const Control* pixel : way) {
      const Point at = onForm({pixel->Left, pixel->Top});
      if (!Contains({0, 0, form.Width, form.Height}, at)) continue;
      const Control* front = ControlAt(form, at);
      if (std::ranges::find(inFront, front) == inFront.end()) inFront.push_back(front);
    }
    ASSERT_EQ(ControlsAlong(form, onForm(from), onForm(to)), inFront);
  }
}

TEST(Buttons, MakePressesReleasesAndCancelledDrags) {
  using enum InputEvent::Kind;
  using Input = std::vector<InputEvent::Kind>;
  ButtonWatch watch;
  const auto see = [&](unsigned buttons, bool isMove) { return watch.See(buttons, isMove); };
  EXPECT_EQ(see(0, true), Input{Move});
  EXPECT_EQ(see(1, false), Input{Press});
  EXPECT_EQ(see(1, true), Input{Move});
  EXPECT_EQ(see(3, true), (Input{CancelDrag, Move}))
      << "a second button, reported with a movement, as browsers do";
  EXPECT_EQ(see(1, false), Input{}) << "that button goes up";
  EXPECT_EQ(see(5, false), Input{CancelDrag}) << "reported without a movement, as other hosts do";
  EXPECT_EQ(see(4, true), (Input{Move, Release}));
  EXPECT_EQ(see(0, false), Input{});
  EXPECT_EQ(see(1, false), Input{Press});
  EXPECT_EQ(see(1, false), Input{Press}) << "the release before was lost";
  EXPECT_EQ(see(0, true), (Input{CancelDrag, Move})) << "its release was lost too";
  EXPECT_EQ(see(0, false), Input{});
}

/// A host that applies the changes shows the form as it is. No change is superfluous.
TEST_F(AnyForm, IsShownRightByItsChangesAlone) {
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
