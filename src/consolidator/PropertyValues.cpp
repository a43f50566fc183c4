#include "consolidator/PropertyValues.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/PidReport.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyRendering.h"
#include "consolidator/RecordStore.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

/// As of the last pass that wanted a share.
int gProcessorsForShares = 0;

}  // namespace

int CPUShareDivisor() {
  if (!ReadSwitch("CPU_SHARE_OF_MACHINE")) return 1;
  if (gProcessorsForShares == 0) CountProcessorsForShares();
  return std::max(gProcessorsForShares, 1);
}

void CountProcessorsForShares() {
  gProcessorsForShares = TheMachine().hostStatistics.Processors();
}

namespace {

constexpr Figure kCommandLine = FigureCalled("pid_command_line");

/// Arguments may be secrets; what is printed and written goes to other eyes.
std::string_view KeptOf(std::string_view commandLine) {
  return ReadSwitch("KEEP_COMMAND_LINES") ? commandLine
                                          : commandLine.substr(0, commandLine.find(' '));
}

struct RenderField {
  const PidBlock& block;
  std::span<char> dest;

  bool operator()(std::monostate) const { return false; }
  bool operator()(char (PidBlock::*field)[kCommandNameCapacity]) const {
    RenderText(dest, block.*field);
    return true;
  }
  bool operator()(std::int32_t PidBlock::*field) const { return RenderInteger(dest, block.*field); }
  bool operator()(TimeValue PidBlock::*field) const { return RenderTime(dest, block.*field); }
  bool operator()(Figure figure) const {
    const std::int64_t value = block[figure];
    const auto& row = RowOf(figure);
    switch (row.kind) {
      case FigureKind::kMicroseconds:
      case FigureKind::kElapsed:
        return RenderTime(dest, TimeOfMicroseconds(value));
      case FigureKind::kShare:
        return RenderThousandths(dest, value);
      case FigureKind::kCPUShare:
        return RenderThousandths(dest, value / CPUShareDivisor());
      case FigureKind::kText:
        RenderText(dest, figure == kCommandLine ? KeptOf(block.texts.Get(figure))
                                                : block.texts.Get(figure));
        return true;
      case FigureKind::kWords:
        RenderText(dest, row.words(value));
        return true;
      case FigureKind::kNumber:
      case FigureKind::kBytes:
      case FigureKind::kBytesPerSecond:
        break;
    }
    return RenderInteger(dest, value);
  }
};

bool RenderPidProperty(const MetaProcessInformation& record, const CatalogueRow* row,
                       std::span<char> dest) {
  if (record.pidInfo == nullptr) {
    RenderText(dest, "n/a");
    return false;
  }
  if (row == nullptr || dest.size() < row->minimumLength) return false;
  // Of a number that is missing 0 is printed, but no word.
  const auto* figure = std::get_if<Figure>(&row->field);
  if (figure != nullptr && RowOf(*figure).kind == FigureKind::kWords &&
      !record.pidInfo->states.IsKnown(PlaceOf(*row)))
    return false;
  return std::visit(RenderField{*record.pidInfo, dest}, row->field);
}

bool RenderPSColumn(const MetaProcessInformation& record, std::string_view name,
                    std::span<char> dest) LURKWELL_IN_REGION {
  if (record.psValues == nullptr) return false;
  const auto* header = gPSHeaders.Find(name);
  Require(header != nullptr, kUnit, "pipsh");
  bool matched = false;
  for (const auto& value : *record.psValues) {
    if (value.headerIndex != header->index) continue;
    RenderText(dest, value.text != nullptr ? std::string_view{*value.text} : "n/a");
    matched = true;
  }
  return matched;
}

bool RenderProperty(const MetaProcessInformation& record, std::string_view name,
                    std::span<char> dest) LURKWELL_IN_REGION {
  const CatalogueRow* row = FindBuiltInProperty(name);
  if (name.starts_with("meta_")) {
    if (row != nullptr) return row->render(record, dest);
    DiagnoseVerbatim("unsupported property kind! %.*s", static_cast<int>(name.size()), name.data());
    return false;
  }
  if (name.starts_with("pid_")) return RenderPidProperty(record, row, dest);
  if (name.starts_with("carbonpsn_")) {
    if (record.carbonInfo != nullptr) return row != nullptr && row->render(record, dest);
    RenderText(dest, "-");
    return false;
  }
  if (name.starts_with("classicpsn_"))
    return record.epir != nullptr && row != nullptr && row->render(record, dest);
  return RenderPSColumn(record, name, dest);
}

struct ReadField {
  const PidBlock& block;

  TypedValue operator()(std::monostate) const { return Missing::kNone; }
  TypedValue operator()(char (PidBlock::*field)[kCommandNameCapacity]) const {
    return std::string(block.*field);
  }
  TypedValue operator()(TimeValue PidBlock::*field) const { return block.*field; }
  TypedValue operator()(std::int32_t PidBlock::*field) const { return std::int64_t{block.*field}; }
  TypedValue operator()(Figure figure) const {
    const std::int64_t value = block[figure];
    const auto& row = RowOf(figure);
    switch (row.kind) {
      case FigureKind::kMicroseconds:
      case FigureKind::kElapsed:
        return TimeOfMicroseconds(value);
      case FigureKind::kShare:
        return static_cast<double>(value) / 1000;
      case FigureKind::kCPUShare:
        return static_cast<double>(value) / 1000 / CPUShareDivisor();
      case FigureKind::kText:
        return OrNone(block.texts.Get(figure));
      case FigureKind::kWords:
        return OrNone(row.words(value));
      case FigureKind::kNumber:
      case FigureKind::kBytes:
      case FigureKind::kBytesPerSecond:
        break;
    }
    return value;
  }

