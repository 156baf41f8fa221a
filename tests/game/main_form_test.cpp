#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

TEST(Tables, AreFoundOutWhenBroken) {
  void (*const spoilers[])(frmVelmoran&) = {
      [](frmVelmoran& form) { form.position.BlueSquare[2] = form.position.BlueSquare[1]; },
      [](frmVelmoran& form) { form.position.GreenSquare[12] = form.position.BlueSquare[12]; },
      [](frmVelmoran& form) { form.position.GreenSquare[1] = 33; },
      [](frmVelmoran& form) { form.position.BlueSquare[1] = -1; },
      [](frmVelmoran& form) { form.position.JumpPath[2] = 17; },
      [](frmVelmoran& form) { form.position.JumpPath[1] = -1; },
      [](frmVelmoran& form) { form.position.JumpPath[1] = 33; },
      [](frmVelmoran& form) { form.imgBlueChecker[3].Visible = false; },
      [](frmVelmoran& form) { form.imgBlueChecker[12].Left += 1; },
      [](frmVelmoran& form) { form.imgGreenChecker[1].Top += 1; },
      [](frmVelmoran& form) { form.imgBlueChecker[1].Picture = form.picBlueKingREF.Picture; },
      [](frmVelmoran& form) { form.imgGreenChecker[1].Picture = form.picGreenKingREF.Picture; },
      [](frmVelmoran& form) {  // where nothing blinks
        form.BlinkChecker = 1;
        form.imgGreenChecker[1].Picture = form.picGreenCheckerHighlightREF.Picture;
      },
      [](frmVelmoran& form) {  // where another piece blinks
        form.tmrBlink.Enabled = true;
        form.imgGreenChecker[1].Picture = form.picGreenCheckerHighlightREF.Picture;
      },
  };
  for (std::size_t k = 0; k < std::size(spoilers); ++k) {
    Desk desk(StartPosition());
    ASSERT_TRUE(IsConsistent(desk.form));
    spoilers[k](desk.form);
    EXPECT_FALSE(IsConsistent(desk.form)) << k;
    EXPECT_EQ(IsConsistent(desk.form.position), k > 6) << k;
  }
}

}  // namespace
