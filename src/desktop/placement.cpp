#include "desktop/placement.h"

#include <QApplication>
#include <QBackingStore>
#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/painting.h"

namespace {

constexpr double LeastScale = 0.1;  // a screen may report no room at all

// Room for a frame of unknown size: on Wayland compositors do not report the frame that they draw.
// There is room below, too, because a compositor may centre the window without its title bar.
constexpr QMargins UsualFrame(4, 32, 4, 32);

int MenuHeight(const QWidget& window) {
  const auto* framed = qobject_cast<const QMainWindow*>(&window);
  return framed ? framed->menuBar()->sizeHint().height() : 0;
}

/// Resizes all windows and their backing stores for the present scale. Qt 6.4 does not, when the
/// scale of a screen changes or a window moves to a screen of another scale.
void FollowScale() {
  for (QWidget* shown : QApplication::allWidgets()) {
    shown->update();
    QBackingStore* surface = shown->isWindow() ? shown->backingStore() : nullptr;
    if (!surface) continue;
    surface->resize(shown->size());
    shown->windowHandle()->resize(shown->size());
  }
}

}  // namespace

Placement::Placement(QWidget& placedWindow, FormView& placedView)
    : window(placedWindow), view(placedView) {
  window.winId();  // creates the handle
  handle = window.windowHandle();
  // Queued, as the new scale arrives in several events.
  connect(handle, &QWindow::screenChanged, this, &Placement::WatchScreen, Qt::QueuedConnection);
  handle->installEventFilter(this);
  WatchScreen();
  QRect place = window.rect();
  place.moveCenter(window.screen()->availableGeometry().center());
  window.setGeometry(place);
  KeepInReach();
}

bool Placement::eventFilter(QObject*, QEvent* event) {
  const bool frameMayBeKnown = event->type() == QEvent::Expose || event->type() == QEvent::Move;
  // Only once: later moves are the user's, and stay.
  if (frameMayBeKnown && frame.isNull() && !handle->frameMargins().isNull()) KeepInReach();
  return false;
}

/// On another screen the window may change its size, but it stays where the user has put it.
void Placement::WatchScreen() {
  disconnect(roomChanged);
  roomChanged =
      connect(window.screen(), &QScreen::availableGeometryChanged, this, &Placement::FollowRoom);
  Fit();
  FollowScale();
}

/// The scale may have changed, too. Then only the handle has the right place of the window.
void Placement::FollowRoom() {
  window.setGeometry({handle->position(), window.size()});
  FollowScale();
  KeepInReach();
}

/// Makes the window as large as it can be around its middle, and moves it as little as possible.
void Placement::KeepInReach() {
  QRect place = window.geometry();
  Fit();
  const QPoint middle = place.center();
  place.setSize(window.size());
  place.moveCenter(middle);
  const QRect room = Room();
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  window.setGeometry(place);
}

void Placement::Fit() {
  frame = handle->frameMargins();
  const double across = Room().width() / ToPixels(view.ViewedForm().Width);
  const double down = (Room().height() - MenuHeight(window)) / ToPixels(view.ViewedForm().Height);
  view.SetScale(std::clamp(std::min(across, down), LeastScale, 1.0));
  window.adjustSize();
}

/// The available geometry of the screen without the frame, where the client area may be.
QRect Placement::Room() const {
  const bool hasUnknownFrame = view.ViewedForm().HasFrame && frame.isNull();
  return window.screen()->availableGeometry().marginsRemoved(hasUnknownFrame ? UsualFrame : frame);
}
