#pragma once

#include <QWidget>

#include "toolkit/shown_form.h"

/// The client area of a form: one widget that paints all of its controls, as large as the form
/// unless it has been made smaller. The form must outlive it.
class FormView : public QWidget {
 public:
  explicit FormView(const Form& viewedForm);

  /// Compares the controls and the drag with what was painted last, and repaints what differs.
  void Refresh(const Drag& drag);

  /// Shows the whole form in so much of its own size: above 0, at most 1.
  void SetScale(double scale);

  /// The point of the form under a point of the view.
  Point PointAt(QPointF pixels) const;

  /// The pixels of the view that a place on the form covers.
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
