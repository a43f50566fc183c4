#include "platform/linux/GraphicsUsage.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>

namespace lurkwell {
namespace {

constexpr std::size_t kLongestName = 64;
constexpr std::size_t kMostRegions = 32;

/// "123", "123 ns", "123 KiB": the number in its unit, and the unit.
struct Quantity {
  std::uint64_t number = 0;
  std::string_view unit;
};

std::optional<Quantity> QuantityOf(std::string_view text) {
  Quantity quantity;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), quantity.number);
  if (error != std::errc()) return std::nullopt;
  quantity.unit = text.substr(static_cast<std::size_t>(end - text.data()));
  quantity.unit.remove_prefix(std::min(quantity.unit.find_first_not_of(' '), quantity.unit.size()));
  return quantity;
}

/// Nothing for a unit that is none of memory, or a size beyond all memories.
std::optional<std::uint64_t> BytesOf(std::string_view text) {
  // The sum over all clients that a process can have stays a number.
  constexpr std::uint64_t kMost = std::uint64_t{1} << 44;
  const auto quantity = QuantityOf(text);
  if (!quantity) return std::nullopt;
  const int shift = quantity->unit.empty()    ? 0
                    : quantity->unit == "KiB" ? 10
                    : quantity->unit == "MiB" ? 20
                    : quantity->unit == "GiB" ? 30
                                              : -1;
  if (shift < 0 || quantity->number > kMost >> shift) return std::nullopt;
  return quantity->number << shift;
}

bool TakeKey(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix) || text.size() == prefix.size()) return false;
  text.remove_prefix(prefix.size());
  return text.size() <= kLongestName;
}

/// What is told of one memory of the device; newer names are better.
struct Region {
  std::optional<std::uint64_t> resident, memory, total;
};

class ClientParser {
 public:
  void TakeLine(std::string_view key, std::string_view value) {
    if (key == "drm-driver") {
      mDriver = value.substr(0, kLongestName);
    } else if (key == "drm-pdev") {
      mClient.device = value.substr(0, kLongestName);
    } else if (key == "drm-client-id") {
      mClient.id = value.substr(0, kLongestName);
    } else if (TakeKey(key, "drm-engine-capacity-")) {
      if (auto* engine = Engine(key))
        if (const auto capacity = QuantityOf(value)) engine->capacity = capacity->number;
    } else if (TakeKey(key, "drm-engine-")) {
      const auto busy = QuantityOf(value);
      if (!busy || busy->unit != "ns") return;
      if (auto* engine = Engine(key)) engine->busy = busy->number;
    } else if (TakeKey(key, "drm-total-cycles-")) {
      TakeCycles(key, value, &EngineUse::allCycles);
    } else if (TakeKey(key, "drm-cycles-")) {
      TakeCycles(key, value, &EngineUse::cycles);
    } else if (TakeKey(key, "drm-resident-")) {
      TakeRegion(key, value, &Region::resident);
    } else if (TakeKey(key, "drm-memory-")) {
      TakeRegion(key, value, &Region::memory);
    } else if (TakeKey(key, "drm-total-")) {
      TakeRegion(key, value, &Region::total);
    }
  }

  std::optional<GraphicsClient> Take() {
    if (mDriver.empty()) return std::nullopt;
    if (mClient.device.empty()) mClient.device = mDriver;
    for (const auto& [name, region] : mRegions) {
      const auto bytes = region.resident ? region.resident
                         : region.memory ? region.memory
                                         : region.total;
      if (bytes) mClient.memory = mClient.memory.value_or(0) + *bytes;
    }
    return std::move(mClient);
  }

 private:
  EngineUse* Engine(std::string_view name) {
    const auto known = mClient.engines.find(name);
    if (known != mClient.engines.end()) return &known->second;
    if (mClient.engines.size() >= GraphicsClient::kMostEngines) return nullptr;
    return &mClient.engines[std::string(name)];
  }
  void TakeCycles(std::string_view key, std::string_view value,
                  std::optional<std::uint64_t> EngineUse::*field) {
    const auto cycles = QuantityOf(value);
    if (!cycles) return;
    if (auto* engine = Engine(key)) engine->*field = cycles->number;
  }
  void TakeRegion(std::string_view key, std::string_view value,
                  std::optional<std::uint64_t> Region::*field) {
    const auto bytes = BytesOf(value);
    if (!bytes) return;
    if (!mRegions.contains(key) && mRegions.size() >= kMostRegions) return;
    mRegions[std::string(key)].*field = *bytes;
  }

  std::string mDriver;
  GraphicsClient mClient;
  std::map<std::string, Region, std::less<>> mRegions;
};

/// From one look to the next, from 0 to 1; nothing where the figures went back or say nothing.
std::optional<double> ShareOf(const EngineUse& before, const EngineUse& now, double nanoseconds) {
  const auto capacity = static_cast<double>(std::max<std::uint64_t>(now.capacity, 1));
  if (before.busy && now.busy && *now.busy >= *before.busy && nanoseconds > 0)
    return static_cast<double>(*now.busy - *before.busy) / nanoseconds / capacity;
  if (before.cycles && now.cycles && before.allCycles && now.allCycles &&
      *now.cycles >= *before.cycles && *now.allCycles > *before.allCycles)
    return static_cast<double>(*now.cycles - *before.cycles) /
           static_cast<double>(*now.allCycles - *before.allCycles) / capacity;
  return std::nullopt;
}

}  // namespace

std::optional<GraphicsClient> ParseGraphicsClient(std::string_view text) {
  ClientParser parser;
  while (!text.empty()) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const auto colon = line.find(':');
    if (colon == std::string_view::npos) continue;
    auto value = line.substr(colon + 1);
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    value = value.substr(0, value.find_last_not_of(" \t\r") + 1);
    parser.TakeLine(line.substr(0, colon), value);
  }
  return parser.Take();
}

GraphicsUse GraphicsAccount::Update(const std::vector<GraphicsClient>& clients, std::int64_t when) {
  std::map<EngineKey, EngineUse> engines;
  /// Of the process, by device and engine.
  std::map<std::pair<std::string, std::string>, double> shares;
  std::set<std::pair<std::string, std::string>> seen;
  GraphicsUse use;
  const auto passed = mLastLook ? static_cast<double>(when - *mLastLook) : 0.0;
  bool isMeasured = clients.empty() && mLastLook;
  for (const auto& client : clients) {
    if (!client.id.empty() && !seen.insert({client.device, client.id}).second) continue;
    if (client.memory) use.memory = use.memory.value_or(0) + *client.memory;
    for (const auto& [name, engine] : client.engines) {
      const EngineKey key{{client.device, client.id}, name};
      engines[key] = engine;
      const auto before = mEngines.find(key);
      const auto share =
          before != mEngines.end() ? ShareOf(before->second, engine, passed) : std::nullopt;
      if (!share) continue;
      isMeasured = true;
      shares[{client.device, name}] += *share;
    }
  }
  if (isMeasured) use.share = 0;
  for (const auto& [engine, share] : shares) {
    const auto thousandths = std::llround(std::min(share, 1.0) * 100'000);
    if (thousandths <= *use.share) continue;
    use.share = thousandths;
    use.engine = engine.second;
  }
  mEngines = std::move(engines);
  mLastLook = when;
  return use;
}

}  // namespace lurkwell
