#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "desktop/form_view.h"
#include "desktop/input_filter.h"
#include "desktop/placement.h"

/// The window of a form. The form must outlive it, and so must everything that its sink refers to.
class FormWindow {
 public:
  /// Builds, places and shows the window. `sink` is called with its raw input.
  FormWindow(Form& shownForm, const std::function<void(const InputEvent&)>& sink);

  /// Repaints what has changed since the last call.
  void Refresh(const Drag& drag) { view->Refresh(drag); }

  /// Brings the window to the front and gives it the focus.
  void Raise();

  QWidget* Widget() const { return window.get(); }
  const Form& ViewedForm() const { return form; }

 private:
  void BuildFramed(const std::function<void(const InputEvent&)>& sink);

  Form& form;
  FormView* view = nullptr;  // the window itself if the form has no frame
  InputFilter filter;        // outlives the window that it watches
  std::unique_ptr<QWidget> window;
  std::unique_ptr<Placement> placement;
};
