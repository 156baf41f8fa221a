#include "toolkit/shown_form.h"

#include <gtest/gtest.h>

#include "support/desk.h"

namespace {

TEST(ShownForm, TellsOnlyWhatHasChanged) {
  Desk desk(StartPosition());
  ShownForm shown(desk.form.window);
  EXPECT_EQ(shown.Update({}).Words.size(), 32) << "all are new";
  EXPECT_EQ(shown.Update({}).Looks.size(), 0);
  desk.Drag({9, 13});
  desk.DeliverInput();
  const ShownForm::Changes changes = shown.Update({});
  ASSERT_EQ(changes.Looks.size(), 1);
  const auto& [place, before, now] = changes.Looks[0];
  EXPECT_EQ(desk.form.window.Controls[place], &desk.form.imgBlueChecker[9]);
  EXPECT_EQ(before.Place, RectOf(desk.form.lblSquare[9]));
  EXPECT_EQ(now.Place, RectOf(desk.form.lblSquare[13]));
  ASSERT_EQ(changes.Words.size(), 2);
  EXPECT_EQ(changes.Words[0].Before, "blue man on square 9");
  EXPECT_EQ(changes.Words[0].Now, "free square 9");
  EXPECT_EQ(changes.Words[1].Now, "blue man on square 13");
}

TEST(ShownForm, KeepsTheOutlineWithThePointer) {
  Desk desk(StartPosition());
  ShownForm shown(desk.form.window);
  const Control& image = desk.form.imgBlueChecker[9];
  const Point start{100, 5000};
  EXPECT_TRUE(shown.Update({&desk.form.window, &image, start, start}).HasOutlineChanged);
  EXPECT_EQ(shown.Outline(), RectOf(image));
  EXPECT_FALSE(shown.Update({&desk.form.window, &image, start, start}).HasOutlineChanged);
  shown.Update({&desk.form.window, &image, start, {160, 4900}});
  EXPECT_EQ(shown.Outline(), (Rect{60, image.Top - 100, image.Width, image.Height}));
  EXPECT_EQ(shown.Update({&desk.splash.window, &image, start, start}).OutlineBefore->Left, 60);
  EXPECT_EQ(shown.Outline(), std::nullopt) << "the drag of another form";
}

}  // namespace
