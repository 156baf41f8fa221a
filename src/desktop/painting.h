#pragma once

#include <QIcon>
#include <QPainter>

#include "toolkit/control.h"

// Controls and pictures as strokes of a painter. Everything is drawn as vectors at the scale of the
// screen, so nothing is ever a scaled bitmap.

constexpr double ToPixels(int twips) { return static_cast<double>(twips) / TwipsPerPixel; }

QColor ToQColor(Color color);

/// The place of a control in the pixels of its window.
QRectF PixelRectOf(const Control& control);

/// Paints a control as it stands. Nothing of it lies outside `PixelRectOf`.
void PaintControl(QPainter& painter, const Control& control);

/// Paints a picture over the whole rectangle.
void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& place);

/// Paints the outline that follows the pointer in a drag: it shows on light and on dark.
void PaintDragOutline(QPainter& painter, const QRectF& place);

/// A picture as a window icon, in the usual sizes.
QIcon MakeIcon(const Picture& picture);