  static TypedValue OrNone(std::string text) {
    return text.empty() ? TypedValue(Missing::kNone) : TypedValue(std::move(text));
  }
};

TypedValue ReadPidProperty(const PidBlock* block, const CatalogueRow& row) {
  if (block == nullptr) return Missing::kNone;
  const auto place = PlaceOf(row);
  return block->states.IsKnown(place) ? std::visit(ReadField{*block}, row.field)
                                      : TypedValue(block->states.Why(place));
}

TypedValue ReadPSColumn(const MetaProcessInformation& record, const char* name) LURKWELL_IN_REGION {
  // ps knows neither the idle task nor what is no process of the kernel's.
  if (record.pid <= 0) return Missing::kNone;
  const auto* header = gPSHeaders.Find(name);
  if (header == nullptr || record.psValues == nullptr) return Missing::kNotYetKnown;
  const auto value = std::ranges::find(*record.psValues, header->index, &PSValue::headerIndex);
  if (value == record.psValues->end() || value->text == nullptr) return Missing::kNotYetKnown;
  if (value->isHidden) return Missing::kNotAllowed;
  return ReadPSValue(FactsOfPSColumn(name), *value->text);
}

bool HasPartOf(const MetaProcessInformation& record, std::string_view name) {
  if (name.starts_with("carbonpsn_")) return record.carbonInfo != nullptr;
  if (name.starts_with("classicpsn_")) return record.epir != nullptr;
  return true;
}

TypedValue ReadProperty(const MetaProcessInformation& record, const char* name) LURKWELL_IN_REGION {
  const CatalogueRow* row = FindBuiltInProperty(name);
  if (row == nullptr) return ReadPSColumn(record, name);
  if (row->render == nullptr) return ReadPidProperty(record.pidInfo.get(), *row);
  if (!HasPartOf(record, row->name)) return Missing::kNone;
  if (row->read != nullptr) return row->read(record);
  std::array<char, kNameCapacity> text{};
  return row->render(record, text) ? TypedValue(std::string(text.data())) : Missing::kNone;
}

/// Null when there is none that clients see.
const MetaProcessInformation* ValidRecord(std::int32_t pid) LURKWELL_IN_REGION {
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  return record != nullptr && record->valid ? record : nullptr;
}

}  // namespace

bool GetPIDPropertyValue(std::int32_t pid, const char* name, char* dest, std::int32_t length,
                         bool* found) {
  const std::span<char> buffer{dest, length > 0 ? static_cast<std::size_t>(length) : 0};
  RenderText(buffer, {});
  if (found != nullptr) *found = false;
  const ConsolidatorGuard guard;
  const auto* record = ValidRecord(pid);
  if (record == nullptr) return false;
  if (found != nullptr) *found = true;
  return RenderProperty(*record, name, buffer);
}

TypedValue GetPIDPropertyTypedValue(std::int32_t pid, const char* name) {
  const ConsolidatorGuard guard;
  const auto* record = ValidRecord(pid);
  return record != nullptr ? ReadProperty(*record, name) : Missing::kNone;
}

std::optional<std::int64_t> AgeOfPIDProperty(std::int32_t pid, const char* name) {
  const auto* row = FindBuiltInProperty(name);
  if (row == nullptr || (row->sources & kCostlyFigureSources) == 0) return std::nullopt;
  const ConsolidatorGuard guard;
  const auto* record = ValidRecord(pid);
  if (record == nullptr || record->pidInfo == nullptr) return std::nullopt;
  std::optional<std::int64_t> age;
  for (std::size_t i = 0; i < kCostlySourceCount; ++i) {
    const TimeValue readAt = record->pidInfo->costlyReadAt[i];
    if ((row->sources & CostlySource(i)) == 0 || readAt.IsZero()) continue;
    age = std::max(age.value_or(0), MillisecondsBetween(readAt, TheMachine().clock.Now()));
  }
  return age;
}

TypedValue GetPIDPropertyValueForOutput(std::int32_t pid, const char* name) {
  auto value = GetPIDPropertyTypedValue(pid, name);
  auto* text = std::get_if<std::string>(&value);
  if (text != nullptr && RowOf(kCommandLine).property == name) *text = std::string(KeptOf(*text));
  return value;
}

std::optional<TimeValue> ActiveTimeOf(std::int32_t pid) {
  const ConsolidatorGuard guard;
  const auto* record = ValidRecord(pid);
  if (record == nullptr) return std::nullopt;
  return record->activeTime;
}

ProcessGlance GlanceAt(std::int32_t pid) {
  const ConsolidatorGuard guard;
  const auto* record = ValidRecord(pid);
  if (record == nullptr) return {};
  const auto* block = record->pidInfo.get();
  return {record->changeStamp,
          record->activeTime,
          block == nullptr || AreTimesRead(*record),
          block != nullptr ? block->runState : RunState::kSleeping,
          ParentOf(*record),
          block != nullptr ? block->startStamp : 0,
          !record->psn.IsNone(),
          IsKernelThread(*record)};
}

}  // namespace lurkwell
