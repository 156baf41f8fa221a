#pragma once

#include <QIcon>
#include <QPainter>

#include "toolkit/control.h"

// Controls and pictures as strokes of a painter. Everything is drawn as vectors at the scale of the
// screen, so nothing is ever a scaled bitmap.

constexpr double ToPixels(int twips) { return static_cast<double>(twips) / TwipsPerPixel; }

QColor ToQColor(Color color);

/// A place in the form's own pixels.
QRectF PixelRect(const Rect& place);

/// Paints a control as it stands, in the form's own pixels. Nothing of it lies outside its place.
void PaintControl(QPainter& painter, const Control& control);

/// Paints a picture over the whole rectangle.
void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& place);

/// Paints the outline that follows the pointer in a drag, equally thick on all sides.
void PaintDragOutline(QPainter& painter, const QRectF& place);

/// A picture as a window icon, in the usual sizes.
QIcon MakeIcon(const Picture& picture);
