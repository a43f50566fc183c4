#include "animated_view/LabelPicture.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace lurkwell {
namespace {

constexpr double kSmallPoints = 10;
constexpr double kLargePoints = 200;
constexpr double kWidestText = 140;
constexpr double kSideMargin = 5;
constexpr double kLabelPoints = 15;

QFont LabelFont(double pixels) {
  QFont font(QStringList{QStringLiteral("Helvetica"), QStringLiteral("Liberation Sans"),
                         QStringLiteral("DejaVu Sans")});
  font.setBold(true);
  font.setPixelSize(static_cast<int>(std::lround(pixels)));
  // Letters stand where the pixels are, since labels are never scaled.
  font.setHintingPreference(QFont::PreferFullHinting);
  return font;
}

QImage Blank(double width, double height) {
  QImage image(static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height)),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

/// Two ovals at the ends and what is between them.
QPainterPath Shape(const QRectF& bounds) {
  const double side = bounds.height();
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addEllipse(QRectF(bounds.left(), bounds.top(), side, side));
  path.addEllipse(QRectF(bounds.right() - side, bounds.top(), side, side));
  path.addRect(bounds.adjusted(side / 2, 0, -side / 2, 0));
  return path;
}

}  // namespace

std::shared_ptr<const Picture> PictureFromImage(const QImage& image) {
  if (image.isNull()) return nullptr;
  const QImage source = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  Picture picture{source.width(), source.height(), {}};
  picture.pixels.reserve(static_cast<std::size_t>(source.width()) *
                         static_cast<std::size_t>(source.height()));
  for (int y = 0; y < source.height(); ++y) {
    const auto* row = reinterpret_cast<const std::uint32_t*>(source.constScanLine(y));
    picture.pixels.insert(picture.pixels.end(), row, row + source.width());
  }
  return std::make_shared<const Picture>(std::move(picture));
}

int LabelHeight(double pixelRatio) {
  return static_cast<int>(std::ceil(kLabelPoints * pixelRatio));
}

std::shared_ptr<const Picture> ConvertCStringToNSImage(std::string_view text, bool small,
                                                       double pixelRatio) {
  const QFont font = LabelFont((small ? kSmallPoints : kLargePoints) * pixelRatio);
  const QFontMetricsF metrics(font);
  QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).simplified();
  if (shown.isEmpty()) return nullptr;
  if (small) shown = metrics.elidedText(shown, Qt::ElideMiddle, kWidestText * pixelRatio);
  const double margin = kSideMargin * pixelRatio;
  const double height = small ? LabelHeight(pixelRatio) : metrics.height();
  const double least = small ? height * 1.6 : 0;
  QImage image = Blank(std::max(metrics.horizontalAdvance(shown) + 2 * margin, least), height);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font);
  if (small) {
    painter.fillPath(Shape(image.rect()), QColor(4, 6, 14));
    painter.setPen(QColor(255, 255, 160));
  } else {
    painter.fillRect(image.rect(), Qt::white);
    painter.setPen(Qt::red);
  }
  painter.drawText(image.rect(), Qt::AlignCenter, shown);
  painter.end();
  return PictureFromImage(image);
}

}  // namespace lurkwell
