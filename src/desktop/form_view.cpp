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

}  // namespace

FormView::FormView(const Form& viewedForm) : form(viewedForm), shown(viewedForm) {
  setFixedSize(form.Width / TwipsPerPixel, form.Height / TwipsPerPixel);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void FormView::Refresh(const Drag& drag) {
  const ShownForm::Changes changes = shown.Update(drag);
  for (const ShownForm::ChangedLook& look : changes.Looks) {
    Repaint(look.Before.Place);
    Repaint(look.Now.Place);
  }
  if (!changes.Looks.empty()) AnnounceChanges(*this);
  if (!changes.HasOutlineChanged) return;
  if (changes.OutlineBefore) Repaint(*changes.OutlineBefore);
  if (shown.Outline()) Repaint(*shown.Outline());
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
  if (shown.Outline()) PaintDragOutline(painter, PixelRect(*shown.Outline()));
}

void FormView::Repaint(const Rect& place) { update(PixelRect(place).toAlignedRect()); }
