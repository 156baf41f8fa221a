#include "desktop/placement.h"

#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/painting.h"

namespace {

constexpr double LeastScale = 0.1;  // a screen may tell of no room at all

int MenuHeight(const QWidget& window) {
  const auto* framed = qobject_cast<const QMainWindow*>(&window);
  return framed ? framed->menuBar()->sizeHint().height() : 0;
}

}  // namespace

Placement::Placement(QWidget& placedWindow, FormView& placedView)
    : window(placedWindow), view(placedView) {
  window.winId();  // from here on there is a handle
  handle = window.windowHandle();
  connect(handle, &QWindow::screenChanged, this, &Placement::WatchScreen);
  handle->installEventFilter(this);
  WatchScreen();
  MoveToCentre();
  KeepInReach();
}

bool Placement::eventFilter(QObject*, QEvent* event) {
  // Nobody tells of the frame itself, but it is there before the window is first seen.
  const bool mayKnowFrame = event->type() == QEvent::Expose || event->type() == QEvent::Move;
  // With the same frame as before it is the user who has moved the window, and may.
  if (mayKnowFrame && handle->frameMargins() != frame) KeepInReach();
  return false;
}

void Placement::WatchScreen() {
  disconnect(roomChanged);
  roomChanged =
      connect(window.screen(), &QScreen::availableGeometryChanged, this, &Placement::KeepInReach);
  Fit();
}

void Placement::KeepInReach() {
  Fit();
  const QRect room = window.screen()->availableGeometry().marginsRemoved(frame);
  const int left = std::min(window.geometry().left(), room.left() + room.width() - window.width());
  const int top = std::min(window.geometry().top(), room.top() + room.height() - window.height());
  window.setGeometry(std::max(left, room.left()), std::max(top, room.top()), window.width(),
                     window.height());
}

void Placement::Fit() {
  frame = handle->frameMargins();
  const QSize room = window.screen()->availableGeometry().size().shrunkBy(frame);
  const double across = room.width() / ToPixels(view.ViewedForm().Width);
  const double down = (room.height() - MenuHeight(window)) / ToPixels(view.ViewedForm().Height);
  const QSize before = window.size();
  view.SetScale(std::clamp(std::min(across, down), LeastScale, 1.0));
  window.adjustSize();
  if (window.size() != before) MoveToCentre();
}

void Placement::MoveToCentre() {
  QRect place = window.rect();
  place.moveCenter(window.screen()->availableGeometry().center());
  window.setGeometry(place);
}
