#include "computer/threats.h"

#include <gtest/gtest.h>

#include "support/board.h"

namespace {

enum Question { CanCapture, Depth, Exposure, Defence, Traps, CanJumpFrom };

struct Case {
  const char* Picture;
  Question What;
  Square Piece;
  Square To;
  int Answer;
};

const Case Cases[] = {
    // Rows from the top:
    // 29   25   21   17   13   9    5    1
    {".... .... g... .... .b.. .... .... ....", CanCapture, 21, 18, 1},
    {".... .... g... .... .b.. .... .... ....", Depth, 21, 17, 0},
    {".... .... g... .g.. .b.. .... .... ....", CanCapture, 18, 18, 0},
    {".... .... g... .g.. .b.. .... .... ....", CanCapture, 21, 18, 1},
    {".... .... g... .g.. .b.. .... .... ....", Exposure, 21, 17, 1},
    {".... .g.. g... .g.. .b.. .... .... ....", Exposure, 21, 17, 2},
    {".... g... .... .g.. .b.. .... .... ....", Defence, 25, 21, 1},
    {".... gg.. .... .g.. .b.. .... .... ....", Defence, 25, 21, 2},
    {".... .... .g.. .... gg.. b.b. .... ....", Defence, 22, 18, 4},
    {".... .... .... .G.. gg.. b.b. .... ....", Exposure, 18, 22, 2},
    {".... .... .g.. .... .g.. .bb. .... ....", Defence, 22, 18, 0},
    {".... .... .... .... gg.. ..B. .... ....", Depth, 14, 14, 2},
    {"..g. .... .G.. .gg. B... .... .... ....", Exposure, 22, 27, 2},
    {"..g. .... .G.. .gg. b... .... .... ....", Exposure, 22, 27, 1},
    {"...B ..G. .... .... .... .... .... ....", Traps, 27, 31, 1},
    {"...B ..G. .... .... .... .... .... ....", Traps, 27, 27, 0},
    {".... .... .... .... .... .... .g.. B...", Traps, 6, 2, 1},
    {".... .... .... .... .... .... .g.. B...", Traps, 6, 6, 0},
    {".... .... .... .... .... g... gg.. B...", Traps, 9, 9, 0},
    {".... .... .... .... .g.. .b.. .... ....", CanJumpFrom, 14, 14, 1},
    {".... .... .... .... .g.. .b.. .... ....", CanJumpFrom, 14, 5, 0},
};

int Ask(const Position& position, const Case& question) {
  const int piece = GreenOn(position, question.Piece);
  const Square to = question.To;
  const auto reportError = [] { ADD_FAILURE() << "no error to report"; };
  const Question what = question.What;
  return what == CanCapture ? BlueCanCapture(position, to, piece)
         : what == Depth    ? BlueCaptureDepth(position, to, piece)
         : what == Exposure ? ExposureDepth(position, question.Piece, to, piece)
         : what == Defence  ? DefenceDepth(position, to, piece, reportError)
         : what == Traps    ? MoveTrapsBlueKing(position, piece, to)
                            : GreenCanJumpFrom(position, to, piece);
}

TEST(Threats, AreSeen) {
  for (const Case& question : Cases) {
    EXPECT_EQ(Ask(Board(question.Picture), question), question.Answer)
        << question.Picture << " question " << question.What << " of " << question.Piece << " to "
        << question.To;
  }
}

}  // namespace
