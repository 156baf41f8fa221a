#pragma once

#include "board/position.h"
#include "toolkit/toolkit.h"

/// The main form: the position and the controls side by side. `ui/main_window` fills in the
/// controls. The procedures of the game read and write all members directly. The toolkit must
/// outlive the form.
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

  // Never shown. They hold the pictures that the images show.
  Control picBlueCheckerREF;
  Control picGreenCheckerREF;
  Control picBlueKingREF;
  Control picGreenKingREF;
  Control picGreenCheckerHighlightREF;
  Control picGreenKingHighlightREF;

  TimerControl tmrBlink;  // on while a blink runs
  TimerControl tmrPause;  // on from the human's move to the end of the computer's turn

  int BlinkCount = 0;         // ticks of the present blink; 5 once it has ended
  int BlinkChecker = 0;       // the green piece that blinks or blinked last; 0: none yet
  bool BlinkStarted = false;  // the computer's turn is waiting for a blink

  // Shared by all elements of a control array.
  ControlEvents lblSquareEvents;
  ControlEvents imgBlueCheckerEvents;
  ControlEvents imgGreenCheckerEvents;
  ControlEvents lblBackroundEvents;
};

/// Puts the image over the label of the square, 1 to 32.
void PlaceImage(const frmVelmoran& form, Control& image, Square square);

/// Sets `DragMode` of all blue images, also of hidden ones. 1: the human can drag; 0: cannot.
void SetBlueDragMode(frmVelmoran& form, int dragMode);

/// The picture of a green piece that is not lit: man or king.
const Picture* PlainGreenPicture(const frmVelmoran& form, int piece);

/// Shows the message for an internal error, which cannot happen while the tables are consistent.
/// Play goes on afterwards.
void ShowProgramError(Toolkit& toolkit, int number);
