#pragma once

#include "toolkit/picture.h"

// The pictures of the game, as shapes on a grid of pixels. A cell of the board is 65 by 65.

extern const Picture BlueCheckerPicture;
extern const Picture GreenCheckerPicture;
extern const Picture BlueKingPicture;
extern const Picture GreenKingPicture;

// Ground and disc change places while a green piece blinks.
extern const Picture GreenCheckerHighlightPicture;
extern const Picture GreenKingHighlightPicture;

/// A board of 8 by 8 squares, 64 by 64 pixels: the icon of both windows, and an ornament.
extern const Picture CheckerBoardPicture;
