#include "consolidator/PropertyValues.h"

#include <cstdio>
#include <span>
#include <string_view>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyRendering.h"
#include "consolidator/Unit.h"
#include "platform/Assertion.h"

namespace lurkwell {
namespace {

struct RenderField {
  const PidBlock& block;
  std::span<char> dest;

  bool operator()(std::monostate) const { return false; }
  bool operator()(char (PidBlock::*field)[kCommandNameCapacity]) const {
    RenderText(dest, block.*field);
    return true;
  }
  bool operator()(std::int32_t PidBlock::*field) const { return RenderInteger(dest, block.*field); }
  bool operator()(std::int64_t PidBlock::*field) const { return RenderInteger(dest, block.*field); }
  bool operator()(TimeValue PidBlock::*field) const { return RenderTime(dest, block.*field); }
};

bool RenderPidProperty(const MetaProcessInformation& record, const CatalogueRow* row,
                       std::span<char> dest) {
  if (record.pidInfo == nullptr) {
    RenderText(dest, "n/a");
    return false;
  }
  if (row == nullptr || dest.size() < row->minimumLength) return false;
  return std::visit(RenderField{*record.pidInfo, dest}, row->field);
}

bool RenderPSColumn(const MetaProcessInformation& record, std::string_view name,
                    std::span<char> dest) {
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
                    std::span<char> dest) {
  const CatalogueRow* row = FindBuiltInProperty(name);
  if (name.starts_with("meta_")) {
    if (row != nullptr) return row->render(record, dest);
    std::printf("unsupported property kind! %.*s\n", static_cast<int>(name.size()), name.data());
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

}  // namespace

bool GetPIDPropertyValue(std::int32_t pid, const char* name, char* dest, std::int32_t length,
                         bool* found) {
  const std::span<char> buffer{dest, length > 0 ? static_cast<std::size_t>(length) : 0};
  RenderText(buffer, {});
  if (found != nullptr) *found = false;
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr || !record->valid) return false;
  if (found != nullptr) *found = true;
  return RenderProperty(*record, name, buffer);
}

std::optional<TimeValue> ActiveTimeOf(std::int32_t pid) {
  const ConsolidatorGuard guard;
  const auto* record = gRecords.GetExistingPIDInformation(pid);
  if (record == nullptr || !record->valid) return std::nullopt;
  return record->activeTime;
}

}  // namespace lurkwell
