#pragma once

#include <QIcon>
#include <QPainter>

#include "toolkit/control.h"

// Paints controls and pictures as vectors at the scale of the screen: no bitmap is ever scaled.

constexpr double ToPixels(int twips) { return static_cast<double>(twips) / TwipsPerPixel; }

QColor ToQColor(Color color);

/// Converts a place from twips to the form's own pixels.
QRectF PixelRect(const Rect& place);

/// Paints a control in the form's own pixels, never outside its place.
void PaintControl(QPainter& painter, const Control& control);

/// Paints a picture over the whole rectangle.
void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& place);

/// Paints the outline that follows the pointer in a drag, equally thick on all sides.
void PaintDragOutline(QPainter& painter, const QRectF& place);

/// A picture as a window icon, painted in five sizes from 16 to 128.
QIcon MakeIcon(const Picture& picture);
