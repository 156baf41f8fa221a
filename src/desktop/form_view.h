#pragma once

#include <QWidget>

#include "toolkit/shown_form.h"

/// The client area of a form: one widget that paints all of its controls, as large as the form
/// unless it has been made smaller. The form must outlive it.
class FormView : public QWidget {
 public:
  explicit FormView(const Form& viewedForm);

  /// Repaints what has changed since the last call, the outline of the drag included.
  void Refresh(const Drag& drag);

  /// Shows the whole form smaller, by a factor above 0 and at most 1.
  void SetScale(double scale);

  /// Converts a point of the view, in pixels, to a point of the form, in twips.
  Point PointAt(QPointF pixels) const;

  /// Converts a place on the form, in twips, to pixels of the view.
  QRectF PixelsOf(const Rect& place) const;

  const Form& ViewedForm() const { return form; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QTransform ToView() const;
  void Repaint(const Rect& place);

  const Form& form;
  ShownForm shown;
};
