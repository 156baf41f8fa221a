#pragma once

#include <QObject>
#include <functional>

#include "desktop/form_view.h"
#include "toolkit/buttons.h"

/// Translates the events of a window into raw input of its form. It must outlive the window, and
/// the form must outlive both.
class InputFilter : public QObject {
 public:
  InputFilter(Form& inputForm, std::function<void(const InputEvent&)> inputSink)
      : form(inputForm), sink(std::move(inputSink)) {}

  /// Starts to filter. `view` is the client area of `window`; they may be the same widget.
  void Watch(FormView* view, QObject* window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool FilterPointer(QEvent* event);
  void Put(InputEvent::Kind what, Point at = {});

  Form& form;
  std::function<void(const InputEvent&)> sink;
  FormView* view = nullptr;
  ButtonWatch watch;
};
