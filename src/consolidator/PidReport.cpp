#include "consolidator/PidReport.h"

#include <cstring>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/TextScan.h"
#include "platform/Assertion.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

constexpr Figure kVirtualSize = FigureCalled("pid_vsz");

/// A virtual size as it was reported, less the region that every process maps.
std::int64_t AdjustedVirtualSize(std::int64_t reported) {
  // Senders that count in 32 bits show sizes above 2 GiB as negative numbers.
  if (reported < 0 && reported >= std::numeric_limits<std::int32_t>::min())
    reported = static_cast<std::uint32_t>(reported);
  const std::int64_t shared = TheMachine().hostStatistics.SharedTextAndDataSize();
  if (ReadSwitch("MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT") && reported > shared)
    reported -= shared;
  return reported;
}

/// Puts a value into a field; whether it was another one.
template <typename T>
bool Put(T& field, T value) {
  return std::exchange(field, value) != value;
}

bool PutText(char (&field)[kCommandNameCapacity], std::string_view value) {
  if (WholeCharacters(value, kCommandNameCapacity - 1) == field) return false;
  StoreText(field, value);
  return true;
}

/// Whether the value was another one; nothing when it does not fit the field.
struct StoreInteger {
  PidBlock& block;
  std::int64_t value;

  template <typename Field>
  std::optional<bool> operator()(Field field) const {
    if constexpr (std::is_same_v<Field, std::int32_t PidBlock::*>) {
      if (std::in_range<std::int32_t>(value))
        return Put(block.*field, static_cast<std::int32_t>(value));
    } else if constexpr (std::is_same_v<Field, Figure>) {
      return block.Put(field, field == kVirtualSize ? AdjustedVirtualSize(value) : value);
    }
    return std::nullopt;
  }
};

/// The same from a text.
struct StoreFromText {
  PidBlock& block;
  const CatalogueRow& row;
  std::string_view value;

  std::optional<bool> operator()(std::monostate) const { return std::nullopt; }
  std::optional<bool> operator()(char (PidBlock::*field)[kCommandNameCapacity]) const {
    return PutText(block.*field, value);
  }
  std::optional<bool> operator()(TimeValue PidBlock::*field) const {
    return Put(block.*field, ReadTime(value));
  }
  std::optional<bool> operator()(Figure figure) const {
    if (RowOf(figure).kind == FigureKind::kText) return block.texts.Set(figure, value);
    if (row.type != kPropertyTypeTime) return Number();
    return block.Put(figure, MicrosecondsOf(ReadTime(value)));
  }
  std::optional<bool> operator()(std::int32_t PidBlock::*) const { return Number(); }

  std::optional<bool> Number() const {
    std::string_view rest = value;
    const auto number = ScanInteger(rest);
    // What does not fit is left out; what is no number at all counts as none.
    if (!number && StartsWithNumber(rest)) return std::nullopt;
    const bool isParent = row.field == PidField{&PidBlock::parentPid};
    return std::visit(StoreInteger{block, number.value_or(isParent ? kInvalidPID : 0)}, row.field);
  }
};

struct Forget {
  PidBlock& block;

  bool operator()(std::monostate) const { return false; }
  bool operator()(char (PidBlock::*field)[kCommandNameCapacity]) const {
    return PutText(block.*field, {});
  }
  bool operator()(Figure figure) const {
    const bool hadText = RowOf(figure).kind == FigureKind::kText && block.texts.Set(figure, {});
    return block.Put(figure, 0) || hadText;
  }
  template <typename T>
  bool operator()(T PidBlock::*field) const {
    return Put(block.*field, T{});
  }
};

MetaProcessInformation& Seen(std::int32_t pid) LURKWELL_IN_REGION {
  auto& record = gRecords.GetPIDInformation(pid);
  Require(record.pidInfo != nullptr, kUnit, "mpi->pidInfo");
  record.lastSeenGeneration[kInformationKindPID] = gGenerationCount[kInformationKindPID];
  return record;
}

}  // namespace

PidReport::PidReport(std::int32_t pid) : mRecord(Seen(pid)), mBlock(*mRecord.pidInfo) {}

void PidReport::NoteKnown(const CatalogueRow& row, bool changed) {
  if (mBlock.states.SetKnown(PlaceOf(row)) || changed) mRecord.NoteValueChange();
}

void PidReport::Text(const CatalogueRow& row, std::string_view value) {
  if (const auto changed = std::visit(StoreFromText{mBlock, row, value}, row.field))
    NoteKnown(row, *changed);
}

void PidReport::Integer(const CatalogueRow& row, std::int64_t value) {
  if (const auto changed = std::visit(StoreInteger{mBlock, value}, row.field))
    NoteKnown(row, *changed);
}

void PidReport::Time(const CatalogueRow& row, TimeValue value) {
  if (const auto* field = std::get_if<TimeValue PidBlock::*>(&row.field))
    NoteKnown(row, Put(mBlock.**field, value));
}

void PidReport::TableFigure(Figure figure, const ProcessFigures& figures) {
  const auto& row = FigureProperties()[static_cast<std::size_t>(figure)];
  switch (figures.StateOf(figure)) {
    case FigureState::kUnread:
      return;
    case FigureState::kKnown:
      if (RowOf(figure).kind == FigureKind::kText)
        return NoteKnown(row, mBlock.texts.Set(figure, figures.GetText(figure)));
      return Integer(row, figures.Get(figure));
    case FigureState::kRefused:
      return NoValue(row, Missing::kNotAllowed);
    case FigureState::kUncounted:
      return NoValue(row, Missing::kNotCounted);
  }
}

void PidReport::State(RunState state) {
  if (Put(mBlock.runState, state)) mRecord.NoteValueChange();
}

void PidReport::NoValue(const CatalogueRow& row, Missing why) {
  const bool isOther = std::visit(Forget{mBlock}, row.field);
  if (mBlock.states.SetMissing(PlaceOf(row), why) || isOther) mRecord.NoteValueChange();
}

bool NoteStartStamp(std::int32_t pid, std::uint64_t startStamp) {
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr || record->pidInfo == nullptr) {
    gRecords.GetPIDInformation(pid).pidInfo->startStamp = startStamp;
    return true;
  }
  auto& known = record->pidInfo->startStamp;
  if (known == 0) known = startStamp;
  return known == startStamp;
}

void NoteTimesRead(std::int32_t pid) {
  gRecords.GetPIDInformation(pid).pidInfo->timesGeneration = gGenerationCount[kInformationKindPID];
}

bool AreTimesRead(const MetaProcessInformation& record) {
  return record.pidInfo->timesGeneration == gGenerationCount[kInformationKindPID];
}

}  // namespace lurkwell
