#include "toolkit/toolkit.h"

#include <gtest/gtest.h>

#include "support/virtual_host.h"

namespace {

using namespace std::chrono_literals;
using Kind = InputEvent::Kind;

/// A bare window with a timer and a few controls, and a log of what they hear.
class ToolkitTest : public testing::Test {
 protected:
  ToolkitTest() {
    timer.Interval = 200ms;
    timer.Tick = [this] { ticks.push_back(host.Now() / 1ms); };
    form.Timers = {&timer};
    form.Width = form.Height = 400 * TwipsPerPixel;
    for (auto [control, name, left] :
         {std::tuple{&image, "image", 0}, {&hidden, "hidden", 100}, {&label, "label", 0}}) {
      control->Kind = ControlKind::Image;
      control->Name = name;
      control->Left = left * TwipsPerPixel;
      control->Width = control->Height = 100 * TwipsPerPixel;
      form.Controls.push_back(control);
    }
    label.Kind = ControlKind::Label;
    label.Width = 200 * TwipsPerPixel;
    hidden.Visible = false;
    image.DragMode = 1;
    const auto hear = [this](Control& control, ControlEvents& events) {
      const std::string name = control.Name;
      events = {[=, this](int) { log += name + " click, "; },
                [=, this](int) { log += name + " move, "; },
                [=, this](int, const Control&) { log += name + " over, "; },
                [=, this](int, const Control&) { log += name + " drop, "; }};
      control.Events = &events;
    };
    hear(image, imageEvents);
    hear(hidden, hiddenEvents);
    hear(label, labelEvents);
    form.Events = {.DragOver = [this](int, const Control&) { log += "form over, "; },
                   .DragDrop = [this](int, const Control&) { log += "form drop, "; }};
    form.DragCancelled = [this] { log += "cancelled, "; };
    toolkit.Show(form);
  }

  /// Pixels of the window.
  void Put(Kind what, int x, int y) {
    host.Put({.What = what, .Window = &form, .At = {x * TwipsPerPixel, y * TwipsPerPixel}});
  }

  /// Opens a message box for half a second, and then does something more.
  void OpenBoxAt(
      Instant when, std::function<void()> then = [] {}) {
    host.BoxTime = 500ms;
    command.Click = [this, then] {
      toolkit.MsgBox("", MessageIcon::Stop, "");
      then();
    };
    host.At(when, [this] {
      host.Put({.What = Kind::MenuCommand, .Window = &form, .Command = &command});
    });
  }

  void RunUntil(Instant when) {
    host.At(when, [] { throw Quiet{}; });
    try {
      toolkit.Run();
    } catch (const Quiet&) {
    }
  }

  std::string Heard() {
    while (!host.Queue.empty()) toolkit.DoEvents();
    return std::exchange(log, {});
  }

  VirtualHost host;
  Toolkit toolkit{host};
  Form form;
  TimerControl timer;
  MenuItem command;
  Control image, hidden, label;
  ControlEvents imageEvents, hiddenEvents, labelEvents;
  std::vector<std::int64_t> ticks;
  std::string log;
};

using Ticks = std::vector<std::int64_t>;

TEST_F(ToolkitTest, TimersWaitForABoxAndKeepTheirBeat) {
  toolkit.SetEnabled(timer, true);
  host.At(100ms, [this] { toolkit.SetEnabled(timer, true); });
  OpenBoxAt(250ms);
  RunUntil(1100ms);
  EXPECT_EQ(ticks, (Ticks{200, 750, 800, 1000}));
}

TEST_F(ToolkitTest, TimersForgetADueTickWhenSwitchedOff) {
  toolkit.SetEnabled(timer, true);
  OpenBoxAt(250ms, [this] {
    toolkit.SetEnabled(timer, false);
    toolkit.SetEnabled(timer, true);
  });
  RunUntil(1100ms);
  EXPECT_EQ(ticks, (Ticks{200, 950}));
}

TEST_F(ToolkitTest, TimersNeverTickInTheirOwnHandler) {
  TimerControl other;
  other.Interval = 150ms;
  int others = 0;
  other.Tick = [&] { ++others; };
  form.Timers.push_back(&other);
  toolkit.SetEnabled(other, true);
  toolkit.SetEnabled(timer, true);
  timer.Tick = [&] {
    ticks.push_back(host.Now() / 1ms);
    while (ticks.size() == 1 && host.Now() < 900ms) toolkit.DoEvents();
    ticks.push_back(-(host.Now() / 1ms));
  };
  RunUntil(1100ms);
  EXPECT_EQ(ticks, (Ticks{200, -900, 900, -900, 1000, -1000}));
  EXPECT_EQ(others, 7);
}

TEST_F(ToolkitTest, DoEventsDeliversOneEventAndSleepsForIt) {
  Put(Kind::Move, 50, 50);
  Put(Kind::Move, 150, 50);
  toolkit.DoEvents();
  EXPECT_EQ(std::exchange(log, {}), "image move, ");
  host.At(3s, [this] { Put(Kind::Move, 150, 60); });
  EXPECT_EQ(Heard(), "image move, label move, ");
  toolkit.DoEvents();
  EXPECT_EQ(host.Now(), 3s);
  EXPECT_EQ(Heard(), "label move, ");
}

TEST_F(ToolkitTest, DragsAreHeardAlongTheWayAndEndOnce) {
  Put(Kind::Press, 50, 50);
  EXPECT_EQ(Heard(), "image move, image over, ");
  Put(Kind::Release, 350, 50);
  EXPECT_EQ(Heard(), "image over, label over, form over, form drop, ");
  Put(Kind::Press, 150, 50);
  Put(Kind::Release, 150, 60);
  EXPECT_EQ(Heard(), "label move, label move, label click, ");
  Put(Kind::Press, 50, 50);
  Put(Kind::Release, -50, 50);
  Put(Kind::Release, 50, 50);
  EXPECT_EQ(Heard(), "label move, image move, image over, image over, cancelled, image move, ");
}

TEST_F(ToolkitTest, DragsAreCancelledByABoxAndByAHiddenSource) {
  Put(Kind::Press, 50, 50);
  Heard();
  timer.Tick = [this] { toolkit.MsgBox("", MessageIcon::Stop, ""); };
  toolkit.SetEnabled(timer, true);
  RunUntil(250ms);
  EXPECT_EQ(Heard(), "cancelled, ");
  Put(Kind::Press, 50, 50);
  Heard();
  image.Visible = false;
  Put(Kind::Release, 150, 50);
  EXPECT_EQ(Heard(), "cancelled, label move, ");
}

}  // namespace
