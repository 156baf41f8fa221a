#include "toolkit/toolkit.h"

#include <gtest/gtest.h>

#include "support/virtual_host.h"

namespace {

using namespace std::chrono_literals;
using Kind = InputEvent::Kind;
using Ticks = std::vector<std::int64_t>;

/// A window with one timer and two pieces of 100 by 100 pixels: one that can be dragged, one that
/// cannot.
class ToolkitTest : public testing::Test {
 protected:
  ToolkitTest() {
    timer.Interval = 200ms;
    timer.Tick = [this] { ticks.push_back(host.Now() / 1ms); };
    form.Timers = {&timer};
    form.Width = form.Height = 400 * TwipsPerPixel;
    for (Control* image : {&left, &right}) {
      image->Kind = ControlKind::Image;
      image->Index = image == &left ? 1 : 2;
      image->DragMode = 2 - image->Index;
      image->Left = (image->Index - 1) * 100 * TwipsPerPixel;
      image->Width = image->Height = 100 * TwipsPerPixel;
      image->Events = &events;
      form.Controls.push_back(image);
    }
    events = {Hear("click"), Hear("move"), HearDrag("over"), HearDrag("drop")};
    form.Events = {Hear("click"), Hear("move"), HearDrag("over"), HearDrag("drop")};
    form.DragCancelled = [this] { log += "cancelled "; };
    toolkit.Show(form);
    toolkit.SetEnabled(timer, true);
  }

  std::function<void(int)> Hear(std::string what) {
    return [this, what](int index) { log += what + std::to_string(index) + ' '; };
  }
  std::function<void(int, const Control&)> HearDrag(std::string what) {
    return [this, what](int index, const Control&) { log += what + std::to_string(index) + ' '; };
  }

  /// In pixels.
  void Put(Kind what, int x, int y) {
    host.Put({.What = what, .Window = &form, .At = {x * TwipsPerPixel, y * TwipsPerPixel}});
  }

  /// Opens a message box from 250 to 750, and then does something more.
  void OpenBox(std::function<void()> then = [] {}) {
    host.BoxTime = 500ms;
    command.Click = [this, then] {
      toolkit.MsgBox("", MessageIcon::Stop, "");
      then();
    };
    host.At(250ms, [this] {
      host.Put({.What = Kind::MenuCommand, .Window = &form, .Command = &command});
    });
  }

  Ticks TicksUntil(Instant when) {
    host.At(when, [] { throw Quiet{}; });
    EXPECT_THROW(toolkit.Run(), Quiet);
    return ticks;
  }

  /// What the controls hear of the input that is queued.
  std::string Heard() {
    while (!host.Queue.empty()) toolkit.DoEvents();
    return std::exchange(log, {});
  }

  VirtualHost host;
  Toolkit toolkit{host};
  Form form;
  TimerControl timer;
  MenuItem command;
  Control left, right;
  ControlEvents events;
  Ticks ticks;
  std::string log;
};

TEST_F(ToolkitTest, TimersWaitForABoxAndKeepTheirBeat) {
  host.At(100ms, [this] { toolkit.SetEnabled(timer, true); });
  OpenBox();
  EXPECT_EQ(TicksUntil(1100ms), (Ticks{200, 750, 800, 1000}));
}

TEST_F(ToolkitTest, TimersForgetADueTickWhenSwitchedOff) {
  OpenBox([this] {
    toolkit.SetEnabled(timer, false);
    toolkit.SetEnabled(timer, true);
  });
  EXPECT_EQ(TicksUntil(1100ms), (Ticks{200, 950}));
}

TEST_F(ToolkitTest, TimersNeverTickInTheirOwnHandler) {
  TimerControl other;
  other.Interval = 150ms;
  other.Tick = [&] { ticks.push_back(0); };
  form.Timers.push_back(&other);
  toolkit.SetEnabled(other, true);
  timer.Tick = [&] {
    ticks.push_back(host.Now() / 1ms);
    while (host.Now() < 700ms) toolkit.DoEvents();
    ticks.push_back(-1);
  };
  EXPECT_EQ(TicksUntil(850ms), (Ticks{0, 200, 0, 0, 0, 0, -1, 750, -1, 800, -1}));
}

TEST_F(ToolkitTest, DoEventsDeliversOneEvent) {
  Put(Kind::Move, 50, 50);
  Put(Kind::Move, 60, 50);
  toolkit.DoEvents();
  EXPECT_EQ(std::exchange(log, {}), "move1 ");
  EXPECT_EQ(Heard(), "move1 ");
}

TEST_F(ToolkitTest, DragsAreHeardAlongTheWayAndEndOnce) {
  Put(Kind::Press, 50, 50);
  EXPECT_EQ(Heard(), "move1 over1 ");
  Put(Kind::Release, 350, 50);
  EXPECT_EQ(Heard(), "over1 over2 over0 drop0 ");
  Put(Kind::Press, 150, 50);
  Put(Kind::Release, 150, 60);
  EXPECT_EQ(Heard(), "move0 move2 move2 click2 ");
  Put(Kind::Press, 50, 50);
  Put(Kind::Release, -50, 50);
  Put(Kind::Release, 50, 50);
  EXPECT_EQ(Heard(), "move2 move1 over1 over1 cancelled move1 ");
}

TEST_F(ToolkitTest, DragsEndWithTheSourceAndHiddenControlsHearNothing) {
  Put(Kind::Press, 50, 50);
  Heard();
  left.Visible = false;
  Put(Kind::Release, 50, 60);
  EXPECT_EQ(Heard(), "cancelled move0 ");
}

}  // namespace
