#pragma once

#include <QObject>
#include <QWidget>

#include "desktop/form_view.h"

/// Keeps a window in reach. The window is as large as its form, or smaller as a whole if the screen
/// has no room for it. Its top left corner is inside the available geometry of the screen.
class Placement : public QObject {
 public:
  /// Places the window, whose client area is `view`, in the centre of its screen. Both must outlive
  /// the placement.
  Placement(QWidget& placedWindow, FormView& placedView);

  /// Qt has no signal for the frame. It is known by the first Expose or Move with margins.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void WatchScreen();
  void FollowRoom();
  void KeepInReach();
  void Fit();
  QRect Room() const;

  QWidget& window;
  FormView& view;
  QWindow* handle = nullptr;
  QMargins frame;  // the title bar and the edges; empty until the window manager reports them
  QMetaObject::Connection roomChanged;
};
