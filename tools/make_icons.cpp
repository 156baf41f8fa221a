// Writes the game's icon, a small board, to a folder: as SVG, and as PNG in all sizes that desktops
// use. Each size is painted by itself, never scaled.

#include <QDir>
#include <QFile>
#include <QImage>
#include <cstdio>

#include "desktop/painting.h"
#include "toolkit/svg.h"
#include "ui/pictures.h"

namespace {

bool WriteBitmap(const QString& path, const Picture& picture, int size) {
  QImage image(size, size, QImage::Format_RGB32);
  QPainter painter(&image);
  PaintPicture(painter, picture, image.rect());
  painter.end();
  return image.save(path);
}

bool WriteSvg(const QString& path, const Picture& picture) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(IconMarkup(picture).c_str()) > 0 &&
         file.flush();
}

/// The file of the icon in a theme. `kind` is the name of its size. Creates the folder.
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
