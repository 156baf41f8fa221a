#pragma once

#include "board/position.h"
#include "toolkit/toolkit.h"

/// The main form: the position and the controls side by side. `ui/main_window` fills the controls
/// in; the procedures of the game read and write all of it directly.
struct frmVelmoran {
  explicit frmVelmoran(Toolkit& programToolkit) : toolkit(programToolkit) {}
  frmVelmoran(const frmVelmoran&) = delete;
  frmVelmoran& operator=(const frmVelmoran&) = delete;

  Toolkit& toolkit;
  Form window;

  Position position;

  Table<Control, Squares> lblSquare;
  Table<Control, Pieces> imgBlueChecker;
  Table<Control, Pieces> imgGreenChecker;
  Control lblBackround;

  // Never shown: they keep the pictures for the images.
  Control picBlueCheckerREF;
  Control picGreenCheckerREF;
  Control picBlueKingREF;
  Control picGreenKingREF;
  Control picGreenCheckerHighlightREF;
  Control picGreenKingHighlightREF;

  TimerControl tmrBlink;  // on: a blink is running
  TimerControl tmrPause;

  int BlinkCount = 0;         // ticks of the blink so far; 5 after a whole one
  int BlinkChecker = 0;       // the green piece that blinks or blinked last; 0 before the first
  bool BlinkStarted = false;  // the computer's turn waits for the blink of its present stage

  // The events of the control arrays.
  ControlEvents lblSquareEvents;
  ControlEvents imgBlueCheckerEvents;
  ControlEvents imgGreenCheckerEvents;
  ControlEvents lblBackroundEvents;
};

/// Puts the image over the label of the square.
void PlaceImage(const frmVelmoran& form, Control& image, Square square);

/// Switches dragging for all blue images, hidden ones included: 1 lets the human take a piece.
void SetBlueDragMode(frmVelmoran& form, int dragMode);

/// The picture of a green piece at rest.
const Picture* PlainGreenPicture(const frmVelmoran& form, int piece);

/// Whether the tables agree with themselves and with what the window shows: each piece visible on
/// its square with a picture of its rank, captured ones hidden.
bool IsConsistent(const frmVelmoran& form);

/// Tells the user of a fault that consistent tables rule out. Play goes on afterwards.
void ShowProgramError(Toolkit& toolkit, int number);
