#include "toolkit/toolkit.h"

#include <gtest/gtest.h>

#include "support/virtual_host.h"

namespace {

using namespace std::chrono_literals;
using enum InputEvent::Kind;
using Ticks = std::vector<std::int64_t>;

/// A window with an image, a label and a timer of 200 ms that is on from the start.
class ToolkitTest : public testing::Test {
 protected:
  ToolkitTest() {
    image.DragMode = 1;
    form.Width = form.Height = 500;
    form.Controls = {&image, &label};
    timer.Interval = 200ms;
    timer.Tick = [this] { ticks.push_back(host.Now() / 1ms); };
    form.Timers = {&timer};
    toolkit.Show(form);
    toolkit.SetEnabled(timer, true);
    host.BoxTime = 500ms;
  }

  void Choose(std::function<void()> action) {
    command.Click = std::move(action);
    host.Put({.What = MenuCommand, .Window = &form, .Command = &command});
  }

  Ticks TicksUntil(Instant when) {
    host.At(when, [] { throw Quiet{}; });
    EXPECT_THROW(toolkit.Run(), Quiet);
    return ticks;
  }

  /// Delivers an input event and returns what is then dragged.
  const Control* Send(InputEvent::Kind what, Point at = {}) {
    host.Put({.What = what, .Window = &form, .At = at});
    toolkit.DoEvents();
    return host.ShownDrag.Source;
  }

  VirtualHost host;
  Toolkit toolkit{host};
  Form form;
  Control image = MakeControl(ControlKind::Image, "", {0, 0, 100, 100});
  Control label = MakeControl(ControlKind::Label, "", {200, 0, 100, 100});
  TimerControl timer;
  MenuItem command;
  Ticks ticks;
};

TEST_F(ToolkitTest, TimersWaitForABoxAndKeepTheirBeat) {
  const auto showBox = [this] { toolkit.MsgBox("", MessageIcon::Stop, ""); };
  host.At(100ms, [this] { toolkit.SetEnabled(timer, true); });
  host.At(250ms, [=, this] { Choose(showBox); });  // until 750
  host.At(1050ms, [=, this] {
    Choose([=, this] {
      showBox();
      toolkit.SetEnabled(timer, false);  // this drops the tick that was due
      toolkit.SetEnabled(timer, true);
    });
  });
  EXPECT_EQ(TicksUntil(1800ms), (Ticks{200, 750, 800, 1000, 1750}));
}

TEST_F(ToolkitTest, ADueTickGoesBeforeWaitingInput) {
  host.At(200ms, [this] { Choose([this] { ticks.push_back(0); }); });
  EXPECT_EQ(TicksUntil(300ms), (Ticks{200, 0}));
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

TEST_F(ToolkitTest, DragsStartFollowAndEnd) {
  int overs = 0;
  int cancelled = 0;
  const ControlEvents none;
  const ControlEvents events{.DragOver = [&](int, const Control&) { ++overs; }};
  image.Events = &events;
  label.Events = &none;
  form.DragCancelled = [&] { ++cancelled; };
  const std::pair<Point, bool> releases[] = {{{-1, 0}, false},  {{0, -1}, false}, {{500, 0}, false},
                                             {{0, 500}, false}, {{0, 0}, true},   {{250, 50}, true},
                                             {{499, 499}, true}};
  for (const auto& [at, isInside] : releases) {
    overs = cancelled = 0;
    EXPECT_EQ(Send(Press, {50, 50}), &image);
    EXPECT_EQ(overs, 1) << "over the image itself";
    EXPECT_EQ(Send(Move, at), &image);
    EXPECT_EQ(host.ShownDrag.Pointer, at);
    EXPECT_EQ(Send(Release, at), nullptr);
    EXPECT_EQ(cancelled, isInside ? 0 : 1) << at.X << ',' << at.Y;
    EXPECT_EQ(Send(Press, {250, 50}), nullptr) << "a label cannot be dragged";
  }
  cancelled = 0;
  Send(Press, {50, 50});
  EXPECT_EQ(Send(CancelDrag), nullptr);
  Send(Press, {50, 50});
  Choose([&] { EXPECT_EQ(cancelled, 2) << "the drag is cancelled first"; });
  toolkit.DoEvents();
  Send(Press, {50, 50});
  toolkit.MsgBox("", MessageIcon::Stop, "");
  EXPECT_EQ(cancelled, 3);
  toolkit.DoEvents();  // the tick that came due while the box was open
  EXPECT_EQ(Send(Press, {50, 50}), &image);
  image.Visible = false;
  EXPECT_EQ(Send(Move, {60, 50}), nullptr) << "the image is hidden now";
}

TEST_F(ToolkitTest, AClickIsPressedAndReleasedOnTheSameControl) {
  const ControlEvents events{.Click = [this](int index) { ticks.push_back(index); }};
  label.Events = &events;
  form.Events = events;
  label.Index = 7;
  constexpr Point Label{250, 50}, Bare{450, 450}, Outside{600, 50};
  for (const auto& [from, to] : {std::pair{Label, Label},
                                 {Bare, Bare},
                                 {Label, Bare},
                                 {Bare, Label},
                                 {Bare, Outside},
                                 {Outside, Bare}}) {
    Send(Press, from);
    Send(Release, to);
    Send(Release, to);
  }
  EXPECT_EQ(ticks, (Ticks{7, 0}));
  image.Events = &events;
  for (const InputEvent::Kind what : {Press, CancelDrag, Release}) Send(what, {50, 50});
  EXPECT_EQ(ticks, (Ticks{7, 0})) << "a drag is no click, not even a cancelled one";
}

TEST_F(ToolkitTest, FormsComeToTheFrontAndClose) {
  Form other;
  toolkit.Show(other);
  Choose([&] { toolkit.ZOrder(form); });
  toolkit.DoEvents();
  EXPECT_EQ(host.Forms, (std::vector{&form, &other}));
  form.Unload = [this] { ticks.push_back(timer.Enabled); };
  host.Put({.What = Close, .Window = &form});
  Choose([&] { ADD_FAILURE() << "a command of a closed window was run"; });
  toolkit.DoEvents();
  EXPECT_EQ(host.Queue.size(), 1) << "one event at a time";
  toolkit.DoEvents();
  EXPECT_EQ(host.Forms, std::vector{&other});
  EXPECT_EQ(ticks, Ticks{1});
  EXPECT_FALSE(timer.Enabled || form.Visible);
  host.Put({.What = Close, .Window = &other});
  EXPECT_THROW(toolkit.DoEvents(), ProgramEnded);
}

}  // namespace
