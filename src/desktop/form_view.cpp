#include "desktop/form_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/accessibility.h"
#include "desktop/painting.h"

namespace {

QRectF PixelRect(const Rect& place) {
  return {ToPixels(place.Left), ToPixels(place.Top), ToPixels(place.Width), ToPixels(place.Height)};
}

/// Where the outline of the dragged image stands: it keeps its distance from the pointer.
std::optional<Rect> OutlineOf(const Form& form, const Drag& drag) {
  if (!drag.Source || drag.Window != &form) return std::nullopt;
  Rect place = RectOf(*drag.Source);
  place.Left += drag.Pointer.X - drag.Start.X;
  place.Top += drag.Pointer.Y - drag.Start.Y;
  return place;
}

}  // namespace

FormView::FormView(const Form& shownForm) : form(shownForm) {
  setFixedSize(form.Width / TwipsPerPixel, form.Height / TwipsPerPixel);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void FormView::Refresh(const Drag& drag) {
  looks.resize(form.Controls.size());
  bool isChanged = false;
  for (std::size_t i = 0; i < looks.size(); ++i) {
    Look look = LookOf(*form.Controls[i]);
    if (look == looks[i]) continue;
    Repaint(looks[i].Place);
    Repaint(look.Place);
    looks[i] = std::move(look);
    isChanged = true;
  }
  if (isChanged) AnnounceChanges(*this);
  const std::optional<Rect> newOutline = OutlineOf(form, drag);
  if (newOutline == outline) return;
  if (outline) Repaint(*outline);
  if (newOutline) Repaint(*newOutline);
  outline = newOutline;
}

void FormView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setClipRegion(event->region());
  painter.fillRect(rect(), ToQColor(form.BackColor));
  std::for_each(form.Controls.rbegin(), form.Controls.rend(), [&](const Control* control) {
    if (control->Visible && event->region().intersects(PixelRectOf(*control).toAlignedRect())) {
      PaintControl(painter, *control);
    }
  });
  if (outline) PaintDragOutline(painter, PixelRect(*outline));
}

FormView::Look FormView::LookOf(const Control& control) {
  return {control.Visible, RectOf(control), control.Picture, control.BackColor, control.Caption};
}

void FormView::Repaint(const Rect& place) { update(PixelRect(place).toAlignedRect()); }
