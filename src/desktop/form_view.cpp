#include "desktop/form_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/accessibility.h"
#include "desktop/painting.h"

namespace {

/// In pixels, around each repainted place. At a fractional device pixel ratio Qt rounds the clip
/// region and the painted edges separately, so the two may be pixels apart.
constexpr int RepaintMargin = 2;

QRect AroundPixels(const QRectF& pixels) {
  return pixels.toAlignedRect().adjusted(-RepaintMargin, -RepaintMargin, RepaintMargin,
                                         RepaintMargin);
}

int ToTwips(double place, int size, int pixels) {
  return static_cast<int>(std::floor(place * size / pixels));
}

}  // namespace

FormView::FormView(const Form& viewedForm) : form(viewedForm), shown(viewedForm) {
  SetScale(1);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  // Otherwise the menu bar keeps the focus after a menu has been closed.
  setFocusPolicy(Qt::ClickFocus);
}

void FormView::Refresh(const Drag& drag) {
  const ShownForm::Changes changes = shown.Update(drag);
  for (const ShownForm::ChangedLook& look : changes.Looks) {
    Repaint(look.Before.Place);
    Repaint(look.Now.Place);
  }
  AnnounceChanges(*this, changes.Words);
  if (!changes.HasOutlineChanged) return;
  if (changes.OutlineBefore) Repaint(*changes.OutlineBefore);
  if (const auto& outline = shown.Outline()) Repaint(*outline);
}

void FormView::SetScale(double scale) {
  setFixedSize(static_cast<int>(ToPixels(form.Width) * scale),
               static_cast<int>(ToPixels(form.Height) * scale));
}

Point FormView::PointAt(QPointF pixels) const {
  return {ToTwips(pixels.x(), form.Width, width()), ToTwips(pixels.y(), form.Height, height())};
}

QRectF FormView::PixelsOf(const Rect& place) const { return ToView().mapRect(PixelRect(place)); }

void FormView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setTransform(ToView());
  painter.fillRect(PixelRect({0, 0, form.Width, form.Height}), ToQColor(form.BackColor));
  std::for_each(form.Controls.rbegin(), form.Controls.rend(), [&](const Control* control) {
    if (!control->Visible) return;
    if (!event->region().intersects(AroundPixels(PixelsOf(RectOf(*control))))) return;
    PaintControl(painter, *control);
  });
  if (const auto& outline = shown.Outline()) PaintDragOutline(painter, PixelRect(*outline));
}

/// Converts from the form's own pixels to those of the view.
QTransform FormView::ToView() const {
  return QTransform::fromScale(width() / ToPixels(form.Width), height() / ToPixels(form.Height));
}

void FormView::Repaint(const Rect& place) { update(AroundPixels(PixelsOf(place))); }
