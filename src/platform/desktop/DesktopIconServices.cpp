#include "platform/desktop/DesktopIconServices.h"

#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <cstring>

#include "platform/desktop/WindowList.h"

namespace lurkwell {
namespace {

constexpr int kSmallest = 8;
constexpr int kLargest = 512;
constexpr int kMostPixelsKept = 8 * 1024 * 1024;
constexpr int kCostOfEntry = 64;
constexpr qint64 kLargestPicture = qint64{8} * 1024 * 1024;
constexpr std::chrono::seconds kSteadyTime{1};

/// An ordinary file of a sensible size, in the shape it has, as sharp as it can be.
QImage ImageOfFile(const QString& path, int size) {
  const QFileInfo file(path);
  if (!file.isFile() || file.size() > kLargestPicture) return {};
  QImageReader reader(path);
  const QSize own = reader.size();
  if (own.isValid() && !own.isEmpty()) {
    reader.setScaledSize(own.scaled(size, size, Qt::KeepAspectRatio).expandedTo({1, 1}));
  }
  return reader.read();
}

QImage ImageOfTheme(QString name, int size) {
  if (name.isEmpty() || name.contains(QLatin1Char('/'))) return {};
  // Some entries name a file although no path is given.
  for (const char* suffix : {".png", ".svg", ".xpm"}) {
    if (name.endsWith(QLatin1String(suffix))) name.chop(4);
  }
  return QIcon::fromTheme(name).pixmap(QSize(size, size), 1.0).toImage();
}

QImage ImageOfEntry(const std::string& icon, int size) {
  const QString name = QFile::decodeName(icon.c_str());
  return name.startsWith(QLatin1Char('/')) ? ImageOfFile(name, size) : ImageOfTheme(name, size);
}

QImage ImageOfWindow(const std::vector<std::uint32_t>& icons, int size) {
  const auto best = BestWindowIcon(icons, size);
  if (!best) return {};
  const auto* bytes = reinterpret_cast<const uchar*>(best->pixels.data());
  // Its own copy: the list goes.
  return QImage(bytes, best->width, best->height, qsizetype{4} * best->width, QImage::Format_ARGB32)
      .copy();
}

/// In the middle of a square, scaled to touch its sides.
std::shared_ptr<const Picture> SquarePicture(const QImage& image, int size) {
  if (image.isNull()) return nullptr;
  const QImage scaled = image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                            .scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QImage square(size, size, QImage::Format_ARGB32_Premultiplied);
  if (scaled.isNull() || square.isNull()) return nullptr;
  square.fill(Qt::transparent);
  QPainter(&square).drawImage((size - scaled.width()) / 2, (size - scaled.height()) / 2, scaled);
  auto picture = std::make_shared<Picture>();
  const auto side = static_cast<std::size_t>(size);
  picture->width = picture->height = size;
  picture->pixels.resize(side * side);
  for (int row = 0; row < size; ++row) {
    std::memcpy(picture->pixels.data() + static_cast<std::size_t>(row) * side,
                square.constScanLine(row), side * sizeof(std::uint32_t));
  }
  return picture;
}

}  // namespace

DesktopIconServices::DesktopIconServices(DesktopProcessManager& applications)
    : mApplications(applications), mKept(kMostPixelsKept) {
  // Outside a desktop no theme is named; this is the one that all others fall back on.
  if (QIcon::themeName().isEmpty()) QIcon::setThemeName(QStringLiteral("hicolor"));
}

std::shared_ptr<const Picture> DesktopIconServices::ApplicationIcon(ProcessSerialNumber psn,
                                                                    int size) {
  const auto source = mApplications.IconSourceOf(psn);
  if (!source) return nullptr;
  size = std::clamp(size, kSmallest, kLargest);
  const Key key{std::uint64_t{psn.high} << 32 | psn.low, size};
  if (const Kept* kept = mKept.object(key); kept != nullptr && IsUpToDate(*kept, *source)) {
    return kept->picture;
  }
  auto made = std::make_unique<Kept>(Make(psn, *source, size));
  auto picture = made->picture;
  // The cache owns what it is given, also when it does not keep it.
  mKept.insert(key, made.release(), kCostOfEntry + (picture ? size * size : 0));
  return picture;
}

bool DesktopIconServices::IsUpToDate(const Kept& kept,
                                     const DesktopProcessManager::IconSource& source) {
  if (kept.source.name != source.name) return false;
  return !kept.isFromWindow || kept.source.windowRevision == source.windowRevision ||
         Clock::now() < kept.made + kSteadyTime;
}

DesktopIconServices::Kept DesktopIconServices::Make(ProcessSerialNumber psn,
                                                    const DesktopProcessManager::IconSource& source,
                                                    int size) {
  Kept kept{SquarePicture(ImageOfEntry(source.name, size), size), source, false, Clock::now()};
  if (kept.picture) return kept;
  kept.isFromWindow = true;
  kept.picture = SquarePicture(ImageOfWindow(mApplications.WindowIconsOf(psn), size), size);
  return kept;
}

}  // namespace lurkwell
