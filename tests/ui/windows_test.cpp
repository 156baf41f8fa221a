#include <algorithm>

#include "recorded.h"
#include "support/desk.h"
#include "toolkit/paragraphs.h"

namespace {

using namespace std::chrono_literals;

std::ostream& operator<<(std::ostream& out, const Color& color) {
  return out << '#' << int(color.Red) << ',' << int(color.Green) << ',' << int(color.Blue);
}

std::ostream& operator<<(std::ostream& out, const Picture* picture) {
  if (!picture) return out;
  out << " picture " << picture->Width << 'x' << picture->Height;
  for (const PictureShape& shape : picture->Shapes) {
    out << "; " << int(shape.Outline) << ' ' << shape.Fill;
    for (const auto& [x, y] : shape.Corners) out << ' ' << x << ',' << y;
  }
  return out;
}

void Tell(std::ostream& out, const Control& control) {
  out << control.Name << ' ' << control.Index << " kind " << int(control.Kind) << " at "
      << control.Left << ',' << control.Top << ' ' << control.Width << 'x' << control.Height
      << (control.Visible ? "" : " hidden") << (control.DragMode == 1 ? " draggable" : "")
      << control.Picture << " '" << control.Caption << "' " << control.ForeColor;
  if (control.BackColor) out << " on " << *control.BackColor;
  for (const std::string& family : control.Font.Families) out << ", " << family;
  out << ' ' << control.Font.Points << " line " << control.LineWidth << " caption "
      << control.CaptionWidth << '\n';
}

void Tell(std::ostream& out, const std::vector<MenuItem>& items, const std::string& margin) {
  for (const MenuItem& item : items) {
    out << margin << item.Name << '|' << item.Caption << '|' << item.Shortcut << '\n';
    Tell(out, item.Items, margin + "  ");
  }
}

/// All that a form shows, down to the shapes of its pictures.
void Tell(std::ostream& out, const Form& form) {
  out << form.Name << " '" << form.Caption << "' " << form.Width << 'x' << form.Height << ' '
      << form.BackColor << (form.HasFrame ? " framed" : "") << form.Icon << '\n';
  for (const Control* control : form.Controls) Tell(out, *control);
  for (const TimerControl* timer : form.Timers) {
    out << "timer " << timer->Interval.count() << (timer->Enabled ? " on\n" : "\n");
  }
  Tell(out, form.Menu, "");
}

TEST(Windows, AreAsRecorded) {
  Desk desk;
  std::ostringstream told;
  Tell(told, desk.splash.window);
  Tell(told, desk.form.window);
  PlacePosition(desk.form, Board("gggG gggg Gggg .... .... bbbB bbbb Bbbb"));
  for (const auto* box : {&desk.form.picGreenKingHighlightREF, &desk.form.picGreenKingREF,
                          &desk.form.picGreenCheckerHighlightREF, &desk.form.picBlueKingREF}) {
    Tell(told, *box);
  }
  for (const Control* control : desk.form.window.Controls) {
    told << desk.form.window.Describe(*control) << '\n';
  }
  desk.OpenBoard();
  for (const char* name : {"mnuControls", "mnuAbout", "mnuPart1", "mnuPart2", "mnuPart3"}) {
    desk.Choose(name);
    desk.RunUntilQuiet();
  }
  PlacePosition(desk.form, Board(".... .... .... ..g. ..b. .... .... b..."));
  desk.PlayTurn({1, 5});
  for (const auto& box : desk.host.Boxes) {
    told << '\n' << box.Title << ' ' << int(box.Icon) << '\n' << box.Text << '\n';
    told << JoinBrokenLines(box.Text) << '\n';
  }
  std::string text = told.str();
  const std::string version = VELMORAN_VERSION;
  for (std::size_t at; (at = text.find(version)) != text.npos;) {
    text.replace(at, version.size(), "VERSION");  // a release is no change to record
  }
  std::ranges::replace(text, '\r', '\\');  // no tool shall take it for a line end of its own
  ExpectRecorded("windows.txt", text);
}

TEST(Windows, SplashGivesWayToTheBoardAndTheHelp) {
  Desk desk;
  desk.host.BoxTime = 4s;
  desk.toolkit.Show(desk.splash.window);
  desk.At(2499ms, [&] { EXPECT_EQ(desk.host.Forms, std::vector{&desk.splash.window}); });
  desk.At(6499ms, [&] {
    EXPECT_EQ(desk.host.Forms, std::vector{&desk.form.window});
    EXPECT_TRUE(desk.host.IsBoxOpen && desk.form.tmrPause.Enabled);
  });
  desk.RunUntilQuiet();
  EXPECT_EQ(desk.host.Now(), 6500ms);
  EXPECT_FALSE(desk.form.tmrPause.Enabled);
}

}  // namespace
