#include "consolidator/PidReport.h"

#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/TextScan.h"
#include "consolidator/Unit.h"
#include "platform/Assertion.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

/// A virtual size as it was reported, less the region that every process maps.
std::int64_t AdjustedVirtualSize(std::int64_t reported) {
  // Senders that count in 32 bits show sizes above 2 GiB as negative numbers.
  if (reported < 0 && reported >= std::numeric_limits<std::int32_t>::min())
    reported = static_cast<std::uint32_t>(reported);
  const std::int64_t shared = TheMachine().hostStatistics.SharedTextAndDataSize();
  if (GetPrefInt("MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT", nullptr, true, 1) != 0 &&
      reported > shared)
    reported -= shared;
  return reported;
}

struct StoreFromText {
  PidBlock& block;
  PidReport& report;
  const CatalogueRow& row;
  std::string_view value;

  void operator()(std::monostate) const {}
  void operator()(char (PidBlock::*field)[kCommandNameCapacity]) const {
    StoreText(block.*field, value);
  }
  void operator()(TimeValue PidBlock::*field) const { block.*field = ReadTime(value); }
  template <typename Integer>
  void operator()(Integer PidBlock::*) const {
    std::string_view rest = value;
    const auto number = ScanInteger(rest);
    // What does not fit is left out; what is no number at all counts as none.
    if (!number && StartsWithNumber(rest)) return;
    const bool isParent = row.field == PidField{&PidBlock::parentPid};
    report.Integer(row, number.value_or(isParent ? kInvalidPID : 0));
  }
};

struct StoreInteger {
  PidBlock& block;
  std::int64_t value;

  template <typename Field>
  void operator()(Field field) const {
    if constexpr (std::is_same_v<Field, std::int32_t PidBlock::*>) {
      if (std::in_range<std::int32_t>(value)) block.*field = static_cast<std::int32_t>(value);
    } else if constexpr (std::is_same_v<Field, std::int64_t PidBlock::*>) {
      const bool isVirtualSize = field == &PidBlock::virtualSize;
      block.*field = isVirtualSize ? AdjustedVirtualSize(value) : value;
    }
  }
};

}  // namespace

PidReport::PidReport(std::int32_t pid) {
  auto& record = gRecords.GetPIDInformation(pid);
  Require(record.pidInfo != nullptr, kUnit, "mpi->pidInfo");
  record.lastSeenGeneration[kInformationKindPID] = gGenerationCount[kInformationKindPID];
  mBlock = record.pidInfo.get();
}

void PidReport::Text(const CatalogueRow& row, std::string_view value) {
  std::visit(StoreFromText{*mBlock, *this, row, value}, row.field);
}

void PidReport::Integer(const CatalogueRow& row, std::int64_t value) {
  std::visit(StoreInteger{*mBlock, value}, row.field);
}

void PidReport::Time(const CatalogueRow& row, TimeValue value) {
  if (const auto* field = std::get_if<TimeValue PidBlock::*>(&row.field)) mBlock->** field = value;
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
