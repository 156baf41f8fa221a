#include "toolkit/toolkit.h"

#include <gtest/gtest.h>

#include "support/virtual_host.h"

namespace {

using namespace std::chrono_literals;
using Ticks = std::vector<std::int64_t>;

/// A window with a timer of 200 ms that is on from the start.
class ToolkitTest : public testing::Test {
 protected:
  ToolkitTest() {
    timer.Interval = 200ms;
    timer.Tick = [this] { ticks.push_back(host.Now() / 1ms); };
    form.Timers = {&timer};
    toolkit.Show(form);
    toolkit.SetEnabled(timer, true);
    host.BoxTime = 500ms;
  }

  void Choose(std::function<void()> action) {
    command.Click = std::move(action);
    host.Put({.What = InputEvent::Kind::MenuCommand, .Window = &form, .Command = &command});
  }

  /// From 250 to 750.
  void ShowBox() { toolkit.MsgBox("", MessageIcon::Stop, ""); }

  Ticks TicksUntil(Instant when) {
    host.At(when, [] { throw Quiet{}; });
    EXPECT_THROW(toolkit.Run(), Quiet);
    return ticks;
  }

  VirtualHost host;
  Toolkit toolkit{host};
  Form form;
  TimerControl timer;
  MenuItem command;
  Ticks ticks;
};

TEST_F(ToolkitTest, TimersWaitForABoxAndKeepTheirBeat) {
  host.At(100ms, [this] { toolkit.SetEnabled(timer, true); });
  host.At(250ms, [this] { Choose([this] { ShowBox(); }); });
  EXPECT_EQ(TicksUntil(1100ms), (Ticks{200, 750, 800, 1000}));
}

TEST_F(ToolkitTest, TimersForgetADueTickWhenSwitchedOff) {
  host.At(250ms, [this] {
    Choose([this] {
      ShowBox();
      toolkit.SetEnabled(timer, false);
      toolkit.SetEnabled(timer, true);
    });
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
  for (const int number : {1, 2}) Choose([this, number] { ticks.push_back(number); });
  toolkit.DoEvents();
  EXPECT_EQ(host.Queue.size(), 1);
}

TEST_F(ToolkitTest, DragsStartFollowAndEndWithAnyHandlers) {
  const ControlEvents none;
  Control image = MakeControl(ControlKind::Image, "", {0, 0, 100, 100});
  Control label = MakeControl(ControlKind::Label, "", {200, 0, 100, 100});
  image.DragMode = 1;
  image.Events = &none;
  form.Width = form.Height = 500;
  form.Controls = {&image, &label};
  const auto send = [this](InputEvent::Kind what, Point at = {}) {
    host.Put({.What = what, .Window = &form, .At = at});
    toolkit.DoEvents();
    return host.ShownDrag.Source;
  };
  using enum InputEvent::Kind;
  for (const Point at : {Point{50, 50}, Point{250, 50}, Point{450, 450}, Point{600, 50}}) {
    EXPECT_EQ(send(Press, {50, 50}), &image);
    EXPECT_EQ(send(Move, at), &image);
    EXPECT_EQ(host.ShownDrag.Pointer, at);
    EXPECT_EQ(send(Release, at), nullptr);
    EXPECT_EQ(send(Press, at), at.X == 50 ? &image : nullptr);
    EXPECT_EQ(send(CancelDrag), nullptr);
    EXPECT_EQ(send(Release, at), nullptr);
  }
  int cancelled = 0;
  form.DragCancelled = [&] { ++cancelled; };
  const auto dropAt = [&](Point at) {
    send(Press, {50, 50});
    send(Release, at);
    return cancelled;
  };
  EXPECT_EQ(dropAt({0, 0}) + dropAt({499, 499}), 0) << "still inside";
  for (const Point outside : {Point{-1, 0}, {0, -1}, {500, 0}, {0, 500}}) {
    const int before = cancelled;
    EXPECT_EQ(dropAt(outside), before + 1);
  }
  EXPECT_EQ(send(Press, {50, 50}), &image);
  image.Visible = false;
  EXPECT_EQ(send(Move, {60, 50}), nullptr) << "nothing is left to drag";
  Choose({});
  toolkit.DoEvents();
  EXPECT_TRUE(host.Queue.empty());
}

TEST_F(ToolkitTest, FormsComeToTheFrontAndGo) {
  Form other;
  toolkit.Show(other);
  Choose([&] { toolkit.ZOrder(form); });
  toolkit.DoEvents();
  EXPECT_EQ(host.Forms, (std::vector{&form, &other}));
  form.Unload = [this] { ticks.push_back(timer.Enabled); };
  host.Put({.What = InputEvent::Kind::Close, .Window = &form});
  Choose([&] { ADD_FAILURE() << "of a window that has gone"; });
  toolkit.DoEvents();
  toolkit.DoEvents();
  EXPECT_EQ(host.Forms, std::vector{&other});
  EXPECT_EQ(ticks, Ticks{1});
  EXPECT_FALSE(timer.Enabled || form.Visible);
  host.Put({.What = InputEvent::Kind::Close, .Window = &other});
  EXPECT_THROW(toolkit.DoEvents(), ProgramEnded);
}

}  // namespace
