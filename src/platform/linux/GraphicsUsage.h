#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lurkwell {

/// How busy an engine of a graphics device has been for one client, in one of two ways.
struct EngineUse {
  /// Nanoseconds, of each of so many equal engines together.
  std::optional<std::uint64_t> busy;
  std::uint64_t capacity = 1;
  /// Cycles, and those that went by at the same time.
  std::optional<std::uint64_t> cycles;
  std::optional<std::uint64_t> allCycles;
};

/// A client of a graphics device, as the kernel describes it with each of its descriptors.
struct GraphicsClient {
  /// The device's address, or the name of its driver.
  std::string device;
  /// Among the clients of the device; empty when the kernel has none.
  std::string id;
  /// By name; kMostEngines at most.
  std::map<std::string, EngineUse, std::less<>> engines;
  /// Bytes in all the device's memories; nothing when the driver does not count them.
  std::optional<std::uint64_t> memory;

  static constexpr std::size_t kMostEngines = 32;
};

/// The text of a descriptor's fdinfo file: the keys "drm-..." of the kernel's usage figures.
/// Nothing when it is none of a graphics device. What resides in memory counts where the driver
/// tells it, else what was allocated. Pure; any thread.
std::optional<GraphicsClient> ParseGraphicsClient(std::string_view text);

struct GraphicsUse {
  /// Of the busiest engine, in thousandths of a per cent; nothing before the second look.
  std::optional<std::int64_t> share;
  /// The name of that engine; empty when none was busy.
  std::string engine;
  std::optional<std::uint64_t> memory;
};

/// What one process has used of graphics devices from one look to the next.
class GraphicsAccount {
 public:
  /// The clients that the process has descriptors of; each counts once. `when` is in nanoseconds.
  GraphicsUse Update(const std::vector<GraphicsClient>& clients, std::int64_t when);

 private:
  /// Device, client, engine.
  using EngineKey = std::pair<std::pair<std::string, std::string>, std::string>;

  std::optional<std::int64_t> mLastLook;
  std::map<EngineKey, EngineUse> mEngines;
};

}  // namespace lurkwell
