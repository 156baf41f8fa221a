// Writes the icon of the game, the board of its windows, below a folder: in every size that
// desktops ask for, each painted anew and none scaled, and as SVG.

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTextStream>
#include <cstdio>

#include "desktop/painting.h"
#include "ui/pictures.h"

namespace {

bool WriteBitmap(const QString& path, const Picture& picture, int size) {
  QImage image(size, size, QImage::Format_RGB32);
  QPainter painter(&image);
  PaintPicture(painter, picture, image.rect());
  painter.end();
  return image.save(path);
}

/// The outline of a shape as an SVG element, open for its attributes of colour.
QString SvgOutline(const PictureShape& shape) {
  const auto& corners = shape.Corners;
  if (shape.Outline == PictureShape::Kind::Polygon) {
    QString points;
    for (const auto& [x, y] : corners) points += QString("%1,%2 ").arg(x).arg(y);
    return QString("<polygon points='%1'").arg(points.trimmed());
  }
  const auto [left, top] = corners[0];
  const double width = corners[1].first - left;
  const double height = corners[1].second - top;
  if (shape.Outline == PictureShape::Kind::Ellipse) {
    return QString("<ellipse cx='%1' cy='%2' rx='%3' ry='%4'")
        .arg(left + width / 2)
        .arg(top + height / 2)
        .arg(width / 2)
        .arg(height / 2);
  }
  // Crisp, or at most sizes the ground would shine through along the seams.
  return QString("<rect x='%1' y='%2' width='%3' height='%4' shape-rendering='crispEdges'")
      .arg(left)
      .arg(top)
      .arg(width)
      .arg(height);
}

bool WriteSvg(const QString& path, const Picture& picture) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  QTextStream svg(&file);
  svg << QString("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'")
             .arg(picture.Width)
             .arg(picture.Height)
      << QString(" viewBox='0 0 %1 %2'>\n").arg(picture.Width).arg(picture.Height);
  for (const PictureShape& shape : picture.Shapes) {
    svg << "  " << SvgOutline(shape) << " fill='" << ToQColor(shape.Fill).name() << "'/>\n";
  }
  svg << "</svg>\n";
  svg.flush();
  return svg.status() == QTextStream::Ok && file.flush();
}

/// The place of the icon in a theme, where `kind` names the size. Makes its folder.
QString IconPath(const QDir& theme, const QString& kind, const QString& suffix) {
  const QString folder = kind + "/apps";
  theme.mkpath(folder);
  return theme.filePath(folder + "/velmoran." + suffix);
}

bool WriteIcons(const QDir& theme, const Picture& picture) {
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    const QString kind = QString("%1x%1").arg(size);
    if (!WriteBitmap(IconPath(theme, kind, "png"), picture, size)) return false;
  }
  return WriteSvg(IconPath(theme, "scalable", "svg"), picture);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_icons FOLDER\n", stderr);
    return 2;
  }
  if (!WriteIcons(QDir(QString::fromLocal8Bit(argv[1])), CheckerBoardPicture)) {
    std::fputs("make_icons: cannot write the icons\n", stderr);
    return 1;
  }
}
