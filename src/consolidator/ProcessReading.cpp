#include "consolidator/ProcessReading.h"

#include <cstddef>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PropertyCatalogue.h"

namespace lurkwell {
namespace {

FigureState StateOfMissing(Missing why) {
  switch (why) {
    case Missing::kNotAllowed:
      return FigureState::kRefused;
    case Missing::kNotCounted:
      return FigureState::kUncounted;
    case Missing::kNone:
    case Missing::kNotYetKnown:
      break;
  }
  return FigureState::kUnread;
}

FigureReading ReadingOf(const PidBlock& block, Figure figure) {
  const auto place = PlaceOf(FigureProperties()[static_cast<std::size_t>(figure)]);
  if (!block.states.IsKnown(place)) return {StateOfMissing(block.states.Why(place)), 0, {}};
  if (RowOf(figure).kind == FigureKind::kText)
    return {FigureState::kKnown, 0, block.texts.Get(figure)};
  return {FigureState::kKnown, block[figure], {}};
}

}  // namespace

std::optional<ProcessReading> ReadProcess(std::int32_t pid, std::uint64_t knownStamp,
                                          std::span<const Figure> wanted,
                                          std::span<FigureReading> figures) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr || !record->valid || record->pidInfo == nullptr) return std::nullopt;
  const auto& block = *record->pidInfo;
  if (record->changeStamp != knownStamp)
    for (std::size_t i = 0; i < wanted.size(); ++i) figures[i] = ReadingOf(block, wanted[i]);
  return ProcessReading{{pid, block.startStamp}, record->changeStamp, block.parentPid,
                        block.priority,          block.nice,          block.runState,
                        block.startTime,         block.commandName};
}

}  // namespace lurkwell
