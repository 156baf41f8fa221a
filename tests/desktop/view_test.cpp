#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScreen>
#include <QTimer>
#include <random>

#include "desktop/desktop_host.h"
#include "desktop/message_box.h"
#include "desktop/painting.h"
#include "support/desk.h"
#include "ui/messages.h"
#include "ui/pictures.h"

namespace {

std::vector<std::string> Announced;  // the new names, in order

}  // namespace

// No assistive technology runs here, and Qt would drop the updates. These replace Qt's own.
bool QAccessible::isActive() { return true; }
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  if (event->type() != QAccessible::NameChanged) return;
  Announced.push_back(event->accessibleInterface()->text(QAccessible::Name).toStdString());
}

namespace {

constexpr QRgb White = qRgb(255, 255, 255), Black = qRgb(0, 0, 0), Red = qRgb(255, 0, 0),
               Cyan = qRgb(1, 255, 255);
constexpr QRgb Blue = qRgb(36, 1, 254), Green = qRgb(36, 255, 2), DarkGreen = qRgb(1, 127, 1);

/// The number of pixels in row `y` with exactly this colour.
int Count(const QImage& image, int y, QRgb colour) {
  int count = 0;
  for (int x = 0; x < image.width(); ++x) count += (image.pixel(x, y) | 0xff000000) == colour;
  return count;
}

TEST(View, PaintsEachPictureToThePixel) {
  Desk desk(Board("g... .... .... .... .... .... .... bB.."));
  const struct {
    const Control& Box;
    QRgb Ground, Disc, Middle;
  } cases[] = {{desk.form.picBlueCheckerREF, Black, Blue, Blue},
               {desk.form.picGreenCheckerREF, Black, Green, Green},
               {desk.form.picBlueKingREF, Black, Blue, Cyan},
               {desk.form.picGreenKingREF, Black, Green, DarkGreen},
               {desk.form.picGreenCheckerHighlightREF, Green, Black, Black},
               {desk.form.picGreenKingHighlightREF, Green, Black, DarkGreen}};
  FormView view(desk.form.window);
  for (const auto& [box, ground, disc, middle] : cases) {
    desk.form.imgBlueChecker[1].Picture = box.Picture;  // on 1, the bottom left corner
    view.Refresh({});
    const QImage cell = view.grab().toImage().copy(0, 455, 66, 65);
    for (const int x : {0, 2, 62, 64}) EXPECT_EQ(cell.pixel(x, 32), ground) << box.Name;
    for (const int end : {3, 61}) {
      EXPECT_EQ(cell.pixel(end, 32), disc) << box.Name;
      EXPECT_EQ(cell.pixel(32, end), disc) << box.Name;
    }
    EXPECT_EQ(cell.pixel(32, 32), middle) << box.Name;
    // A star's arms are widest a little above the middle; a man's disc is whole there.
    EXPECT_EQ(Count(cell, 26, disc) > 50, disc == middle) << box.Name;
    EXPECT_EQ(cell.pixel(65, 0), Red) << "the next square";
  }
}

TEST(View, HasSharpEdgesAtAnyScale) {
  for (const double ratio : {1.25, 1.5, 2.0}) {
    const int size = static_cast<int>(65 * ratio);
    QImage image(size, size, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    PaintPicture(painter, BlueCheckerPicture, QRectF(0, 0, 65, 65));
    const int blurred = size - Count(image, size / 2, Black) - Count(image, size / 2, Blue);
    EXPECT_LE(blurred, 2) << ratio;
    EXPECT_NEAR(Count(image, size / 2, Blue), 59 * ratio, 2) << ratio;
    PaintDragOutline(painter, QRectF(10.3, 10.3, 40, 40));
    const int line = qRound(ratio);
    EXPECT_EQ(Count(image, size / 2, White), 2 * line) << ratio;
    EXPECT_EQ(Count(image.transformed(QTransform().rotate(90)), size / 2, White), 2 * line);
    const int edge = qRound(10.3 * ratio);
    EXPECT_EQ(image.pixel(edge, size / 2), White) << "the outer line is white";
  }
}

/// A screenshot of the window.
QImage Shot(const QWidget& window) {
  QApplication::processEvents();
  return window.screen()->grabWindow(window.winId()).toImage();
}

// CTest runs this at several scales, set by QT_SCALE_FACTOR.
TEST(View, PartialRepaintsEqualAFullRepaint) {
  std::mt19937 generator(1);
  const auto roll = [&](int sides) { return static_cast<int>(generator() % unsigned(sides)); };
  Desk desk(StartPosition());
  const Picture* const pictures[] = {&BlueKingPicture, &GreenCheckerHighlightPicture,
                                     &CheckerBoardPicture};
  QWidget window;
  window.setFixedSize(560, 560);
  auto* view = new FormView(desk.form.window);
  view->setParent(&window);
  view->move(3, 23);  // ends in half a pixel at 1.5, as below a menu bar
  window.show();
  for (int round = 0; round < 300; ++round) {
    if (round % 100 == 0) view->SetScale(1 - 0.17 * (round / 100));
    for (int change = roll(3); change >= 0; --change) {
      Control& image = desk.form.imgGreenChecker[1 + roll(12)];
      image.Left = roll(8000) - 400;
      image.Top = roll(8000) - 400;
      image.Visible = roll(4) != 0;
      image.Picture = pictures[roll(3)];
      desk.form.lblSquare[1 + roll(32)].BackColor->Blue = static_cast<std::uint8_t>(roll(256));
    }
    const Drag drag{&desk.form.window, &desk.form.imgBlueChecker[1], {}, {roll(8000), -roll(8000)}};
    view->Refresh(roll(3) == 0 ? Drag{} : drag);
    const QImage partial = Shot(window);
    view->update();
    ASSERT_EQ(partial, Shot(window))
        << "scale " << view->devicePixelRatioF() << ", round " << round;
  }
}

TEST(View, ShrinksACaptionToFit) {
  Desk desk;
  for (const char* family : {"Liberation Sans", "DejaVu Sans"}) {
    desk.splash.lblTitle.Font.Families = {family};
    const QImage title = FormView(desk.splash.window).grab().toImage().copy(0, 8, 516, 89);
    const QImage turned = title.transformed(QTransform().rotate(90));
    std::vector<int> columns;  // with letters
    for (int x = 0; x < 516; ++x) {
      if (Count(turned, x, White) > 0) columns.push_back(x);
    }
    EXPECT_GE(columns.front(), 81) << family;
    EXPECT_LT(columns.back(), 435) << family;
    EXPECT_GT(columns.back() - columns.front(), 315) << family;
  }
}

/// The main window on the real host.
class ShownWindow {
 public:
  explicit ShownWindow(Desk& desk) : form(&desk.form.window) {
    Show();
    for (QWidget* widget : QApplication::allWidgets()) {
      if (auto* found = dynamic_cast<FormView*>(widget)) view = found;
    }
  }

  void Show() { host.ShowForms({&form, 1}, {}); }

  void Mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, {1, 1}, view->mapToGlobal(QPointF(1, 1)), button, held, {});
    QApplication::sendEvent(view, &event);
  }

