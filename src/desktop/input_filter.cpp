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
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      const bool isMove = event->type() == QEvent::MouseMove;
      for (const InputEvent::Kind what : watch.See(mouse->buttons().toInt(), isMove)) {
        Put(what, view->PointAt(mouse->position()));
      }
      return true;
    }
    default:
      return false;
  }
}

void InputFilter::Put(InputEvent::Kind what, Point at) {
  sink({.What = what, .Window = &form, .At = at});
}
