#include <algorithm>
#include <map>

#include "recorded.h"
#include "support/desk.h"

namespace {

using namespace std::chrono_literals;

std::ostream& operator<<(std::ostream& out, const Color& color) {
  return out << '#' << int(color.Red) << ',' << int(color.Green) << ',' << int(color.Blue);
}

/// What a form shows, down to the shapes of its pictures; each picture is told once.
class Teller {
 public:
  std::string Tell(const Form& form) {
    out << '\n' << form.Name << " '" << form.Caption << "' " << form.Width << 'x' << form.Height;
    out << ' ' << form.BackColor << (form.HasFrame ? " framed" : "") << NumberOf(form.Icon);
    for (const Control* control : form.Controls) Tell(form, *control);
    for (const TimerControl* timer : form.Timers) {
      out << "\ntimer " << timer->Interval.count() << (timer->Enabled ? " on" : "");
    }
    Tell(form.Menu, "\n");
    return out.str();
  }

 private:
  void Tell(const Form& form, const Control& control) {
    out << '\n' << control.Name << ' ' << control.Index << " kind " << int(control.Kind) << " at ";
    out << control.Left << ',' << control.Top << ' ' << control.Width << 'x' << control.Height;
    out << (control.Visible ? "" : " hidden") << (control.DragMode == 1 ? " draggable" : "");
    out << NumberOf(control.Picture) << " '" << control.Caption << "' " << control.ForeColor;
    if (control.BackColor) out << " on " << *control.BackColor;
    for (const std::string& family : control.Font.Families) out << ", " << family;
    out << ' ' << control.Font.Points << " line " << control.LineWidth;
    if (form.Describe) out << ' ' << form.Describe(control);
  }

  void Tell(const std::vector<MenuItem>& items, const std::string& margin) {
    for (const MenuItem& item : items) {
      out << margin << item.Name << '|' << item.Caption << '|' << item.Shortcut;
      Tell(item.Items, margin + "  ");
    }
  }

  std::string NumberOf(const Picture* picture) {
    if (!picture) return "";
    const auto [place, isNew] = numbers.emplace(picture, numbers.size());
    std::ostringstream told;
    told << " picture " << place->second;
    if (!isNew) return told.str();
    told << ": " << picture->Width << 'x' << picture->Height;
    for (const PictureShape& shape : picture->Shapes) {
      told << "; " << int(shape.Outline) << ' ' << shape.Fill;
      for (const auto& [x, y] : shape.Corners) told << ' ' << x << ',' << y;
    }
    return told.str();
  }

  std::map<const Picture*, std::size_t> numbers;
  std::ostringstream out;
};

TEST(Windows, AreAsRecorded) {
  Desk desk;
  Teller teller;
  teller.Tell(desk.splash.window);
  teller.Tell(desk.form.window);
  PlacePosition(desk.form, Board("g... .... .b.. .... .... .... .... b.BG"));
  desk.form.imgGreenChecker[2].Picture = desk.form.picGreenKingHighlightREF.Picture;
  desk.form.imgGreenChecker[1].Picture = desk.form.picGreenCheckerHighlightREF.Picture;
  std::string told = teller.Tell(desk.form.window) + '\n';
  desk.OpenBoard();
  for (const char* name : {"mnuControls", "mnuAbout", "mnuPart1", "mnuPart2", "mnuPart3"}) {
    desk.Choose(name);
    desk.RunUntilQuiet();
  }
  PlacePosition(desk.form, Board(".... .... .... ..g. ..b. .... .... b..."));
  desk.PlayTurn({1, 5});
  for (const auto& box : desk.host.Boxes) {
    told += '\n' + box.Title + ' ' + std::to_string(int(box.Icon)) + '\n' + box.Text + '\n';
  }
  std::ranges::replace(told, '\r', '\\');  // no tool shall take it for a line end of its own
  ExpectRecorded("windows.txt", told);
}

TEST(Splash, GivesWayToTheBoardAndTheHelp) {
  Desk desk;
  desk.host.BoxTime = 4s;
  desk.toolkit.Show(desk.splash.window);
  desk.At(2499ms, [&] { EXPECT_EQ(desk.host.Forms, std::vector{&desk.splash.window}); });
  desk.At(6499ms, [&] {
    EXPECT_EQ(desk.host.Forms, std::vector{&desk.form.window});
    EXPECT_TRUE(desk.form.tmrPause.Enabled) << "held by the box";
    EXPECT_EQ(desk.form.position, StartPosition());
  });
  desk.RunUntilQuiet();
  ASSERT_EQ(desk.host.Boxes.size(), 1);
  EXPECT_EQ(desk.host.Boxes[0].Title, "Velmoran Game Controls");
  EXPECT_EQ(desk.host.Boxes[0].At, 2500ms);
  EXPECT_EQ(desk.host.Now(), 6500ms);
  EXPECT_FALSE(desk.form.tmrPause.Enabled);
}

}  // namespace
