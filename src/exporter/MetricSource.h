#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "exporter/MetricWriter.h"
#include "exporter/Snapshot.h"

namespace lurkwell {

/// The texts of answers. Several that are asked for within kShared share one reading. One thread.
class MetricSource {
 public:
  static constexpr std::chrono::milliseconds kShared{500};

  using Reader = std::function<std::optional<Snapshot>()>;
  using Moment = std::chrono::steady_clock::time_point;

  explicit MetricSource(Reader reader) : mReader(std::move(reader)) {}

  /// Null when there is nothing to be read.
  std::shared_ptr<const std::string> Text(MetricFormat format, Moment now);

 private:
  const Reader mReader;
  std::optional<Snapshot> mSnapshot;
  /// When the last reading ended.
  std::optional<Moment> mReadAt;
  /// By format.
  std::array<std::shared_ptr<const std::string>, 2> mTexts;
};

}  // namespace lurkwell
