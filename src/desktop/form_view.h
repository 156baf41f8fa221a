#pragma once

#include <QWidget>

#include "toolkit/shown_form.h"

/// The client area of a form: one widget that paints all of its controls.
class FormView : public QWidget {
 public:
  explicit FormView(const Form& viewedForm);

  /// Compares the controls and the drag with what was painted last, and repaints what differs.
  void Refresh(const Drag& drag);

  const Form& ViewedForm() const { return form; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Repaint(const Rect& place);

  const Form& form;
  ShownForm shown;
};
