#pragma once

#include <QRect>
#include <QString>
#include <array>
#include <cstdint>

namespace lurkwell {

struct SystemFigures;

inline constexpr int kSystemInfoImageWidth = 64;
inline constexpr int kSystemInfoImageHeight = 20;

/// Where the bar is in it.
inline constexpr QRect kSystemInfoBar(3, 4, 58, 12);

/// A picture of 64 x 20 pixels: red, green, blue, alpha of a byte each, rows from top to bottom.
/// What a gauge does not draw stays transparent.
using SystemInfoImage =
    std::array<std::uint8_t, std::size_t{kSystemInfoImageWidth} * kSystemInfoImageHeight * 4>;

/// Draw a bar of 58 x 12 pixels into 5120 bytes, over whatever they hold, and give the column
/// behind what is used. A null buffer fails "rawPixels != NULL" of the unit
/// VQTarvMainWindowInfoSynch. Any thread.

/// Blue from the left for what is used, from 0 to 1, grey for the rest. On a dark window both have
/// colours that are seen there.
int DrawCPUGauge(std::uint8_t* rawPixels, double usage, bool isDark);

/// Red from the left for what is used, with stripes over the wired memory at its left and the
/// inactive at its right, grey for what is free. Figures that contradict each other are made to
/// fit.
int DrawMemoryGauge(std::uint8_t* rawPixels, const SystemFigures& figures, bool isDark);

/// What the gauges show, in words, for those who want to know exactly or cannot see them. Main
/// thread.

/// `usage` from 0 to 1.
QString CPUGaugeText(double usage, int processors);
QString MemoryGaugeText(const SystemFigures& figures);
/// Pages since the update before.
QString PageoutsText(std::int64_t pages);

}  // namespace lurkwell
