#include "computer/threats.h"

#include <gtest/gtest.h>

#include "support/board.h"

namespace {

enum Question { CanCapture, Depth, Exposure, Defence, Traps, CanJumpFrom };

struct Case {
  const char* Picture;
  Question What;
  Square Piece;  // where the green piece of the question stands
  Square To;     // the square asked of
  int Answer;
};

// Rows from the top:       29   25   21   17   13   9    5    1
constexpr auto Leaving = " .... .... g... .... .b.. .... .... ....";
constexpr auto Exposed = " .... .... g... .g.. .b.. .... .... ....";
constexpr auto Exposed2 = ".... .g.. g... .g.. .b.. .... .... ....";
constexpr auto Saved = "   .... g... .... .g.. .b.. .... .... ....";
constexpr auto Saved2 = "  .... gg.. .... .g.. .b.. .... .... ....";
constexpr auto Turning = " .... .... .... .... gg.. ..B. .... ....";
constexpr auto ByKing = "  ..g. .... .G.. .gg. B... .... .... ....";
constexpr auto ByMan = "   ..g. .... .G.. .gg. b... .... .... ....";
constexpr auto Corner32 = "...B ..G. .... .... .... .... .... ....";
constexpr auto Corner1 = " .... .... .... .... .... .... .g.. B...";
constexpr auto Shut = "    .... .... .... .... .... g... gg.. B...";
constexpr auto Pair = "    .... .... .g.. .... gg.. b.b. .... ....";
constexpr auto PairHeld = ".... .... .... .G.. gg.. b.b. .... ....";
constexpr auto BySides = " .... .... .g.. .... .g.. .bb. .... ....";
constexpr auto Behind = "  .... .... .... .... .g.. .b.. .... ....";

const Case Cases[] = {
    {Leaving, CanCapture, 21, 18, 1},  // the piece leaves its own landing square free
    {Leaving, Depth, 21, 17, 0},
    {Exposed, CanCapture, 18, 18, 0},
    {Exposed, CanCapture, 21, 18, 1},
    {Exposed, Exposure, 21, 17, 1},
    {Exposed2, Exposure, 21, 17, 2},
    {Saved, Defence, 25, 21, 1},
    {Saved2, Defence, 25, 21, 2},
    {Pair, Defence, 22, 18, 4},       // two of each
    {PairHeld, Exposure, 18, 22, 2},  // only the worse of two
    {BySides, Defence, 22, 18, 0},    // the other landing stays open
    {Turning, Depth, 14, 14, 2},
    {ByKing, Exposure, 22, 27, 2},
    {ByMan, Exposure, 22, 27, 1},
    {Corner32, Traps, 27, 31, 1},
    {Corner32, Traps, 27, 27, 0},
    {Corner1, Traps, 6, 2, 1},
    {Corner1, Traps, 6, 6, 0},
    {Shut, Traps, 9, 9, 0},  // no step at all: held by nobody
    {Behind, CanJumpFrom, 14, 14, 1},
    {Behind, CanJumpFrom, 14, 5, 0},  // upwards, which no man does
};

int Ask(const Position& position, const Case& question) {
  const int piece = GreenOn(position, question.Piece);
  const auto reportError = [] { ADD_FAILURE() << "no error to report"; };
  switch (question.What) {
    case CanCapture:
      return BlueCanCapture(position, question.To, piece);
    case Depth:
      return BlueCaptureDepth(position, question.To, piece);
    case Exposure:
      return ExposureDepth(position, question.Piece, question.To, piece);
    case Defence:
      return DefenceDepth(position, question.To, piece, reportError);
    case Traps:
      return MoveTrapsBlueKing(position, piece, question.To);
    case CanJumpFrom:
      return GreenCanJumpFrom(position, question.To, piece);
  }
  return -1;
}

TEST(Threats, AreSeen) {
  for (const Case& question : Cases) {
    EXPECT_EQ(Ask(Board(question.Picture), question), question.Answer)
        << question.Picture << " question " << question.What << " of " << question.Piece << " to "
        << question.To;
  }
}

}  // namespace
