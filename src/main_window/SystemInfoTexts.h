#pragma once

#include <QString>
#include <cstdint>

namespace lurkwell {

struct SystemFigures;

/// What the gauges show, in words, for those who want to know exactly or cannot see them. Main
/// thread.

/// `usage` from 0 to 1.
QString CPUGaugeText(double usage, int processors);
QString MemoryGaugeText(const SystemFigures& figures);
/// Pages since the update before.
QString PageoutsText(std::int64_t pages);

}  // namespace lurkwell
