#include "desktop/painting.h"

#include <QPolygonF>
#include <algorithm>
#include <span>

#include "toolkit/shown_form.h"

namespace {

QPointF ToPoint(const std::pair<double, double>& corner) { return {corner.first, corner.second}; }

/// Antialiasing would dim the outermost pixels of a disc, where its edge touches the box. So it is
/// drawn slightly too large and clipped to the box.
void PaintEllipse(QPainter& painter, const QRectF& box) {
  constexpr double Hair = 0.01;
  painter.save();
  painter.setClipRect(box, Qt::IntersectClip);
  painter.drawEllipse(box.adjusted(-Hair, -Hair, Hair, Hair));
  painter.restore();
}

void PaintShape(QPainter& painter, const PictureShape& shape) {
  const QColor fill = ToQColor(shape.Fill);
  // Round and slanted edges are antialiased. Straight ones are not: at a scale like 1.25
  // antialiasing shows the background along the seams.
  painter.setRenderHint(QPainter::Antialiasing, shape.Outline != PictureShape::Kind::Rectangle);
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  const auto& corners = shape.Corners;
  switch (shape.Outline) {
    case PictureShape::Kind::Rectangle:
      painter.fillRect(QRectF(ToPoint(corners[0]), ToPoint(corners[1])), fill);
      break;
    case PictureShape::Kind::Ellipse:
      PaintEllipse(painter, QRectF(ToPoint(corners[0]), ToPoint(corners[1])));
      break;
    case PictureShape::Kind::Polygon: {
      QPolygonF polygon;
      for (const auto& corner : corners) polygon << ToPoint(corner);
      painter.drawPolygon(polygon);
      break;
    }
  }
}

void PaintCaption(QPainter& painter, const Control& control) {
  QFont font;
  QStringList families;
  for (const std::string& family : control.Font.Families) {
    families << QString::fromStdString(family);
  }
  font.setFamilies(families);
  // The form's points are for 96 dots per inch, whatever the screen's own value is.
  font.setPixelSize(control.Font.Points * 96 / 72);
  const QString caption = QString::fromStdString(control.Caption);
  const double room = ToPixels(CaptionRoom(control));
  while (font.pixelSize() > 1 && QFontMetricsF(font).horizontalAdvance(caption) > room) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  painter.setFont(font);
  painter.setPen(ToQColor(control.ForeColor));
  painter.drawText(PixelRect(RectOf(control)), Qt::AlignHCenter | Qt::AlignTop, caption);
}

void PaintLabel(QPainter& painter, const Control& control) {
  if (control.BackColor) painter.fillRect(PixelRect(RectOf(control)), ToQColor(*control.BackColor));
  if (!control.Caption.empty()) PaintCaption(painter, control);
}

/// A frame of lines of these colours, the outermost first. It is laid out in device pixels,
/// because rounding each side separately could make them unequally thick.
void PaintFrame(QPainter& painter, const QRectF& place, int lineWidth,
                std::span<const Color> colors) {
  const QTransform toScreen = painter.deviceTransform();
  const int width = std::max(1, qRound(lineWidth * toScreen.m11()));
  QRect box = toScreen.mapRect(place).toRect();
  painter.save();
  painter.setWorldTransform(toScreen.inverted(), true);
  for (const Color color : colors) {
    const QRect inner = box.adjusted(width, width, -width, -width);
    for (const QRect& side : QRegion(box).subtracted(inner)) {
      painter.fillRect(side, ToQColor(color));
    }
    box = inner;
  }
  painter.restore();
}

}  // namespace

QColor ToQColor(Color color) { return {color.Red, color.Green, color.Blue}; }

QRectF PixelRect(const Rect& place) {
  return {ToPixels(place.Left), ToPixels(place.Top), ToPixels(place.Width), ToPixels(place.Height)};
}

void PaintControl(QPainter& painter, const Control& control) {
  switch (control.Kind) {
    case ControlKind::Label:
      PaintLabel(painter, control);
      break;
    case ControlKind::Image:
      if (control.Picture) PaintPicture(painter, *control.Picture, PixelRect(RectOf(control)));
      break;
    case ControlKind::Border:
      PaintFrame(painter, PixelRect(RectOf(control)), control.LineWidth, {&control.ForeColor, 1});
      break;
    case ControlKind::PictureBox:
      break;
  }
}

void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& place) {
  painter.save();
  painter.setClipRect(place, Qt::IntersectClip);
  painter.translate(place.topLeft());
  painter.scale(place.width() / picture.Width, place.height() / picture.Height);
  for (const PictureShape& shape : picture.Shapes) PaintShape(painter, shape);
  painter.restore();
}

void PaintDragOutline(QPainter& painter, const QRectF& place) {
  PaintFrame(painter, place, 1, OutlineColors);
}

QIcon MakeIcon(const Picture& picture) {
  QIcon icon;
  for (const int size : {16, 32, 48, 64, 128}) {
    QPixmap pixmap(size, size);
    QPainter painter(&pixmap);
    PaintPicture(painter, picture, QRectF(0, 0, size, size));
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}
