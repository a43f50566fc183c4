#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "exporter/GroupRules.h"
#include "platform/Clock.h"
#include "platform/HostStatistics.h"

namespace lurkwell {

/// What the processes of a group do, in the order of kProcessStateNames.
inline constexpr std::size_t kProcessStates = 6;
inline constexpr std::array<const char*, kProcessStates> kProcessStateNames = {
    "running", "sleeping", "disk", "stopped", "zombie", "idle"};

/// A group as it was read: counters in microseconds or bytes since the exporter began to count,
/// gauges of now. Nothing for what is not known of all its processes.
struct GroupFigures {
  std::string name;
  std::optional<std::int64_t> userTime, systemTime;
  std::optional<std::int64_t> diskRead, diskWritten;
  std::optional<std::int64_t> received, sent;
  std::optional<std::int64_t> resident, proportional, swap;
  std::optional<std::int64_t> openFiles;
  std::int64_t threads = 0;
  std::int64_t processes = 0;
  std::array<std::int64_t, kProcessStates> states{};
  std::optional<TimeValue> oldestStart;
};

struct KindFigures {
  bool isWanted = true;
  std::vector<GroupFigures> groups;
  /// How many are summed into one.
  std::int64_t leftOut = 0;
};

/// All that one answer tells. Plain value.
struct Snapshot {
  std::array<KindFigures, kGroupKinds> kinds;
  MachineFigures machine;
  int processors = 0;
  std::int64_t processes = 0;
  std::optional<TimeValue> bootTime;
  /// How long the reading took.
  double seconds = 0;
};

}  // namespace lurkwell