  /// Empties the event queue. One letter each: press, move, release,
  /// cancel, N for a menu command, X for close.
  std::string Events() {
    std::string letters;
    for (const InputEvent& event : std::exchange(host.Queue, {})) {
      letters += "PMRCNX"[static_cast<int>(event.What)];
    }
    return letters;
  }

  Form* form;
  DesktopHost host;
  FormView* view = nullptr;
};

TEST(Window, QueuesTheUsersInput) {
  Desk desk(StartPosition());
  ShownWindow shown(desk);
  QWidget* window = shown.view->window();
  auto* menu = window->findChild<QMenu*>();
  const auto left = Qt::LeftButton;
  shown.Mouse(QEvent::MouseButtonPress, left, left);
  shown.Mouse(QEvent::MouseMove, Qt::NoButton, left);
  shown.Mouse(QEvent::MouseButtonRelease, left, Qt::NoButton);
  EXPECT_EQ(shown.Events(), "PMR");
  shown.Mouse(QEvent::MouseButtonDblClick, left, left);
  EXPECT_EQ(shown.Events(), "P") << "second press of a double click";
  shown.Mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(shown.Events(), "CM") << "the release was lost";
  menu->popup({});
  EXPECT_EQ(shown.Events(), "C") << "menu opened";
  menu->actions().front()->trigger();
  EXPECT_EQ(shown.Events(), "N");
  menu->close();
  shown.Events();
  window->showMinimized();
  EXPECT_EQ(shown.Events().substr(0, 1), "C") << "minimised";
  window->hide();
  EXPECT_EQ(shown.Events().substr(0, 1), "C") << "hidden";
  window->close();
  EXPECT_EQ(shown.Events(), "X");
}

