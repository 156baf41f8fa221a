#include "desktop/form_window.h"

#include <QLayout>
#include <QMainWindow>

#include "desktop/menu_bar.h"
#include "desktop/painting.h"

FormWindow::FormWindow(Form& shownForm, const std::function<void(const InputEvent&)>& sink)
    : form(shownForm), filter(shownForm, sink) {
  view = new FormView(form);
  if (form.HasFrame) {
    BuildFramed(sink);
  } else {
    window.reset(view);
    window->setWindowFlag(Qt::FramelessWindowHint);
  }
  filter.Watch(view, window.get());
  window->setWindowTitle(QString::fromStdString(form.Caption));
  if (form.Icon) window->setWindowIcon(MakeIcon(*form.Icon));
  placement = std::make_unique<Placement>(*window, *view);
  window->show();
}

void FormWindow::Raise() {
  window->raise();
  window->activateWindow();
}

void FormWindow::BuildFramed(const std::function<void(const InputEvent&)>& sink) {
  auto frame = std::make_unique<QMainWindow>();
  frame->setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                        Qt::WindowCloseButtonHint);
  FillMenuBar(
      *frame->menuBar(), form.Menu,
      [this, sink](const MenuItem& item) {
        sink({.What = InputEvent::Kind::MenuCommand, .Window = &form, .Command = &item});
      },
      [this, sink] { sink({.What = InputEvent::Kind::CancelDrag, .Window = &form}); });
  frame->setCentralWidget(view);
  frame->layout()->setSizeConstraint(QLayout::SetFixedSize);
  window = std::move(frame);
}
