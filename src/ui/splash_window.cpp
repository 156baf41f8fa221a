#include "ui/splash_window.h"

#include "ui/messages.h"
#include "ui/pictures.h"

namespace {

using namespace std::chrono_literals;

constexpr int SplashWidth = 516 * TwipsPerPixel;
constexpr int SplashHeight = 181 * TwipsPerPixel;
constexpr Color Green{0, 255, 0};
constexpr Color Yellow{255, 255, 0};

Control MakeLine(const char* name, int top, int height, const char* caption, Color color,
                 const CaptionFont& font) {
  Control label = MakeControl(ControlKind::Label, name, {0, top, SplashWidth, height});
  label.Caption = caption;
  label.ForeColor = color;
  label.Font = font;
  return label;
}

Control MakeBoard(const char* name, int left) {
  Control image = MakeControl(ControlKind::Image, name, {left, 255, 960, 960});
  image.Picture = &CheckerBoardPicture;
  return image;
}

void BuildControls(frmSplash& form) {
  const CaptionFont titleFont{{"Arial", "Liberation Sans", "DejaVu Sans"}, 60};
  const CaptionFont creditFont{{"Comic Sans MS", "Comic Neue", "DejaVu Sans"}, 15};
  form.lblTitle = MakeLine("lblTitle", 120, 1335, "Velmoran", White, titleFont);
  form.lblAuthors1 = MakeLine("lblAuthors1", 1560, 495, "User interface by the Velmoran project",
                              Green, creditFont);
  form.lblAuthors2 = MakeLine("lblAuthors2", 2100, 495, "Computer player by the Velmoran project",
                              Yellow, creditFont);
  form.imgCheckerBoard1 = MakeBoard("imgCheckerBoard1", 255);
  form.imgCheckerBoard2 = MakeBoard("imgCheckerBoard2", 6525);
  form.lblTitle.CaptionWidth =
      form.imgCheckerBoard2.Left - form.imgCheckerBoard1.Left - form.imgCheckerBoard1.Width;
  form.shpBorder = MakeControl(ControlKind::Border, "shpBorder", {30, 30, 7680, 2655});
  form.shpBorder.ForeColor = Red;
  form.shpBorder.LineWidth = 5;
  form.window.Controls = {&form.lblAuthors2, &form.imgCheckerBoard2, &form.imgCheckerBoard1,
                          &form.shpBorder,   &form.lblAuthors1,      &form.lblTitle};
}

}  // namespace

void BuildSplashWindow(frmSplash& form) {
  form.window.Name = "frmSplash";
  form.window.Caption = " Velmoran";
  form.window.Width = SplashWidth;
  form.window.Height = SplashHeight;
  form.window.HasFrame = false;
  form.window.Icon = &CheckerBoardPicture;
  form.window.Load = [&form] { Form_Load(form); };
  BuildControls(form);
  form.tmrTimer.Interval = 2500ms;
  form.tmrTimer.Enabled = true;
  form.tmrTimer.Tick = [&form] { tmrTimer_Timer(form); };
  form.window.Timers = {&form.tmrTimer};
}

void Form_Load(frmSplash& form) { form.toolkit.SetEnabled(form.tmrTimer, true); }

void tmrTimer_Timer(frmSplash& form) {
  form.toolkit.SetEnabled(form.tmrTimer, false);
  form.toolkit.Show(form.main.window);
  form.toolkit.ZOrder(form.main.window);
  form.toolkit.Unload(form.window);
  mnuControls_Click(form.main);
}
