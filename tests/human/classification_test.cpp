#include "human/classification.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/board.h"

namespace {

struct Case {
  const char* Picture;
  std::vector<Square> Path;
  int To;
  BlueMove Verdict;
  std::vector<Square> PathAfter;
};

// Rows from the top:       29   25   21   17   13   9    5    1
constexpr auto Two = "      .... .... ..g. .... .g.. .b.. .... ....";
constexpr auto KingTwo = "  .... .... ..g. .... .g.. .B.. .... ....";
constexpr auto Left = "     .... .... .... .... .... .b.. .... ....";
constexpr auto Friend = "   .... .... ..g. ..b. .g.. .b.. .... ....";
constexpr auto Triple = "   .... .... .g.. .... .g.. .... .g.. .b..";
constexpr auto AtTop = "    .... ..gg .b.. .... .... .... .... ....";
constexpr auto KingAtTop = ".... ..gg .B.. .... .... .... .... ....";
constexpr auto Circle = "   .... .... gg.. .... gg.. .B.. .... ....";

const Case Cases[] = {
    {Two, {}, 19, BlueMoveJump, {}},
    {Two, {}, 28, BlueMoveNone, {}},
    {Two, {}, 17, BlueMoveNone, {}},
    {Two, {}, 5, BlueMoveNone, {}},
    {KingTwo, {}, 5, BlueMoveStep, {}},
    {KingTwo, {}, 3, BlueMoveNone, {}},
    {Two, {19}, 19, BlueMoveJump, {}},
    {Two, {19, 28}, 28, BlueMoveChain, {19}},
    {Two, {19}, 28, BlueMoveChain, {19}},
    {Two, {19, 28}, 19, BlueMoveJump, {19, 28}},
    {KingTwo, {19, 28}, 19, BlueMoveJump, {19, 28}},
    {Triple, {11, 18, 27}, 27, BlueMoveChain, {11, 18}},
    {Triple, {11, 18, 27}, 18, BlueMoveNone, {11, 18, 27}},
    {Triple, {11, 18, 27}, 11, BlueMoveJump, {11, 18, 27}},
    {AtTop, {31, 24}, 24, BlueMoveNone, {31, 24}},
    {AtTop, {31, 24}, 31, BlueMoveJump, {31, 24}},
    {KingAtTop, {31, 24}, 24, BlueMoveChain, {31}},
    {Two, {17}, 19, BlueMoveJump, {17}},
    {Left, {17}, 13, BlueMoveStep, {17}},
    {Left, {17, 19}, 19, BlueMoveNone, {17, 19}},
    {Circle, {19, 26, 17, 10}, 10, BlueMoveChain, {19, 26, 17}},
    {Friend, {19, 28}, 28, BlueMoveNone, {19, 28}},
    {Friend, {19}, 28, BlueMoveNone, {19}},
};

Table<Square, 10> PathOf(const std::vector<Square>& squares) {
  Table<Square, 10> path;
  std::ranges::copy(squares, path.begin());
  return path;
}

TEST(Classification, JudgesDropsAlongAPath) {
  for (const auto& [picture, path, to, verdict, pathAfter] : Cases) {
    Position position = Board(picture);
    position.JumpPath = PathOf(path);
    const Square from = position.BlueSquare[1];
    EXPECT_EQ(ClassifyBlueMove(position, from, static_cast<Square>(to), true, 1), verdict)
        << picture << " to " << to;
    EXPECT_EQ(position.JumpPath, PathOf(pathAfter)) << picture << " to " << to;
  }
}

}  // namespace
