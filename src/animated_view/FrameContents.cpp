#include "animated_view/FrameContents.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace lurkwell {
namespace {

/// A view without an extent on an axis is measured in whole views there.
double Scale(double extent) {
  return extent < 0.001 ? 1.0 : 1.0 / extent;
}

double Drawn(double layout) {
  return 2.0 * (layout - 0.5);
}

float Snapped(double place, double pixels) {
  return static_cast<float>(std::trunc(place * pixels + 0.5) / pixels);
}

/// In the unit that labels snap to, a view is as many units wide as it has pixels.
void SnapLabel(QuintessentialInformationProcessInfo& info, const ViewSize& size) {
  const double x = Drawn(info.x);
  const double y = Drawn(info.y);
  const double width = std::max(1, size.PixelWidth());
  const double height = std::max(1, size.PixelHeight());
  const bool moved = std::abs(x - static_cast<double>(info.labelX)) > 1 / width ||
                     std::abs(y - static_cast<double>(info.labelY)) > 1 / height;
  if (!moved) return;
  info.labelX = Snapped(x, width);
  info.labelY = Snapped(y, height);
}

}  // namespace

int ViewSize::PixelWidth() const {
  return static_cast<int>(std::lround(width * pixelRatio));
}

int ViewSize::PixelHeight() const {
  return static_cast<int>(std::lround(height * pixelRatio));
}

void InitializeOpenGLProcessInfo(QipiList& list, FrameRenderer& renderer) {
  for (auto& info : list) {
    if (info.texturesReady) continue;
    if (info.iconTexture == 0) info.iconTexture = renderer.Icons().Acquire(info.iconImage);
    if (info.labelTexture == 0) info.labelTexture = renderer.Labels().Acquire(info.labelImage);
    // What finds no room is tried again: others make some when they go.
    info.texturesReady = (info.iconTexture != 0 || info.iconImage == nullptr) &&
                         (info.labelTexture != 0 || info.labelImage == nullptr);
  }
}

void FindWhatIsDrawn(QipiList& list, const QuintessentialDrawingSettings& settings, ViewMode mode,
                     const ViewSize& size, std::vector<DrawnProcess>& processes) {
  std::unordered_map<std::int32_t, std::int32_t> places;
  places.reserve(list.size());
  std::int32_t at = 0;
  for (const auto& info : list) places.emplace(info.pid, at++);
  double side = settings.iconScale * Scale(size.width) * size.PixelWidth() / 2;
  if (mode != ViewMode::kWindow) side *= settings.fullscreenExtraScale;
  processes.clear();
  for (auto& info : list) {
    const auto parent = places.find(info.parentPid);
    const bool hasParent = parent != places.end() && info.parentPid != info.pid;
    SnapLabel(info, size);
    processes.push_back({Drawn(info.x), Drawn(info.y), info.weight * side,
                         hasParent ? parent->second : -1, info.iconTexture, info.labelTexture,
                         static_cast<double>(info.labelX), static_cast<double>(info.labelY)});
  }
}

FrameLook LookOf(const QuintessentialDrawingSettings& settings, ViewMode mode,
                 const ViewSize& size) {
  const bool overlay = mode == ViewMode::kOverlay;
  FrameLook look;
  look.width = size.PixelWidth();
  look.height = size.PixelHeight();
  look.whiteGround = !overlay;
  // Not a number counts as nothing.
  const double alpha = settings.underlayAlpha > 0 ? std::min(settings.underlayAlpha, 1.0) : 0.0;
  if (overlay) look.backgroundAlpha = static_cast<int>(255 * alpha);
  look.drawConnectors =
      settings.drawConnectors && (mode == ViewMode::kWindow || settings.drawConnectorsFullscreen);
  look.connectorGrey = mode == ViewMode::kWindow ? 0.85F : 0.95F;
  look.connectorWidth = static_cast<float>(2.5 * size.pixelRatio);
  return look;
}

}  // namespace lurkwell
