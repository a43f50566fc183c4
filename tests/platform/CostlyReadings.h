#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <thread>
#include <vector>

#include "platform/CostlyFigures.h"

namespace lurkwell {

inline constexpr std::int64_t kMebibyte = 1 << 20;

/// The next reading of these processes that is collected, as beats would; nothing when none comes
/// in ten seconds.
inline std::optional<CostlyReading> NextReading(CostlyFigures& figures,
                                                const std::vector<CostlyWish>& wishes) {
  for (int i = 0; i < 1000; ++i) {
    if (i % 100 == 0) figures.Ask(wishes);
    auto readings = figures.Collect();
    if (!readings.empty()) return readings.back();
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return std::nullopt;
}

}  // namespace lurkwell
