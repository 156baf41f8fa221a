#include "desktop/input_filter.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>

void InputFilter::Watch(FormView* watchedView, QObject* window) {
  view = watchedView;
  view->installEventFilter(this);
  if (window != view) window->installEventFilter(this);
}

bool InputFilter::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view && FilterPointer(event)) return true;
  switch (event->type()) {
    case QEvent::Close:
      event->ignore();
      Put(InputEvent::Kind::Close);
      return true;
    case QEvent::KeyPress:
      if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        Put(InputEvent::Kind::CancelDrag);
      return false;
    case QEvent::WindowDeactivate:
    case QEvent::WindowStateChange:
    case QEvent::Hide:
      Put(InputEvent::Kind::CancelDrag);
      return false;
    default:
      return false;
  }
}

bool InputFilter::FilterPointer(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      if (mouse->button() != Qt::LeftButton) {
        Put(InputEvent::Kind::CancelDrag);
        return true;
      }
      isLeftDown = true;
      Put(InputEvent::Kind::Press, view->PointAt(mouse->position()));
      return true;
    }
    case QEvent::MouseMove: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      // No release comes when the window was minimised or lost the pointer in mid-drag.
      if (isLeftDown && !(mouse->buttons() & Qt::LeftButton)) {
        isLeftDown = false;
        Put(InputEvent::Kind::CancelDrag);
      }
      Put(InputEvent::Kind::Move, view->PointAt(mouse->position()));
      return true;
    }
    case QEvent::MouseButtonRelease: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      if (mouse->button() != Qt::LeftButton) return true;
      isLeftDown = false;
      Put(InputEvent::Kind::Release, view->PointAt(mouse->position()));
      return true;
    }
    default:
      return false;
  }
}

void InputFilter::Put(InputEvent::Kind what, Point at) {
  sink({.What = what, .Window = &form, .At = at});
}
