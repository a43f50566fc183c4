// RenderIcon SOURCE.svg SIZE TARGET.png: the application's icon in one of the theme's sizes.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  const int size = QByteArray(argv[2]).toInt();
  if (!drawing.isValid() || size <= 0) {
    std::fprintf(stderr, "cannot draw %s at %s\n", argv[1], argv[2]);
    return 1;
  }
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing.render(&painter);
  painter.end();
  return picture.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}
