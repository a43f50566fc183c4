#include "main_window/SystemInfoImage.h"

#include <algorithm>
#include <cmath>

#include "platform/Assertion.h"
#include "platform/Diagnostics.h"
#include "process_control/DisplayFormats.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/SystemFigures.h"

namespace lurkwell {
namespace {

constexpr char kGaugeUnit[] = "VQTarvMainWindowInfoSynch";

constexpr int kBarLeft = kSystemInfoBar.left();
constexpr int kBarWidth = kSystemInfoBar.width();
constexpr int kBarTop = kSystemInfoBar.top();
constexpr int kBarBottom = kSystemInfoBar.bottom() + 1;

using Colour = std::array<std::uint8_t, 4>;
struct GaugeColours {
  Colour empty, cpu, memory, wiredStripe, inactiveStripe;
};
constexpr GaugeColours kOnLight{{170, 170, 170, 255},
                                {0, 0, 255, 255},
                                {255, 0, 0, 255},
                                {255, 255, 0, 255},
                                {255, 170, 170, 255}};
// As the bars of the table have them there.
constexpr GaugeColours kOnDark{{72, 76, 84, 255},
                               {94, 158, 255, 255},
                               {255, 110, 100, 255},
                               {255, 255, 0, 255},
                               {255, 214, 210, 255}};

const GaugeColours& ColoursOn(bool isDark) {
  return isDark ? kOnDark : kOnLight;
}

/// Which part of which bar a pixel belongs to, as its message says.
enum Segment { kCPUUsedSegment = 1, kCPUEmptySegment, kMemoryUsedSegment, kMemoryEmptySegment };

/// The column behind a share of the bar.
int ColumnBehind(double share) {
  return static_cast<int>(share * kBarWidth) + kBarLeft;
}

void SetPixel(std::uint8_t* rawPixels, int x, int y, Segment segment, const Colour& colour) {
  const int index = (y * kSystemInfoImageWidth + x) * 4;
  const bool isInside = index >= 0 && index < kSystemInfoImageWidth * kSystemInfoImageHeight * 4;
  if (!isInside) DiagnoseVerbatim("%d ==> x == %d; y == %d; index == %d", segment, x, y, index);
  Require(isInside, kGaugeUnit,
          "indexIntoPixels >= 0 && indexIntoPixels < kSystemInfoImageWidth * "
          "kSystemInfoImageHeight * 4");
  std::uint8_t* cursor = rawPixels + index;
  Require(cursor != nullptr, kGaugeUnit, "cursor");
  std::copy(colour.begin(), colour.end(), cursor);
}

void Clear(std::uint8_t* rawPixels) {
  Require(rawPixels != nullptr, kGaugeUnit, "rawPixels != NULL");
  std::fill_n(rawPixels, std::tuple_size_v<SystemInfoImage>, std::uint8_t{0});
}

/// The bar, column by column: `colourAt` for those before `end`, empty from there.
template <typename ColourAt>
void DrawBar(std::uint8_t* rawPixels, int end, Segment used, Segment empty, const Colour& emptyBar,
             ColourAt colourAt) {
  Clear(rawPixels);
  for (int y = kBarTop; y < kBarBottom; ++y) {
    for (int x = kBarLeft; x < end; ++x) SetPixel(rawPixels, x, y, used, colourAt(x, y));
    for (int x = end; x < kBarLeft + kBarWidth; ++x) SetPixel(rawPixels, x, y, empty, emptyBar);
  }
}

}  // namespace

int DrawCPUGauge(std::uint8_t* rawPixels, double usage, bool isDark) {
  const auto& colours = ColoursOn(isDark);
  const int end = ColumnBehind(usage);
  DrawBar(rawPixels, end, kCPUUsedSegment, kCPUEmptySegment, colours.empty,
          [&](int, int) { return colours.cpu; });
  return end;
}

int DrawMemoryGauge(std::uint8_t* rawPixels, const SystemFigures& figures, bool isDark) {
  const auto& colours = ColoursOn(isDark);
  const auto physical = figures.physicalBytes != 0 ? figures.physicalBytes : 1;
  const auto used = std::clamp<std::int64_t>(figures.usedBytes, 0, std::max(physical, {}));
  const auto shareOf = [&](std::int64_t bytes) {
    // However many bytes a broken figure has, columns are counted in int.
    return std::clamp(static_cast<double>(bytes) / static_cast<double>(physical), -2.0, 2.0);
  };
  const int activeEnd = std::max(kBarLeft, ColumnBehind(shareOf(used - figures.inactiveBytes)));
  const int wiredEnd = std::max(kBarLeft, ColumnBehind(shareOf(figures.wiredBytes)));
  const int end = ColumnBehind(shareOf(used));
  DrawBar(rawPixels, end, kMemoryUsedSegment, kMemoryEmptySegment, colours.empty,
          [&](int x, int y) {
            if (x < wiredEnd) return (100 + x - y) % 5 >= 3 ? colours.wiredStripe : colours.memory;
            if (x > activeEnd) return (x + y) % 5 <= 2 ? colours.inactiveStripe : colours.memory;
            return colours.memory;
          });
  return end;
}

namespace {

QString Size(std::int64_t bytes) {
  return LocalFigure(QString::fromStdString(MemoryString(bytes)).trimmed());
}

}  // namespace

QString CPUGaugeText(double usage, int processors) {
  return LocalizedString("toolbar_system_cpu_figure", qint64{processors})
      .arg(std::lround(usage * 100.0));
}

QString MemoryGaugeText(const SystemFigures& figures) {
  return LocalizedString("toolbar_system_ram_figures")
      .arg(Size(figures.usedBytes), Size(figures.physicalBytes), Size(figures.wiredBytes),
           Size(figures.inactiveBytes), Size(figures.physicalBytes - figures.usedBytes));
}

QString PageoutsText(std::int64_t pages) {
  return LocalizedString("toolbar_vm_thrashing_figure", qint64{pages});
}

}  // namespace lurkwell
