#include "ui/main_window.h"

#include "computer/turn.h"
#include "game/blink.h"
#include "game/new_game.h"
#include "game/pieces.h"
#include "human/drop.h"
#include "human/jump_path.h"
#include "ui/description.h"
#include "ui/messages.h"
#include "ui/pictures.h"

namespace {

using namespace std::chrono_literals;

constexpr int CellSide = 65 * TwipsPerPixel;
constexpr int BoardSide = 8 * CellSide;

Control MakeLabel(const char* name, int index, const Rect& place, Color backColor) {
  Control label = MakeControl(ControlKind::Label, name, place);
  label.Index = index;
  label.BackColor = backColor;
  return label;
}

Control MakePictureBox(const char* name, const Picture& picture) {
  Control box = MakeControl(ControlKind::PictureBox, name, {0, 0, CellSide, CellSide});
  box.Visible = false;
  box.Picture = &picture;
  return box;
}

Control MakeImage(const char* name, int index, const Control& label, const Control& pictureBox) {
  Control image = MakeControl(ControlKind::Image, name, RectOf(label));
  image.Index = index;
  image.Picture = pictureBox.Picture;
  return image;
}

/// The place of a square: rows from the bottom, every second cell, shifted in every other row.
Rect PlaceOf(int square) {
  const int row = (square - 1) / 4;
  const int column = 2 * ((square - 1) % 4) + row % 2;
  return {CellSide * column, CellSide * (7 - row), CellSide, CellSide};
}

void BuildPictureBoxes(frmVelmoran& form) {
  form.picBlueCheckerREF = MakePictureBox("picBlueCheckerREF", BlueCheckerPicture);
  form.picGreenCheckerREF = MakePictureBox("picGreenCheckerREF", GreenCheckerPicture);
  form.picBlueKingREF = MakePictureBox("picBlueKingREF", BlueKingPicture);
  form.picGreenKingREF = MakePictureBox("picGreenKingREF", GreenKingPicture);
  form.picGreenCheckerHighlightREF =
      MakePictureBox("picGreenCheckerHighlightREF", GreenCheckerHighlightPicture);
  form.picGreenKingHighlightREF =
      MakePictureBox("picGreenKingHighlightREF", GreenKingHighlightPicture);
}

void BuildBoard(frmVelmoran& form) {
  form.lblBackround = MakeLabel("lblBackround", 0, {0, 0, BoardSide, BoardSide}, Red);
  form.lblBackround.Events = &form.lblBackroundEvents;
  for (int square = 1; square <= Squares; ++square) {
    form.lblSquare[square] = MakeLabel("lblSquare", square, PlaceOf(square), Black);
    form.lblSquare[square].Events = &form.lblSquareEvents;
  }
  for (int piece = 1; piece <= Pieces; ++piece) {
    Control& blue = form.imgBlueChecker[piece];
    blue = MakeImage("imgBlueChecker", piece, form.lblSquare[piece], form.picBlueCheckerREF);
    blue.DragMode = 1;
    blue.Events = &form.imgBlueCheckerEvents;
    Control& green = form.imgGreenChecker[piece];
    green =
        MakeImage("imgGreenChecker", piece, form.lblSquare[piece + 20], form.picGreenCheckerREF);
    green.Events = &form.imgGreenCheckerEvents;
  }
}

/// From front to back: the pieces lie on the squares, and the squares on the background.
void StackControls(frmVelmoran& form) {
  std::vector<Control*>& controls = form.window.Controls;
  for (Control& image : form.imgBlueChecker) controls.push_back(&image);
  for (Control& image : form.imgGreenChecker) controls.push_back(&image);
  for (Control& label : form.lblSquare) controls.push_back(&label);
  controls.push_back(&form.lblBackround);
}

void WireControls(frmVelmoran& form) {
  const auto clear = [&form](int) { ClearJumpPath(form); };
  const auto clearAtDrop = [&form](int, const Control&) { ClearJumpPath(form); };
  form.window.Events = {.Click = clear, .MouseMove = clear, .DragDrop = clearAtDrop};
  form.lblBackroundEvents = {.Click = clear, .MouseMove = clear, .DragDrop = clearAtDrop};
  form.imgGreenCheckerEvents = {.MouseMove = clear, .DragDrop = clearAtDrop};
  form.lblSquareEvents = {
      .MouseMove = clear,
      .DragOver =
          [&form](int index, const Control& source) {
            lblSquare_DragOver(form, static_cast<Square>(index), source);
          },
      .DragDrop =
          [&form](int index, const Control& source) {
            lblSquare_DragDrop(form, static_cast<Square>(index), source);
          },
  };
  form.imgBlueCheckerEvents = {
      .DragOver = [&form](int index,
                          const Control& source) { imgBlueChecker_DragOver(form, index, source); },
      .DragDrop = [&form](int index,
                          const Control& source) { imgBlueChecker_DragDrop(form, index, source); },
  };
  // The pointer may come from outside the window straight to the next press. Then no control on
  // the way clears the path.
  form.window.DragCancelled = [&form] { ClearJumpPath(form); };
}

void BuildTimers(frmVelmoran& form) {
  form.tmrBlink.Interval = 200ms;
  form.tmrBlink.Tick = [&form] { tmrBlink_Timer(form); };
  form.tmrPause.Interval = 500ms;
  form.tmrPause.Enabled = true;
  form.tmrPause.Tick = [&form] { tmrPause_Timer(form); };
  form.window.Timers = {&form.tmrBlink, &form.tmrPause};
}

MenuItem MakeSeparator(const char* name) { return {.Name = name, .Caption = "-"}; }

void BuildMenu(frmVelmoran& form) {
  const auto command = [&form](const char* name, const char* caption, const char* shortcut,
                               void (*click)(frmVelmoran&)) {
    return MenuItem{name, caption, shortcut, [&form, click] { click(form); }, {}};
  };
  MenuItem rules{.Name = "mnuRules", .Caption = "Official &Rules of Velmoran"};
  rules.Items = {command("mnuPart1", "Part &1", "", mnuPart1_Click),
                 command("mnuPart2", "Part &2", "", mnuPart2_Click),
                 command("mnuPart3", "Part &3", "", mnuPart3_Click)};
  MenuItem file{.Name = "mnuFile", .Caption = "File"};
  file.Items = {command("mnuGame", "&New Game", "Ctrl+N", mnuGame_Click),
                MakeSeparator("mnuSeparator1"),
                command("mnuExit", "E&xit", "Ctrl+X", mnuExit_Click)};
  MenuItem help{.Name = "mnuHelp", .Caption = "Help"};
  help.Items = {command("mnuControls", "Game &Controls", "Ctrl+C", mnuControls_Click),
                command("mnuAbout", "&About This Program", "Ctrl+A", mnuAbout_Click),
                MakeSeparator("mnuSeparator2"), rules};
  form.window.Menu = {file, help};
}

}  // namespace

void BuildMainWindow(frmVelmoran& form) {
  form.window.Name = "frmVelmoran";
  form.window.Caption = " Velmoran";
  form.window.Width = BoardSide;
  form.window.Height = BoardSide;
  form.window.BackColor = White;
  form.window.Icon = &CheckerBoardPicture;
  form.window.Load = [&form] { Form_Load(form); };
  form.window.Unload = [&form] { Form_Unload(form); };
  form.window.Describe = [&form](const Control& control) {
    const bool isSquare = control.Name == "lblSquare";
    return isSquare ? DescribeSquare(form.position, static_cast<Square>(control.Index)) : "";
  };
  BuildPictureBoxes(form);
  BuildBoard(form);
  StackControls(form);
  WireControls(form);
  BuildTimers(form);
  BuildMenu(form);
}
