#include "desktop/painting.h"

#include <QPolygonF>

namespace {

QPointF ToPoint(const std::pair<double, double>& corner) { return {corner.first, corner.second}; }

/// Smoothing would dim the outermost pixels of a disc, which its box touches only in their middle.
/// So it is drawn a hair too large and cut off at the box.
void PaintEllipse(QPainter& painter, const QRectF& box) {
  constexpr double Hair = 0.01;
  painter.save();
  painter.setClipRect(box, Qt::IntersectClip);
  painter.drawEllipse(box.adjusted(-Hair, -Hair, Hair, Hair));
  painter.restore();
}

void PaintShape(QPainter& painter, const PictureShape& shape) {
  const QColor fill = ToQColor(shape.Fill);
  // Round and slanted edges are smoothed. Straight ones are not: at a scale like 1.25 they would
  // let the ground shine through along the seams.
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
  // The form's points are those of 96 dots per inch, whatever the screen says of itself.
  font.setPixelSize(control.Font.Points * 96 / 72);
  painter.setFont(font);
  painter.setPen(ToQColor(control.ForeColor));
  painter.drawText(PixelRectOf(control), Qt::AlignHCenter | Qt::AlignTop,
                   QString::fromStdString(control.Caption));
}

void PaintLabel(QPainter& painter, const Control& control) {
  if (control.BackColor) painter.fillRect(PixelRectOf(control), ToQColor(*control.BackColor));
  if (!control.Caption.empty()) PaintCaption(painter, control);
}

/// The line lies inside the rectangle, with its whole width.
void PaintBorder(QPainter& painter, const Control& control) {
  const double half = control.LineWidth / 2.0;
  painter.setRenderHint(QPainter::Antialiasing, false);
  QPen pen(ToQColor(control.ForeColor), control.LineWidth);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(PixelRectOf(control).adjusted(half, half, -half, -half));
}

}  // namespace

QColor ToQColor(Color color) { return {color.Red, color.Green, color.Blue}; }

QRectF PixelRectOf(const Control& control) {
  return {ToPixels(control.Left), ToPixels(control.Top), ToPixels(control.Width),
          ToPixels(control.Height)};
}

void PaintControl(QPainter& painter, const Control& control) {
  switch (control.Kind) {
    case ControlKind::Label:
      PaintLabel(painter, control);
      break;
    case ControlKind::Image:
      if (control.Picture) PaintPicture(painter, *control.Picture, PixelRectOf(control));
      break;
    case ControlKind::Border:
      PaintBorder(painter, control);
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
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, 1));
  painter.drawRect(place.adjusted(0, 0, -1, -1));
  painter.setPen(QPen(Qt::black, 1));
  painter.drawRect(place.adjusted(1, 1, -2, -2));
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