TEST(Window, AnnouncesPiecesToAssistiveTechnology) {
  Desk desk(Board("g... .... .... .... .... .... .... bb.."));
  ShownWindow shown(desk);
  const QAccessibleInterface* board = QAccessible::queryAccessibleInterface(shown.view);
  ASSERT_EQ(board->childCount(), 32);
  desk.Drag({2, 6});
  desk.DeliverInput();
  Announced.clear();
  shown.Show();
  EXPECT_EQ(Announced, (std::vector<std::string>{"free square 2", "blue man on square 6"}));
  const QRect place = board->child(5)->rect();
  EXPECT_EQ(place, QRect(shown.view->mapToGlobal(QPoint(195, 390)), QSize(65, 65)));
  EXPECT_EQ(board->childAt(place.center().x(), place.center().y()), board->child(5));
}

/// Shows the box, calls `look` with it and its label, and closes it.
void Look(const MessageBox& box, const std::function<void(QMessageBox&, QLabel&)>& look) {
  QTimer::singleShot(0, [&look] {
    auto* dialog = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    look(*dialog, *dialog->findChild<QLabel*>("qt_msgbox_label"));
    dialog->close();
  });
  ShowModal(box, nullptr);
}

// CTest runs this at several scales, set by QT_SCALE_FACTOR. A larger scale leaves less room.
TEST(MessageBox, ShowsAllOfItsText) {
  Desk desk(StartPosition());
  desk.host.OnBox = [&](const MessageBox& box) {
    Look(box, [&](const QMessageBox& dialog, const QLabel& label) {
      const int width = label.fontMetrics().size(0, QString::fromStdString(box.Text)).width();
      const bool areLinesKept = label.text().contains(QRegularExpression("\\S\n\\S"));
      EXPECT_EQ(areLinesKept, label.width() >= width) << "a line was wrapped: " << box.Title;
      EXPECT_TRUE(areLinesKept || dialog.screen()->size().width() < 800) << "joined despite room";
      EXPECT_EQ(dialog.icon(), QMessageBox::Information);
    });
  };
  for (const auto show : {mnuControls_Click, mnuAbout_Click}) show(desk.form);
  for (std::string text = "g"; text.size() < 40; text += "\r\ng") {
    Look({text, MessageIcon::Stop, ""}, [](const QMessageBox& box, QLabel& label) {
      EXPECT_EQ(box.icon(), QMessageBox::Critical);
      const QImage image = label.grab().toImage();
      EXPECT_EQ(Count(image, image.height() - 1, image.pixel(0, 0)), image.width())
          << "cut at the bottom; line breaks: " << label.text().count('g');
    });
  }
}

TEST(MessageBox, JoinsBrokenLinesOnANarrowScreen) {
  const std::string wide(75, 'W');
  const std::string text = wide + "\r\nb\r\nc\r\n\r\nd\r\ne  f";
  Look({text, MessageIcon::Warning, ""}, [&](const QMessageBox& box, const QLabel& label) {
    EXPECT_EQ(label.text().toStdString(), wide + " b c\n\nd e  f");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
  });
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
