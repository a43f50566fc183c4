#include "recording/RecordedServices.h"

#include <algorithm>

namespace lurkwell {

using namespace recorded;

namespace {

class NoDetails final : public DetailsReading {
 public:
  std::optional<DetailsAnswer> Take() override {
    if (std::exchange(mIsTaken, true)) return std::nullopt;
    DetailsAnswer answer;
    answer.state = DetailsState::kNone;
    return answer;
  }

 private:
  bool mIsTaken = false;
};

}  // namespace

std::optional<std::int64_t> RecordedHostStatistics::PageSize() const {
  const auto size = Number(kPageSize);
  return size > 0 ? std::optional(size) : std::nullopt;
}

bool RecordedHostStatistics::ReadVirtualMemory(VirtualMemoryStatistics& statistics) const {
  statistics = {Number(kFreePages), Number(kInactivePages), Number(kWiredPages), Number(kPageouts)};
  return true;
}

MachineFigures RecordedHostStatistics::Read(MachineSources wanted) const {
  MachineFigures figures;
  if ((wanted & kProcessorTimes) != 0)
    figures.processors.push_back({0, Number(kBusyTime), Number(kIdleTime)});
  if ((wanted & kMachineMemory) != 0 && Number(kMemory) > 0)
    figures.memory = {Number(kMemory), Number(kAvailableMemory), Number(kSwap), Number(kFreeSwap)};
  return figures;
}

int RecordedHostStatistics::Processors() const {
  constexpr std::int64_t kMost = 8192;
  return static_cast<int>(std::clamp<std::int64_t>(Number(kProcessorCount), 1, kMost));
}

std::vector<CostlyReading> UnrecordedFigures::Collect() {
  std::vector<CostlyReading> readings;
  for (const auto& wish : std::exchange(mWishes, {})) {
    auto& reading = readings.emplace_back(CostlyReading{wish.process, wish.sources, {}, 0});
    for (std::size_t i = 0; i < kFigureCount; ++i)
      reading.figures.SetMissing(static_cast<Figure>(i), FigureState::kUncounted);
  }
  return readings;
}

std::unique_ptr<DetailsReading> UnrecordedDetails::Begin(ProcessIdentity, DetailsKind) {
  return std::make_unique<NoDetails>();
}

}  // namespace lurkwell
