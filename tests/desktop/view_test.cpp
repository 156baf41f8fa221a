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

// No assistive technology runs here, and Qt would drop the updates. These replace Qt's own.
static std::vector<std::string> Announced;  // the new names, in order
bool QAccessible::isActive() { return true; }
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
  if (event->type() != QAccessible::NameChanged) return;
  Announced.push_back(event->accessibleInterface()->text(QAccessible::Name).toStdString());
}

namespace {

constexpr QRgb White = qRgb(255, 255, 255);

/// The number of pixels in row `y` with exactly this colour.
int Count(const QImage& image, int y, QRgb colour) {
  int count = 0;
  for (int x = 0; x < image.width(); ++x) count += (image.pixel(x, y) | 0xff000000) == colour;
  return count;
}

TEST(View, PaintsSharpPicturesAtAnyScale) {
  const Picture* const pictures[] = {&BlueCheckerPicture, &GreenKingPicture,
                                     &GreenKingHighlightPicture};
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    const int size = static_cast<int>(65 * ratio);
    const int middle = size / 2;
    QImage image(size, size, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    for (const Picture* picture : pictures) {
      SCOPED_TRACE(testing::Message() << picture->Shapes.size() << " shapes at " << ratio);
      PaintPicture(painter, *picture, QRectF(0, 0, 65, 65));
      const auto colour = [&](std::size_t shape) {
        return ToQColor(picture->Shapes[shape].Fill).rgb();
      };
      const QImage edge = image.copy(0, middle, qRound(15 * ratio), 1);  // no star is so wide
      const int ground = Count(edge, 0, colour(0));
      EXPECT_GE(ground, static_cast<int>(3 * ratio));
      const int blurred = edge.width() - ground - Count(edge, 0, colour(1));
      EXPECT_LE(blurred, ratio == 1 ? 0 : 1);
      EXPECT_EQ(image.pixel(middle, middle), colour(picture->Shapes.size() - 1));
    }
    PaintDragOutline(painter, QRectF(10.3, 10.3, 40, 40));
    const int lines = 2 * qRound(ratio);
    EXPECT_EQ(Count(image, middle, White), lines) << ratio;
    EXPECT_EQ(Count(image.transformed(QTransform().rotate(90)), middle, White), lines) << ratio;
    EXPECT_EQ(image.pixel(qRound(10.3 * ratio), middle), White) << "the outer line is white";
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

  /// Empties the event queue. One letter each: press, move, release, cancel.
  std::string Events() {
    std::string letters;
    for (const InputEvent& event : std::exchange(host.Queue, {})) {
      letters += "PMRC"[static_cast<int>(event.What)];
    }
    return letters;
  }

  Form* form;
  DesktopHost host;
  FormView* view = nullptr;
};

TEST(Window, CancelsDragsAndLosesNoPress) {
  Desk desk(StartPosition());
  ShownWindow shown(desk);
  shown.Mouse(QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(shown.Events(), "P") << "second press of a double click";
  shown.Mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(shown.Events(), "CM") << "the release was lost";
  auto* menu = shown.view->window()->findChild<QMenu*>();
  menu->popup({});
  EXPECT_EQ(shown.Events(), "C") << "menu opened";
  menu->close();
  shown.Events();
  shown.view->window()->showMinimized();
  EXPECT_EQ(shown.Events().substr(0, 1), "C") << "minimised";
  shown.view->window()->hide();
  EXPECT_EQ(shown.Events().substr(0, 1), "C") << "hidden";
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
