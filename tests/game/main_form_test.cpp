#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

/// A way to break the tables, or what the window shows of them.
struct Spoiler {
  const char* What;
  void (*Spoil)(frmVelmoran& form);
};

constexpr Spoiler BrokenTables[] = {
    {"two blue pieces on a square",
     [](frmVelmoran& form) { form.position.BlueSquare[2] = form.position.BlueSquare[1]; }},
    {"a green piece on a blue one",
     [](frmVelmoran& form) { form.position.GreenSquare[12] = form.position.BlueSquare[12]; }},
    {"a square above 32", [](frmVelmoran& form) { form.position.GreenSquare[1] = 33; }},
    {"a square below 0", [](frmVelmoran& form) { form.position.BlueSquare[1] = -1; }},
    {"a gap in the path", [](frmVelmoran& form) { form.position.JumpPath[2] = 17; }},
    {"a path below 0", [](frmVelmoran& form) { form.position.JumpPath[1] = -1; }},
    {"a path above 32", [](frmVelmoran& form) { form.position.JumpPath[1] = 33; }},
};

constexpr Spoiler BrokenWindows[] = {
    {"a piece that is hidden", [](frmVelmoran& form) { form.imgBlueChecker[3].Visible = false; }},
    {"a blue piece beside its square", [](frmVelmoran& form) { ++form.imgBlueChecker[12].Left; }},
    {"a green piece below its square", [](frmVelmoran& form) { ++form.imgGreenChecker[1].Top; }},
    {"a blue man shown as a king",
     [](frmVelmoran& form) { form.imgBlueChecker[1].Picture = form.picBlueKingREF.Picture; }},
    {"a green man shown as a king",
     [](frmVelmoran& form) { form.imgGreenChecker[1].Picture = form.picGreenKingREF.Picture; }},
    {"a piece lit where nothing blinks",
     [](frmVelmoran& form) {
       form.BlinkChecker = 1;
       form.imgGreenChecker[1].Picture = form.picGreenCheckerHighlightREF.Picture;
     }},
    {"a piece lit where another blinks",
     [](frmVelmoran& form) {
       form.tmrBlink.Enabled = true;
       form.imgGreenChecker[1].Picture = form.picGreenCheckerHighlightREF.Picture;
     }},
};

TEST(Tables, AreFoundOutWhenBroken) {
  const auto check = [](const Spoiler& spoiler, bool isPositionBroken) {
    Desk desk(StartPosition());
    ASSERT_TRUE(IsConsistent(desk.form));
    spoiler.Spoil(desk.form);
    EXPECT_FALSE(IsConsistent(desk.form)) << spoiler.What;
    EXPECT_EQ(IsConsistent(desk.form.position), !isPositionBroken) << spoiler.What;
  };
  for (const Spoiler& spoiler : BrokenTables) check(spoiler, true);
  for (const Spoiler& spoiler : BrokenWindows) check(spoiler, false);
}

}  // namespace
