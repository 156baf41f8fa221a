#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "desktop/form_view.h"
#include "desktop/input_filter.h"
#include "desktop/placement.h"

/// A form on the screen. The form must outlive it, and so must all that its sink refers to.
class FormWindow {
 public:
  /// Builds and shows the window, as its `Placement` has it. `sink` takes its raw input.
  FormWindow(Form& shownForm, const std::function<void(const InputEvent&)>& sink);

  /// Brings the window up to date.
  void Refresh(const Drag& drag) { view->Refresh(drag); }

  /// Brings the window in front of the others.
  void Raise();

  QWidget* Widget() const { return window.get(); }
  const Form& ViewedForm() const { return form; }

 private:
  void BuildFramed(const std::function<void(const InputEvent&)>& sink);

  Form& form;
  FormView* view = nullptr;  // is the window itself where there is no frame
  InputFilter filter;        // outlives the window that it watches
  std::unique_ptr<QWidget> window;
  std::unique_ptr<Placement> placement;
};
